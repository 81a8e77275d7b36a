// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparametercollection.h>

#include <QList>
#include <QModelIndex>
#include <QSharedPointer>

class FavoritesData;
class FeatureTreeFavoritesItem;
class FeatureTreeItem;
class FeatureTreeModel;

/*! \brief The favorites branch of a feature tree model: its rows, and what the user does to it.
 *
 * The rows follow the list one to one: a placeholder for each favorite, which a node item replaces as soon as
 * a collection has the feature. Rows come and go one change after the other, announced by the model.
 *
 * \ingroup favorites
 */
class FavoritesBranch
{
public:
    FavoritesBranch(FeatureTreeModel &model, FavoritesData &favorites);

    /*! Returns the head of the branch, null before createRoot() and after forgetRows(). */
    FeatureTreeFavoritesItem *root() const;
    /*! Forgets the head, which goes with the tree. */
    void forgetRows();

    /*! Makes the head the first top row, unless there is one. */
    void createRoot();
    /*! Gives the head, and the row that stands in for none, their texts in the present language. */
    void retranslate();
    /*! Removes all rows and makes the placeholders. Returns false when a receiver of the signals had the tree
     * cleared or the rows made. */
    bool rebuild();
    /*! Brings the placeholders to life whose features \a collection has. */
    void replaceZombies(const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
                        const QString &nodeMapName, bool childNodeFlag);

    /*! Returns whether \a item is a row of the branch. */
    bool contains(const FeatureTreeItem *item) const;
    /*! Returns the place of \a item's feature in the list, -1 when it is no favorite. */
    int indexOf(const FeatureTreeItem *item) const;

    bool add(const QSharedPointer<ParameterCollection::IParameter> &parameter, int row);
    bool canAdd(const FeatureTreeItem *item) const;
    bool move(const FeatureTreeItem *item, bool up);
    bool canMove(const FeatureTreeItem *item, bool up) const;
    bool remove(const FeatureTreeItem *item);
    /*! Moves or adds \a items to \a row, with a single update of the list; their order stays. */
    void drop(const QList<FeatureTreeItem *> &items, int row);

private:
    void removeRows();
    void insertPlaceholders();
    void showEmptyHint();
    void showHeadTexts();
    static void showHintTexts(FeatureTreeItem &hint);
    void replacePlaceholder(const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
                            const QSharedPointer<ParameterCollection::IParameter> &parameter, int row,
                            bool childNodeFlag);
    void updateToolTip();
    int dropItem(FeatureTreeItem *item, int row);
    QModelIndex rootIndex() const;

    FeatureTreeModel &m_model;
    FavoritesData &m_favorites;
    FeatureTreeFavoritesItem *m_root = nullptr;
};
