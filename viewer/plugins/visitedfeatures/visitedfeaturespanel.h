// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/core/camerainfo.h>
#include <platform/parametercollection/iparameter.h>
#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreecontrolservice.h>

#include <QPointer>
#include <QSharedPointer>
#include <QWidget>

class QListWidget;
class QListWidgetItem;

/*! \brief Lists the features that the user visited last, the latest first; a click or Enter goes back to one.
 */
class VisitedFeaturesPanel : public QWidget
{
    Q_OBJECT

public:
    explicit VisitedFeaturesPanel(Plugin::FeatureTree::IFeatureTreeControlService *control,
                                  QWidget *parent = nullptr);
    ~VisitedFeaturesPanel() override;

public slots:
    void addVisit(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! Empties the list when \a camera is another one than before. */
    void useCamera(const Core::CameraPoolComponents::CameraInfoPtr &camera);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void goBack(QListWidgetItem *item);

private:
    void showHint(const QString &text);

    QPointer<Plugin::FeatureTree::IFeatureTreeControlService> m_control;
    QListWidget *m_list;
    QString m_cameraId;
};
