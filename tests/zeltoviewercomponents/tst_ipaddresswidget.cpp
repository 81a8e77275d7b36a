// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/table.h>
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
    void maskIsSuggested();
    void macAddressIsShownOrEntered();
    void foreignValuesAreRefused();
    void acceptRefusesUnusable();
    void keyboardAlone();
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
    m_dialog->setIpAddress(QHostAddress("192.168.1.10"));
    m_dialog->setSubnetMask(QHostAddress("255.255.255.0"));
    m_dialog->setDefaultGateway(QHostAddress("192.168.1.1"));
    m_dialog->setMacAddress("00-1b-2c-3d-4e-5f");
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
    QCOMPARE(m_dialog->defaultGateway(), QHostAddress("0.0.0.0"));
    enterUsable();
    QVERIFY(m_dialog->isUsable());
    QVERIFY(ok()->isEnabled());
    QCOMPARE(m_dialog->ipAddress(), QHostAddress("192.168.1.10"));
    QCOMPARE(m_dialog->subnetMask(), QHostAddress("255.255.255.0"));
    QCOMPARE(m_dialog->defaultGateway(), QHostAddress("192.168.1.1"));
    QCOMPARE(m_dialog->macAddress(), "00:1B:2C:3D:4E:5F");
    QVERIFY(shownReason(field("IP address")).isEmpty());
}

void TestIpAddressWidget::okNeedsUsableConfiguration_data()
{
    columns<QString, QString, QString, QStringList>({"ip", "mask", "gateway", "wrongFields"});
    const QStringList none;
    const QStringList ip{"IP address"};
    const QStringList mask{"Subnet mask"};
    const QStringList gateway{"Default gateway"};
    row("usable", "10.0.0.5", "255.255.255.0", "10.0.0.1", none);
    row("no gateway", "10.0.0.5", "255.255.255.0", "0.0.0.0", none);
    row("empty gateway", "10.0.0.5", "255.255.255.0", "", gateway);
    row("broken mask", "10.0.0.5", "255.0.255.0", "10.0.0.1", mask);
    row("gateway elsewhere", "10.0.0.5", "255.255.255.0", "10.0.1.1", gateway);
    row("letters", "a", "b", "c", ip + mask + gateway);
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
    QCOMPARE(m_dialog->subnetMask().isNull(), wrongFields.contains("Subnet mask"));
}

void TestIpAddressWidget::pastedTextIsCleaned()
{
    QLineEdit *const edit = field("IP address");
    QGuiApplication::clipboard()->setText("  192.168.1 .10\n");
    edit->paste();
    QCOMPARE(edit->text(), "192.168.1.10");

    // In the middle of a text the cursor stays behind what was pasted.
    edit->setText("192.10");
    edit->setCursorPosition(4);
    QGuiApplication::clipboard()->setText(" 168.1. ");
    edit->paste();
    QCOMPARE(edit->text(), "192.168.1.10");
    QCOMPARE(edit->cursorPosition(), 10);
}

void TestIpAddressWidget::maskIsSuggested()
{
    QLineEdit *const edit = field("IP address");
    QLineEdit *const mask = field("Subnet mask");
    const auto enter = [edit](const char *text) {
        edit->setFocus();
        edit->deselect();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Tab);
    };
    enter("172.20.1");
    QCOMPARE(mask->text(), QString());
    enter(".7");
    QCOMPARE(mask->text(), "255.255.0.0");
    QVERIFY(ok()->isEnabled());
    QVERIFY(m_dialog->findChild<QComboBox *>()->findText("255.255.255.0") >= 0);
    // One that was given is kept; a prefix length becomes what it stands for.
    QTest::keyClicks(mask, "/20");
    QCOMPARE(m_dialog->subnetMask(), QHostAddress("255.255.240.0"));
    QTest::keyClick(mask, Qt::Key_Tab);
    QCOMPARE(mask->text(), "255.255.240.0");
    edit->clear();
    enter("10.1.1.1");
    QCOMPARE(mask->text(), "255.255.240.0");
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
    QTest::keyClicks(edit, "001b2c3d4e5f");
    QVERIFY(ok()->isEnabled());
    QTest::keyClick(edit, Qt::Key_Tab);
    QCOMPARE(edit->text(), "00:1B:2C:3D:4E:5F");
}

void TestIpAddressWidget::foreignValuesAreRefused()
{
    enterUsable();
    m_dialog->setIpAddress(QHostAddress("fe80::1"));
    QVERIFY(!m_dialog->isUsable());
    QVERIFY(m_dialog->ipAddress().isNull());
    m_dialog->setIpAddress(QHostAddress());
    QCOMPARE(field("IP address")->text(), QString());
    m_dialog->setIpAddress(QHostAddress(quint32(0)));
    QCOMPARE(field("IP address")->text(), "0.0.0.0");
    QVERIFY(!shownReason(field("IP address")).isEmpty());
}

void TestIpAddressWidget::acceptRefusesUnusable()
{
    QSignalSpy accepted(m_dialog, SIGNAL(accepted()));
    m_dialog->accept();
    QVERIFY(m_dialog->isVisible());
    QVERIFY(accepted.isEmpty());
    // A suggestion that nobody has seen is not accepted.
    m_dialog->setIpAddress(QHostAddress("10.0.0.5"));
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
    auto *const link = m_dialog->findChild<HelpLink *>();
    QVERIFY(!link->isVisible());
    m_dialog->setHelpAddress(QUrl("https://help.example/"));
    QVERIFY(link->isVisible());
    field("IP address")->setFocus();
    QStringList visited;
    for (int i = 0; i < 7; ++i) {
        QWidget *const focus = m_dialog->focusWidget();
        visited.append(qobject_cast<QPushButton *>(focus) ? "button" : focus->accessibleName());
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    QCOMPARE(visited.join(", "),
             "IP address, Subnet mask, Default gateway, MAC address, Get help, button, button");

    QSignalSpy accepted(m_dialog, SIGNAL(accepted()));
    field("Subnet mask")->setFocus();
    field("Subnet mask")->selectAll();
    QTest::keyClicks(field("Subnet mask"), "/28");
    QTest::keyClick(field("Subnet mask"), Qt::Key_Return);
    QCOMPARE(accepted.size(), 1);
    QCOMPARE(m_dialog->subnetMask(), QHostAddress("255.255.255.240"));
    m_dialog->setHelpAddress(QUrl());
    QVERIFY(link->isHidden());
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
    const auto nothingMoved = [&] {
        QCoreApplication::processEvents();
        return wordsFit() && m_dialog->size() == size
            && m_dialog->findChild<QComboBox *>()->geometry() == mask;
    };
    m_dialog->setMacAddressEditable(true);
    for (const char *text : {"", "10.0.0.255", "192.168.1.10", "1.2.3.4", "127.0.0.1", "224.0.0.1", "x"}) {
        for (QLineEdit *edit : m_dialog->findChildren<QLineEdit *>()) {
            edit->setText(text);
        }
        QVERIFY2(nothingMoved(), text);
        enterUsable();
        field("Default gateway")->setText(text);
        QVERIFY2(nothingMoved(), text);
    }
}

QTEST_MAIN(TestIpAddressWidget)
#include "tst_ipaddresswidget.moc"
