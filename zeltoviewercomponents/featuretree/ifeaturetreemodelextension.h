// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QModelIndex>
#include <QSharedPointer>
#include <QString>

class FavoritesData;
class FeatureTreeHighlighter;
class FeatureTreeINodeItem;
class FeatureTreeItem;

namespace ParameterCollection {
class IParameter;
class IParameterCollection;
} // namespace ParameterCollection

/*! \brief The feature tree's operations beyond those of QAbstractItemModel.
 *
 * Items, delegate, view and widget reach the model through this interface. FeatureTreeModel implements it;
 * FeatureTreeProxyModel implements it by forwarding to its source, with proxy indexes going in and coming
 * out.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IFeatureTreeModelExtension
{
public:
    /*! Returns whether \a item is a row of the favorites branch. */
    virtual bool IsFavoriteTreeItem(const FeatureTreeItem *item) const = 0;
    /*! Returns whether \a item is the head of the favorites branch. */
    virtual bool IsFavoriteTreeRoot(const FeatureTreeItem *item) const = 0;
    virtual QModelIndex indexForItem(FeatureTreeItem *item, int column) = 0;
    virtual QModelIndex GetFavoritesRootIndex() = 0;

    /*! Switches the periodic poll of the first collection on or off. */
    virtual void EnablePolling(bool enable) = 0;
    virtual bool GetPolling() const = 0;
    /*! Sets whether favorites that the current camera lacks are shown. */
    virtual void EnableViewAllFavorites(bool enable) = 0;
    virtual bool GetViewAllFavorites() const = 0;
    /*! Tells whether the device answers; while it does not, nothing is polled, reported or written. */
    virtual void SetDeviceAlive(bool alive) = 0;

    /*! The searches look at \a start (the whole tree when null) and the items below it that exist already,
     * and return an invalid index when nothing is found. */
    virtual QModelIndex findItem(const FeatureTreeItem *item, const FeatureTreeItem *start, int column) = 0;
    virtual QModelIndex findItemByFullName(const QString &fullName, FeatureTreeItem *start, int column) = 0;
    virtual QModelIndex findItemByRole(int role, const QVariant &value, FeatureTreeItem *start,
                                       int column) = 0;

    /*! Appends a top row for \a collection.
     *
     * \param title the row's text
     * \param nodeMapName the name of the collection's root segment, such as "@CameraDevice"
     * \param childNodeFlag whether the features' texts are written as UTF-8 (else Latin-1)
     */
    virtual void addParameterCollection(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                                        const QString &title, const QString &nodeMapName,
                                        bool childNodeFlag) = 0;

    /*! Makes the rows of the favorites branch, and the search row, anew from the list of favorites. */
    virtual void rebuildFavoriteItems() = 0;
    virtual void CreateFavoritesRoot() = 0;
    virtual bool RemoveFavorite(QModelIndex index) = 0;
    virtual bool AddFavorite(QSharedPointer<ParameterCollection::IParameter> parameter, int row) = 0;
    virtual FavoritesData &GetFavorites() = 0;
    virtual bool MoveFavorite(QModelIndex index, bool up) = 0;
    virtual bool CanMoveFavorite(QModelIndex index, bool up) const = 0;
    virtual bool CanAddAsFavorite(QModelIndex index) const = 0;

    /*! Re-reads the first collection. */
    virtual void refresh() = 0;
    /*! Creates the items below \a parent; called by the item when they are first needed. */
    virtual void addChildren(FeatureTreeINodeItem *parent) = 0;
    virtual void setVisibility(GenApi::EVisibility visibility) = 0;
    virtual GenApi::EVisibility getVisibility() = 0;
    /*! In monitor mode a poll refreshes the whole first collection. */
    virtual void setMonitorMode(bool enable) = 0;
    /*! Sets whether items take the snapshots that parameters publish. */
    virtual void setGenICamCallbacksEnable(bool enable) = 0;
    virtual bool getGenICamCallbackEnable() const = 0;
    virtual FeatureTreeItem *getFeatureTreeItem(const QModelIndex &index) const = 0;
    virtual void setHighlighter(FeatureTreeHighlighter *highlighter) = 0;
    /*! Returns the search row's item, null before the first rebuildFavoriteItems(). */
    virtual FeatureTreeItem *getSearchHelpItem() const = 0;
    /*! Reports the full-row items of the first three levels as changed, so that views span them. */
    virtual void refreshSpecialItems() = 0;
    /*! Removes all rows. */
    virtual void clear() = 0;
    virtual void onNodeUpdated(int row, FeatureTreeINodeItem *nodeItem) = 0;
    virtual void onTimerPoll() = 0;
    virtual QString
    GetParameterCollectionName(QSharedPointer<ParameterCollection::IParameterCollection> collection) = 0;
    /*! Turns placeholders in the favorites branch into live rows where \a collection has their feature. */
    virtual void replaceFavoritesZombies(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                                         const QString &nodeMapName) = 0;
    /*! Returns the position in the list of favorites of the feature that \a item shows, -1 when it is none.
     */
    virtual int getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem *item) const = 0;
    virtual int getFavoritesIndexFromModelIndex(QModelIndex index) const = 0;

protected:
    // Never owned through this interface.
    ~IFeatureTreeModelExtension() = default;
};
