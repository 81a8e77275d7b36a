// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorbench.h"

#include <support/table.h>

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/enumeditor.h>
#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/floatslidereditor.h>
#include <zeltoviewercomponents/featuretree/inteditor.h>
#include <zeltoviewercomponents/featuretree/intslidereditor.h>

#include <QMenu>
#include <QMenuBar>
#include <QRandomGenerator>
#include <QSlider>

#include <cmath>

/*! \brief What holds for all editors of numbers: of integers and of floats, alone and with a slider. */
class TestNumberEditors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void typingSurvivesRefreshes_data() { kinds(); }
    void typingSurvivesRefreshes();
    void entryOfTheValueBeforeARefresh_data() { kinds(); }
    void entryOfTheValueBeforeARefresh();
    void selectedTextIsReplaced_data() { kinds(); }
    void selectedTextIsReplaced();
    void deletedTextIsNoValue_data() { kinds(); }
    void deletedTextIsNoValue();
    void refusalShowsTheTruth_data() { kinds(); }
    void refusalShowsTheTruth();
    void randomEntriesStayOnTheGrid_data() { kinds(); }
    void randomEntriesStayOnTheGrid();
    void leavingWritesNothing();
    void pausesKeepWhatIsTyped_data();
    void pausesKeepWhatIsTyped();

private:
    static void kinds();
    QWidget *createEditor(bool isInteger, bool hasSlider);
    void createEditor();
    template <typename Change>
    void update(const Change &change);
    void setCamera(int value, int maximum = 1000);
    QStringList &writes() { return m_collection->node("Number")->writes; }

    QSharedPointer<MemoryCollection> m_collection;
    std::unique_ptr<EditorBench> m_bench;
    QWidget *m_editor = nullptr;
    QLineEdit *m_line = nullptr;
};

void TestNumberEditors::init()
{
    m_bench = std::make_unique<EditorBench>();
    m_collection = QSharedPointer<MemoryCollection>::create();
    m_collection->addInteger("Raw", "Root", 0, 0, 1000);
    m_collection->setAlias("Number", "Raw");
}

void TestNumberEditors::kinds()
{
    columns<bool, bool>({"isInteger", "hasSlider"});
    row("integer", true, false);
    row("integer with a slider", true, true);
    row("float", false, false);
    row("float with a slider", false, true);
}

QWidget *TestNumberEditors::createEditor(bool isInteger, bool hasSlider)
{
    EditorBench *const bench = m_bench.get();
    if (isInteger) {
        const auto number = m_collection->addInteger("Number", "Root", 10, 0, 1000);
        if (hasSlider) {
            return bench->add(new IntSliderEditor(bench), number, SIGNAL(valueChanged(int)));
        }
        return bench->add(new IntEditor(bench), number, SIGNAL(returnPressed()));
    }
    const auto number = m_collection->addFloat("Number", "Root", 10.0, 0.0, 1000.0);
    if (hasSlider) {
        return bench->add(new FloatSliderEditor(m_collection, bench), number, SIGNAL(boxValueChanged()));
    }
    return bench->add(new FloatEditor(bench, QString()), number, SIGNAL(boxValueChanged()));
}

void TestNumberEditors::createEditor()
{
    QFETCH(const bool, isInteger);
    QFETCH(const bool, hasSlider);
    m_editor = createEditor(isInteger, hasSlider);
    m_line = EditorBench::lineOf(m_editor);
    m_bench->present();
}

template <typename Change>
void TestNumberEditors::update(const Change &change)
{
    if (const auto integer = m_collection->get<MemoryInteger>("Number")) {
        integer->update(change);
    } else {
        m_collection->get<MemoryFloat>("Number")->update(change);
    }
}

void TestNumberEditors::setCamera(int value, int maximum)
{
    update([value, maximum](auto &data) {
        data.value = value;
        data.maximum = maximum;
        data.valueString = QString::number(value);
    });
}

void TestNumberEditors::typingSurvivesRefreshes()
{
    createEditor();
    m_bench->type(m_editor, "77");
    m_bench->press(Qt::Key_Left);
    for (int i = 0; i < 1000; ++i) {
        setCamera(i % 80, 80 + i); // the typed number, too
        QCOMPARE(m_line->text(), "77");
        QCOMPARE(m_line->cursorPosition(), 1);
    }
    QCOMPARE(m_editor->toolTip(), "Range: 0..1079");
    m_bench->press(Qt::Key_Escape);
    QCOMPARE(m_line->text(), "39");
    QVERIFY(writes().isEmpty());
    m_bench->enter(m_editor, "5");
    QCOMPARE(writes(), QStringList("5"));
    setCamera(48);
    QCOMPARE(m_line->text(), "48");
}

void TestNumberEditors::entryOfTheValueBeforeARefresh()
{
    createEditor();
    m_bench->type(m_editor, "10");
    m_line->setSelection(1, 1);
    update([](auto &data) {
        if constexpr (requires { data.displayNotation; }) {
            data.displayNotation = GenApi::fnFixed;
        }
    });
    setCamera(50);
    QCOMPARE(m_line->text(), "10");
    QCOMPARE(m_line->selectedText(), "0");
    m_bench->press(Qt::Key_Return);
    QCOMPARE(writes(), QStringList("10"));
}

void TestNumberEditors::selectedTextIsReplaced()
{
    createEditor();
    m_editor->setFocus();
    for (const int selected : {2, 1}) {
        setCamera(10);
        m_line->setSelection(0, selected);
        setCamera(987); // half of which must not go into what is typed
        QCOMPARE(m_line->selectedText(), selected == 2 ? "987" : "");
    }
    m_line->selectAll();
    m_bench->press(Qt::Key_Up);
    QTest::keyClicks(QApplication::focusWidget(), "5");
    QCOMPARE(m_line->text(), "5");
}

void TestNumberEditors::deletedTextIsNoValue()
{
    createEditor();
    for (const bool withRefresh : {false, true}) {
        m_bench->type(m_editor, "77");
        m_bench->press(Qt::Key_Backspace);
        m_bench->press(Qt::Key_Backspace);
        if (withRefresh) {
            m_bench->refresh();
            QCoreApplication::processEvents();
            QCOMPARE(m_line->text(), QString());
        }
        m_bench->press(Qt::Key_Return);
        QVERIFY(writes().isEmpty());
        QCOMPARE(m_line->text(), "10");
    }
}

void TestNumberEditors::refusalShowsTheTruth()
{
    createEditor();
    m_collection->node("Number")->fail({"setValueFromString"}, GenICam::AccessException("locked"));
    m_bench->enter(m_editor, "30");
    QCOMPARE(m_bench->refusals, QStringList("locked"));
    if (qobject_cast<IntEditor *>(m_editor)) {
        QCOMPARE(m_line->text(), "30"); // stays for correction
        m_bench->press(Qt::Key_Escape);
    }
    QCOMPARE(m_line->text(), "10");
    const auto *const slider = m_editor->findChild<QSlider *>();
    QVERIFY(!slider || slider->value() == 10);
}

void TestNumberEditors::randomEntriesStayOnTheGrid()
{
    QRandomGenerator random(20261121);
    createEditor();
    auto *const slider = m_editor->findChild<QSlider *>();
    const bool isCoarse = qobject_cast<IntEditor *>(m_editor); // leaves the grid to the camera
    for (int round = 0; round < 200; ++round) {
        const int span = round % 4 == 0 ? 1 << 30 : 5000;
        const int minimum = random.bounded(span) - span / 2;
        const int maximum = minimum + 1 + random.bounded(span);
        const int increment = random.bounded(1, 50);
        update([&](auto &data) {
            data.value = data.minimum = minimum;
            data.maximum = maximum;
            data.increment = increment;
        });
        QVERIFY(writes().isEmpty());
        m_bench->enter(m_editor, QString::number(minimum + random.bounded(maximum - minimum) - 20));
        m_bench->press(random.bounded(2) != 0 ? Qt::Key_PageUp : Qt::Key_Down);
        if (slider) {
            slider->setValue(slider->maximum());
        }
        for (const QString &written : std::as_const(writes())) {
            const double steps = (written.toDouble() - minimum) / increment;
            QVERIFY2(written.toDouble() >= minimum && written.toDouble() <= maximum, qPrintable(written));
            QVERIFY2(isCoarse || std::abs(steps - std::round(steps)) < 1e-6, qPrintable(written));
        }
        writes().clear();
    }
}

void TestNumberEditors::leavingWritesNothing()
{
    m_collection->addBoolean("Flag", "Root");
    m_collection->addEnum("Mode", "Root", {"A", "B"}, "A");
    m_bench->add(new CheckBoxEditor(m_bench.get()), m_collection->parameter("Flag"), SIGNAL(clicked(bool)));
    m_bench->add(new EnumEditor(m_bench.get()), m_collection->parameter("Mode"), SIGNAL(activated(int)));
    QList<MemoryNode *> nodes{m_collection->node("Flag"), m_collection->node("Mode")};
    for (const bool isInteger : {false, true}) {
        for (const bool hasSlider : {false, true}) {
            createEditor(isInteger, hasSlider);
            update([](auto &data) { data.increment = 3; }); // the value is beside the grid
            nodes.append(m_collection->node("Number"));
        }
    }
    const auto editors = m_bench->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(editors.size(), 6);
    m_bench->present();
    for (int round = 0; round < 2; ++round) {
        for (QWidget *editor : editors) {
            editor->setFocus();
            m_bench->press(Qt::Key_Return);
            m_bench->press(Qt::Key_Tab);
        }
        m_bench->refresh();
    }
    for (const MemoryNode *node : std::as_const(nodes)) {
        QCOMPARE(node->writes, QStringList());
    }
}

void TestNumberEditors::pausesKeepWhatIsTyped_data()
{
    columns<bool, bool, QString, QString>({"isInteger", "hasSlider", "pause", "typed"});
    for (const char *const pause : {"menu", "window", "menu bar", "minimized"}) {
        for (const int kind : {0, 1, 2, 3}) {
            for (const char *const typed : {"4", "4x", "99999"}) { // nothing, no number, above the maximum
                QTest::addRow("%s, %d, %s", pause, kind, typed)
                    << (kind < 2) << (kind % 2 == 1) << pause << typed;
            }
        }
    }
}

void TestNumberEditors::pausesKeepWhatIsTyped()
{
    QFETCH(const QString, pause);
    QFETCH(const QString, typed);
    auto *const bar = new QMenuBar(m_bench.get());
    QMenu menu(m_bench.get());
    menu.addAction("Undo");
    QWidget window;
    createEditor();
    m_bench->type(m_editor, typed);
    if (pause == "menu") {
        menu.popup(QPoint());
    } else if (pause == "window") {
        window.show();
        QApplication::setActiveWindow(&window);
    } else if (pause == "minimized") {
        m_bench->showMinimized();
    } else {
        bar->setFocus(Qt::MenuBarFocusReason);
    }
    setCamera(70);
    QCOMPARE(m_line->text(), typed);
    QVERIFY(m_line->isModified());
    menu.close();
    window.close();
    m_bench->showNormal();
    QApplication::setActiveWindow(m_bench.get());
    m_editor->setFocus(Qt::MenuBarFocusReason);
    QCOMPARE(m_line->text(), typed);
    QVERIFY(writes().isEmpty());
    m_line->setSelection(1, static_cast<int>(typed.size()));
    QTest::keyClicks(QApplication::focusWidget(), "2");
    m_bench->press(Qt::Key_Return);
    QCOMPARE(writes(), QStringList(typed.left(1) + "2"));
}

QTEST_MAIN(TestNumberEditors)
#include "tst_numbereditors.moc"
