// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "framefile.h"

#include <QDialog>
#include <QString>

class QComboBox;
class QLineEdit;
class QSpinBox;

/*! \brief Asks how many frames are to be recorded, where to and as what. */
class RecordDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RecordDialog(const QString &folder, QWidget *parent = nullptr);
    ~RecordDialog() override;

    int count() const;
    QString folder() const;
    FrameFile::Kind kind() const;

private Q_SLOTS:
    void browse();

private:
    QSpinBox *m_count;
    QLineEdit *m_folder;
    QComboBox *m_kind;
};
