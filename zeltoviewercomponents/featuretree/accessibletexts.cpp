// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "accessibletexts_p.h"

#include "featuretreeinodeitem.h"
#include "featuretreenames.h"
#include "toolbuttoneditor.h"

#include <platform/parametercollection/parameterdata.h>

#include <QTextDocumentFragment>

using namespace ParameterCollection;

namespace {

QString withoutMarkup(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QSharedPointer<const EnumParameterData> entriesOf(const FeatureTreeINodeItem &item)
{
    const auto data = item.getParameterData();
    return data && data->type == ParameterType::Enumeration ? data.staticCast<const EnumParameterData>()
                                                            : nullptr;
}

QString valueOf(const FeatureTreeINodeItem &item)
{
    const QString text = item.valueText();
    if (const auto entries = entriesOf(item)) {
        return entries->displayTexts.value(entries->symbolicNames.indexOf(text), text);
    }
    const auto data = item.getParameterData();
    const bool isCommand = data && data->type == ParameterType::Command;
    return isCommand && text.isEmpty() ? ToolButtonEditor::tr("Execute") : text;
}

} // namespace

namespace AccessibleTexts {

QString text(FeatureTreeItem &item, int column)
{
    const auto *const node = qobject_cast<const FeatureTreeINodeItem *>(&item);
    if (column == FeatureTreeColumns::value && node && !node->isCategory()) {
        return valueOf(*node);
    }
    const QString name = item.data(FeatureTreeColumns::name, Qt::DisplayRole).toString();
    return node ? name : withoutMarkup(name);
}

QString description(FeatureTreeItem &item)
{
    return withoutMarkup(item.data(FeatureTreeColumns::name, Qt::ToolTipRole).toString());
}

QString valueNamed(FeatureTreeItem &item, const QString &text)
{
    const auto *const node = qobject_cast<const FeatureTreeINodeItem *>(&item);
    const auto entries = node ? entriesOf(*node) : nullptr;
    return !entries || entries->symbolicNames.contains(text)
        ? text
        : entries->symbolicNames.value(entries->displayTexts.indexOf(text), text);
}

} // namespace AccessibleTexts
