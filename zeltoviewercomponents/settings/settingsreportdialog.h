// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settingsreport.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QDialog>

class QCheckBox;
class QTreeWidget;

/*! \brief Shows what came of applying settings, the features with problems first of all.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT SettingsReportDialog : public QDialog
{
    Q_OBJECT

public:
    /*! Shows \a report. */
    explicit SettingsReportDialog(const SettingsReport &report, QWidget *parent = nullptr);
    ~SettingsReportDialog() override;

Q_SIGNALS:
    /*! The user wants back what was before. */
    void putBackRequested();

private Q_SLOTS:
    void fill();
    void copy();
    void putBack();

private:
    SettingsReport m_report;
    QCheckBox *m_all;
    QTreeWidget *m_list;
};
