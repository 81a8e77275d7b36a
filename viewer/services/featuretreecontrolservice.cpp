// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreecontrolservice.h"

#include <zeltoviewercomponents/featuretree/featuretreenames.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>

#include <QLineEdit>

namespace {

void createRows(const QAbstractItemModel &model, const QModelIndex &parent)
{
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        createRows(model, model.index(row, FeatureTreeColumns::name, parent));
    }
}

bool isHidden(const FeatureTreeView &view, const QModelIndex &index)
{
    return index.isValid()
        && (view.isRowHidden(index.row(), index.parent()) || isHidden(view, index.parent()));
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
    QModelIndex index = find(fullName);
    if (!index.isValid()) {
        // A search may keep it out of sight, which is no reason not to show what is asked for.
        m_tree->findChild<QLineEdit *>(QStringLiteral("filterEdit"))->clear();
        index = find(fullName);
    }
    FeatureTreeView *const view = m_tree->treeView();
    if (!index.isValid() || isHidden(*view, index)) {
        return false;
    }
    view->setCurrentIndex(index);
    view->scrollTo(index);
    return true;
}

QModelIndex FeatureTreeControlService::find(const QString &fullName) const
{
    IFeatureTreeModelExtension *const extension = m_tree->getFeatureExtension();
    const QModelIndex known = extension->findItemByFullName(fullName, nullptr, FeatureTreeColumns::name);
    if (known.isValid()) {
        return known;
    }
    // The rows of a branch that was never opened are made when they are asked for.
    createRows(*m_tree->treeView()->model(), QModelIndex());
    return extension->findItemByFullName(fullName, nullptr, FeatureTreeColumns::name);
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
