// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commandveto.h"
#include "featuretreelook.h"
#include "treewidgetbase.h"

#include <platform/core/baseinfo.h>
#include <platform/genicam/genapi.h>
#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QMenu>
#include <QModelIndex>
#include <QPoint>
#include <QSharedPointer>
#include <QString>

#include <functional>
#include <memory>

class FeatureTreeDelegate;
class FeatureTreeHighlighter;
class FeatureTreeItem;
class FeatureTreeProxyModel;
class FeatureTreeView;
class IFeatureTreeModelExtension;
class QAction;

/*! \brief The feature tree as an application places it: search box, tree, and the controls below it.
 *
 * Runs the search, owns the favorites actions and the keyboard shortcuts, keeps expansion and current row
 * over a search, and forwards refreshing, polling and the user level to the model. The application adds one
 * parameter collection per node map and shows the context menu that contextMenuRequested() hands out.
 *
 * \ingroup view
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeWidget : public TreeWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(GenApi::EVisibility visibility READ visibility WRITE setVisibility)
    Q_PROPERTY(bool polling READ getPolling WRITE setPolling NOTIFY pollingStateChanged)
    Q_PROPERTY(bool pollingVisible READ isPollingVisible WRITE setPollingVisible)
    Q_PROPERTY(bool viewAllFavoritesVisible READ isViewAllFavoritesVisible WRITE setViewAllFavoritesVisible)
    Q_PROPERTY(bool expandOnRefresh READ isExpandedOnRefresh WRITE setExpandOnRefresh)
    Q_PROPERTY(QString cameraType READ cameraType WRITE setCameraType)

public:
    /*! A widget as the other constructor makes it from its default values, for forms: its name is set
     * afterwards. */
    explicit FeatureTreeWidget(QWidget *parent = nullptr);
    /*!
     * \param name the widget's object name, under which hosts keep its state
     * \param baseInfo the application's information service, held as long as the widget lives; may be null
     * \param visibility the user level to start with
     * \param pollingVisible whether the polling check box is shown
     */
    explicit FeatureTreeWidget(QString name, QSharedPointer<Core::AppCoreComponents::IBaseInfo> baseInfo = {},
                               QWidget *parent = nullptr, GenApi::EVisibility visibility = GenApi::Guru,
                               bool pollingVisible = true);
    ~FeatureTreeWidget() override;

    /*! Applies the node map's filter file and appends the collection's rows.
     *
     * \param rootName the text of the top row
     * \param roleName the node map's name, such as "@CameraDevice"
     * \param isUtf8 whether texts are written as UTF-8 (else Latin-1)
     */
    void addParameterCollection(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                                const QString &rootName, const QString &roleName, bool isUtf8);
    /*! Removes all rows; collections can be added again afterwards. */
    void clear();
    /*! Tells that the device does not answer any more: nothing is polled or written until collections are
     * added. */
    void deviceIsClosed();
    /*! Sets whether the tree rests: it cannot be edited, polls and adjusts nothing, as long as others work on
     * all of the camera's features. Afterwards it shows what they are then. */
    void setResting(bool resting);
    /*! Returns whether the tree rests. */
    bool isResting() const;
    /*! Returns the tree's delegate, for editors of an own; null when the view was given another one. */
    FeatureTreeDelegate *delegate() const;
    /*! Sets what is asked before a command is executed through the tree; see FeatureTreeDelegate. */
    void setCommandVeto(CommandVeto veto);
    /*! Re-reads the first collection. */
    void Refresh();
    /*! Filters the rows anew. */
    void refreshTree();
    /*! Sets whether refreshTree() expands the tree to depth 2. */
    void setExpandOnRefresh(bool expand);
    /*! Returns whether refreshTree() expands the tree to depth 2. */
    bool isExpandedOnRefresh() const;
    /*! Puts the tree, as filtered, on the clipboard as text. */
    void copyToClipboard();
    /*! Expands the top rows. */
    void expandRootNodes();

    /*! Makes the first shown row of a feature the current one, in view, with the branches above it expanded.
     * A search that keeps it out of sight is ended.
     *
     * \param fullName the full name of the feature's parameter, or that of any other row
     * \return false when no row of that name is shown at the user level, or would be without the search
     */
    bool showFeature(const QString &fullName);
    /*! Returns the text that is searched for, empty without a search. */
    QString searchText() const;
    /*! Searches for \a text as if it was typed; an empty one ends the search. */
    void setSearchText(const QString &text);
    /*! Returns what the end of the search brings back; a look without parts when there is no search. */
    const FeatureTreeLook &lookBeforeSearch() const;
    /*! Gives the search box the focus, its text selected. */
    void focusSearch();

    /*! Returns the current row's item, null when no visible row is current. */
    FeatureTreeItem *getDeepestSelectedItem() const;
    /*! Returns the view's current index, an invalid one when its row is hidden. */
    QModelIndex GetCurrentIndex() const;
    /*! Returns the current row's item, null when no visible row is current. */
    FeatureTreeItem *GetCurrentItem() const;
    /*! Returns the current row's parameter, null when it has none. */
    QSharedPointer<ParameterCollection::IParameter> GetCurrentNode() const;
    /*! Returns whether the current row is one of the favorites branch. */
    bool IsCurrentFavorite() const;
    /*! Returns whether the mouse pointer is on the current row. */
    bool IsOnCurrentItem() const;

    /*! Sets whether rows follow the changes that their parameters report. */
    void EnableGenICamCallbacks(bool enable);
    /*! Returns whether the first collection is polled. */
    bool getPolling() const;
    /*! Switches the periodic poll of the first collection on or off. */
    void setPolling(bool enable);
    /*! Shows or hides the check box that switches polling. */
    void setPollingVisible(bool visible);
    /*! Returns whether the check box that switches polling is shown. */
    bool isPollingVisible() const;
    /*! Returns whether favorites that the camera lacks are shown. */
    bool getViewAllFavorites() const;
    /*! Sets whether favorites that the camera lacks are shown. */
    void setViewAllFavorites(bool viewAll);
    /*! Shows or hides the check box for favorites that the camera lacks. */
    void setViewAllFavoritesVisible(bool visible);
    /*! Returns whether the check box for favorites that the camera lacks is shown. */
    bool isViewAllFavoritesVisible() const;
    /*! Returns the user level. */
    GenApi::EVisibility visibility() const;
    /*! Sets the user level. */
    void setVisibility(GenApi::EVisibility level);
    /*! Sets the device class word of the camera, for the host. */
    void setCameraType(const QString &cameraType);
    /*! Returns what setCameraType() was given. */
    QString cameraType() const;

    QTreeView *treeView() const override;
    /*! Returns the tree view. */
    FeatureTreeView *treeView();
    /*! Returns the operations of the tree's model. */
    IFeatureTreeModelExtension *getFeatureExtension();
    /*! As above. */
    const IFeatureTreeModelExtension *getFeatureExtension() const;
    QSize sizeHint() const override;

public Q_SLOTS:
    /*! Sets whether polling re-reads the whole first collection, not only its volatile features. */
    void setMonitorMode(bool enable);
    /*! Expands the tree to depth 2. */
    void expandTree();
    /*! Tells the host about the row at \a index. */
    void onCurrentChanged(const QModelIndex &index);
    /*! Searches the tree for \a text; an empty one ends the search. */
    void onFilterTextChanged(const QString &text);
    /*! Follows a change of polling. */
    void onPollingStateChanged(bool polling);
    /*! Sets the user level, tells so and filters anew; other numbers than those of levels are ignored. */
    void onVisibilityChanged(int level);
    /*! Makes the context menu of the current row and has the host show it. */
    void contextualMenu(const QPoint &pos);
    /*! Switches polling as the check box says. */
    void on_checkBoxPolling_clicked();
    /*! Shows or hides favorites that the camera lacks, as the check box says. */
    void on_checkBoxViewAllFavorites_clicked();
    /*! Re-reads the first collection. */
    void on_resetButton_clicked();
    /*! Appends the current feature to the favorites. */
    void AddToFavourites_triggered();
    /*! Moves the current favorite up by one. */
    void FavouriteMoveUp_triggered();
    /*! Moves the current favorite down by one. */
    void FavouriteMoveDown_triggered();
    /*! Removes the current favorite. */
    void FavouriteRemove_triggered();
    /*! Switches polling as the action says. */
    void TogglePolling_triggered();

Q_SIGNALS:
    /*! A context menu for the current row, for the receiver to extend and show at \a pos of the widget. */
    void contextMenuRequested(const QPoint &pos, QSharedPointer<QMenu> menu);
    /*! A description of the current row for the host to show. */
    void newText(QString text);
    /*! The user level was set by onVisibilityChanged(). */
    void visibilityChanged(GenApi::EVisibility level);
    /*! A row with a parameter became the current one; not sent while a search text is typed. */
    void currentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! Polling was switched on or off, or ended because the device does not answer. */
    void pollingStateChanged(bool polling);
    /*! The user has shown or hidden favorites that the camera lacks. */
    void viewAllFavoritesStateChanged(bool viewAll);
    /*! The tree has begun to rest, or works again. */
    void restingChanged(bool resting);
    /*! The user has written a value, or executed a command, for which both texts are null.
     *
     * \param before the value before, as text that the parameter takes back exactly; null when unknown
     * \param after what was written
     * \param refusal why the parameter did not take it; empty when it did
     */
    void edited(QSharedPointer<ParameterCollection::IParameter> parameter, QString before, QString after,
                QString refusal);
    /*! The number of search results, and how many of them show at a higher level only. */
    void filterMatchesChanged(int total, int hidden);

protected:
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    void saveExpandedStatus();
    void saveExpandedOnLevel(const QModelIndex &index);
    void restoreExpandedStatus();
    void restoreExpandedOnLevel(const QModelIndex &index);
    void saveSelectionStatus();
    void restoreSelectionStatus();

private Q_SLOTS:
    void onFavoritesUpdated();
    void onJudged();
    void onFiltered();
    void onWritten(QSharedPointer<ParameterCollection::IParameter> parameter);
    void onWriteFailed(QSharedPointer<ParameterCollection::IParameter> parameter, QString message);

private:
    void updateActions();
    void setUpActions();
    QAction *addFavoritesAction(const QString &icon, const char *slot);
    void showActionTexts();
    void setUpShortcuts();
    void addShortcut(const QKeySequence &sequence, QObject *receiver, const char *slot);
    FeatureTreeProxyModel *proxy() const;
    using RowTest = std::function<bool(const QModelIndex &)>;
    QModelIndex firstShownRow(const RowTest &isWanted, const QModelIndex &parent = QModelIndex()) const;
    QModelIndex shownRow(const QString &fullName) const;
    void goToFirstMatch();
    void recordFavoritesExpansion();
    void commitEntered();
    void filter(const QString &text);
    template <typename Work>
    bool pass(Work work);
    void announceMatches();
    static QString matchesText(int visible, int hidden);
    void showRefreshed();
    void updateMarks(const FeatureTreeHighlighter &before);
    void tellEdited(const QSharedPointer<ParameterCollection::IParameter> &parameter, const QString &refusal);
    void moveCurrentFavorite(bool up);

    struct Private;
    const std::unique_ptr<Private> d;
};
