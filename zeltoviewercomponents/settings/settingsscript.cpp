// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsscript_p.h"

#include <algorithm>
#include <utility>

using namespace ParameterCollection;

namespace {

constexpr int progressInterval = 50; // milliseconds

}

SettingsScript::SettingsScript() = default;

SettingsScript::~SettingsScript() = default;

std::optional<BatchOperation> SettingsScript::next(const BatchOutcome &previous)
{
    m_operation.reset();
    if (!std::exchange(m_hasBegun, true)) {
        begin();
    } else if (previous.isLost) {
        m_isLost = true;
        m_steps.clear();
    } else if (const Handler handler = std::exchange(m_handler, nullptr)) {
        handler(previous);
    }
    if (m_isCancelled && !std::exchange(m_isCleaningUp, true)) {
        std::erase_if(m_steps, [](const Entry &entry) { return !entry.isCleanup; });
        m_operation.reset();
        m_handler = nullptr;
    }
    while (!m_operation && !m_steps.empty()) {
        const Step step = std::move(m_steps.back().step);
        m_steps.pop_back();
        step();
    }
    if (!m_operation) {
        tell([](QObject *listener) {
            QMetaObject::invokeMethod(listener, "onScriptFinished", Qt::QueuedConnection);
        });
    }
    return m_operation;
}

void SettingsScript::cancel()
{
    m_isCancelled = true;
}

bool SettingsScript::isLost() const
{
    return m_isLost;
}

void SettingsScript::setListener(QObject *listener)
{
    const std::lock_guard lock(m_listenerMutex);
    m_listener = listener;
}

void SettingsScript::tell(const std::function<void(QObject *)> &send)
{
    const std::lock_guard lock(m_listenerMutex);
    if (m_listener) {
        send(m_listener);
    }
}

void SettingsScript::read(const QString &name, Handler handler)
{
    ask({BatchOperation::Kind::Read, name, QString(), BatchOperation::Detail::Everything},
        std::move(handler));
}

void SettingsScript::readBriefly(const QString &name, Handler handler)
{
    ask({BatchOperation::Kind::Read, name, QString(), BatchOperation::Detail::Value}, std::move(handler));
}

void SettingsScript::write(const QString &name, const QString &value, Handler handler)
{
    ask({BatchOperation::Kind::Write, name, value, BatchOperation::Detail::Value}, std::move(handler));
}

void SettingsScript::writeBriefly(const QString &name, const QString &value, Handler handler)
{
    ask({BatchOperation::Kind::Write, name, value, BatchOperation::Detail::Nothing}, std::move(handler));
}

void SettingsScript::ask(const BatchOperation &operation, Handler handler)
{
    m_operation = operation;
    m_handler = std::move(handler);
}

void SettingsScript::addStep(Step step)
{
    m_steps.push_back({std::move(step), false});
}

void SettingsScript::addCleanup(Step step)
{
    m_steps.push_back({std::move(step), true});
}

bool SettingsScript::isCleaningUp() const
{
    return m_isCleaningUp;
}

void SettingsScript::expect(int more)
{
    m_total += more;
}

void SettingsScript::noteProgress(const QString &feature)
{
    const int done = m_done++;
    if (m_sinceProgress.isValid() && !m_sinceProgress.hasExpired(progressInterval)) {
        return;
    }
    m_sinceProgress.start();
    tell([&](QObject *listener) {
        QMetaObject::invokeMethod(listener, "onProgress", Qt::QueuedConnection, Q_ARG(int, done),
                                  Q_ARG(int, std::max(m_total, done + 1)), Q_ARG(QString, feature));
    });
}
