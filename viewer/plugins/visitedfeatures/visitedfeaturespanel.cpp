// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "visitedfeaturespanel.h"

#include <platform/core/guard.h>
#include <platform/core/livetexts.h>

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QStatusTipEvent>
#include <QVBoxLayout>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.plugins.visitedFeatures")

namespace {

constexpr int maxVisits = 20;

QListWidgetItem *itemFor(const QListWidget &list, const QString &fullName)
{
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->data(Qt::UserRole) == fullName) {
            return list.item(row);
        }
    }
    return nullptr;
}

} // namespace

VisitedFeaturesPanel::VisitedFeaturesPanel(Plugin::FeatureTree::IFeatureTreeControlService *control,
                                           QWidget *parent)
    : QWidget(parent)
    , m_control(control)
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("visitedFeatures"));
    auto *const texts = new Core::LiveTexts(this);
    texts->add(this, &QWidget::setWindowTitle, [] { return tr("Visited Features"); });
    texts->add(m_list, &QWidget::setAccessibleName, [] { return tr("Visited Features"); });
    texts->add(this, &QWidget::setToolTip,
               [] { return tr("The features you visited last; a click goes back"); });
    setFocusProxy(m_list);
    m_list->installEventFilter(this);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    connect(m_list, SIGNAL(itemClicked(QListWidgetItem *)), this, SLOT(goBack(QListWidgetItem *)));
}

VisitedFeaturesPanel::~VisitedFeaturesPanel() = default;

void VisitedFeaturesPanel::addVisit(QSharedPointer<IParameter> parameter)
{
    if (!parameter) {
        return;
    }
    Core::guardedRun({logCategory(), "VisitedFeaturesPanel::addVisit"},
                     QStringLiteral("Failed to note a visit"), [this, &parameter] {
                         const QString fullName = parameter->fullName();
                         const QString text = parameter->propertyAccess()->property(
                             QStringLiteral("DisplayName"), parameter->name());
                         delete itemFor(*m_list, fullName);
                         auto *const item = new QListWidgetItem(text);
                         item->setData(Qt::UserRole, fullName);
                         // Of a category, the name by which programs know it tells nobody more.
                         item->setToolTip(parameter->type() == ParameterType::Category ? text : fullName);
                         m_list->insertItem(0, item);
                         m_list->setCurrentItem(item);
                     });
    while (m_list->count() > maxVisits) {
        delete m_list->takeItem(maxVisits);
    }
    showHint(QString());
}

void VisitedFeaturesPanel::useCamera(const Core::CameraPoolComponents::CameraInfoPtr &camera)
{
    if (camera->id() != m_cameraId) {
        m_cameraId = camera->id();
        m_list->clear();
    }
}

// QAbstractItemView leaves it to the platform whether Enter activates a row; here it always does.
bool VisitedFeaturesPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_list->currentItem()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            goBack(m_list->currentItem());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void VisitedFeaturesPanel::goBack(QListWidgetItem *item)
{
    if (!m_control || !m_control->showFeature(item->data(Qt::UserRole).toString())) {
        showHint(tr("This feature is not shown at the current level"));
    }
}

void VisitedFeaturesPanel::showHint(const QString &text)
{
    QStatusTipEvent hint(text);
    QApplication::sendEvent(this, &hint);
}
