// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QObject>

namespace Core::Service {

/*! \brief Base of the services that an application's plug-ins offer to each other. */
class ZELTO_PLATFORM_EXPORT IService : public QObject
{
    Q_OBJECT

public:
    explicit IService(QObject *parent = nullptr);
    ~IService() override;
};

} // namespace Core::Service
