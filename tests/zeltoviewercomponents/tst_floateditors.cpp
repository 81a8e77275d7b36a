// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorbench.h"

#include <support/logcapture.h>
#include <support/table.h>

#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/floatslidereditor.h>
#include <zeltoviewercomponents/featuretree/zeltoqtdoublespinbox.h>

#include <QApplication>
#include <QHash>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QThread>
#include <QWheelEvent>

#include <cmath>
#include <limits>

using namespace ParameterCollection;
using Mode = ETwoModeDoubleComboSliderMode;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/*! \brief A float in a register that keeps whole units alone, and may say nothing when nothing has changed.
 */
class CoarseFloat : public MemoryFloat
{
public:
    using MemoryFloat::MemoryFloat;

    double held() const { return snapshot.staticCast<FloatParameterData>()->value; }

    void setValueFromString(const QString &text) override
    {
        enter("setValueFromString");
        const double kept = std::floor(text.toDouble() / unit + 1e-6) * unit;
        if (std::abs(kept - held()) < unit / 2.0 || kept == 0.0) {
            writes.append(text);
            if (!isSilent) {
                edit([](auto &) {});
                publishLater();
            }
            return;
        }
        MemoryFloat::setValueFromString(QString::number(kept, 'g', 15));
    }

    double unit = 1.0;
    bool isSilent = false;
};

// Arrows for u and d, both at once for +, page keys for U and D, a notch of the wheel for w; anything else is
// typed.
void pressStep(QWidget *editor, QChar key)
{
    const QHash<QChar, Qt::Key> stepKeys{
        {u'u', Qt::Key_Up}, {u'd', Qt::Key_Down}, {u'U', Qt::Key_PageUp}, {u'D', Qt::Key_PageDown}};
    QWidget *const box = editor->focusProxy();
    if (stepKeys.contains(key)) {
        QTest::keyClick(box, stepKeys.value(key));
    } else if (key == QLatin1Char('+')) {
        QTest::keyClick(box, Qt::Key_Up);
        QTest::keyClick(box, Qt::Key_Down);
    } else if (key == QLatin1Char('w')) {
        const QPointF place = box->rect().center();
        QWheelEvent notch(place, box->mapToGlobal(place), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box, &notch);
    } else {
        QTest::keyClick(box, key.toLatin1());
    }
}

} // namespace

class TestFloatEditors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void pageStepsAndToolTips();
    void valuesFollowTheNotation_data();
    void valuesFollowTheNotation();
    void typedTexts_data();
    void typedTexts();
    void controlsTakeWhatIsTyped();
    void steps_data();
    void steps();
    void swallowedSteps_data();
    void swallowedSteps();
    void stepEnds_data();
    void stepEnds();
    void staleValueIsTypedAgain();
    void oddSnapshots_data();
    void oddSnapshots();
    void positionsAreRecovered_data();
    void positionsAreRecovered();
    void dragIsCoalesced();
    void keysMoveTheSlider();

private:
    QList<QWidget *> bothEditors(const QSharedPointer<MemoryFloat> &parameter);
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

QList<QWidget *> TestFloatEditors::bothEditors(const QSharedPointer<MemoryFloat> &parameter)
{
    return {floatEditor(parameter), sliderEditor(parameter)};
}

void TestFloatEditors::pageStepsAndToolTips()
{
    DoubleSpinBox box(nullptr, "Linear");
    QCOMPARE(box.findChild<QDoubleSpinBox *>()->minimum(), std::numeric_limits<double>::lowest());
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

void TestFloatEditors::valuesFollowTheNotation_data()
{
    columns<double, GenApi::EDisplayNotation, int, QString, QString>(
        {"value", "notation", "precision", "shown", "all"});
    const double pi = 3.141592653589793;
    row("automatic", pi, GenApi::fnAutomatic, 6, "3.14159", "3.141592653589793");
    row("fixed", pi, GenApi::fnFixed, 2, "3.14", "3.141592653589793");
    row("scientific", 1234.5678, GenApi::fnScientific, 3, "1.235e+03", "1.2345678e+03");
    row("whole", 74250000.0, GenApi::fnAutomatic, 6, "74250000", "74250000");
    row("largest whole", 999999999999999.0, GenApi::fnAutomatic, 6, "999999999999999", "999999999999999");
    row("digits before the point stay", 1234567.25, GenApi::fnAutomatic, 4, "1234567", "1234567.25");
    row("no noise", 0.1, GenApi::fnAutomatic, 8, "0.1", "0.1");
    row("of a 32-bit register", double(0.1F), GenApi::fnAutomatic, 12, "0.1", "0.1");
    row("small", 1.5e-9, GenApi::fnAutomatic, 6, "1.5e-09", "1.5e-09");
    row("never 0", 1.5e-9, GenApi::fnFixed, 4, "0.0000000015", "0.0000000015");
    row("large", 6.02214076e23, GenApi::fnAutomatic, 4, "6.022e+23", "6.02214076e+23");
    row("tiny", 2.5e-200, GenApi::fnAutomatic, 6, "2.5e-200", "2.5e-200");
}

void TestFloatEditors::valuesFollowTheNotation()
{
    QFETCH(const double, value);
    QFETCH(const GenApi::EDisplayNotation, notation);
    QFETCH(const int, precision);
    QFETCH(const QString, shown);
    const auto parameter = feature(value, -1e30, 1e30);
    parameter->edit([notation, precision](auto &data) {
        data.displayNotation = notation;
        data.displayPrecision = precision;
    });
    for (QWidget *editor : bothEditors(parameter)) {
        QLineEdit *const line = EditorBench::lineOf(editor);
        m_bench->present();
        QCOMPARE(line->text(), shown);
        m_bench->setFocus();
        editor->setFocus(Qt::TabFocusReason);
        QTEST(line->text(), "all");
        m_bench->press(Qt::Key_Return);
        QTest::keyClicks(editor->focusProxy(), "7");
        m_bench->press(Qt::Key_Backspace);
        line->setText(line->text() + QLatin1Char(' '));
        m_bench->press(Qt::Key_Tab);
        QCOMPARE(parameter->writes, QStringList()); // rounded for the eye alone
        QCOMPARE(line->text(), shown);
        QCOMPARE(editor->findChild<QDoubleSpinBox *>()->value(), value);
        m_bench->enter(editor, "7");
        m_bench->enter(editor, QString::number(value, 'g', 17));
        QTRY_COMPARE(parameter->writes.size(), 2);
        QCOMPARE(parameter->writes.constLast().toDouble(), value);
        parameter->writes.clear();
    }
}

void TestFloatEditors::typedTexts_data()
{
    columns<QLocale, QString, QString, QString>({"locale", "typed", "written", "words"});
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    row("above", english, "4000", "3032", "3032 is the maximum");
    row("below", english, "-9000.5", "-2000", "-2000 is the minimum");
    row("beside the grid", english, "10.3", "10.5", "10.5 is the nearest value (increment: 0.5)");
    row("exponent", english, "1.5e2", "150", "");
    row("blanks around", english, "  15 ", "15", "");
    row("typographic minus", english, "\u22125", "-5", "");
    row("comma in English", english, "3,5", "", "use . as the decimal sign");
    row("groups in English", english, "1,500", "", "nothing may stand between thousands");
    row("unit", english, "12.5 ms", "", "leave out the unit");
    row("sign as a unit", english, "-5 %", "", "leave out the unit");
    row("half an exponent", english, "1e", "", "the exponent is missing");
    row("too large", english, "1e999", "", "it is too large");
    row("infinity", english, "inf", "", "use digits");
    row("no number", english, "a-b", "", "use digits");
    row("sign alone", english, "-", "", "");
    const QLocale german(QLocale::German, QLocale::Germany);
    row("comma in German", german, "1,5", "1.5", "");
    row("point in German", german, "3.5", "", "use , as the decimal sign");
    row("thousands in German", german, "1.500", "", "use , as the decimal sign");
    row("thin spaces", QLocale(QLocale::French), "1\u202f500", "", "nothing may stand between thousands");
    row("Swedish", QLocale(QLocale::Swedish), "-1,5e2", "-150", "");
    const QLocale arabic(QLocale::Arabic, QLocale::Egypt);
    row("Arabic", arabic, "\u0661\u0662\u066b\u0665", "12.5", "");
    row("Latin digits in Arabic", arabic, "-12\u066b5", "-12.5", "");
    row("point in Arabic", arabic, "12.5", "", "use \u066b as the decimal sign");
}

void TestFloatEditors::typedTexts()
{
    QFETCH(const QLocale, locale);
    QFETCH(const QString, typed);
    QFETCH(const QString, written);
    QFETCH(const QString, words);
    m_bench->setLocale(locale);
    const auto parameter = feature(42.5, -2000.0, 3032.0, 0.5);
    for (QWidget *editor : bothEditors(parameter)) {
        for (const bool isLeft : {false, true}) {
            parameter->setValue(42.5);
            m_bench->present();
            QCoreApplication::processEvents();
            parameter->writes.clear();
            QLineEdit *const line = EditorBench::lineOf(editor);
            const QString shown = line->text();
            m_bench->type(editor, typed);
            QCOMPARE(line->text(), typed);
            line->setCursorPosition(1);
            m_bench->refresh();
            QCOMPARE(line->text(), typed);
            QCOMPARE(line->cursorPosition(), 1);
            const bool isMarked =
                line->palette().color(QPalette::Base) != m_bench->palette().color(QPalette::Base);
            QCOMPARE(isMarked, written.isEmpty() && !words.isEmpty());
            QVERIFY2(!isMarked || line->toolTip().contains(words), qPrintable(line->toolTip()));
            m_bench->press(isLeft ? Qt::Key_Tab : Qt::Key_Return);
            QTRY_COMPARE(parameter->writes, written.isEmpty() ? QStringList() : QStringList(written));
            if (!written.isEmpty()) {
                const auto *const label = m_bench->findChild<QLabel *>("inputHint");
                QCOMPARE(label ? label->text() : QString(), words);
                delete label;
                continue;
            }
            QCOMPARE(line->text(), isLeft ? shown : typed);
            QCOMPARE(line->toolTip().isEmpty(), isLeft);
            m_bench->press(Qt::Key_Up); // from no number, or in the next editor
            QCOMPARE(line->text(), isLeft ? shown : typed);
            m_bench->press(Qt::Key_Tab);
            QCOMPARE(line->text(), shown);
            parameter->writes.clear();
        }
    }
}

void TestFloatEditors::controlsTakeWhatIsTyped()
{
    auto *const control = new DoubleSpinBox(m_bench.get(), "Linear");
    auto *const other = new DoubleSpinBox(m_bench.get(), "Linear");
    for (DoubleSpinBox *const box : {control, other}) {
        m_bench->layout()->addWidget(box);
        box->initControls(0.0, 100.0, 7.25, 0.0);
    }
    m_bench->present();
    QLineEdit *const line = EditorBench::lineOf(control);
    m_bench->enter(control, "40000");
    QCOMPARE(line->text(), "100");
    QCOMPARE(m_bench->findChild<QLabel *>("inputHint")->text(), "100 is the maximum");
    m_bench->type(control, "12.5");
    other->setFocus();
    QCOMPARE(control->value(), 12.5);
    m_bench->enter(control, "12.345");
    QCOMPARE(control->value(), line->text().toDouble());
}

void TestFloatEditors::steps_data()
{
    columns<double, double, double, double, QString, QString>(
        {"value", "minimum", "maximum", "increment", "keys", "written"});
    const double largest = std::numeric_limits<double>::max();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    // u, d: arrows; U, D: page keys; w: a notch of the wheel; anything else is typed
    row("on the grid", 0.3, 0.0, 1.0, 0.1, "uU", "0.4 0.6");
    row("through 0", -0.1, -0.3, 1.0, 0.1, "uu", "0 0.1");
    row("from a typed text", 0.3, 0.0, 1.0, 0.1, "0.77u", "0.9");
    row("typed at a limit", 1.0, 0.0, 1.0, 0.1, "0.5u", "0.6");
    row("typed beyond a limit", 0.3, 0.0, 1.0, 0.1, "7u", "1");
    row("not beyond a limit", 1.0, 0.0, 1.0, 0.1, "uwU", "");
    row("up and down", 5000.0, 1.0, 1e6, 0.0, "uddu", "5100 5000 4900 5000");
    row("page below a step", 10.0, 0.0, 10.0, 0.0, "D", "9");
    row("no limits", 0.5, -infinity, infinity, 0.0, "uuuuuuUd", "0.6 0.7 0.8 0.9 1 1.1 2.1 2");
    row("0 without limits", 0.0, -largest, largest, 0.0, "wUd", "1 11 10");
    row("one limit", 74250000.0, 0.0, infinity, 0.0, "ud", "74250001 74250000");
    row("no limits, increment", 1.0, -infinity, infinity, 0.25, "uD", "1.25 -1.25");
    row("no limits, rounded", 3.14159265, -infinity, infinity, 0.0, "u", "3.14160265");
    row("single precision's limits", 0.0, -3.4028234663852886e38, 3.4028234663852886e38, 0.0, "u", "1");
    row("not a number", nan, 0.0, 10.0, 0.5, "uwD", "");
    row("limits turned round", 5.0, 10.0, 1.0, 0.0, "uwD", "");
    row("more than digits", 1e17, -infinity, infinity, 1.0, "u", "100000000000001000");
}

void TestFloatEditors::steps()
{
    QFETCH(const double, value);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const double, increment);
    QFETCH(const QString, keys);
    QFETCH(const QString, written);
    const auto parameter = feature(1.0, -infinity, infinity);
    parameter->edit([&](auto &data) {
        data.value = value;
        data.minimum = minimum;
        data.maximum = maximum;
        data.increment = increment;
    });
    const bool isSliderAlike = increment > 0.0 || minimum >= maximum || !(maximum - minimum < 1e38);
    for (QWidget *editor : bothEditors(parameter)) {
        if (qobject_cast<FloatSliderEditor *>(editor)
            && (!isSliderAlike || keys.contains(QLatin1Char('U')))) {
            continue; // goes by the positions
        }
        parameter->update([value](auto &data) { data.value = value; });
        parameter->writes.clear();
        m_bench->present();
        QTest::mouseClick(EditorBench::lineOf(editor), Qt::LeftButton); // else the wheel is the view's
        EditorBench::lineOf(editor)->selectAll();
        for (const QChar key : keys) {
            QTest::qWait(qobject_cast<FloatSliderEditor *>(editor) ? 50 : 0);
            pressStep(editor, key);
        }
        QTRY_COMPARE(parameter->writes.join(QLatin1Char(' ')), written);
    }
}

void TestFloatEditors::swallowedSteps_data()
{
    columns<bool, bool, double, double, QString, QString>(
        {"hasSlider", "isSilent", "value", "unit", "keys", "values"});
    row("nothing is swallowed", false, false, 5000.0, 1.0, "udd", "5100 5000 4900");
    row("coarse", false, false, 5000.0, 1000.0, "ud", "6000 5000");
    row("before the answers", false, false, 5000.0, 1.0, "+", "5000");
    row("without an answer", false, true, 5000.0, 1000.0, "u", "6000");
    row("up to the limit", false, false, 5000.0, 1e9, "u", "5000");
    row("many positions", true, false, 5000.0, 0.001, "udd", "5000.001 5000 4999.999");
    row("many positions, wheel", true, false, 5000.0, 0.001, "w", "5000.001");
    row("slider, without an answer", true, true, 5000.0, 0.001, "u", "5000.001");
}

void TestFloatEditors::swallowedSteps()
{
    QFETCH(const bool, hasSlider);
    QFETCH(const bool, isSilent);
    QFETCH(const double, value);
    QFETCH(const double, unit);
    QFETCH(const QString, keys);
    QFETCH(const QString, values);
    const auto parameter = QSharedPointer<CoarseFloat>::create("Feature", "@CameraDevice/Feature");
    parameter->snapshot = feature(value, 10.0, 1e7, 0.0, "Logarithmic")->snapshot;
    parameter->edit([](auto &data) { data.displayPrecision = 8; });
    parameter->unit = unit;
    parameter->isSilent = isSilent;
    m_collection->get<MemoryInteger>("Raw")->edit([](auto &data) {
        data.minimum = 10000;
        data.maximum = 10000000000;
    });
    QWidget *const editor =
        hasSlider ? static_cast<QWidget *>(sliderEditor(parameter)) : floatEditor(parameter);
    m_bench->present();
    QTest::mouseClick(EditorBench::lineOf(editor), Qt::LeftButton);
    QStringList expected = values.split(QLatin1Char(' '));
    for (const QChar key : keys) {
        pressStep(editor, key);
        const QString next = expected.takeFirst();
        QTRY_COMPARE(QString::number(parameter->held(), 'g', 12), next);
        QTRY_COMPARE(EditorBench::lineOf(editor)->text(), next);
        QTest::qWait(100); // nothing goes on
    }
    QCOMPARE(parameter->held(), values.section(QLatin1Char(' '), -1).toDouble());
}

void TestFloatEditors::stepEnds_data()
{
    columns<QString, int>({"shown", "tries"});
    row("refused", "5000", 0);
    row("no answer", "5000", 1);
    row("typing", "7", 1);
    row("leaving", "5000", 1);
}

void TestFloatEditors::stepEnds()
{
    const QString how = QTest::currentDataTag();
    const auto parameter = QSharedPointer<CoarseFloat>::create("Feature", "@CameraDevice/Feature");
    parameter->snapshot = feature(5000.0, 0.0, 1e7)->snapshot;
    parameter->unit = 1e9;
    if (how == "refused") {
        parameter->fail({"setValueFromString"}, GenICam::AccessException("locked"));
    } else if (how == "no answer") {
        parameter->isSilent = true;
        parameter->fail({"scheduleParameterDataChangedCheck"}, GenICam::AccessException("busy"));
    }
    for (QWidget *editor : bothEditors(parameter)) {
        m_bench->present();
        editor->setFocus();
        m_bench->press(Qt::Key_Up);
        if (how == "typing") {
            m_bench->type(editor, "7");
        } else if (how == "leaving") {
            m_bench->press(Qt::Key_Tab);
        }
        QTest::qWait(600);
        QTEST(int(parameter->writes.size()), "tries");
        QTEST(EditorBench::lineOf(editor)->text(), "shown");
        m_bench->press(Qt::Key_Escape);
        parameter->writes.clear();
    }
    QCOMPARE(m_bench->refusals.size(), how == "refused" ? 2 : 0);
}

void TestFloatEditors::staleValueIsTypedAgain()
{
    const auto parameter = feature(5.0, 0.0, 10.0);
    const AbstractItemEditor::EditorData old{parameter, parameter->parameterData()};
    for (QWidget *editor : bothEditors(parameter)) {
        disconnect(parameter.data(), nullptr, m_bench.get(), nullptr); // as with callbacks off
        m_bench->present();
        m_bench->enter(editor, "7");
        dynamic_cast<AbstractItemEditor *>(editor)->setEditorData(old);
        QTest::qWait(50);
        m_bench->enter(editor, "5");
        QTRY_COMPARE(parameter->writes, QStringList({"7", "5"}));
        parameter->writes.clear();
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
        parameter->writes.clear();
    }
    if (!std::isfinite(value) || !readable || minimum > maximum) {
        // Sent as typed, refused by the parameter, never replaced by a limit.
        for (QWidget *editor : {static_cast<QWidget *>(plain), static_cast<QWidget *>(withSlider)}) {
            parameter->update([&](auto &data) { data.value = value; });
            m_bench->refusals.clear();
            m_bench->type(editor, "77");
            m_bench->press(Qt::Key_Up); // from nowhere
            m_bench->press(Qt::Key_Return);
            QTRY_COMPARE(m_bench->refusals.size(), 1);
            QVERIFY2(m_bench->refusals.constFirst().contains("77"),
                     qPrintable(m_bench->refusals.constFirst()));
            QCOMPARE(parameter->writes, QStringList());
        }
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
    QTest::qWait(50);
    QTest::keyClick(slider, Qt::Key_Left);
    QTRY_COMPARE(parameter->writes.constLast(), "995");
    // Where a limit is missing, its end is nowhere.
    parameter->update([](auto &data) { data.maximum = infinity; });
    QTest::keyClick(slider, Qt::Key_End);
    QTest::qWait(50);
    QCOMPARE(parameter->writes.constLast(), "995");
    QCOMPARE(slider->value(), slider->minimum());
}

QTEST_MAIN(TestFloatEditors)
#include "tst_floateditors.moc"
