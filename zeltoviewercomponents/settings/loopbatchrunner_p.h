// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/ibatchrunner.h>
#include <platform/parametercollection/iparameter.h>
#include <platform/parametercollection/iparametercollection.h>

#include <QObject>
#include <QSharedPointer>
#include <QTimer>

#include <memory>

/*! \brief Carries out a batch on a collection that has no thread for it, one operation in each turn of the
 * event loop.
 *
 * Lives until the batch has come to its end, and then deletes itself.
 *
 * \ingroup settings
 */
class LoopBatchRunner : public QObject, public ParameterCollection::IBatchRunner
{
    Q_OBJECT
    Q_INTERFACES(ParameterCollection::IBatchRunner)

public:
    explicit LoopBatchRunner(QSharedPointer<ParameterCollection::IParameterCollection> collection);
    ~LoopBatchRunner() override;

    void runBatch(std::shared_ptr<ParameterCollection::IBatch> batch) override;

private slots:
    void advance();
    void onData();
    void onSilence();

private:
    void carryOut(const ParameterCollection::BatchOperation &operation);

    QSharedPointer<ParameterCollection::IParameterCollection> m_collection;
    std::shared_ptr<ParameterCollection::IBatch> m_batch;
    QSharedPointer<ParameterCollection::IParameter> m_parameter; // that is to publish what it is now
    ParameterCollection::BatchOutcome m_outcome;
    QTimer m_patience;
};
