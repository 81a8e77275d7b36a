// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "messagebar.h"

#include <platform/core/livetexts.h>

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QTextDocument>
#include <QToolButton>

namespace {

constexpr qsizetype messagesKept = 20;

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    return className == QLatin1String("MessageBar")
        ? new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Notification)
        : nullptr;
}

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this))
    , m_action(new QToolButton(this))
{
    QAccessible::installFactory(createInterface); // which takes each but once
    m_action->hide();
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *const close = new QToolButton(this);
    close->setIcon(QIcon(QStringLiteral(":/zeltoviewercomponents/Resources/cross_16.png")));
    close->setAutoRaise(true);
    auto *const texts = new Core::LiveTexts(this);
    texts->add([this] { showName(); });
    texts->add(close, &QWidget::setToolTip, [] { return tr("Dismiss"); });
    texts->add(close, &QWidget::setAccessibleName, [] { return tr("Dismiss"); });

    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_action);
    layout->addWidget(close);
    connect(m_action, SIGNAL(clicked()), this, SIGNAL(actionTriggered()));
    connect(close, SIGNAL(clicked()), this, SLOT(dismiss()));
    hide();
}

MessageBar::~MessageBar() = default;

void MessageBar::showMessage(const QString &message, const QString &details, const QString &subject)
{
    m_count +=
        1 - static_cast<int>(forget(subject)); // what became of the try before is no longer of interest
    m_messages.append({details.isEmpty() ? message : message + QLatin1Char('\n') + details, subject});
    if (m_messages.size() > messagesKept) {
        m_messages.removeFirst();
    }
    updateText();
}

qsizetype MessageBar::forget(const QString &subject)
{
    const auto isAboutIt = [&subject](const Message &message) { return message.subject == subject; };
    return subject.isEmpty() ? 0 : m_messages.removeIf(isAboutIt);
}

void MessageBar::resolve(const QString &subject)
{
    const auto resolved = forget(subject);
    if (resolved == 0) {
        return;
    }
    m_count = m_messages.isEmpty() ? 0 : m_count - static_cast<int>(resolved);
    if (m_messages.isEmpty() && m_question.isEmpty()) {
        dismiss();
    } else {
        updateText();
    }
}

QStringList MessageBar::texts() const
{
    QStringList texts;
    for (const Message &message : m_messages) {
        texts.append(message.text);
    }
    return texts;
}

void MessageBar::showAction(const QString &message, const QString &action)
{
    dismiss();
    m_question = message;
    m_action->setText(action);
    m_action->setVisible(!action.isEmpty());
    updateText();
}

void MessageBar::updateText()
{
    QStringList lines;
    if (!m_question.isEmpty()) {
        lines.append(m_question);
    }
    if (!m_messages.isEmpty()) {
        lines.append(m_messages.constLast().text);
    }
    if (m_count > 1) {
        lines.append(tr("(%n earlier message(s))", nullptr, m_count - 1));
    }
    m_text->setText(lines.join(QLatin1Char('\n')));
    m_text->setAccessibleName(m_text->text());
    announce();
    if (m_icon->pixmap().isNull()) {
        m_icon->setPixmap(
            style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(fontMetrics().height() * 3 / 2));
    }
    m_text->setToolTip(
        m_count > 1 ? Qt::convertFromPlainText(texts().join(QStringLiteral("\n\n")), Qt::WhiteSpaceNormal)
                    : QString());
    show();
}

void MessageBar::showName()
{
    const bool isEmpty = m_question.isEmpty() && m_messages.isEmpty();
    setAccessibleName(isEmpty ? tr("Messages") : tr("Message: %1").arg(m_text->text()));
}

// Qt 6.4 keeps alerts from screen readers on Linux; these read out notifications that come into sight, and
// new names of such.
void MessageBar::announce()
{
    showName();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::dismiss()
{
    m_question.clear();
    m_messages.clear();
    showName();
    m_count = 0;
    m_action->hide();
    hide();
}
