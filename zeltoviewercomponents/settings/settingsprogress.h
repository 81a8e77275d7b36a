// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QProgressDialog>
#include <QString>

class QTimer;
class SettingsTask;

/*! \brief Shows how far a SettingsTask has come and lets the user cancel it.
 *
 * Appears when the task takes longer than half a second, and goes with its end. Create it before the task is
 * started.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT SettingsProgress : public QProgressDialog
{
    Q_OBJECT

public:
    /*! \a title says what is being done. */
    SettingsProgress(SettingsTask *task, const QString &title, QWidget *parent = nullptr);
    ~SettingsProgress() override;

private Q_SLOTS:
    void onStarted();
    void onProgress(int done, int total, const QString &feature);
    void onCanceled();
    void onFinished();

private:
    QTimer *m_patience;
};
