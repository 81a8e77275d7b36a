// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <zeltoviewercomponents/errorhandling/messageboxcheckable.h>

#include <support/logcapture.h>
#include <support/table.h>

#include <QCheckBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

namespace {

const QString testKey = "key";

QVariant remembered(const QString &key = testKey)
{
    return QSettings().value("DoNotShowAgain/" + key);
}

void remember(const QVariant &value, const QString &key = testKey)
{
    QSettings().setValue("DoNotShowAgain/" + key, value);
}

struct Run
{
    int result = -1;
    bool shown = false;
};

// Runs the box; once it is shown, ticks its check box where wanted and does what the user is to do.
Run run(MessageBoxCheckable &box, bool tick, const std::function<void()> &answer)
{
    Run run;
    QTimer timer; // gone with this call, whether the box was shown or not
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &box, [&] {
        run.shown = box.isVisible();
        if (box.checkBox()) {
            box.checkBox()->setChecked(tick);
        }
        answer();
    });
    timer.start(0);
    run.result = box.exec();
    return run;
}

Run close(MessageBoxCheckable &box, bool tick, int result)
{
    return run(box, tick, [&box, result] { box.done(result); });
}

Run click(MessageBoxCheckable &box, bool tick, QAbstractButton *button)
{
    return run(box, tick, [button] { button->click(); });
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
    void init();
    void remembersChosenStandardButtons_data();
    void remembersChosenStandardButtons();
    void storedValue_data();
    void storedValue();
    void customButtons_data();
    void customButtons();
    void escape();
    void emptyKeys();
    void keysWithSlashes();
    void resets();
    void checkBoxIsAddedOnce();
    void foreignLayoutGetsNoCheckBox();
    void parentDestroyedWhileOpen();
    void callersCheckBoxDoesNotCount();
};

void TestMessageBoxCheckable::init()
{
    QSettings().clear();
}

void TestMessageBoxCheckable::remembersChosenStandardButtons_data()
{
    columns<QMessageBox::StandardButtons, int, bool, bool>({"flags", "result", "tick", "saved"});
    const QMessageBox::StandardButtons yesNo = QMessageBox::Yes | QMessageBox::No;
    const QMessageBox::StandardButtons none;
    row("chosen and ticked", yesNo, int(QMessageBox::Yes), true, true);
    row("the other chosen one", yesNo, int(QMessageBox::No), true, true);
    row("not ticked", yesNo, int(QMessageBox::Yes), false, false);
    row("not chosen", yesNo, int(QMessageBox::Cancel), true, false);
    row("no flags", none, int(QMessageBox::Yes), true, false);
    row("zero, no flags", none, 0, true, true);
    row("zero, no flags, not ticked", none, 0, false, false);
    row("another result, no flags", none, 1, true, false);
    row("zero with flags", yesNo, 0, true, false);
    row("more bits than flags", QMessageBox::StandardButtons(QMessageBox::Ok),
        int(QMessageBox::Ok | QMessageBox::No), true, false);
}

void TestMessageBoxCheckable::remembersChosenStandardButtons()
{
    QFETCH(QMessageBox::StandardButtons, flags);
    QFETCH(int, result);
    QFETCH(bool, tick);
    QFETCH(bool, saved);
    MessageBoxCheckable box(testKey, QMessageBox::Question, "Title", "Text",
                            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.setSaveResultOnButton(flags);
    QAbstractButton *const button = box.button(QMessageBox::StandardButton(result));
    QCOMPARE((button ? click(box, tick, button) : close(box, tick, result)).result, result);
    QCOMPARE(remembered(), saved ? QVariant(result) : QVariant());
}

void TestMessageBoxCheckable::storedValue_data()
{
    columns<QVariant, bool>({"value", "isAnswer"});
    row("zero", QVariant(0), true);
    row("a button as text", QVariant("1024"), true);
    row("negative", QVariant(-2), true);
    row("largest", QVariant(2147483647), true);
    row("words", QVariant("yes please"), false);
    row("empty", QVariant(QString()), false);
    row("list", QVariant(QStringList{"1", "2"}), false);
    row("one too many", QVariant(2147483648LL), false);
    row("huge with low bits zero", QVariant(0x100000000LL), false); // cut off to 32 bits it would be 0
    row("hexadecimal", QVariant("0x10"), false);
    row("fraction", QVariant("1.5"), false);
}

// An answer is given unshown; what is none asks again, and the new answer takes its place.
void TestMessageBoxCheckable::storedValue()
{
    QFETCH(QVariant, value);
    QFETCH(bool, isAnswer);
    remember(value);
    MessageBoxCheckable box(testKey);
    const Run run = close(box, true, 0);
    QCOMPARE(run.shown, !isAnswer);
    QCOMPARE(run.result, isAnswer ? value.toInt() : 0);
    QCOMPARE(!box.checkBox(), isAnswer);
    QCOMPARE(remembered().toString(), isAnswer ? value.toString() : QString("0"));
}

void TestMessageBoxCheckable::customButtons_data()
{
    columns<int, int, bool, bool>({"chosen", "clicked", "tick", "saved"});
    row("chosen and ticked", 1, 1, true, true);
    row("not ticked", 1, 1, false, false);
    row("not chosen", 1, 2, true, false);
    // The result of the first custom button is 0, which is remembered when no flag is set.
    row("first one", 1, 0, true, true);
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
        buttons.append(box.addButton(text, QMessageBox::ActionRole));
    }
    box.setSaveResultOnButton(buttons[chosen]);
    box.setSaveResultOnButton(static_cast<QAbstractButton *>(nullptr));
    QCOMPARE(click(box, tick, buttons[clicked]).result, clicked);
    QCOMPARE(box.clickedButton(), buttons[clicked]);
    QCOMPARE(remembered(), saved ? QVariant(clicked) : QVariant());
}

void TestMessageBoxCheckable::escape()
{
    for (const bool chosen : {false, true}) {
        MessageBoxCheckable box(testKey);
        box.setSaveResultOnButton(box.addButton("Keep", QMessageBox::AcceptRole));
        QPushButton *const leave = box.addButton("Leave", QMessageBox::RejectRole);
        if (chosen) {
            box.setSaveResultOnButton(leave);
        }
        QCOMPARE(run(box, true, [&] { QTest::keyClick(&box, Qt::Key_Escape); }).result, 1);
        QCOMPARE(box.clickedButton(), leave);
        QCOMPARE(remembered(), chosen ? QVariant(1) : QVariant());
    }
}

void TestMessageBoxCheckable::emptyKeys()
{
    remember(5);
    const LogCapture log;
    for (const char *key : {"", "/", "///"}) {
        for (int i = 0; i < 2; ++i) {
            MessageBoxCheckable box(key);
            QVERIFY(close(box, true, 0).shown);
            QVERIFY(!box.reset());
        }
    }
    QCOMPARE(QSettings().allKeys(), QStringList("DoNotShowAgain/key"));
    QCOMPARE(remembered().toInt(), 5);
    QCOMPARE(log.messages().filter("QSettings"), QStringList());
}

void TestMessageBoxCheckable::keysWithSlashes()
{
    const QString outer = "camera";
    const QString inner = "camera/close//now";
    MessageBoxCheckable box(inner);
    QVERIFY(close(box, true, 0).shown);
    MessageBoxCheckable again(inner);
    QVERIFY(!close(again, true, 1).shown);

    remember(3, outer);
    QVERIFY(again.reset());
    QCOMPARE(QSettings().allKeys(), QStringList("DoNotShowAgain/camera"));
    remember(3, inner);
    QVERIFY(MessageBoxCheckable(outer).reset());
    QCOMPARE(QSettings().allKeys(), QStringList());
}

void TestMessageBoxCheckable::resets()
{
    QSettings().setValue("Other/value", 7);
    remember(1);
    remember(2, "a/b/c");
    MessageBoxCheckable box(testKey);
    QVERIFY(box.reset());
    QVERIFY(box.reset());
    QCOMPARE(QSettings().allKeys(), QStringList({"DoNotShowAgain/a/b/c", "Other/value"}));
    QVERIFY(!close(box, false, 0).shown); // it has read its answer when it was made
    QVERIFY(MessageBoxCheckable::resetAll());
    QCOMPARE(QSettings().allKeys(), QStringList("Other/value"));
}

void TestMessageBoxCheckable::checkBoxIsAddedOnce()
{
    BoxWithAccess box(testKey);
    QVERIFY(box.addCheckBoxWidget());
    QVERIFY(!box.addCheckBoxWidget());
    const QCheckBox *const checkBox = box.checkBox();
    QCOMPARE(checkBox->text(), "&Don't show this dialog again");
    QVERIFY(checkBox->minimumHeight() > 0);
    box.setCheckBoxText("Never again");
    QCOMPARE(checkBox->text(), "Never again");

    // A second exec() asks again with the same check box.
    for (int i = 0; i < 2; ++i) {
        QVERIFY(close(box, false, 0).shown);
        QCOMPARE(box.checkBox(), checkBox);
    }
}

void TestMessageBoxCheckable::foreignLayoutGetsNoCheckBox()
{
    BoxWithAccess box(testKey);
    delete box.layout();
    new QVBoxLayout(&box);
    QVERIFY(!box.addCheckBoxWidget());
    QVERIFY(close(box, true, 0).shown);
    QVERIFY(!box.checkBox());
    QVERIFY(!remembered().isValid());
}

void TestMessageBoxCheckable::parentDestroyedWhileOpen()
{
    auto *const parent = new QWidget;
    QPointer<MessageBoxCheckable> box = new MessageBoxCheckable(testKey, parent);
    QCOMPARE(run(*box, true, [parent] { delete parent; }).result, 0);
    QVERIFY(!box);
    QVERIFY(!remembered().isValid());
}

void TestMessageBoxCheckable::callersCheckBoxDoesNotCount()
{
    BoxWithAccess box(testKey);
    QVERIFY(box.addCheckBoxWidget());
    auto *const foreign = new QCheckBox("Apply to all");
    box.setCheckBox(foreign);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    foreign->setChecked(true);
    box.saveDoNotShowAgain(0);
    QVERIFY(!remembered().isValid());
}

QTEST_MAIN(TestMessageBoxCheckable)
#include "tst_messageboxcheckable.moc"
