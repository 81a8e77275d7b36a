// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorbench.h"

#include <support/logcapture.h>
#include <support/table.h>

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/enumeditor.h>
#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/hexvalidator.h>
#include <zeltoviewercomponents/featuretree/inteditor.h>
#include <zeltoviewercomponents/featuretree/intslidereditor.h>
#include <zeltoviewercomponents/featuretree/toolbuttoneditor.h>
#include <zeltoviewercomponents/featuretree/zeltoqtspinbox.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>

using namespace ParameterCollection;

namespace {

void wheel(QWidget *widget, int delta = -120)
{
    const QPointF position = QRectF(widget->rect()).center();
    QWheelEvent event(position, widget->mapToGlobal(position), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

/*! \brief A camera that rounds what is written down to multiples of 16. */
class RoundingInteger : public MemoryInteger
{
public:
    using MemoryInteger::MemoryInteger;
    void setValueFromString(const QString &text) override
    {
        const auto answer = [this, text] {
            MemoryInteger::setValueFromString(QString::number(text.toLongLong() / 16 * 16));
        };
        if (isLate) {
            QTimer::singleShot(10, this, answer);
        } else {
            answer();
        }
    }
    bool isLate = false;
};

} // namespace

class TestValueEditors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void checkBoxFallsBackToTheTruth();
    void wrongSnapshots_data();
    void wrongSnapshots();
    void enumShowsAndCommits();
    void enumShowsIncompleteData();
    void enumWaitsForItsOpenList();
    void commandButton();
    void buttonSurvivesAFailingCommand();
    void intEditorShows_data();
    void intEditorShows();
    void hexValidator_data();
    void hexValidator();
    void sliderGridAndKeys();
    void sliderRange_data();
    void sliderRange();
    void sliderFollowsTheCamera();
    void sliderWithoutAValue_data();
    void sliderWithoutAValue();
    void typedIntegers_data();
    void typedIntegers();
    void stepsMove_data();
    void stepsMove();
    void wheelNeedsAClickOrTab_data();
    void wheelNeedsAClickOrTab();

private:
    QWidget *editorOf(const QSharedPointer<MemoryInteger> &parameter);
    QSharedPointer<MemoryInteger> integer(qint64 value, qint64 minimum, qint64 maximum, qint64 increment = 1,
                                          const QString &representation = "Linear");
    IntSliderEditor *sliderEditor(const QSharedPointer<MemoryInteger> &parameter);

    QSharedPointer<MemoryCollection> m_collection;
    std::unique_ptr<EditorBench> m_bench;
};

void TestValueEditors::init()
{
    m_bench = std::make_unique<EditorBench>();
    m_collection = QSharedPointer<MemoryCollection>::create();
}

QSharedPointer<MemoryInteger> TestValueEditors::integer(qint64 value, qint64 minimum, qint64 maximum,
                                                        qint64 increment, const QString &representation)
{
    return m_collection->addInteger("Number", "Root", value, minimum, maximum, increment, representation);
}

IntSliderEditor *TestValueEditors::sliderEditor(const QSharedPointer<MemoryInteger> &parameter)
{
    return m_bench->add(new IntSliderEditor(m_bench.get()), parameter, SIGNAL(valueChanged(int)));
}

QWidget *TestValueEditors::editorOf(const QSharedPointer<MemoryInteger> &parameter)
{
    if (parameter->propertyAccess()->property("Representation") == "Linear") {
        return sliderEditor(parameter);
    }
    return m_bench->add(new IntEditor(m_bench.get()), parameter, SIGNAL(editingFinished()));
}

void TestValueEditors::checkBoxFallsBackToTheTruth()
{
    const auto parameter = m_collection->addBoolean("Flag", "Root");
    auto *const editor = m_bench->add(new CheckBoxEditor(m_bench.get()), parameter, SIGNAL(clicked(bool)));
    m_bench->present();
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_Space);
    QCOMPARE(parameter->writes, QStringList("1"));
    QCOMPARE(editor->editorData(), QVariant("1"));
    QTRY_VERIFY(editor->isChecked());

    // A delegate that finds nothing to write, and no snapshot that answers.
    editor->disconnect(SIGNAL(clicked(bool)));
    QTest::keyClick(editor, Qt::Key_Space);
    QCOMPARE(editor->editorData(), QVariant("0"));
    QTRY_VERIFY(editor->isChecked());

    parameter->update([](auto &data) { data.isWritable = false; });
    QVERIFY(!editor->isEnabled());
    m_bench->setEnabled(false);
    parameter->update([](auto &data) { data.isWritable = true; });
    m_bench->setEnabled(true);
    QVERIFY(editor->isEnabled());
}

void TestValueEditors::wrongSnapshots_data()
{
    columns<std::function<AbstractItemEditor *(QWidget *)>, QStringList>({"create", "entries"});
    const auto rowOf = [](const char *name, const std::function<AbstractItemEditor *(QWidget *)> &create,
                          const QStringList &entries) { row(name, create, entries); };
    const QString start = "0 zelto.viewer.components.featureTree.";
    rowOf("check box", [](QWidget *parent) { return new CheckBoxEditor(parent); }, {});
    rowOf("enumeration", [](QWidget *parent) { return new EnumEditor(parent); },
          {start + "enumEditor: EnumEditor::setEditorData is called with non-enumeration node????"});
    rowOf("command", [](QWidget *parent) { return new ToolButtonEditor(parent); },
          {start + "toolButtonEditor: ToolButtonEditor::setEditorData is called with non-command node????"});
    rowOf("integer", [](QWidget *parent) { return new IntEditor(parent); },
          {start + "intEditor: IntEditor::setEditorData is called with non-integer node????"});
    rowOf("integer slider", [](QWidget *parent) { return new IntSliderEditor(parent); },
          {start + "intSliderEditor: IntSliderEditor::setEditorData is called with non-integer node????"});
}

void TestValueEditors::wrongSnapshots()
{
    QFETCH(const std::function<AbstractItemEditor *(QWidget *)>, create);
    const auto text = m_collection->addString("Text", "Root", "x");
    AbstractItemEditor *const editor = create(m_bench.get());
    for (const auto &snapshot : {text->parameterData(), ParameterDataPtr()}) {
        LogCapture log;
        editor->setEditorData({text, snapshot});
        QTEST(log.entries(), "entries");
    }
}

void TestValueEditors::enumShowsAndCommits()
{
    const QStringList names{"Off", "Once", "Continuous"};
    const auto parameter = m_collection->addEnum("Auto", "Root", names, names[0]);
    parameter->edit([](auto &data) { data.displayTexts[1] = "One time"; });
    auto *const editor = m_bench->add(new EnumEditor(m_bench.get()), parameter, SIGNAL(activated(int)));
    QCOMPARE(editor->itemText(1), "One time");
    QCOMPARE(editor->editorData(), QVariant(names[0]));
    m_bench->present();
    const QImage free = editor->grab().toImage();
    editor->setEnabled(false);
    QVERIFY(editor->grab().toImage() != free); // whichever look was drawn before
    editor->setEnabled(true);
    QCOMPARE(editor->grab().toImage(), free);
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_Down);
    QCOMPARE(parameter->writes, QStringList(names[1]));
    QTest::keyClicks(editor, "C");
    QCOMPARE(parameter->writes, QStringList({names[1], names[2]}));
    wheel(editor);
    QCOMPARE(parameter->writes.size(), 2);

    LogCapture log;
    parameter->update([](auto &data) { data.valueString.clear(); });
    QCOMPARE(editor->currentIndex(), -1);
    QCOMPARE(log.messages(),
             QStringList("EnumEditor::setEditorData: Auto. No entry in the combo box matches the "
                         "current value "));
    log.clear();
    parameter->update([](auto &data) { data.isReadable = false; });
    QVERIFY(log.entries().isEmpty());
    QVERIFY(!editor->editorData().isValid());
}

void TestValueEditors::enumShowsIncompleteData()
{
    const auto parameter = m_collection->addEnum("Mode", "Root", {"A", "B"}, "A");
    parameter->edit([](auto &data) {
        data.displayTexts.removeLast();
        data.valueString = "C";
    });
    EnumEditor editor(nullptr);
    editor.setEditorData({nullptr, parameter->parameterData()});
    QCOMPARE(editor.itemText(1), "B");
    QCOMPARE(editor.currentIndex(), -1);
}

void TestValueEditors::enumWaitsForItsOpenList()
{
    const QStringList names{"A", "B", "C"};
    const auto parameter = m_collection->addEnum("Mode", "Root", names, names[0]);
    auto *const editor = m_bench->add(new EnumEditor(m_bench.get()), parameter, SIGNAL(activated(int)));
    m_bench->present();
    editor->setFocus();
    editor->showPopup();
    QVERIFY(QApplication::activePopupWidget());
    parameter->update([](auto &data) {
        data.symbolicNames.removeFirst();
        data.displayTexts.removeFirst();
        data.valueString = "C";
    });
    QCOMPARE(editor->count(), 3);
    QCOMPARE(editor->currentIndex(), 0);
    editor->hidePopup();
    QTRY_COMPARE(editor->count(), 2);
    QCOMPARE(editor->currentText(), "C");
    QVERIFY(parameter->writes.isEmpty());

    // A choice made from a list that a refresh would have rebuilt is still the user's choice.
    editor->showPopup();
    m_bench->refresh();
    QTest::keyClick(editor->view(), Qt::Key_Up);
    QTest::keyClick(editor->view(), Qt::Key_Return);
    QTRY_COMPARE(parameter->writes, QStringList("B"));
    QTRY_COMPARE(editor->currentText(), "B");
    // Destroying an editor with an open list is safe.
    editor->showPopup();
    m_bench.reset();
}

void TestValueEditors::commandButton()
{
    const auto parameter = m_collection->addCommand("Start", "Root");
    auto *const editor = m_bench->add(new ToolButtonEditor(m_bench.get()), parameter, SIGNAL(clicked(bool)));
    m_bench->present();
    QCOMPARE(editor->text(), "Execute");
    QVERIFY(!editor->editorData().isValid());
    parameter->unforcedChecks = 0;
    QTest::mouseClick(editor, Qt::LeftButton);
    QCOMPARE(parameter->executions, 1);
    QCOMPARE(parameter->unforcedChecks, 1);
    QTRY_VERIFY(!editor->isChecked());

    parameter->update([](auto &data) { data.isDone = false; });
    QVERIFY(editor->isChecked());
    QTest::mouseClick(editor, Qt::LeftButton);
    QCOMPARE(parameter->executions, 1);
    QTRY_VERIFY(editor->isChecked());
    // That it runs shows, and that it is done even if nobody polls it.
    QCOMPARE(editor->text(), "Running…");
    QCOMPARE(editor->accessibleDescription(), "Running…");
    parameter->unforcedChecks = 0;
    QTRY_VERIFY(parameter->unforcedChecks >= 2);
    parameter->edit([](auto &data) { data.isDone = true; }); // without a word
    QTRY_COMPARE(editor->text(), "Done");
    QVERIFY(!editor->isChecked());
    parameter->unforcedChecks = 0;
    QTRY_COMPARE(editor->text(), "Execute");
    QCOMPARE(parameter->unforcedChecks, 0);
}

void TestValueEditors::buttonSurvivesAFailingCommand()
{
    const auto parameter = m_collection->addCommand("Start", "Root");
    ToolButtonEditor editor(nullptr);
    editor.setEditorData({parameter, parameter->parameterData()});
    editor.setChecked(true);
    parameter->before = [](const QString &) { throw std::runtime_error("gone"); };
    LogCapture log;
    QCOMPARE(editor.editorData(), QVariant("1"));
    QCOMPARE(log.messages(),
             QStringList({"!! Failed to set button state", "ToolButtonEditor::editorData: gone"}));
}

void TestValueEditors::intEditorShows_data()
{
    columns<QString, qint64, QString, QString, QString>(
        {"representation", "maximum", "text", "shown", "toolTip"});
    row("pure", "PureNumber", qint64(255), "200", "200", "Range: 0..255");
    row("hexadecimal", "HexNumber", qint64(255), "0xc8", "0xc8", "Range: 0x0..0xff");
    row("64 bits", "PureNumber", qint64(1) << 40, "9223372036854775807", "9223372036854775807",
        "Range: 0..2147483647");
    row("address", "IPV4Address", qint64(255), "10.0.0.1", "10.0.0.1", "");
    row("none", "", qint64(255), "200", "200", "Range: 0..255");
    row("unknown", "Spiral", qint64(255), "200", "", "");
}

void TestValueEditors::intEditorShows()
{
    QFETCH(const QString, representation);
    QFETCH(const qint64, maximum);
    QFETCH(const QString, text);
    const auto parameter = integer(200, 0, maximum, 1, representation);
    parameter->edit([&text](auto &data) { data.valueString = text; });
    IntEditor editor(nullptr);
    LogCapture log;
    editor.setEditorData({parameter, parameter->parameterData()});
    QTEST(editor.text(), "shown");
    QTEST(editor.toolTip(), "toolTip");
    QCOMPARE(log.messages().contains("IntEditor::setEditorData unexpected representation."),
             representation == "Spiral");
    QCOMPARE(editor.editorData(), representation == "Spiral" ? QVariant() : QVariant(editor.text()));
    parameter->edit([](auto &data) { data.isReadable = false; });
    editor.setEditorData({parameter, parameter->parameterData()});
    QCOMPARE(editor.text(), "<not readable>");
    QVERIFY(editor.toolTip().isEmpty());
    QVERIFY(!editor.editorData().isValid());
}

void TestValueEditors::hexValidator_data()
{
    columns<QString, QValidator::State>({"input", "state"});
    row("empty", "", QValidator::Intermediate);
    row("prefix", " 0x", QValidator::Intermediate);
    row("hexadecimal", "0xff", QValidator::Acceptable);
    row("decimal", "16", QValidator::Acceptable);
    row("capital prefix", "0Xff", QValidator::Invalid);
    row("digits without prefix", "ff", QValidator::Invalid);
    row("too large", "0x1000", QValidator::Invalid);
    row("below", "0x5", QValidator::Intermediate);
}

void TestValueEditors::hexValidator()
{
    QFETCH(QString, input);
    int position = 0;
    QTEST(HexValidator(16, 255, nullptr).validate(input, position), "state");
}

void TestValueEditors::sliderGridAndKeys()
{
    const auto parameter = integer(7, 2, 1002, 5);
    IntSliderEditor *const editor = sliderEditor(parameter);
    m_bench->present();
    QCOMPARE(editor->toolTip(), "Range: 2..1002 (Increment: 5)");
    m_bench->enter(editor, "13");
    m_bench->enter(editor, "1");
    m_bench->press(Qt::Key_Up);
    m_bench->press(Qt::Key_PageUp);
    m_bench->enter(editor, "1002");
    m_bench->press(Qt::Key_PageUp);
    m_bench->press(Qt::Key_Down);
    QCOMPARE(parameter->writes.join(QLatin1Char(' ')), "12 2 7 57 1002 997");

    ComboSlider plain(nullptr);
    plain.setRange(0, 100);
    QCOMPARE(plain.toolTip(), "Range: 0..100");
    plain.setPageStep(50);
    plain.show();
    auto *const box = plain.findChild<ZeltoQtSpinBox *>();
    QTest::keyClick(box, Qt::Key_PageUp);
    QCOMPARE(plain.value(), 50);
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClicks(box, "7");
    QTest::keyClick(box, Qt::Key_Escape);
    QCOMPARE(plain.findChild<QLineEdit *>()->text(), "50");
    // A page that is smaller than a step is a step.
    plain.setSingleStep(10);
    plain.setPageStep(5);
    QTest::keyClick(box, Qt::Key_PageUp);
    QTest::keyClick(plain.findChild<QSlider *>(), Qt::Key_PageUp);
    QCOMPARE(plain.value(), 70);
    QTest::keyClick(plain.findChild<QSlider *>(), Qt::Key_PageDown);
    QCOMPARE(plain.value(), 60);
}

void TestValueEditors::sliderRange_data()
{
    columns<qint64, qint64, qint64, int, int, QString>(
        {"value", "minimum", "maximum", "shownMaximum", "pageStep", "logged"});
    const int full = std::numeric_limits<int>::max();
    const qint64 least = std::numeric_limits<qint64>::min();
    const qint64 most = std::numeric_limits<qint64>::max();
    row("64 bits", qint64(1) << 33, qint64(0), qint64(1) << 40, full, 107374182, "");
    row("all 32 bits", qint64(5), -qint64(full) - 1, qint64(full), full, 2, "");
    row("all 64 bits", qint64(5), least, most, full, 2, "");
    row("swapped", qint64(5), qint64(10), qint64(0), 0, 2,
        "IntSliderEditor::setEditorData: Feature Number: min value 10 > max value 0???");
    row("outside", qint64(50), qint64(0), qint64(10), 10, 2,
        "IntSliderEditor::setEditorData: Feature Number: value 50 out of range??? min = 0, max = 10");
}

void TestValueEditors::sliderRange()
{
    QFETCH(const qint64, value);
    QFETCH(const qint64, minimum);
    QFETCH(const qint64, maximum);
    QFETCH(const QString, logged);
    const auto parameter = integer(value, minimum, maximum);
    LogCapture log;
    IntSliderEditor *const editor = sliderEditor(parameter);
    QCOMPARE(log.messages().value(0), logged);
    QTEST(editor->maximum(), "shownMaximum");
    QTEST(editor->pageStep(), "pageStep");
    QCOMPARE(editor->editorData(), QVariant(editor->value()));
    m_bench->present();
    editor->setFocus();
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    editor->clearFocus();
    QVERIFY(parameter->writes.isEmpty());
}

void TestValueEditors::sliderFollowsTheCamera()
{
    const auto parameter = integer(10, 0, 100);
    IntSliderEditor *const editor = sliderEditor(parameter);
    auto *const slider = editor->findChild<QSlider *>();
    m_bench->present();
    // A refresh does not pull the handle from under the mouse, but what it said shows in the end.
    slider->setSliderDown(true);
    slider->setSliderPosition(60);
    parameter->update([](auto &data) { data.value = 58; });
    QCOMPARE(slider->value(), 60);
    slider->setSliderDown(false);
    QTRY_COMPARE(slider->value(), 58);
    QCOMPARE(parameter->writes, QStringList("60"));
    LogCapture log;
    parameter->update([](auto &data) { data.isReadable = false; });
    QCOMPARE(log.messages(), QStringList("Non-readable slider: Number??????"));
}

void TestValueEditors::sliderWithoutAValue_data()
{
    columns<bool, qint64, QString, QString>({"isReadable", "maximum", "shown", "written"});
    row("write-only", false, qint64(5000), "<not readable>", "200");
    row("limits turned round", true, qint64(0), "0", "");
}

void TestValueEditors::sliderWithoutAValue()
{
    QFETCH(const bool, isReadable);
    QFETCH(const qint64, maximum);
    QFETCH(const QString, written);
    const auto parameter = integer(300, 200, maximum);
    parameter->edit([isReadable](auto &data) { data.isReadable = isReadable; });
    IntSliderEditor *const editor = sliderEditor(parameter);
    QCOMPARE(editor->maximum(), int(maximum));
    m_bench->present();
    editor->setFocus(Qt::TabFocusReason);
    QTEST(EditorBench::lineOf(editor)->text(), "shown");
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_PageDown, Qt::Key_Return}) {
        m_bench->press(key);
        QTest::keyClick(editor->findChild<QSlider *>(), key);
    }
    wheel(editor->findChild<QSlider *>(), 120);
    m_bench->enter(editor, "7000"); // what is not known is not replaced by a limit
    QCOMPARE(EditorBench::lineOf(editor)->text(), "7000");
    QVERIFY(parameter->writes.isEmpty());
    m_bench->enter(editor, "200");
    QCOMPARE(parameter->writes.join(QLatin1Char(' ')), written);
}

void TestValueEditors::typedIntegers_data()
{
    columns<QString, QLocale::Language, QString, QString, QString, QString>(
        {"representation", "language", "typed", "problem", "handedOut", "hint"});
    const auto en = QLocale::English;
    const auto de = QLocale::German;
    row("above", "Linear", en, "4000", "", "3032", "3032 is the maximum");
    row("far above", "Linear", en, "99999999999999999999", "", "3032", "3032 is the maximum");
    row("below", "Linear", en, "-5", "", "16", "16 is the minimum");
    row("beside the grid", "Linear", en, "1001", "", "1000", "1000 is the next value below, in steps of 8");
    row("fraction", "Linear", de, "3,5", "whole number", "", "");
    row("foreign fraction", "Linear", de, "3.5", "whole number", "", "");
    row("groups", "Linear", de, "1.500", "without separators", "", "");
    row("English groups", "Linear", en, "1,500", "without separators", "", "");
    row("unit", "Linear", en, "15 mm", "without a unit", "", "");
    row("prefix", "Linear", en, "0x20", "whole number", "", "");
    row("plain fraction", "PureNumber", en, "12.5", "whole number", "", "");
    row("plain with prefix", "PureNumber", de, "0x20", "", "0x20", "");
    row("own digits", "PureNumber", QLocale::Marathi, QString::fromUtf8("४०००"), "", "4000", "");
    row("plain above", "PureNumber", de, "9223372036854775807", "", "9223372036854775807", "");
    row("no representation", "", en, "3,5", "whole number", "", "");
    row("hexadecimal", "HexNumber", en, "0xaF", "", "0xaF", "");
    row("no hexadecimal digit", "HexNumber", en, "0x1g", "0 to 9 and a to f", "", "");
    row("bare digits", "HexNumber", en, "ff", "behind 0x", "", "");
    row("address", "IPV4Address", en, "10.0.0.1", "", "10.0.0.1", "");
    row("five octets", "IPV4Address", en, "10.0.0.1.2", "four numbers from 0 to 255", "", "");
    row("large octet", "IPV4Address", en, "10.0.0.256", "four numbers from 0 to 255", "", "");
    row("half an address", "IPV4Address", de, "192", "four numbers from 0 to 255", "", "");
    row("mask", "IPV4Address/SubnetMask", en, "255.255.252.0", "", "255.255.252.0", "");
    row("no mask", "IPV4Address/SubnetMask", en, "0.0.0.0", "", "0.0.0.0", "");
    row("torn mask", "IPV4Address/SubnetMask", en, "255.0.255.0", "ones must stand together", "", "");
    row("MAC", "MACAddress", en, "01:00:5e:0:0:fb", "", "01:00:5e:0:0:fb", "");
    row("short MAC", "MACAddress", en, "01:00:5e:0:0", "six hexadecimal numbers", "", "");
}

void TestValueEditors::typedIntegers()
{
    QFETCH(const QString, representation);
    QFETCH(const QLocale::Language, language);
    QFETCH(const QString, typed);
    QFETCH(const QString, problem);
    QFETCH(const QString, handedOut);
    const QStringList form = representation.split('/');
    const auto parameter = integer(640, 16, 3032, 8, form[0]);
    parameter->shortName += form.value(1);
    m_bench->setLocale(language);
    QWidget *const editor = editorOf(parameter);
    auto *const other = new QLineEdit(m_bench.get());
    m_bench->layout()->addWidget(other);
    QLineEdit *const line = EditorBench::lineOf(editor);
    m_bench->present();
    const QString toolTip = line->toolTip();
    const QColor base = line->palette().color(QPalette::Base);

    m_bench->type(editor, typed);
    QCOMPARE(line->text(), typed);
    QCOMPARE(line->palette().color(QPalette::Base) == base, problem.isEmpty());
    QVERIFY2(problem.isEmpty() ? line->toolTip() == toolTip : line->toolTip().contains(problem),
             qPrintable(line->toolTip()));
    m_bench->press(Qt::Key_Return);
    if (!problem.isEmpty()) {
        QCOMPARE(line->text(), typed);
        m_bench->refresh();
        QCOMPARE(line->text(), typed);
    }
    QFETCH(const QString, hint);
    const auto *const label = m_bench->findChild<QLabel *>("inputHint");
    QCOMPARE(label ? label->text() : QString(), problem.isEmpty() ? hint : line->toolTip());
    other->setFocus();
    QTRY_COMPARE(line->palette().color(QPalette::Base), base);
    QTRY_COMPARE(line->text(), parameter->snapshot->valueString);
    QCOMPARE(line->toolTip(), toolTip);
    // The parameter knows no addresses, and judges the limits itself.
    const QStringList result = parameter->writes + m_bench->refusals;
    QCOMPARE(result.size(), handedOut.isEmpty() ? 0 : 1);
    QVERIFY2(result.join(' ').contains(handedOut), qPrintable(result.join(' ')));
}

void TestValueEditors::stepsMove_data()
{
    columns<bool, int, QString, Qt::Key, QString>({"isRounding", "value", "typed", "key", "written"});
    row("typed at the maximum", false, 1000, "5", Qt::Key_Up, "6");
    row("typed at the minimum", false, 0, "60", Qt::Key_PageDown, "10");
    row("typed above", false, 500, "4000", Qt::Key_Down, "999");
    row("no number", false, 500, "5x", Qt::Key_Up, "");
    row("swallowed", true, 32, "", Qt::Key_Up, "32 32 128");
    row("swallowed up to the limit", true, 992, "", Qt::Key_Up, "992 992");
    row("not swallowed", true, 32, "", Qt::Key_Down, "16");
    row("typed and swallowed", true, 32, "40", Qt::Key_Return, "32");
}

void TestValueEditors::stepsMove()
{
    QFETCH(const bool, isRounding);
    QFETCH(const QString, typed);
    QFETCH(const Qt::Key, key);
    QFETCH(const int, value);
    auto parameter = integer(value, 0, 1000);
    const auto snapshot = parameter->snapshot;
    if (isRounding) {
        parameter = QSharedPointer<RoundingInteger>::create("Number", "@CameraDevice/Number");
        parameter->snapshot = snapshot;
    }
    IntSliderEditor *const editor = sliderEditor(parameter);
    m_bench->present();
    m_bench->type(editor, typed);
    m_bench->press(key);
    const QString written = parameter->writes.join(' ');
    QTEST(written, "written");
    if (!typed.isEmpty()) {
        return;
    }
    // So do the steps of the slider, also when the camera answers later, unless they are refused.
    const auto rounding = qSharedPointerDynamicCast<RoundingInteger>(parameter);
    if (rounding) {
        rounding->isLate = true;
    }
    parameter->writes.clear();
    parameter->snapshot = snapshot;
    m_bench->refresh();
    auto *const slider = editor->findChild<QSlider *>();
    QTest::keyClick(slider, key);
    QTRY_COMPARE(parameter->writes.join(' '), written);
    QTRY_COMPARE(QString::number(slider->value()), parameter->snapshot->valueString);
    if (rounding) {
        rounding->isLate = false;
    }
    parameter->fail({"setValueFromString"}, GenICam::AccessException("locked"));
    m_bench->press(key);
    QCOMPARE(m_bench->refusals.size(), 1);
}

void TestValueEditors::wheelNeedsAClickOrTab_data()
{
    columns<bool, QString, bool>({"isInteger", "how", "isWritten"});
    for (const bool isInteger : {true, false}) {
        const char *const kind = isInteger ? "integer" : "float";
        const auto add = [&](const char *how, bool isWritten) {
            QTest::addRow("%s, %s", kind, how) << isInteger << how << isWritten;
        };
        add("not at all", false);
        add("by the program", false);
        add("click", true);
        add("click after the program", true);
        add("tab", true);
        add("tab, then another window", true);
        add("tab away and back by the program", false);
    }
}

void TestValueEditors::wheelNeedsAClickOrTab()
{
    QFETCH(const bool, isInteger);
    QFETCH(const QString, how);
    QFETCH(const bool, isWritten);
    auto *const other = new QLineEdit(m_bench.get());
    m_bench->layout()->addWidget(other);
    const auto number = integer(50, 0, 100);
    const auto exposure = m_collection->addFloat("Float", "Root", 50.0, 0.0, 100.0);
    QWidget *const editor = isInteger
        ? static_cast<QWidget *>(sliderEditor(number))
        : m_bench->add(new FloatEditor(m_bench.get(), QString()), exposure, SIGNAL(boxValueChanged()));
    QWidget window;
    m_bench->present();
    other->setFocus();
    if (how.contains("program")) {
        editor->setFocus();
    }
    if (how.startsWith("click")) {
        QTest::mouseClick(EditorBench::lineOf(editor), Qt::LeftButton);
    } else if (how.startsWith("tab")) {
        other->setFocus();
        m_bench->press(Qt::Key_Tab);
        QVERIFY(editor->hasFocus());
    }
    if (how.contains("window")) {
        window.show();
        QApplication::setActiveWindow(&window);
        QApplication::setActiveWindow(m_bench.get());
    } else if (how.contains("away")) {
        m_bench->press(Qt::Key_Tab);
        editor->setFocus();
    }
    auto *const slider = editor->findChild<QSlider *>();
    wheel(slider ? static_cast<QWidget *>(slider) : EditorBench::lineOf(editor)->parentWidget());
    QCOMPARE(number->writes.size() + exposure->writes.size(), isWritten ? 1 : 0);
}

QTEST_MAIN(TestValueEditors)
#include "tst_valueeditors.moc"
