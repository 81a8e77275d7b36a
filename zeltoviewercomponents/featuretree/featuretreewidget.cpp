// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreewidget.h"

#include "favoritesdata.h"
#include "featuretreedelegate.h"
#include "featuretreehighlighter.h"
#include "featuretreeinodeitem.h"
#include "featuretreemodel.h"
#include "featuretreenames.h"
#include "featuretreeproxymodel.h"
#include "featuretreetext.h"
#include "featuretreeview.h"
#include "nodemapfilter.h"
#include "searchedit.h"
#include "sizedicon_p.h"
#include "ui_featuretreewidget.h"
#include "waitcursor_p.h"

#include <zeltoviewercomponents/resources_p.h>
#include <zeltoviewercomponents/settings/unansweredwrites_p.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTextStream>

#include <optional>

namespace {

constexpr int keyControl = 0x04000000;
constexpr int keyAlt = 0x08000000;
constexpr int keyShift = 0x02000000;
constexpr int expandedDepth = 2;

QString resource(const QString &name)
{
    return QStringLiteral(":/zeltoviewercomponents/Resources/") + name;
}

QIcon refreshIcon()
{
    return QIcon(new SizedIconEngine(resource(QStringLiteral("refresh_%1.png")), {32, 64, 128, 256, 512}));
}

// Looks at the rows that exist and are not hidden at the level.
bool hasRowBelow(const FeatureTreeItem &parent, const QString &fullName, GenApi::EVisibility level)
{
    for (int row = 0; row < parent.existingChildCount(); ++row) {
        const FeatureTreeItem &child = *parent.child(row);
        if (child.ShowMe(level) && (child.getFullName() == fullName || hasRowBelow(child, fullName, level))) {
            return true;
        }
    }
    return false;
}

// Shared by all instances: the first Escape of two was pressed.
bool &escapePressed()
{
    static bool pressed = false;
    return pressed;
}

} // namespace

struct FeatureTreeWidget::Private
{
    Ui::FeatureTreeWidgetClass form;
    QAction *actionAddToFavourites = nullptr;
    QAction *actionMoveFavouriteUp = nullptr;
    QAction *actionMoveFavouriteDown = nullptr;
    QAction *actionRemoveFavourite = nullptr;
    QAction *actionTogglePolling = nullptr;
    FeatureTreeLook lookBeforeSearch;
    bool busy = false;
    QString filterText;
    int visibleMatches = 0; // as told last
    bool isFiltering = false; // a pass is part of an action that tells of it at its end
    bool isSearchRowStale = false; // its text was set and not told of
    bool expandOnRefresh = false;
    bool isResting = false;
    QPointer<QWidget> focusAfterRest;
    bool pollsAfterRest = false;
    bool followsAfterRest = false;
    QString cameraType;
    QSharedPointer<Core::AppCoreComponents::IBaseInfo> baseInfo;
};

FeatureTreeWidget::FeatureTreeWidget(QWidget *parent)
    : FeatureTreeWidget(QString(), {}, parent)
{
}

FeatureTreeWidget::FeatureTreeWidget(QString name,
                                     QSharedPointer<Core::AppCoreComponents::IBaseInfo> baseInfo,
                                     QWidget *parent, GenApi::EVisibility visibility, bool pollingVisible)
    : TreeWidgetBase(parent)
    , d(std::make_unique<Private>())
{
    d->baseInfo = std::move(baseInfo);
    d->form.setupUi(this);
    setObjectName(name);
    FeatureTreeView *const view = d->form.treeView;
    view->setEditTriggers(QAbstractItemView::CurrentChanged | QAbstractItemView::DoubleClicked
                          | QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed
                          | QAbstractItemView::AnyKeyPressed);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->header()->setContextMenuPolicy(Qt::PreventContextMenu); // the menu is that of a row
    d->form.resetButton->setIcon(refreshIcon());
    d->form.checkBoxViewAllFavorites->setChecked(getViewAllFavorites());
    setPollingVisible(pollingVisible);

    connect(view, SIGNAL(onCurrentChanged(const QModelIndex &)), this,
            SLOT(onCurrentChanged(const QModelIndex &)));
    connect(view->model(), SIGNAL(pollingStateChanged(bool)), this, SLOT(onPollingStateChanged(bool)));
    connect(view->model(), SIGNAL(judged()), this, SLOT(onJudged()));
    connect(view->model(), SIGNAL(filtered()), this, SLOT(onFiltered()));
    // Whatever way a value takes into the tree, the model is where it passes.
    connect(view->model(), SIGNAL(written(QSharedPointer<ParameterCollection::IParameter>)), this,
            SLOT(onWritten(QSharedPointer<ParameterCollection::IParameter>)));
    connect(view->model(), SIGNAL(writeFailed(QSharedPointer<ParameterCollection::IParameter>, QString)),
            this, SLOT(onWriteFailed(QSharedPointer<ParameterCollection::IParameter>, QString)));
    connect(&getFeatureExtension()->GetFavorites(), SIGNAL(dataUpdated()), this, SLOT(onFavoritesUpdated()));
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, SIGNAL(customContextMenuRequested(const QPoint &)), this,
            SLOT(contextualMenu(const QPoint &)));
    connect(d->form.filterEdit, SIGNAL(textChanged(const QString &)), this,
            SLOT(onFilterTextChanged(const QString &)));

    setUpActions();
    setUpShortcuts();
    setPolling(false);
    setVisibility(visibility);
    qApp->installEventFilter(this);
}

FeatureTreeWidget::~FeatureTreeWidget() = default;

QAction *FeatureTreeWidget::addFavoritesAction(const QString &icon, const char *slot)
{
    auto *const action = new QAction(QIcon(resource(icon)), QString(), this);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setEnabled(false);
    connect(action, SIGNAL(triggered()), this, slot);
    addAction(action); // a shortcut works on the widget alone that has its action
    return action;
}

void FeatureTreeWidget::setUpActions()
{
    d->actionAddToFavourites =
        addFavoritesAction(QStringLiteral("AddGigECamera_16.png"), SLOT(AddToFavourites_triggered()));
    d->actionMoveFavouriteUp =
        addFavoritesAction(QStringLiteral("Move_Up.png"), SLOT(FavouriteMoveUp_triggered()));
    d->actionMoveFavouriteDown =
        addFavoritesAction(QStringLiteral("Move_Down.png"), SLOT(FavouriteMoveDown_triggered()));
    d->actionRemoveFavourite =
        addFavoritesAction(QStringLiteral("RemGigECamera_16.png"), SLOT(FavouriteRemove_triggered()));
    d->actionRemoveFavourite->setShortcut(QKeySequence(QKeySequence::Delete));

    d->actionAddToFavourites->setObjectName(QStringLiteral("actionAddToFavourites"));
    d->actionMoveFavouriteUp->setObjectName(QStringLiteral("actionMoveFavouriteUp"));
    d->actionMoveFavouriteDown->setObjectName(QStringLiteral("actionMoveFavouriteDown"));
    d->actionRemoveFavourite->setObjectName(QStringLiteral("actionRemoveFavourite"));

    d->actionTogglePolling = new QAction(d->form.resetButton->icon(), QString(), this);
    d->actionTogglePolling->setObjectName(QStringLiteral("actionTogglePolling"));
    d->actionTogglePolling->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    d->actionTogglePolling->setEnabled(false);
    d->actionTogglePolling->setCheckable(true);
    d->actionTogglePolling->setChecked(d->form.checkBoxPolling->isChecked());
    connect(d->actionTogglePolling, SIGNAL(triggered()), this, SLOT(TogglePolling_triggered()));
    addAction(d->actionTogglePolling);
    showActionTexts();
}

void FeatureTreeWidget::showActionTexts()
{
    const auto show = [](QAction *action, const QString &text) {
        action->setText(text);
        action->setIconText(text);
    };
    show(d->actionAddToFavourites, tr("Add to Favorites"));
    show(d->actionMoveFavouriteUp, tr("Move Up"));
    show(d->actionMoveFavouriteDown, tr("Move Down"));
    show(d->actionRemoveFavourite, tr("Remove"));
    show(d->actionTogglePolling, tr("Polling"));
    d->actionAddToFavourites->setShortcut(QKeySequence(tr("Ctrl+D")));
    d->actionMoveFavouriteUp->setShortcut(QKeySequence(tr("Ctrl+Up")));
    d->actionMoveFavouriteDown->setShortcut(QKeySequence(tr("Ctrl+Down")));
    const QKeySequence find(Qt::CTRL | Qt::Key_F);
    d->form.filterEdit->setPlaceholder(tr("Search (%1)").arg(find.toString(QKeySequence::NativeText)));
}

// As a proxy would do it, which Tab follows past the search box.
void FeatureTreeWidget::focusInEvent(QFocusEvent *event)
{
    TreeWidgetBase::focusInEvent(event);
    d->form.treeView->setFocus(event->reason());
}

void FeatureTreeWidget::changeEvent(QEvent *event)
{
    TreeWidgetBase::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) {
        return;
    }
    const QString title = windowTitle(); // may be the host's
    d->form.retranslateUi(this);
    setWindowTitle(title);
    showActionTexts();
    if (auto *const model = qobject_cast<FeatureTreeModel *>(proxy()->sourceModel())) {
        model->retranslate();
    }
    onJudged();
    announceMatches();
    getFeatureExtension()->refreshSpecialItems();
}

void FeatureTreeWidget::addShortcut(const QKeySequence &sequence, QObject *receiver, const char *slot)
{
    auto *const shortcut = new QShortcut(sequence, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, SIGNAL(activated()), receiver, slot);
}

void FeatureTreeWidget::setUpShortcuts()
{
    addShortcut(QKeySequence(Qt::Key_F3), d->form.filterEdit, SLOT(setFocus()));
    // In these each modifier is a keystroke of its own; the chords that people press follow.
    addShortcut(QKeySequence(keyControl, Qt::Key_F), d->form.filterEdit, SLOT(setFocus()));
    addShortcut(QKeySequence(keyControl, keyAlt, keyShift, Qt::Key_Minus), d->form.treeView,
                SLOT(collapseAll()));
    addShortcut(QKeySequence(keyControl, keyAlt, keyShift, Qt::Key_Plus), this, SLOT(expandTree()));

    const QKeySequence find(Qt::CTRL | Qt::Key_F);
    addShortcut(find, d->form.filterEdit, SLOT(setFocus()));
    addShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_Minus), d->form.treeView,
                SLOT(collapseAll()));
    addShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_Plus), this, SLOT(expandTree()));
}

FeatureTreeProxyModel *FeatureTreeWidget::proxy() const
{
    return qobject_cast<FeatureTreeProxyModel *>(d->form.treeView->model());
}

QTreeView *FeatureTreeWidget::treeView() const
{
    return d->form.treeView;
}

FeatureTreeView *FeatureTreeWidget::treeView()
{
    return d->form.treeView;
}

IFeatureTreeModelExtension *FeatureTreeWidget::getFeatureExtension()
{
    return d->form.treeView->getFeatureExtension();
}

const IFeatureTreeModelExtension *FeatureTreeWidget::getFeatureExtension() const
{
    return std::as_const(*d->form.treeView).getFeatureExtension();
}

QSize FeatureTreeWidget::sizeHint() const
{
    const int unit = fontMetrics().height();
    return {unit * 28, unit * 36};
}

void FeatureTreeWidget::addParameterCollection(
    QSharedPointer<ParameterCollection::IParameterCollection> collection, const QString &rootName,
    const QString &roleName, bool isUtf8)
{
    // Before the rows are made: which of them there are is decided then.
    NodeMapFilter::apply(collection, roleName);
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    extension->SetDeviceAlive(true);
    const FeatureTreeView::Batch batch(d->form.treeView);
    pass([&] {
        extension->addParameterCollection(std::move(collection), rootName, roleName, isUtf8);
        if (!extension->getSearchHelpItem()) {
            d->form.treeView->onFavoriteDataUpdated();
        }
    });
    if (!d->filterText.isEmpty()) {
        d->form.treeView->expandEverything(); // its rows may repeat names that were counted before
        announceMatches();
        extension->refreshSpecialItems();
    }
    d->actionTogglePolling->setEnabled(true);
    d->busy = true;
}

void FeatureTreeWidget::clear()
{
    getFeatureExtension()->clear();
    d->lookBeforeSearch = FeatureTreeLook();
    setSearchText(QString()); // and with it the filter and the highlighting
    d->actionTogglePolling->setEnabled(false);
    d->busy = true;
    updateActions();
}

void FeatureTreeWidget::setMonitorMode(bool enable)
{
    getFeatureExtension()->setMonitorMode(enable);
}

void FeatureTreeWidget::deviceIsClosed()
{
    getFeatureExtension()->SetDeviceAlive(false);
}

void FeatureTreeWidget::Refresh()
{
    const WaitCursor cursor;
    getFeatureExtension()->refresh();
}

FeatureTreeDelegate *FeatureTreeWidget::delegate() const
{
    return qobject_cast<FeatureTreeDelegate *>(d->form.treeView->itemDelegate());
}

void FeatureTreeWidget::setCommandVeto(CommandVeto veto)
{
    if (FeatureTreeDelegate *const ours = delegate()) {
        ours->setCommandVeto(std::move(veto));
    }
}

bool FeatureTreeWidget::isResting() const
{
    return d->isResting;
}

void FeatureTreeWidget::setResting(bool resting)
{
    if (resting == d->isResting) {
        return;
    }
    d->isResting = resting;
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    if (resting) {
        d->pollsAfterRest = extension->GetPolling();
        d->followsAfterRest = extension->getGenICamCallbackEnable();
        d->focusAfterRest = isAncestorOf(QApplication::focusWidget()) ? QApplication::focusWidget() : nullptr;
    }
    extension->EnablePolling(!resting && d->pollsAfterRest);
    extension->setGenICamCallbacksEnable(!resting && d->followsAfterRest);
    for (QWidget *const part :
         {static_cast<QWidget *>(d->form.treeView), static_cast<QWidget *>(d->form.checkBoxPolling),
          static_cast<QWidget *>(d->form.resetButton)}) {
        part->setEnabled(!resting);
    }
    if (!resting && d->focusAfterRest && !QApplication::focusWidget()) {
        d->focusAfterRest->setFocus();
    }
    emit restingChanged(resting);
}

void FeatureTreeWidget::on_resetButton_clicked()
{
    Refresh();
}

void FeatureTreeWidget::refreshTree()
{
    const FeatureTreeView::Batch batch(d->form.treeView);
    proxy()->refilter();
    showRefreshed();
}

// What refreshing does beside filtering.
void FeatureTreeWidget::showRefreshed()
{
    if (d->expandOnRefresh) {
        d->form.treeView->expandToDepth(expandedDepth);
    }
    getFeatureExtension()->refreshSpecialItems();
}

void FeatureTreeWidget::setExpandOnRefresh(bool expand)
{
    d->expandOnRefresh = expand;
}

bool FeatureTreeWidget::isExpandedOnRefresh() const
{
    return d->expandOnRefresh;
}

void FeatureTreeWidget::copyToClipboard()
{
    QString text;
    QTextStream stream(&text);
    writeFeatureTree(stream, *d->form.treeView->model());
    QApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

void FeatureTreeWidget::expandTree()
{
    d->form.treeView->expandToDepth(expandedDepth);
    recordFavoritesExpansion();
}

// A search has its own expansion.
void FeatureTreeWidget::recordFavoritesExpansion()
{
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    const QModelIndex favorites = extension->GetFavoritesRootIndex();
    if (favorites.isValid() && d->filterText.isEmpty()) {
        extension->GetFavorites().setExpanded(d->form.treeView->isExpanded(favorites));
    }
}

void FeatureTreeWidget::expandRootNodes()
{
    const QAbstractItemModel *const model = d->form.treeView->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        d->form.treeView->expand(model->index(row, FeatureTreeColumns::name));
    }
}

void FeatureTreeWidget::EnableGenICamCallbacks(bool enable)
{
    getFeatureExtension()->setGenICamCallbacksEnable(enable);
}

void FeatureTreeWidget::setCameraType(const QString &cameraType)
{
    d->cameraType = cameraType;
}

QString FeatureTreeWidget::cameraType() const
{
    return d->cameraType;
}

bool FeatureTreeWidget::showFeature(const QString &fullName)
{
    QModelIndex row = shownRow(fullName);
    if (!row.isValid() && !d->filterText.isEmpty() && !fullName.isEmpty()) {
        // A search has made all rows, those too that it keeps out of sight.
        const auto *const tree = qobject_cast<FeatureTreeModel *>(proxy()->sourceModel());
        const FeatureTreeItem *const top = tree ? tree->getFeatureTreeItem(tree->index(0, 0)) : nullptr;
        if (!top || !hasRowBelow(*top->parent(), fullName, visibility())) {
            return false;
        }
        setSearchText(QString());
        row = shownRow(fullName);
    }
    if (!row.isValid()) {
        return false;
    }
    d->form.treeView->setCurrentIndex(row);
    d->form.treeView->scrollTo(row);
    return true;
}

QModelIndex FeatureTreeWidget::shownRow(const QString &fullName) const
{
    return firstShownRow([&fullName](const QModelIndex &index) {
        return index.data(FeatureTreeItem::FullNodeNameRole).toString() == fullName;
    });
}

QModelIndex FeatureTreeWidget::firstShownRow(const RowTest &isWanted, const QModelIndex &parent) const
{
    const FeatureTreeView *const view = d->form.treeView;
    for (int row = 0; row < view->model()->rowCount(parent); ++row) {
        if (view->isRowHidden(row, parent)) {
            continue;
        }
        const QModelIndex index = view->model()->index(row, FeatureTreeColumns::name, parent);
        const QModelIndex found = isWanted(index) ? index : firstShownRow(isWanted, index);
        if (found.isValid()) {
            return found;
        }
    }
    return {};
}

const FeatureTreeLook &FeatureTreeWidget::lookBeforeSearch() const
{
    return d->lookBeforeSearch;
}

QString FeatureTreeWidget::searchText() const
{
    return d->filterText;
}

void FeatureTreeWidget::setSearchText(const QString &text)
{
    if (text.isEmpty()) {
        d->form.filterEdit->clear(); // which can be undone
    } else {
        d->form.filterEdit->setText(text);
    }
    if (d->form.filterEdit->text() == text && d->filterText != text) {
        onFilterTextChanged(text); // the search had not begun in the box
    }
}

void FeatureTreeWidget::focusSearch()
{
    d->form.filterEdit->setFocus();
    d->form.filterEdit->selectAll();
}

QModelIndex FeatureTreeWidget::GetCurrentIndex() const
{
    // The view keeps a row that was hidden as its current one; for everybody else there is none.
    const QModelIndex current = d->form.treeView->currentIndex();
    for (QModelIndex row = current; row.isValid(); row = row.parent()) {
        if (d->form.treeView->isRowHidden(row.row(), row.parent())) {
            return {};
        }
    }
    return current;
}

FeatureTreeItem *FeatureTreeWidget::getDeepestSelectedItem() const
{
    QModelIndex index = GetCurrentIndex();
    if (const auto *const filter = qobject_cast<const QSortFilterProxyModel *>(index.model())) {
        index = filter->mapToSource(index);
    }
    return index.isValid() ? static_cast<FeatureTreeItem *>(index.internalPointer()) : nullptr;
}

FeatureTreeItem *FeatureTreeWidget::GetCurrentItem() const
{
    return getDeepestSelectedItem();
}

QSharedPointer<ParameterCollection::IParameter> FeatureTreeWidget::GetCurrentNode() const
{
    const auto *const item = qobject_cast<FeatureTreeINodeItem *>(GetCurrentItem());
    return item ? item->node() : nullptr;
}

bool FeatureTreeWidget::IsCurrentFavorite() const
{
    const IFeatureTreeModelExtension *const extension = getFeatureExtension();
    return extension && extension->IsFavoriteTreeItem(GetCurrentItem());
}

bool FeatureTreeWidget::IsOnCurrentItem() const
{
    const QPoint position = d->form.treeView->viewport()->mapFromGlobal(QCursor::pos());
    const QModelIndex hovered = d->form.treeView->indexAt(position);
    return hovered.isValid()
        && hovered.siblingAtColumn(FeatureTreeColumns::name) == GetCurrentIndex().siblingAtColumn(0);
}

void FeatureTreeWidget::onCurrentChanged(const QModelIndex &index)
{
    FeatureTreeItem *const item =
        index.isValid() ? getFeatureExtension()->getFeatureTreeItem(index) : nullptr;
    if (item) {
        const auto *const nodeItem = qobject_cast<FeatureTreeINodeItem *>(item);
        const auto parameter = nodeItem ? nodeItem->node() : nullptr;
        if (parameter) {
            // Typing a search must not make the host jump to other features.
            if (!d->form.filterEdit->hasFocus()) {
                emit currentChanged(parameter);
            }
        } else if (item->HasDescription()) {
            emit newText(item->GetDescription());
        }
    }
    updateActions();
}

void FeatureTreeWidget::onFavoritesUpdated()
{
    d->form.checkBoxViewAllFavorites->setChecked(getViewAllFavorites()); // another view may have switched it
    updateActions();
}

void FeatureTreeWidget::updateActions()
{
    const IFeatureTreeModelExtension *const extension = getFeatureExtension();
    const QModelIndex index = GetCurrentIndex();
    const bool isFavorite = IsCurrentFavorite();
    d->actionAddToFavourites->setEnabled(extension->CanAddAsFavorite(index));
    d->actionRemoveFavourite->setEnabled(isFavorite);
    d->actionMoveFavouriteUp->setEnabled(isFavorite && extension->CanMoveFavorite(index, true));
    d->actionMoveFavouriteDown->setEnabled(isFavorite && extension->CanMoveFavorite(index, false));
}

void FeatureTreeWidget::contextualMenu(const QPoint &pos)
{
    if (!GetCurrentIndex().isValid()) {
        return;
    }
    const QSharedPointer<QMenu> menu(new QMenu, &QObject::deleteLater);
    if (IsCurrentFavorite()) {
        menu->addAction(d->actionMoveFavouriteUp);
        menu->addAction(d->actionMoveFavouriteDown);
        menu->addSeparator();
        menu->addAction(d->actionRemoveFavourite);
    } else {
        menu->addAction(d->actionAddToFavourites);
    }
    emit contextMenuRequested(pos, menu);
}

void FeatureTreeWidget::AddToFavourites_triggered()
{
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    extension->AddFavorite(GetCurrentNode(), extension->GetFavorites().count());
}

void FeatureTreeWidget::moveCurrentFavorite(bool up)
{
    if (!IsCurrentFavorite()) {
        return;
    }
    FavoritesData &favorites = getFeatureExtension()->GetFavorites();
    favorites.setDeferredUpdates(true);
    getFeatureExtension()->MoveFavorite(GetCurrentIndex(), up);
    favorites.setDeferredUpdates(false);
}

void FeatureTreeWidget::FavouriteMoveUp_triggered()
{
    moveCurrentFavorite(true);
}

void FeatureTreeWidget::FavouriteMoveDown_triggered()
{
    moveCurrentFavorite(false);
}

void FeatureTreeWidget::FavouriteRemove_triggered()
{
    if (IsCurrentFavorite()) {
        getFeatureExtension()->RemoveFavorite(GetCurrentIndex());
    }
}

bool FeatureTreeWidget::getPolling() const
{
    return getFeatureExtension()->GetPolling();
}

void FeatureTreeWidget::setPolling(bool enable)
{
    getFeatureExtension()->EnablePolling(enable);
    d->form.checkBoxPolling->setChecked(enable);
    d->actionTogglePolling->setChecked(enable);
}

void FeatureTreeWidget::onPollingStateChanged(bool polling)
{
    setPolling(polling);
    emit pollingStateChanged(polling);
}

void FeatureTreeWidget::on_checkBoxPolling_clicked()
{
    setPolling(d->form.checkBoxPolling->isChecked());
}

void FeatureTreeWidget::TogglePolling_triggered()
{
    setPolling(d->actionTogglePolling->isChecked());
}

void FeatureTreeWidget::setPollingVisible(bool visible)
{
    d->form.checkBoxPolling->setVisible(visible);
}

bool FeatureTreeWidget::isPollingVisible() const
{
    return !d->form.checkBoxPolling->isHidden();
}

bool FeatureTreeWidget::getViewAllFavorites() const
{
    return getFeatureExtension()->GetViewAllFavorites();
}

void FeatureTreeWidget::setViewAllFavorites(bool viewAll)
{
    getFeatureExtension()->EnableViewAllFavorites(viewAll);
    d->form.checkBoxViewAllFavorites->setChecked(viewAll);
}

void FeatureTreeWidget::setViewAllFavoritesVisible(bool visible)
{
    d->form.checkBoxViewAllFavorites->setVisible(visible);
}

bool FeatureTreeWidget::isViewAllFavoritesVisible() const
{
    return !d->form.checkBoxViewAllFavorites->isHidden();
}

void FeatureTreeWidget::on_checkBoxViewAllFavorites_clicked()
{
    const bool viewAll = d->form.checkBoxViewAllFavorites->isChecked();
    setViewAllFavorites(viewAll); // which filters
    emit viewAllFavoritesStateChanged(viewAll);
    showRefreshed();
}

GenApi::EVisibility FeatureTreeWidget::visibility() const
{
    return const_cast<IFeatureTreeModelExtension *>(getFeatureExtension())->getVisibility();
}

void FeatureTreeWidget::setVisibility(GenApi::EVisibility level)
{
    getFeatureExtension()->setVisibility(level);
    d->form.treeView->setVisibility(level); // rebuilds the favorites, and the pass at the end of that will do
    proxy()->filterIfExpired();
}

void FeatureTreeWidget::onVisibilityChanged(int level)
{
    if (level < GenApi::Beginner || level > GenApi::Invisible) {
        return;
    }
    const auto visibility = static_cast<GenApi::EVisibility>(level);
    commitEntered();
    {
        const FeatureTreeView::Batch batch(d->form.treeView);
        pass([this, visibility] { setVisibility(visibility); });
        emit visibilityChanged(visibility);
        if (!d->filterText.isEmpty()) {
            d->form.treeView->expandEverything();
        }
        announceMatches();
        showRefreshed();
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void FeatureTreeWidget::onFilterTextChanged(const QString &text)
{
    d->filterText = text;
    {
        std::optional<WaitCursor> cursor;
        if (d->busy) {
            cursor.emplace();
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            if (d->filterText != text) {
                return; // the tree was cleared meanwhile, and the box with it
            }
        }
        filter(text);
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    d->busy = false;
}

// What Return has just entered is written before its row may go.
void FeatureTreeWidget::commitEntered()
{
    QCoreApplication::sendPostedEvents(d->form.treeView->itemDelegate(), QEvent::MetaCall);
}

// Does something that filters, of which nobody is told before the action is over. Returns whether rows came
// or went.
template <typename Work>
bool FeatureTreeWidget::pass(Work work)
{
    const QScopedValueRollback<bool> filtering(d->isFiltering, true);
    const quint64 before = proxy()->publication();
    work();
    return proxy()->publication() != before;
}

void FeatureTreeWidget::filter(const QString &text)
{
    commitEntered();
    const bool wasSearching = !proxy()->filterRegularExpression().pattern().isEmpty();
    const bool isSearching = !text.isEmpty();
    if (!wasSearching && isSearching) {
        saveExpandedStatus();
        saveSelectionStatus();
    }
    std::optional<FeatureTreeView::Batch> batch(d->form.treeView);
    FeatureTreeHighlighter &highlighter = *d->form.treeView->getHightlighter();
    const FeatureTreeHighlighter before = highlighter;
    highlighter.setText(text);
    const bool isChanged = pass([this, &text] { proxy()->setFilterFixedString(text); });
    const bool isOtherKey = wasSearching && isSearching; // neither the first one nor the last
    if (isSearching && (isChanged || !wasSearching)) {
        d->form.treeView->expandEverything();
    } else if (!isSearching && wasSearching) {
        restoreExpandedStatus();
        restoreSelectionStatus();
        recordFavoritesExpansion(); // which may have been closed in the search
    }
    announceMatches();
    if (isOtherKey && !isChanged) {
        updateMarks(before);
        if (!d->isSearchRowStale) {
            return;
        }
    }
    d->isSearchRowStale = false;
    getFeatureExtension()->refreshSpecialItems();
    batch.reset();
    if (wasSearching && !isSearching) {
        d->lookBeforeSearch.restoreScrollPosition(*d->form.treeView);
        d->lookBeforeSearch = FeatureTreeLook();
    }
    d->form.treeView->viewport()->update();
}

// Repaints rows in which something else is marked now.
void FeatureTreeWidget::updateMarks(const FeatureTreeHighlighter &before)
{
    FeatureTreeView *const view = d->form.treeView;
    const FeatureTreeHighlighter &now = *view->getHightlighter();
    const int bottom = view->viewport()->rect().bottom();
    QModelIndex row = view->indexAt(QPoint(0, 0));
    for (; row.isValid() && view->visualRect(row).top() <= bottom; row = view->indexBelow(row)) {
        const QString text = row.data().toString();
        if (now.matchRanges(text) != before.matchRanges(text)) {
            view->update(row);
        }
    }
}

// Favorites, collections, levels and features that come and go change what a search finds.
void FeatureTreeWidget::onFiltered()
{
    if (d->filterText.isEmpty() || d->isFiltering) {
        return;
    }
    const QScopedValueRollback<bool> filtering(d->isFiltering, true);
    const FeatureTreeView::Batch batch(d->form.treeView);
    const int before = d->visibleMatches;
    announceMatches();
    if (d->visibleMatches > before) {
        d->form.treeView->expandEverything(); // what was found shows, also in branches that came with it
    }
    getFeatureExtension()->refreshSpecialItems();
}

void FeatureTreeWidget::onWritten(QSharedPointer<ParameterCollection::IParameter> parameter)
{
    tellEdited(parameter, QString());
}

void FeatureTreeWidget::onWriteFailed(QSharedPointer<ParameterCollection::IParameter> parameter,
                                      QString message)
{
    tellEdited(parameter, message.isEmpty() ? tr("The camera gave no reason.") : message);
}

void FeatureTreeWidget::tellEdited(const QSharedPointer<ParameterCollection::IParameter> &parameter,
                                   const QString &refusal)
{
    const UnansweredWrites *const writes = UnansweredWrites::find(*parameter);
    const auto attempt = writes ? writes->lastAttempt() : UnansweredWrites::Attempt();
    emit edited(parameter, attempt.before, attempt.text, refusal);
}

// The counts are known before the rows follow, so the row that shows them is one of those.
void FeatureTreeWidget::onJudged()
{
    FeatureTreeItem *const row = getFeatureExtension()->getSearchHelpItem();
    if (!row || (d->filterText.isEmpty() && !d->isFiltering)) {
        return;
    }
    QString message;
    int hidden = 0;
    if (!d->filterText.isEmpty()) {
        hidden = proxy()->hiddenMatchCount();
        message = tr("<B>%1 search results (%2 of them visible at higher user level)</B>")
                      .arg(hidden + proxy()->visibleMatchCount())
                      .arg(hidden);
    }
    d->isSearchRowStale = d->isSearchRowStale || message != row->GetToolTip();
    row->setDisplayedName(message.isEmpty() ? QString() : QStringLiteral("<HTML>") + message);
    row->SetToolTip(message);
    row->setVisibility(hidden > 0 ? GenApi::Beginner : GenApi::Invisible);
}

void FeatureTreeWidget::announceMatches()
{
    const bool isSearching = !d->filterText.isEmpty();
    d->visibleMatches = isSearching ? proxy()->visibleMatchCount() : 0;
    const int hidden = isSearching ? proxy()->hiddenMatchCount() : 0;
    d->form.filterEdit->setResult(isSearching ? matchesText(d->visibleMatches, hidden) : QString());
    emit filterMatchesChanged(d->visibleMatches + hidden, hidden);
}

QString FeatureTreeWidget::matchesText(int visible, int hidden)
{
    const QString found = tr("%n feature(s) found", nullptr, visible);
    return hidden == 0 ? found : tr("%1, %n more at a higher level", nullptr, hidden).arg(found);
}

void FeatureTreeWidget::saveExpandedStatus()
{
    d->lookBeforeSearch.remove(FeatureTreeLook::OpenRows);
    d->lookBeforeSearch.takeScrollPosition(*d->form.treeView);
    saveExpandedOnLevel(QModelIndex());
}

void FeatureTreeWidget::saveExpandedOnLevel(const QModelIndex &index)
{
    d->lookBeforeSearch.takeOpenRows(*d->form.treeView, index);
}

void FeatureTreeWidget::restoreExpandedStatus()
{
    const QAbstractItemModel *const model = d->form.treeView->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        restoreExpandedOnLevel(model->index(row, FeatureTreeColumns::name));
    }
}

void FeatureTreeWidget::restoreExpandedOnLevel(const QModelIndex &index)
{
    d->lookBeforeSearch.restoreOpenRows(*d->form.treeView, index);
}

void FeatureTreeWidget::saveSelectionStatus()
{
    d->lookBeforeSearch.takeCurrentRow(*d->form.treeView);
}

void FeatureTreeWidget::restoreSelectionStatus()
{
    d->lookBeforeSearch.restoreCurrentRow(*d->form.treeView);
    d->lookBeforeSearch.remove(FeatureTreeLook::CurrentRow);
}

bool FeatureTreeWidget::eventFilter(QObject *watched, QEvent *event)
{
    // Most keys and clicks end in a child, which tells nobody.
    const bool isClick = event->type() == QEvent::MouseButtonPress;
    const bool isKey = event->type() == QEvent::KeyPress;
    if (isClick || (isKey && static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)) {
        escapePressed() = false;
    }
    const auto *const target = isKey ? qobject_cast<QWidget *>(watched) : nullptr;
    const bool isInTree = target && (target == d->form.treeView || d->form.treeView->isAncestorOf(target));
    if (isInTree && IsCurrentFavorite()) {
        // Else one Ctrl+Down too many would leave the favorite that is being moved, or change its value.
        const QKeySequence keys(static_cast<QKeyEvent *>(event)->keyCombination());
        return keys == d->actionMoveFavouriteUp->shortcut() || keys == d->actionMoveFavouriteDown->shortcut();
    }
    return TreeWidgetBase::eventFilter(watched, event);
}

void FeatureTreeWidget::keyPressEvent(QKeyEvent *event)
{
    const bool isEscape = event->key() == Qt::Key_Escape;
    const bool isSecondEscape = isEscape && escapePressed();
    if (isSecondEscape) {
        setSearchText(QString());
    }
    escapePressed() = isEscape && !isSecondEscape; // the next one is a first one again
    if (event->key() == Qt::Key_Down && d->form.filterEdit->hasFocus()) {
        goToFirstMatch();
    }
    TreeWidgetBase::keyPressEvent(event);
}

// From the search to what it found.
void FeatureTreeWidget::goToFirstMatch()
{
    FeatureTreeView *const view = d->form.treeView;
    const QModelIndex match = d->filterText.isEmpty()
        ? QModelIndex()
        : firstShownRow([this](const QModelIndex &index) { return proxy()->isMatch(index); });
    if (match.isValid()) {
        // Before the focus, which would find itself a row.
        view->setCurrentIndex(match);
        view->scrollTo(match);
    }
    view->setFocus();
    if (match.isValid()) {
        onCurrentChanged(match); // which was kept from the host as long as the search had the focus
    }
}

bool FeatureTreeWidget::event(QEvent *event)
{
    const bool result = TreeWidgetBase::event(event);
    if (event->type() == QEvent::FontChange) {
        const QList<QWidget *> descendants = findChildren<QWidget *>();
        for (QWidget *const widget : descendants) {
            QCoreApplication::sendEvent(widget, event);
        }
    }
    return result;
}
