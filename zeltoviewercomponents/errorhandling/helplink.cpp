// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "helplink.h"

#include "messagefunctions.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace {

bool isAcceptable(const QUrl &address)
{
    if (!address.isValid()) {
        return false;
    }
    if (address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https")) {
        return !address.host().isEmpty();
    }
    return address.isLocalFile() && address.host().isEmpty();
}

} // namespace

HelpLink::HelpLink(QWidget *parent)
    : HelpLink(QUrl(), parent)
{
}

HelpLink::HelpLink(const QUrl &address, QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::RichText);
    // The keys are handled here: the label's own handling asks for a second Tab before it takes Enter.
    setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    connect(this, SIGNAL(linkActivated(QString)), this, SLOT(open()));
    setAddress(address);
}

HelpLink::~HelpLink() = default;

QUrl HelpLink::address() const
{
    return m_address;
}

void HelpLink::setAddress(const QUrl &address)
{
    m_address = isAcceptable(address) ? address : QUrl();
    const bool hasAddress = !m_address.isEmpty();
    setFocusPolicy(hasAddress ? Qt::StrongFocus : Qt::NoFocus);
    setToolTip(addressText());
    setAccessibleName(hasAddress ? tr("Get help") : QString());
    setAccessibleDescription(addressText());
    updateLink();
}

void HelpLink::open()
{
    if (!m_address.isEmpty() && !QDesktopServices::openUrl(m_address)) {
        showErrorMessage(tr("The help page could not be opened."), addressText(), this);
    }
}

void HelpLink::copyLinkLocation()
{
    if (!m_address.isEmpty()) {
        QGuiApplication::clipboard()->setText(addressText());
    }
}

void HelpLink::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        updateLink();
    }
}

void HelpLink::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_address.isEmpty()) {
        event->ignore();
        return;
    }
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Copy Link Location"), this, SLOT(copyLinkLocation()));
    menu->popup(event->globalPos());
}

void HelpLink::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        open();
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

void HelpLink::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

// Rich text keeps the link colour it was made with, so it is made anew for each palette.
void HelpLink::updateLink()
{
    const QString link = QStringLiteral("<a href=\"%1\" style=\"color:%2\">%3</a>")
                             .arg(addressText().toHtmlEscaped(), palette().color(QPalette::Link).name(),
                                  tr("Get help").toHtmlEscaped());
    setText(m_address.isEmpty() ? QString() : link);
}

QString HelpLink::addressText() const
{
    return m_address.toString(QUrl::FullyEncoded);
}
