// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsprogress.h"

#include "settingstask.h"

#include <QLabel>
#include <QTimer>

#include <limits>

namespace {

constexpr int patience = 500; // milliseconds
constexpr int columns = 48; // of the text, so that the dialog does not change its size with it

} // namespace

SettingsProgress::SettingsProgress(SettingsTask *task, const QString &title, QWidget *parent)
    : QProgressDialog(parent)
    , m_patience(new QTimer(this))
{
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    setAutoReset(false);
    setAutoClose(false);
    setMinimumDuration(std::numeric_limits<int>::max()); // it would guess how long the work is going to take
    setMinimumWidth(fontMetrics().averageCharWidth() * columns);
    setLabelText(tr("Starting…"));
    reset(); // else it shows itself after a while
    m_patience->setSingleShot(true);
    m_patience->setInterval(patience);
    connect(m_patience, SIGNAL(timeout()), this, SLOT(show()));
    connect(task, SIGNAL(started()), this, SLOT(onStarted()));
    connect(task, SIGNAL(progress(int, int, QString)), this, SLOT(onProgress(int, int, QString)));
    connect(task, SIGNAL(finished()), this, SLOT(onFinished()));
    connect(this, SIGNAL(canceled()), task, SLOT(cancel()));
    connect(this, SIGNAL(canceled()), this, SLOT(onCanceled()));
}

SettingsProgress::~SettingsProgress() = default;

void SettingsProgress::onStarted()
{
    m_patience->start();
}

void SettingsProgress::onProgress(int done, int total, const QString &feature)
{
    setMaximum(total);
    setValue(done);
    if (!wasCanceled()) {
        setLabelText(tr("%1 of %2: %3").arg(done).arg(total).arg(feature));
    }
}

// Selectors are put back before the end.
void SettingsProgress::onCanceled()
{
    setLabelText(tr("Cancelling…"));
}

void SettingsProgress::onFinished()
{
    m_patience->stop();
    hide();
}
