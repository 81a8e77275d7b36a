// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "favoritesdata.h"
#include "ifeaturetreemodelextension.h"

#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QAbstractItemModel>
#include <QList>
#include <QSharedPointer>

#include <memory>

class FavoritesBranch;
class QTimer;

/*! \brief The item model of the feature tree.
 *
 * Top rows are the search row, the favorites branch and one row per parameter collection. The rows of a
 * branch are created when they are first asked for: a fill that happens inside rowCount() is silent, since
 * nobody was told a count before; every other one announces its rows. Polls the first collection on a timer
 * and serves drags into the favorites branch. GUI thread only; no exception of the parameter library leaves
 * it.
 *
 * \ingroup items
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeModel : public QAbstractItemModel,
                                                            public IFeatureTreeModelExtension
{
    Q_OBJECT

public:
    /*! The drag format: the addresses of the dragged items, as 64-bit integers. */
    static QString dragFormat();

    explicit FeatureTreeModel(QObject *parent = nullptr);
    ~FeatureTreeModel() override;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;
    Qt::DropActions supportedDropActions() const override;

    bool IsFavoriteTreeItem(const FeatureTreeItem *item) const override;
    bool IsFavoriteTreeRoot(const FeatureTreeItem *item) const override;
    QModelIndex indexForItem(FeatureTreeItem *item, int column) override;
    QModelIndex GetFavoritesRootIndex() override;
    void EnablePolling(bool enable) override;
    bool GetPolling() const override;
    void EnableViewAllFavorites(bool enable) override;
    bool GetViewAllFavorites() const override;
    void SetDeviceAlive(bool alive) override;
    QModelIndex findItem(const FeatureTreeItem *item, const FeatureTreeItem *start, int column) override;
    QModelIndex findItemByFullName(const QString &fullName, FeatureTreeItem *start, int column) override;
    QModelIndex findItemByRole(int role, const QVariant &value, FeatureTreeItem *start, int column) override;
    void addParameterCollection(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                                const QString &title, const QString &nodeMapName,
                                bool childNodeFlag) override;
    void rebuildFavoriteItems() override;
    void CreateFavoritesRoot() override;
    bool RemoveFavorite(QModelIndex index) override;
    bool AddFavorite(QSharedPointer<ParameterCollection::IParameter> parameter, int row) override;
    FavoritesData &GetFavorites() override;
    bool MoveFavorite(QModelIndex index, bool up) override;
    bool CanMoveFavorite(QModelIndex index, bool up) const override;
    bool CanAddAsFavorite(QModelIndex index) const override;
    void refresh() override;
    void addChildren(FeatureTreeINodeItem *parent) override;
    void setVisibility(GenApi::EVisibility visibility) override;
    GenApi::EVisibility getVisibility() override;
    void setMonitorMode(bool enable) override;
    void setGenICamCallbacksEnable(bool enable) override;
    bool getGenICamCallbackEnable() const override;
    FeatureTreeItem *getFeatureTreeItem(const QModelIndex &index) const override;
    void setHighlighter(FeatureTreeHighlighter *highlighter) override;
    FeatureTreeItem *getSearchHelpItem() const override;
    void refreshSpecialItems() override;
    /*! Gives the rows that are no features their texts in the present language. */
    void retranslate();
    /*! Always returns an empty text; names of collections are known to who added them. */
    QString
    GetParameterCollectionName(QSharedPointer<ParameterCollection::IParameterCollection> collection) override;
    void replaceFavoritesZombies(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                                 const QString &nodeMapName) override;
    int getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem *item) const override;
    int getFavoritesIndexFromModelIndex(QModelIndex index) const override;
    bool isDeviceAlive() const override;

    /*! Asks for a published re-read of the item's parameter; rows without one are ignored. */
    void scheduleForcedParameterDataChangedCheck(FeatureTreeItem *item);

    /*! Returns the timer whose shots poll; polling may end in one (see GetPolling()). */
    const QTimer *pollTimer() const;

public Q_SLOTS:
    /*! Removes all rows without a reset notification: callers reset their views themselves. */
    void clear() override;
    void onNodeUpdated(int row, FeatureTreeINodeItem *nodeItem) override;
    void onTimerPoll() override;

Q_SIGNALS:
    /*! A write through setData() reached the parameter and succeeded. */
    void written(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! A write failed and is about to be reported with \a message. */
    void writeFailed(QSharedPointer<ParameterCollection::IParameter> parameter, QString message);

private:
    friend class FavoritesBranch; // its rows come and go as the model's own do

    struct Collection
    {
        QString nodeMapName;
        QSharedPointer<ParameterCollection::IParameterCollection> collection;
        bool childNodeFlag = false;
    };

    FeatureTreeItem *itemAt(const QModelIndex &index) const;
    FeatureTreeItem *itemOrRoot(const QModelIndex &index) const;
    QSharedPointer<ParameterCollection::IParameterCollection> firstCollection() const;
    void scheduleChecksBelow(FeatureTreeItem *item);
    void reportReadFailure() const;
    void reportWriteFailure(FeatureTreeItem *item,
                            const QSharedPointer<ParameterCollection::IParameter> &parameter);
    QList<FeatureTreeItem *> createChildItems(FeatureTreeINodeItem *parent);
    FeatureTreeItem *createChildItem(FeatureTreeINodeItem *parent, const QString &name);
    void adoptNodeItem(FeatureTreeINodeItem *item, bool isFullRowItem);
    void insertTopItem(FeatureTreeItem *item);
    void createSearchRow();

    bool readDraggedItems(const QMimeData &data, QList<FeatureTreeItem *> &items) const;
    bool childNodeFlagOf(const ParameterCollection::IParameterCollection *collection) const;

    static FavoritesData m_favorites;

    std::unique_ptr<FeatureTreeItem> m_rootItem;
    std::unique_ptr<FavoritesBranch> m_favoritesBranch;
    FeatureTreeItem *m_searchHelpItem = nullptr;
    QList<Collection> m_collections;
    mutable bool m_dataErrorShown = false;
    GenApi::EVisibility m_visibility = GenApi::Guru;
    int m_pollInterval = 300; // milliseconds
    QTimer *m_pollTimer = nullptr;
    bool m_polling = false;
    bool m_deviceAlive = true;
    bool m_monitorMode = false;
    bool m_callbacksEnabled = true;
    bool m_childNodeFlag = false;
    FeatureTreeHighlighter *m_highlighter = nullptr;
    mutable bool m_inRowCount = false;
    quint64 m_removals = 0; // tells who emits signals that items are gone when they return
};
