// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QDialog>
#include <QHostAddress>
#include <QString>

#include <array>

class AddressValidator;
class CStyleHelper;
class HelpLink;
class QComboBox;
class QDialogButtonBox;
class QGridLayout;
class QIpAddressWithNetmaskValidator;
class QIpNetmaskValidator;
class QLabel;
class QLineEdit;
class QUrl;

/*! \brief The dialog in which the user enters the IP configuration of a device.
 *
 * It takes and gives plain values and knows no device. Each field takes any text and says beside it, in
 * words, what is wrong with it; OK is enabled only for a configuration that a device can use. Blanks in
 * pasted text are removed, prefix lengths are turned into masks, and a mask is suggested for the address.
 *
 * \ingroup network
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IpAddressWidget : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(QString macAddress READ macAddress WRITE setMacAddress)
    Q_PROPERTY(bool macAddressEditable READ isMacAddressEditable WRITE setMacAddressEditable)

public:
    explicit IpAddressWidget(QWidget *parent = nullptr);
    ~IpAddressWidget() override;

    /*! Returns the IP address, null while it is not usable. */
    QHostAddress ipAddress() const;
    /*! Sets the IP address; a null one empties the field, as in the following functions. */
    void setIpAddress(const QHostAddress &address);

    /*! Returns the subnet mask, null while it is not usable. */
    QHostAddress subnetMask() const;
    /*! Sets the subnet mask. */
    void setSubnetMask(const QHostAddress &mask);

    /*! Returns the default gateway, 0.0.0.0 for none, null while it is not usable. */
    QHostAddress defaultGateway() const;
    /*! Sets the default gateway. */
    void setDefaultGateway(const QHostAddress &gateway);

    /*! Returns the MAC address in upper case with colons, empty while it is not usable. */
    QString macAddress() const;
    /*! Sets the MAC address. */
    void setMacAddress(const QString &address);

    /*! Returns whether the user may change the MAC address. */
    bool isMacAddressEditable() const;
    /*! Lets the user change the MAC address, which is only shown at first. When it can be changed, it has to
     * be usable like the other values. */
    void setMacAddressEditable(bool editable);

    /*! Sets the page that the dialog's help link opens. Without an address there is no link. */
    void setHelpAddress(const QUrl &address);

    /*! Returns whether a device can use what is entered. */
    bool isUsable() const;

public Q_SLOTS:
    /*! Closes the dialog with success, if what is entered is usable. */
    void accept() override;

protected:
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void removeBlanks();
    void tidyUp();
    void updateState();
    void applyScale();

private:
    struct Field
    {
        QWidget *editor = nullptr; //!< what stands in the dialog: the edit itself, or a box around it
        QLineEdit *edit = nullptr;
        AddressValidator *validator = nullptr;
        QLabel *icon = nullptr;
        QLabel *message = nullptr;
    };

    void addRow(Field *field, QWidget *editor, const QString &label);
    void fillMaskBox();
    static bool isAcceptable(const Field &field);
    static QString value(const Field &field);
    void showReason(const Field &field);

    QIpAddressWithNetmaskValidator *m_ipValidator;
    QIpNetmaskValidator *m_maskValidator;
    QIpAddressWithNetmaskValidator *m_gatewayValidator;
    QGridLayout *m_grid;
    CStyleHelper *m_styleHelper;
    QComboBox *m_maskBox = nullptr;
    HelpLink *m_helpLink = nullptr;
    QDialogButtonBox *m_buttons = nullptr;

    Field m_ip;
    Field m_mask;
    Field m_gateway;
    Field m_mac;
    const std::array<Field *, 4> m_fields{&m_ip, &m_mask, &m_gateway, &m_mac};
};
