// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMutex>
#include <QStringList>
#include <QtGlobal>

/*! \brief Collects what is logged while it lives, one text per entry: "level category: message".
 *
 * Levels are those of Core::Logging ("0" to "3"). Debug entries of the "zelto" categories are switched on
 * meanwhile. One capture at a time.
 */
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    Q_DISABLE_COPY_MOVE(LogCapture)

    QStringList entries() const;
    /*! Returns the messages alone, without level and category. */
    QStringList messages() const;
    void clear();

private:
    struct Entry
    {
        int level;
        QString category;
        QString message;
    };

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);

    static LogCapture *s_current;
    mutable QMutex m_mutex;
    QList<Entry> m_entries;
    QtMessageHandler m_previous = nullptr;
};
