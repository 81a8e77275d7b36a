// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "baseinfo.h"

namespace Core::AppCoreComponents {

CContextObject::CContextObject(QObject *parent)
    : QObject(parent)
{
}

CContextObject::~CContextObject() = default;

IBaseInfo::IBaseInfo(QObject *parent)
    : CContextObject(parent)
{
}

IBaseInfo::~IBaseInfo() = default;

} // namespace Core::AppCoreComponents
