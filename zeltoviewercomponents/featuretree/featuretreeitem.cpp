// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreeitem.h"

#include "featuretreenames.h"

#include <QApplication>
#include <QBrush>
#include <QFontMetricsF>
#include <QPalette>
#include <QSize>

#include <algorithm>
#include <utility>

namespace {

// Integer (0), String (6), Reserved8 (8) and Category (10) open no permanent editor; all others do, also
// those that have none to show. What is only typed in shows its text as well as an editor would.
constexpr unsigned transientEditorTypes = 1345;

quint64 revision = 1;
quint64 states = 1;

QSize rowSizeHint()
{
    const double height = QFontMetricsF(QApplication::font()).height() + 10.0;
    return {0, static_cast<int>(height)};
}

} // namespace

FeatureTreeItem::FeatureTreeItem(const QString &name, IFeatureTreeModelExtension *extension,
                                 const QString &fullName, FeatureTreeItem *parent)
    : QObject(parent)
    , m_name(name)
    , m_fullName(fullName)
    , m_parent(parent)
    , m_extension(extension)
{
}

FeatureTreeItem::~FeatureTreeItem()
{
    FeatureTreeItem::clearChildren();
}

void FeatureTreeItem::adopt(FeatureTreeItem *child)
{
    child->m_parent = this;
    child->setParent(this);
}

void FeatureTreeItem::appendChild(FeatureTreeItem *child)
{
    insertChild(child, static_cast<int>(m_children.size()));
}

void FeatureTreeItem::insertChild(FeatureTreeItem *child, int position)
{
    adopt(child);
    m_children.insert(position, child);
    ++revision;
    child->m_rowHint = position;
}

FeatureTreeItem *FeatureTreeItem::removeChild(int row)
{
    FeatureTreeItem *const removed = child(row);
    if (!removed) {
        return nullptr;
    }
    m_children.removeAt(row);
    ++revision;
    removed->m_parent = nullptr;
    removed->setParent(nullptr);
    return removed;
}

FeatureTreeItem *FeatureTreeItem::child(int row) const
{
    return m_children.value(row, nullptr);
}

int FeatureTreeItem::existingChildCount() const
{
    return static_cast<int>(m_children.size());
}

int FeatureTreeItem::columnCount() const
{
    return FeatureTreeColumns::count;
}

void FeatureTreeItem::clearChildren()
{
    if (m_children.isEmpty()) {
        return;
    }
    // Out of the tree first: whom the death of one of them calls meets no other.
    const QList<FeatureTreeItem *> children = std::exchange(m_children, {});
    ++revision;
    qDeleteAll(children);
}

int FeatureTreeItem::childCount()
{
    return existingChildCount();
}

QVariant FeatureTreeItem::data(int column, int role)
{
    if (column == FeatureTreeColumns::name) {
        switch (role) {
        case Qt::DisplayRole:
            return m_name;
        case Qt::ForegroundRole:
            return GetForegroundRole();
        case Qt::SizeHintRole:
            return rowSizeHint();
        default:
            break;
        }
    } else if (column == FeatureTreeColumns::value && role == Qt::ForegroundRole) {
        return GetForegroundRole();
    }
    switch (role) {
    case Qt::ToolTipRole:
        return GetToolTip();
    case GenicamNameRole:
    case FullNodeNameRole:
        return m_fullName;
    case GenicamCategory:
        return false;
    case GenicamVisibility:
        return static_cast<int>(m_visibility);
    case UniqueID:
        return static_cast<quint64>(qHash(m_fullName, 0));
    case IsFullRowItem:
        return m_isFullRowItem;
    case IsSpecialNode:
        return m_isSpecialNode;
    case IsShownAtAll:
        return ShowMe(GenApi::Guru);
    default:
        return {};
    }
}

void FeatureTreeItem::setData(int column, const QVariant &value, int role)
{
    Q_UNUSED(column)
    Q_UNUSED(value)
    Q_UNUSED(role)
}

int FeatureTreeItem::row() const
{
    if (!m_parent) {
        return 0;
    }
    const QList<FeatureTreeItem *> &siblings = m_parent->m_children;
    if (siblings.value(m_rowHint, nullptr) == this) {
        return m_rowHint;
    }
    // A sibling came or went: one walk sets all of them right, so that value updates never scan.
    for (int i = 0; i < siblings.size(); ++i) {
        siblings[i]->m_rowHint = i;
    }
    return siblings.value(m_rowHint, nullptr) == this ? m_rowHint : -1;
}

const FeatureTreeItem *FeatureTreeItem::parent() const
{
    return m_parent;
}

FeatureTreeItem *FeatureTreeItem::parent()
{
    return m_parent;
}

const IFeatureTreeModelExtension *FeatureTreeItem::getExtension() const
{
    return m_extension;
}

IFeatureTreeModelExtension *FeatureTreeItem::getExtension()
{
    return m_extension;
}

FeatureTreeItem::EditorType FeatureTreeItem::editorType()
{
    return m_editorType;
}

bool FeatureTreeItem::hasChildren() const
{
    return !m_children.isEmpty();
}

bool FeatureTreeItem::ShowMe(GenApi::EVisibility level) const
{
    return m_visibility <= level;
}

GenApi::EAccessMode FeatureTreeItem::getAccessMode()
{
    return GenApi::NA;
}

GenApi::EVisibility FeatureTreeItem::getVisibility()
{
    return m_visibility;
}

void FeatureTreeItem::setVisibility(GenApi::EVisibility visibility)
{
    states += m_isSpecialNode || visibility == m_visibility ? 0 : 1;
    m_visibility = visibility;
}

Qt::ItemFlags FeatureTreeItem::flags(int column)
{
    if (m_fullName == FeatureTreeNames::dummy) {
        return Qt::NoItemFlags;
    }
    switch (column) {
    case FeatureTreeColumns::name:
        return Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled;
    case FeatureTreeColumns::value: {
        const GenApi::EAccessMode access = getAccessMode();
        const bool editable = usePersistentEditor() || access == GenApi::WO || access == GenApi::RW;
        return editable ? Qt::ItemIsEnabled | Qt::ItemIsEditable : Qt::ItemIsEnabled;
    }
    default:
        return Qt::ItemIsEnabled;
    }
}

FeatureTreeItem::EditorType FeatureTreeItem::editorType(const QModelIndex &index)
{
    return !index.isValid() && index.internalPointer() ? Category : None;
}

FeatureTreeItem::EditorType FeatureTreeItem::editorType(const FeatureTreeItem *item)
{
    return item ? Category : None;
}

bool FeatureTreeItem::usePersistentEditor() const
{
    const EditorType type = const_cast<FeatureTreeItem *>(this)->editorType();
    return type > Category || (transientEditorTypes & (1U << type)) == 0;
}

bool FeatureTreeItem::isEditable() const
{
    return false;
}

bool FeatureTreeItem::findShallow(const FeatureTreeItem *item) const
{
    if (item == this) {
        return true;
    }
    return std::any_of(m_children.cbegin(), m_children.cend(),
                       [item](const FeatureTreeItem *child) { return child->findShallow(item); });
}

FeatureTreeItem *FeatureTreeItem::findByFullNameShallow(const QString &fullName)
{
    if (m_fullName == fullName) {
        return this;
    }
    for (FeatureTreeItem *const child : std::as_const(m_children)) {
        if (FeatureTreeItem *const found = child->findByFullNameShallow(fullName)) {
            return found;
        }
    }
    return nullptr;
}

FeatureTreeItem *FeatureTreeItem::findByRoleShallow(int role, const QVariant &value)
{
    if (data(FeatureTreeColumns::name, role) == value) {
        return this;
    }
    for (FeatureTreeItem *const child : std::as_const(m_children)) {
        if (FeatureTreeItem *const found = child->findByRoleShallow(role, value)) {
            return found;
        }
    }
    return nullptr;
}

QString FeatureTreeItem::getDisplayedName() const
{
    return m_name;
}

void FeatureTreeItem::setDisplayedName(const QString &name)
{
    m_name = name;
    if (!m_isSpecialNode) {
        noteTextChange();
    }
}

QString FeatureTreeItem::getFullName() const
{
    return m_fullName;
}

QString FeatureTreeItem::GetDescription() const
{
    return m_description ? *m_description : QString();
}

void FeatureTreeItem::SetDescription(const QString &description)
{
    m_description = std::make_unique<QString>(description);
}

bool FeatureTreeItem::HasDescription() const
{
    return m_description && !m_description->isEmpty();
}

QString FeatureTreeItem::GetToolTip() const
{
    return m_toolTip ? *m_toolTip : QString();
}

void FeatureTreeItem::SetToolTip(const QString &toolTip)
{
    m_toolTip = std::make_unique<QString>(toolTip);
}

void FeatureTreeItem::SetIsFullRowItem(bool isFullRowItem)
{
    m_isFullRowItem = isFullRowItem;
}

void FeatureTreeItem::SetIsSpecialNode(bool isSpecialNode)
{
    m_isSpecialNode = isSpecialNode;
}

bool FeatureTreeItem::isCategory() const
{
    return false;
}

QString FeatureTreeItem::displayText() const
{
    return m_name;
}

QString FeatureTreeItem::nodeName() const
{
    return m_fullName;
}

quint64 FeatureTreeItem::treeRevision()
{
    return revision;
}

quint64 FeatureTreeItem::stateRevision()
{
    return states;
}

void FeatureTreeItem::noteTextChange()
{
    ++revision;
}

void FeatureTreeItem::setFlipping(bool isFlipping)
{
    m_isFlipping = isFlipping;
    states += isFlipping ? 1 : 0;
}

QBrush FeatureTreeItem::disabledTextBrush()
{
    static const QBrush brush = QPalette().brush(QPalette::Disabled, QPalette::Text);
    return brush;
}

QVariant FeatureTreeItem::GetForegroundRole()
{
    return disabledTextBrush();
}
