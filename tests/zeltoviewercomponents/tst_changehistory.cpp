// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreetest.h"

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/settings/changehistory.h>
#include <zeltoviewercomponents/settings/changehistorywidget.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingscomparisonwidget.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

using namespace ParameterCollection;

namespace {

/*! \brief A tree whose edits are recorded, in a window with actions that undo and redo. */
class HistoryBench : public TreeBench
{
public:
    explicit HistoryBench(
        const QSharedPointer<MemoryCollection> &collection = MemoryCollection::createSample())
        : TreeBench(collection)
    {
        history.open(nodeMaps());
        QObject::connect(
            &widget,
            SIGNAL(edited(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)),
            &history,
            SLOT(record(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)));
        auto *const undo = new QAction(&widget);
        undo->setShortcut(QKeySequence::Undo);
        QObject::connect(undo, SIGNAL(triggered()), &history, SLOT(undo()));
        auto *const redo = new QAction(&widget);
        redo->setShortcut(QKeySequence::Redo);
        QObject::connect(redo, SIGNAL(triggered()), &history, SLOT(redo()));
        widget.addActions({undo, redo});
    }

    QList<SettingsNodeMap> nodeMaps() const { return {{camera->name(), camera}}; }
    /*! Types \a text into the editor of a row, and Return. */
    void enter(const QString &feature, const QString &text)
    {
        click(value(feature));
        QWidget *const input = QApplication::focusWidget();
        QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(input, text);
        QTest::keyClick(input, Qt::Key_Return);
        settle();
    }
    void press(QKeySequence::StandardKey key)
    {
        QTest::keySequence(QApplication::focusWidget(), QKeySequence(key));
        settle();
    }
    QStringList lines()
    {
        settle();
        QStringList lines;
        for (int row = 0; row < history.changes()->rowCount(); ++row) {
            QStringList cells;
            for (int column = ChangeHistory::NameColumn; column < ChangeHistory::ColumnCount; ++column) {
                cells.append(history.changes()->index(row, column).data().toString());
            }
            lines.append(cells.join(QLatin1Char(' ')));
        }
        return lines;
    }

    ChangeHistory history;
    QAbstractItemModelTester tester{history.changes(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace

class TestChangeHistory : public FeatureTreeTest
{
    Q_OBJECT

private slots:
    void editsAreUndoneByKeys_data();
    void editsAreUndoneByKeys();
    void checkBoxIsUndone();
    void noDigitIsDropped();
    void keysBelongToWhatIsTyped();
    void dragIsOneStep();
    void refusalsAreListed();
    void refusedUndoStaysWhereItIs();
    void commandsAreListed_data();
    void commandsAreListed();
    void clampsAreNotRecorded();
    void selectedFeatureIsUndoneWhereItWas();
    void valuesArePutBack();
    void fileIsOneStep();
    void tellsWhatDiffers();
    void isBounded();
    void listIsSearchedAndCopied();
    void differencesAreTakenOver();

private:
    static QSharedPointer<MemoryCollection> withSelector();
};

void TestChangeHistory::editsAreUndoneByKeys_data()
{
    const auto row = [](const char *feature, const char *text) {
        QTest::newRow(feature) << QString::fromLatin1(feature) << QString::fromLatin1(text);
    };
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("text");
    row("Width", "32"); // slider
    row("OffsetX", "7"); // number
    row("ExposureTime", "1250.5"); // floating-point number with a slider
    row("Gain", "2.5");
    row("DeviceUserID", "lab");
}

void TestChangeHistory::editsAreUndoneByKeys()
{
    QFETCH(const QString, feature);
    QFETCH(const QString, text);
    HistoryBench bench;
    const QString before = bench.node(feature)->snapshot->valueString;
    const QString line = feature + ' ' + before + ' ' + text;
    bench.enter(feature, text);
    QCOMPARE(bench.node(feature)->snapshot->valueString, text);
    QCOMPARE(bench.lines(), QStringList{line + QStringLiteral(" done")});
    bench.press(QKeySequence::Undo);
    QCOMPARE(bench.node(feature)->snapshot->valueString, before);
    QCOMPARE(bench.lines(), QStringList{line + QStringLiteral(" undone")});
    bench.press(QKeySequence::Redo);
    QCOMPARE(bench.node(feature)->snapshot->valueString, text);
    QVERIFY(!bench.history.canRedo());
}

void TestChangeHistory::checkBoxIsUndone()
{
    HistoryBench bench;
    auto *const box = bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX"));
    for (int click = 0; click < 2; ++click) { // two decisions, however fast
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        bench.settle();
    }
    QCOMPARE(bench.lines(), (QStringList{"ReverseX true false done", "ReverseX false true done"}));
    bench.press(QKeySequence::Undo);
    QCOMPARE(bench.node("ReverseX")->snapshot->valueString, QStringLiteral("true"));
}

void TestChangeHistory::noDigitIsDropped()
{
    HistoryBench bench;
    bench.parameter<MemoryFloat>("Gain")->update([](FloatParameterData &data) {
        data.value = 1.0 / 3.0;
        data.valueString = QStringLiteral("0.33");
    });
    bench.enter(QStringLiteral("Gain"), QStringLiteral("2"));
    bench.press(QKeySequence::Undo);
    const auto data = bench.camera->parameter("Gain")->parameterData();
    QCOMPARE(static_cast<const FloatParameterData &>(*data).value, 1.0 / 3.0);
}

void TestChangeHistory::keysBelongToWhatIsTyped()
{
    HistoryBench bench;
    bench.enter(QStringLiteral("OffsetX"), QStringLiteral("7"));
    QTest::keyClick(bench.view(), Qt::Key_F2);
    QPointer<QLineEdit> input = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(input);
    QTest::keyClick(input, Qt::Key_End);
    QTest::keyClicks(input, QStringLiteral("12"));
    bench.press(QKeySequence::Undo);
    QVERIFY(input && input->text() != QLatin1String("712"));
    QCOMPARE(bench.node("OffsetX")->snapshot->valueString, QStringLiteral("7"));
    while (input && input->isModified() && input->isUndoAvailable()) {
        bench.press(QKeySequence::Undo);
    }
    bench.press(QKeySequence::Undo);
    QCOMPARE(bench.node("OffsetX")->snapshot->valueString, QStringLiteral("0"));
}

void TestChangeHistory::dragIsOneStep()
{
    HistoryBench bench;
    const QModelIndex cell = bench.value(QStringLiteral("Width"));
    auto *const slider = bench.view()->indexWidget(cell)->findChild<QSlider *>();
    slider->setFocus();
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(slider, Qt::Key_Left);
        bench.settle();
    }
    QCOMPARE(bench.lines().size(), 1);
    QTest::qWait(1100); // a second step from here on
    QTest::keyClick(slider, Qt::Key_Left);
    QCOMPARE(bench.lines().size(), 2);
    bench.press(QKeySequence::Undo);
    bench.press(QKeySequence::Undo);
    QCOMPARE(bench.node("Width")->snapshot->valueString, QStringLiteral("640"));
    QVERIFY(!bench.history.canUndo());
}

void TestChangeHistory::refusalsAreListed()
{
    HistoryBench bench;
    bench.node("DeviceUserID")
        ->fail({QStringLiteral("setValueFromString")}, GenICam::RuntimeException(QStringLiteral("no room")));
    bench.enter(QStringLiteral("DeviceUserID"), QStringLiteral("lab"));
    QCOMPARE(bench.lines(), QStringList{"DeviceUserID left lab refused: no room"});
    QVERIFY(!bench.history.canUndo());
}

void TestChangeHistory::refusedUndoStaysWhereItIs()
{
    HistoryBench bench;
    bench.enter(QStringLiteral("OffsetX"), QStringLiteral("7"));
    MemoryNode &node = *bench.node("OffsetX");
    node.fail({QStringLiteral("setValueFromString")}, GenICam::RuntimeException(QStringLiteral("busy")));
    QVERIFY(!bench.history.undo());
    QVERIFY(bench.history.canUndo() && !bench.history.canRedo());
    QCOMPARE(bench.lines(), QStringList{"OffsetX 0 7 done"});
    node.before = nullptr;
    QVERIFY(bench.history.undo());
    QCOMPARE(node.writes, (QStringList{"7", "0"}));
}

void TestChangeHistory::commandsAreListed_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("endsHistory");
    QTest::newRow("trigger") << QStringLiteral("TriggerSoftware") << false;
    QTest::newRow("user set") << QStringLiteral("UserSetLoad") << true;
    QTest::newRow("reset") << QStringLiteral("DeviceReset") << true;
}

void TestChangeHistory::commandsAreListed()
{
    QFETCH(const QString, command);
    QFETCH(const bool, endsHistory);
    const auto camera = MemoryCollection::createSample();
    camera->addCommand(QStringLiteral("UserSetLoad"), QStringLiteral("ImageFormatControl"));
    camera->addCommand(QStringLiteral("DeviceReset"), QStringLiteral("ImageFormatControl"));
    HistoryBench bench(camera);
    bench.enter(QStringLiteral("OffsetX"), QStringLiteral("7"));
    QTest::mouseClick(bench.view()->indexWidget(bench.value(command)), Qt::LeftButton);
    QCOMPARE(bench.lines().constFirst(), command + QStringLiteral("   executed"));
    QCOMPARE(bench.history.canUndo(), !endsHistory);
    QCOMPARE(bench.history.isModified(), true);
}

void TestChangeHistory::clampsAreNotRecorded()
{
    HistoryBench bench;
    bench.widget.EnableGenICamCallbacks(true);
    bench.parameter<MemoryInteger>("OffsetX")->update([](IntegerParameterData &data) {
        data.value = 9999;
        data.valueString = QStringLiteral("9999");
    });
    bench.settle();
    QCOMPARE(bench.node("OffsetX")->writes, QStringList{"1280"}); // the tree's own doing
    QCOMPARE(bench.lines(), QStringList());
}

QSharedPointer<MemoryCollection> TestChangeHistory::withSelector()
{
    auto camera = MemoryCollection::createSample();
    camera->addEnum(QStringLiteral("GainSelector"), QStringLiteral("AcquisitionControl"),
                    {QStringLiteral("Red"), QStringLiteral("Blue")}, QStringLiteral("Red"));
    camera->node("GainSelector")->properties.insert(QStringLiteral("pSelected"), QStringLiteral("Gain"));
    return camera;
}

// The selector may be elsewhere by now.
void TestChangeHistory::selectedFeatureIsUndoneWhereItWas()
{
    HistoryBench bench(withSelector());
    bench.enter(QStringLiteral("Gain"), QStringLiteral("2"));
    QCOMPARE(bench.lines(), QStringList{"Gain [GainSelector=Red] 1.5 2 done"});
    const auto selector = bench.parameter<MemoryEnum>("GainSelector");
    selector->update([](EnumParameterData &data) { data.valueString = QStringLiteral("Blue"); });
    QString selectedAtWrite;
    bench.node("Gain")->before = [&](const QString &operation) {
        if (operation == QLatin1String("setValueFromString")) {
            selectedAtWrite = selector->snapshot->valueString;
        }
    };
    bench.press(QKeySequence::Undo);
    QCOMPARE(selectedAtWrite, QStringLiteral("Red"));
    QCOMPARE(bench.node("Gain")->writes, (QStringList{"2", "1.5"}));
    QCOMPARE(selector->snapshot->valueString, QStringLiteral("Blue")); // where the user has it
}

void TestChangeHistory::valuesArePutBack()
{
    HistoryBench bench;
    bench.enter(QStringLiteral("OffsetX"), QStringLiteral("7"));
    bench.enter(QStringLiteral("DeviceUserID"), QStringLiteral("lab"));
    bench.settle();
    QVERIFY(bench.history.putBack(bench.history.changes()->index(1, 0), ChangeHistory::BeforeColumn));
    QCOMPARE(bench.node("OffsetX")->snapshot->valueString, QStringLiteral("0"));
    QCOMPARE(bench.lines().constFirst(), QStringLiteral("OffsetX 7 0 done"));
    bench.press(QKeySequence::Undo);
    QCOMPARE(bench.node("OffsetX")->snapshot->valueString, QStringLiteral("7"));
}

void TestChangeHistory::fileIsOneStep()
{
    HistoryBench bench;
    const auto setting = [](const char *name, const char *value) {
        return FeatureSettings::Setting{
            QStringLiteral("@CameraDevice"), QLatin1String(name), {}, QLatin1String(value), 0};
    };
    const auto settings = FeatureSettings::of({setting("Width", "32"), setting("DeviceUserID", "lab")});
    SettingsApplier applier(settings, bench.nodeMaps());
    QSignalSpy finished(&applier, SIGNAL(finished()));
    applier.start();
    QVERIFY(finished.wait());
    bench.history.recordApplied(QStringLiteral("/tmp/lab.txt"), settings, applier.former(), applier.report());
    bench.history.setUnmodified(applier.report());
    QCOMPARE(bench.history.undoText(), QStringLiteral("lab.txt"));
    QVERIFY(bench.history.undo());
    QTRY_VERIFY(bench.history.canRedo());
    QCOMPARE(bench.node("Width")->snapshot->valueString, QStringLiteral("640"));
    QCOMPARE(bench.node("DeviceUserID")->snapshot->valueString, QStringLiteral("left"));
    QVERIFY(bench.history.isModified()); // it was a file that was taken back
    QVERIFY(bench.history.redo());
    QTRY_VERIFY(bench.history.canUndo());
    QCOMPARE(bench.node("Width")->snapshot->valueString, QStringLiteral("32"));
    QVERIFY(!bench.history.isModified());
}

void TestChangeHistory::tellsWhatDiffers()
{
    HistoryBench bench;
    QSignalSpy spy(&bench.history, SIGNAL(modifiedChanged(bool)));
    bench.enter(QStringLiteral("OffsetX"), QStringLiteral("7"));
    bench.enter(QStringLiteral("Gain"), QStringLiteral("2"));
    bench.enter(QStringLiteral("OffsetX"), QStringLiteral("0")); // as it was
    QVERIFY(bench.history.isModified());
    bench.enter(QStringLiteral("Gain"), QStringLiteral("1.50"));
    QVERIFY(!bench.history.isModified());
    QCOMPARE(spy.count(), 2);
    bench.history.setUnmodified();
    bench.press(QKeySequence::Undo);
    QVERIFY(bench.history.isModified());
}

void TestChangeHistory::isBounded()
{
    constexpr int most = 100'000;
    HistoryBench bench;
    const auto parameter = bench.camera->parameter("DeviceUserID");
    bench.history.record(bench.camera->parameter("Width"), "0", "1", {});
    for (int i = 0; i < most; ++i) {
        bench.history.record(parameter, QString::number(i), QString::number(i + 1), {});
        if (i == most / 2) {
            bench.settle();
        }
    }
    bench.settle();
    QCOMPARE(bench.history.changes()->rowCount(), most);
    QCOMPARE(bench.history.changes()->index(most - 1, ChangeHistory::NameColumn).data().toString(),
             QStringLiteral("DeviceUserID")); // the oldest went
    QVERIFY(bench.history.undo());
    QCOMPARE(bench.node("DeviceUserID")->writes, QStringList{QString::number(most - 1)});
}

void TestChangeHistory::listIsSearchedAndCopied()
{
    HistoryBench bench;
    bench.enter(QStringLiteral("OffsetX"), QStringLiteral("7"));
    bench.enter(QStringLiteral("DeviceUserID"), QStringLiteral("a lab"));
    ChangeHistoryWidget list(&bench.history);
    list.show();
    QApplication::setActiveWindow(&list);
    bench.settle();
    QSignalSpy requested(&list, SIGNAL(featureRequested(QString)));
    auto *const view = list.findChild<QTreeView *>();
    QCOMPARE(view->model()->rowCount(), 2);
    view->setFocus();
    QTest::keySequence(view, QKeySequence::Find);
    QCOMPARE(QApplication::focusWidget(), list.findChild<QLineEdit *>());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("lab"));
    QCOMPARE(view->model()->rowCount(), 1);
    view->setCurrentIndex(view->model()->index(0, 0));
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(requested.value(0).value(0).toString(), QStringLiteral("@CameraDevice/DeviceUserID"));
    view->setFocus();
    QTest::keySequence(view, QKeySequence::Copy);
    const QString copied = QApplication::clipboard()->text();
    QVERIFY2(copied.endsWith("\t@CameraDevice/DeviceUserID\tleft\ta lab\tdone"), qPrintable(copied));
}

void TestChangeHistory::differencesAreTakenOver()
{
    const auto setting = [](const char *name, const char *value) {
        return FeatureSettings::Setting{
            QStringLiteral("@CameraDevice"), QLatin1String(name), {}, QLatin1String(value), 0};
    };
    const auto here = FeatureSettings::of({setting("Width", "32"), setting("Gain", "1"), setting("A", "1")});
    const auto there = FeatureSettings::of({setting("Width", "64"), setting("Gain", "2"), setting("B", "1")});
    SettingsComparisonWidget widget;
    FeatureSettings taken;
    QSignalSpy requested(&widget, SIGNAL(takeOverRequested(FeatureSettings)));
    widget.setComparison(QStringLiteral("lab.txt"), here, there);
    widget.show();
    auto *const view = widget.findChild<QTreeView *>();
    QCOMPARE(view->model()->rowCount(), 4);
    const auto boxes = widget.findChildren<QCheckBox *>();
    QTest::mouseClick(boxes.at(int(SettingsDifference::Kind::OnlyHere)), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseClick(boxes.at(int(SettingsDifference::Kind::OnlyThere)), Qt::LeftButton, {}, QPoint(8, 8));
    QCOMPARE(view->model()->rowCount(), 2);
    const auto buttons = widget.findChildren<QToolButton *>();
    const auto press = [&buttons](const char *text) {
        for (QToolButton *const button : buttons) {
            if (button->text() == QLatin1String(text)) {
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
    };
    press("Take Over"); // nothing is selected
    QCOMPARE(requested.count(), 0);
    view->setCurrentIndex(view->model()->index(1, 0));
    press("Take Over");
    press("Take Over All");
    QCOMPARE(requested.count(), 2);
    const auto values = [&requested](int call) {
        QStringList texts;
        const auto settings = requested.at(call).at(0).value<FeatureSettings>().settings();
        for (const auto &setting : settings) {
            texts.append(setting.name + '=' + setting.value);
        }
        return texts;
    };
    QCOMPARE(values(0), QStringList{"Gain=2"});
    QCOMPARE(values(1), (QStringList{"Width=64", "Gain=2"}));
}

QTEST_MAIN(TestChangeHistory)
#include "tst_changehistory.moc"
