// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>

namespace Cameras {
struct OpeningProgress;
}

class QLabel;
class QProgressBar;
class QPushButton;

/*! \brief Says what is going on while a camera is being opened, and lets the user cancel it. */
class OpeningPage : public QWidget
{
    Q_OBJECT

public:
    explicit OpeningPage(QWidget *parent = nullptr);
    ~OpeningPage() override;

    /*! Begins anew, with the camera that is called \a name. */
    void begin(const QString &name);
    void setProgress(const Cameras::OpeningProgress &progress);

signals:
    void cancelled();

private:
    QLabel *m_name;
    QLabel *m_step;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};
