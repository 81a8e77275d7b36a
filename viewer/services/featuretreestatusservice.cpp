// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreestatusservice.h"

#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

FeatureTreeStatusService::FeatureTreeStatusService(const FeatureTreeWidget *tree, QObject *parent)
    : IFeatureTreeStatusService(parent)
    , m_tree(tree)
{
    connect(tree, SIGNAL(visibilityChanged(GenApi::EVisibility)), this,
            SIGNAL(visibilityChanged(GenApi::EVisibility)));
    connect(tree, SIGNAL(currentChanged(QSharedPointer<ParameterCollection::IParameter>)), this,
            SIGNAL(currentChanged(QSharedPointer<ParameterCollection::IParameter>)));
    connect(tree->treeView(), SIGNAL(onCurrentChanged(QModelIndex)), this, SLOT(tellOfRowWithoutParameter()));
    connect(tree, SIGNAL(newText(QString)), this, SIGNAL(newText(QString)));
}

FeatureTreeStatusService::~FeatureTreeStatusService() = default;

// The tree names parameters alone.
void FeatureTreeStatusService::tellOfRowWithoutParameter()
{
    if (!m_tree->GetCurrentNode()) {
        emit currentChanged({});
    }
}
