// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QWidget;

/*! \brief Keeps the wheel from changing values while the user scrolls the view across an editor.
 *
 * A watched control gets wheel events only while its editor has the focus, else its parent gets them.
 */
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /*! Watches \a control, which is \a editor or a part of it. */
    WheelGuard(QWidget *editor, QWidget *control);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_editor;
    QWidget *m_control;
};
