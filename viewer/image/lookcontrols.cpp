// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "lookcontrols.h"

#include <platform/core/livetexts.h>

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>

using namespace Cameras;

namespace {

constexpr double percent = 100.0;

} // namespace

LookControls::LookControls(QWidget *parent)
    : QWidget(parent)
    , m_texts(new Core::LiveTexts(this))
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_gamma =
        addBox(QT_TR_NOOP("Ga&mma"), QT_TR_NOOP("Makes dark parts of what is shown brighter"), 5.0, 1.0);
    m_gamma->setMinimum(0.2);
    m_gamma->setSingleStep(0.1);
    m_black = addBox(QT_TR_NOOP("Blac&k"), QT_TR_NOOP("The share of the largest value that is shown black"),
                     percent, 0.0);
    m_white = addBox(QT_TR_NOOP("&White"), QT_TR_NOOP("The share of the largest value that is shown white"),
                     percent, percent);
    for (QDoubleSpinBox *const box : {m_black, m_white}) {
        m_texts->add(box, &QDoubleSpinBox::setSuffix, [] { return tr(" %"); });
        box->setDecimals(1);
    }
    auto *const button = new QToolButton(this);
    m_texts->add(button, &QToolButton::setText, [] { return tr("Reset"); });
    m_texts->add(button, &QWidget::setToolTip, [] {
        return tr("Shows values as they are: gamma and contrast change nothing of the camera");
    });
    connect(button, SIGNAL(clicked()), this, SLOT(reset()));
    layout->addWidget(button);
    layout->addStretch(1);
}

LookControls::~LookControls() = default;

QDoubleSpinBox *LookControls::addBox(const char *label, const char *toolTip, double highest, double value)
{
    auto *const box = new QDoubleSpinBox(this);
    box->setRange(0.0, highest);
    box->setValue(value);
    m_texts->add(box, &QWidget::setToolTip, [toolTip] { return tr(toolTip); });
    auto *const name = new QLabel(this);
    m_texts->add(name, &QLabel::setText, [label] { return tr(label); });
    name->setBuddy(box);
    layout()->addWidget(name);
    layout()->addWidget(box);
    connect(box, SIGNAL(valueChanged(double)), this, SIGNAL(lookChanged()));
    return box;
}

FrameConversion::Look LookControls::look() const
{
    FrameConversion::Look look;
    look.gamma = m_gamma->value();
    look.black = m_black->value() / percent;
    look.white = m_white->value() / percent;
    return look;
}

void LookControls::reset()
{
    {
        const QSignalBlocker gamma(m_gamma);
        const QSignalBlocker black(m_black);
        const QSignalBlocker white(m_white);
        m_gamma->setValue(1.0);
        m_black->setValue(0.0);
        m_white->setValue(percent);
    }
    Q_EMIT lookChanged();
}
