// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreestatusservice.h>

class FeatureTreeWidget;

/*! \brief Tells plug-ins what happens in the viewer's feature tree. */
class FeatureTreeStatusService : public Plugin::FeatureTree::IFeatureTreeStatusService
{
    Q_OBJECT

public:
    explicit FeatureTreeStatusService(const FeatureTreeWidget *tree, QObject *parent = nullptr);
    ~FeatureTreeStatusService() override;

private slots:
    void tellOfRowWithoutParameter();

private:
    const FeatureTreeWidget *m_tree;
};
