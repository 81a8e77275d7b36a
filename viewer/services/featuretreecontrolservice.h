// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreecontrolservice.h>

class FeatureTreeWidget;

/*! \brief Lets plug-ins drive the viewer's feature tree. */
class FeatureTreeControlService : public Plugin::FeatureTree::IFeatureTreeControlService
{
    Q_OBJECT

public:
    /*! \a tree has to outlive the service. */
    explicit FeatureTreeControlService(FeatureTreeWidget *tree, QObject *parent = nullptr);
    ~FeatureTreeControlService() override;

    bool showFeature(const QString &fullName) override;
    void setVisibility(GenApi::EVisibility level) override;
    void setPolling(bool enable) override;
    void refresh() override;

private:
    FeatureTreeWidget *m_tree;
};
