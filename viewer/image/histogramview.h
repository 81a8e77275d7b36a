// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/framestatistics.h>

#include <QString>
#include <QWidget>

/*! \brief Paints a histogram, linear or logarithmic, a curve for each channel. */
class HistogramView : public QWidget
{
    Q_OBJECT

public:
    explicit HistogramView(QWidget *parent = nullptr);
    ~HistogramView() override;

    void setHistogram(const Cameras::Histogram &histogram);
    /*! Returns how many values are black and saturated, for people. */
    static QString summary(const Cameras::Histogram &histogram);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void setLogarithmic(bool isLogarithmic);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    double heightOf(double count, double highest) const;
    QString textAt(int x) const;

    Cameras::Histogram m_histogram;
    bool m_isLogarithmic = false;
};
