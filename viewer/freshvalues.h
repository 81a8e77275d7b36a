// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparameter.h>

#include <QList>
#include <QObject>
#include <QSet>
#include <QSharedPointer>
#include <QString>
#include <QTimer>

/*! \brief Reads features anew from the camera. */
class FreshValues : public QObject
{
    Q_OBJECT

public:
    using ParameterPtr = QSharedPointer<ParameterCollection::IParameter>;

    explicit FreshValues(const QList<ParameterPtr> &parameters, QObject *parent = nullptr);
    ~FreshValues() override;

    /*! Has all features read. Returns whether each of them has answered in time; runs the event loop
     * meanwhile. */
    bool read();
    /*! Has all features read and returns at once. */
    void request();

signals:
    /*! All features have answered, or not in time. */
    void finished();

private slots:
    void onData();

private:
    QList<ParameterPtr> m_parameters;
    QSet<QObject *> m_awaited;
    QTimer m_patience;
};
