// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>

class QAction;
class QLocale;

/*! Returns the language that was chosen when the application ran last, else the system's. */
QLocale chosenLanguage();

/*! \brief Lets the user choose the application's language: as the system, or one that there is.
 *
 * The choice takes effect at once, in all windows, and is remembered. Numbers stay as the system has them.
 */
class LanguagesMenu : public QMenu
{
    Q_OBJECT

public:
    explicit LanguagesMenu(QWidget *parent = nullptr);
    ~LanguagesMenu() override;

private slots:
    void choose(QAction *action);
};
