// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <zeltoviewercomponents/network/qipaddressvalidator.h>
#include <zeltoviewercomponents/network/qipaddresswithnetmaskvalidator.h>
#include <zeltoviewercomponents/network/qipnetmaskvalidator.h>
#include <zeltoviewercomponents/network/qmacaddressvalidator.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using State = QValidator::State;

namespace {

constexpr State I = QValidator::Invalid;
constexpr State M = QValidator::Intermediate;
constexpr State A = QValidator::Acceptable;

void addColumns()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<State>("state");
    QTest::addColumn<QString>("fixedUp");
}

void addRow(const char *text, State state, const char *fixedUp = nullptr)
{
    QTest::addRow("'%s'", text) << QString::fromUtf8(text) << state
                                << QString::fromUtf8(fixedUp ? fixedUp : text);
}

} // namespace

class TestAddressValidators : public QObject
{
    Q_OBJECT

private slots:
    void address_data();
    void address();
    void netmask_data();
    void netmask();
    void everyPrefixLength();
    void usualNetmask_data();
    void usualNetmask();
    void inSubnet_data();
    void inSubnet();
    void changesAreTold();
    void mac_data();
    void mac();
    void lineEditMendsPastedText();

private:
    static void check(const AddressValidator &validator);
};

// The reason is there exactly when the text is refused, and fixing up never makes things worse.
void TestAddressValidators::check(const AddressValidator &validator)
{
    QFETCH(QString, text);
    QFETCH(State, state);
    QFETCH(QString, fixedUp);

    QString input = text;
    int pos = 0;
    QCOMPARE(validator.validate(input, pos), state);
    QCOMPARE(input, text);
    QCOMPARE(validator.reason(text).isEmpty(), state == A);

    validator.fixup(input);
    QCOMPARE(input, fixedUp);
    QVERIFY(validator.validate(input, pos) >= state);
    validator.fixup(input);
    QCOMPARE(input, fixedUp);
}

void TestAddressValidators::address_data()
{
    addColumns();
    for (const char *usable : {"192.168.1.10", "1.0.0.0", "10.0.0.255", "126.255.255.255", "128.0.0.1",
                               "169.254.3.4", "223.255.255.255"}) {
        addRow(usable, A);
    }
    for (const char *halfTyped : {"", "1", "0", "192.", "192.168", "192..1.1", ".168.1.1", "1.2.3.", "..."}) {
        addRow(halfTyped, M);
    }
    for (const char *notOfOneDevice :
         {"0.0.0.0", "0.1.2.3", "127.0.0.1", "127.255.255.255", "224.0.0.1", "239.255.255.255", "240.0.0.0",
          "255.255.255.254", "255.255.255.255"}) {
        addRow(notOfOneDevice, M);
    }
    for (const char *wrong : {"256.1.1.1", "1.2.3.256", "1000", "01.2.3.4", "1.2.3.00", "1.2.3.010",
                              "1.2.3.4.5", "1.2.3.4.", "+1.2.3.4", "1.-2.3.4", "0x10.0.0.1", "a", "1,2,3,4",
                              "::1", "1.2.3.4/24", "19 2.168.1.1", "١.٢.٣.٤", "99999999999.1.1.1"}) {
        addRow(wrong, I);
    }
    addRow(" 192.168.1.10\t", M, "192.168.1.10");
    addRow("192 . 168. 1 .10", M, "192.168.1.10");
    addRow("\u200b10.0.0.1\u00a0", M, "10.0.0.1");
    addRow(" 192.168", M, "192.168");
    addRow(" 300.1.1.1", I, "300.1.1.1");
}

void TestAddressValidators::address()
{
    check(QIpAddressValidator());
}

void TestAddressValidators::netmask_data()
{
    addColumns();
    for (const char *usable :
         {"128.0.0.0", "255.0.0.0", "255.255.255.0", "255.255.240.0", "255.255.255.254", "255.255.255.255"}) {
        addRow(usable, A);
    }
    addRow("/24", A, "255.255.255.0");
    addRow("/1", A, "128.0.0.0");
    addRow("/32", A, "255.255.255.255");
    addRow(" / 25 ", M, "255.255.255.128");
    for (const char *halfTyped : {"", "/", "/0", "24", "255.255.", "255.2", "255.255..0"}) {
        addRow(halfTyped, M);
    }
    for (const char *noMask : {"0.0.0.0", "255.0.255.0", "0.255.255.255", "255.255.255.1", "1.2.3.4"}) {
        addRow(noMask, M);
    }
    for (const char *wrong : {"/33", "/024", "/00", "/-1", "/+8", "/2a", "//24", "/99999999999", "/24.",
                              "255.255.255.0/24", "255.255.255.00", "256.0.0.0", "255.255.255.0.0"}) {
        addRow(wrong, I);
    }
}

void TestAddressValidators::netmask()
{
    check(QIpNetmaskValidator());
}

void TestAddressValidators::everyPrefixLength()
{
    const QIpNetmaskValidator validator;
    for (int length = 1; length <= 32; ++length) {
        QString text = QStringLiteral("/%1").arg(length);
        validator.fixup(text);
        QVERIFY2(validator.reason(text).isEmpty(), qPrintable(text));
        QCOMPARE(QHostAddress::parseSubnet(QStringLiteral("10.0.0.0/") + text).second, length);
        QCOMPARE(QIpNetmaskValidator::netmask(length).toString(), text);
    }
    QCOMPARE(QIpNetmaskValidator::netmask(0), QHostAddress(QStringLiteral("0.0.0.0")));
}

void TestAddressValidators::usualNetmask_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("mask");
    const auto row = [](const char *address, const char *mask) {
        QTest::newRow(address) << QString::fromLatin1(address) << QString::fromLatin1(mask);
    };
    row("10.1.2.3", "255.0.0.0");
    row("172.16.0.1", "255.255.0.0");
    row("172.31.0.1", "255.255.0.0");
    row("172.32.0.1", "255.255.255.0");
    row("169.254.9.9", "255.255.0.0");
    row("192.168.1.2", "255.255.255.0");
    row("8.8.8.8", "255.255.255.0");
    row("0.0.0.0", "");
    row("224.0.0.1", "");
    row("fe80::1", "");
    row("", "");
}

void TestAddressValidators::usualNetmask()
{
    QFETCH(QString, address);
    QFETCH(QString, mask);
    QCOMPARE(QIpNetmaskValidator::usualNetmask(QHostAddress(address)).toString(), mask);
}

void TestAddressValidators::inSubnet_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("device");
    addColumns();
    const auto row = [](const char *mask, const char *device, const char *text, State state) {
        QTest::addRow("%s in %s %s", text, device, mask)
            << QString::fromLatin1(mask) << QString::fromLatin1(device) << QString::fromLatin1(text) << state
            << QString::fromLatin1(text);
    };
    // Addresses of devices.
    row("255.255.255.0", "", "192.168.1.1", A);
    row("255.255.255.0", "", "192.168.1.0", M);
    row("255.255.255.0", "", "192.168.1.255", M);
    row("255.255.0.0", "", "192.168.1.0", A);
    row("255.255.255.252", "", "10.0.0.7", M);
    row("255.255.255.252", "", "10.0.0.6", A);
    row("255.255.255.254", "", "10.0.0.0", A);
    row("255.255.255.254", "", "10.0.0.1", A);
    row("255.255.255.255", "", "10.0.0.0", A);
    row("255.255.255.0", "", "127.0.0.1", M);
    row("255.255.255.0", "", "0.0.0.0", M);
    row("255.255.255.0", "", "10.0.0.01", I);
    row("", "", "192.168.1.0", A);
    row("", "", "192.168.1.255", A);
    row("", "", "192.168", M);
    // Gateways.
    row("255.255.255.0", "10.0.0.5", "0.0.0.0", A);
    row("255.255.255.0", "10.0.0.5", "10.0.0.1", A);
    row("255.255.255.0", "10.0.0.5", "10.0.0.5", M);
    row("255.255.255.0", "10.0.0.5", "10.0.1.1", M);
    row("255.255.255.0", "10.0.0.5", "10.0.0.0", M);
    row("255.255.255.0", "10.0.0.5", "10.0.0.255", M);
    row("255.255.255.254", "10.0.0.4", "10.0.0.5", A);
    row("255.255.255.254", "10.0.0.4", "10.0.0.6", M);
    row("255.255.255.255", "10.0.0.4", "10.0.0.5", M);
    row("255.255.255.255", "10.0.0.4", "0.0.0.0", A);
    row("", "10.0.0.4", "192.168.1.1", A);
    row("", "10.0.0.4", "10.0.0.4", M);
    row("", "10.0.0.4", "", M);
    row("255.255.255.0", "10.0.0.5", "224.0.0.1", M);
}

void TestAddressValidators::inSubnet()
{
    QFETCH(QString, mask);
    QFETCH(QString, device);
    const auto role =
        device.isEmpty() ? QIpAddressWithNetmaskValidator::Device : QIpAddressWithNetmaskValidator::Gateway;
    QIpAddressWithNetmaskValidator validator(role);
    validator.setNetmask(QHostAddress(mask));
    validator.setDevice(QHostAddress(device));
    check(validator);
}

void TestAddressValidators::changesAreTold()
{
    QIpAddressWithNetmaskValidator validator(QIpAddressWithNetmaskValidator::Gateway);
    QSignalSpy changed(&validator, SIGNAL(changed()));
    for (int i = 0; i < 2; ++i) {
        validator.setNetmask(QHostAddress(QStringLiteral("255.0.0.0")));
        validator.setDevice(QHostAddress(QStringLiteral("10.0.0.1")));
    }
    QCOMPARE(changed.size(), 2);
    QCOMPARE(validator.netmask(), QHostAddress(QStringLiteral("255.0.0.0")));
    QCOMPARE(validator.device(), QHostAddress(QStringLiteral("10.0.0.1")));
}

void TestAddressValidators::mac_data()
{
    addColumns();
    addRow("00:1B:2C:3D:4E:5F", A);
    addRow("00:1b:2c:3d:4e:5f", A, "00:1B:2C:3D:4E:5F");
    addRow("00-1b-2C-3d-4E-5f", A, "00:1B:2C:3D:4E:5F");
    addRow("001b2c3d4e5f", A, "00:1B:2C:3D:4E:5F");
    addRow(" 00 : 1b:2c:3d:4e:5f\n", M, "00:1B:2C:3D:4E:5F");
    addRow("02:00:00:00:00:01", A);
    for (const char *halfTyped :
         {"", "0", "00:", "00:1", "00:1B:2C:3D:4E:", "0:1b:2c:3d:4e:5f", "00::2c", "001B2C3D4E5", "a-"}) {
        addRow(halfTyped, M);
    }
    addRow("01:00:5e:00:00:01", M, "01:00:5E:00:00:01");
    addRow("FF:FF:FF:FF:FF:FF", M);
    addRow("00:00:00:00:00:00", M);
    for (const char *wrong :
         {"00:1B-2C", "00:1B:2C:3D:4E:5F:60", "00:1B:2C:3D:4E:5F:", "001B2C3D4E5F6", "001B:2C", "00:1G",
          "001b.2c3d.4e5f", "0x1B2C3D4E5F", "00 1B 2C", "+0:1B:2C:3D:4E:5F", "００:1B"}) {
        addRow(wrong, I);
    }
}

void TestAddressValidators::mac()
{
    check(QMacAddressValidator());
}

void TestAddressValidators::lineEditMendsPastedText()
{
    QLineEdit edit;
    QIpAddressValidator validator;
    edit.setValidator(&validator);
    edit.insert(QStringLiteral(" 10.0.0.7 "));
    QCOMPARE(edit.text(), QStringLiteral(" 10.0.0.7 "));
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(edit.text(), QStringLiteral("10.0.0.7"));
    QVERIFY(edit.hasAcceptableInput());
}

QTEST_MAIN(TestAddressValidators)
#include "tst_addressvalidators.moc"
