// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QSpinBox>

/*! \brief A spin box with a page step of its own that commits every step at once. */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ZeltoQtSpinBox : public QSpinBox
{
public:
    explicit ZeltoQtSpinBox(QWidget *parent = nullptr);
    ~ZeltoQtSpinBox() override;

    /*! Sets by how much Page Up and Page Down change the value, in single steps. */
    void setPageStep(int pageStep);

    /*! Changes the value by \a steps single steps, or by the page step after a page key, and ends the
     * editing. */
    void stepBy(int steps) override;

    /*! Refuses group separators, as the floating-point controls do. */
    QValidator::State validate(QString &text, int &pos) const override;

    /*! Limits a number that was typed; the base would go back to the previous value. */
    void fixup(QString &text) const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    int m_pageStep = 10;
    bool m_pageKeyPressed = false;
};
