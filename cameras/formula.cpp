// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "formula_p.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

namespace Cameras {

namespace {

constexpr int deepestNesting = 100;
constexpr size_t mostSteps = 10000;
constexpr qsizetype mostNeighbours = 20;

template <typename Value>
std::optional<Value> as(double number)
{
    if constexpr (std::is_same_v<Value, double>) {
        return number;
    } else {
        return Formula::truncated(number);
    }
}

std::optional<qint64> toInteger(qint64 value)
{
    return value;
}

std::optional<qint64> toInteger(double value)
{
    return Formula::truncated(value);
}

bool isNamePart(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) || character == '_' || character == '.';
}

} // namespace

/*! \brief Turns a text into steps, by descending through the levels of its operators. */
class Formula::Parser
{
public:
    Parser(const Parts &parts, const QList<QByteArray> &variables, std::vector<Step> &steps)
        : m_parts(parts)
        , m_variables(variables)
        , m_steps(steps)
    {
    }

    bool parse(const QByteArray &text)
    {
        const QByteArray outerText = std::exchange(m_text, text);
        const qsizetype outerAt = std::exchange(m_at, 0);
        const bool isWhole =
            ++m_depth < deepestNesting && choice() && next() == '\0' && m_at >= m_text.size();
        --m_depth;
        m_text = outerText;
        m_at = outerAt;
        return isWhole;
    }

private:
    struct Operator
    {
        const char *text;
        int level;
        Operation operation;
    };

    char next()
    {
        while (m_at < m_text.size() && std::isspace(static_cast<unsigned char>(m_text[m_at]))) {
            ++m_at;
        }
        return m_at < m_text.size() ? m_text[m_at] : '\0';
    }

    bool accept(char character)
    {
        const bool isThere = next() == character;
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    bool add(Operation operation, Number literal = qint64(0), int variable = -1)
    {
        m_steps.push_back({operation, literal, variable});
        return m_steps.size() <= mostSteps;
    }

    bool choice()
    {
        if (++m_depth > deepestNesting || !operators(0)) {
            return false;
        }
        const bool isComplete =
            !accept('?') || (choice() && accept(':') && choice() && add(Operation::Choose));
        --m_depth;
        return isComplete;
    }

    bool operators(int lowestLevel)
    {
        if (!operand()) {
            return false;
        }
        for (const Operator *found = nextOperator(); found && found->level >= lowestLevel;
             found = nextOperator()) {
            m_at += qsizetype(std::strlen(found->text));
            // Powers group from the right.
            const int rightLevel = found->operation == Operation::Power ? found->level : found->level + 1;
            if (++m_depth > deepestNesting || !operators(rightLevel) || !add(found->operation)) {
                return false;
            }
            --m_depth;
        }
        return true;
    }

    const Operator *nextOperator()
    {
        // Those that begin others come after them.
        static constexpr Operator table[] = {
            {"**", 10, Operation::Power},    {"||", 0, Operation::Or},         {"&&", 1, Operation::And},
            {"<>", 5, Operation::Unequal},   {"<=", 6, Operation::AtMost},     {">=", 6, Operation::AtLeast},
            {"<<", 7, Operation::ShiftLeft}, {">>", 7, Operation::ShiftRight}, {"|", 2, Operation::BitOr},
            {"^", 3, Operation::BitXor},     {"&", 4, Operation::BitAnd},      {"=", 5, Operation::Equal},
            {"<", 6, Operation::Less},       {">", 6, Operation::Greater},     {"+", 8, Operation::Add},
            {"-", 8, Operation::Subtract},   {"*", 9, Operation::Multiply},    {"/", 9, Operation::Divide},
            {"%", 9, Operation::Remainder}};
        next();
        const char *text = m_text.constData() + m_at;
        const auto *found = std::find_if(std::begin(table), std::end(table), [text](const Operator &entry) {
            return std::strncmp(text, entry.text, std::strlen(entry.text)) == 0;
        });
        return found == std::end(table) ? nullptr : found;
    }

    bool operand()
    {
        const char first = next();
        if (first == '-' || first == '+' || first == '~') {
            ++m_at;
            if (++m_depth > deepestNesting || !operand()) {
                return false;
            }
            --m_depth;
            return first == '+' || add(first == '-' ? Operation::Negate : Operation::Invert);
        }
        if (accept('(')) {
            return choice() && accept(')');
        }
        return std::isdigit(static_cast<unsigned char>(first)) ? literal() : name();
    }

    QByteArray word()
    {
        const qsizetype begin = m_at;
        while (m_at < m_text.size()
               && (isNamePart(m_text[m_at])
                   || (isExponentSign() && !m_text.mid(begin, 2).toLower().endsWith('x')
                       && std::isdigit(static_cast<unsigned char>(m_text[begin]))))) {
            ++m_at;
        }
        return m_text.mid(begin, m_at - begin);
    }

    bool isExponentSign() const
    {
        return m_at > 0 && (m_text[m_at] == '-' || m_text[m_at] == '+')
            && std::tolower(static_cast<unsigned char>(m_text[m_at - 1])) == 'e';
    }

    bool literal()
    {
        const QByteArray text = word();
        bool ok = false;
        qint64 integer = text.toLongLong(&ok, 0);
        if (!ok) {
            integer = qint64(text.toULongLong(&ok, 0));
        }
        if (ok) {
            return add(Operation::Literal, integer);
        }
        const double number = text.toDouble(&ok);
        return ok && add(Operation::Literal, number);
    }

    bool name()
    {
        const QByteArray text = word();
        const auto part = m_parts.constFind(text);
        if (part != m_parts.constEnd()) {
            return parse(*part);
        }
        const auto variable = m_variables.indexOf(text);
        if (variable >= 0) {
            return add(Operation::Variable, qint64(0), int(variable));
        }
        if (text == "PI" || text == "E") {
            accept('(') && accept(')');
            return add(Operation::Literal, text == "E" ? M_E : M_PI);
        }
        return function(text);
    }

    bool function(const QByteArray &name)
    {
        static const QHash<QByteArray, Operation> functions{
            {"SIN", Operation::Sin},   {"COS", Operation::Cos},        {"TAN", Operation::Tan},
            {"ASIN", Operation::Asin}, {"ACOS", Operation::Acos},      {"ATAN", Operation::Atan},
            {"ABS", Operation::Abs},   {"SGN", Operation::Sign},       {"NEG", Operation::Negate},
            {"SQRT", Operation::Sqrt}, {"EXP", Operation::Exp},        {"LN", Operation::Ln},
            {"LG", Operation::Lg},     {"TRUNC", Operation::Truncate}, {"FLOOR", Operation::Floor},
            {"CEIL", Operation::Ceil}, {"ROUND", Operation::Round}};
        const auto found = functions.constFind(name.toUpper());
        if (found == functions.constEnd() || !accept('(') || !choice()) {
            return false;
        }
        if (*found == Operation::Round && accept(',')) {
            return choice() && accept(')') && add(Operation::RoundTo);
        }
        return accept(')') && add(*found);
    }

    const Parts &m_parts;
    const QList<QByteArray> &m_variables;
    std::vector<Step> &m_steps;
    QByteArray m_text;
    qsizetype m_at = 0;
    int m_depth = 0;
};

Formula::Formula(const QByteArray &text, const Parts &parts, const QList<QByteArray> &variables)
{
    if (!Parser(parts, variables, m_steps).parse(text)) {
        m_steps.clear();
    }
}

bool Formula::uses(int index) const
{
    return std::any_of(m_steps.begin(), m_steps.end(),
                       [index](const Step &step) { return step.variable == index; });
}

QList<qint64> Formula::neighbours(int index) const
{
    QList<qint64> found;
    for (size_t i = 1; i < m_steps.size(); ++i) {
        const bool isRight = m_steps[i].variable == index;
        const Step &other = isRight ? m_steps[i - 1] : m_steps[i];
        const bool isNeighbour = isRight || m_steps[i - 1].variable == index;
        const auto *literal = std::get_if<qint64>(&other.literal);
        if (isNeighbour && other.operation == Operation::Literal && literal
            && found.size() < mostNeighbours) {
            found.append(*literal);
        }
    }
    return found;
}

std::optional<qint64> Formula::integer(const std::vector<Number> &values) const
{
    return evaluated<qint64>(values);
}

std::optional<double> Formula::number(const std::vector<Number> &values) const
{
    return evaluated<double>(values);
}

std::optional<qint64> Formula::truncated(double number)
{
    // The limits themselves are powers of two.
    constexpr double limit = 9223372036854775808.0;
    return number >= -limit && number < limit ? std::optional(qint64(number)) : std::nullopt;
}

template <typename Value>
std::optional<Value> Formula::evaluated(const std::vector<Number> &values) const
{
    const auto typed = [](const Number &number) -> std::optional<Value> {
        const auto *integer = std::get_if<qint64>(&number);
        return integer ? Value(*integer) : as<Value>(std::get<double>(number));
    };
    std::vector<Value> stack;
    const auto popped = [&stack] {
        const Value value = stack.back();
        stack.pop_back();
        return value;
    };
    for (const Step &step : m_steps) {
        std::optional<Value> result;
        if (step.operation == Operation::Literal) {
            result = typed(step.literal);
        } else if (step.operation == Operation::Variable) {
            result = typed(values[size_t(step.variable)]);
        } else if (step.operation == Operation::Choose) {
            const Value otherwise = popped();
            const Value then = popped();
            const auto condition = toInteger(popped());
            result = condition ? std::optional(*condition != 0 ? then : otherwise) : std::nullopt;
        } else if (step.operation < Operation::Choose || step.operation == Operation::RoundTo) {
            const Value right = popped();
            result = combined(step.operation, popped(), right);
        } else {
            result = applied(step.operation, popped());
        }
        if (!result) {
            return std::nullopt;
        }
        stack.push_back(*result);
    }
    return stack.empty() ? std::nullopt : std::optional(stack.back());
}

template <typename Value>
std::optional<Value> Formula::combined(Operation operation, Value left, Value right)
{
    // Integers wrap round, as the engine's do.
    using Wrapping = std::conditional_t<std::is_same_v<Value, double>, double, quint64>;
    switch (operation) {
    case Operation::Add:
        return Value(Wrapping(left) + Wrapping(right));
    case Operation::Subtract:
        return Value(Wrapping(left) - Wrapping(right));
    case Operation::Multiply:
        return Value(Wrapping(left) * Wrapping(right));
    case Operation::Equal:
        return Value(left == right);
    case Operation::Unequal:
        return Value(left != right);
    case Operation::AtMost:
        return Value(left <= right);
    case Operation::AtLeast:
        return Value(left >= right);
    case Operation::Less:
        return Value(left < right);
    case Operation::Greater:
        return Value(left > right);
    case Operation::Power:
        return as<Value>(std::pow(double(left), double(right)));
    case Operation::RoundTo: {
        const double scale = std::pow(10.0, double(right));
        return as<Value>(std::round(double(left) * scale) / scale);
    }
    case Operation::Divide:
        if constexpr (std::is_same_v<Value, double>) {
            return right == 0.0 ? std::nullopt : std::optional(left / right);
        }
        break;
    default:
        break;
    }
    const auto integerLeft = toInteger(left);
    const auto integerRight = toInteger(right);
    const auto result =
        integerLeft && integerRight ? ofIntegers(operation, *integerLeft, *integerRight) : std::nullopt;
    return result ? std::optional(Value(*result)) : std::nullopt;
}

std::optional<qint64> Formula::ofIntegers(Operation operation, qint64 left, qint64 right)
{
    const bool hasQuotient = right != 0 && !(left == std::numeric_limits<qint64>::min() && right == -1);
    switch (operation) {
    case Operation::Divide:
        return hasQuotient ? std::optional(left / right) : std::nullopt;
    case Operation::Remainder:
        return hasQuotient ? std::optional(left % right) : std::nullopt;
    case Operation::Or:
        return left != 0 || right != 0;
    case Operation::And:
        return left != 0 && right != 0;
    case Operation::BitOr:
        return left | right;
    case Operation::BitXor:
        return left ^ right;
    case Operation::BitAnd:
        return left & right;
    case Operation::ShiftLeft:
        return qint64(quint64(left) << (right & 63));
    case Operation::ShiftRight:
        return left >> (right & 63);
    default:
        return std::nullopt;
    }
}

template <typename Value>
std::optional<Value> Formula::applied(Operation operation, Value value)
{
    switch (operation) {
    case Operation::Negate:
        return combined(Operation::Subtract, Value(0), value);
    case Operation::Invert: {
        const auto integer = toInteger(value);
        return integer ? std::optional(Value(~*integer)) : std::nullopt;
    }
    case Operation::Abs:
        return value < 0 ? combined(Operation::Subtract, Value(0), value) : value;
    case Operation::Sign:
        return Value((value > 0) - (value < 0));
    default:
        break;
    }
    const double number = double(value);
    switch (operation) {
    case Operation::Sin:
        return as<Value>(std::sin(number));
    case Operation::Cos:
        return as<Value>(std::cos(number));
    case Operation::Tan:
        return as<Value>(std::tan(number));
    case Operation::Asin:
        return as<Value>(std::asin(number));
    case Operation::Acos:
        return as<Value>(std::acos(number));
    case Operation::Atan:
        return as<Value>(std::atan(number));
    case Operation::Sqrt:
        return as<Value>(std::sqrt(number));
    case Operation::Exp:
        return as<Value>(std::exp(number));
    case Operation::Ln:
        return as<Value>(std::log(number));
    case Operation::Lg:
        return as<Value>(std::log10(number));
    case Operation::Truncate:
        return std::is_same_v<Value, qint64> ? value : Value(std::trunc(number));
    case Operation::Floor:
        return std::is_same_v<Value, qint64> ? value : Value(std::floor(number));
    case Operation::Ceil:
        return std::is_same_v<Value, qint64> ? value : Value(std::ceil(number));
    default:
        return std::is_same_v<Value, qint64> ? value : Value(std::round(number));
    }
}

} // namespace Cameras
