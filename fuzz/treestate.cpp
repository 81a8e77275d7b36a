// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// What is kept of a tree's look and of its columns: bytes of any kind leave a tree that works.

#include "target.h"

#include <support/memorycollection.h>
#include <zeltoviewercomponents/featuretree/featuretreelook.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QDataStream>
#include <QHeaderView>

namespace {

constexpr int stateVersion = 1;

const FeatureTreeLook::Parts everything(0xff);

FeatureTreeWidget *tree;

void applyLook(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_4);
    QVariantMap map;
    stream >> map;
    FeatureTreeLook(map).applyTo(*tree);
    Fuzz::require(tree->visibility() >= GenApi::Beginner && tree->visibility() <= GenApi::Invisible,
                  "the user level is a level");
    const QVariantMap look = FeatureTreeLook(*tree).toMap(everything);
    FeatureTreeLook(look).applyTo(*tree);
    Fuzz::require(FeatureTreeLook(*tree).toMap(everything) == look,
                  "a look that is put back is the same look");
}

void restoreColumns(const QByteArray &bytes)
{
    const bool isRestored = tree->restoreState(bytes, stateVersion);
    const auto *const header = tree->findChild<FeatureTreeView *>()->header();
    for (int section = 0; section < header->count(); ++section) {
        Fuzz::require(header->sectionSize(section) >= 0, "no column has a negative width");
    }
    Fuzz::require(!isRestored || !tree->saveState(stateVersion).isEmpty(), "what is restored can be kept");
}

} // namespace

void Fuzz::prepare()
{
    tree = new FeatureTreeWidget(QStringLiteral("fuzz"));
    tree->addParameterCollection(MemoryCollection::createSample(), QStringLiteral("Camera"),
                                 QStringLiteral("@CameraDevice"), true);
}

void Fuzz::run(const QByteArray &input)
{
    if (input.startsWith('c')) {
        restoreColumns(input.mid(1));
    } else {
        applyLook(input.mid(1));
    }
    settle();
}
