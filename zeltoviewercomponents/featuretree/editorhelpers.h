// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <platform/core/guard.h>
#include <platform/core/logging.h>
#include <platform/parametercollection/parameterdata.h>

#include <QString>

#include <functional>
#include <limits>

class QAbstractSpinBox;
class QEvent;
class QKeyEvent;
class QLineEdit;
class QSlider;
class QWidget;

/*! \brief What the value editors and their controls share. */
namespace EditorHelpers {

/*! The steps that Qt asks a spin box for on Page Up and, negative, on Page Down. */
constexpr int pageKeySteps = 10;

/*! Returns \a value, limited to the signed 32-bit range of Qt's integer controls. */
int saturated(qint64 value);

/*! Returns \a a - \a b as 32-bit arithmetic that wraps around. */
int wrappingDifference(int a, int b);

/*! Returns the larger of a twentieth of the distance of the limits and twice \a increment, in 32-bit
 * arithmetic that wraps around: the full 32-bit range counts as narrow. */
int pageStep(int minimum, int maximum, int increment);

/*! Returns \a value moved toward \a minimum onto the grid that starts there; as it is when \a increment is 0.
 */
int trimmedToGrid(int value, int minimum, int increment);

/*! Returns the point of the grid minimum, minimum + increment, ... that is nearest to \a value and inside the
 * limits. Without a usable increment \a value is only limited. The limits are finite and in order. */
double snappedToGrid(double value, double minimum, double maximum, double increment);

/*! Returns \a value without the binary noise behind its 15th significant digit. */
double withoutNoise(double value);

/*! Returns the sum without the binary noise behind the 15th significant digit of the larger of both: -0.3 and
 * three times 0.1 are 0. */
double sumWithoutNoise(double a, double b);

/*! \brief What a control makes of the limits of a feature: they are finite and in order, the increment is 0
 * when there is none.
 *
 * \ingroup editors
 */
struct FloatLimits
{
    /*! Returns whether there are two limits: those as far away as numbers go are none. */
    bool isBounded() const;

    double minimum = std::numeric_limits<double>::lowest();
    double maximum = std::numeric_limits<double>::max();
    double increment = 0.0;
};

/*! Returns the limits of \a data. A limit that is not finite becomes the farthest double, as do both limits
 * when they are in the wrong order. */
FloatLimits usableLimits(const ParameterCollection::FloatParameterData &data);

/*! Returns the limits of what can be entered while \a data is shown: none but the parameter's own refusal
 * when there is no value or the limits are in the wrong order. */
FloatLimits entryLimits(const ParameterCollection::FloatParameterData &data);

/*! Returns whether \a data has a value that can be shown as a number. */
bool hasNumber(const ParameterCollection::FloatParameterData &data);

/*! Returns whether steps make sense: there is a value, and the limits are in order. */
bool canStep(const ParameterCollection::FloatParameterData &data);

/*! Hands a floating-point editor its \a data: calls \a show with the snapshot, guarded, and logs limits that
 * are not finite, not in order, or do not contain the value. Data of another kind is logged and left alone.
 */
void takeFloatData(const Core::GuardSite &site, const AbstractItemEditor::EditorData &data,
                   const std::function<void(const ParameterCollection::FloatParameterData &)> &show);

/*! Returns the name of \a parameter as log entries show it; empty for a null one. */
QString nodeName(const ParameterCollection::IParameter *parameter);

/*! Returns whether features of the GenICam \a representation are edited with a slider. */
bool wantsSlider(const QString &representation);

/*! Returns whether the tree may change what \a data shows: implemented and writable. */
bool canBeChanged(const ParameterCollection::ParameterData &data);

/*! Runs \a work, which sets a tool tip; a GenICam or standard exception is logged to \a category and ends it.
 */
void guardedToolTip(Core::Logging::CategoryId category, const std::function<void()> &work);

/*! Puts \a spinBox and \a slider side by side into \a editor, which hands its focus to the spin box. */
void layOutComboSlider(QWidget *editor, QAbstractSpinBox *spinBox, QSlider *slider);

/*! Makes \a editor hand its focus to \a spinBox, cover what is below it and leave the wheel to the view. */
void setUpComposite(QWidget *editor, QAbstractSpinBox *spinBox);

/*! Returns the width that a spin box needs for twelve digits. */
int editBoxWidth(const QAbstractSpinBox &spinBox);

/*! Returns the line edit inside \a spinBox. */
QLineEdit *lineEditOf(const QAbstractSpinBox &spinBox);

/*! Returns whether \a event tells of a focus that comes back: a menu, a list or another window has it
 * meanwhile. */
bool isFocusLent(const QEvent &event);

/*! Returns whether the focus is where a right click has put it, which is for a menu: not in another input. */
bool isFocusForMenu();

/*! Returns whether the user is typing into \a lineEdit, whose focus \a owner has, or will have again behind
 * a menu or when its window is active. */
bool isBeingTyped(const QWidget &owner, const QLineEdit &lineEdit);

/*! Makes the press of Escape mean "undo" and that of Return or Enter stop here, so that neither closes the
 * editor around a spin box. To be called after the spin box itself saw \a event; \a press hands it a further
 * key press. */
void finishKeyPress(QKeyEvent *event, const QLineEdit &lineEdit,
                    const std::function<void(QKeyEvent *)> &press);

/*! \brief Keeps a text selected as a whole while another one takes its place: what is typed next replaces it.
 * A part of a text is no part of the next one, and is selected no longer.
 *
 * \ingroup editors
 */
class SelectedText
{
public:
    explicit SelectedText(QLineEdit *lineEdit);
    ~SelectedText();
    SelectedText(const SelectedText &) = delete;
    SelectedText &operator=(const SelectedText &) = delete;

private:
    QLineEdit *m_lineEdit;
    QString m_text;
    QString m_selected;
};

/*! \brief Leaves the text that is being typed into a line edit as it is while what is below it changes.
 *
 * \ingroup editors
 */
class TypedText
{
public:
    explicit TypedText(QLineEdit *lineEdit);
    ~TypedText();
    TypedText(const TypedText &) = delete;
    TypedText &operator=(const TypedText &) = delete;

private:
    QLineEdit *m_lineEdit;
    QString m_text;
    int m_cursor;
    int m_selectionStart;
    int m_selectionLength;
};

} // namespace EditorHelpers
