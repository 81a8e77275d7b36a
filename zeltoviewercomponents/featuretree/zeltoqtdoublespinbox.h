// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QDoubleSpinBox>

#include <optional>

/*! \brief A spin box for doubles that reports step requests instead of stepping.
 *
 * It shows plain decimals until showFeatureValues() makes it show as many digits as a feature's values need.
 * It reads fixed and exponent notation in its locale, without group separators: what could mean two different
 * numbers is refused.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ZeltoQtDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit ZeltoQtDoubleSpinBox(QWidget *parent = nullptr);
    ~ZeltoQtDoubleSpinBox() override;

    /*! Returns the page step, which is kept for the owner. */
    double pageStep() const;
    /*! Sets the page step. */
    void setPageStep(double pageStep);

    /*! Shows values with the digits that identify them, in \a notation. */
    void showFeatureValues(GenApi::EDisplayNotation notation);

    /*! Shows \a text instead of the value until the user types a number; an empty text shows the value. */
    void setSubstitute(const QString &text);
    /*! Returns whether a text is shown instead of the value. */
    bool hasSubstitute() const;

    /*! Returns \a value as the spin box shows numbers. */
    QString numberText(double value) const;

    /*! Takes over a typed text, then emits stepTriggered(). */
    void stepBy(int steps) override;
    QString textFromValue(double value) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &pos) const override;
    void fixup(QString &text) const override;

signals:
    /*! The user wants \a steps steps; negative ones go down. */
    void stepTriggered(int steps);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    StepEnabled stepEnabled() const override;

private slots:
    void onTextChanged(const QString &text);
    void selectSubstitute();

private:
    void selectSubstituteLater();
    std::optional<double> numberFrom(const QString &text) const;
    QLocale strictLocale() const;

    double m_pageStep = 0.0;
    GenApi::EDisplayNotation m_notation = GenApi::UndefinedDisplayNotation;
    QString m_substitute;
    bool m_isNumberTyped = false; //!< instead of the substitute
};
