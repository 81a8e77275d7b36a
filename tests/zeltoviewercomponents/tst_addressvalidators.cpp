// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/table.h>
#include <zeltoviewercomponents/network/qipaddressvalidator.h>
#include <zeltoviewercomponents/network/qipaddresswithnetmaskvalidator.h>
#include <zeltoviewercomponents/network/qipnetmaskvalidator.h>
#include <zeltoviewercomponents/network/qmacaddressvalidator.h>

#include <QSignalSpy>
#include <QTest>

#include <initializer_list>

using State = QValidator::State;

namespace {

constexpr State I = QValidator::Invalid;
constexpr State M = QValidator::Intermediate;
constexpr State A = QValidator::Acceptable;

void addColumns()
{
    columns<QString, State, QString>({"text", "state", "fixedUp"});
}

void addRow(const char *text, State state, const char *fixedUp = nullptr)
{
    QTest::addRow("'%s'", text) << text << state << (fixedUp ? fixedUp : text);
}

void addRows(State state, std::initializer_list<const char *> texts)
{
    for (const char *text : texts) {
        addRow(text, state);
    }
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
    addRows(A,
            {"192.168.1.10", "1.0.0.0", "10.0.0.255", "126.255.255.255", "128.0.0.1", "169.254.3.4",
             "223.255.255.255"});
    addRows(M, {"", "1", "0", "192.", "192.168", "192..1.1", ".168.1.1", "1.2.3.", "..."});
    addRows(M,
            {"0.0.0.0", "0.1.2.3", "127.0.0.1", "127.255.255.255", "224.0.0.1", "239.255.255.255",
             "240.0.0.0", "255.255.255.254", "255.255.255.255"});
    addRows(I,
            {"256.1.1.1", "1.2.3.256", "1000", "01.2.3.4", "1.2.3.00", "1.2.3.010", "1.2.3.4.5", "1.2.3.4.",
             "+1.2.3.4", "1.-2.3.4", "0x10.0.0.1", "a", "1,2,3,4", "::1", "1.2.3.4/24", "19 2.168.1.1",
             "١.٢.٣.٤", "99999999999.1.1.1"});
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
    addRows(
        A,
        {"128.0.0.0", "255.0.0.0", "255.255.255.0", "255.255.240.0", "255.255.255.254", "255.255.255.255"});
    addRow("/24", A, "255.255.255.0");
    addRow(" / 25 ", M, "255.255.255.128");
    addRows(M, {"", "/", "/0", "24", "255.255.", "255.2", "255.255..0"});
    addRows(M, {"0.0.0.0", "255.0.255.0", "0.255.255.255", "255.255.255.1", "1.2.3.4"});
    addRows(I,
            {"/33", "/024", "/00", "/-1", "/+8", "/2a", "//24", "/99999999999", "/24.", "255.255.255.0/24",
             "255.255.255.00", "256.0.0.0", "255.255.255.0.0"});
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
        QCOMPARE(QHostAddress::parseSubnet("10.0.0.0/" + text).second, length);
        QCOMPARE(QIpNetmaskValidator::netmask(length).toString(), text);
    }
    QCOMPARE(QIpNetmaskValidator::netmask(0), QHostAddress("0.0.0.0"));
}

void TestAddressValidators::usualNetmask_data()
{
    columns<QString>({"mask"});
    row("10.1.2.3", "255.0.0.0");
    row("172.16.0.1", "255.255.0.0");
    row("172.31.0.1", "255.255.0.0");
    row("172.32.0.1", "255.255.255.0");
    row("169.254.9.9", "255.255.0.0");
    row("192.168.1.2", "255.255.255.0");
    row("8.8.8.8", "255.255.255.0");
    for (const char *none : {"0.0.0.0", "224.0.0.1", "fe80::1", ""}) {
        row(none, "");
    }
}

void TestAddressValidators::usualNetmask()
{
    QTEST(QIpNetmaskValidator::usualNetmask(QHostAddress(QTest::currentDataTag())).toString(), "mask");
}

void TestAddressValidators::inSubnet_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("device");
    addColumns();
    const auto rows = [](const char *mask, const char *device, State state,
                         std::initializer_list<const char *> texts) {
        for (const char *text : texts) {
            QTest::addRow("%s in %s %s", text, device, mask) << mask << device << text << state << text;
        }
    };
    // Addresses of devices.
    rows("255.255.255.0", "", A, {"192.168.1.1"});
    rows("255.255.255.0", "", M, {"192.168.1.0", "192.168.1.255", "127.0.0.1", "0.0.0.0"});
    rows("255.255.255.0", "", I, {"10.0.0.01"});
    rows("255.255.0.0", "", A, {"192.168.1.0"});
    rows("255.255.255.252", "", M, {"10.0.0.7"});
    rows("255.255.255.252", "", A, {"10.0.0.6"});
    rows("255.255.255.254", "", A, {"10.0.0.0", "10.0.0.1"});
    rows("255.255.255.255", "", A, {"10.0.0.0"});
    rows("", "", A, {"192.168.1.0", "192.168.1.255"});
    rows("", "", M, {"192.168"});
    // Gateways.
    rows("255.255.255.0", "10.0.0.5", A, {"0.0.0.0", "10.0.0.1"});
    rows("255.255.255.0", "10.0.0.5", M, {"10.0.0.5", "10.0.1.1", "10.0.0.0", "10.0.0.255", "224.0.0.1"});
    rows("255.255.255.254", "10.0.0.4", A, {"10.0.0.5"});
    rows("255.255.255.254", "10.0.0.4", M, {"10.0.0.6"});
    rows("255.255.255.255", "10.0.0.4", M, {"10.0.0.5"});
    rows("255.255.255.255", "10.0.0.4", A, {"0.0.0.0"});
    rows("", "10.0.0.4", A, {"192.168.1.1"});
    rows("", "10.0.0.4", M, {"10.0.0.4", ""});
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
        validator.setNetmask(QHostAddress("255.0.0.0"));
        validator.setDevice(QHostAddress("10.0.0.1"));
    }
    QCOMPARE(changed.size(), 2);
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
    addRows(M,
            {"", "0", "00:", "00:1", "00:1B:2C:3D:4E:", "0:1b:2c:3d:4e:5f", "00::2c", "001B2C3D4E5", "a-"});
    addRow("01:00:5e:00:00:01", M, "01:00:5E:00:00:01");
    addRow("FF:FF:FF:FF:FF:FF", M);
    addRow("00:00:00:00:00:00", M);
    addRows(I,
            {"00:1B-2C", "00:1B:2C:3D:4E:5F:60", "00:1B:2C:3D:4E:5F:", "001B2C3D4E5F6", "001B:2C", "00:1G",
             "001b.2c3d.4e5f", "0x1B2C3D4E5F", "00 1B 2C", "+0:1B:2C:3D:4E:5F", "００:1B"});
}

void TestAddressValidators::mac()
{
    check(QMacAddressValidator());
}

QTEST_MAIN(TestAddressValidators)
#include "tst_addressvalidators.moc"
