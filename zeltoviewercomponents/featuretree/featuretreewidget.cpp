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

#include <zeltoviewercomponents/settings/unansweredwrites_p.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
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

FeatureTreeWidget::FeatureTreeWidget(QString name,
                                     QSharedPointer<Core::AppCoreComponents::IBaseInfo> baseInfo,
                                     QWidget *parent, GenApi::EVisibility visibility, bool pollingVisible)
    : TreeWidgetBase(parent)
    , m_ui(std::make_unique<Ui::FeatureTreeWidgetClass>())
    , m_baseInfo(std::move(baseInfo))
{
    m_ui->setupUi(this);
    setObjectName(name);
    FeatureTreeView *const view = m_ui->treeView;
    view->setEditTriggers(QAbstractItemView::CurrentChanged | QAbstractItemView::DoubleClicked
                          | QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed
                          | QAbstractItemView::AnyKeyPressed);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->header()->setContextMenuPolicy(Qt::PreventContextMenu); // the menu is that of a row
    m_ui->resetButton->setIcon(refreshIcon());
    m_ui->checkBoxViewAllFavorites->setChecked(getViewAllFavorites());
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
    connect(m_ui->filterEdit, SIGNAL(textChanged(const QString &)), this,
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
    m_actionAddToFavourites =
        addFavoritesAction(QStringLiteral("AddGigECamera_16.png"), SLOT(AddToFavourites_triggered()));
    m_actionMoveFavouriteUp =
        addFavoritesAction(QStringLiteral("Move_Up.png"), SLOT(FavouriteMoveUp_triggered()));
    m_actionMoveFavouriteDown =
        addFavoritesAction(QStringLiteral("Move_Down.png"), SLOT(FavouriteMoveDown_triggered()));
    m_actionRemoveFavourite =
        addFavoritesAction(QStringLiteral("RemGigECamera_16.png"), SLOT(FavouriteRemove_triggered()));
    m_actionRemoveFavourite->setShortcut(QKeySequence(QKeySequence::Delete));

    m_actionAddToFavourites->setObjectName(QStringLiteral("actionAddToFavourites"));
    m_actionMoveFavouriteUp->setObjectName(QStringLiteral("actionMoveFavouriteUp"));
    m_actionMoveFavouriteDown->setObjectName(QStringLiteral("actionMoveFavouriteDown"));
    m_actionRemoveFavourite->setObjectName(QStringLiteral("actionRemoveFavourite"));

    m_actionTogglePolling = new QAction(m_ui->resetButton->icon(), QString(), this);
    m_actionTogglePolling->setObjectName(QStringLiteral("actionTogglePolling"));
    m_actionTogglePolling->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_actionTogglePolling->setEnabled(false);
    m_actionTogglePolling->setCheckable(true);
    m_actionTogglePolling->setChecked(m_ui->checkBoxPolling->isChecked());
    connect(m_actionTogglePolling, SIGNAL(triggered()), this, SLOT(TogglePolling_triggered()));
    addAction(m_actionTogglePolling);
    showActionTexts();
}

void FeatureTreeWidget::showActionTexts()
{
    const auto show = [](QAction *action, const QString &text) {
        action->setText(text);
        action->setIconText(text);
    };
    show(m_actionAddToFavourites, tr("Add to Favorites"));
    show(m_actionMoveFavouriteUp, tr("Move Up"));
    show(m_actionMoveFavouriteDown, tr("Move Down"));
    show(m_actionRemoveFavourite, tr("Remove"));
    show(m_actionTogglePolling, tr("Polling"));
    m_actionAddToFavourites->setShortcut(QKeySequence(tr("Ctrl+D")));
    m_actionMoveFavouriteUp->setShortcut(QKeySequence(tr("Ctrl+Up")));
    m_actionMoveFavouriteDown->setShortcut(QKeySequence(tr("Ctrl+Down")));
    const QKeySequence find(Qt::CTRL | Qt::Key_F);
    m_ui->filterEdit->setPlaceholder(tr("Search (%1)").arg(find.toString(QKeySequence::NativeText)));
}

// As a proxy would do it, which Tab follows past the search box.
void FeatureTreeWidget::focusInEvent(QFocusEvent *event)
{
    TreeWidgetBase::focusInEvent(event);
    m_ui->treeView->setFocus(event->reason());
}

void FeatureTreeWidget::changeEvent(QEvent *event)
{
    TreeWidgetBase::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) {
        return;
    }
    const QString title = windowTitle(); // may be the host's
    m_ui->retranslateUi(this);
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
    addShortcut(QKeySequence(Qt::Key_F3), m_ui->filterEdit, SLOT(setFocus()));
    // In these each modifier is a keystroke of its own; the chords that people press follow.
    addShortcut(QKeySequence(keyControl, Qt::Key_F), m_ui->filterEdit, SLOT(setFocus()));
    addShortcut(QKeySequence(keyControl, keyAlt, keyShift, Qt::Key_Minus), m_ui->treeView,
                SLOT(collapseAll()));
    addShortcut(QKeySequence(keyControl, keyAlt, keyShift, Qt::Key_Plus), this, SLOT(expandTree()));

    const QKeySequence find(Qt::CTRL | Qt::Key_F);
    addShortcut(find, m_ui->filterEdit, SLOT(setFocus()));
    addShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_Minus), m_ui->treeView,
                SLOT(collapseAll()));
    addShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_Plus), this, SLOT(expandTree()));
}

FeatureTreeProxyModel *FeatureTreeWidget::proxy() const
{
    return qobject_cast<FeatureTreeProxyModel *>(m_ui->treeView->model());
}

QTreeView *FeatureTreeWidget::treeView() const
{
    return m_ui->treeView;
}

FeatureTreeView *FeatureTreeWidget::treeView()
{
    return m_ui->treeView;
}

IFeatureTreeModelExtension *FeatureTreeWidget::getFeatureExtension()
{
    return m_ui->treeView->getFeatureExtension();
}

const IFeatureTreeModelExtension *FeatureTreeWidget::getFeatureExtension() const
{
    return std::as_const(*m_ui->treeView).getFeatureExtension();
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
    const FeatureTreeView::Batch batch(m_ui->treeView);
    pass([&] {
        extension->addParameterCollection(std::move(collection), rootName, roleName, isUtf8);
        if (!extension->getSearchHelpItem()) {
            m_ui->treeView->onFavoriteDataUpdated();
        }
    });
    if (!m_filterText.isEmpty()) {
        m_ui->treeView->expandEverything(); // its rows may repeat names that were counted before
        announceMatches();
        extension->refreshSpecialItems();
    }
    m_actionTogglePolling->setEnabled(true);
    m_busy = true;
}

void FeatureTreeWidget::clear()
{
    getFeatureExtension()->clear();
    m_lookBeforeSearch = FeatureTreeLook();
    setSearchText(QString()); // and with it the filter and the highlighting
    m_actionTogglePolling->setEnabled(false);
    m_busy = true;
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

void FeatureTreeWidget::setCommandVeto(CommandVeto veto)
{
    if (auto *const delegate = qobject_cast<FeatureTreeDelegate *>(m_ui->treeView->itemDelegate())) {
        delegate->setCommandVeto(std::move(veto));
    }
}

void FeatureTreeWidget::setResting(bool resting)
{
    if (resting == m_isResting) {
        return;
    }
    m_isResting = resting;
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    if (resting) {
        m_pollsAfterRest = extension->GetPolling();
        m_followsAfterRest = extension->getGenICamCallbackEnable();
        m_focusAfterRest = isAncestorOf(QApplication::focusWidget()) ? QApplication::focusWidget() : nullptr;
    }
    extension->EnablePolling(!resting && m_pollsAfterRest);
    extension->setGenICamCallbacksEnable(!resting && m_followsAfterRest);
    for (QWidget *const part :
         {static_cast<QWidget *>(m_ui->treeView), static_cast<QWidget *>(m_ui->checkBoxPolling),
          static_cast<QWidget *>(m_ui->resetButton)}) {
        part->setEnabled(!resting);
    }
    if (!resting && m_focusAfterRest && !QApplication::focusWidget()) {
        m_focusAfterRest->setFocus();
    }
    emit restingChanged(resting);
}

void FeatureTreeWidget::on_resetButton_clicked()
{
    Refresh();
}

void FeatureTreeWidget::refreshTree()
{
    const FeatureTreeView::Batch batch(m_ui->treeView);
    proxy()->refilter();
    showRefreshed();
}

// What refreshing does beside filtering.
void FeatureTreeWidget::showRefreshed()
{
    if (m_expandOnRefresh) {
        m_ui->treeView->expandToDepth(expandedDepth);
    }
    getFeatureExtension()->refreshSpecialItems();
}

void FeatureTreeWidget::setExpandOnRefresh(bool expand)
{
    m_expandOnRefresh = expand;
}

void FeatureTreeWidget::copyToClipboard()
{
    QString text;
    QTextStream stream(&text);
    writeFeatureTree(stream, *m_ui->treeView->model());
    QApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

void FeatureTreeWidget::expandTree()
{
    m_ui->treeView->expandToDepth(expandedDepth);
    recordFavoritesExpansion();
}

// A search has its own expansion.
void FeatureTreeWidget::recordFavoritesExpansion()
{
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    const QModelIndex favorites = extension->GetFavoritesRootIndex();
    if (favorites.isValid() && m_filterText.isEmpty()) {
        extension->GetFavorites().setExpanded(m_ui->treeView->isExpanded(favorites));
    }
}

void FeatureTreeWidget::expandRootNodes()
{
    const QAbstractItemModel *const model = m_ui->treeView->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        m_ui->treeView->expand(model->index(row, FeatureTreeColumns::name));
    }
}

void FeatureTreeWidget::EnableGenICamCallbacks(bool enable)
{
    getFeatureExtension()->setGenICamCallbacksEnable(enable);
}

void FeatureTreeWidget::setCameraType(const QString &cameraType)
{
    m_cameraType = cameraType;
}

QString FeatureTreeWidget::cameraType() const
{
    return m_cameraType;
}

bool FeatureTreeWidget::showFeature(const QString &fullName)
{
    QModelIndex row = shownRow(fullName);
    if (!row.isValid() && !m_filterText.isEmpty() && !fullName.isEmpty()) {
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
    m_ui->treeView->setCurrentIndex(row);
    m_ui->treeView->scrollTo(row);
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
    const FeatureTreeView *const view = m_ui->treeView;
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
    return m_lookBeforeSearch;
}

QString FeatureTreeWidget::searchText() const
{
    return m_filterText;
}

void FeatureTreeWidget::setSearchText(const QString &text)
{
    if (text.isEmpty()) {
        m_ui->filterEdit->clear(); // which can be undone
    } else {
        m_ui->filterEdit->setText(text);
    }
    if (m_ui->filterEdit->text() == text && m_filterText != text) {
        onFilterTextChanged(text); // the search had not begun in the box
    }
}

void FeatureTreeWidget::focusSearch()
{
    m_ui->filterEdit->setFocus();
    m_ui->filterEdit->selectAll();
}

QModelIndex FeatureTreeWidget::GetCurrentIndex() const
{
    // The view keeps a row that was hidden as its current one; for everybody else there is none.
    const QModelIndex current = m_ui->treeView->currentIndex();
    for (QModelIndex row = current; row.isValid(); row = row.parent()) {
        if (m_ui->treeView->isRowHidden(row.row(), row.parent())) {
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
    const QPoint position = m_ui->treeView->viewport()->mapFromGlobal(QCursor::pos());
    const QModelIndex hovered = m_ui->treeView->indexAt(position);
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
            if (!m_ui->filterEdit->hasFocus()) {
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
    m_ui->checkBoxViewAllFavorites->setChecked(getViewAllFavorites()); // another view may have switched it
    updateActions();
}

void FeatureTreeWidget::updateActions()
{
    const IFeatureTreeModelExtension *const extension = getFeatureExtension();
    const QModelIndex index = GetCurrentIndex();
    const bool isFavorite = IsCurrentFavorite();
    m_actionAddToFavourites->setEnabled(extension->CanAddAsFavorite(index));
    m_actionRemoveFavourite->setEnabled(isFavorite);
    m_actionMoveFavouriteUp->setEnabled(isFavorite && extension->CanMoveFavorite(index, true));
    m_actionMoveFavouriteDown->setEnabled(isFavorite && extension->CanMoveFavorite(index, false));
}

void FeatureTreeWidget::contextualMenu(const QPoint &pos)
{
    if (!GetCurrentIndex().isValid()) {
        return;
    }
    const QSharedPointer<QMenu> menu(new QMenu, &QObject::deleteLater);
    if (IsCurrentFavorite()) {
        menu->addAction(m_actionMoveFavouriteUp);
        menu->addAction(m_actionMoveFavouriteDown);
        menu->addSeparator();
        menu->addAction(m_actionRemoveFavourite);
    } else {
        menu->addAction(m_actionAddToFavourites);
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
    m_ui->checkBoxPolling->setChecked(enable);
    m_actionTogglePolling->setChecked(enable);
}

void FeatureTreeWidget::onPollingStateChanged(bool polling)
{
    setPolling(polling);
    emit pollingStateChanged(polling);
}

void FeatureTreeWidget::on_checkBoxPolling_clicked()
{
    setPolling(m_ui->checkBoxPolling->isChecked());
}

void FeatureTreeWidget::TogglePolling_triggered()
{
    setPolling(m_actionTogglePolling->isChecked());
}

void FeatureTreeWidget::setPollingVisible(bool visible)
{
    m_ui->checkBoxPolling->setVisible(visible);
}

bool FeatureTreeWidget::getViewAllFavorites() const
{
    return getFeatureExtension()->GetViewAllFavorites();
}

void FeatureTreeWidget::setViewAllFavorites(bool viewAll)
{
    getFeatureExtension()->EnableViewAllFavorites(viewAll);
    m_ui->checkBoxViewAllFavorites->setChecked(viewAll);
}

void FeatureTreeWidget::setViewAllFavoritesVisible(bool visible)
{
    m_ui->checkBoxViewAllFavorites->setVisible(visible);
}

void FeatureTreeWidget::on_checkBoxViewAllFavorites_clicked()
{
    const bool viewAll = m_ui->checkBoxViewAllFavorites->isChecked();
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
    m_ui->treeView->setVisibility(level); // rebuilds the favorites, and the pass at the end of that will do
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
        const FeatureTreeView::Batch batch(m_ui->treeView);
        pass([this, visibility] { setVisibility(visibility); });
        emit visibilityChanged(visibility);
        if (!m_filterText.isEmpty()) {
            m_ui->treeView->expandEverything();
        }
        announceMatches();
        showRefreshed();
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void FeatureTreeWidget::onFilterTextChanged(const QString &text)
{
    m_filterText = text;
    {
        std::optional<WaitCursor> cursor;
        if (m_busy) {
            cursor.emplace();
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            if (m_filterText != text) {
                return; // the tree was cleared meanwhile, and the box with it
            }
        }
        filter(text);
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_busy = false;
}

// What Return has just entered is written before its row may go.
void FeatureTreeWidget::commitEntered()
{
    QCoreApplication::sendPostedEvents(m_ui->treeView->itemDelegate(), QEvent::MetaCall);
}

// Does something that filters, of which nobody is told before the action is over. Returns whether rows came
// or went.
template <typename Work>
bool FeatureTreeWidget::pass(Work work)
{
    const QScopedValueRollback<bool> filtering(m_isFiltering, true);
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
    std::optional<FeatureTreeView::Batch> batch(m_ui->treeView);
    FeatureTreeHighlighter &highlighter = *m_ui->treeView->getHightlighter();
    const FeatureTreeHighlighter before = highlighter;
    highlighter.setText(text);
    const bool isChanged = pass([this, &text] { proxy()->setFilterFixedString(text); });
    const bool isOtherKey = wasSearching && isSearching; // neither the first one nor the last
    if (isSearching && (isChanged || !wasSearching)) {
        m_ui->treeView->expandEverything();
    } else if (!isSearching && wasSearching) {
        restoreExpandedStatus();
        restoreSelectionStatus();
        recordFavoritesExpansion(); // which may have been closed in the search
    }
    announceMatches();
    if (isOtherKey && !isChanged) {
        updateMarks(before);
        if (!m_isSearchRowStale) {
            return;
        }
    }
    m_isSearchRowStale = false;
    getFeatureExtension()->refreshSpecialItems();
    batch.reset();
    if (wasSearching && !isSearching) {
        m_lookBeforeSearch.restoreScrollPosition(*m_ui->treeView);
        m_lookBeforeSearch = FeatureTreeLook();
    }
    m_ui->treeView->viewport()->update();
}

// Repaints rows in which something else is marked now.
void FeatureTreeWidget::updateMarks(const FeatureTreeHighlighter &before)
{
    FeatureTreeView *const view = m_ui->treeView;
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
    if (m_filterText.isEmpty() || m_isFiltering) {
        return;
    }
    const QScopedValueRollback<bool> filtering(m_isFiltering, true);
    const FeatureTreeView::Batch batch(m_ui->treeView);
    const int before = m_visibleMatches;
    announceMatches();
    if (m_visibleMatches > before) {
        m_ui->treeView->expandEverything(); // what was found shows, also in branches that came with it
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
    if (!row || (m_filterText.isEmpty() && !m_isFiltering)) {
        return;
    }
    QString message;
    int hidden = 0;
    if (!m_filterText.isEmpty()) {
        hidden = proxy()->hiddenMatchCount();
        message = tr("<B>%1 search results (%2 of them visible at higher user level)</B>")
                      .arg(hidden + proxy()->visibleMatchCount())
                      .arg(hidden);
    }
    m_isSearchRowStale = m_isSearchRowStale || message != row->GetToolTip();
    row->setDisplayedName(message.isEmpty() ? QString() : QStringLiteral("<HTML>") + message);
    row->SetToolTip(message);
    row->setVisibility(hidden > 0 ? GenApi::Beginner : GenApi::Invisible);
}

void FeatureTreeWidget::announceMatches()
{
    const bool isSearching = !m_filterText.isEmpty();
    m_visibleMatches = isSearching ? proxy()->visibleMatchCount() : 0;
    const int hidden = isSearching ? proxy()->hiddenMatchCount() : 0;
    m_ui->filterEdit->setResult(isSearching ? matchesText(m_visibleMatches, hidden) : QString());
    emit filterMatchesChanged(m_visibleMatches + hidden, hidden);
}

QString FeatureTreeWidget::matchesText(int visible, int hidden)
{
    const QString found = tr("%n feature(s) found", nullptr, visible);
    return hidden == 0 ? found : tr("%1, %n more at a higher level", nullptr, hidden).arg(found);
}

void FeatureTreeWidget::saveExpandedStatus()
{
    m_lookBeforeSearch.remove(FeatureTreeLook::OpenRows);
    m_lookBeforeSearch.takeScrollPosition(*m_ui->treeView);
    saveExpandedOnLevel(QModelIndex());
}

void FeatureTreeWidget::saveExpandedOnLevel(const QModelIndex &index)
{
    m_lookBeforeSearch.takeOpenRows(*m_ui->treeView, index);
}

void FeatureTreeWidget::restoreExpandedStatus()
{
    const QAbstractItemModel *const model = m_ui->treeView->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        restoreExpandedOnLevel(model->index(row, FeatureTreeColumns::name));
    }
}

void FeatureTreeWidget::restoreExpandedOnLevel(const QModelIndex &index)
{
    m_lookBeforeSearch.restoreOpenRows(*m_ui->treeView, index);
}

void FeatureTreeWidget::saveSelectionStatus()
{
    m_lookBeforeSearch.takeCurrentRow(*m_ui->treeView);
}

void FeatureTreeWidget::restoreSelectionStatus()
{
    m_lookBeforeSearch.restoreCurrentRow(*m_ui->treeView);
    m_lookBeforeSearch.remove(FeatureTreeLook::CurrentRow);
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
    const bool isInTree = target && (target == m_ui->treeView || m_ui->treeView->isAncestorOf(target));
    if (isInTree && IsCurrentFavorite()) {
        // Else one Ctrl+Down too many would leave the favorite that is being moved, or change its value.
        const QKeySequence keys(static_cast<QKeyEvent *>(event)->keyCombination());
        return keys == m_actionMoveFavouriteUp->shortcut() || keys == m_actionMoveFavouriteDown->shortcut();
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
    if (event->key() == Qt::Key_Down && m_ui->filterEdit->hasFocus()) {
        goToFirstMatch();
    }
    TreeWidgetBase::keyPressEvent(event);
}

// From the search to what it found.
void FeatureTreeWidget::goToFirstMatch()
{
    FeatureTreeView *const view = m_ui->treeView;
    const QModelIndex match = m_filterText.isEmpty()
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
