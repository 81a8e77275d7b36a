// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/camerasearch.h>

#include <QDialog>
#include <QString>

#include <memory>

class QLabel;
class QListWidget;
class QPushButton;

/*! \brief Lists the reachable cameras as they are found, with a rescan, and lets the user choose one. */
class CameraDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CameraDialog(QWidget *parent = nullptr);
    ~CameraDialog() override;

    /*! Returns the id of the chosen camera, empty when none is. */
    QString cameraId() const;
    /*! Selects the camera called \a id when it is found. */
    void select(const QString &id);

public slots:
    void rescan();

private slots:
    void showFound();
    void updateButtons();

private:
    static QString stateOf(const Cameras::CameraStatus &status);
    void add(const Cameras::FoundCamera &camera);
    void updateHint();

    QListWidget *m_list;
    QLabel *m_hint;
    QPushButton *m_connect;
    QPushButton *m_rescan;
    QString m_wanted; // id of the camera to select
    std::unique_ptr<Cameras::CameraSearch> m_search;
};
