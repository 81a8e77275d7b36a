// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreecontrolservice.h"

#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

FeatureTreeControlService::FeatureTreeControlService(FeatureTreeWidget *tree, QObject *parent)
    : IFeatureTreeControlService(parent)
    , m_tree(tree)
{
}

FeatureTreeControlService::~FeatureTreeControlService() = default;

bool FeatureTreeControlService::showFeature(const QString &fullName)
{
    return m_tree->showFeature(fullName);
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
