// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "ipaddresswidget.h"

#include "qipaddresswithnetmaskvalidator.h"
#include "qipnetmaskvalidator.h"
#include "qmacaddressvalidator.h"

#include <zeltoviewercomponents/errorhandling/cstylehelper.h>
#include <zeltoviewercomponents/errorhandling/helplink.h>

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QStyle>
#include <QUrl>

namespace {

enum Column {
    LabelColumn,
    EditColumn,
    IconColumn,
    MessageColumn,
};

constexpr int editWidth = 150;
constexpr int messageWidth = 260;
constexpr int messageLines = 2;
constexpr int iconSize = 16;
constexpr int rowSpacing = 6;

// Null and IPv6 addresses have no dotted quad; the latter are shown as they are and found wrong.
QString textOf(const QHostAddress &address)
{
    return address.isNull() ? QString() : address.toString();
}

QString noGateway()
{
    return QStringLiteral("0.0.0.0");
}

} // namespace

IpAddressWidget::IpAddressWidget(QWidget *parent)
    : QDialog(parent)
    , m_ipValidator(new QIpAddressWithNetmaskValidator(QIpAddressWithNetmaskValidator::Device, this))
    , m_maskValidator(new QIpNetmaskValidator(this))
    , m_gatewayValidator(new QIpAddressWithNetmaskValidator(QIpAddressWithNetmaskValidator::Gateway, this))
    , m_grid(new QGridLayout(this))
    , m_styleHelper(new CStyleHelper(this))
{
    setWindowTitle(tr("IP Configuration"));
    // The order in which they are made is the order of the Tab key.
    m_ip.edit = new QLineEdit(this);
    m_maskBox = new QComboBox(this);
    fillMaskBox();
    m_mask.edit = m_maskBox->lineEdit();
    m_gateway.edit = new QLineEdit(noGateway(), this);
    m_mac.edit = new QLineEdit(this);
    m_mac.edit->setReadOnly(true);
    // What cannot be changed does not look like a field, but can still be reached, read and copied.
    m_mac.edit->setFrame(false);
    QPalette flat; // the rest follows that of the dialog
    flat.setColor(QPalette::Base, Qt::transparent);
    m_mac.edit->setPalette(flat);
    m_helpLink = new HelpLink(this);
    m_helpLink->hide();
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);

    m_ip.validator = m_ipValidator;
    m_mask.validator = m_maskValidator;
    m_gateway.validator = m_gatewayValidator;
    m_mac.validator = new QMacAddressValidator(this);

    addRow(&m_ip, m_ip.edit, tr("&IP address:"));
    addRow(&m_mask, m_maskBox, tr("&Subnet mask:"));
    addRow(&m_gateway, m_gateway.edit, tr("Default &gateway:"));
    addRow(&m_mac, m_mac.edit, tr("&MAC address:"));

    const int lastRow = m_grid->rowCount();
    m_grid->setRowStretch(lastRow, 1);
    m_grid->addWidget(m_helpLink, lastRow + 1, LabelColumn);
    m_grid->addWidget(m_buttons, lastRow + 1, EditColumn, 1, -1);

    connect(m_buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(m_buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(m_styleHelper, SIGNAL(screenScaleChanged(qreal)), this, SLOT(applyScale()));
    applyScale();
    updateState();
}

IpAddressWidget::~IpAddressWidget() = default;

void IpAddressWidget::fillMaskBox()
{
    constexpr int commonPrefixLengths[] = {8, 16, 24, 25, 26, 27, 28, 29, 30};

    m_maskBox->setEditable(true);
    m_maskBox->setInsertPolicy(QComboBox::NoInsert);
    for (const int length : commonPrefixLengths) {
        m_maskBox->addItem(QIpNetmaskValidator::netmask(length).toString());
        m_maskBox->setItemData(m_maskBox->count() - 1, tr("Prefix length %1").arg(length), Qt::ToolTipRole);
    }
    m_maskBox->setCurrentIndex(-1);
    // Completion inside the field would put a mask there that nobody asked for.
    m_maskBox->completer()->setCompletionMode(QCompleter::PopupCompletion);
}

void IpAddressWidget::addRow(Field *field, QWidget *editor, const QString &label)
{
    const int row = m_grid->rowCount();
    auto *const title = new QLabel(label, this);
    title->setBuddy(editor);
    field->editor = editor;
    field->icon = new QLabel(this);
    field->message = new QLabel(this);
    field->message->setTextFormat(Qt::PlainText);
    field->message->setWordWrap(true);

    m_grid->addWidget(title, row, LabelColumn);
    m_grid->addWidget(editor, row, EditColumn);
    m_grid->addWidget(field->icon, row, IconColumn);
    m_grid->addWidget(field->message, row, MessageColumn);

    QString name = label;
    name.remove(QLatin1Char('&')).remove(QLatin1Char(':'));
    field->edit->setAccessibleName(name);
    editor->setAccessibleName(name);
    connect(field->edit, SIGNAL(textEdited(QString)), this, SLOT(removeBlanks()));
    connect(field->edit, SIGNAL(textChanged(QString)), this, SLOT(updateState()));
    connect(field->edit, SIGNAL(editingFinished()), this, SLOT(tidyUp()));
}

QHostAddress IpAddressWidget::ipAddress() const
{
    return QHostAddress(value(m_ip));
}

void IpAddressWidget::setIpAddress(const QHostAddress &address)
{
    m_ip.edit->setText(textOf(address));
}

QHostAddress IpAddressWidget::subnetMask() const
{
    return QHostAddress(value(m_mask));
}

void IpAddressWidget::setSubnetMask(const QHostAddress &mask)
{
    m_mask.edit->setText(textOf(mask));
}

QHostAddress IpAddressWidget::defaultGateway() const
{
    return QHostAddress(value(m_gateway));
}

void IpAddressWidget::setDefaultGateway(const QHostAddress &gateway)
{
    m_gateway.edit->setText(textOf(gateway));
}

QString IpAddressWidget::macAddress() const
{
    return value(m_mac);
}

void IpAddressWidget::setMacAddress(const QString &address)
{
    QString text = address;
    m_mac.validator->fixup(text);
    m_mac.edit->setText(text);
}

bool IpAddressWidget::isMacAddressEditable() const
{
    return !m_mac.edit->isReadOnly();
}

void IpAddressWidget::setMacAddressEditable(bool editable)
{
    m_mac.edit->setReadOnly(!editable);
    updateState();
}

void IpAddressWidget::setHelpAddress(const QUrl &address)
{
    m_helpLink->setAddress(address);
    m_helpLink->setVisible(!m_helpLink->address().isEmpty());
}

bool IpAddressWidget::isUsable() const
{
    return isAcceptable(m_ip) && isAcceptable(m_mask) && isAcceptable(m_gateway)
        && (!isMacAddressEditable() || isAcceptable(m_mac));
}

void IpAddressWidget::accept()
{
    if (isUsable()) {
        QDialog::accept();
    }
}

void IpAddressWidget::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    const bool changesSizes = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (changesSizes && m_mac.message) {
        applyScale();
        updateState();
    }
}

void IpAddressWidget::removeBlanks()
{
    for (const Field *field : m_fields) {
        const QString text = field->edit->text();
        const QString cleaned = AddressValidator::withoutBlanks(text);
        if (cleaned != text) {
            const auto behindCursor = text.size() - field->edit->cursorPosition();
            field->edit->setText(cleaned);
            field->edit->setCursorPosition(
                static_cast<int>(qMax(cleaned.size() - behindCursor, qsizetype(0))));
        }
    }
}

void IpAddressWidget::tidyUp()
{
    for (const Field *field : m_fields) {
        QString text = field->edit->text();
        field->validator->fixup(text);
        if (text != field->edit->text()) {
            field->edit->setText(text);
        }
    }
    if (m_mask.edit->text().isEmpty()) {
        setSubnetMask(QIpNetmaskValidator::usualNetmask(ipAddress()));
    }
}

void IpAddressWidget::updateState()
{
    const QHostAddress mask = subnetMask();
    m_ipValidator->setNetmask(mask);
    m_gatewayValidator->setNetmask(mask);
    m_gatewayValidator->setDevice(ipAddress());
    for (const Field *field : m_fields) {
        showReason(*field);
    }
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(isUsable());
}

void IpAddressWidget::applyScale()
{
    const int spacing = m_styleHelper->scaled(rowSpacing);
    m_grid->setVerticalSpacing(spacing);
    for (const Field *field : m_fields) {
        field->editor->setMinimumWidth(m_styleHelper->scaled(editWidth));
        field->icon->setFixedWidth(m_styleHelper->scaled(iconSize));
        // Room for the words before there are any, so that nothing moves while the user types.
        field->message->setMinimumSize(m_styleHelper->scaled(messageWidth),
                                       messageLines * field->message->fontMetrics().lineSpacing());
    }
}

bool IpAddressWidget::isAcceptable(const Field &field)
{
    return field.validator->reason(field.edit->text()).isEmpty();
}

QString IpAddressWidget::value(const Field &field)
{
    QString text = field.edit->text();
    if (!isAcceptable(field)) {
        return QString();
    }
    field.validator->fixup(text);
    return text;
}

void IpAddressWidget::showReason(const Field &field)
{
    const QString reason = field.edit->isReadOnly() ? QString() : field.validator->reason(field.edit->text());
    const int size = m_styleHelper->scaled(iconSize);
    const QIcon icon = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    field.icon->setPixmap(reason.isEmpty() ? QPixmap() : icon.pixmap(QSize(size, size), devicePixelRatioF()));
    field.message->setText(reason);
    field.edit->setAccessibleDescription(reason);
}
