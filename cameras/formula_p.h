// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QtGlobal>

#include <optional>
#include <variant>
#include <vector>

namespace Cameras {

/*! \brief A formula of a description that tells when it has no result.
 *
 * It has none when it divides by zero, when 64 bits cannot hold a number on the way, and when its text is no
 * formula: the engine reads 0 then, or ends the program. Elsewhere the results are those of the engine.
 */
class ZELTO_CAMERAS_EXPORT Formula
{
public:
    using Number = std::variant<qint64, double>;
    /*! Constants and named expressions, by name. */
    using Parts = QHash<QByteArray, QByteArray>;

    Formula() = default;
    /*! \a variables are the names that stand for values, in the order in which these will be handed over. */
    Formula(const QByteArray &text, const Parts &parts, const QList<QByteArray> &variables);

    /*! Returns whether the value of the variable at \a index is needed. */
    bool uses(int index) const;

    /*! Returns the integers that stand beside the variable at \a index, as in a comparison. */
    QList<qint64> neighbours(int index) const;

    /*! Returns the result of integer arithmetic, nothing when there is none. */
    std::optional<qint64> integer(const std::vector<Number> &values) const;
    /*! Returns the result of floating-point arithmetic, nothing when there is none. */
    std::optional<double> number(const std::vector<Number> &values) const;

    /*! Returns \a number without its decimals, nothing when 64 bits cannot hold it. */
    static std::optional<qint64> truncated(double number);

private:
    enum class Operation {
        Literal,
        Variable,
        Or,
        And,
        BitOr,
        BitXor,
        BitAnd,
        Equal,
        Unequal,
        AtMost,
        AtLeast,
        Less,
        Greater,
        ShiftLeft,
        ShiftRight,
        Add,
        Subtract,
        Multiply,
        Divide,
        Remainder,
        Power,
        Choose,
        Negate,
        Invert,
        Sin,
        Cos,
        Tan,
        Asin,
        Acos,
        Atan,
        Abs,
        Sign,
        Sqrt,
        Exp,
        Ln,
        Lg,
        Truncate,
        Floor,
        Ceil,
        Round,
        RoundTo
    };

    struct Step
    {
        Operation operation;
        Number literal;
        int variable = -1;
    };

    class Parser;

    template <typename Value>
    std::optional<Value> evaluated(const std::vector<Number> &values) const;
    template <typename Value>
    static std::optional<Value> combined(Operation operation, Value left, Value right);
    template <typename Value>
    static std::optional<Value> applied(Operation operation, Value value);
    static std::optional<qint64> ofIntegers(Operation operation, qint64 left, qint64 right);

    std::vector<Step> m_steps; // in the order of evaluation; none when the text is no formula
};

} // namespace Cameras
