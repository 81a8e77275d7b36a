// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorbench.h"

#include <support/logcapture.h>

#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/floatslidereditor.h>
#include <zeltoviewercomponents/featuretree/zeltoqtdoublespinbox.h>

#include <QApplication>
#include <QLineEdit>
#include <QRandomGenerator>
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

QString text(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

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
    void refreshesLeaveTypingAlone();
    void unfinishedTextIsNoValue_data();
    void unfinishedTextIsNoValue();
    void entryOfTheValueBeforeARefresh();
    void typedTextCountsBeforeAStep();
    void leavingAndRefreshingWriteNothing();
    void oddSnapshots_data();
    void oddSnapshots();
    void positionsAreRecovered_data();
    void positionsAreRecovered();
    void dragIsCoalesced();
    void keysMoveTheSlider();
    void randomEntriesStayInsideLimits();

private:
    QSharedPointer<MemoryFloat> feature(double value, double minimum, double maximum, double increment = 0.0,
                                        const QString &representation = QString());
    FloatEditor *floatEditor(const QSharedPointer<MemoryFloat> &parameter);
    FloatSliderEditor *sliderEditor(const QSharedPointer<MemoryFloat> &parameter);
    void showBench();

    QSharedPointer<MemoryCollection> m_collection;
    std::unique_ptr<EditorBench> m_bench;
};

void TestFloatEditors::init()
{
    QLocale::setDefault(QLocale::c());
    m_bench = std::make_unique<EditorBench>();
    m_collection = QSharedPointer<MemoryCollection>::create();
    m_collection->addInteger(QStringLiteral("Raw"), QStringLiteral("Root"), 0, 0, 1000, 1);
    m_collection->setAlias(QStringLiteral("Feature"), QStringLiteral("Raw"));
}

QSharedPointer<MemoryFloat> TestFloatEditors::feature(double value, double minimum, double maximum,
                                                      double increment, const QString &representation)
{
    return m_collection->addFloat(QStringLiteral("Feature"), QStringLiteral("Root"), value, minimum, maximum,
                                  increment, representation);
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

void TestFloatEditors::showBench()
{
    m_bench->show();
    QApplication::setActiveWindow(m_bench.get());
    QVERIFY(QTest::qWaitForWindowActive(m_bench.get()));
}

void TestFloatEditors::pageStepsAndToolTips()
{
    DoubleSpinBox box(nullptr, QStringLiteral("Linear"));
    box.setIncrement(0.01);
    box.setRange(-1.0, 1.0);
    box.setPageStep();
    auto *const spinBox = box.findChild<ZeltoQtDoubleSpinBox *>();
    QCOMPARE(spinBox->pageStep(), 0.1);
    QCOMPARE(box.pageStep(), 0);
    QCOMPARE(box.toolTip(), QStringLiteral("Range: -1..1 (Increment: 0.01)"));
    box.setRangeStepAndIncrement(0.0, 5.0, 0.0);
    QCOMPARE(spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);

    DoubleComboSlider slider(nullptr);
    QCOMPARE(slider.toolTip(), QStringLiteral("Range: 0..99.99"));
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
    QCOMPARE(slider.toolTip(), QStringLiteral("Range: 0..9.5"));
    slider.setMaximum(9.0);
    QCOMPARE(slider.toolTip(), QStringLiteral("Range: 3..9"));
}

void TestFloatEditors::shownTextGivesBackTheValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("notation");
    QTest::addColumn<QString>("shown");
    const int automatic = GenApi::fnAutomatic;
    QTest::newRow("no noise") << 0.1 << automatic << QStringLiteral("0.1");
    QTest::newRow("a third") << 1.0 / 3.0 << automatic << QStringLiteral("0.3333333333333333");
    QTest::newRow("integral") << 5000.0 << automatic << QStringLiteral("5000");
    QTest::newRow("of a 32-bit register") << double(0.1F) << automatic << QStringLiteral("0.1");
    QTest::newRow("whole, fits 32 bits") << 134217728.0 << automatic << QStringLiteral("134217728");
    QTest::newRow("few digits, fits 32 bits") << 5.0009765625 << automatic << QStringLiteral("5.0009765625");
    QTest::newRow("small") << 1.5e-9 << automatic << QStringLiteral("1.5e-09");
    QTest::newRow("small and fixed") << 1.5e-9 << int(GenApi::fnFixed) << QStringLiteral("0.0000000015");
    QTest::newRow("large") << 6.02e23 << automatic << QStringLiteral("6.02e+23");
    QTest::newRow("scientific") << 1250.0 << int(GenApi::fnScientific) << QStringLiteral("1.25e+03");
    QTest::newRow("tiny") << 2.5e-200 << automatic << QStringLiteral("2.5e-200");
}

void TestFloatEditors::shownTextGivesBackTheValue()
{
    QFETCH(const double, value);
    QFETCH(const int, notation);
    QFETCH(const QString, shown);
    const auto parameter = feature(value, -1e30, 1e30);
    parameter->edit<FloatParameterData>(
        [notation](auto &data) { data.displayNotation = static_cast<GenApi::EDisplayNotation>(notation); });
    FloatEditor *const editor = floatEditor(parameter);
    auto *const line = editor->findChild<QLineEdit *>();
    QCOMPARE(line->text(), shown);
    QCOMPARE(editor->value(), value);
    showBench();
    editor->setFocus();
    line->selectAll();
    QTest::keyClicks(editor->focusProxy(), QStringLiteral("7"));
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    line->selectAll();
    QTest::keyClicks(editor->focusProxy(), shown);
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    QCOMPARE(parameter->writes, QStringList({QStringLiteral("7"), text(shown.toDouble())}));
    QCOMPARE(line->text(), shown);
}

void TestFloatEditors::entriesFollowTheLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QStringList>("writes");
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("comma in English") << english << QStringLiteral("1,5") << QStringList();
    QTest::newRow("groups in English") << english << QStringLiteral("1,500") << QStringList();
    QTest::newRow("exponent in English")
        << english << QStringLiteral("1.5e2") << QStringList(QStringLiteral("150"));
    QTest::newRow("comma in German") << german << QStringLiteral("1,5") << QStringList(QStringLiteral("1.5"));
    QTest::newRow("point in German") << german << QStringLiteral("1.5e2") << QStringList();
    QTest::newRow("groups in German") << german << QStringLiteral("1.500") << QStringList();
    QTest::newRow("unfinished exponent") << english << QStringLiteral("1e") << QStringList();
    const QLocale swedish(QLocale::Swedish, QLocale::Sweden);
    QTest::newRow("Swedish minus") << swedish << QString::fromUtf8("\u22121,5")
                                   << QStringList(QStringLiteral("-1.5"));
    QTest::newRow("too large") << english << QStringLiteral("1e9") << QStringList(QStringLiteral("2000"));
    QTest::newRow("infinity") << english << QStringLiteral("inf") << QStringList();
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
    showBench();
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
    showBench();
    editor->setFocus();
    QTest::keyClick(editor->focusProxy(), Qt::Key_Up);
    QTest::keyClick(editor->focusProxy(), Qt::Key_PageUp);
    QTest::keyClicks(editor->focusProxy(), QStringLiteral("x"));
    auto *const line = editor->findChild<QLineEdit *>();
    line->selectAll();
    QTest::keyClicks(editor->focusProxy(), QStringLiteral("0.77"));
    QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(editor->focusProxy(), Qt::Key_Up);
    }
    QCOMPARE(parameter->writes.join(QLatin1Char(' ')), QStringLiteral("0.4 0.6 0.8 0.9 1"));

    const auto free =
        m_collection->addFloat(QStringLiteral("Free"), QStringLiteral("Root"), 5000.0, 1.0, 1e6);
    FloatEditor *const second = floatEditor(free);
    QTest::keyClick(second->focusProxy(), Qt::Key_Up);
    QTest::keyClick(second->focusProxy(), Qt::Key_Down);
    QTest::keyClick(second->focusProxy(), Qt::Key_Down);
    QCOMPARE(free->writes.join(QLatin1Char(' ')), QStringLiteral("5100 5000 4900"));
}

void TestFloatEditors::refreshesLeaveTypingAlone()
{
    const auto parameter = feature(10.0, 0.0, 1000.0);
    for (const bool withSlider : {false, true}) {
        parameter->writes.clear();
        QWidget *const editor = withSlider ? static_cast<QWidget *>(sliderEditor(parameter))
                                           : static_cast<QWidget *>(floatEditor(parameter));
        showBench();
        editor->setFocus();
        auto *const line = editor->findChild<QLineEdit *>();
        line->selectAll();
        QTest::keyClicks(editor->focusProxy(), QStringLiteral("123.4"));
        for (int i = 0; i < 1000; ++i) {
            parameter->edit<FloatParameterData>([i](auto &data) {
                data.value = i % 50;
                data.maximum = 100 + i;
                data.isWritable = true;
            });
            m_bench->refresh();
            QCOMPARE(line->text(), QStringLiteral("123.4"));
        }
        QVERIFY(editor->toolTip().contains(QLatin1String("..1099")));
        QTest::keyClicks(editor->focusProxy(), QStringLiteral("5"));
        QTest::keyClick(editor->focusProxy(), Qt::Key_Escape);
        QCOMPARE(line->text(), QStringLiteral("49"));
        QVERIFY(parameter->writes.isEmpty());
        QTest::keyClicks(editor->focusProxy(), QStringLiteral("1"));
        QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
        QCOMPARE(parameter->writes.size(), 1);
        parameter->edit<FloatParameterData>([](auto &data) { data.value = 48.5; });
        m_bench->refresh();
        QCOMPARE(line->text(), QStringLiteral("48.5"));

        parameter->before = [](const QString &operation) {
            if (operation == QLatin1String("setValueFromString")) {
                throw GenICam::AccessException(QStringLiteral("locked"));
            }
        };
        line->selectAll();
        QTest::keyClicks(editor->focusProxy(), QStringLiteral("7"));
        QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
        QCOMPARE(m_bench->refusals.takeLast(), QStringLiteral("locked"));
        QCOMPARE(line->text(), QStringLiteral("48.5"));
        parameter->before = nullptr;
        editor->setEnabled(false);
    }
}

void TestFloatEditors::unfinishedTextIsNoValue_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("readable");
    for (const bool readable : {true, false}) {
        const char *const suffix = readable ? "" : ", write-only";
        QTest::addRow("exponent%s", suffix) << QStringLiteral("1e") << readable;
        QTest::addRow("deleted again%s", suffix) << QStringLiteral("77\b\b") << readable;
    }
}

void TestFloatEditors::unfinishedTextIsNoValue()
{
    QFETCH(const QString, typed);
    QFETCH(const bool, readable);
    const auto parameter = feature(10.0, 0.0, 1000.0);
    parameter->edit<FloatParameterData>([readable](auto &data) { data.isReadable = readable; });
    for (QWidget *editor :
         {static_cast<QWidget *>(floatEditor(parameter)), static_cast<QWidget *>(sliderEditor(parameter))}) {
        showBench();
        auto *const line = editor->findChild<QLineEdit *>();
        const QString shown = line->text();
        for (const bool withRefresh : {false, true}) {
            editor->setFocus();
            line->selectAll();
            for (const QChar c : typed) {
                QTest::sendKeyEvent(QTest::Click, editor->focusProxy(),
                                    c == QLatin1Char('\b') ? Qt::Key_Backspace : Qt::Key_unknown,
                                    c == QLatin1Char('\b') ? QString() : QString(c), Qt::NoModifier);
            }
            const QString entered = line->text();
            if (withRefresh) {
                m_bench->refresh();
                QCoreApplication::processEvents();
                QCOMPARE(line->text(), entered);
                QVERIFY(!line->hasSelectedText());
            }
            QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
            QCOMPARE(line->text(), shown);
            QVERIFY2(parameter->writes.isEmpty(), qPrintable(parameter->writes.join(QLatin1Char(' '))));
        }
    }
}

void TestFloatEditors::entryOfTheValueBeforeARefresh()
{
    const auto parameter = feature(10.0, 0.0, 1000.0);
    for (const bool withSlider : {false, true}) {
        parameter->edit<FloatParameterData>([](auto &data) { data.value = 10.0; });
        parameter->writes.clear();
        QWidget *const editor = withSlider ? static_cast<QWidget *>(sliderEditor(parameter))
                                           : static_cast<QWidget *>(floatEditor(parameter));
        showBench();
        editor->setFocus();
        auto *const line = editor->findChild<QLineEdit *>();
        line->selectAll();
        QTest::keyClicks(editor->focusProxy(), QStringLiteral("10"));
        line->setSelection(1, 1);
        parameter->edit<FloatParameterData>([](auto &data) {
            data.value = 50.0;
            data.displayNotation = GenApi::fnFixed;
        });
        m_bench->refresh();
        QCOMPARE(line->text(), QStringLiteral("10"));
        QCOMPARE(line->selectedText(), QStringLiteral("0"));
        QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
        QCOMPARE(parameter->writes, QStringList(QStringLiteral("10")));
        editor->setEnabled(false);
    }
}

void TestFloatEditors::typedTextCountsBeforeAStep()
{
    const auto parameter = feature(10.0, 0.0, 1000.0, 5.0);
    for (QWidget *editor :
         {static_cast<QWidget *>(floatEditor(parameter)), static_cast<QWidget *>(sliderEditor(parameter))}) {
        parameter->setValue(10.0);
        parameter->writes.clear();
        m_bench->refresh();
        showBench();
        editor->setFocus();
        editor->findChild<QLineEdit *>()->selectAll();
        QTest::keyClicks(editor->focusProxy(), QStringLiteral("300"));
        QTest::keyClick(editor->focusProxy(), Qt::Key_Up);
        QTRY_COMPARE(parameter->writes.join(QLatin1Char(' ')), QStringLiteral("305"));
    }
}

void TestFloatEditors::leavingAndRefreshingWriteNothing()
{
    const auto parameter = feature(double(0.7F), 0.0, 1.0, 0.2);
    FloatEditor *const plain = floatEditor(parameter);
    FloatSliderEditor *const withSlider = sliderEditor(parameter);
    showBench();
    plain->setFocus();
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        m_bench->refresh();
    }
    QVERIFY(!plain->editorData().isValid());
    QVERIFY(!withSlider->editorData().isValid());
    QVERIFY(parameter->writes.isEmpty());
}

void TestFloatEditors::oddSnapshots_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("logged");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("no limits") << 5.0 << -infinity << infinity << true << QStringLiteral("5") << true;
    QTest::newRow("limits swapped") << 5.0 << 10.0 << 1.0 << true << QStringLiteral("5") << true;
    QTest::newRow("above the maximum") << 15.0 << 0.0 << 10.0 << true << QStringLiteral("15") << true;
    QTest::newRow("not a number") << nan << 0.0 << 10.0 << true << QStringLiteral("nan") << true;
    QTest::newRow("infinite") << infinity << 0.0 << 10.0 << true << QStringLiteral("inf") << true;
    QTest::newRow("limits not numbers") << 5.0 << nan << nan << true << QStringLiteral("5") << true;
    QTest::newRow("not readable") << 5.0 << 0.0 << 10.0 << false << QStringLiteral("<not readable>") << false;
}

void TestFloatEditors::oddSnapshots()
{
    QFETCH(const double, value);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const bool, readable);
    QFETCH(const bool, logged);
    const auto parameter = feature(1.0, 0.0, 10.0);
    FloatEditor *const plain = floatEditor(parameter);
    FloatSliderEditor *const withSlider = sliderEditor(parameter);
    parameter->edit<FloatParameterData>([&](auto &data) {
        data.value = value;
        data.minimum = minimum;
        data.maximum = maximum;
        data.isReadable = readable;
    });
    showBench();
    LogCapture log;
    m_bench->refresh();
    QCOMPARE(!log.entries().isEmpty(), logged);
    for (QWidget *editor : {static_cast<QWidget *>(plain), static_cast<QWidget *>(withSlider)}) {
        QTEST(editor->findChild<QLineEdit *>()->text(), "shown");
        QVERIFY(editor->isEnabled());
        editor->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    QVERIFY(parameter->writes.isEmpty());
    if (!std::isfinite(value)) {
        // What was shown before counts as an entry all the same.
        withSlider->setFocus();
        withSlider->findChild<QLineEdit *>()->selectAll();
        QTest::keyClicks(withSlider->focusProxy(), QStringLiteral("1"));
        QTest::keyClick(withSlider->focusProxy(), Qt::Key_Return);
        QCOMPARE(parameter->writes, QStringList(QStringLiteral("1")));
    }
    if (!readable) {
        plain->setFocus();
        QTRY_VERIFY(plain->findChild<QLineEdit *>()->hasSelectedText());
        QTest::keyClicks(plain->focusProxy(), QStringLiteral("6"));
        QTest::keyClick(plain->focusProxy(), Qt::Key_Return);
        QCOMPARE(parameter->writes, QStringList(QStringLiteral("6")));
    }
    parameter->edit<FloatParameterData>([](auto &data) { data.isWritable = false; });
    m_bench->refresh();
    QVERIFY(!plain->isEnabled() && !withSlider->isEnabled());
}

void TestFloatEditors::positionsAreRecovered_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    const int full = std::numeric_limits<int>::max();
    QTest::newRow("linear") << int(Mode::Linear) << -50.0 << 50.0 << 0 << 100000;
    QTest::newRow("logarithmic") << int(Mode::Logarithmic) << 10.0 << 1e6 << 10 << 100000;
    QTest::newRow("logarithmic from 0") << int(Mode::Logarithmic) << 0.0 << 1e6 << 0 << 100000;
    QTest::newRow("many decades") << int(Mode::Logarithmic) << 1e-150 << 1e150 << -50000 << 50000;
    QTest::newRow("no upper limit") << int(Mode::Logarithmic) << 1e-5 << std::numeric_limits<double>::max()
                                    << 0 << 100000;
    QTest::newRow("all doubles") << int(Mode::Linear) << std::numeric_limits<double>::lowest()
                                 << std::numeric_limits<double>::max() << 0 << 100000;
    QTest::newRow("32 bits, linear") << int(Mode::Linear) << 0.0 << 1.0 << -full - 1 << full;
    QTest::newRow("32 bits, logarithmic") << int(Mode::Logarithmic) << 1.0 << 1e4 << -full - 1 << full;
}

void TestFloatEditors::positionsAreRecovered()
{
    QFETCH(const int, mode);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const int, first);
    QFETCH(const int, last);
    TwoModeDoubleComboSlider slider(nullptr);
    slider.setMode(static_cast<Mode>(mode));
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
    if (mode == int(Mode::Logarithmic) && minimum > 0.0) {
        const int middle = static_cast<int>(first + (qint64(last) - first) / 2);
        QVERIFY(std::abs(slider.valueFromPosition(middle) / std::sqrt(minimum * maximum) - 1.0) < 1e-3);
    }
}

void TestFloatEditors::dragIsCoalesced()
{
    const auto parameter = feature(100.0, 0.0, 1000.0, 0.0, QStringLiteral("Linear"));
    FloatSliderEditor *const editor = sliderEditor(parameter);
    m_bench->resize(500, 60);
    showBench();
    parameter->before = [](const QString &operation) {
        if (operation == QLatin1String("setValueFromString")) {
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
    QTRY_COMPARE(parameter->writes.constLast(), QStringLiteral("300"));
    QVERIFY2(parameter->writes.size() > 2 && parameter->writes.size() < 60,
             qPrintable(QString::number(parameter->writes.size())));
    QTRY_COMPARE(slider->value(), 300);
}

void TestFloatEditors::keysMoveTheSlider()
{
    const auto parameter = feature(10.0, 0.0, 1000.0, 5.0, QStringLiteral("Linear"));
    FloatSliderEditor *const editor = sliderEditor(parameter);
    auto *const slider = editor->findChild<QSlider *>();
    showBench();
    editor->setFocus();
    QTest::keyClick(editor->focusProxy(), Qt::Key_Up);
    QTRY_COMPARE(parameter->writes, QStringList(QStringLiteral("15")));
    QTRY_COMPARE(slider->value(), 15);
    QTest::qWait(50);
    QTest::keyClick(editor->focusProxy(), Qt::Key_PageUp);
    QTRY_COMPARE(parameter->writes.constLast(), QStringLiteral("65"));
    // A camera that rounds: its answer is what the slider shows.
    parameter->edit<FloatParameterData>([](auto &data) { data.value = 80.0; });
    m_bench->refresh();
    QCOMPARE(slider->value(), 80);
    QTest::qWait(50);
    QTest::keyClick(slider, Qt::Key_End);
    QTRY_COMPARE(parameter->writes.constLast(), QStringLiteral("1000"));
}

void TestFloatEditors::randomEntriesStayInsideLimits()
{
    QRandomGenerator random(20261121);
    const auto any = [&random](double scale) { return (random.generateDouble() - 0.5) * scale; };
    const auto parameter = feature(0.0, 0.0, 1.0);
    FloatEditor *const plain = floatEditor(parameter);
    FloatSliderEditor *const withSlider = sliderEditor(parameter);
    showBench();
    for (int round = 0; round < 150; ++round) {
        const double minimum = std::round(any(2e4)) / 8.0;
        const double increment = round % 3 == 0 ? 0.0 : random.bounded(1, 40) / 10.0;
        const double maximum = minimum + random.bounded(1, 4000) / 4.0;
        parameter->edit<FloatParameterData>([&](auto &data) {
            data.minimum = minimum;
            data.maximum = maximum;
            data.value = minimum;
            data.increment = increment;
        });
        parameter->writes.clear();
        m_bench->refresh();
        QVERIFY(parameter->writes.isEmpty());
        plain->setFocus();
        plain->findChild<QLineEdit *>()->selectAll();
        QTest::keyClicks(plain->focusProxy(), QString::number(any(4e4), 'f', 3));
        QTest::keyClick(plain->focusProxy(), Qt::Key_Return);
        QTest::keyClick(plain->focusProxy(), random.bounded(2) != 0 ? Qt::Key_PageUp : Qt::Key_Down);
        withSlider->findChild<QSlider *>()->setValue(random.bounded(1001));
        for (const QString &written : std::as_const(parameter->writes)) {
            const double value = written.toDouble();
            QVERIFY2(value >= minimum && value <= maximum, qPrintable(written));
            const double steps = increment > 0.0 ? (value - minimum) / increment : 0.0;
            QVERIFY2(std::abs(steps - std::round(steps)) < 1e-9, qPrintable(written));
        }
    }
    QVERIFY(m_bench->refusals.isEmpty());
}

QTEST_MAIN(TestFloatEditors)
#include "tst_floateditors.moc"
