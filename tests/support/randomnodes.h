// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <support/memorycollection.h>

#include <QRandomGenerator>

/*! Adds \a count nodes of random kinds, names and states below random categories, some features below two.
 * Returns the features. */
inline QList<QSharedPointer<MemoryInteger>> addRandomNodes(MemoryCollection &collection,
                                                           QRandomGenerator &random, int count)
{
    static const QStringList words{"Gain", "Exposure", "Trigger", "Line", "Offset",
                                   "a.b",  "x*",       "STRASSE", "Ü"};
    QStringList categories{"Root"};
    QList<QSharedPointer<MemoryInteger>> features;
    for (int i = 0; i < count; ++i) {
        const QString parent = categories[random.bounded(categories.size())];
        const QString name = words[random.bounded(words.size())] + QString::number(i);
        if (random.bounded(4) == 0) {
            collection.addCategory(name, parent);
            categories.append(name);
        } else {
            features.append(collection.addInteger(name, parent));
            const QString second = categories[random.bounded(categories.size())];
            if (second != parent && random.bounded(3) == 0) {
                collection.node(second)->children.append(name);
            }
        }
        MemoryNode *const node = collection.node(name);
        node->snapshot->visibility = GenApi::EVisibility(random.bounded(4));
        node->snapshot->isImplemented = random.bounded(6) > 0;
        node->properties.insert("DisplayName", words[random.bounded(words.size())]);
    }
    return features;
}
