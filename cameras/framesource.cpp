// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "framesource_p.h"

#include <platform/core/guard.h>
#include <platform/core/logging.h>

namespace Cameras {

ZELTO_LOG_CATEGORY("zelto.cameras.stream")

FrameSource::FrameSource(Engine &engine)
    : m_engine(engine)
{
}

FrameSource::~FrameSource() = default;

QString FrameSource::framesSentWords()
{
    return tr("The camera has sent as many images as AcquisitionMode asks for.");
}

void FrameSource::noteWrite(int node)
{
    Q_UNUSED(node)
}

void FrameSource::start()
{
    prepare();
    lock(true);
    try {
        m_engine.executeNamed(QStringLiteral("AcquisitionStart"));
    } catch (...) {
        lock(false);
        throw;
    }
}

void FrameSource::stop()
{
    Core::guardedRun({logCategory(), "FrameSource::stop"}, QStringLiteral("Failed to stop the acquisition"),
                     [this] { m_engine.executeNamed(QStringLiteral("AcquisitionStop")); });
    lock(false);
}

// A camera that cannot be told so delivers images all the same.
void FrameSource::lock(bool isLocked)
{
    Core::guardedRun({logCategory(), "FrameSource::lock"}, QStringLiteral("Failed to set TLParamsLocked"),
                     [&] { m_engine.setInteger(QStringLiteral("TLParamsLocked"), isLocked ? 1 : 0); });
}

} // namespace Cameras
