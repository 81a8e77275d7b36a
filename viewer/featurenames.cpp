// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featurenames.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

// The number of letters to insert, remove or replace.
int distance(const QString &left, const QString &right)
{
    std::vector<int> row(size_t(right.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < left.size(); ++i) {
        int diagonal = row[0];
        row[0] = int(i) + 1;
        for (size_t j = 1; j < row.size(); ++j) {
            const int replaced = diagonal + (left[i].toLower() == right[qsizetype(j) - 1].toLower() ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

FeatureNames::FeatureNames(const QList<Cameras::NodeMap> &nodeMaps)
    : m_nodeMaps(nodeMaps)
{
}

QSharedPointer<ParameterCollection::IParameter> FeatureNames::find(const QString &name) const
{
    for (const Cameras::NodeMap &nodeMap : m_nodeMaps) {
        if (const auto parameter = nodeMap.collection->parameter(name)) {
            return parameter;
        }
    }
    return {};
}

QString FeatureNames::nearest(const QString &name) const
{
    constexpr int wholeTree = 64;
    constexpr int longest = 200; // what is longer is no name that anybody has typed
    if (name.size() > longest) {
        return {};
    }
    QString best;
    int least = std::max(2, int(name.size()) / 4) + 1;
    for (const Cameras::NodeMap &nodeMap : m_nodeMaps) {
        const QStringList names = nodeMap.collection->childNames(QStringLiteral("Root"), wholeTree,
                                                                 name.contains(QLatin1Char('/')));
        for (const QString &known : names) {
            const int steps = distance(name, known);
            if (steps < least) {
                least = steps;
                best = known;
            }
        }
    }
    return best;
}
