// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreetest.h"

#include <zeltoviewercomponents/featuretree/enumeditor.h>

#include <QAccessible>

#include <functional>
#include <utility>

namespace {

using Heard = std::pair<QAccessible::Event, QString>; // what, and the name of whom

QList<Heard> &heard()
{
    static QList<Heard> events;
    return events;
}

void hear(QAccessibleEvent *event)
{
    if (QAccessibleInterface *const source = event->accessibleInterface()) {
        heard().append({event->type(), source->text(QAccessible::Name)});
    }
}

QAccessibleInterface *interfaceOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

// Walks down as assistive technology does, and checks that the way up is the same.
QAccessibleInterface *find(QAccessibleInterface *top,
                           const std::function<bool(QAccessibleInterface *)> &isWanted)
{
    if (isWanted(top)) {
        return top;
    }
    for (int i = 0; i < top->childCount(); ++i) {
        QAccessibleInterface *const child = top->child(i);
        if (!child || child->parent() != top || top->indexOfChild(child) != i) {
            qWarning("%s: child %d is none", qPrintable(top->text(QAccessible::Name)), i);
            return nullptr;
        }
        if (QAccessibleInterface *const found = find(child, isWanted)) {
            return found;
        }
    }
    return nullptr;
}

QAccessibleInterface *find(QAccessibleInterface *top, QAccessible::Role role, const QString &name)
{
    return find(top, [role, &name](QAccessibleInterface *candidate) {
        return candidate->role() == role && candidate->text(QAccessible::Name) == name;
    });
}

QSharedPointer<MemoryCollection> fullCamera()
{
    auto camera = MemoryCollection::createSample();
    const QString device = QStringLiteral("DeviceControl");
    auto alias = camera->addInteger(QStringLiteral("Gamma/Alias"), QString(), 10, 0, 40, 1);
    Q_UNUSED(alias)
    camera->addFloat(QStringLiteral("Gamma"), device, 1.0, 0.0, 4.0, 0.0, QStringLiteral("Linear"));
    auto serial = camera->addString(QStringLiteral("DeviceSerialNumber"), device, QStringLiteral("4711"));
    serial->edit([](auto &data) { data.isWritable = false; });
    auto temperature = camera->addFloat(QStringLiteral("DeviceTemperature"), device, 40.5, 0.0, 90.0, 0.0);
    temperature->edit([](auto &data) { data.isWritable = false; });
    return camera;
}

} // namespace

class TestAccessibility : public FeatureTreeTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QAccessible::setActive(true); }
    void cellsHaveTheirTexts_data();
    void cellsHaveTheirTexts();
    void statesAreTrue();
    void partsAreNamed();
    void valuesReachTheCamera_data();
    void valuesReachTheCamera();
    void nothingIsSetWhereNothingCanBeSet();
    void listsAreNamedByTheirFeature();
    void editorsThatOpenOnDemand();
    void rowsAreNumberedInTheirOrder();
    void countsAreReadOut();
    void hintsAreReadOut();
    void changesAreTold();
};

void TestAccessibility::cellsHaveTheirTexts_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *feature, const char *name, const char *value) {
        QTest::newRow(feature) << QString::fromLatin1(feature) << QString::fromLatin1(name)
                               << QString::fromLatin1(value);
    };
    row("Width", "Width", "640");
    row("OffsetX", "OffsetX", "0");
    row("PixelFormat", "PixelFormat", "8 bits"); // as the list shows it
    row("ReverseX", "ReverseX", "false");
    row("ExposureTime", "Exposure Time [us]", "5000");
    row("Gain", "Gain", "1.5");
    row("TriggerSoftware", "TriggerSoftware", "Execute");
    row("DeviceUserID", "DeviceUserID", "left");
    row("DeviceTemperature", "DeviceTemperature", "40.5");
    row("DeviceControl", "DeviceControl", "DeviceControl"); // the name fills both cells
}

void TestAccessibility::cellsHaveTheirTexts()
{
    QFETCH(QString, feature);
    QFETCH(QString, name);
    QFETCH(QString, value);
    const auto camera = fullCamera();
    qSharedPointerDynamicCast<MemoryEnum>(camera->parameter(QStringLiteral("PixelFormat")))
        ->edit<ParameterCollection::EnumParameterData>(
            [](auto &data) { data.displayTexts[0] = QStringLiteral("8 bits"); });
    TreeBench bench(camera);
    const QModelIndex index = bench.row(feature);
    const QString toolTip = feature == QLatin1String("ExposureTime")
        ? QStringLiteral("Exposure Time (ExposureTime)\nDuration of the exposure")
        : name == value ? name
                        : QStringLiteral("%1 (%1)").arg(feature);
    auto *const table = interfaceOf(bench.view())->tableInterface();
    int rows = 0;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->cellAt(row, 0)->text(QAccessible::Name) == name) {
            QCOMPARE(table->cellAt(row, 1)->text(QAccessible::Name), value);
            QCOMPARE(table->cellAt(row, 0)->text(QAccessible::Description), toolTip);
            QCOMPARE(table->cellAt(row, 1)->text(QAccessible::Description), toolTip);
            ++rows;
        }
    }
    QCOMPARE(rows, 1);
    // The tree's own texts are what they were: an editor shows the value, not the cell below it.
    QVERIFY(!bench.extension()->getFeatureTreeItem(index)->data(0, Qt::AccessibleTextRole).isValid());
}

void TestAccessibility::statesAreTrue()
{
    TreeBench bench(fullCamera());
    QAccessibleInterface *const tree = interfaceOf(bench.view());
    const auto valueCell = [&](const QString &feature) {
        QAccessibleInterface *const name = find(tree, QAccessible::TreeItem, feature);
        return tree->tableInterface()->cellAt(name->tableCellInterface()->rowIndex(), 1);
    };
    QVERIFY(valueCell("DeviceSerialNumber")->state().readOnly);
    QVERIFY(!valueCell("DeviceSerialNumber")->state().editable);
    QVERIFY(valueCell("DeviceUserID")->state().editable);
    QVERIFY(!valueCell("DeviceUserID")->state().readOnly);
    const auto locked = valueCell("DeviceTemperature")->child(0)->state();
    QVERIFY(locked.disabled && locked.readOnly);
    QVERIFY(!valueCell("Gain")->child(0)->state().disabled);

    QAccessibleInterface *const category = find(tree, QAccessible::TreeItem, "DeviceControl");
    QVERIFY(category->state().expanded && !category->state().collapsed);
    category->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(category->state().collapsed && !category->state().expanded);
    QVERIFY(!bench.view()->isExpanded(bench.row("DeviceControl")));

    auto *const list = bench.editor<EnumEditor>("PixelFormat");
    QVERIFY(interfaceOf(list)->state().hasPopup && interfaceOf(list)->state().collapsed);
    interfaceOf(list)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(interfaceOf(list)->state().expanded);
    QCOMPARE(interfaceOf(list)->childCount(), 1);
    list->hidePopup();

    bench.node("ReverseX")->snapshot = [&] {
        auto copy = QSharedPointer<ParameterCollection::BooleanParameterData>::create(
            static_cast<const ParameterCollection::BooleanParameterData &>(
                *bench.node("ReverseX")->snapshot));
        copy->isReadable = copy->isWritable = false;
        return copy;
    }();
    bench.publish("ReverseX");
    QVERIFY(valueCell("ReverseX")->state().disabled);
    QCOMPARE(valueCell("ReverseX")->text(QAccessible::Name), "<not available>");
}

void TestAccessibility::partsAreNamed()
{
    TreeBench bench(fullCamera());
    QAccessibleInterface *const widget = interfaceOf(&bench.widget);
    QVERIFY(find(widget, QAccessible::Tree, "Features"));
    QVERIFY(find(widget, QAccessible::Button, "Refresh"));
    QVERIFY(find(widget, QAccessible::EditableText, "Search (Ctrl+F)"));
    QVERIFY(find(widget, QAccessible::CheckBox, "Polling"));
    // Nothing that can be operated is without a name.
    const auto isNameless = [](QAccessibleInterface *part) {
        return part->state().focusable && !part->state().invisible && part->text(QAccessible::Name).isEmpty();
    };
    QVERIFY(!find(widget, isNameless));
    bench.type("Gain");
    QVERIFY(find(widget, QAccessible::Button, "Clear"));
}

void TestAccessibility::valuesReachTheCamera_data()
{
    using Set = std::function<void(QAccessibleInterface *)>;
    QTest::addColumn<QString>("feature");
    QTest::addColumn<int>("role");
    QTest::addColumn<Set>("set");
    QTest::addColumn<QStringList>("writes");
    const auto row = [](const char *name, const char *feature, int role, Set set, const QStringList &writes) {
        QTest::newRow(name) << QString::fromLatin1(feature) << role << std::move(set) << writes;
    };
    const auto value = [](const QVariant &number) {
        return [number](QAccessibleInterface *part) { part->valueInterface()->setCurrentValue(number); };
    };
    const auto text = [](const QString &entered) {
        return [entered](QAccessibleInterface *part) {
            part->editableTextInterface()->replaceText(0, part->textInterface()->characterCount(), entered);
        };
    };
    const auto cell = [](const QString &entered) {
        return [entered](QAccessibleInterface *part) { part->setText(QAccessible::Value, entered); };
    };
    const auto act = [](const QString &action) {
        return [action](QAccessibleInterface *part) { part->actionInterface()->doAction(action); };
    };
    const int spinBox = QAccessible::SpinBox;
    row("integer, slider's box", "Width", spinBox, value(800), {"800"});
    row("integer, off the grid", "Width", spinBox, value(805), {"800"});
    row("integer, as text", "Width", spinBox, text("32"), {"32"});
    row("integer, slider", "Width", QAccessible::Slider, value(160), {"160"});
    row("integer, cell", "Width", QAccessible::Cell, cell("48"), {"48"});
    row("plain integer, cell", "OffsetX", QAccessible::Cell, cell("17"), {"17"});
    row("list, as text", "PixelFormat", QAccessible::ComboBox, text("Mono12"), {"Mono12"});
    row("list, as value", "PixelFormat", QAccessible::ComboBox, cell("Mono12"), {"Mono12"});
    row("list, no entry", "PixelFormat", QAccessible::ComboBox, text("Mono16"), {});
    row("check box", "ReverseX", QAccessible::CheckBox, act(QAccessibleActionInterface::toggleAction()),
        {"1"});
    row("check box, cell", "ReverseX", QAccessible::Cell, act(QAccessibleActionInterface::pressAction()),
        {"1"});
    row("float", "ExposureTime", spinBox, value(1234.5678901234), {"1234.5678901234"});
    row("float, as text", "Gain", spinBox, text("2.5"), {"2.5"});
    row("float, slider's box", "Gamma", spinBox, value(2.25), {"2.25"});
    row("float, no number", "Gain", spinBox, text("much"), {});
    row("string, cell", "DeviceUserID", QAccessible::Cell, cell("right"), {"right"});
    row("command, cell", "TriggerSoftware", QAccessible::Cell, cell("1"), {}); // no value to set
}

void TestAccessibility::valuesReachTheCamera()
{
    QFETCH(QString, feature);
    QFETCH(int, role);
    QFETCH(std::function<void(QAccessibleInterface *)>, set);
    QFETCH(QStringList, writes);
    TreeBench bench(fullCamera());
    QAccessibleInterface *const tree = interfaceOf(bench.view());
    const QString name = bench.row(feature).data().toString();
    const int row = find(tree, QAccessible::TreeItem, name)->tableCellInterface()->rowIndex();
    QAccessibleInterface *const part = find(tree->tableInterface()->cellAt(row, 1),
                                            [role](auto *candidate) { return candidate->role() == role; });
    QVERIFY(part);
    set(part);
    TreeBench::settle();
    QCOMPARE(bench.node(feature)->writes, writes);
    QCOMPARE(bench.node(feature)->executions, 0);
}

void TestAccessibility::nothingIsSetWhereNothingCanBeSet()
{
    TreeBench bench(fullCamera());
    QAccessibleInterface *const tree = interfaceOf(bench.view());
    const auto valueCell = [&](const QString &feature) {
        const int row = find(tree, QAccessible::TreeItem, feature)->tableCellInterface()->rowIndex();
        return tree->tableInterface()->cellAt(row, 1);
    };
    valueCell("DeviceSerialNumber")->setText(QAccessible::Value, "1");
    QAccessibleInterface *const spinBox = valueCell("DeviceTemperature")->child(0)->child(0);
    spinBox->valueInterface()->setCurrentValue(1.0);
    spinBox->editableTextInterface()->insertText(0, "1");
    TreeBench::settle();
    QCOMPARE(bench.node("DeviceSerialNumber")->writes + bench.node("DeviceTemperature")->writes,
             QStringList());
    QCOMPARE(spinBox->text(QAccessible::Value), "40.5");

    // A command runs by its action, once, and asks first where the user is to be asked.
    int asked = 0;
    bench.widget.setCommandVeto([&asked](const auto &) { return ++asked == 1; });
    for (int i = 0; i < 2; ++i) {
        auto *const button = valueCell("TriggerSoftware")->child(0);
        QCOMPARE(button->role(), QAccessible::Button);
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        TreeBench::settle();
        QCOMPARE(bench.node("TriggerSoftware")->executions, i);
    }
    QCOMPARE(asked, 2);
}

void TestAccessibility::listsAreNamedByTheirFeature()
{
    TreeBench bench(fullCamera());
    QAccessibleInterface *const list = find(interfaceOf(bench.view()), QAccessible::ComboBox, "PixelFormat");
    QVERIFY(list);
    QCOMPARE(list->text(QAccessible::Value), "Mono8");
    QCOMPARE(list->textInterface()->text(0, 3), "Mon");
}

// Those of plain integers and texts, which open by an action and take a whole text as entered.
void TestAccessibility::editorsThatOpenOnDemand()
{
    TreeBench bench(fullCamera());
    QAccessibleInterface *const tree = interfaceOf(bench.view());
    for (const QString &feature : {QStringLiteral("OffsetX"), QStringLiteral("DeviceUserID")}) {
        const int row = find(tree, QAccessible::TreeItem, feature)->tableCellInterface()->rowIndex();
        QAccessibleInterface *const cell = tree->tableInterface()->cellAt(row, 1);
        QCOMPARE(cell->childCount(), 0);
        cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(cell->childCount(), 1);
        QAccessibleInterface *const editor = cell->child(0);
        QCOMPARE(editor->text(QAccessible::Name), feature);
        QCOMPARE(tree->focusChild(), editor);
        editor->editableTextInterface()->insertText(0, "1"); // a letter of it: nothing is entered yet
        TreeBench::settle();
        QCOMPARE(bench.node(feature)->writes, QStringList());
        editor->editableTextInterface()->replaceText(0, editor->textInterface()->characterCount(), "12");
        TreeBench::settle();
        QCOMPARE(bench.node(feature)->writes, QStringList{"12"});
        QCOMPARE(cell->childCount(), 0);
    }
}

void TestAccessibility::rowsAreNumberedInTheirOrder()
{
    TreeBench bench(flatCamera(300));
    QAccessibleInterface *const tree = interfaceOf(bench.view());
    const auto *const table = tree->tableInterface();
    bench.view()->setFocus();
    for (const int flag : {250, 3}) { // from below the viewport and from above it
        const QString name = QStringLiteral("Flag%1").arg(flag);
        bench.view()->setCurrentIndex(bench.row(name));
        QCOMPARE(tree->focusChild()->text(QAccessible::Name), name);
        const int row = tree->focusChild()->tableCellInterface()->rowIndex();
        QCOMPARE(table->selectedRows(), QList<int>{row});
        QCOMPARE(table->cellAt(row + 1, 0)->text(QAccessible::Name), QStringLiteral("Flag%1").arg(flag + 1));
        // The number by which Qt tells of the focus: with a row for the header.
        QCOMPARE(tree->child((row + 1) * 2)->text(QAccessible::Name), name);
    }
    QVERIFY(find(tree, QAccessible::TreeItem, "Flag299")->state().offscreen);
    bench.type("Flag29");
    QCOMPARE(table->cellAt(table->rowCount() - 1, 0)->text(QAccessible::Name), "Flag299");
    bench.widget.clear();
    QCOMPARE(table->rowCount(), 0);
}

void TestAccessibility::countsAreReadOut()
{
    TreeBench bench(fullCamera());
    QAccessibleInterface *const box = interfaceOf(bench.box());
    bench.type("device");
    QCOMPARE(box->text(QAccessible::Description), "3 feature(s) found");
    bench.widget.onVisibilityChanged(GenApi::Beginner);
    bench.type("x");
    QCOMPARE(box->text(QAccessible::Description), "0 feature(s) found");
    bench.erase();
    QCOMPARE(box->text(QAccessible::Description), QString());
}

void TestAccessibility::hintsAreReadOut()
{
    TreeBench bench(fullCamera());
    QAccessibleInterface *const box = find(interfaceOf(bench.view()), QAccessible::SpinBox, "Width");
    box->editableTextInterface()->replaceText(0, 3, "5000");
    QCOMPARE(box->text(QAccessible::Description), "1920 is the maximum");
}

// The platform of the other tests has nobody to tell.
void TestAccessibility::changesAreTold()
{
    if (!QAccessible::isActive()) {
        QSKIP("Needs a platform that passes events on, as xcb does with QT_LINUX_ACCESSIBILITY_ALWAYS_ON.");
    }
    TreeBench bench(fullCamera());
    QAccessibleInterface *const tree = interfaceOf(bench.view());
    const int row = find(tree, QAccessible::TreeItem, "Gain")->tableCellInterface()->rowIndex();
    QCOMPARE(tree->tableInterface()->cellAt(row, 1)->text(QAccessible::Name), "1.5");
    bench.view()->setFocus();
    heard().clear();
    const auto former = QAccessible::installUpdateHandler(hear);
    bench.parameter<MemoryFloat>("Gain")->setValue(3.0);
    bench.view()->setCurrentIndex(bench.row("Gain"));
    TreeBench::settle();
    bench.type("Gain");
    QAccessible::installUpdateHandler(former);
    QVERIFY(heard().contains({QAccessible::NameChanged, "3"}));
    QVERIFY(heard().contains({QAccessible::Focus, "Gain"}));
    QVERIFY(heard().contains({QAccessible::DescriptionChanged, "Search (Ctrl+F)"}));
}

QTEST_MAIN(TestAccessibility)

#include "tst_accessibility.moc"
