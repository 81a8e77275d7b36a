// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/camerastatus.h>

#include <QDialog>
#include <QString>

class QLabel;
class QListWidget;
class QPushButton;

/*! \brief Lists the reachable cameras, with a rescan, and lets the user choose one. */
class CameraDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CameraDialog(QWidget *parent = nullptr);
    ~CameraDialog() override;

    /*! Returns the id of the chosen camera, empty when none is. */
    QString cameraId() const;
    /*! Selects the camera called \a id if it is in the list. */
    void select(const QString &id);

public slots:
    void rescan();

private slots:
    void updateButtons();

private:
    static QString stateOf(const Cameras::CameraStatus &status);

    QListWidget *m_list;
    QLabel *m_hint;
    QPushButton *m_connect;
};
