// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "trees.h"

#include <zeltoviewercomponents/featuretree/featuretreeitem.h>

#include <array>

namespace {

constexpr int categorySize = 100;

// The words that feature names of cameras are made of.
constexpr std::array words{"Acquisition", "Exposure", "Trigger", "Gain",   "Balance", "Counter",
                           "Line",        "Sensor",   "Stream",  "Packet", "Region",  "Timer"};
constexpr std::array endings{"Mode", "Time", "Selector", "Enable", "Source", "Delay", "Count"};

constexpr int expertEvery = 5; // categories

// One feature of the usual mix; \a place is its place among twenty.
void addUsual(MemoryCollection &camera, const QString &name, const QString &category, int place)
{
    static const QStringList entries{QStringLiteral("Off"),        QStringLiteral("Once"),
                                     QStringLiteral("Continuous"), QStringLiteral("Line0"),
                                     QStringLiteral("Line1"),      QStringLiteral("Line2"),
                                     QStringLiteral("Software"),   QStringLiteral("Action")};
    if (place % 7 == 0) { // 0, 7, 14
        camera.addFloat(name, category, 10.5 + place, 0.0, 1.0e6);
    } else if (place % 5 == 1) { // 1, 6, 11, 16
        camera.addEnum(name, category, entries, entries.constFirst());
    } else if (place == 3) {
        camera.addBoolean(name, category);
    } else if (place % 2 == 0) {
        camera.addInteger(name, category, place, 0, 1000);
    } else {
        camera.addString(name, category, QStringLiteral("value"));
    }
}

void copyRows(const QAbstractItemModel &from, const QModelIndex &parent, QStandardItem *to)
{
    const int count = from.rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex name = from.index(row, 0, parent);
        auto *const copy = new QStandardItem(name.data().toString());
        auto *const value = new QStandardItem(name.siblingAtColumn(1).data(Qt::EditRole).toString());
        value->setData(static_cast<FeatureTreeItem *>(name.internalPointer())->editorType(), Qt::UserRole);
        to->appendRow({copy, value});
        copyRows(from, name, copy);
    }
}

} // namespace

QStringList featureNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        const auto word = [](const char *text) { return QString::fromLatin1(text); };
        names.append(word(words.at(i % words.size())) + word(endings.at(i / 12 % endings.size()))
                     + QString::number(i));
    }
    return names;
}

QSharedPointer<MemoryCollection> makeCamera(const QStringList &names, Kinds kinds, const QString &nodeMapName)
{
    auto camera = QSharedPointer<MemoryCollection>::create(nodeMapName);
    QString category;
    for (int i = 0; i < names.size(); ++i) {
        if (i % categorySize == 0) {
            category = QStringLiteral("Category%1").arg(i / categorySize);
            camera->addCategory(category);
        }
        if (kinds == Kinds::Usual) {
            addUsual(*camera, names[i], category, i % 20);
        } else {
            camera->addString(names[i], category, QStringLiteral("value"));
        }
        if (i / categorySize % expertEvery == expertEvery - 1) {
            camera->node(names[i])->snapshot->visibility = GenApi::Expert;
        }
    }
    return camera;
}

StockTree::StockTree(const QAbstractItemModel &model)
{
    copyRows(model, QModelIndex(), m_model.invisibleRootItem());
    m_proxy.setSourceModel(&m_model);
    m_proxy.setRecursiveFilteringEnabled(true);
    m_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
}

int visitRows(const QAbstractItemModel &model, const QModelIndex &parent)
{
    const int count = model.rowCount(parent);
    int visited = count;
    for (int row = 0; row < count; ++row) {
        visited += visitRows(model, model.index(row, 0, parent));
    }
    return visited;
}
