// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

/*! \brief The fixed parts of full names, the keys by which the rows of the tree are found. */
namespace FeatureTreeNames {

inline constexpr QLatin1String root("Root"); //!< a collection's top node
inline constexpr QLatin1String search("Search"); //!< the search row
inline constexpr QLatin1String favoritesTopLevel("FavoritesTopLevel"); //!< the head of the favorites branch
inline constexpr QLatin1String dummy("Dummy"); //!< the hint in an empty favorites branch
inline constexpr QLatin1String favorite("Fav"); //!< first part of a favorites row's name
inline constexpr char separator = '*'; //!< between the parts of the names of top rows and favorites rows

} // namespace FeatureTreeNames

/*! \brief The columns of the feature tree. */
namespace FeatureTreeColumns {

inline constexpr int name = 0; //!< of the feature
inline constexpr int value = 1; //!< of the feature, with its editor
inline constexpr int count = 2; //!< of the columns

} // namespace FeatureTreeColumns
