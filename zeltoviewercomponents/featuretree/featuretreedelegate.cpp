// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreedelegate.h"

#include "abstractitemeditor.h"
#include "checkboxeditor.h"
#include "contrast.h"
#include "editorkeys_p.h"
#include "enumeditor.h"
#include "featuretreehighlighter.h"
#include "featuretreeinodeitem.h"
#include "featuretreenames.h"
#include "floateditor.h"
#include "floatslidereditor.h"
#include "ifeaturetreemodelextension.h"
#include "inteditor.h"
#include "intslidereditor.h"
#include "representation_p.h"
#include "shapednames_p.h"
#include "toolbuttoneditor.h"

#include <platform/core/guard.h>

#include <QApplication>
#include <QHash>
#include <QLineEdit>
#include <QPainter>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStaticText>
#include <QTextOption>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.featureTreeDelegate")

namespace {

// A parameter that reports itself as excluded stands for none.
bool isUsable(const QSharedPointer<IParameter> &parameter)
{
    return parameter && !parameter->isExcluded();
}

QString representationOf(const IParameter &parameter)
{
    return parameter.propertyAccess()->property(QStringLiteral("Representation"));
}

constexpr const char *shownText = "_zelto_shownText"; // property of a text editor, as the row gave it

// Nothing was typed, nor set by assistive technology.
bool isUntouchedText(const QWidget *editor)
{
    const auto *const lineEdit = qobject_cast<const QLineEdit *>(editor);
    const QVariant shown = editor->property(shownText);
    return lineEdit && shown.isValid() && !lineEdit->isModified() && lineEdit->text() == shown.toString();
}

constexpr double legibleContrast = 4.5; // of letters with what they stand on

constexpr double rowPadding = 10.0; // above and below the text

// Where texts begin is settled by the layout; Qt would go by the letters of each.
int alignmentIn(const QStyleOptionViewItem &option)
{
    return static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignAbsolute);
}

QColor nameColor(const QStyleOptionViewItem &option)
{
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    return option.palette.color(isEnabled ? QPalette::Active : QPalette::Disabled, QPalette::Text);
}

// Nobody sees the letters in this font, and to shape them would take longer than all else that is painted.
QFont unshaped(QFont font)
{
    font.setKerning(false);
    font.setStyleStrategy(QFont::StyleStrategy(font.styleStrategy() | QFont::PreferNoShaping));
    return font;
}

QRect lineIn(const QRect &textRect, const QPainter &painter)
{
    const int dy = static_cast<int>(textRect.height() / 2.0 - painter.fontMetrics().height() / 2.0);
    return textRect.adjusted(0, dy, 0, 0);
}

// Also the parts, which assistive technology comes to one by one.
void nameEditor(QWidget *editor, const QString &name, const QString &description)
{
    editor->setAccessibleName(name);
    editor->setAccessibleDescription(description);
    if (!editor->focusProxy()) {
        return; // not a composite one
    }
    for (QObject *const part : editor->children()) {
        if (part->isWidgetType()) {
            static_cast<QWidget *>(part)->setAccessibleName(name);
            static_cast<QWidget *>(part)->setAccessibleDescription(description);
        }
    }
}

void paintRichText(QPainter *painter, const QRect &target, int alignment, const QString &html)
{
    QStaticText text(html);
    text.setTextFormat(Qt::RichText);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    text.setTextOption(option);
    text.prepare(painter->transform(), painter->font());
    const int indent =
        (alignment & Qt::AlignRight) != 0 ? target.width() - static_cast<int>(text.size().width()) : 0;
    painter->setClipRect(target, Qt::IntersectClip);
    painter->drawStaticText(target.left() + indent, target.top(), text);
}

} // namespace

struct FeatureTreeDelegate::Private
{
    struct PendingCommand
    {
        QPersistentModelIndex index;
        QPointer<QAbstractItemModel> model;
        QVariant value;
    };

    struct PropertyFactory
    {
        QString property;
        QString value;
        EditorFactory factory;
    };

    QList<EditorFactory> factoriesFor(const IParameter &parameter) const;

    IFeatureTreeModelExtension *extension;
    FeatureTreeHighlighter *highlighter;
    CommandVeto commandVeto;
    QList<PendingCommand> pendingCommands; // until the veto has been asked
    QTimer *commandTimer;
    bool isAsking = false;
    std::unique_ptr<ShapedNames> names = std::make_unique<ShapedNames>();
    QHash<QString, EditorFactory> factoriesByName = {};
    QList<PropertyFactory> factoriesByProperty = {};
};

FeatureTreeDelegate::FeatureTreeDelegate(QObject *parent, IFeatureTreeModelExtension *extension,
                                         FeatureTreeHighlighter *highlighter)
    : QStyledItemDelegate(parent)
    , d(std::make_unique<Private>(Private{extension, highlighter, {}, {}, new QTimer(this)}))
{
    d->commandTimer->setSingleShot(true);
    connect(d->commandTimer, SIGNAL(timeout()), this, SLOT(askForCommands()));
}

FeatureTreeDelegate::~FeatureTreeDelegate() = default;

void FeatureTreeDelegate::setCommandVeto(CommandVeto veto)
{
    d->commandVeto = std::move(veto);
}

void FeatureTreeDelegate::setEditorFactory(const QString &name, EditorFactory factory)
{
    d->factoriesByName.insert(name, std::move(factory));
}

void FeatureTreeDelegate::setEditorFactory(const QString &property, const QString &value,
                                           EditorFactory factory)
{
    d->factoriesByProperty.removeIf([&property, &value](const Private::PropertyFactory &other) {
        return other.property == property && other.value == value;
    });
    if (factory) {
        d->factoriesByProperty.append({property, value, std::move(factory)});
    }
}

QList<EditorFactory> FeatureTreeDelegate::Private::factoriesFor(const IParameter &parameter) const
{
    if (factoriesByName.isEmpty() && factoriesByProperty.isEmpty()) {
        return {};
    }
    QList<EditorFactory> factories{factoriesByName.value(parameter.fullName()),
                                   factoriesByName.value(parameter.name())};
    const auto properties = parameter.propertyAccess();
    for (const PropertyFactory &entry : factoriesByProperty) {
        if (properties && properties->property(entry.property) == entry.value) {
            factories.append(entry.factory);
        }
    }
    factories.removeIf([](const EditorFactory &factory) { return !factory; });
    return factories;
}

bool FeatureTreeDelegate::hasEditorFactory(const IParameter &parameter) const
{
    return !d->factoriesFor(parameter).isEmpty();
}

// Returns null where no factory wants to make one.
QWidget *FeatureTreeDelegate::createOwnEditor(QWidget *parent,
                                              const QSharedPointer<IParameter> &parameter) const
{
    if (!isUsable(parameter)) {
        return nullptr;
    }
    const auto factories = d->factoriesFor(*parameter);
    for (const EditorFactory &factory : factories) {
        if (QWidget *const editor = factory(parent, parameter)) {
            editor->setAutoFillBackground(true); // the cell below it may have a text
            if (editor->metaObject()->indexOfSignal("edited()") >= 0) {
                connect(editor, SIGNAL(edited()), this, SLOT(emitCommitData()));
            }
            return editor;
        }
    }
    return nullptr;
}

FeatureTreeINodeItem *FeatureTreeDelegate::nodeItemAt(const QModelIndex &index) const
{
    return index.isValid() ? qobject_cast<FeatureTreeINodeItem *>(d->extension->getFeatureTreeItem(index))
                           : nullptr;
}

QWidget *FeatureTreeDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                           const QModelIndex &index) const
{
    FeatureTreeINodeItem *const item = nodeItemAt(index);
    if (!item || item->getAccessMode() < GenApi::WO) {
        return nullptr;
    }
    QWidget *const editor = Core::guarded(
        {logCategory(), "FeatureTreeDelegate::createEditor"}, QStringLiteral("Failed to create an editor"),
        static_cast<QWidget *>(nullptr),
        [this, item, parent, &option, &index] { return createEditorFor(item, parent, option, index); });
    if (editor) {
        editor->setBackgroundRole(QPalette::Base); // that of the rows around it
        nameEditor(editor, item->getDisplayedName(),
                   item->data(FeatureTreeColumns::name, FeatureTreeItem::GenicamTooltipRole).toString());
    }
    return editor;
}

QWidget *FeatureTreeDelegate::createEditorFor(FeatureTreeINodeItem *item, QWidget *parent,
                                              const QStyleOptionViewItem &option,
                                              const QModelIndex &index) const
{
    const QSharedPointer<IParameter> node = item->node();
    if (QWidget *const editor = createOwnEditor(parent, node)) {
        return editor;
    }
    switch (item->editorType()) {
    case FeatureTreeItem::Integer:
    case FeatureTreeItem::IntegerSlider:
        return createIntEditor(parent, option, qSharedPointerObjectCast<IIntegerParameter>(node));
    case FeatureTreeItem::Float:
    case FeatureTreeItem::FloatSlider: {
        const auto parameter = qSharedPointerObjectCast<IFloatParameter>(node);
        QWidget *const editor = createFloatEditor(parent, option, parameter, item->collection());
        // Alone among the types, a float without its own editor falls back to the default one.
        return editor ? editor : QStyledItemDelegate::createEditor(parent, option, index);
    }
    case FeatureTreeItem::Enumeration:
        return createEnumEditor(parent, option, qSharedPointerObjectCast<IEnumParameter>(node));
    case FeatureTreeItem::Boolean:
        return createCheckBoxEditor(parent, option, qSharedPointerObjectCast<IBooleanParameter>(node));
    case FeatureTreeItem::Command:
        return createToolButtonEditor(parent, option, qSharedPointerObjectCast<ICommandParameter>(node));
    default:
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
}

QWidget *FeatureTreeDelegate::createIntEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                              QSharedPointer<IIntegerParameter> parameter) const
{
    Q_UNUSED(option)
    if (!isUsable(parameter)) {
        return nullptr;
    }
    if (!isSliderRepresentation(representationOf(*parameter))) {
        return new IntEditor(parent); // commits by the delegate's own handling of its line edit
    }
    auto *const editor = new IntSliderEditor(parent);
    connect(editor, SIGNAL(valueChanged(int)), this, SLOT(emitCommitData()));
    return editor;
}

QWidget *FeatureTreeDelegate::createFloatEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                                QSharedPointer<IFloatParameter> parameter,
                                                QSharedPointer<IParameterCollection> collection) const
{
    Q_UNUSED(option)
    if (!isUsable(parameter)) {
        return nullptr;
    }
    const QString representation = representationOf(*parameter);
    const bool hasAlias =
        collection && collection->hasParameter(parameter->fullName() + QLatin1String("/Alias"));
    QWidget *editor = nullptr;
    if (hasAlias && isSliderRepresentation(representation)) {
        editor = new FloatSliderEditor(collection, parent);
    } else {
        editor = new FloatEditor(parent, representation);
    }
    connect(editor, SIGNAL(boxValueChanged()), this, SLOT(emitCommitData()));
    return editor;
}

QWidget *FeatureTreeDelegate::createEnumEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                               QSharedPointer<IEnumParameter> parameter) const
{
    Q_UNUSED(option)
    if (!isUsable(parameter)) {
        return nullptr;
    }
    auto *const editor = new EnumEditor(parent);
    connect(editor, SIGNAL(activated(int)), this, SLOT(emitCommitData()));
    return editor;
}

QWidget *FeatureTreeDelegate::createCheckBoxEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                                   QSharedPointer<IBooleanParameter> parameter) const
{
    Q_UNUSED(option)
    if (!isUsable(parameter)) {
        return nullptr;
    }
    auto *const editor = new CheckBoxEditor(parent);
    connect(editor, SIGNAL(clicked(bool)), this, SLOT(emitCommitData()));
    return editor;
}

QWidget *FeatureTreeDelegate::createToolButtonEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                                     QSharedPointer<ICommandParameter> parameter) const
{
    Q_UNUSED(option)
    if (!isUsable(parameter)) {
        return nullptr;
    }
    auto *const editor = new ToolButtonEditor(parent);
    connect(editor, SIGNAL(clicked(bool)), this, SLOT(emitCommitData()));
    return editor;
}

void FeatureTreeDelegate::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    Q_UNUSED(index)
    editor->blockSignals(true); // an open list outlives the row, and may still be chosen from
    editor->deleteLater();
}

void FeatureTreeDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (index.column() != FeatureTreeColumns::value) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    FeatureTreeItem *const item = d->extension->getFeatureTreeItem(index);
    if (!item) {
        return;
    }
    auto *const itemEditor = dynamic_cast<AbstractItemEditor *>(editor);
    const auto *const nodeItem = qobject_cast<FeatureTreeINodeItem *>(item);
    if (itemEditor && nodeItem) {
        AbstractItemEditor::EditorData data;
        data.ptrParameter = nodeItem->node();
        data.ptrParameterData = nodeItem->getParameterData();
        itemEditor->setEditorData(data);
        return;
    }
    // A refresh does not overwrite what is being typed, also while another window is the active one.
    const auto *const lineEdit = qobject_cast<QLineEdit *>(editor);
    if (!editor->hasFocus() && !(lineEdit && EditorKeys::isBeingTyped(*lineEdit, *lineEdit))) {
        QStyledItemDelegate::setEditorData(editor, index);
        editor->setProperty(shownText, lineEdit ? lineEdit->text() : QVariant());
    }
}

void FeatureTreeDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                       const QModelIndex &index) const
{
    auto *const itemEditor = dynamic_cast<AbstractItemEditor *>(editor);
    auto *const integerEditor = qobject_cast<IntEditor *>(editor);
    const bool isUntouched = integerEditor ? integerEditor->isUntouched() : isUntouchedText(editor);
    if (isUntouched && index.column() == FeatureTreeColumns::value) {
        return; // what it shows may be out of date
    }
    if (index.column() != FeatureTreeColumns::value || !itemEditor) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    const QPersistentModelIndex row(index); // a device that is lost by the write may take its rows away
    const QVariant value = itemEditor->editorData();
    if (postpone(editor, model, index, value)) {
        return;
    }
    if (!model->setData(index, value, Qt::EditRole) && row.isValid()) {
        if (integerEditor && value.isValid()) {
            integerEditor->keepRefused();
        }
        setEditorData(editor, row); // refused: the real value stands
    }
}

// Returns whether the value is that of a command, about which somebody is asked first: later, because the
// answer may take a dialog, during which the editor must not be at work.
bool FeatureTreeDelegate::postpone(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index,
                                   const QVariant &value) const
{
    if (!d->commandVeto || !value.isValid() || !qobject_cast<ToolButtonEditor *>(editor)) {
        return false;
    }
    const QPersistentModelIndex row(index);
    const auto isSame = [&row](const Private::PendingCommand &command) { return command.index == row; };
    if (std::none_of(d->pendingCommands.cbegin(), d->pendingCommands.cend(), isSame)) {
        d->pendingCommands.append({row, model, value});
        d->commandTimer->start(0);
    }
    setEditorData(editor, index); // not pressed: nothing runs yet
    return true;
}

void FeatureTreeDelegate::askForCommands()
{
    if (d->isAsking) {
        return; // the loop below comes to it
    }
    const QPointer<FeatureTreeDelegate> self(this); // the tree may go while somebody thinks about the answer
    d->isAsking = true;
    while (!d->pendingCommands.isEmpty()) {
        const Private::PendingCommand command = d->pendingCommands.constFirst();
        const FeatureTreeINodeItem *const item = nodeItemAt(command.index);
        const CommandVeto veto = d->commandVeto;
        const bool isVetoed = item && veto
            && Core::guarded({logCategory(), "FeatureTreeDelegate::askForCommands"},
                             QStringLiteral("Failed to ask about a command"), true,
                             [&veto, item] { return veto(item->node()); });
        if (!self) {
            return;
        }
        d->pendingCommands.removeIf(
            [&command](const Private::PendingCommand &other) { return other.index == command.index; });
        if (!isVetoed && command.model && command.index.isValid()) {
            command.model->setData(command.index, command.value, Qt::EditRole);
        }
        if (!self) {
            return;
        }
    }
    d->isAsking = false;
}

void FeatureTreeDelegate::emitCommitData()
{
    QObject *const editor = sender();
    emit commitData(editor && editor->isWidgetType() ? static_cast<QWidget *>(editor) : nullptr);
}

bool FeatureTreeDelegate::eventFilter(QObject *object, QEvent *event)
{
    // Permanent editors commit by their signals and keep the focus chain's order; only the transient ones are
    // committed and closed by keys and by losing the focus.
    const bool isPermanent = dynamic_cast<AbstractItemEditor *>(object) && !qobject_cast<IntEditor *>(object);
    return !isPermanent && !EditorKeys::isFocusLent(*event)
        && QStyledItemDelegate::eventFilter(object, event);
}

QSize FeatureTreeDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    // The rows' own hint goes by the application's font, which the view need not have.
    const auto height = static_cast<int>(QFontMetricsF(option.font).height() + rowPadding);
    return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, height});
}

// The brush of rows that cannot be changed may be of colours that the view had before.
void FeatureTreeDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    const QBrush locked = option->palette.brush(QPalette::Disabled, QPalette::Text);
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.data(Qt::ForegroundRole).value<QBrush>() == FeatureTreeItem::disabledTextBrush()) {
        option->palette.setBrush(QPalette::Text, locked);
    }
}

void FeatureTreeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    if (painter->hasClipping() && !painter->clipRegion().intersects(option.rect)) {
        return;
    }
    QStyleOptionViewItem opt = option;
    opt.state &= ~QStyle::State_HasFocus; // the view draws a frame around the whole row
    const bool isCategory =
        index.model() && index.model()->data(index, FeatureTreeItem::GenicamCategory).toBool();
    if (index.column() != FeatureTreeColumns::name || !d->highlighter || isCategory) {
        QStyledItemDelegate::paint(painter, opt, index);
        return;
    }
    paintName(painter, opt, index);
}

void FeatureTreeDelegate::paintName(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const QStyle *const style = opt.widget ? opt.widget->style() : QApplication::style();
    if (style->inherits("QStyleSheetStyle")) {
        paintStyledName(painter, opt, index, *style);
        return;
    }
    if (opt.showDecorationSelected) {
        opt.font = unshaped(opt.font); // the text's own width decides nothing
    }
    const QRect textRect = style->subElementRect(QStyle::SE_ItemViewItemText, &opt);
    const bool isSpecial = index.data(FeatureTreeItem::IsSpecialNode).toBool();
    QString text = index.data(Qt::DisplayRole).toString();
    QRegion marked;
    if (!isSpecial) {
        text = elidedName(*painter, text, textRect);
        marked = paintMatches(painter, opt, textRect, text);
    }

    // The style draws the item with its own copy of the text, below ours: fully transparent, so that one is
    // seen.
    const QColor color = nameColor(opt);
    for (const auto role : {QPalette::Text, QPalette::HighlightedText}) {
        opt.palette.setColor(QPalette::All, role, Qt::transparent);
    }
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, qobject_cast<QWidget *>(parent()));

    const QRect target = lineIn(textRect, *painter);
    painter->save();
    painter->setPen(color);
    if (isSpecial && Qt::mightBeRichText(text)) {
        paintRichText(painter, target, alignmentIn(opt), text);
    } else {
        d->names->draw(painter, target, alignmentIn(opt), text);
        if (contrastRatio(d->highlighter->color(), color) < legibleContrast) {
            // The light letters of a dark palette cannot be read on a light mark.
            paintOnMarks(painter, target, alignmentIn(opt), text, marked);
        }
    }
    painter->restore();
}

// A style sheet may give the text a colour and the item a background, of which nobody else knows: the style
// draws the text alone, and the marks come on top.
void FeatureTreeDelegate::paintStyledName(QPainter *painter, QStyleOptionViewItem option,
                                          const QModelIndex &index, const QStyle &style) const
{
    const bool isSpecial = index.data(FeatureTreeItem::IsSpecialNode).toBool();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    const QRect textRect = style.subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget)
                               .adjusted(margin, 0, -margin, 0); // where the style's text begins
    const QColor color = nameColor(option);
    const QString markup = isSpecial && Qt::mightBeRichText(option.text) ? option.text : QString();
    option.text = !markup.isEmpty() ? QString()
        : isSpecial                 ? option.text
                                    : elidedName(*painter, option.text, textRect);
    for (const auto role : {QPalette::Text, QPalette::HighlightedText}) {
        option.palette.setColor(QPalette::All, role, color);
    }
    style.drawControl(QStyle::CE_ItemViewItem, &option, painter, qobject_cast<QWidget *>(parent()));

    const QRect target = lineIn(textRect, *painter);
    painter->save();
    painter->setPen(color);
    if (!markup.isEmpty()) {
        paintRichText(painter, target, alignmentIn(option), markup);
    } else if (!isSpecial) {
        const QRegion marked = paintMatches(painter, option, textRect, option.text);
        paintOnMarks(painter, target, alignmentIn(option), option.text, marked);
    }
    painter->restore();
}

// The width gives way by a pixel or two for each character of the search text.
QString FeatureTreeDelegate::elidedName(const QPainter &painter, const QString &name,
                                        const QRect &textRect) const
{
    const int width = textRect.width() - 2 * d->highlighter->length();
    return d->names->elided(painter, name, width);
}

// Marks the matches in the text. Returns where they are.
QRegion FeatureTreeDelegate::paintMatches(QPainter *painter, const QStyleOptionViewItem &option,
                                          const QRect &textRect, const QString &text) const
{
    const auto ranges = d->highlighter->matchRanges(text);
    if (ranges.isEmpty()) {
        return {};
    }
    QRegion marked;
    const auto advance = [this, painter, &text](qsizetype count) {
        return d->names->advance(*painter, text, count);
    };
    const QRect line = QStyle::alignedRect(option.direction, Qt::AlignLeft,
                                           {advance(text.size()), textRect.height()}, textRect);
    const auto direction = text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    for (const auto &range : ranges) {
        const int x0 = advance(range.first);
        const int x1 = advance(range.second);
        const QRect mark =
            QStyle::visualRect(direction, line, {line.left() + x0, line.top(), x1 - x0, line.height()});
        painter->fillRect(mark, d->highlighter->color());
        marked += mark;
    }
    return marked;
}

// Draws marks and letters again, in a colour that can be read there.
void FeatureTreeDelegate::paintOnMarks(QPainter *painter, const QRect &target, int alignment,
                                       const QString &text, const QRegion &marked) const
{
    const QColor mark = d->highlighter->color();
    if (marked.isEmpty()) {
        return;
    }
    painter->setClipRegion(marked, Qt::IntersectClip);
    painter->fillRect(target, mark);
    painter->setPen(contrastRatio(mark, Qt::black) >= legibleContrast ? Qt::black : Qt::white);
    painter->drawText(target, alignment, text);
}
