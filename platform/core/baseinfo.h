// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QObject>

namespace Core::AppCoreComponents {

/*! \brief An object that belongs to a context of the application, such as an opened camera. */
class ZELTO_PLATFORM_EXPORT CContextObject : public QObject
{
    Q_OBJECT

public:
    explicit CContextObject(QObject *parent = nullptr);
    ~CContextObject() override;
};

/*! \brief Base of what the application tells about itself and its items. */
class ZELTO_PLATFORM_EXPORT IBaseInfo : public CContextObject
{
    Q_OBJECT

public:
    explicit IBaseInfo(QObject *parent = nullptr);
    ~IBaseInfo() override;
};

} // namespace Core::AppCoreComponents
