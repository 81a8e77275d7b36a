// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorbench.h"

#include <support/logcapture.h>
#include <support/table.h>

#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/floatslidereditor.h>
#include <zeltoviewercomponents/featuretree/zeltoqtdoublespinbox.h>

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QThread>

#include <cmath>
#include <limits>

using namespace ParameterCollection;
using Mode = ETwoModeDoubleComboSliderMode;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace

class TestFloatEditors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void pageStepsAndToolTips();
    void shownTextGivesBackTheValue_data();
    void shownTextGivesBackTheValue();
    void entriesFollowTheLocale_data();
    void entriesFollowTheLocale();
    void stepsStayOnTheGrid();
    void unfinishedTextIsNoValue();
    void typedTextCountsBeforeAStep();
    void oddSnapshots_data();
    void oddSnapshots();
    void positionsAreRecovered_data();
    void positionsAreRecovered();
    void dragIsCoalesced();
    void keysMoveTheSlider();

private:
    QSharedPointer<MemoryFloat> feature(double value, double minimum, double maximum, double increment = 0.0,
                                        const QString &representation = QString());
    FloatEditor *floatEditor(const QSharedPointer<MemoryFloat> &parameter);
    FloatSliderEditor *sliderEditor(const QSharedPointer<MemoryFloat> &parameter);

    QSharedPointer<MemoryCollection> m_collection;
    std::unique_ptr<EditorBench> m_bench;
};

void TestFloatEditors::init()
{
    QLocale::setDefault(QLocale::c());
    m_bench = std::make_unique<EditorBench>();
    m_collection = QSharedPointer<MemoryCollection>::create();
    m_collection->addInteger("Raw", "Root", 0, 0, 1000, 1);
    m_collection->setAlias("Feature", "Raw");
}

QSharedPointer<MemoryFloat> TestFloatEditors::feature(double value, double minimum, double maximum,
                                                      double increment, const QString &representation)
{
    return m_collection->addFloat("Feature", "Root", value, minimum, maximum, increment, representation);
}

FloatEditor *TestFloatEditors::floatEditor(const QSharedPointer<MemoryFloat> &parameter)
{
    return m_bench->add(new FloatEditor(m_bench.get(), QString()), parameter, SIGNAL(boxValueChanged()));
}

FloatSliderEditor *TestFloatEditors::sliderEditor(const QSharedPointer<MemoryFloat> &parameter)
{
    return m_bench->add(new FloatSliderEditor(m_collection, m_bench.get()), parameter,
                        SIGNAL(boxValueChanged()));
}

void TestFloatEditors::pageStepsAndToolTips()
{
    DoubleSpinBox box(nullptr, "Linear");
    box.setIncrement(0.01);
    box.setRange(-1.0, 1.0);
    box.setPageStep();
    auto *const spinBox = box.findChild<ZeltoQtDoubleSpinBox *>();
    QCOMPARE(spinBox->pageStep(), 0.1);
    QCOMPARE(box.pageStep(), 0);
    QCOMPARE(box.toolTip(), "Range: -1..1 (Increment: 0.01)");
    box.setRangeStepAndIncrement(0.0, 5.0, 0.0);
    QCOMPARE(spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);

    DoubleComboSlider slider(nullptr);
    QCOMPARE(slider.toolTip(), "Range: 0..99.99");
    auto *const handle = slider.findChild<QSlider *>();
    QSignalSpy ranges(&slider, SIGNAL(rangeChanged(int, int)));
    slider.setRangeStepAndIncrement(0, 1000, 30);
    QCOMPARE(handle->pageStep(), 60);
    slider.setRangeStepAndIncrement(0, 1000, 7);
    QCOMPARE(handle->pageStep(), 49);
    slider.setRangeStepAndIncrement(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 1);
    QCOMPARE(handle->pageStep(), 2);
    QCOMPARE(ranges.size(), 3);
    slider.setRange(0.0, 9.5);
    slider.setMinimum(3.0);
    QCOMPARE(slider.toolTip(), "Range: 0..9.5");
    slider.setMaximum(9.0);
    QCOMPARE(slider.toolTip(), "Range: 3..9");
}

void TestFloatEditors::shownTextGivesBackTheValue_data()
{
    columns<double, GenApi::EDisplayNotation, QString>({"value", "notation", "shown"});
    row("no noise", 0.1, GenApi::fnAutomatic, "0.1");
    row("a third", 1.0 / 3.0, GenApi::fnAutomatic, "0.3333333333333333");
    row("integral", 5000.0, GenApi::fnAutomatic, "5000");
    row("of a 32-bit register", double(0.1F), GenApi::fnAutomatic, "0.1");
    row("whole, fits 32 bits", 134217728.0, GenApi::fnAutomatic, "134217728");
    row("few digits, fits 32 bits", 5.0009765625, GenApi::fnAutomatic, "5.0009765625");
    row("small", 1.5e-9, GenApi::fnAutomatic, "1.5e-09");
    row("small and fixed", 1.5e-9, GenApi::fnFixed, "0.0000000015");
    row("large", 6.02e23, GenApi::fnAutomatic, "6.02e+23");
    row("scientific", 1250.0, GenApi::fnScientific, "1.25e+03");
    row("tiny", 2.5e-200, GenApi::fnAutomatic, "2.5e-200");
}

void TestFloatEditors::shownTextGivesBackTheValue()
{
    QFETCH(const double, value);
    QFETCH(const GenApi::EDisplayNotation, notation);
    QFETCH(const QString, shown);
    const auto parameter = feature(value, -1e30, 1e30);
    parameter->edit([notation](auto &data) { data.displayNotation = notation; });
    FloatEditor *const editor = floatEditor(parameter);
    auto *const line = editor->findChild<QLineEdit *>();
    QCOMPARE(line->text(), shown);
    QCOMPARE(editor->value(), value);
    m_bench->present();
    m_bench->enter(editor, "7");
    m_bench->enter(editor, shown);
    QCOMPARE(parameter->writes, QStringList({"7", QVariant(shown.toDouble()).toString()}));
    QCOMPARE(line->text(), shown);
}

void TestFloatEditors::entriesFollowTheLocale_data()
{
    columns<QLocale, QString, QStringList>({"locale", "pasted", "writes"});
    const QStringList none;
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    row("comma in English", english, "1,5", none);
    row("groups in English", english, "1,500", none);
    row("exponent in English", english, "1.5e2", QStringList("150"));
    row("unfinished exponent", english, "1e", none);
    row("too large", english, "1e9", QStringList("2000"));
    row("infinity", english, "inf", none);
    const QLocale german(QLocale::German, QLocale::Germany);
    row("comma in German", german, "1,5", QStringList("1.5"));
    row("point in German", german, "1.5e2", none);
    row("groups in German", german, "1.500", none);
    row("Swedish minus", QLocale(QLocale::Swedish), "\u22121,5", QStringList("-1.5"));
}

void TestFloatEditors::entriesFollowTheLocale()
{
    QFETCH(const QLocale, locale);
    QFETCH(const QString, pasted);
    QFETCH(const QStringList, writes);
    m_bench->setLocale(locale);
    const auto parameter = feature(42.5, -2000.0, 2000.0);
    FloatEditor *const editor = floatEditor(parameter);
    const QString shown = editor->findChild<QLineEdit *>()->text();
    m_bench->present();
    editor->setFocus();
    auto *const line = editor->findChild<QLineEdit *>();
    line->selectAll();
    line->insert(pasted);
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    QCOMPARE(parameter->writes, writes);
    if (writes.isEmpty()) {
        QCOMPARE(line->text(), shown);
        return;
    }
    while (!line->text().isEmpty()) { // what is shown can be deleted step by step
        const auto length = line->text().size();
        line->end(false);
        QTest::keyClick(editor->focusProxy(), Qt::Key_Backspace);
        QVERIFY2(line->text().size() < length, qPrintable(line->text()));
    }
}

void TestFloatEditors::stepsStayOnTheGrid()
{
    const auto parameter = feature(0.3, 0.0, 1.0, 0.1);
    FloatEditor *const editor = floatEditor(parameter);
    m_bench->present();
    editor->setFocus();
    QTest::keyClick(editor->focusProxy(), Qt::Key_Up);
    QTest::keyClick(editor->focusProxy(), Qt::Key_PageUp);
    QTest::keyClicks(editor->focusProxy(), "x");
    m_bench->enter(editor, "0.77");
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(editor->focusProxy(), Qt::Key_Up);
    }
    QCOMPARE(parameter->writes.join(QLatin1Char(' ')), "0.4 0.6 0.8 0.9 1");

    const auto free = m_collection->addFloat("Free", "Root", 5000.0, 1.0, 1e6);
    FloatEditor *const second = floatEditor(free);
    QTest::keyClick(second->focusProxy(), Qt::Key_Up);
    QTest::keyClick(second->focusProxy(), Qt::Key_Down);
    QTest::keyClick(second->focusProxy(), Qt::Key_Down);
    QCOMPARE(free->writes.join(QLatin1Char(' ')), "5100 5000 4900");
}

void TestFloatEditors::unfinishedTextIsNoValue()
{
    const auto parameter = feature(10.0, 0.0, 1000.0);
    for (QWidget *editor :
         {static_cast<QWidget *>(floatEditor(parameter)), static_cast<QWidget *>(sliderEditor(parameter))}) {
        m_bench->present();
        auto *const line = editor->findChild<QLineEdit *>();
        for (const bool readable : {true, false}) {
            parameter->update([readable](auto &data) { data.isReadable = readable; });
            const QString shown = line->text();
            for (const bool isDeleted : {false, true}) {
                m_bench->type(editor, isDeleted ? "7" : "1e");
                if (isDeleted) {
                    m_bench->press(Qt::Key_Backspace);
                }
                const QString entered = line->text();
                m_bench->refresh();
                QCoreApplication::processEvents();
                QCOMPARE(line->text(), entered);
                QVERIFY(!line->hasSelectedText());
                m_bench->press(Qt::Key_Return);
                QCOMPARE(line->text(), shown);
                QCOMPARE(parameter->writes, QStringList());
                QVERIFY(!dynamic_cast<AbstractItemEditor *>(editor)->editorData().isValid());
            }
        }
    }
}

void TestFloatEditors::typedTextCountsBeforeAStep()
{
    const auto parameter = feature(10.0, 0.0, 1000.0, 5.0);
    for (QWidget *editor :
         {static_cast<QWidget *>(floatEditor(parameter)), static_cast<QWidget *>(sliderEditor(parameter))}) {
        parameter->setValue(10.0);
        parameter->writes.clear();
        m_bench->present();
        m_bench->type(editor, "300");
        m_bench->press(Qt::Key_Up);
        QTRY_COMPARE(parameter->writes.join(QLatin1Char(' ')), "305");
    }
}

void TestFloatEditors::oddSnapshots_data()
{
    columns<double, double, double, bool, QString>({"value", "minimum", "maximum", "readable", "shown"});
    const double nan = std::numeric_limits<double>::quiet_NaN();
    row("no limits", 5.0, -infinity, infinity, true, "5");
    row("limits swapped", 5.0, 10.0, 1.0, true, "5");
    row("above the maximum", 15.0, 0.0, 10.0, true, "15");
    row("not a number", nan, 0.0, 10.0, true, "nan");
    row("infinite", infinity, 0.0, 10.0, true, "inf");
    row("limits not numbers", 5.0, nan, nan, true, "5");
    row("not readable", 5.0, 0.0, 10.0, false, "<not readable>");
}

void TestFloatEditors::oddSnapshots()
{
    QFETCH(const double, value);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const bool, readable);
    const auto parameter = feature(1.0, 0.0, 10.0);
    FloatEditor *const plain = floatEditor(parameter);
    FloatSliderEditor *const withSlider = sliderEditor(parameter);
    parameter->edit([&](auto &data) {
        data.value = value;
        data.minimum = minimum;
        data.maximum = maximum;
        data.isReadable = readable;
    });
    m_bench->present();
    LogCapture log;
    m_bench->refresh();
    QCOMPARE(log.entries().isEmpty(), !readable);
    for (QWidget *editor : {static_cast<QWidget *>(plain), static_cast<QWidget *>(withSlider)}) {
        QTEST(editor->findChild<QLineEdit *>()->text(), "shown");
        QVERIFY(editor->isEnabled());
        editor->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    QVERIFY(parameter->writes.isEmpty());
    if (!std::isfinite(value)) {
        // What was shown before counts as an entry all the same.
        m_bench->enter(withSlider, "1");
        QCOMPARE(parameter->writes, QStringList("1"));
    }
    if (!readable) {
        plain->setFocus();
        QTRY_VERIFY(plain->findChild<QLineEdit *>()->hasSelectedText());
        QTest::keyClicks(plain->focusProxy(), "6");
        QTest::keyClick(plain->focusProxy(), Qt::Key_Return);
        QCOMPARE(parameter->writes, QStringList("6"));
    }
    parameter->update([](auto &data) { data.isWritable = false; });
    QVERIFY(!plain->isEnabled() && !withSlider->isEnabled());
}

void TestFloatEditors::positionsAreRecovered_data()
{
    columns<Mode, double, double, int, int>({"mode", "minimum", "maximum", "first", "last"});
    const int full = std::numeric_limits<int>::max();
    const double largest = std::numeric_limits<double>::max();
    row("linear", Mode::Linear, -50.0, 50.0, 0, 100000);
    row("all doubles", Mode::Linear, -largest, largest, 0, 100000);
    row("32 bits, linear", Mode::Linear, 0.0, 1.0, -full - 1, full);
    row("logarithmic", Mode::Logarithmic, 10.0, 1e6, 10, 100000);
    row("logarithmic from 0", Mode::Logarithmic, 0.0, 1e6, 0, 100000);
    row("many decades", Mode::Logarithmic, 1e-150, 1e150, -50000, 50000);
    row("no upper limit", Mode::Logarithmic, 1e-5, largest, 0, 100000);
    row("32 bits, logarithmic", Mode::Logarithmic, 1.0, 1e4, -full - 1, full);
}

void TestFloatEditors::positionsAreRecovered()
{
    QFETCH(const Mode, mode);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const int, first);
    QFETCH(const int, last);
    TwoModeDoubleComboSlider slider(nullptr);
    slider.setMode(mode);
    slider.setLimits(minimum, maximum, first, last, 1);
    const qint64 stride = std::max<qint64>(1, (qint64(last) - first) / 99991);
    double previous = -infinity;
    for (qint64 position = first; position <= last; position += stride) {
        const double value = slider.valueFromPosition(static_cast<int>(position));
        QVERIFY(value > previous && value >= minimum && value <= maximum);
        QCOMPARE(slider.positionFromValue(value), static_cast<int>(position));
        previous = value;
    }
    QCOMPARE(slider.valueFromPosition(last), maximum);
    if (mode == Mode::Logarithmic && minimum > 0.0) {
        const int middle = static_cast<int>(first + (qint64(last) - first) / 2);
        QVERIFY(std::abs(slider.valueFromPosition(middle) / std::sqrt(minimum * maximum) - 1.0) < 1e-3);
    }
}

void TestFloatEditors::dragIsCoalesced()
{
    const auto parameter = feature(100.0, 0.0, 1000.0, 0.0, "Linear");
    FloatSliderEditor *const editor = sliderEditor(parameter);
    m_bench->resize(500, 60);
    m_bench->present();
    parameter->before = [](const QString &operation) {
        if (operation == "setValueFromString") {
            QThread::msleep(40);
        }
    };
    auto *const slider = editor->findChild<QSlider *>();
    slider->setSliderDown(true);
    for (int position = 101; position <= 300; ++position) {
        slider->setSliderPosition(position);
        QTest::qWait(1);
    }
    QVERIFY(slider->isSliderDown());
    slider->setSliderDown(false);
    QTRY_COMPARE(parameter->writes.constLast(), "300");
    QVERIFY2(parameter->writes.size() > 2 && parameter->writes.size() < 60,
             qPrintable(QString::number(parameter->writes.size())));
    QTRY_COMPARE(slider->value(), 300);
}

void TestFloatEditors::keysMoveTheSlider()
{
    const auto parameter = feature(10.0, 0.0, 1000.0, 5.0, "Linear");
    FloatSliderEditor *const editor = sliderEditor(parameter);
    auto *const slider = editor->findChild<QSlider *>();
    m_bench->present();
    editor->setFocus();
    QTest::keyClick(editor->focusProxy(), Qt::Key_Up);
    QTRY_COMPARE(parameter->writes, QStringList("15"));
    QTRY_COMPARE(slider->value(), 15);
    QTest::qWait(50);
    QTest::keyClick(editor->focusProxy(), Qt::Key_PageUp);
    QTRY_COMPARE(parameter->writes.constLast(), "65");
    // A camera that rounds: its answer is what the slider shows.
    parameter->update([](auto &data) { data.value = 80.0; });
    QCOMPARE(slider->value(), 80);
    QTest::qWait(50);
    QTest::keyClick(slider, Qt::Key_End);
    QTRY_COMPARE(parameter->writes.constLast(), "1000");
}

QTEST_MAIN(TestFloatEditors)
#include "tst_floateditors.moc"
