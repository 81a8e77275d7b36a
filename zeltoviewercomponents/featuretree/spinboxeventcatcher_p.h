// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/*! \brief Reports the focus changes of the widgets it is installed on; lets every event through.
 *
 * \ingroup controls
 */
class SpinBoxEventCatcher : public QObject
{
    Q_OBJECT

public:
    explicit SpinBoxEventCatcher(QObject *parent = nullptr);
    ~SpinBoxEventCatcher() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /*! The focus came (true) or went. */
    void focusEvent(bool focus);
};
