// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QThread>

/*! \brief Finds out which files are missing, on a thread of its own: a share that is gone answers after
 * minutes.
 *
 * Deletes itself when it has ended. Nobody waits for one that hangs: it is left behind.
 */
class FileLook : public QThread
{
    Q_OBJECT

public:
    explicit FileLook(const QStringList &files);
    ~FileLook() override;

signals:
    /*! There is no such file at present. */
    void missing(const QString &file);

protected:
    void run() override;

private:
    QStringList m_files;
};
