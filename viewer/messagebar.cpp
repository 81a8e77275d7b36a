// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "messagebar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this))
    , m_action(new QToolButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(fontMetrics().height() * 3 / 2));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *const close = new QToolButton(this);
    close->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));
    close->setAutoRaise(true);
    close->setToolTip(tr("Dismiss"));
    close->setAccessibleName(close->toolTip());

    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(m_icon, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_action, 0, Qt::AlignTop);
    layout->addWidget(close, 0, Qt::AlignTop);
    connect(m_action, SIGNAL(clicked()), this, SIGNAL(actionTriggered()));
    connect(close, SIGNAL(clicked()), this, SLOT(dismiss()));
    hide();
}

MessageBar::~MessageBar() = default;

void MessageBar::showMessage(const QString &message, const QString &details)
{
    show(message, details, QString());
}

void MessageBar::showAction(const QString &message, const QString &action)
{
    show(message, QString(), action);
}

void MessageBar::show(const QString &message, const QString &details, const QString &action)
{
    if (!m_action->isHidden() && action.isEmpty()) {
        return; // what waits for an answer is not covered
    }
    m_earlier = isHidden() ? 0 : m_earlier + 1;
    QString text = message;
    if (!details.isEmpty()) {
        text += QLatin1Char('\n') + details;
    }
    if (m_earlier > 0) {
        text += QLatin1Char('\n') + tr("(%n earlier message(s))", nullptr, m_earlier);
    }
    m_text->setText(text);
    m_text->setAccessibleName(text);
    m_action->setText(action);
    m_action->setVisible(!action.isEmpty());
    setVisible(true);
}

void MessageBar::dismiss()
{
    m_earlier = 0;
    m_action->hide();
    hide();
}
