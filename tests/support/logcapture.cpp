// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "logcapture.h"

#include <QLoggingCategory>

LogCapture *LogCapture::s_current = nullptr;

LogCapture::LogCapture()
{
    Q_ASSERT(!s_current);
    s_current = this;
    m_previous = qInstallMessageHandler(handle);
    QLoggingCategory::setFilterRules(QStringLiteral("zelto.*.debug=true"));
}

LogCapture::~LogCapture()
{
    QLoggingCategory::setFilterRules(QString());
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
}

QStringList LogCapture::entries() const
{
    const QMutexLocker locker(&m_mutex);
    QStringList texts;
    for (const Entry &entry : m_entries) {
        texts.append(QStringLiteral("%1 %2: %3").arg(entry.level).arg(entry.category, entry.message));
    }
    return texts;
}

QStringList LogCapture::messages() const
{
    const QMutexLocker locker(&m_mutex);
    QStringList texts;
    for (const Entry &entry : m_entries) {
        texts.append(entry.message);
    }
    return texts;
}

void LogCapture::clear()
{
    const QMutexLocker locker(&m_mutex);
    m_entries.clear();
}

void LogCapture::handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const int level = type == QtDebugMsg ? 0 : type == QtInfoMsg ? 1 : type == QtWarningMsg ? 2 : 3;
    const QMutexLocker locker(&s_current->m_mutex);
    s_current->m_entries.append({level, QString::fromLatin1(context.category), message});
}
