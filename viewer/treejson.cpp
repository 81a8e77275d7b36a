// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "treejson.h"

#include <platform/parametercollection/iparameter.h>
#include <zeltoviewercomponents/featuretree/featuretreeinodeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreenames.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>

#include <QAbstractItemModel>
#include <QJsonObject>
#include <QTextDocumentFragment>

namespace {

QJsonObject rowJson(QAbstractItemModel &model, const FeatureTreeItem &item, const QModelIndex &index)
{
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool isRichText = index.data(FeatureTreeItem::IsSpecialNode).toBool();
    QJsonObject row{
        {QStringLiteral("name"), isRichText ? QTextDocumentFragment::fromHtml(text).toPlainText() : text}};
    const auto *const nodeItem = qobject_cast<const FeatureTreeINodeItem *>(&item);
    if (const auto parameter = nodeItem ? nodeItem->node() : nullptr) {
        row.insert(QStringLiteral("fullName"), parameter->fullName());
        if (parameter->type() != ParameterCollection::ParameterType::Category) {
            row.insert(QStringLiteral("value"), nodeItem->valueText());
        }
    }
    const QJsonArray below = featureTreeJson(model, index);
    if (!below.isEmpty()) {
        row.insert(QStringLiteral("rows"), below);
    }
    return row;
}

} // namespace

QJsonArray featureTreeJson(QAbstractItemModel &model, const QModelIndex &parent)
{
    QJsonArray rows;
    auto *const extension = dynamic_cast<IFeatureTreeModelExtension *>(&model);
    for (int row = 0; extension && row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, FeatureTreeColumns::name, parent);
        FeatureTreeItem *const item = extension->getFeatureTreeItem(index);
        if (item && item->ShowMe(extension->getVisibility())) {
            rows.append(rowJson(model, *item, index));
        }
    }
    return rows;
}
