// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QString>

#include <utility>

/*! \brief One favorite feature: known by its node map and its name, whether or not a camera has it now.
 *
 * \ingroup favorites
 */
struct ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FavoriteEntry
{
    QString featureName; //!< the name within the node map, such as "ExposureTime"
    QString displayName; //!< the text shown for it
    QString nodeMapKey; //!< the name of the node map, such as "@CameraDevice"

    /*! Returns whether all fields are the same. */
    bool operator==(const FavoriteEntry &) const = default;

    /*! Returns whether both are the same favorite; what they are called on screen does not matter. */
    bool isSameFavorite(const FavoriteEntry &other) const
    {
        return nodeMapKey == other.nodeMapKey && featureName == other.featureName;
    }

    /*! Returns what makes it the favorite that it is, for sets. */
    std::pair<QString, QString> identity() const { return {nodeMapKey, featureName}; }
};
