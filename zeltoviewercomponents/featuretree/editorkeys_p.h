// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

class QEvent;
class QKeyEvent;
class QLineEdit;
class QWidget;

/*! \brief What keys and the focus mean in the editors: when something is typed, undone, or left. */
namespace EditorKeys {

/*! The steps that Qt asks a spin box for on Page Up and, negative, on Page Down. */
constexpr int pageKeySteps = 10;

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

} // namespace EditorKeys
