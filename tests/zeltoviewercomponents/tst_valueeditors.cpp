// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorbench.h"

#include <support/logcapture.h>

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/enumeditor.h>
#include <zeltoviewercomponents/featuretree/hexvalidator.h>
#include <zeltoviewercomponents/featuretree/inteditor.h>
#include <zeltoviewercomponents/featuretree/intslidereditor.h>
#include <zeltoviewercomponents/featuretree/toolbuttoneditor.h>
#include <zeltoviewercomponents/featuretree/zeltoqtspinbox.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QSlider>
#include <QStyledItemDelegate>
#include <QTest>
#include <QWheelEvent>

#include <limits>
#include <memory>
#include <stdexcept>

using namespace ParameterCollection;

namespace {

constexpr qint64 intMinimum = std::numeric_limits<int>::min();
constexpr qint64 intMaximum = std::numeric_limits<int>::max();

void wheel(QWidget *widget)
{
    const QPointF position = QRectF(widget->rect()).center();
    QWheelEvent event(position, widget->mapToGlobal(position), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

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
    void intEditorCommitsOnce();
    void intEditorUnderADelegate();
    void typingSurvivesRefreshes();
    void entryOfTheValueBeforeARefresh();
    void hexValidator_data();
    void hexValidator();
    void sliderGridAndKeys();
    void sliderRange_data();
    void sliderRange();
    void sliderFollowsTheCamera();
    void leavingWritesNothing();
    void wheelNeedsFocus();
    void randomEntriesStayOnTheGrid();

private:
    QSharedPointer<MemoryInteger> integer(qint64 value, qint64 minimum, qint64 maximum, qint64 increment = 1,
                                          const QString &representation = QStringLiteral("Linear"));
    IntSliderEditor *sliderEditor(const QSharedPointer<MemoryInteger> &parameter);
    void showBench();
    void type(QWidget *editor, const QString &text);

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
    return m_collection->addInteger(QStringLiteral("Number"), QStringLiteral("Root"), value, minimum, maximum,
                                    increment, representation);
}

IntSliderEditor *TestValueEditors::sliderEditor(const QSharedPointer<MemoryInteger> &parameter)
{
    return m_bench->add(new IntSliderEditor(m_bench.get()), parameter, SIGNAL(valueChanged(int)));
}

void TestValueEditors::showBench()
{
    m_bench->show();
    QApplication::setActiveWindow(m_bench.get());
    QVERIFY(QTest::qWaitForWindowActive(m_bench.get()));
}

void TestValueEditors::type(QWidget *editor, const QString &text)
{
    editor->setFocus();
    auto *line = qobject_cast<QLineEdit *>(editor);
    line = line ? line : editor->findChild<QLineEdit *>();
    line->selectAll();
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void TestValueEditors::checkBoxFallsBackToTheTruth()
{
    const auto parameter = m_collection->addBoolean(QStringLiteral("Flag"), QStringLiteral("Root"));
    auto *const editor = m_bench->add(new CheckBoxEditor(m_bench.get()), parameter, SIGNAL(clicked(bool)));
    showBench();
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_Space);
    QCOMPARE(parameter->writes, QStringList(QStringLiteral("1")));
    QCOMPARE(editor->editorData(), QVariant(QStringLiteral("1")));
    QTRY_VERIFY(editor->isChecked());

    // A delegate that finds nothing to write, and no snapshot that answers.
    editor->disconnect(m_bench.get());
    QTest::keyClick(editor, Qt::Key_Space);
    QCOMPARE(editor->editorData(), QVariant(QStringLiteral("0")));
    QTRY_VERIFY(editor->isChecked());

    parameter->edit<BooleanParameterData>([](auto &data) { data.isWritable = false; });
    m_bench->refresh();
    QVERIFY(!editor->isEnabled());
    parameter->edit<BooleanParameterData>([](auto &data) { data.isWritable = true; });
    m_bench->setEnabled(false);
    m_bench->refresh();
    m_bench->setEnabled(true);
    QVERIFY(editor->isEnabled());
}

void TestValueEditors::wrongSnapshots_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QStringList>("entries");
    const QString start = QStringLiteral("0 zelto.viewer.components.featureTree.");
    QTest::newRow("check box") << QStringLiteral("bool") << QStringList();
    QTest::newRow("enumeration") << QStringLiteral("enum")
                                 << QStringList(start
                                                + QStringLiteral("enumEditor: EnumEditor::setEditorData is "
                                                                 "called with non-enumeration node????"));
    QTest::newRow("command") << QStringLiteral("command")
                             << QStringList(
                                    start
                                    + QStringLiteral("toolButtonEditor: ToolButtonEditor::setEditorData "
                                                     "is called with non-command node????"));
    QTest::newRow("integer") << QStringLiteral("int")
                             << QStringList(start
                                            + QStringLiteral("intEditor: IntEditor::setEditorData is called "
                                                             "with non-integer node????"));
    QTest::newRow("integer slider")
        << QStringLiteral("slider")
        << QStringList(start
                       + QStringLiteral("intSliderEditor: IntSliderEditor::setEditorData is called with "
                                        "non-integer node????"));
}

void TestValueEditors::wrongSnapshots()
{
    QFETCH(const QString, kind);
    const auto text =
        m_collection->addString(QStringLiteral("Text"), QStringLiteral("Root"), QStringLiteral("x"));
    QWidget parent;
    AbstractItemEditor *editor = nullptr;
    if (kind == QLatin1String("bool")) {
        editor = new CheckBoxEditor(&parent);
    } else if (kind == QLatin1String("enum")) {
        editor = new EnumEditor(&parent);
    } else if (kind == QLatin1String("command")) {
        editor = new ToolButtonEditor(&parent);
    } else if (kind == QLatin1String("int")) {
        editor = new IntEditor(&parent);
    } else {
        editor = new IntSliderEditor(&parent);
    }
    for (const auto &snapshot : {text->parameterData(), ParameterDataPtr()}) {
        LogCapture log;
        editor->setEditorData({text, snapshot});
        QTEST(log.entries(), "entries");
    }
}

void TestValueEditors::enumShowsAndCommits()
{
    const QStringList names{QStringLiteral("Off"), QStringLiteral("Once"), QStringLiteral("Continuous")};
    const auto parameter =
        m_collection->addEnum(QStringLiteral("Auto"), QStringLiteral("Root"), names, names[0]);
    parameter->edit<EnumParameterData>([](auto &data) { data.displayTexts[1] = QStringLiteral("One time"); });
    auto *const editor = m_bench->add(new EnumEditor(m_bench.get()), parameter, SIGNAL(activated(int)));
    QCOMPARE(editor->itemText(1), QStringLiteral("One time"));
    QCOMPARE(editor->editorData(), QVariant(names[0]));
    showBench();
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_Down);
    QCOMPARE(parameter->writes, QStringList(names[1]));
    QTest::keyClicks(editor, QStringLiteral("C"));
    QCOMPARE(parameter->writes, QStringList({names[1], names[2]}));
    wheel(editor);
    QCOMPARE(parameter->writes.size(), 2);

    LogCapture log;
    parameter->edit<EnumParameterData>([](auto &data) { data.valueString.clear(); });
    m_bench->refresh();
    QCOMPARE(editor->currentIndex(), -1);
    QCOMPARE(
        log.messages(),
        QStringList(QStringLiteral("EnumEditor::setEditorData: Auto. No entry in the combo box matches the "
                                   "current value ")));
    log.clear();
    parameter->edit<EnumParameterData>([](auto &data) { data.isReadable = false; });
    m_bench->refresh();
    QVERIFY(log.entries().isEmpty());
    QVERIFY(!editor->editorData().isValid());
}

void TestValueEditors::enumShowsIncompleteData()
{
    const QStringList names{QStringLiteral("A"), QStringLiteral("B")};
    const auto parameter =
        m_collection->addEnum(QStringLiteral("Mode"), QStringLiteral("Root"), names, names[0]);
    parameter->edit<EnumParameterData>([](auto &data) {
        data.displayTexts.removeLast();
        data.valueString = QStringLiteral("C");
    });
    EnumEditor editor(nullptr);
    editor.setEditorData({nullptr, parameter->parameterData()});
    QCOMPARE(editor.itemText(1), names[1]);
    QCOMPARE(editor.currentIndex(), -1);
}

void TestValueEditors::enumWaitsForItsOpenList()
{
    const QStringList names{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};
    const auto parameter =
        m_collection->addEnum(QStringLiteral("Mode"), QStringLiteral("Root"), names, names[0]);
    auto *const editor = m_bench->add(new EnumEditor(m_bench.get()), parameter, SIGNAL(activated(int)));
    showBench();
    editor->setFocus();
    editor->showPopup();
    QVERIFY(QApplication::activePopupWidget());
    parameter->edit<EnumParameterData>([](auto &data) {
        data.symbolicNames.removeFirst();
        data.displayTexts.removeFirst();
        data.valueString = QStringLiteral("C");
    });
    m_bench->refresh();
    QCOMPARE(editor->count(), 3);
    QCOMPARE(editor->currentIndex(), 0);
    editor->hidePopup();
    QTRY_COMPARE(editor->count(), 2);
    QCOMPARE(editor->currentText(), QStringLiteral("C"));
    QVERIFY(parameter->writes.isEmpty());

    // A choice made from a list that a refresh would have rebuilt is still the user's choice.
    editor->showPopup();
    m_bench->refresh();
    QTest::keyClick(editor->view(), Qt::Key_Up);
    QTest::keyClick(editor->view(), Qt::Key_Return);
    QTRY_COMPARE(parameter->writes, QStringList(QStringLiteral("B")));
    QTRY_COMPARE(editor->currentText(), QStringLiteral("B"));
    // Destroying an editor with an open list is safe.
    editor->showPopup();
    m_bench.reset();
}

void TestValueEditors::commandButton()
{
    const auto parameter = m_collection->addCommand(QStringLiteral("Start"), QStringLiteral("Root"));
    auto *const editor = m_bench->add(new ToolButtonEditor(m_bench.get()), parameter, SIGNAL(clicked(bool)));
    showBench();
    QCOMPARE(editor->text(), QStringLiteral("Execute"));
    QVERIFY(!editor->editorData().isValid());
    parameter->unforcedChecks = 0;
    QTest::mouseClick(editor, Qt::LeftButton);
    QCOMPARE(parameter->executions, 1);
    QCOMPARE(parameter->unforcedChecks, 1);
    QTRY_VERIFY(!editor->isChecked());

    parameter->edit<CommandParameterData>([](auto &data) { data.isDone = false; });
    m_bench->refresh();
    QVERIFY(editor->isChecked());
    QTest::mouseClick(editor, Qt::LeftButton);
    QCOMPARE(parameter->executions, 1);
    QTRY_VERIFY(editor->isChecked());
}

void TestValueEditors::buttonSurvivesAFailingCommand()
{
    const auto parameter = m_collection->addCommand(QStringLiteral("Start"), QStringLiteral("Root"));
    ToolButtonEditor editor(nullptr);
    editor.setEditorData({parameter, parameter->parameterData()});
    editor.setChecked(true);
    parameter->before = [](const QString &) { throw std::runtime_error("gone"); };
    LogCapture log;
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("1")));
    QCOMPARE(log.messages(),
             QStringList({QStringLiteral("!! Failed to set button state"),
                          QStringLiteral("ToolButtonEditor::editorData: gone")}));
}

void TestValueEditors::intEditorShows_data()
{
    QTest::addColumn<QString>("representation");
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("toolTip");
    const QString number = QStringLiteral("200");
    QTest::newRow("pure") << QStringLiteral("PureNumber") << qint64(255) << number << number
                          << QStringLiteral("Range: 0..255");
    QTest::newRow("hexadecimal") << QStringLiteral("HexNumber") << qint64(255) << QStringLiteral("0xc8")
                                 << QStringLiteral("0xc8") << QStringLiteral("Range: 0x0..0xff");
    QTest::newRow("64 bits") << QStringLiteral("PureNumber") << (qint64(1) << 40)
                             << QStringLiteral("9223372036854775807") << QStringLiteral("9223372036854775807")
                             << QStringLiteral("Range: 0..2147483647");
    QTest::newRow("address") << QStringLiteral("IPV4Address") << qint64(255) << QStringLiteral("10.0.0.1")
                             << QStringLiteral("10.0.0.1") << QString();
    QTest::newRow("unknown") << QStringLiteral("Spiral") << qint64(255) << number << QString() << QString();
}

void TestValueEditors::intEditorShows()
{
    QFETCH(const QString, representation);
    QFETCH(const qint64, maximum);
    QFETCH(const QString, text);
    const auto parameter = integer(200, 0, maximum, 1, representation);
    parameter->edit<IntegerParameterData>([&text](auto &data) { data.valueString = text; });
    IntEditor editor(nullptr);
    LogCapture log;
    editor.setEditorData({parameter, parameter->parameterData()});
    QTEST(editor.text(), "shown");
    QTEST(editor.toolTip(), "toolTip");
    QCOMPARE(log.messages().contains(QStringLiteral("IntEditor::setEditorData unexpected representation.")),
             representation == QLatin1String("Spiral"));
    QCOMPARE(editor.editorData(), QVariant(editor.text()));
    parameter->edit<IntegerParameterData>([](auto &data) { data.isReadable = false; });
    editor.setEditorData({parameter, parameter->parameterData()});
    QCOMPARE(editor.text(), QStringLiteral("<not readable>"));
    QVERIFY(editor.toolTip().isEmpty());
    QVERIFY(!editor.editorData().isValid());
}

void TestValueEditors::intEditorCommitsOnce()
{
    const auto parameter = integer(10, 0, 100, 1, QStringLiteral("PureNumber"));
    auto *const editor = m_bench->add(new IntEditor(m_bench.get()), parameter, SIGNAL(editingFinished()));
    auto *const other = new QLineEdit(m_bench.get());
    showBench();
    type(editor, QStringLiteral("0x20"));
    QTest::keyClick(editor, Qt::Key_Return);
    other->setFocus();
    QCOMPARE(parameter->writes, QStringList(QStringLiteral("0x20")));
    QTRY_COMPARE(editor->text(), QStringLiteral("32"));
    type(editor, QStringLiteral("500"));
    other->setFocus();
    QCOMPARE(m_bench->refusals.size(), 1);
    QCOMPARE(editor->text(), QStringLiteral("32"));
}

void TestValueEditors::intEditorUnderADelegate()
{
    const auto parameter = integer(10, 0, 100, 1, QStringLiteral("PureNumber"));
    auto *const editor = m_bench->add(new IntEditor(m_bench.get()), parameter, SIGNAL(returnPressed()));
    auto *const other = new QLineEdit(m_bench.get());
    QStyledItemDelegate delegate;
    // As a view does: the delegate's filter comes after the editor's own.
    editor->installEventFilter(&delegate);
    int closes = 0;
    connect(&delegate, &QAbstractItemDelegate::closeEditor, this, [&] {
        ++closes;
        other->setFocus();
    });
    QVariantList commits;
    connect(&delegate, &QAbstractItemDelegate::commitData, this, [&] {
        if (editor->isModified()) {
            commits.append(editor->editorData());
        }
    });
    showBench();
    type(editor, QStringLiteral("55"));
    QTest::keyClick(editor, Qt::Key_Escape);
    QVERIFY(closes > 0 && !editor->hasFocus());
    QCOMPARE(editor->text(), QStringLiteral("10"));
    QCOMPARE(commits, QVariantList());
    type(editor, QStringLiteral("56"));
    QTest::keyClick(editor, Qt::Key_Tab);
    QCOMPARE(commits, QVariantList{QStringLiteral("56")});
}

void TestValueEditors::typingSurvivesRefreshes()
{
    const auto parameter = integer(10, 0, 1000);
    for (const bool withSlider : {false, true}) {
        QWidget *const editor = withSlider
            ? static_cast<QWidget *>(sliderEditor(parameter))
            : m_bench->add(new IntEditor(m_bench.get()), parameter, SIGNAL(returnPressed()));
        auto *const line = withSlider ? editor->findChild<QLineEdit *>() : qobject_cast<QLineEdit *>(editor);
        showBench();
        type(editor, QStringLiteral("77"));
        for (int i = 0; i < 1000; ++i) {
            parameter->edit<IntegerParameterData>([i](auto &data) {
                data.value = i % 50;
                data.maximum = 50 + i;
                data.valueString = QString::number(data.value);
            });
            m_bench->refresh();
            QCOMPARE(line->text(), QStringLiteral("77"));
        }
        QCOMPARE(editor->toolTip(), QStringLiteral("Range: 0..1049"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(line->text(), QStringLiteral("49"));
        QVERIFY(parameter->writes.isEmpty());
        editor->setEnabled(false);
    }
}

void TestValueEditors::entryOfTheValueBeforeARefresh()
{
    const auto parameter = integer(10, 0, 1000);
    for (const bool withSlider : {false, true}) {
        const auto setCamera = [&](qint64 value) {
            parameter->edit<IntegerParameterData>([value](auto &data) {
                data.value = value;
                data.valueString = QString::number(value);
            });
            m_bench->refresh();
        };
        setCamera(10);
        parameter->writes.clear();
        QWidget *const editor = withSlider
            ? static_cast<QWidget *>(sliderEditor(parameter))
            : m_bench->add(new IntEditor(m_bench.get()), parameter, SIGNAL(returnPressed()));
        auto *const line = withSlider ? editor->findChild<QLineEdit *>() : qobject_cast<QLineEdit *>(editor);
        showBench();
        type(editor, QStringLiteral("10"));
        setCamera(50);
        QCOMPARE(line->text(), QStringLiteral("10"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(parameter->writes, QStringList(QStringLiteral("10")));
        editor->setEnabled(false);
    }

    // Typing that was deleted again is no value.
    auto *const editor = sliderEditor(parameter);
    parameter->writes.clear();
    type(editor, QStringLiteral("77"));
    QTest::keyClick(editor->focusProxy(), Qt::Key_Backspace);
    QTest::keyClick(editor->focusProxy(), Qt::Key_Backspace);
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    QCOMPARE(editor->findChild<QLineEdit *>()->text(), QStringLiteral("10"));
    QVERIFY(parameter->writes.isEmpty());
}

void TestValueEditors::hexValidator_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("state");
    QTest::newRow("empty") << QString() << int(QValidator::Intermediate);
    QTest::newRow("prefix") << QStringLiteral(" 0x") << int(QValidator::Intermediate);
    QTest::newRow("hexadecimal") << QStringLiteral("0xff") << int(QValidator::Acceptable);
    QTest::newRow("decimal") << QStringLiteral("16") << int(QValidator::Acceptable);
    QTest::newRow("capital prefix") << QStringLiteral("0Xff") << int(QValidator::Invalid);
    QTest::newRow("digits without prefix") << QStringLiteral("ff") << int(QValidator::Invalid);
    QTest::newRow("too large") << QStringLiteral("0x1000") << int(QValidator::Invalid);
    QTest::newRow("below") << QStringLiteral("0x5") << int(QValidator::Intermediate);
}

void TestValueEditors::hexValidator()
{
    QFETCH(QString, input);
    int position = 0;
    QTEST(int(HexValidator(16, 255, nullptr).validate(input, position)), "state");
}

void TestValueEditors::sliderGridAndKeys()
{
    const auto parameter = integer(7, 2, 1002, 5);
    IntSliderEditor *const editor = sliderEditor(parameter);
    showBench();
    QCOMPARE(editor->toolTip(), QStringLiteral("Range: 2..1002 (Increment: 5)"));
    type(editor, QStringLiteral("13"));
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    type(editor, QStringLiteral("1"));
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    QTest::keyClick(editor->focusProxy(), Qt::Key_Up);
    QTest::keyClick(editor->focusProxy(), Qt::Key_PageUp);
    type(editor, QStringLiteral("1002"));
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    QTest::keyClick(editor->focusProxy(), Qt::Key_PageUp);
    QTest::keyClick(editor->focusProxy(), Qt::Key_Down);
    QCOMPARE(parameter->writes.join(QLatin1Char(' ')), QStringLiteral("12 2 7 57 1002 997"));

    ComboSlider plain(nullptr);
    plain.setRange(0, 100);
    QCOMPARE(plain.toolTip(), QStringLiteral("Range: 0..100"));
    plain.setPageStep(50);
    plain.show();
    QTest::keyClick(plain.findChild<ZeltoQtSpinBox *>(), Qt::Key_PageUp);
    QCOMPARE(plain.value(), 50);
    auto *const line = plain.findChild<QLineEdit *>();
    QTest::keyClick(plain.findChild<ZeltoQtSpinBox *>(), Qt::Key_Backspace);
    QTest::keyClicks(plain.findChild<ZeltoQtSpinBox *>(), QStringLiteral("7"));
    QTest::keyClick(plain.findChild<ZeltoQtSpinBox *>(), Qt::Key_Escape);
    QCOMPARE(line->text(), QStringLiteral("50"));

    // A fraction is not taken for a number with groups.
    plain.setLocale(QLocale::German);
    plain.setMaximum(5000);
    line->selectAll();
    line->insert(QStringLiteral("12.5"));
    QTest::keyClick(plain.findChild<ZeltoQtSpinBox *>(), Qt::Key_Return);
    QCOMPARE(plain.value(), 50);
}

void TestValueEditors::sliderRange_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<qint64>("minimum");
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<int>("shownMaximum");
    QTest::addColumn<int>("pageStep");
    QTest::addColumn<QString>("logged");
    QTest::newRow("64 bits") << (qint64(1) << 33) << qint64(0) << (qint64(1) << 40) << int(intMaximum)
                             << 107374182 << QString();
    QTest::newRow("all 32 bits") << qint64(5) << intMinimum << intMaximum << int(intMaximum) << 2
                                 << QString();
    QTest::newRow("all 64 bits") << qint64(5) << std::numeric_limits<qint64>::min()
                                 << std::numeric_limits<qint64>::max() << int(intMaximum) << 2 << QString();
    QTest::newRow("swapped") << qint64(5) << qint64(10) << qint64(0) << 0 << 2
                             << QStringLiteral(
                                    "IntSliderEditor::setEditorData: Feature Number: min value 10 > max "
                                    "value 0???");
    QTest::newRow("outside") << qint64(50) << qint64(0) << qint64(10) << 10 << 2
                             << QStringLiteral(
                                    "IntSliderEditor::setEditorData: Feature Number: value 50 out of "
                                    "range??? min = 0, max = 10");
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
    showBench();
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
    QSignalSpy changes(editor, SIGNAL(valueChanged(int)));
    showBench();
    parameter->before = [](const QString &operation) {
        if (operation == QLatin1String("setValueFromString")) {
            throw GenICam::AccessException(QStringLiteral("locked"));
        }
    };
    type(editor, QStringLiteral("30"));
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    QCOMPARE(m_bench->refusals, QStringList(QStringLiteral("locked")));
    QCOMPARE(slider->value(), 10);
    QCOMPARE(editor->findChild<QLineEdit *>()->text(), QStringLiteral("10"));
    QCOMPARE(changes.size(), 1);

    // A refresh does not pull the handle from under the mouse, but what it said shows in the end.
    parameter->before = nullptr;
    slider->setSliderDown(true);
    slider->setSliderPosition(60);
    parameter->edit<IntegerParameterData>([](auto &data) { data.value = 58; });
    m_bench->refresh();
    QCOMPARE(slider->value(), 60);
    slider->setSliderDown(false);
    QTRY_COMPARE(slider->value(), 58);
    QCOMPARE(parameter->writes, QStringList(QStringLiteral("60")));
    parameter->edit<IntegerParameterData>([](auto &data) { data.isReadable = false; });
    LogCapture log;
    m_bench->refresh();
    QCOMPARE(log.messages(), QStringList(QStringLiteral("Non-readable slider: Number??????")));
}

void TestValueEditors::leavingWritesNothing()
{
    const auto flag = m_collection->addBoolean(QStringLiteral("Flag"), QStringLiteral("Root"));
    const auto mode = m_collection->addEnum(QStringLiteral("Mode"), QStringLiteral("Root"),
                                            {QStringLiteral("A"), QStringLiteral("B")}, QStringLiteral("A"));
    const auto number = integer(13, 2, qint64(1) << 40, 5);
    m_bench->add(new CheckBoxEditor(m_bench.get()), flag, SIGNAL(clicked(bool)));
    m_bench->add(new EnumEditor(m_bench.get()), mode, SIGNAL(activated(int)));
    m_bench->add(new IntEditor(m_bench.get()), number, SIGNAL(editingFinished()));
    sliderEditor(number);
    showBench();
    for (int round = 0; round < 2; ++round) {
        for (QWidget *editor : m_bench->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            editor->setFocus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        m_bench->refresh();
    }
    QVERIFY(flag->writes.isEmpty() && mode->writes.isEmpty() && number->writes.isEmpty());
}

void TestValueEditors::wheelNeedsFocus()
{
    const auto mode = m_collection->addEnum(QStringLiteral("Mode"), QStringLiteral("Root"),
                                            {QStringLiteral("A"), QStringLiteral("B")}, QStringLiteral("A"));
    const auto number = integer(50, 0, 100);
    auto *const combo = m_bench->add(new EnumEditor(m_bench.get()), mode, SIGNAL(activated(int)));
    IntSliderEditor *const slider = sliderEditor(number);
    auto *const other = new QLineEdit(m_bench.get());
    showBench();
    other->setFocus();
    wheel(combo);
    wheel(slider->findChild<QSlider *>());
    wheel(slider->findChild<ZeltoQtSpinBox *>());
    QVERIFY(mode->writes.isEmpty() && number->writes.isEmpty());
    combo->setFocus();
    wheel(combo);
    slider->setFocus();
    wheel(slider->findChild<ZeltoQtSpinBox *>());
    QCOMPARE(mode->writes, QStringList(QStringLiteral("B")));
    QCOMPARE(number->writes, QStringList(QStringLiteral("49")));
}

void TestValueEditors::randomEntriesStayOnTheGrid()
{
    QRandomGenerator random(4);
    const auto parameter = integer(0, 0, 1);
    IntSliderEditor *const editor = sliderEditor(parameter);
    showBench();
    for (int round = 0; round < 200; ++round) {
        const qint64 span = round % 4 == 0 ? intMaximum : 5000;
        const qint64 minimum = random.bounded(int(span)) - span / 2;
        const qint64 maximum = std::min<qint64>(minimum + 1 + random.bounded(int(span)), intMaximum);
        const int increment = random.bounded(1, 50);
        parameter->edit<IntegerParameterData>([&](auto &data) {
            data.minimum = minimum;
            data.maximum = maximum;
            data.value = minimum;
            data.increment = increment;
        });
        parameter->writes.clear();
        m_bench->refresh();
        QVERIFY(parameter->writes.isEmpty());
        type(editor, QString::number(minimum + random.bounded(int(maximum - minimum)) - 20));
        QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
        QTest::keyClick(editor->focusProxy(), random.bounded(2) != 0 ? Qt::Key_PageUp : Qt::Key_Down);
        editor->findChild<QSlider *>()->setValue(int(maximum));
        for (const QString &written : std::as_const(parameter->writes)) {
            const qint64 value = written.toLongLong();
            QVERIFY2(value >= minimum && value <= maximum && (value - minimum) % increment == 0,
                     qPrintable(written));
        }
        QVERIFY(m_bench->refusals.isEmpty());
    }
}

QTEST_MAIN(TestValueEditors)
#include "tst_valueeditors.moc"
