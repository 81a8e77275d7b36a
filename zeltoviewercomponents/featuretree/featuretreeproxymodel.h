// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuretreerolefilter_p.h"
#include "featuretreesearchindex_p.h"
#include "ifeaturetreemodelextension.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QPersistentModelIndex>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QString>

#include <optional>

class FeatureTreeModel;

/*! \brief Filters the feature tree by user level and search text.
 *
 * A row passes when it matches, when one of its ancestors does, or when one of its descendants does. A
 * feature matches when its displayed text or its name contains the search text, literally and whatever the
 * letter case, and its visibility lies within the level. With an empty text rows are judged one by one as
 * they are asked for; setting a text loads all branches and judges the whole tree in one pass, which also
 * collects the names of the matches.
 *
 * Dynamic sorting and filtering stays off, and changes of rows that nobody has asked for are not passed on.
 * Rows whose level or availability flips are filtered anew, once, when the event loop comes round. A source
 * of another class that answers to the roles of FeatureTreeItem is filtered by these. As
 * IFeatureTreeModelExtension it forwards to its source, a FeatureTreeModel; all indexes that go in and come
 * out are the proxy's, and a row that is filtered out gives an invalid one. A model serves one such proxy at
 * a time, which keeps its verdicts in the items.
 *
 * \ingroup search
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeProxyModel : public QSortFilterProxyModel,
                                                                 public IFeatureTreeModelExtension
{
    Q_OBJECT

public:
    explicit FeatureTreeProxyModel(QObject *parent = nullptr);
    ~FeatureTreeProxyModel() override;

    void setSourceModel(QAbstractItemModel *sourceModel) override;
    QModelIndex mapToSource(const QModelIndex &proxyIndex) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

    /*! Sets whether every row passes; takes effect with the next invalidation. */
    void setAcceptAll(bool acceptAll);
    /*! Returns whether every row passes. */
    bool acceptAll() const;

    /*! Returns whether anybody has asked for the rows below \a index. */
    bool isUnfolded(const QModelIndex &index) const;
    /*! Returns whether the row itself contains the search text, not only one above or below it. The search
     * row and categories never do. */
    bool isMatch(const QModelIndex &index) const;
    /*! Returns the names of the features that match the search text within the level; empty without a text.
     */
    QSet<QString> visibleMatches() const;
    /*! Returns the number of visibleMatches(), which is known without collecting them. */
    int visibleMatchCount() const;
    /*! Returns the names of the features that would match at a higher level, Invisible ones apart. */
    QSet<QString> hiddenMatches() const;
    /*! Returns the number of hiddenMatches(). */
    int hiddenMatchCount() const;

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
    /*! Sets the level; invalidate the filter afterwards. */
    void setVisibility(GenApi::EVisibility visibility) override;
    GenApi::EVisibility getVisibility() override;
    void setMonitorMode(bool enable) override;
    void setGenICamCallbacksEnable(bool enable) override;
    bool getGenICamCallbackEnable() const override;
    FeatureTreeItem *getFeatureTreeItem(const QModelIndex &index) const override;
    void setHighlighter(FeatureTreeHighlighter *highlighter) override;
    FeatureTreeItem *getSearchHelpItem() const override;
    void refreshSpecialItems() override;
    void onNodeUpdated(int row, FeatureTreeINodeItem *nodeItem) override;
    void onTimerPoll() override;
    QString
    GetParameterCollectionName(QSharedPointer<ParameterCollection::IParameterCollection> collection) override;
    void replaceFavoritesZombies(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                                 const QString &nodeMapName) override;
    int getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem *item) const override;
    int getFavoritesIndexFromModelIndex(QModelIndex index) const override;
    bool isDeviceAlive() const override;

public slots:
    /*! Sets the search text and filters at once, with a single change of the layout. */
    void setFilterFixedString(const QString &pattern);
    /*! Removes all rows, with a reset. */
    void clear() override;

signals:
    /*! Polling was switched on or off, or ended because the device does not answer. */
    void pollingStateChanged(bool polling);
    /*! All rows were judged anew, and with them the matches counted. */
    void filtered();
    /*! A write through setData() reached the parameter and succeeded. */
    void written(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! A write failed and is about to be reported with \a message. */
    void writeFailed(QSharedPointer<ParameterCollection::IParameter> parameter, QString message);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private slots:
    void onSourceRowsAboutToBeInserted(const QModelIndex &parent, int first, int last);
    void onSourceRowsInserted(const QModelIndex &parent, int first, int last);
    void onLayoutAboutToBeChanged();
    void onSourceDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                             const QList<int> &roles);
    void onForeignDataChanged(const QModelIndex &topLeft);
    void onPollTimerShot();
    void refilter();

private:
    FeatureTreeModel *model() const;
    FeatureTreeItem *rootItem() const;
    bool isPhantom(const QModelIndex &sourceIndex) const;
    QModelIndex mapped(const QModelIndex &sourceIndex) const;

    template <typename Work>
    void rebuild(Work work);
    void completePass() const;
    FeatureTreeRoleFilter roleFilter() const;
    FeatureTreeRoleFilter::Matches roleMatches() const;
    bool acceptsByRoles(int sourceRow, const QModelIndex &sourceParent) const;
    bool isMapped(const FeatureTreeItem *parent) const;
    void queueRefilter();
    bool isSeen(const FeatureTreeItem *item) const;
    bool isJudged(const FeatureTreeItem *item) const;
    bool accepts(FeatureTreeItem *item) const;
    bool judgeAlone(FeatureTreeItem *item) const;
    void judgeTree() const;
    void judgeHit(const FeatureTreeSearchIndex::Row &row, GenApi::EVisibility visibilityAbove) const;
    GenApi::EVisibility judgeAncestors(FeatureTreeItem *parent) const;
    void startPass() const;
    void mark(FeatureTreeItem *item, bool isAccepted) const;
    void markSeen(FeatureTreeItem *item) const;
    bool matches(FeatureTreeItem *item) const;
    bool isHit(const FeatureTreeItem *item) const;
    bool hasMatchBelow(FeatureTreeItem *item) const;
    bool hasMatchAbove(FeatureTreeItem *item) const;
    bool passesLevel(GenApi::EVisibility visibility, bool isShownAtAll) const;
    GenApi::EVisibility effectiveVisibility(const FeatureTreeItem *item) const;
    void countHit(const FeatureTreeSearchIndex::Row &row, GenApi::EVisibility visibility) const;
    void loadChildren(FeatureTreeItem *item) const;
    void loadTree(FeatureTreeItem *item) const;
    void noticePattern() const;
    void reportPollingState();

    bool m_acceptAll = false;
    GenApi::EVisibility m_level = GenApi::Guru;

    /*! \brief Names that were counted, once each. */
    struct Matches
    {
        void clear(qsizetype nameCount);
        void add(int name);
        void remove(int name);

        QList<bool> isCounted; // by the search index's number of the name
        int count = 0;
    };
    QSet<QString> namesOf(const Matches &matches) const;

    mutable FeatureTreeSearchIndex m_index;
    mutable Matches m_visibleMatches;
    mutable Matches m_hiddenMatches;

    // The pattern that the verdicts belong to. The base's may be changed by others, who may also set an
    // expression that is no literal text; the folded text is absent then.
    mutable QString m_pattern;
    mutable std::optional<QString> m_foldedText = QString();
    mutable quint64 m_pass = 0;
    mutable quint64 m_markedPass = 0; // the last pass that left marks
    mutable bool m_treeJudged = false;
    quint64 m_mapping = 0; // what items bear below which the base has asked for rows

    QPersistentModelIndex m_insertionParent; // in the source; invalid once its item is gone
    bool m_frozen = false; // verdicts stay as they are while the base takes a new pattern
    bool m_rejectAll = false; // nothing passes while the tree is being cleared
    bool m_shiftTopRows = false; // the mapping is one top row behind the source
    bool m_publishing = false; // the verdicts are fresh when the base asks for them
    bool m_rebuilding = false; // the operation under way filters at its end
    bool m_refilterQueued = false;
    bool m_reportedPolling = false;
};
