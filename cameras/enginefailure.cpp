// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "enginefailure_p.h"

#include "aravis_p.h"

#include <platform/core/logging.h>
#include <platform/genicam/genericexception.h>

namespace Cameras {

ZELTO_LOG_CATEGORY("zelto.cameras.engine")

namespace {

QString deviceWords(int code)
{
    switch (code) {
    case ARV_DEVICE_ERROR_TIMEOUT:
        return EngineFailure::tr("the camera does not answer");
    case ARV_DEVICE_ERROR_NOT_CONNECTED:
        return EngineFailure::tr("the camera is not connected");
    case ARV_DEVICE_ERROR_NOT_FOUND:
        return EngineFailure::tr("there is no such camera");
    case ARV_DEVICE_ERROR_GENICAM_NOT_FOUND:
        return EngineFailure::tr("the camera hands out no description of its features");
    case ARV_DEVICE_ERROR_NOT_CONTROLLER:
        return EngineFailure::tr("another program controls the camera");
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED:
        return EngineFailure::tr("the camera denies the access");
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT:
        return EngineFailure::tr("the camera protects it from being written");
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY:
        return EngineFailure::tr("the camera is busy");
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_BAD_ALIGNMENT:
        return EngineFailure::tr("the camera has no such register");
    case ARV_DEVICE_ERROR_INVALID_PARAMETER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER:
        return EngineFailure::tr("the camera does not accept the value");
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_NOT_IMPLEMENTED:
        return EngineFailure::tr("the camera does not support it");
    default:
        return EngineFailure::tr("the camera refuses");
    }
}

QString descriptionWords(int code)
{
    switch (code) {
    case ARV_GC_ERROR_OUT_OF_RANGE:
        return EngineFailure::tr("the value is out of range");
    case ARV_GC_ERROR_READ_ONLY:
        return EngineFailure::tr("it can only be read");
    case ARV_GC_ERROR_ENUM_ENTRY_NOT_FOUND:
    case ARV_GC_ERROR_EMPTY_ENUMERATION:
        return EngineFailure::tr("there is no such entry");
    case ARV_GC_ERROR_INVALID_LENGTH:
        return EngineFailure::tr("the length does not fit");
    default:
        return EngineFailure::tr("the camera's description of it is not usable");
    }
}

[[noreturn]] void throwForDevice(int code, const QString &text)
{
    switch (code) {
    case ARV_DEVICE_ERROR_TIMEOUT:
    case ARV_DEVICE_ERROR_NOT_CONNECTED:
        throw GenICam::TimeoutException(text);
    case ARV_DEVICE_ERROR_NOT_CONTROLLER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED:
        throw GenICam::AccessException(text);
    case ARV_DEVICE_ERROR_INVALID_PARAMETER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER:
        throw GenICam::InvalidArgumentException(text);
    default:
        throw GenICam::RuntimeException(text);
    }
}

[[noreturn]] void throwForDescription(int code, const QString &text)
{
    switch (code) {
    case ARV_GC_ERROR_OUT_OF_RANGE:
        throw GenICam::OutOfRangeException(text);
    case ARV_GC_ERROR_READ_ONLY:
        throw GenICam::AccessException(text);
    case ARV_GC_ERROR_ENUM_ENTRY_NOT_FOUND:
    case ARV_GC_ERROR_INVALID_LENGTH:
    case ARV_GC_ERROR_INVALID_SYNTAX:
        throw GenICam::InvalidArgumentException(text);
    case ARV_GC_ERROR_PROPERTY_NOT_DEFINED:
    case ARV_GC_ERROR_PVALUE_NOT_DEFINED:
    case ARV_GC_ERROR_INVALID_PVALUE:
    case ARV_GC_ERROR_NODE_NOT_FOUND:
        throw GenICam::PropertyException(text);
    default:
        throw GenICam::RuntimeException(text);
    }
}

} // namespace

QString EngineFailure::words(const GError &error)
{
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Debug, logCategory(),
                                  QString::fromUtf8(error.message));
    if (error.domain == ARV_DEVICE_ERROR) {
        return deviceWords(error.code);
    }
    if (error.domain == ARV_GC_ERROR) {
        return descriptionWords(error.code);
    }
    return error.domain == G_RESOLVER_ERROR ? deviceWords(ARV_DEVICE_ERROR_NOT_FOUND)
                                            : tr("the connection to the camera failed");
}

bool EngineFailure::isSilence(const GError &error)
{
    if (error.domain == ARV_DEVICE_ERROR) {
        return error.code == ARV_DEVICE_ERROR_TIMEOUT || error.code == ARV_DEVICE_ERROR_NOT_CONNECTED;
    }
    // The network has gone on this side.
    return error.domain == G_IO_ERROR;
}

void EngineFailure::throwFor(const GError &error, const QString &feature)
{
    const QString text = feature + QLatin1String(": ") + words(error);
    if (error.domain == ARV_DEVICE_ERROR) {
        throwForDevice(error.code, text);
    }
    if (error.domain == ARV_GC_ERROR) {
        throwForDescription(error.code, text);
    }
    throw GenICam::RuntimeException(text);
}

} // namespace Cameras
