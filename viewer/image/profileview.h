// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/framevalues.h>

#include <QList>
#include <QWidget>

/*! \brief Paints the raw values along a line of an image, a curve for each channel. */
class ProfileView : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileView(QWidget *parent = nullptr);
    ~ProfileView() override;

    void setCurves(const QList<Cameras::FrameValues::Curve> &curves);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int numberWidth(int number) const;

    QList<Cameras::FrameValues::Curve> m_curves;
};
