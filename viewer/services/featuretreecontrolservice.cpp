// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreecontrolservice.h"

#include <zeltoviewercomponents/featuretree/featuretreenames.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

namespace {

// The row of a node map has a name of its own, all others are called by their parameters.
QString rowName(const QString &parameterName)
{
    const QString top = QLatin1Char('/') + FeatureTreeNames::root;
    return parameterName.endsWith(top) ? parameterName.chopped(top.size())
            + QLatin1Char(FeatureTreeNames::separator) + FeatureTreeNames::root
                                       : parameterName;
}

} // namespace

FeatureTreeControlService::FeatureTreeControlService(FeatureTreeWidget *tree, QObject *parent)
    : IFeatureTreeControlService(parent)
    , m_tree(tree)
{
}

FeatureTreeControlService::~FeatureTreeControlService() = default;

bool FeatureTreeControlService::showFeature(const QString &fullName)
{
    return m_tree->showFeature(rowName(fullName));
}

void FeatureTreeControlService::setVisibility(GenApi::EVisibility level)
{
    m_tree->onVisibilityChanged(level);
}

void FeatureTreeControlService::setPolling(bool enable)
{
    m_tree->setPolling(enable);
}

void FeatureTreeControlService::refresh()
{
    m_tree->Refresh();
}
