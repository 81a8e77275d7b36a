// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "freshvalues.h"

#include <QEventLoop>

#include <utility>

namespace {

constexpr int longestWait = 5000; // milliseconds

}

FreshValues::FreshValues(const QList<ParameterPtr> &parameters, QObject *parent)
    : QObject(parent)
    , m_parameters(parameters)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(longestWait);
    connect(&m_patience, SIGNAL(timeout()), this, SIGNAL(finished()));
    for (const ParameterPtr &parameter : parameters) {
        connect(
            parameter.data(),
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)),
            this, SLOT(onData()), Qt::UniqueConnection);
    }
}

FreshValues::~FreshValues() = default;

bool FreshValues::read()
{
    QEventLoop loop;
    connect(this, SIGNAL(finished()), &loop, SLOT(quit()), Qt::QueuedConnection);
    request();
    loop.exec();
    return m_awaited.isEmpty();
}

void FreshValues::request()
{
    for (const ParameterPtr &parameter : std::as_const(m_parameters)) {
        m_awaited.insert(parameter.data());
    }
    m_patience.start();
    for (const ParameterPtr &parameter : std::as_const(m_parameters)) {
        parameter->scheduleParameterDataChangedCheck(true);
    }
}

void FreshValues::onData()
{
    if (m_awaited.remove(sender()) && m_awaited.isEmpty()) {
        m_patience.stop();
        emit finished();
    }
}
