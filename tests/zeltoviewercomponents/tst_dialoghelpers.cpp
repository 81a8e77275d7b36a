// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/table.h>
#include <zeltoviewercomponents/errorhandling/asyncerrorqueue.h>
#include <zeltoviewercomponents/errorhandling/cstylehelper.h>
#include <zeltoviewercomponents/errorhandling/helplink.h>
#include <zeltoviewercomponents/standardicon.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QIcon>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QSignalSpy>
#include <QStyle>
#include <QTemporaryFile>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace {

const QUrl page("https://help.example/ip?topic=a&b=<c>");
const QString pageText = "https://help.example/ip?topic=a&b=%3Cc%3E";

// The offscreen platform tells the screen of a window by its position.
constexpr QPoint onUsualScreen(100, 100);
constexpr QPoint onLargerScreen(900, 100);

} // namespace

class TestDialogHelpers : public QObject
{
    Q_OBJECT

public slots:
    void takeUrl(const QUrl &url) { m_opened.append(url); }

private slots:
    void init();
    void cleanup();
    void addressIsToldInEveryWay();
    void onlyPagesAreAccepted_data();
    void onlyPagesAreAccepted();
    void keyboardOpensThePage();
    void contextMenuCopiesTheAddress_data();
    void contextMenuCopiesTheAddress();
    void failureIsReported();
    void scaleFollowsTheScreen();
    void scaleFollowsTheWindow();
    void standardIconIsThatOfTheStyle();
    void iconsAreEmbedded_data();
    void iconsAreEmbedded();

private:
    QList<QUrl> m_opened;
};

void TestDialogHelpers::init()
{
    m_opened.clear();
}

void TestDialogHelpers::cleanup()
{
    QDesktopServices::unsetUrlHandler("https");
}

void TestDialogHelpers::addressIsToldInEveryWay()
{
    HelpLink link(page);
    QCOMPARE(link.address(), page);
    QCOMPARE(link.toolTip(), pageText);
    QCOMPARE(link.accessibleName(), "Get help");
    QCOMPARE(link.accessibleDescription(), pageText);
    QVERIFY(link.text().contains(">Get help</a>"));

    link.setAddress(QUrl());
    QVERIFY(link.text().isEmpty() && link.toolTip().isEmpty() && link.accessibleDescription().isEmpty());
    QCOMPARE(link.focusPolicy(), Qt::NoFocus);
    link.setAddress(page);
    QVERIFY(link.focusPolicy() & Qt::TabFocus);
}

void TestDialogHelpers::onlyPagesAreAccepted_data()
{
    columns<bool>({"accepted"});
    for (const char *page :
         {"http://help.example/", "HTTPS://help.example/a", "file:///usr/share/doc/index.html"}) {
        row(page, true);
    }
    for (const char *other : {"", "help.example", "https:///nowhere", "https://help.example:99999/",
                              "file://server/share/run.exe", "javascript:alert(1)", "ssh://help.example"}) {
        row(other, false);
    }
}

void TestDialogHelpers::onlyPagesAreAccepted()
{
    QFETCH(bool, accepted);
    const QUrl address(QTest::currentDataTag());
    const HelpLink link(address);
    QCOMPARE(link.address(), accepted ? address : QUrl());
    QCOMPARE(link.text().isEmpty(), !accepted);
}

void TestDialogHelpers::keyboardOpensThePage()
{
    QDesktopServices::setUrlHandler("https", this, "takeUrl");
    QWidget window;
    auto *const layout = new QVBoxLayout(&window);
    auto *const edit = new QLineEdit;
    auto *const link = new HelpLink(page);
    layout->addWidget(edit);
    layout->addWidget(link);
    window.show();
    edit->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(link->hasFocus());
    QTest::keyClick(link, Qt::Key_Return);
    QCOMPARE(m_opened, QList<QUrl>({page}));
    QTest::mouseClick(link, Qt::LeftButton, Qt::NoModifier, QPoint(8, link->height() / 2));
    QCOMPARE(m_opened, QList<QUrl>({page, page}));
}

void TestDialogHelpers::contextMenuCopiesTheAddress_data()
{
    columns<QContextMenuEvent::Reason>({"reason"});
    row("mouse", QContextMenuEvent::Mouse);
    row("keyboard", QContextMenuEvent::Keyboard);
}

void TestDialogHelpers::contextMenuCopiesTheAddress()
{
    QFETCH(QContextMenuEvent::Reason, reason);
    QGuiApplication::clipboard()->clear();
    HelpLink link(page);
    link.show();
    QContextMenuEvent event(reason, QPoint(3, 3), link.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&link, &event);
    QPointer<QMenu> menu = link.findChild<QMenu *>();
    QVERIFY(menu && menu->isVisible());
    QCOMPARE(menu->actions().size(), 1);
    QCOMPARE(menu->actions().constFirst()->text(), "Copy Link Location");
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QCOMPARE(QGuiApplication::clipboard()->text(), pageText);
    QTRY_VERIFY(!menu);
}

// The offscreen platform opens no addresses.
void TestDialogHelpers::failureIsReported()
{
    QSignalSpy shown(GetTheGlobalAsyncErrorQueue(),
                     SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *)));
    HelpLink link(page);
    link.open();
    QTRY_COMPARE(shown.size(), 1);
    QCOMPARE(shown.constFirst().at(2).toString(), pageText);
    QCOMPARE(shown.constFirst().at(3).value<QWidget *>(), &link);
    link.setAddress(QUrl());
    link.open();
    link.copyLinkLocation();
    QCoreApplication::processEvents();
    QCOMPARE(shown.size(), 1);
}

void TestDialogHelpers::scaleFollowsTheScreen()
{
    QWidget window;
    window.move(onUsualScreen);
    CStyleHelper helper(&window);
    QSignalSpy changed(&helper, SIGNAL(screenScaleChanged(qreal)));
    window.show();
    QCOMPARE(helper.screenScale(), 1.0);
    QCOMPARE(helper.scaled(15), 15);

    window.move(onLargerScreen);
    QTRY_COMPARE(helper.screenScale(), 1.5);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.constFirst().constFirst().toReal(), 1.5);
    QCOMPARE(helper.scaled(15), 23);
    QCOMPARE(helper.fontPixelSize(CStyleHelper::SmallFont), 17);
    QCOMPARE(helper.fontPixelSize(CStyleHelper::NormalFont), 20);
    QCOMPARE(CStyleHelper::scaled(16, &window), 24);

    window.move(onUsualScreen);
    QTRY_COMPARE(helper.screenScale(), 1.0);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(CStyleHelper::scaled(16, nullptr), 24); // of the primary screen
}

// A widget that is put into another window belongs to the screen of that one.
void TestDialogHelpers::scaleFollowsTheWindow()
{
    QWidget first;
    QWidget second;
    first.move(onUsualScreen);
    second.move(onLargerScreen);
    auto *const child = new QWidget(&first);
    const CStyleHelper helper(child);
    first.show();
    second.show();
    QCOMPARE(helper.screenScale(), 1.0);
    QTRY_COMPARE(second.screen()->logicalDotsPerInch(), 144.0);
    child->setParent(&second);
    child->show();
    QCOMPARE(helper.screenScale(), 1.5);
    first.move(onLargerScreen);
    first.move(onUsualScreen);
    QCoreApplication::processEvents();
    QCOMPARE(helper.screenScale(), 1.5);
    second.move(onUsualScreen);
    QTRY_COMPARE(helper.screenScale(), 1.0);
}

void TestDialogHelpers::iconsAreEmbedded_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {32, 64, 128, 256, 512}) {
        QTest::addRow("refresh_%d.png", size) << size;
    }
    for (const char *name : {"sync_16.png", "AddGigECamera_16.png", "RemGigECamera_16.png", "Move_Up.png",
                             "Move_Down.png", "searchlens_16.png", "cross_16.png"}) {
        QTest::newRow(name) << 16;
    }
}

// Each is legible on light and on dark: its strokes differ from both.
void TestDialogHelpers::iconsAreEmbedded()
{
    QFETCH(int, size);
    const QImage icon(":/zeltoviewercomponents/Resources/" + QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(icon.size(), QSize(size, size));
    int strokes = 0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const QColor color = icon.pixelColor(x, y);
            if (color.alpha() > 200) {
                ++strokes;
                QVERIFY(color.lightness() > 70 && color.lightness() < 190);
            }
        }
    }
    QVERIFY(strokes > size * size / 20);
    QVERIFY(strokes < size * size / 2);
}

void TestDialogHelpers::standardIconIsThatOfTheStyle()
{
    const auto icon = standardIcon(QStyle::SP_DialogSaveButton);
    const QIcon expected = QApplication::style()->standardIcon(QStyle::SP_DialogSaveButton);
    for (const auto mode : {QIcon::Normal, QIcon::Disabled}) {
        const QImage image = icon.pixmap(QSize(16, 16), 2.0, mode).toImage();
        QVERIFY(!image.isNull());
        QCOMPARE(image, expected.pixmap(QSize(16, 16), 2.0, mode).toImage());
    }
}

int main(int argc, char *argv[])
{
    QTemporaryFile screens;
    if (!screens.open()) {
        return 1;
    }
    screens.write(R"({"screens": [
        {"name": "larger", "x": 800, "y": 0, "width": 800, "height": 600,
         "logicalDpi": 144, "logicalBaseDpi": 144, "dpr": 1},
        {"name": "usual", "x": 0, "y": 0, "width": 800, "height": 600,
         "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    QApplication application(argc, argv);
    TestDialogHelpers test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dialoghelpers.moc"
