// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreelook.h"

#include "featuretreeitem.h"
#include "featuretreenames.h"
#include "featuretreeproxymodel.h"
#include "featuretreeview.h"
#include "featuretreewidget.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMetaEnum>
#include <QScrollBar>
#include <QStringList>

namespace {

constexpr QLatin1Char separator('\n');

QString keyOf(FeatureTreeLook::Part part)
{
    return QString::fromLatin1(QMetaEnum::fromType<FeatureTreeLook::Part>().valueToKey(part));
}

template <typename Value>
std::optional<Value> valueIn(const QVariantMap &map, FeatureTreeLook::Part part)
{
    const auto found = map.constFind(keyOf(part));
    return found == map.cend() ? std::nullopt : std::make_optional(found->value<Value>());
}

QString nameOf(const QModelIndex &row)
{
    return row.data(FeatureTreeItem::FullNodeNameRole).toString();
}

// Returns an empty path for an invalid index.
QString pathOf(const QModelIndex &row)
{
    return row.parent().isValid() ? pathOf(row.parent()) + separator + nameOf(row) : nameOf(row);
}

QModelIndex childNamed(const QAbstractItemModel &model, const QModelIndex &parent, const QString &name)
{
    const int count = model.rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = model.index(row, FeatureTreeColumns::name, parent);
        if (nameOf(index) == name) {
            return index;
        }
    }
    return {};
}

QModelIndex rowAt(const QAbstractItemModel &model, const QString &path)
{
    QModelIndex row;
    const QStringList names = path.split(separator);
    for (const QString &name : names) {
        row = childNamed(model, row, name);
        if (!row.isValid()) {
            return {};
        }
    }
    return row;
}

void makeCurrent(FeatureTreeView &view, const QString &path)
{
    const QModelIndex row = path.isEmpty() ? QModelIndex() : rowAt(*view.model(), path);
    if (row.isValid()) {
        // Scrolling to the row would expand its parents.
        view.setAutoScroll(false);
        view.setCurrentIndex(row);
        view.setAutoScroll(true);
    }
}

// Spin boxes have the focus for their line edit.
QLineEdit *lineEditIn(QWidget *input)
{
    auto *const lineEdit = qobject_cast<QLineEdit *>(input);
    return lineEdit || !input ? lineEdit : input->findChild<QLineEdit *>();
}

// Unless it is in a branch that is closed.
void scrollToCurrent(FeatureTreeView &view)
{
    view.executeDelayedItemsLayout();
    if (!view.visualRect(view.currentIndex()).isEmpty()) {
        view.scrollTo(view.currentIndex());
    }
}

} // namespace

FeatureTreeLook::FeatureTreeLook(const QVariantMap &map)
    : m_currentRow(valueIn<QString>(map, CurrentRow))
    , m_scrollPosition(valueIn<QPoint>(map, ScrollPosition))
    , m_search(valueIn<QString>(map, Search))
    , m_hit(valueIn<QString>(map, Hit))
    , m_polls(valueIn<bool>(map, Polling))
{
    if (const auto rows = valueIn<QStringList>(map, OpenRows)) {
        m_openRows.emplace(rows->cbegin(), rows->cend());
    }
    if (const auto level = valueIn<int>(map, Level)) {
        m_level = static_cast<GenApi::EVisibility>(*level);
    }
}

FeatureTreeLook::FeatureTreeLook(FeatureTreeWidget &tree)
    : FeatureTreeLook(tree.lookBeforeSearch())
{
    FeatureTreeView &view = *tree.treeView();
    m_search = tree.searchText();
    if (m_search->isEmpty()) {
        takeOpenRows(view, QModelIndex());
        takeCurrentRow(view);
        takeScrollPosition(view);
    } else {
        m_hit = pathOf(tree.GetCurrentIndex());
    }
    m_level = tree.visibility();
    m_polls = tree.getPolling();
    takeTyping(view);
}

QVariantMap FeatureTreeLook::toMap(Parts parts) const
{
    QVariantMap map;
    const auto insert = [&map, parts](Part part, const auto &value) {
        if (value && parts.testFlag(part)) {
            map.insert(keyOf(part), QVariant::fromValue(*value));
        }
    };
    if (m_openRows && parts.testFlag(OpenRows)) {
        QStringList rows = m_openRows->values();
        rows.sort(); // the same look gives the same values
        map.insert(keyOf(OpenRows), rows);
    }
    insert(CurrentRow, m_currentRow);
    insert(ScrollPosition, m_scrollPosition);
    insert(Search, m_search);
    insert(Hit, m_hit);
    insert(Level, m_level ? std::make_optional<int>(*m_level) : std::nullopt);
    insert(Polling, m_polls);
    return map;
}

void FeatureTreeLook::applyTo(FeatureTreeWidget &tree) const
{
    FeatureTreeView &view = *tree.treeView();
    tree.setSearchText(QString());
    if (m_level && *m_level != tree.visibility()) {
        tree.onVisibilityChanged(*m_level);
    }
    const QModelIndex favorites = tree.getFeatureExtension()->GetFavoritesRootIndex();
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const QModelIndex top = view.model()->index(row, FeatureTreeColumns::name);
        if (top != favorites) {
            restoreOpenRows(view, top);
        }
    }
    restoreCurrentRow(view);
    if (m_scrollPosition) {
        restoreScrollPosition(view);
    } else {
        scrollToCurrent(view);
    }
    if (m_search && !m_search->isEmpty()) {
        tree.setSearchText(*m_search);
        makeCurrent(view, m_hit.value_or(QString()));
        scrollToCurrent(view);
    }
    if (m_polls) {
        tree.setPolling(*m_polls);
    }
    restoreTyping(view);
}

void FeatureTreeLook::remove(Parts parts)
{
    const auto reset = [parts](Part part, auto &value) {
        if (parts.testFlag(part)) {
            value.reset();
        }
    };
    reset(OpenRows, m_openRows);
    reset(CurrentRow, m_currentRow);
    reset(ScrollPosition, m_scrollPosition);
    reset(Search, m_search);
    reset(Hit, m_hit);
    reset(Level, m_level);
    reset(Polling, m_polls);
}

void FeatureTreeLook::takeOpenRows(const FeatureTreeView &view, const QModelIndex &top)
{
    if (!m_openRows) {
        m_openRows.emplace();
    }
    if (top.isValid()) {
        if (view.isExpanded(top)) {
            m_openRows->insert(pathOf(top));
        }
        if (!view.mayHaveOpenRows(top)) {
            return;
        }
    }
    const QModelIndexList branches = view.branchesBelow(top);
    for (const QModelIndex &branch : branches) {
        takeOpenRows(view, branch);
    }
}

void FeatureTreeLook::takeTyping(const FeatureTreeView &view)
{
    QWidget *const focus = view.window()->focusWidget();
    const QLineEdit *const input = lineEditIn(focus);
    if (!input || !input->isModified() || !view.viewport()->isAncestorOf(input)) {
        return;
    }
    const QModelIndex row = view.indexAt(focus->mapTo(view.viewport(), focus->rect().center()));
    m_typing = Typing{pathOf(row.siblingAtColumn(FeatureTreeColumns::name)), input->text()};
}

// As if it were typed again, so that the editor knows that it is not entered yet.
void FeatureTreeLook::restoreTyping(FeatureTreeView &view) const
{
    const QModelIndex row = m_typing ? rowAt(*view.model(), m_typing->row) : QModelIndex();
    if (!row.isValid()) {
        return;
    }
    view.executeDelayedItemsLayout();
    const QModelIndex value = row.siblingAtColumn(FeatureTreeColumns::value);
    view.setCurrentIndex(row);
    if (QWidget *const editor = view.indexWidget(value)) {
        editor->setFocus();
    } else {
        view.setFocus();
        static_cast<QAbstractItemView &>(view).edit(value);
    }
    QWidget *const focus = view.window()->focusWidget();
    QLineEdit *const input = view.viewport()->isAncestorOf(focus) ? lineEditIn(focus) : nullptr;
    if (!input || input->isReadOnly()) {
        return;
    }
    input->selectAll();
    QInputMethodEvent typing;
    typing.setCommitString(m_typing->text);
    QCoreApplication::sendEvent(input, &typing);
}

void FeatureTreeLook::takeCurrentRow(const FeatureTreeView &view)
{
    m_currentRow = pathOf(view.currentIndex());
}

void FeatureTreeLook::takeScrollPosition(FeatureTreeView &view)
{
    view.executeDelayedItemsLayout();
    m_scrollPosition = {view.horizontalScrollBar()->value(), view.verticalScrollBar()->value()};
}

void FeatureTreeLook::restoreOpenRows(FeatureTreeView &view, const QModelIndex &top) const
{
    if (m_openRows) {
        view.setExpandedRows(top,
                             [this](const QModelIndex &row) { return m_openRows->contains(pathOf(row)); });
    }
}

void FeatureTreeLook::restoreCurrentRow(FeatureTreeView &view) const
{
    makeCurrent(view, m_currentRow.value_or(QString()));
}

void FeatureTreeLook::restoreScrollPosition(FeatureTreeView &view) const
{
    if (m_scrollPosition) {
        const FeatureTreeView::Batch batch(&view); // no editors for rows that are scrolled away at once
        view.executeDelayedItemsLayout();
        view.horizontalScrollBar()->setValue(m_scrollPosition->x());
        view.verticalScrollBar()->setValue(m_scrollPosition->y());
    }
}
