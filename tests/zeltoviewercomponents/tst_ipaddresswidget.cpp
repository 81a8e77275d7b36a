// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <zeltoviewercomponents/errorhandling/helplink.h>
#include <zeltoviewercomponents/network/ipaddresswidget.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace {

QHostAddress address(const char *text)
{
    return QHostAddress(QString::fromLatin1(text));
}

} // namespace

class TestIpAddressWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void valuesComeBack();
    void okNeedsUsableConfiguration_data();
    void okNeedsUsableConfiguration();
    void pastedTextIsCleaned();
    void prefixLengthBecomesMask();
    void maskIsSuggested();
    void givenMaskIsKept();
    void macAddressIsShownOrEntered();
    void foreignValuesAreRefused();
    void acceptRefusesUnusable();
    void keyboardAlone();
    void helpLinkAppears();
    void nothingMovesWhileTyping();

private:
    QLineEdit *field(const char *name) const;
    QPushButton *ok() const;
    void enterUsable();
    QString shownReason(QLineEdit *edit) const;
    bool wordsFit() const;

    IpAddressWidget *m_dialog = nullptr;
};

void TestIpAddressWidget::init()
{
    m_dialog = new IpAddressWidget;
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog));
}

void TestIpAddressWidget::cleanup()
{
    delete m_dialog;
}

QLineEdit *TestIpAddressWidget::field(const char *name) const
{
    for (QLineEdit *edit : m_dialog->findChildren<QLineEdit *>()) {
        if (edit->accessibleName() == QLatin1String(name)) {
            return edit;
        }
    }
    qFatal("no field %s", name);
}

QPushButton *TestIpAddressWidget::ok() const
{
    return m_dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
}

void TestIpAddressWidget::enterUsable()
{
    m_dialog->setIpAddress(address("192.168.1.10"));
    m_dialog->setSubnetMask(address("255.255.255.0"));
    m_dialog->setDefaultGateway(address("192.168.1.1"));
    m_dialog->setMacAddress(QStringLiteral("00-1b-2c-3d-4e-5f"));
}

// The words stand in the row of the field that they are about.
QString TestIpAddressWidget::shownReason(QLineEdit *edit) const
{
    const int center = edit->mapTo(m_dialog, edit->rect().center()).y();
    QStringList texts;
    for (const QLabel *label : m_dialog->findChildren<QLabel *>()) {
        const bool sameRow = label->geometry().top() <= center && center <= label->geometry().bottom();
        if (sameRow && !label->buddy() && !label->text().isEmpty()) {
            texts.append(label->text());
        }
    }
    return texts.join(QLatin1Char('|'));
}

bool TestIpAddressWidget::wordsFit() const
{
    const QList<QLabel *> labels = m_dialog->findChildren<QLabel *>();
    return std::all_of(labels.cbegin(), labels.cend(), [](const QLabel *label) {
        return !label->wordWrap() || label->heightForWidth(label->width()) <= label->minimumHeight();
    });
}

void TestIpAddressWidget::valuesComeBack()
{
    QVERIFY(!ok()->isEnabled());
    QVERIFY(m_dialog->ipAddress().isNull());
    QCOMPARE(m_dialog->defaultGateway(), address("0.0.0.0"));
    enterUsable();
    QVERIFY(m_dialog->isUsable());
    QVERIFY(ok()->isEnabled());
    QCOMPARE(m_dialog->ipAddress(), address("192.168.1.10"));
    QCOMPARE(m_dialog->subnetMask(), address("255.255.255.0"));
    QCOMPARE(m_dialog->defaultGateway(), address("192.168.1.1"));
    QCOMPARE(m_dialog->macAddress(), QStringLiteral("00:1B:2C:3D:4E:5F"));
    QVERIFY(shownReason(field("IP address")).isEmpty());
}

void TestIpAddressWidget::okNeedsUsableConfiguration_data()
{
    QTest::addColumn<QString>("ip");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("gateway");
    QTest::addColumn<QStringList>("wrongFields");
    const QStringList none;
    const auto row = [](const char *name, const char *ip, const char *mask, const char *gateway,
                        const QStringList &wrongFields) {
        QTest::newRow(name) << QString::fromLatin1(ip) << QString::fromLatin1(mask)
                            << QString::fromLatin1(gateway) << wrongFields;
    };
    const QString ip = QStringLiteral("IP address");
    const QString mask = QStringLiteral("Subnet mask");
    const QString gateway = QStringLiteral("Default gateway");
    row("usable", "10.0.0.5", "255.255.255.0", "10.0.0.1", none);
    row("no gateway", "10.0.0.5", "255.255.255.0", "0.0.0.0", none);
    row("prefix length", "10.0.0.5", "/24", "10.0.0.1", none);
    row("31 bits", "10.0.0.4", "255.255.255.254", "10.0.0.5", none);
    row("32 bits", "10.0.0.4", "/32", "0.0.0.0", none);
    row("empty gateway", "10.0.0.5", "255.255.255.0", "", {gateway});
    row("half an address", "10.0.0", "255.255.255.0", "0.0.0.0", {ip});
    row("network", "10.0.0.0", "255.255.255.0", "0.0.0.0", {ip});
    row("broadcast", "10.0.0.255", "255.255.255.0", "0.0.0.0", {ip});
    row("broken mask", "10.0.0.5", "255.0.255.0", "10.0.0.1", {mask});
    row("gateway elsewhere", "10.0.0.5", "255.255.255.0", "10.0.1.1", {gateway});
    row("gateway is the device", "10.0.0.5", "255.255.255.0", "10.0.0.5", {gateway});
    row("gateway, 32 bits", "10.0.0.4", "/32", "10.0.0.5", {gateway});
    row("letters", "a", "b", "c", {ip, mask, gateway});
}

void TestIpAddressWidget::okNeedsUsableConfiguration()
{
    QFETCH(QString, ip);
    QFETCH(QString, mask);
    QFETCH(QString, gateway);
    QFETCH(QStringList, wrongFields);

    enterUsable();
    field("IP address")->setText(ip);
    field("Subnet mask")->setText(mask);
    field("Default gateway")->setText(gateway);
    QCOMPARE(ok()->isEnabled(), wrongFields.isEmpty());
    QCOMPARE(m_dialog->isUsable(), wrongFields.isEmpty());
    for (const char *name : {"IP address", "Subnet mask", "Default gateway", "MAC address"}) {
        const QString reason = shownReason(field(name));
        QCOMPARE(!reason.isEmpty(), wrongFields.contains(QLatin1String(name)));
        QCOMPARE(field(name)->accessibleDescription(), reason);
    }
    QCOMPARE(m_dialog->subnetMask().isNull(), wrongFields.contains(QStringLiteral("Subnet mask")));
}

void TestIpAddressWidget::pastedTextIsCleaned()
{
    QLineEdit *const edit = field("IP address");
    QGuiApplication::clipboard()->setText(QStringLiteral("  192.168.1 .10\n"));
    edit->paste();
    QCOMPARE(edit->text(), QStringLiteral("192.168.1.10"));

    // In the middle of a text the cursor stays behind what was pasted.
    edit->setText(QStringLiteral("192.10"));
    edit->setCursorPosition(4);
    QGuiApplication::clipboard()->setText(QStringLiteral(" 168.1. "));
    edit->paste();
    QCOMPARE(edit->text(), QStringLiteral("192.168.1.10"));
    QCOMPARE(edit->cursorPosition(), 10);

    QGuiApplication::clipboard()->setText(QStringLiteral("1 0.0.0.5"));
    edit->selectAll();
    edit->paste();
    QCOMPARE(edit->text(), QStringLiteral("1 0.0.0.5"));
    QVERIFY(!shownReason(edit).isEmpty());
}

void TestIpAddressWidget::prefixLengthBecomesMask()
{
    QLineEdit *const edit = field("Subnet mask");
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("/20"));
    QCOMPARE(m_dialog->subnetMask(), address("255.255.240.0"));
    QTest::keyClick(edit, Qt::Key_Tab);
    QCOMPARE(edit->text(), QStringLiteral("255.255.240.0"));
}

void TestIpAddressWidget::maskIsSuggested()
{
    QLineEdit *const edit = field("IP address");
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("172.20.1"));
    QTest::keyClick(edit, Qt::Key_Tab);
    QCOMPARE(field("Subnet mask")->text(), QString());
    edit->setFocus();
    edit->deselect();
    QTest::keyClicks(edit, QStringLiteral(".7"));
    QTest::keyClick(edit, Qt::Key_Tab);
    QCOMPARE(field("Subnet mask")->text(), QStringLiteral("255.255.0.0"));
    QVERIFY(ok()->isEnabled());
    QVERIFY(m_dialog->findChild<QComboBox *>()->findText(QStringLiteral("255.255.255.0")) >= 0);
}

void TestIpAddressWidget::givenMaskIsKept()
{
    m_dialog->setSubnetMask(address("255.255.255.240"));
    QLineEdit *const edit = field("IP address");
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("10.1.1.1"));
    QTest::keyClick(edit, Qt::Key_Tab);
    QCOMPARE(m_dialog->subnetMask(), address("255.255.255.240"));
}

void TestIpAddressWidget::macAddressIsShownOrEntered()
{
    enterUsable();
    QLineEdit *const edit = field("MAC address");
    QVERIFY(edit->isReadOnly());
    m_dialog->setMacAddress(QString());
    QVERIFY(ok()->isEnabled());
    QVERIFY(shownReason(edit).isEmpty());

    m_dialog->setMacAddressEditable(true);
    QVERIFY(m_dialog->isMacAddressEditable());
    QVERIFY(!ok()->isEnabled());
    QVERIFY(!shownReason(edit).isEmpty());
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("001b2c3d4e5f"));
    QVERIFY(ok()->isEnabled());
    QTest::keyClick(edit, Qt::Key_Tab);
    QCOMPARE(edit->text(), QStringLiteral("00:1B:2C:3D:4E:5F"));
}

void TestIpAddressWidget::foreignValuesAreRefused()
{
    enterUsable();
    m_dialog->setIpAddress(address("fe80::1"));
    QVERIFY(!m_dialog->isUsable());
    QVERIFY(m_dialog->ipAddress().isNull());
    m_dialog->setIpAddress(QHostAddress());
    QCOMPARE(field("IP address")->text(), QString());
    m_dialog->setIpAddress(QHostAddress(quint32(0)));
    QCOMPARE(field("IP address")->text(), QStringLiteral("0.0.0.0"));
    QVERIFY(!shownReason(field("IP address")).isEmpty());
}

void TestIpAddressWidget::acceptRefusesUnusable()
{
    QSignalSpy accepted(m_dialog, SIGNAL(accepted()));
    m_dialog->accept();
    QVERIFY(m_dialog->isVisible());
    QVERIFY(accepted.isEmpty());
    // A suggestion that nobody has seen is not accepted.
    m_dialog->setIpAddress(address("10.0.0.5"));
    m_dialog->accept();
    QVERIFY(m_dialog->isVisible());
    enterUsable();
    m_dialog->accept();
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(accepted.size(), 1);
}

void TestIpAddressWidget::keyboardAlone()
{
    enterUsable();
    m_dialog->setHelpAddress(QUrl(QStringLiteral("https://help.example/")));
    field("IP address")->setFocus();
    QStringList visited;
    for (int i = 0; i < 7; ++i) {
        QWidget *const focus = m_dialog->focusWidget();
        const auto *const button = qobject_cast<QPushButton *>(focus);
        visited.append(button ? QStringLiteral("button") : focus->accessibleName());
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    const QString button = QStringLiteral("button");
    QCOMPARE(visited,
             QStringList({QStringLiteral("IP address"), QStringLiteral("Subnet mask"),
                          QStringLiteral("Default gateway"), QStringLiteral("MAC address"),
                          QStringLiteral("Get help"), button, button}));

    QSignalSpy accepted(m_dialog, SIGNAL(accepted()));
    field("Subnet mask")->setFocus();
    field("Subnet mask")->selectAll();
    QTest::keyClicks(field("Subnet mask"), QStringLiteral("/28"));
    QTest::keyClick(field("Subnet mask"), Qt::Key_Return);
    QCOMPARE(accepted.size(), 1);
    QCOMPARE(m_dialog->subnetMask(), address("255.255.255.240"));
}

void TestIpAddressWidget::helpLinkAppears()
{
    auto *const link = m_dialog->findChild<HelpLink *>();
    QVERIFY(!link->isVisible());
    m_dialog->setHelpAddress(QUrl(QStringLiteral("https://help.example/")));
    QVERIFY(link->isVisible());
    m_dialog->setHelpAddress(QUrl());
    QVERIFY(!link->isVisible());
}

void TestIpAddressWidget::nothingMovesWhileTyping()
{
    // Its size is found while there is nothing to say.
    m_dialog->hide();
    enterUsable();
    m_dialog->adjustSize();
    m_dialog->show();
    QCoreApplication::processEvents();
    const QSize size = m_dialog->size();
    const QRect mask = m_dialog->findChild<QComboBox *>()->geometry();
    const QStringList texts{QString(),
                            QStringLiteral("10.0.0.255"),
                            QStringLiteral("192.168.1.10"),
                            QStringLiteral("1.2.3.4"),
                            QStringLiteral("127.0.0.1"),
                            QStringLiteral("224.0.0.1"),
                            QStringLiteral("x")};
    m_dialog->setMacAddressEditable(true);
    for (const QString &text : texts) {
        for (QLineEdit *edit : m_dialog->findChildren<QLineEdit *>()) {
            edit->setText(text);
        }
        QCoreApplication::processEvents();
        QVERIFY(wordsFit());
        QCOMPARE(m_dialog->size(), size);
        QCOMPARE(m_dialog->findChild<QComboBox *>()->geometry(), mask);
        enterUsable();
        field("Default gateway")->setText(text);
        QCoreApplication::processEvents();
        QVERIFY(wordsFit());
        QCOMPARE(m_dialog->size(), size);
        QCOMPARE(m_dialog->findChild<QComboBox *>()->geometry(), mask);
    }
}

QTEST_MAIN(TestIpAddressWidget)
#include "tst_ipaddresswidget.moc"
