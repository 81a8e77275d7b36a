// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreetext.h"

#include "featuretreeinodeitem.h"
#include "featuretreenames.h"
#include "ifeaturetreemodelextension.h"

#include <QAbstractItemModel>
#include <QTextDocumentFragment>
#include <QTextStream>

namespace {

QString plainName(const QModelIndex &index)
{
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool isRichText = index.data(FeatureTreeItem::IsSpecialNode).toBool();
    return isRichText ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QString onOneLine(QString text)
{
    for (QChar &character : text) {
        if (character == QLatin1Char('\n') || character == QLatin1Char('\r')
            || character == QLatin1Char('\t')) {
            character = QLatin1Char(' ');
        }
    }
    return text;
}

void writeRows(QTextStream &stream, QAbstractItemModel &model, IFeatureTreeModelExtension &extension,
               const QModelIndex &parent, int depth)
{
    const int count = model.rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = model.index(row, FeatureTreeColumns::name, parent);
        FeatureTreeItem *const item = extension.getFeatureTreeItem(index);
        if (!item || !item->ShowMe(extension.getVisibility())) {
            continue;
        }
        const auto *const nodeItem = qobject_cast<FeatureTreeINodeItem *>(item);
        stream << QString(depth * 4, QLatin1Char(' ')) << onOneLine(plainName(index)) << '\t'
               << onOneLine(nodeItem ? nodeItem->valueText() : QString()) << '\n';
        writeRows(stream, model, extension, index, depth + 1);
    }
}

int depthOf(const QModelIndex &index)
{
    int depth = 0;
    for (QModelIndex above = index; above.isValid(); above = above.parent()) {
        ++depth;
    }
    return depth;
}

} // namespace

void writeFeatureTree(QTextStream &stream, QAbstractItemModel &model, const QModelIndex &parent)
{
    if (auto *const extension = dynamic_cast<IFeatureTreeModelExtension *>(&model)) {
        writeRows(stream, model, *extension, parent, depthOf(parent));
    }
}
