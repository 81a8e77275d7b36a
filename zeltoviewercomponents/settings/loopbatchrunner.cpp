// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "loopbatchrunner_p.h"

#include <exception>
#include <utility>

using namespace ParameterCollection;

namespace {

constexpr int longestSilence = 3000; // milliseconds

}

LoopBatchRunner::LoopBatchRunner(QSharedPointer<IParameterCollection> collection)
    : m_collection(std::move(collection))
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(longestSilence);
    connect(&m_patience, SIGNAL(timeout()), this, SLOT(onSilence()));
}

LoopBatchRunner::~LoopBatchRunner() = default;

void LoopBatchRunner::runBatch(std::shared_ptr<IBatch> batch)
{
    m_batch = std::move(batch);
    QMetaObject::invokeMethod(this, "advance", Qt::QueuedConnection);
}

void LoopBatchRunner::advance()
{
    const auto operation = m_batch->next(std::exchange(m_outcome, BatchOutcome()));
    if (!operation) {
        deleteLater();
        return;
    }
    try {
        carryOut(*operation);
    } catch (const std::exception &exception) {
        m_outcome.failure = QString::fromUtf8(exception.what());
    }
    if (!m_parameter) {
        QMetaObject::invokeMethod(this, "advance", Qt::QueuedConnection);
    }
}

// Even after a refusal the parameter is asked what it is now.
void LoopBatchRunner::carryOut(const BatchOperation &operation)
{
    const auto parameter = m_collection->parameter(operation.name);
    if (!parameter) {
        return;
    }
    if (operation.kind == BatchOperation::Kind::Write) {
        try {
            parameter->setValueFromString(operation.value);
        } catch (const std::exception &exception) {
            m_outcome.failure = QString::fromUtf8(exception.what());
        }
    }
    connect(parameter.data(),
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)),
            this, SLOT(onData()));
    parameter->scheduleParameterDataChangedCheck(true);
    m_parameter = parameter;
    m_patience.start();
}

void LoopBatchRunner::onData()
{
    if (!m_parameter) {
        return;
    }
    m_patience.stop();
    const auto parameter = std::exchange(m_parameter, nullptr);
    parameter->disconnect(this);
    try {
        m_outcome.access = parameter->nodeAccessMode();
        m_outcome.data = parameter->parameterData();
    } catch (const std::exception &exception) {
        m_outcome.failure = QString::fromUtf8(exception.what());
    }
    advance();
}

void LoopBatchRunner::onSilence()
{
    const auto parameter = std::exchange(m_parameter, nullptr);
    parameter->disconnect(this);
    m_outcome.isLost = true;
    advance();
}
