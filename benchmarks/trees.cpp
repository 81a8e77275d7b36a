// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "trees.h"

#include <array>

namespace {

constexpr int categorySize = 100;

// The words that feature names of cameras are made of.
constexpr std::array words{"Acquisition", "Exposure", "Trigger", "Gain",   "Balance", "Counter",
                           "Line",        "Sensor",   "Stream",  "Packet", "Region",  "Timer"};
constexpr std::array endings{"Mode", "Time", "Selector", "Enable", "Source", "Delay", "Count"};

void addWithEditor(MemoryCollection &camera, const QString &name, const QString &category, int kind)
{
    switch (kind) {
    case 0:
        camera.addFloat(name, category, 1.5);
        break;
    case 1:
        camera.addEnum(name, category, {QStringLiteral("Off"), QStringLiteral("On")}, QStringLiteral("Off"));
        break;
    case 2:
        camera.addBoolean(name, category);
        break;
    default:
        camera.addInteger(name, category, 5, 0, 100, 1, QStringLiteral("Linear"));
        break;
    }
}

void copyRows(const QAbstractItemModel &from, const QModelIndex &parent, QStandardItem *to)
{
    const int count = from.rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex name = from.index(row, 0, parent);
        auto *const copy = new QStandardItem(name.data().toString());
        to->appendRow({copy, new QStandardItem(name.siblingAtColumn(1).data(Qt::EditRole).toString())});
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

QSharedPointer<MemoryCollection> makeCamera(const QStringList &names, int withEditor)
{
    auto camera = QSharedPointer<MemoryCollection>::create();
    QString category;
    for (int i = 0; i < names.size(); ++i) {
        if (i % categorySize == 0) {
            category = QStringLiteral("Category%1").arg(i / categorySize);
            camera->addCategory(category);
        }
        if (i % 10 < withEditor) {
            addWithEditor(*camera, names[i], category, i % 4);
        } else {
            camera->addString(names[i], category, QStringLiteral("value"));
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
