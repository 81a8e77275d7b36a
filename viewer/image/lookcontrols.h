// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/frameconversion.h>

#include <QWidget>

class QDoubleSpinBox;

namespace Core {
class LiveTexts;
}

/*! \brief Gamma and contrast of what is shown, which change nothing of the camera. */
class LookControls : public QWidget
{
    Q_OBJECT

public:
    explicit LookControls(QWidget *parent = nullptr);
    ~LookControls() override;

    /*! Returns the look that is chosen; marks are none of its business. */
    Cameras::FrameConversion::Look look() const;

Q_SIGNALS:
    void lookChanged();

private Q_SLOTS:
    void reset();

private:
    QDoubleSpinBox *addBox(const char *label, const char *toolTip, double highest, double value);

    Core::LiveTexts *m_texts; // first: the boxes use it
    QDoubleSpinBox *m_gamma;
    QDoubleSpinBox *m_black;
    QDoubleSpinBox *m_white;
};
