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
 *
 * \ingroup items
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IFeatureTreeModelExtension
{
public:
    /*! Returns whether \a item is a row of the favorites branch. */
    virtual bool IsFavoriteTreeItem(const FeatureTreeItem *item) const = 0;
    /*! Returns whether \a item is the head of the favorites branch. */
    virtual bool IsFavoriteTreeRoot(const FeatureTreeItem *item) const = 0;
    /*! Returns the index of \a item, invalid for a null one. */
    virtual QModelIndex indexForItem(FeatureTreeItem *item, int column) = 0;
    /*! Returns the index of the head of the favorites branch, invalid while there is none. */
    virtual QModelIndex GetFavoritesRootIndex() = 0;

    /*! Switches the periodic poll of the first collection on or off. */
    virtual void EnablePolling(bool enable) = 0;
    /*! Returns whether the first collection is polled. */
    virtual bool GetPolling() const = 0;
    /*! Sets whether favorites that the current camera lacks are shown. */
    virtual void EnableViewAllFavorites(bool enable) = 0;
    /*! Returns whether favorites that the current camera lacks are shown. */
    virtual bool GetViewAllFavorites() const = 0;
    /*! Tells whether the device answers; while it does not, nothing is polled, reported or written. */
    virtual void SetDeviceAlive(bool alive) = 0;

    /*! The searches look at \a start (the whole tree when null) and the items below it that exist already,
     * and return an invalid index when nothing is found. */
    virtual QModelIndex findItem(const FeatureTreeItem *item, const FeatureTreeItem *start, int column) = 0;
    /*! Finds the item of that full name. */
    virtual QModelIndex findItemByFullName(const QString &fullName, FeatureTreeItem *start, int column) = 0;
    /*! Finds the item whose data for \a role is \a value. */
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
    /*! Creates the head of the favorites branch, unless it is there. */
    virtual void CreateFavoritesRoot() = 0;
    /*! Removes the favorite at \a index, a row of the favorites branch. Returns whether it did. */
    virtual bool RemoveFavorite(QModelIndex index) = 0;
    /*! Inserts \a parameter into the list of favorites, at its end when \a row lies behind it. Returns
     * whether it did. */
    virtual bool AddFavorite(QSharedPointer<ParameterCollection::IParameter> parameter, int row) = 0;
    /*! Returns the list of favorites, which all trees of the process share. */
    virtual FavoritesData &GetFavorites() = 0;
    /*! Moves the favorite at \a index by one. Returns whether it did. */
    virtual bool MoveFavorite(QModelIndex index, bool up) = 0;
    /*! Returns whether MoveFavorite() can do so. */
    virtual bool CanMoveFavorite(QModelIndex index, bool up) const = 0;
    /*! Returns whether \a index is the row of a feature that can become a favorite and is none yet. */
    virtual bool CanAddAsFavorite(QModelIndex index) const = 0;

    /*! Re-reads the first collection. */
    virtual void refresh() = 0;
    /*! Creates the items below \a parent; called by the item when they are first needed. */
    virtual void addChildren(FeatureTreeINodeItem *parent) = 0;
    /*! Sets the user level. */
    virtual void setVisibility(GenApi::EVisibility visibility) = 0;
    /*! Returns the user level. */
    virtual GenApi::EVisibility getVisibility() = 0;
    /*! In monitor mode a poll refreshes the whole first collection. */
    virtual void setMonitorMode(bool enable) = 0;
    /*! Sets whether items take the snapshots that parameters publish. */
    virtual void setGenICamCallbacksEnable(bool enable) = 0;
    /*! Returns whether items take the snapshots that parameters publish. */
    virtual bool getGenICamCallbackEnable() const = 0;
    /*! Returns the item at \a index. */
    virtual FeatureTreeItem *getFeatureTreeItem(const QModelIndex &index) const = 0;
    /*! Sets what marks search hits in the tool tips of rows that are made from now on; not owned. */
    virtual void setHighlighter(FeatureTreeHighlighter *highlighter) = 0;
    /*! Returns the search row's item, null before the first rebuildFavoriteItems(). */
    virtual FeatureTreeItem *getSearchHelpItem() const = 0;
    /*! Reports the full-row items of the first three levels as changed, so that views span them. */
    virtual void refreshSpecialItems() = 0;
    /*! Removes all rows. */
    virtual void clear() = 0;
    /*! Reports the cells of \a nodeItem, which stands at \a row, as changed. */
    virtual void onNodeUpdated(int row, FeatureTreeINodeItem *nodeItem) = 0;
    /*! Polls the first collection and arms the timer for the next time. */
    virtual void onTimerPoll() = 0;
    /*! Returns an empty text: a model has no names for collections. Kept for hosts that ask. */
    virtual QString
    GetParameterCollectionName(QSharedPointer<ParameterCollection::IParameterCollection> collection) = 0;
    /*! Turns placeholders in the favorites branch into live rows where \a collection has their feature. */
    virtual void replaceFavoritesZombies(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                                         const QString &nodeMapName) = 0;
    /*! Returns the position in the list of favorites of the feature that \a item shows, -1 when it is none.
     */
    virtual int getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem *item) const = 0;
    /*! Returns the same for the row at \a index. */
    virtual int getFavoritesIndexFromModelIndex(QModelIndex index) const = 0;

    // Behind the others: the order of virtual functions is part of the interface.
    /*! Returns whether the device answers, as SetDeviceAlive() was told. */
    virtual bool isDeviceAlive() const { return true; }

protected:
    // Never owned through this interface.
    ~IFeatureTreeModelExtension() = default;
};
