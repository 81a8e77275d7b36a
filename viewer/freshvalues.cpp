// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "freshvalues.h"

#include <QEventLoop>
#include <QTimer>

namespace {

constexpr int longestWait = 5000; // milliseconds

}

FreshValues::FreshValues(const QList<ParameterPtr> &parameters, QObject *parent)
    : QObject(parent)
    , m_parameters(parameters)
{
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
    for (const ParameterPtr &parameter : std::as_const(m_parameters)) {
        m_awaited.insert(parameter.data());
    }
    QEventLoop loop;
    connect(this, SIGNAL(complete()), &loop, SLOT(quit()));
    QTimer::singleShot(longestWait, &loop, SLOT(quit()));
    for (const ParameterPtr &parameter : std::as_const(m_parameters)) {
        parameter->scheduleParameterDataChangedCheck(true);
    }
    if (!m_awaited.isEmpty()) {
        loop.exec();
    }
    return m_awaited.isEmpty();
}

void FreshValues::onData()
{
    m_awaited.remove(sender());
    if (m_awaited.isEmpty()) {
        emit complete();
    }
}
