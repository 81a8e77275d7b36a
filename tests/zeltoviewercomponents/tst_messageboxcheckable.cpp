// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <zeltoviewercomponents/errorhandling/messageboxcheckable.h>

#include <support/logcapture.h>

#include <QCheckBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>
#include <memory>
#include <vector>

namespace {

const QString testKey = QStringLiteral("key");

QVariant remembered(const QString &key = testKey)
{
    return QSettings().value(QStringLiteral("DoNotShowAgain/") + key);
}

void remember(const QVariant &value, const QString &key = testKey)
{
    QSettings().setValue(QStringLiteral("DoNotShowAgain/") + key, value);
}

// Runs the box; once it is shown, ticks its check box where wanted and does what the user is to do.
int run(MessageBoxCheckable &box, bool tick, const std::function<void()> &answer, bool *shown = nullptr)
{
    bool wasShown = false;
    QTimer::singleShot(0, &box, [&] {
        wasShown = box.isVisible();
        if (box.checkBox()) {
            box.checkBox()->setChecked(tick);
        }
        answer();
    });
    const int result = box.exec();
    if (shown) {
        *shown = wasShown;
    }
    return result;
}

std::function<void()> click(QAbstractButton *button)
{
    return [button] { button->click(); };
}

class BoxWithAccess : public MessageBoxCheckable
{
public:
    using MessageBoxCheckable::addCheckBoxWidget;
    using MessageBoxCheckable::MessageBoxCheckable;
};

} // namespace

class TestMessageBoxCheckable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void remembersChosenStandardButtons_data();
    void remembersChosenStandardButtons();
    void rememberedAnswerIsGivenUnshown_data();
    void rememberedAnswerIsGivenUnshown();
    void resultZeroWithoutFlags_data();
    void resultZeroWithoutFlags();
    void customButtons_data();
    void customButtons();
    void escape_data();
    void escape();
    void unusableSettingsAskAgain_data();
    void unusableSettingsAskAgain();
    void emptyKeys_data();
    void emptyKeys();
    void keysWithSlashes();
    void resetForgetsOneKey();
    void resetAllForgetsEveryKey();
    void boxesReadOnceAtConstruction();
    void checkBoxIsAddedOnce();
    void foreignLayoutGetsNoCheckBox();
    void parentDestroyedWhileOpen();
    void callersCheckBoxDoesNotCount();
};

void TestMessageBoxCheckable::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_messageboxcheckable"));
}

void TestMessageBoxCheckable::init()
{
    QSettings().clear();
}

void TestMessageBoxCheckable::remembersChosenStandardButtons_data()
{
    QTest::addColumn<QMessageBox::StandardButtons>("flags");
    QTest::addColumn<QMessageBox::StandardButton>("clicked");
    QTest::addColumn<bool>("tick");
    QTest::addColumn<bool>("saved");
    const QMessageBox::StandardButtons yesNo = QMessageBox::Yes | QMessageBox::No;
    QTest::newRow("chosen and ticked") << yesNo << QMessageBox::Yes << true << true;
    QTest::newRow("the other chosen one") << yesNo << QMessageBox::No << true << true;
    QTest::newRow("not ticked") << yesNo << QMessageBox::Yes << false << false;
    QTest::newRow("not chosen") << yesNo << QMessageBox::Cancel << true << false;
    QTest::newRow("no flags") << QMessageBox::StandardButtons() << QMessageBox::Yes << true << false;
}

void TestMessageBoxCheckable::remembersChosenStandardButtons()
{
    QFETCH(QMessageBox::StandardButtons, flags);
    QFETCH(QMessageBox::StandardButton, clicked);
    QFETCH(bool, tick);
    QFETCH(bool, saved);

    MessageBoxCheckable box(testKey, QMessageBox::Question, QStringLiteral("Title"), QStringLiteral("Text"),
                            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.setSaveResultOnButton(flags);
    QCOMPARE(box.saveResultOnButton(), flags);
    QCOMPARE(run(box, tick, click(box.button(clicked))), int(clicked));
    QCOMPARE(remembered().isValid(), saved);
    if (saved) {
        QCOMPARE(remembered().toInt(), int(clicked));
        MessageBoxCheckable next(testKey);
        QCOMPARE(next.exec(), int(clicked));
        QVERIFY(!next.isVisible());
    }
}

void TestMessageBoxCheckable::rememberedAnswerIsGivenUnshown_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("result");
    QTest::newRow("zero") << QVariant(0) << 0;
    QTest::newRow("a button") << QVariant(int(QMessageBox::Yes)) << int(QMessageBox::Yes);
    QTest::newRow("as text") << QVariant(QStringLiteral("1024")) << 1024;
    QTest::newRow("negative") << QVariant(-2) << -2;
    QTest::newRow("largest") << QVariant(2147483647) << 2147483647;
}

void TestMessageBoxCheckable::rememberedAnswerIsGivenUnshown()
{
    QFETCH(QVariant, value);
    QFETCH(int, result);
    remember(value);
    MessageBoxCheckable box(testKey);
    bool shown = true;
    QCOMPARE(run(
                 box, false, [&] { box.done(17); }, &shown),
             result);
    QVERIFY(!shown);
    QVERIFY(!box.checkBox());
    QVERIFY(!box.clickedButton());
}

void TestMessageBoxCheckable::resultZeroWithoutFlags_data()
{
    QTest::addColumn<QMessageBox::StandardButtons>("flags");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("tick");
    QTest::addColumn<bool>("saved");
    const QMessageBox::StandardButtons none;
    const QMessageBox::StandardButtons ok = QMessageBox::Ok;
    QTest::newRow("zero, no flags") << none << 0 << true << true;
    QTest::newRow("zero, no flags, not ticked") << none << 0 << false << false;
    QTest::newRow("another result, no flags") << none << 1 << true << false;
    QTest::newRow("zero with flags") << ok << 0 << true << false;
    QTest::newRow("more bits than flags") << ok << int(QMessageBox::Ok | QMessageBox::No) << true << false;
}

void TestMessageBoxCheckable::resultZeroWithoutFlags()
{
    QFETCH(QMessageBox::StandardButtons, flags);
    QFETCH(int, result);
    QFETCH(bool, tick);
    QFETCH(bool, saved);
    MessageBoxCheckable box(testKey);
    box.setSaveResultOnButton(flags);
    QCOMPARE(run(box, tick, [&] { box.done(result); }), result);
    QCOMPARE(remembered().isValid(), saved);
    QCOMPARE(remembered().toInt(), saved ? result : 0);
}

void TestMessageBoxCheckable::customButtons_data()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("clicked");
    QTest::addColumn<bool>("tick");
    QTest::addColumn<bool>("saved");
    QTest::newRow("chosen and ticked") << 1 << 1 << true << true;
    QTest::newRow("not ticked") << 1 << 1 << false << false;
    QTest::newRow("not chosen") << 1 << 2 << true << false;
    // The result of the first custom button is 0, which is remembered when no flag is set.
    QTest::newRow("first one") << 1 << 0 << true << true;
}

void TestMessageBoxCheckable::customButtons()
{
    QFETCH(int, chosen);
    QFETCH(int, clicked);
    QFETCH(bool, tick);
    QFETCH(bool, saved);
    MessageBoxCheckable box(testKey);
    QList<QAbstractButton *> buttons;
    for (const char *text : {"First", "Second", "Third"}) {
        buttons.append(box.addButton(QString::fromLatin1(text), QMessageBox::ActionRole));
    }
    box.setSaveResultOnButton(buttons[chosen]);
    box.setSaveResultOnButton(static_cast<QAbstractButton *>(nullptr));
    QCOMPARE(run(box, tick, click(buttons[clicked])), clicked);
    QCOMPARE(box.clickedButton(), buttons[clicked]);
    QCOMPARE(remembered().isValid(), saved);
    QCOMPARE(remembered().toInt(), saved ? clicked : 0);
}

void TestMessageBoxCheckable::escape_data()
{
    QTest::addColumn<bool>("chosen");
    QTest::newRow("chosen") << true;
    QTest::newRow("not chosen") << false;
}

void TestMessageBoxCheckable::escape()
{
    QFETCH(bool, chosen);
    MessageBoxCheckable box(testKey);
    QPushButton *const keep = box.addButton(QStringLiteral("Keep"), QMessageBox::AcceptRole);
    QPushButton *const leave = box.addButton(QStringLiteral("Leave"), QMessageBox::RejectRole);
    box.setSaveResultOnButton(keep);
    if (chosen) {
        box.setSaveResultOnButton(leave);
    }
    QCOMPARE(run(box, true, [&] { QTest::keyClick(&box, Qt::Key_Escape); }), 1);
    QCOMPARE(box.clickedButton(), leave);
    QCOMPARE(remembered(), chosen ? QVariant(1) : QVariant());
}

void TestMessageBoxCheckable::unusableSettingsAskAgain_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("words") << QVariant(QStringLiteral("yes please"));
    QTest::newRow("empty") << QVariant(QString());
    QTest::newRow("list") << QVariant(QStringList{QStringLiteral("1"), QStringLiteral("2")});
    QTest::newRow("huge") << QVariant(QStringLiteral("99999999999999999999"));
    QTest::newRow("one too many") << QVariant(2147483648LL);
    // Cut off to 32 bits this would be 0.
    QTest::newRow("huge with low bits zero") << QVariant(0x100000000LL);
    QTest::newRow("hexadecimal") << QVariant(QStringLiteral("0x10"));
    QTest::newRow("fraction") << QVariant(QStringLiteral("1.5"));
}

void TestMessageBoxCheckable::unusableSettingsAskAgain()
{
    QFETCH(QVariant, value);
    remember(value);
    MessageBoxCheckable box(testKey);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setSaveResultOnButton(QMessageBox::Yes);
    bool shown = false;
    QCOMPARE(run(box, true, click(box.button(QMessageBox::Yes)), &shown), int(QMessageBox::Yes));
    QVERIFY(shown);
    QCOMPARE(remembered().toInt(), int(QMessageBox::Yes));
}

void TestMessageBoxCheckable::emptyKeys_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("null") << QString();
    QTest::newRow("slash") << QStringLiteral("/");
    QTest::newRow("slashes") << QStringLiteral("///");
}

void TestMessageBoxCheckable::emptyKeys()
{
    QFETCH(QString, key);
    remember(5);
    const LogCapture log;
    for (int i = 0; i < 2; ++i) {
        MessageBoxCheckable box(key);
        bool shown = false;
        QCOMPARE(run(
                     box, true, [&] { box.done(0); }, &shown),
                 0);
        QVERIFY(shown);
        QVERIFY(!box.reset());
    }
    QCOMPARE(QSettings().allKeys(), QStringList(QStringLiteral("DoNotShowAgain/key")));
    QCOMPARE(remembered().toInt(), 5);
    QCOMPARE(log.messages().filter(QStringLiteral("QSettings")), QStringList());
}

void TestMessageBoxCheckable::keysWithSlashes()
{
    const QString outer = QStringLiteral("camera");
    const QString inner = QStringLiteral("camera/close//now");
    MessageBoxCheckable box(inner);
    QCOMPARE(run(box, true, [&] { box.done(0); }), 0);
    MessageBoxCheckable again(inner);
    bool shown = true;
    QCOMPARE(run(
                 again, true, [&] { again.done(1); }, &shown),
             0);
    QVERIFY(!shown);

    remember(3, outer);
    QVERIFY(again.reset());
    QCOMPARE(QSettings().allKeys(), QStringList(QStringLiteral("DoNotShowAgain/camera")));
    remember(3, inner);
    QVERIFY(MessageBoxCheckable(outer).reset());
    QCOMPARE(QSettings().allKeys(), QStringList());
}

void TestMessageBoxCheckable::resetForgetsOneKey()
{
    const QString other = QStringLiteral("other");
    remember(1);
    remember(2, other);
    MessageBoxCheckable box(testKey);
    QVERIFY(box.reset());
    QVERIFY(!remembered().isValid());
    QCOMPARE(remembered(other).toInt(), 2);
    QVERIFY(box.reset());

    MessageBoxCheckable next(testKey);
    bool shown = false;
    run(
        next, false, [&] { next.done(0); }, &shown);
    QVERIFY(shown);
}

void TestMessageBoxCheckable::resetAllForgetsEveryKey()
{
    const QString unrelated = QStringLiteral("Other/value");
    QSettings().setValue(unrelated, 7);
    remember(1);
    remember(2, QStringLiteral("a/b/c"));
    QVERIFY(MessageBoxCheckable::resetAll());
    QCOMPARE(QSettings().allKeys(), QStringList(unrelated));
    QVERIFY(MessageBoxCheckable::resetAll());
}

void TestMessageBoxCheckable::boxesReadOnceAtConstruction()
{
    constexpr int boxCount = 100;
    std::vector<std::unique_ptr<MessageBoxCheckable>> boxes;
    for (int i = 0; i < boxCount; ++i) {
        boxes.push_back(std::make_unique<MessageBoxCheckable>(testKey));
    }
    int shownCount = 0;
    for (const auto &box : boxes) {
        bool shown = false;
        QCOMPARE(run(
                     *box, true, [&] { box->done(0); }, &shown),
                 0);
        shownCount += shown ? 1 : 0;
    }
    QCOMPARE(shownCount, boxCount);
    QCOMPARE(QSettings().allKeys().size(), 1);

    MessageBoxCheckable late(testKey);
    QVERIFY(late.reset());
    QCOMPARE(late.exec(), 0);
    QVERIFY(!late.checkBox());
}

void TestMessageBoxCheckable::checkBoxIsAddedOnce()
{
    BoxWithAccess box(testKey);
    QCOMPARE(box.checkBoxText(), QStringLiteral("&Don't show this dialog again"));
    QVERIFY(box.addCheckBoxWidget());
    QVERIFY(!box.addCheckBoxWidget());
    QVERIFY(box.checkBox());
    QCOMPARE(box.checkBox()->text(), box.checkBoxText());
    QVERIFY(box.checkBox()->minimumHeight() > 0);
    box.setCheckBoxText(QStringLiteral("Never again"));
    QCOMPARE(box.checkBox()->text(), QStringLiteral("Never again"));

    // A second exec() asks again with the same check box.
    const QCheckBox *const checkBox = box.checkBox();
    for (int i = 0; i < 2; ++i) {
        bool shown = false;
        QCOMPARE(run(
                     box, false, [&] { box.done(0); }, &shown),
                 0);
        QVERIFY(shown);
        QCOMPARE(box.checkBox(), checkBox);
    }
}

void TestMessageBoxCheckable::foreignLayoutGetsNoCheckBox()
{
    BoxWithAccess box(testKey);
    delete box.layout();
    new QVBoxLayout(&box);
    QVERIFY(!box.addCheckBoxWidget());
    bool shown = false;
    QCOMPARE(run(
                 box, true, [&] { box.done(0); }, &shown),
             0);
    QVERIFY(shown);
    QVERIFY(!box.checkBox());
    QVERIFY(!remembered().isValid());
}

void TestMessageBoxCheckable::parentDestroyedWhileOpen()
{
    auto *const parent = new QWidget;
    QPointer<MessageBoxCheckable> box = new MessageBoxCheckable(testKey, parent);
    QCOMPARE(run(*box, true, [parent] { delete parent; }), 0);
    QVERIFY(!box);
    QVERIFY(!remembered().isValid());
}

void TestMessageBoxCheckable::callersCheckBoxDoesNotCount()
{
    BoxWithAccess box(testKey);
    QVERIFY(box.addCheckBoxWidget());
    auto *const foreign = new QCheckBox(QStringLiteral("Apply to all"));
    box.setCheckBox(foreign);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    foreign->setChecked(true);
    box.saveDoNotShowAgain(0);
    QVERIFY(!remembered().isValid());
}

QTEST_MAIN(TestMessageBoxCheckable)
#include "tst_messageboxcheckable.moc"
