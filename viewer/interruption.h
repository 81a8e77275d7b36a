// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QSocketNotifier;

/*! \brief Turns the first request to end the program, as by Ctrl+C, into a signal. A second one ends it at
 * once.
 */
class Interruption : public QObject
{
    Q_OBJECT

public:
    explicit Interruption(QObject *parent = nullptr);
    ~Interruption() override;

    /*! Returns whether the program was asked to end. */
    static bool isRequested();

signals:
    void requested();

private slots:
    void onSignal();

private:
    QSocketNotifier *m_notifier = nullptr;
};
