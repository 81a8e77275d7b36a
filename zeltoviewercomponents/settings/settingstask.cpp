// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingstask.h"

#include "loopbatchrunner_p.h"
#include "settingsscript_p.h"

#include <utility>

SettingsTask::SettingsTask(QList<SettingsNodeMap> nodeMaps, QObject *parent)
    : QObject(parent)
    , m_nodeMaps(std::move(nodeMaps))
{
}

SettingsTask::~SettingsTask()
{
    if (m_script) {
        m_script->setListener(nullptr);
        m_script->cancel();
    }
}

const QList<SettingsNodeMap> &SettingsTask::nodeMaps() const
{
    return m_nodeMaps;
}

bool SettingsTask::isRunning() const
{
    return m_isRunning;
}

bool SettingsTask::isCancelled() const
{
    return m_isCancelled;
}

bool SettingsTask::isLost() const
{
    return m_isLost;
}

void SettingsTask::start()
{
    m_isRunning = true;
    QMetaObject::invokeMethod(this, "advance", Qt::QueuedConnection);
    emit started();
}

void SettingsTask::cancel()
{
    if (!m_isRunning) {
        return;
    }
    m_isCancelled = true;
    if (m_script) {
        m_script->cancel();
    }
}

void SettingsTask::advance()
{
    int nodeMap = 0;
    m_script = nextScript(&nodeMap);
    if (!m_script) {
        m_isRunning = false;
        emit finished();
        return;
    }
    m_script->setListener(this);
    if (m_isCancelled) {
        m_script->cancel();
    }
    const auto &collection = m_nodeMaps[nodeMap].collection;
    if (auto *const runner = qobject_cast<ParameterCollection::IBatchRunner *>(collection.data())) {
        runner->runBatch(m_script);
    } else {
        (new LoopBatchRunner(collection))->runBatch(m_script);
    }
}

void SettingsTask::onProgress(int done, int total, const QString &feature)
{
    m_total = m_done + total;
    emit progress(m_done + done, m_total, feature);
}

void SettingsTask::onScriptFinished()
{
    const std::shared_ptr<SettingsScript> script = std::exchange(m_script, nullptr);
    m_isLost = m_isLost || script->isLost();
    m_done = m_total;
    take(*script);
    advance();
}
