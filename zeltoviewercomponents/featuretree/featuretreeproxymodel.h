// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ifeaturetreemodelextension.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QPersistentModelIndex>
#include <QPointer>
#include <QPropertyNotifier>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QString>

#include <memory>

class FeatureTreeFilter;
class FeatureTreeModel;
class FeatureTreeRoleFilter;

/*! \brief Filters the feature tree by user level and search text.
 *
 * A row passes when it matches, when one of its ancestors does, or when one of its descendants does. A
 * feature matches when its displayed text or its name contains the search text, literally and whatever the
 * letter case, and its visibility lies within the level. With an empty text rows are judged one by one as
 * they are asked for; setting a text loads all branches and judges the whole tree in one pass, which also
 * counts the matches.
 *
 * A pass is judged(), at most one change of the layout, and filtered(); where no row comes or goes, the
 * layout stays. Dynamic sorting and filtering stays off, and changes of rows that nobody has asked for are
 * not passed on. Rows whose level or availability flips are filtered anew, once, when the event loop comes
 * round. A source of another class that answers to the roles of FeatureTreeItem is filtered by these. As
 * IFeatureTreeModelExtension it forwards to its source, a FeatureTreeModel; all indexes that go in and come
 * out are the proxy's, and a row that is filtered out gives an invalid one.
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
    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /*! Beside what the source answers, the text and the description of a cell for reading out. */
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
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
    /*! Filters anew if the level was set since the last pass. */
    void filterIfExpired();
    /*! Returns a number that is another one once the rows have followed a pass. */
    quint64 publication() const;
    /*! Sets the level; filter afterwards, with filterIfExpired(). */
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

public Q_SLOTS:
    /*! Sets the search text and filters at once, with a single change of the layout. */
    void setFilterFixedString(const QString &pattern);
    /*! Judges all rows anew and has them follow. */
    void refilter();
    /*! Removes all rows, with a reset. */
    void clear() override;

Q_SIGNALS:
    /*! Polling was switched on or off, or ended because the device does not answer. */
    void pollingStateChanged(bool polling);
    /*! All rows were judged anew and the matches counted; the rows do not follow until this has returned. */
    void judged();
    /*! A pass is over: the rows have followed. */
    void filtered();
    /*! A write through setData() reached the parameter and succeeded. */
    void written(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! A write failed and is about to be reported with \a message. */
    void writeFailed(QSharedPointer<ParameterCollection::IParameter> parameter, QString message);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private Q_SLOTS:
    void onSourceRowsAboutToBeInserted(const QModelIndex &parent, int first, int last);
    void onSourceRowsInserted(const QModelIndex &parent, int first, int last);
    void onSourceRowsAboutToBeRemoved(const QModelIndex &parent, int first, int last);
    void onLayoutAboutToBeChanged();
    void forgetMapping() const;
    void onSourceDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                             const QList<int> &roles);
    void onForeignDataChanged(const QModelIndex &topLeft);
    void onPollTimerShot();

private:
    FeatureTreeModel *model() const;
    FeatureTreeItem *rootItem() const;
    FeatureTreeItem *itemAt(const QModelIndex &index) const;
    bool isPhantom(const QModelIndex &sourceIndex) const;
    QModelIndex mapped(const QModelIndex &sourceIndex) const;

    template <auto Operation, typename... Arguments>
    auto forward(Arguments &&...arguments) const;
    template <typename Work>
    void rebuild(Work work);
    template <typename Work>
    void keepRows(const QModelIndex &branch, Work work);
    struct KeptRow;
    QList<KeptRow> park(const QModelIndex &branch);
    void unpark(const QModelIndex &branch, const QList<KeptRow> &rows);
    void connectTree();
    void onExpressionChanged();
    bool judge() const;
    void completePass() const;
    void publish(bool isChanged);
    void followVerdicts();
    bool isSearchRowShown() const;
    FeatureTreeRoleFilter roleFilter() const;
    bool acceptsByRoles(int sourceRow, const QModelIndex &sourceParent) const;
    bool areNoted() const;
    bool isNoted(const QModelIndex &index) const;
    void noteSiblings(const QModelIndex &index, const QModelIndex &parent) const;
    void noteAsked(const FeatureTreeItem *parent) const;
    void forgetAsked(const FeatureTreeItem *parent);
    bool isMapped(const FeatureTreeItem *parent) const;
    void queueRefilter();
    void loadChildren(FeatureTreeItem &item) const;
    void reportPollingState();

    QPointer<FeatureTreeModel> m_model; // the source, if it is a feature tree
    std::unique_ptr<FeatureTreeFilter> m_filter;
    QPropertyNotifier m_expressionNotifier; // others may set an expression behind our back
    mutable QSet<const FeatureTreeItem *> m_asked; // those below which the base has asked for rows
    mutable const FeatureTreeItem *m_lastAsked = nullptr;

    /*! \brief What the rows of one branch have in common. */
    struct Siblings
    {
        const void *mapping = nullptr; // the base's, which all their indexes point to
        quint64 revision = 0; // of the source's rows
        QModelIndex parent;
        int rows = 0;
        int columns = 0;
        FeatureTreeItem *item = nullptr; // the parent's, if all its children are shown, in their order
        bool areLeaves = false;
    };
    mutable Siblings m_siblings;
    QPersistentModelIndex m_insertionParent; // in the source; invalid once its item is gone

    bool m_acceptAll = false;
    bool m_frozen = false; // verdicts stay as they are while the base takes a new pattern
    bool m_rejectAll = false; // nothing passes while the tree is being cleared
    bool m_shiftTopRows = false; // the mapping is one top row behind the source
    mutable bool m_isPublished = false; // what the base knows of rows are the verdicts of the last pass
    mutable bool m_publishedSearchRow = false;
    quint64 m_publication = 0;
    bool m_publishing = false; // the verdicts are fresh when the base asks for them
    bool m_rebuilding = false; // the operation under way filters at its end
    bool m_keepsRows = false; // rows are being made anew that somebody may hold
    bool m_refilterQueued = false;
    bool m_reportedPolling = false;
};
