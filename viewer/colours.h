// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>

class QAction;

/*! Gives the application its style, and the colours that were chosen when it ran last. */
void setUpColours();

/*! \brief Lets the user choose the application's colours: as the system, light or dark.
 *
 * The choice takes effect at once, in all windows, and is remembered.
 */
class ColoursMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ColoursMenu(QWidget *parent = nullptr);
    ~ColoursMenu() override;

private slots:
    void choose(QAction *action);
};
