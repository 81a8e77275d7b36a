// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "treewidgetbase.h"

#include <platform/core/baseinfo.h>
#include <platform/genicam/genapi.h>
#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QMenu>
#include <QModelIndex>
#include <QPoint>
#include <QSet>
#include <QSharedPointer>
#include <QString>

#include <memory>

class FeatureTreeItem;
class FeatureTreeProxyModel;
class FeatureTreeView;
class IFeatureTreeModelExtension;
class QAction;

namespace Ui {
class FeatureTreeWidgetClass;
}

/*! \brief The feature tree as an application places it: search box, tree, and the controls below it.
 *
 * Runs the search, owns the favorites actions and the keyboard shortcuts, keeps expansion and current row
 * over a search, and forwards refreshing, polling and the user level to the model. The application adds one
 * parameter collection per node map and shows the context menu that contextMenuRequested() hands out.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeWidget : public TreeWidgetBase
{
    Q_OBJECT

public:
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
    /*! Re-reads the first collection. */
    void Refresh();
    /*! Filters the rows anew. */
    void refreshTree();
    /*! Sets whether refreshTree() expands the tree to depth 2. */
    void setExpandOnRefresh(bool expand);
    /*! Puts the tree, as filtered, on the clipboard as text. */
    void copyToClipboard();
    void expandRootNodes();

    FeatureTreeItem *getDeepestSelectedItem() const;
    QModelIndex GetCurrentIndex() const;
    FeatureTreeItem *GetCurrentItem() const;
    QSharedPointer<ParameterCollection::IParameter> GetCurrentNode() const;
    /*! Returns whether the current row is one of the favorites branch. */
    bool IsCurrentFavorite() const;
    /*! Returns whether the mouse pointer is on the current row. */
    bool IsOnCurrentItem() const;

    void EnableGenICamCallbacks(bool enable);
    bool getPolling() const;
    void setPolling(bool enable);
    void setPollingVisible(bool visible);
    bool getViewAllFavorites() const;
    void setViewAllFavorites(bool viewAll);
    void setViewAllFavoritesVisible(bool visible);
    GenApi::EVisibility visibility() const;
    void setVisibility(GenApi::EVisibility level);
    void setCameraType(const QString &cameraType);
    QString cameraType() const;

    QTreeView *treeView() const override;
    FeatureTreeView *treeView();
    IFeatureTreeModelExtension *getFeatureExtension();
    const IFeatureTreeModelExtension *getFeatureExtension() const;
    QSize sizeHint() const override;

public slots:
    /*! Sets whether polling re-reads the whole first collection, not only its volatile features. */
    void setMonitorMode(bool enable);
    /*! Expands the tree to depth 2. */
    void expandTree();
    void onCurrentChanged(const QModelIndex &index);
    void onFilterTextChanged(const QString &text);
    void onPollingStateChanged(bool polling);
    void onVisibilityChanged(int level);
    void contextualMenu(const QPoint &pos);
    void on_checkBoxPolling_clicked();
    void on_checkBoxViewAllFavorites_clicked();
    void on_resetButton_clicked();
    void AddToFavourites_triggered();
    void FavouriteMoveUp_triggered();
    void FavouriteMoveDown_triggered();
    void FavouriteRemove_triggered();
    void TogglePolling_triggered();

signals:
    /*! A context menu for the current row, for the receiver to extend and show at \a pos of the widget. */
    void contextMenuRequested(const QPoint &pos, QSharedPointer<QMenu> menu);
    /*! A description of the current row for the host to show. */
    void newText(QString text);
    void visibilityChanged(GenApi::EVisibility level);
    void currentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    void pollingStateChanged(bool polling);
    void viewAllFavoritesStateChanged(bool viewAll);
    /*! The number of search results, and how many of them show at a higher level only. */
    void filterMatchesChanged(int total, int hidden);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    void saveExpandedStatus();
    void saveExpandedOnLevel(const QModelIndex &index);
    void restoreExpandedStatus();
    void restoreExpandedOnLevel(const QModelIndex &index);
    void saveSelectionStatus();
    void restoreSelectionStatus();

private slots:
    void onFavoritesUpdated();
    void onFiltered();

private:
    void renewStyleSheets();
    void updateActions();
    void setUpActions();
    QAction *addFavoritesAction(const QString &shortcut, const QString &icon, const QString &text,
                                const char *slot);
    void setUpShortcuts();
    void addShortcut(const QKeySequence &sequence, QObject *receiver, const char *slot);
    FeatureTreeProxyModel *proxy() const;
    void filter(const QString &text);
    void showCounts();
    void setSearchRow(const QString &message, bool isShown);
    void restoreScrollPosition();
    void moveCurrentFavorite(bool up);

    std::unique_ptr<Ui::FeatureTreeWidgetClass> m_ui;
    QAction *m_actionAddToFavourites = nullptr;
    QAction *m_actionMoveFavouriteUp = nullptr;
    QAction *m_actionMoveFavouriteDown = nullptr;
    QAction *m_actionRemoveFavourite = nullptr;
    QAction *m_actionTogglePolling = nullptr;
    // A row is known by the full names from the top down to it: a feature may stand in two categories.
    QSet<QString> m_expandedRows;
    QVariant m_savedCurrent;
    QPoint m_savedScroll;
    bool m_busy = false;
    QString m_filterText;
    int m_visibleMatches = 0; // as told last
    bool m_isFiltering = false; // the filter is being set, and the counts follow
    bool m_expandOnRefresh = false;
    QString m_cameraType;
    QSharedPointer<Core::AppCoreComponents::IBaseInfo> m_baseInfo;
};
