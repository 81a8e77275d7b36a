// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QString>

/*! \brief One favorite feature: known by its node map and its name, whether or not a camera has it now. */
struct ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FavoriteEntry
{
    QString featureName; //!< the name within the node map, such as "ExposureTime"
    QString displayName; //!< the text shown for it
    QString nodeMapKey; //!< the name of the node map, such as "@CameraDevice"

    /*! Returns whether both are the same favorite; what they are called on screen does not matter. */
    bool isSameFavorite(const FavoriteEntry &other) const
    {
        return nodeMapKey == other.nodeMapKey && featureName == other.featureName;
    }
};
