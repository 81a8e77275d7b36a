// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "cameraaddress.h"

#include <zeltoviewercomponents/featuretree/featuretreelook.h>

#include <QHash>
#include <QString>

#include <optional>

class SettingsWriter;

/*! \brief How a camera or description file was looked at when it was closed. */
struct CameraView
{
    FeatureTreeLook tree;
    bool monitors = false;
};

/*! \brief Keeps in the settings how each camera was looked at; of many, those that were used last. */
class CameraMemory
{
public:
    /*! Keeps it by \a writer, which has to outlive it. */
    explicit CameraMemory(SettingsWriter *writer);

    /*! Sets which camera it is about, the one at \a address with \a id; about none it keeps nothing. */
    void setSource(const std::optional<CameraAddress> &address, const QString &id = {});

    /*! Returns how the camera was looked at last, none when that is not known. */
    std::optional<CameraView> recall() const;
    void remember(const CameraView &view);

private:
    QString m_group; // of the settings, empty when nothing is to be remembered
    QString m_name;
    SettingsWriter *m_writer;
    QHash<QString, CameraView> m_views; // by the group: of this window, written or not
};
