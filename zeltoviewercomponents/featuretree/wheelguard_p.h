// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QWidget;

/*! \brief Keeps the wheel from changing values that the user does not mean.
 *
 * The controls of an editor get wheel events only while one of them has the focus because the user has
 * clicked or tabbed into it, else the parent gets them. A focus that came otherwise does not count: the user
 * may only be scrolling the view.
 *
 * \ingroup controls
 */
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /*! Watches \a control, which is \a editor or a part of it. */
    WheelGuard(QWidget *editor, QWidget *control);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isEditorEntered() const;
    void noteFocus(QObject *watched, const QEvent *event);

    QWidget *m_editor;
    QWidget *m_control;
    bool m_isEntered = false;
};
