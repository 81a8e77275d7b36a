// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "interruption.h"

#include <QSocketNotifier>

#include <atomic>
#include <csignal>

#include <unistd.h>

namespace {

int pipeEnds[2] = {-1, -1};
std::atomic_bool isInterrupted{false};

// Nothing but this may be done in a signal handler.
extern "C" void onInterrupt(int signal)
{
    isInterrupted = true;
    std::signal(signal, SIG_DFL);
    const char byte = 1;
    [[maybe_unused]] const auto written = write(pipeEnds[1], &byte, 1);
}

} // namespace

Interruption::Interruption(QObject *parent)
    : QObject(parent)
{
    if (pipeEnds[0] < 0 && pipe(pipeEnds) != 0) {
        return;
    }
    m_notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(m_notifier, SIGNAL(activated(QSocketDescriptor)), this, SLOT(onSignal()));
    std::signal(SIGINT, onInterrupt);
    std::signal(SIGTERM, onInterrupt);
}

Interruption::~Interruption()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

bool Interruption::isRequested()
{
    return isInterrupted;
}

void Interruption::onSignal()
{
    char byte = 0;
    [[maybe_unused]] const auto taken = read(pipeEnds[0], &byte, 1);
    emit requested();
}
