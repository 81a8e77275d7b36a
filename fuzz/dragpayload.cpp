// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// What is dropped on a tree, from whatever program: favorites move or nothing happens. The first four bytes
// are the row, the fifth the action.

#include "target.h"

#include <support/memorycollection.h>
#include <support/strictidentityproxy.h>
#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>

#include <QAbstractItemModelTester>
#include <QDataStream>
#include <QMimeData>
#include <QSet>

namespace {

FeatureTreeModel *model;

QSet<QString> favoriteNames()
{
    QSet<QString> names;
    FavoritesData &favorites = model->GetFavorites();
    for (int i = 0; i < favorites.count(); ++i) {
        names.insert(favorites.entryAt(i)->featureName);
    }
    return names;
}

// An input cannot guess the addresses of this process: bytes from "A" on stand for favorites.
QByteArray payload(const QByteArray &input)
{
    const QModelIndex branch = model->GetFavoritesRootIndex();
    QByteArray bytes;
    for (const char c : input) {
        const int row = c - 'A';
        if (row < 0 || row >= model->rowCount(branch)) {
            bytes.append(c);
            continue;
        }
        const QScopedPointer<QMimeData> drag(model->mimeData({model->index(row, 0, branch)}));
        bytes.append(drag->data(FeatureTreeModel::dragFormat()));
    }
    return bytes;
}

void prepare()
{
    model = new FeatureTreeModel;
    model->CreateFavoritesRoot();
    const auto collection = MemoryCollection::createSample();
    model->addParameterCollection(collection, QStringLiteral("Camera"), QStringLiteral("@CameraDevice"),
                                  true);
    const QStringList names = collection->childNames(QStringLiteral("Root"), 9, false);
    for (const QString &name : names) {
        model->GetFavorites().appendEntry({name, name, QStringLiteral("@CameraDevice")});
    }
    auto *const watched = new StrictIdentityProxy(model);
    watched->setSourceModel(model);
    new QAbstractItemModelTester(watched, QAbstractItemModelTester::FailureReportingMode::Fatal, watched);
}

void run(const QByteArray &input)
{
    QDataStream stream(input);
    qint32 row = 0;
    qint8 action = 0;
    stream >> row >> action;
    const QSet<QString> before = favoriteNames();
    QMimeData data;
    data.setData(FeatureTreeModel::dragFormat(), payload(input.mid(5)));
    model->dropMimeData(&data, action ? Qt::MoveAction : Qt::IgnoreAction, row, 0,
                        model->GetFavoritesRootIndex());
    Fuzz::settle();
    Fuzz::require(favoriteNames() == before, "a drop neither adds nor removes favorites");
}

const Fuzz::Target target("dragpayload", prepare, run);

} // namespace
