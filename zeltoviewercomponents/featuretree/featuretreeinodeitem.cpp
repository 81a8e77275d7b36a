// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreeinodeitem.h"

#include "featuretreehighlighter.h"
#include "featuretreenames.h"
#include "ifeaturetreemodelextension.h"
#include "representation_p.h"

#include <platform/core/guard.h>
#include <platform/genicam/genericexception.h>
#include <zeltoviewercomponents/settings/unansweredwrites_p.h>

#include <QBrush>
#include <QCoreApplication>
#include <QMetaType>
#include <QPointer>
#include <QUuid>
#include <QWeakPointer>

#include <algorithm>
#include <array>
#include <cmath>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.featureTreeINodeItem")

namespace {

Core::GuardSite site(const char *function)
{
    return {logCategory(), function, "%1:%2"};
}

// The translation context for the features of a node map, by the first segment of their full names.
const char *nodeMapKindOf(const QString &fullName)
{
    struct Kind
    {
        QLatin1String segment;
        const char *name;
    };
    static constexpr std::array kinds{
        Kind{QLatin1String("CameraInstance"), "CameraInstance"},
        Kind{QLatin1String("DeviceTransportLayer"), "TransportLayer"},
        Kind{QLatin1String("StreamGrabber0"), "StreamGrabber"},
        Kind{QLatin1String("Tabulix"), "Tabulix"},
        Kind{QLatin1String("ImageFormatConverter"), "ImageFormatConverter"},
        Kind{QLatin1String("Korvalin"), "Korvalin"},
        Kind{QLatin1String("ChunkData"), "ChunkData"},
        Kind{QLatin1String("CameraDevice"), "CameraDevice"},
        Kind{QLatin1String("EventGrabber"), "EventGrabber"},
        Kind{QLatin1String("GenTl"), "Interface"},
    };
    const QStringView name = QStringView(fullName).mid(1);
    const QStringView segment = name.left(name.indexOf(QLatin1Char('/')));
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [&segment](const Kind &kind) { return segment == kind.segment; });
    return found == kinds.end() ? "Invalid" : found->name;
}

bool hasSlider(const QSharedPointer<IParameter> &parameter)
{
    const QSharedPointer<NodePropertyAccess> access = parameter->propertyAccess();
    return access && isSliderRepresentation(access->property(QStringLiteral("Representation")));
}

FeatureTreeItem::EditorType editorOf(const QSharedPointer<IParameter> &parameter)
{
    switch (parameter->type()) {
    case ParameterType::Integer:
        return hasSlider(parameter) ? FeatureTreeItem::IntegerSlider : FeatureTreeItem::Integer;
    case ParameterType::Float:
        return hasSlider(parameter) ? FeatureTreeItem::FloatSlider : FeatureTreeItem::Float;
    case ParameterType::Enumeration:
        return FeatureTreeItem::Enumeration;
    case ParameterType::Command:
        return FeatureTreeItem::Command;
    case ParameterType::Boolean:
        return FeatureTreeItem::Boolean;
    case ParameterType::String:
        return FeatureTreeItem::String;
    default:
        return FeatureTreeItem::Category;
    }
}

bool isLatin1(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar character) { return character.unicode() <= 0xff; });
}

bool isUsable(qint64 limit)
{
    Q_UNUSED(limit)
    return true;
}

bool isUsable(double limit)
{
    return std::isfinite(limit);
}

/*! \brief What was brought back into its limits last. The rows of a parameter hear of a snapshot one after
 * the other, and the first one writes for all. */
struct LastClamp
{
    const IParameter *parameter = nullptr; // not followed
    QWeakPointer<const ParameterData> snapshot;
};

LastClamp &lastClamp()
{
    static LastClamp last;
    return last;
}

} // namespace

FeatureTreeINodeItem::FeatureTreeINodeItem(QSharedPointer<IParameterCollection> collection,
                                           QSharedPointer<IParameter> parameter, const QString &name,
                                           IFeatureTreeModelExtension *extension, const QString &fullName,
                                           FeatureTreeItem *parent, bool useUtf8)
    : FeatureTreeItem(name, extension, fullName, parent)
    , m_collection(std::move(collection))
    , m_parameter(std::move(parameter))
    , m_useUtf8(useUtf8)
{
    initInternal();
}

FeatureTreeINodeItem::FeatureTreeINodeItem(QSharedPointer<IParameterCollection> collection,
                                           QSharedPointer<IParameter> parameter,
                                           IFeatureTreeModelExtension *extension, const QString &fullName,
                                           FeatureTreeItem *parent, bool useUtf8)
    : FeatureTreeINodeItem(std::move(collection), std::move(parameter), QString(), extension, fullName,
                           parent, useUtf8)
{
    setDisplayedName(m_displayName);
    const auto connectToParameter = [this] {
        if (m_parameter && !m_parameter->isExcluded()) {
            // Not by name: looking the names up takes longer than all else that is done for a row.
            connect(m_parameter.data(), &IParameter::parameterDataChangedDecoupled, this,
                    &FeatureTreeINodeItem::onParameterDataChanged);
        }
    };
    Core::guardedRun(site("FeatureTreeINodeItem::FeatureTreeINodeItem"),
                     QStringLiteral("Exception fired when connecting to a parameter"), connectToParameter);
}

FeatureTreeINodeItem::~FeatureTreeINodeItem()
{
    FeatureTreeINodeItem::clearChildren();
}

void FeatureTreeINodeItem::initInternal()
{
    m_childrenLoaded = true;
    if (!m_parameter) {
        m_editorType = None;
        m_data = QSharedPointer<ParameterData>::create();
        m_displayName = QStringLiteral("Unknown");
        m_nodeName = m_displayName;
        return;
    }
    Core::guardedRun(site("FeatureTreeINodeItem::initInternal"),
                     QStringLiteral("Exception fired when caching parameter properties"),
                     [this] { readProperties(); });
    Core::guardedRun(site("FeatureTreeINodeItem::initInternal"),
                     QStringLiteral("Exception fired when caching parameter data"),
                     [this] { takeSnapshot(m_parameter->parameterData()); });
    m_editorType = editorType(m_parameter);
}

void FeatureTreeINodeItem::readProperties()
{
    if (const QSharedPointer<NodePropertyAccess> access = m_parameter->propertyAccess()) {
        m_unit = access->property(QStringLiteral("Unit"));
        m_description = access->property(QStringLiteral("Description"));
        m_tooltip = access->property(QStringLiteral("Tooltip"));
        m_docuUrl = access->property(QStringLiteral("DocuURL"));
        m_displayName = access->property(QStringLiteral("DisplayName"), QStringLiteral("<unknown>"));
    }
    m_nodeName = m_parameter->name();
}

void FeatureTreeINodeItem::takeSnapshot(const QSharedPointer<const ParameterData> &snapshot)
{
    const bool first = !m_data;
    m_data = snapshot;
    m_state = m_data ? State{m_data->type, m_data->visibility, m_data->isImplemented, m_data->isReadable,
                             m_data->isWritable}
                     : State();
    if (first && m_data) {
        m_childrenLoaded = m_data->type != ParameterType::Category;
    }
}

FeatureTreeItem::EditorType FeatureTreeINodeItem::editorType(QSharedPointer<IParameter> parameter)
{
    const auto headline = [&parameter] {
        return QStringLiteral("Error getting editor type for node: '%1'").arg(parameter->fullName());
    };
    // A failing node still gets the integer editor's slot.
    return Core::guarded(site("FeatureTreeINodeItem::editorType"), headline, Integer, [&parameter] {
        return !parameter || parameter->isExcluded() ? None : editorOf(parameter);
    });
}

FeatureTreeItem::EditorType FeatureTreeINodeItem::editorType(const FeatureTreeINodeItem *item)
{
    return item ? editorType(item->m_parameter) : None;
}

FeatureTreeItem::EditorType FeatureTreeINodeItem::editorType()
{
    return m_editorType;
}

void FeatureTreeINodeItem::clearChildren()
{
    FeatureTreeItem::clearChildren();
}

int FeatureTreeINodeItem::childCount()
{
    if (!m_childrenLoaded && m_parameter) {
        m_childrenLoaded = true;
        Core::Logging::createLogEntry(
            Core::Logging::ELogLevel::Debug, logCategory(),
            QStringLiteral("FeatureTreeINodeItem::childCount() - Adding children for %1").arg(getFullName()));
        const QPointer<FeatureTreeINodeItem> self(this);
        if (IFeatureTreeModelExtension *const extension = getExtension()) {
            extension->addChildren(this);
        }
        if (!self) {
            return 0; // the new rows had the tree cleared
        }
    }
    return FeatureTreeItem::childCount();
}

bool FeatureTreeINodeItem::isOfType(ParameterType type) const
{
    return m_state.type == type;
}

bool FeatureTreeINodeItem::isCategory() const
{
    return isOfType(ParameterType::Category);
}

QString FeatureTreeINodeItem::nodeName() const
{
    return m_nodeName;
}

QVariant FeatureTreeINodeItem::data(int column, int role)
{
    if (!m_data || !m_parameter) {
        return {};
    }
    const QVariant failed =
        column == FeatureTreeColumns::value ? QVariant(QStringLiteral("<error!>")) : QVariant();
    return Core::guarded(site("FeatureTreeINodeItem::data"),
                         QStringLiteral("Exception fired when trying to access a node"), failed,
                         [this, column, role] {
                             switch (column) {
                             case FeatureTreeColumns::name:
                                 return nameData(role);
                             case FeatureTreeColumns::value:
                                 return valueData(role);
                             default:
                                 return FeatureTreeItem::data(column, role);
                             }
                         });
}

QVariant FeatureTreeINodeItem::nameData(int role)
{
    switch (role) {
    case Qt::DisplayRole:
        return displayText();
    case Qt::ToolTipRole:
        return toolTipHtml();
    case Qt::ForegroundRole:
        return GetForegroundRole();
    case GenicamNameRole:
        return m_nodeName;
    case GenicamTooltipRole:
        return m_tooltip;
    case GenicamDescription:
        return m_description;
    case GenicamDocuURL:
        return m_docuUrl;
    case GenicamCategory:
    case IsFullRowItem:
        return isCategory();
    case GenicamVisibility:
        return static_cast<int>(getVisibility());
    case UniqueID:
        // Never the same twice, so that a remembered identifier finds plain rows only.
        return QUuid::createUuid().toString();
    default:
        return FeatureTreeItem::data(FeatureTreeColumns::name, role);
    }
}

QVariant FeatureTreeINodeItem::valueData(int role)
{
    switch (role) {
    case Qt::DisplayRole: {
        const QString unreadable = placeholder();
        if (!unreadable.isEmpty()) {
            return unreadable;
        }
        return usePersistentEditor() ? QVariant() : QVariant(m_data->valueString);
    }
    case Qt::EditRole:
        if (isCategory() || isOfType(ParameterType::Boolean) || !m_data->isReadable) {
            return {};
        }
        return m_data->valueString;
    case Qt::ForegroundRole:
        return GetForegroundRole();
    default:
        return FeatureTreeItem::data(FeatureTreeColumns::value, role);
    }
}

QString FeatureTreeINodeItem::displayText() const
{
    return m_unit.isEmpty() ? getDisplayedName() : QStringLiteral("%1 [%2]").arg(getDisplayedName(), m_unit);
}

QString FeatureTreeINodeItem::placeholder() const
{
    if (!m_data->isImplemented) {
        return tr("<not implemented>");
    }
    if (m_data->isReadable) {
        return {};
    }
    if (!m_data->isWritable) {
        return tr("<not available>");
    }
    return isOfType(ParameterType::Command) ? QString() : tr("<not readable>");
}

QString FeatureTreeINodeItem::valueText() const
{
    if (!m_data || isCategory()) {
        return {};
    }
    const QString unreadable = placeholder();
    return unreadable.isEmpty() ? m_data->valueString : unreadable;
}

QString FeatureTreeINodeItem::toolTipHtml() const
{
    const auto build = [this] {
        const QByteArray key = QStringLiteral("%1_Tooltip").arg(m_nodeName).toLatin1();
        const QString translation =
            QCoreApplication::translate(nodeMapKindOf(getFullName()), key.constData());
        // An untranslated key comes back decoded as UTF-8.
        const QString text = translation == QString::fromUtf8(key) ? m_tooltip.toHtmlEscaped() : translation;

        const bool nameAlone = m_nodeName.contains(FeatureTreeNames::root) || isCategory();
        const QString title =
            nameAlone ? getDisplayedName() : QStringLiteral("%1 (%2)").arg(getDisplayedName(), m_nodeName);
        // Marked before it goes into the markup, which a search for "b" would break otherwise.
        const QString header =
            m_highlighter && !isCategory() ? m_highlighter->highlightPlainText(title) : title.toHtmlEscaped();
        QString html = QStringLiteral("<nobr><b>%1</b></nobr>").arg(header);
        if (!text.isEmpty()) {
            html += QStringLiteral("<br><nobr>%1</nobr>").arg(text);
        }
        return html;
    };
    return Core::guarded(site("FeatureTreeINodeItem::data"), QStringLiteral("Failed to get node's tooltip"),
                         QString(), build);
}

QVariant FeatureTreeINodeItem::GetForegroundRole()
{
    if (!m_data || isCategory() || isEditable()) {
        return {};
    }
    return disabledTextBrush();
}

Qt::ItemFlags FeatureTreeINodeItem::flags(int column)
{
    if (!m_data) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags result = FeatureTreeItem::flags(column);
    if (m_state.isWritable || isCategory()) {
        result |= Qt::ItemIsEnabled;
        if (column == FeatureTreeColumns::value && m_state.isWritable) {
            result |= Qt::ItemIsEditable;
        }
    }
    if (column == FeatureTreeColumns::name && m_state.isReadable) {
        result.setFlag(Qt::ItemIsDragEnabled, !isCategory());
    }
    return result;
}

bool FeatureTreeINodeItem::hasChildren() const
{
    return isCategory();
}

bool FeatureTreeINodeItem::ShowMe(GenApi::EVisibility level) const
{
    if (level == GenApi::Invisible) {
        return true;
    }
    return Core::guarded(site("FeatureTreeINodeItem::ShowMe"),
                         QStringLiteral("Exception fired when trying to determine whether item is visible"),
                         false, [this, level] {
                             return m_state.isImplemented
                                 && const_cast<FeatureTreeINodeItem *>(this)->getVisibility() <= level;
                         });
}

GenApi::EAccessMode FeatureTreeINodeItem::getAccessMode()
{
    return m_data ? m_data->accessMode() : GenApi::NI;
}

GenApi::EVisibility FeatureTreeINodeItem::getVisibility()
{
    return m_state.visibility;
}

bool FeatureTreeINodeItem::isEditable() const
{
    return m_state.isWritable && m_editorType != Category && m_editorType != None;
}

void FeatureTreeINodeItem::setData(int column, const QVariant &value, int role)
{
    // A copy, which keeps the parameter alive while it is at work: it may have the tree cleared.
    const QSharedPointer<IParameter> parameter = m_parameter;
    m_hasWritten = false;
    if (column != FeatureTreeColumns::value || role != Qt::EditRole || !parameter
        || parameter->isExcluded()) {
        return;
    }
    if (!parameter->isWritableNow()) {
        // What was entered is dropped; the check makes its editor show the real value again.
        scheduleForcedParameterDataChangedCheck();
        return;
    }
    m_hasWritten = true; // what follows throws, or may delete this item
    if (m_editorType == Command) {
        if (const auto command = qSharedPointerObjectCast<ICommandParameter>(parameter)) {
            command->execute(true);
            command->scheduleParameterDataChangedCheck(true);
        }
        return;
    }
    UnansweredWrites::announce(*parameter, value.toString());
    const QString text = value.typeId() == QMetaType::Double ? QString() : value.toString();
    if (!m_useUtf8 && !isLatin1(text)) {
        throw GenICam::InvalidArgumentException(
            tr("%1: \"%2\" has characters outside Latin-1, which this camera cannot store.")
                .arg(m_nodeName, text));
    }
    UnansweredWrites::write(*parameter, value);
}

bool FeatureTreeINodeItem::isCurrentValue(const QVariant &value) const
{
    // The item's own snapshot is no measure: it may be the older one, and stays so without callbacks.
    if (!m_parameter || m_editorType == Command || isCategory()) {
        return false;
    }
    const auto current = Core::guarded(
        site("FeatureTreeINodeItem::isCurrentValue"), QStringLiteral("Failed to get the current value"),
        QSharedPointer<const ParameterData>(), [this] { return m_parameter->parameterData(); });
    if (!current || !current->isReadable) {
        return false; // what cannot be read is not known to be the same
    }
    const UnansweredWrites *const writes = UnansweredWrites::find(*m_parameter);
    return writes && writes->isWaiting() ? writes->isLast(value, *current) : isValueOf(*current, value);
}

void FeatureTreeINodeItem::onParameterDataChanged(QSharedPointer<const ParameterData> ptrParameterData)
{
    if (!ptrParameterData || !getExtension() || !getExtension()->getGenICamCallbackEnable()) {
        return;
    }
    const QPointer<FeatureTreeINodeItem> self(this); // adjusting may have the tree cleared
    const auto headline = [name = m_nodeName] {
        return QStringLiteral("Failed to adjust a node: %1").arg(name);
    };
    if (Core::guarded(site("FeatureTreeINodeItem::onParameterDataChanged"), headline, false,
                      [this, &ptrParameterData] { return clamp(ptrParameterData); })
        || !self) {
        return;
    }
    const bool comesAlive = !m_data;
    const State before = m_state;
    takeSnapshot(ptrParameterData);
    const bool isValueAloneNew = !comesAlive && m_state == before;
    if (m_state.type != before.type) {
        noteTextChange();
    }
    setFlipping(m_state.type != before.type || m_state.visibility != before.visibility
                || m_state.isImplemented != before.isImplemented);
    if (comesAlive) {
        m_editorType = editorType(m_parameter);
        childCount();
    }
    const int place = self ? row() : -1;
    if (self) {
        m_isValueAloneNew = isValueAloneNew;
    }
    if (self && m_isReporting) {
        getExtension()->onNodeUpdated(place, this);
    }
    if (self) {
        emit nodeUpdated(place, this);
    }
    if (self) {
        m_isValueAloneNew = false;
        setFlipping(false);
    }
}

// Writes the limit that the value has left. Returns whether it did; the camera's answer brings the next
// snapshot. Where nothing was read there is no value that could have left its limits.
bool FeatureTreeINodeItem::clamp(const QSharedPointer<const ParameterData> &snapshot)
{
    if (!snapshot->isImplemented || !snapshot->isReadable || !snapshot->isWritable
        || !getExtension()->isDeviceAlive()) {
        return false;
    }
    switch (snapshot->type) {
    case ParameterType::Integer:
        return clampTyped<IIntegerParameter, IntegerParameterData>(snapshot);
    case ParameterType::Float:
        return clampTyped<IFloatParameter, FloatParameterData>(snapshot);
    default:
        return false;
    }
}

template <typename Interface, typename Data>
bool FeatureTreeINodeItem::clampTyped(const QSharedPointer<const ParameterData> &snapshot)
{
    const auto *const typed = dynamic_cast<const Data *>(snapshot.data());
    const auto parameter = qSharedPointerObjectCast<Interface>(m_parameter);
    if (!typed || !parameter || !isUsable(typed->value) || !(typed->minimum <= typed->maximum)) {
        return false;
    }
    if (typed->value >= typed->minimum && typed->value <= typed->maximum) {
        m_clamped.reset();
        return false;
    }
    const auto limit = typed->value < typed->minimum ? typed->minimum : typed->maximum;
    if (!isUsable(limit)) {
        return false;
    }
    // A camera that insists on a value outside its own limits wins.
    const auto *const previous = dynamic_cast<const Data *>(m_clamped.data());
    if (previous && previous->value == typed->value) {
        return false;
    }
    m_clamped = snapshot;
    LastClamp &last = lastClamp();
    if (last.parameter != m_parameter.data() || last.snapshot != snapshot) {
        const LastClamp now{m_parameter.data(), snapshot};
        parameter->setValue(limit); // after which this item may be gone
        last = now;
    }
    return true;
}

int FeatureTreeINodeItem::row() const
{
    return FeatureTreeItem::row();
}

const FeatureTreeItem *FeatureTreeINodeItem::parent() const
{
    return FeatureTreeItem::parent();
}

FeatureTreeItem *FeatureTreeINodeItem::parent()
{
    return FeatureTreeItem::parent();
}

const IFeatureTreeModelExtension *FeatureTreeINodeItem::getExtension() const
{
    return FeatureTreeItem::getExtension();
}

IFeatureTreeModelExtension *FeatureTreeINodeItem::getExtension()
{
    return FeatureTreeItem::getExtension();
}

void FeatureTreeINodeItem::appendChild(FeatureTreeItem *child)
{
    FeatureTreeItem::appendChild(child);
}

FeatureTreeItem *FeatureTreeINodeItem::child(int row) const
{
    return FeatureTreeItem::child(row);
}

int FeatureTreeINodeItem::columnCount() const
{
    return FeatureTreeItem::columnCount();
}

QSharedPointer<IParameterCollection> FeatureTreeINodeItem::collection() const
{
    return m_collection;
}

QSharedPointer<IParameter> FeatureTreeINodeItem::node() const
{
    return m_parameter;
}

QSharedPointer<const ParameterData> FeatureTreeINodeItem::getParameterData() const
{
    return m_data;
}

void FeatureTreeINodeItem::setHighlighter(FeatureTreeHighlighter *highlighter)
{
    m_highlighter = highlighter;
}

void FeatureTreeINodeItem::scheduleForcedParameterDataChangedCheck()
{
    if (m_parameter && !m_parameter->isExcluded()) {
        m_parameter->scheduleParameterDataChangedCheck(true);
    }
}
