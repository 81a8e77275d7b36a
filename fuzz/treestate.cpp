// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// What is kept of a tree's look (JSON stands for the values in the settings) and, after a "c", of its
// columns: a tree that works is left whatever it is.

#include "target.h"

#include <support/memorycollection.h>
#include <zeltoviewercomponents/featuretree/featuretreelook.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPoint>

namespace {

constexpr int stateVersion = 1;
const QString scrollPosition = QStringLiteral("ScrollPosition");

const FeatureTreeLook::Parts everything(0xff);

FeatureTreeWidget *tree;

void applyLook(const QByteArray &json)
{
    QVariantMap map = QJsonDocument::fromJson(json).object().toVariantMap();
    const QVariantList point = map.value(scrollPosition).toList();
    if (point.size() == 2) {
        map.insert(scrollPosition, QPoint(point.at(0).toInt(), point.at(1).toInt()));
    }
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

void prepare()
{
    tree = new FeatureTreeWidget(QStringLiteral("fuzz"));
    tree->addParameterCollection(MemoryCollection::createSample(), QStringLiteral("Camera"),
                                 QStringLiteral("@CameraDevice"), true);
}

void run(const QByteArray &input)
{
    if (input.startsWith('c')) {
        restoreColumns(input.mid(1));
    } else {
        applyLook(input);
    }
    Fuzz::settle();
}

const Fuzz::Target target("treestate", prepare, run);

} // namespace
