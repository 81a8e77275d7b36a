// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "cameradialog.h"

#include <cameras/camera.h>
#include <platform/core/exception.h>
#include <zeltoviewercomponents/featuretree/waitcursor.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

CameraDialog::CameraDialog(QWidget *parent)
    : QDialog(parent)
    , m_list(new QListWidget(this))
    , m_hint(new QLabel(this))
    , m_connect(nullptr)
{
    setWindowTitle(tr("Connect to Camera"));
    m_list->setAccessibleName(tr("Reachable cameras"));
    m_list->setMinimumWidth(fontMetrics().averageCharWidth() * 60); // vendor, model and serial number
    m_hint->setWordWrap(true);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_connect = buttons->addButton(tr("&Connect"), QDialogButtonBox::AcceptRole);
    QPushButton *const rescanButton = buttons->addButton(tr("&Rescan"), QDialogButtonBox::ActionRole);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(m_hint);
    layout->addWidget(buttons);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(rescanButton, SIGNAL(clicked()), this, SLOT(rescan()));
    connect(m_list, SIGNAL(itemSelectionChanged()), this, SLOT(updateButtons()));
    connect(m_list, SIGNAL(itemActivated(QListWidgetItem *)), this, SLOT(accept()));
    rescan();
}

CameraDialog::~CameraDialog() = default;

QString CameraDialog::cameraId() const
{
    const QListWidgetItem *const item = m_list->currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

// Where the camera is and what can be done with it, empty where it does not tell.
QString CameraDialog::stateOf(const Cameras::CameraStatus &status)
{
    switch (status.state) {
    case Cameras::CameraStatus::State::Available:
        return tr("%1, available").arg(status.address);
    case Cameras::CameraStatus::State::ReadOnly:
        return status.controller.isEmpty()
            ? tr("%1, in use by another program, opens read-only").arg(status.address)
            : tr("%1, in use by a program at %2, opens read-only").arg(status.address, status.controller);
    case Cameras::CameraStatus::State::Exclusive:
        return tr("%1, held by another program for itself").arg(status.address);
    case Cameras::CameraStatus::State::OtherSubnet:
        return tr("%1, not in a subnet of this computer").arg(status.address);
    case Cameras::CameraStatus::State::NoAnswer:
        return tr("%1, does not answer").arg(status.address);
    default:
        return status.address;
    }
}

void CameraDialog::select(const QString &id)
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(Qt::UserRole).toString() == id) {
            m_list->setCurrentRow(row);
        }
    }
}

void CameraDialog::rescan()
{
    m_list->clear();
    QString failure;
    try {
        const WaitCursor cursor;
        const auto cameras = Cameras::Camera::list();
        for (const auto &camera : cameras) {
            const QString name = tr("%1 %2 (%3), %4")
                                     .arg(camera->vendorName(), camera->modelName(), camera->serialNumber(),
                                          camera->deviceClass());
            const QString state = stateOf(Cameras::Camera::status(camera->id()));
            auto *const item =
                new QListWidgetItem(state.isEmpty() ? name : name + QLatin1Char('\n') + state, m_list);
            item->setData(Qt::UserRole, camera->id());
            item->setToolTip(camera->id());
        }
    } catch (const Core::Exception::BaseException &exception) {
        failure = exception.getMessage();
    }
    m_list->setCurrentRow(0);
    const QString empty =
        tr("No camera answers. Check its power, its cable and the network interface, then rescan.");
    m_hint->setText(failure.isEmpty() ? (m_list->count() == 0 ? empty : QString()) : failure);
    m_hint->setVisible(!m_hint->text().isEmpty());
    updateButtons();
}

void CameraDialog::updateButtons()
{
    m_connect->setEnabled(!cameraId().isEmpty());
}
