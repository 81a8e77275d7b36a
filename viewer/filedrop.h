// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

class QDropEvent;
class QWidget;

/*! \brief Lets a file be dropped anywhere on a window, also on its line edits, which would take it as text.
 *
 * One local, regular file is taken, always as a copy; everything else goes its usual way.
 */
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /*! Watches \a window, its parent. */
    explicit FileDrop(QWidget *window);
    ~FileDrop() override;

signals:
    /*! Sent when the drop is over, so that the program that the file came from need not wait. */
    void dropped(const QString &fileName);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool accept(QDropEvent *event);

    QWidget *m_window;
};
