// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreetest.h"

#include <support/table.h>

#include <platform/parametercollection/parameterdata.h>
#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/enumeditor.h>
#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/intslidereditor.h>

#include <QAbstractSpinBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>

#include <functional>
#include <stdexcept>

class TestFeatureTreeEditing : public FeatureTreeTest
{
    Q_OBJECT

private slots:
    void editorsWriteWhatIsClicked();
    void refusedWriteShowsTheTruth();
    void refusedTextStaysForCorrection_data();
    void refusedTextStaysForCorrection();
    void arrowsWalkRows();
    void tabWalksEditors();
    void keysEditTheValueColumn_data();
    void keysEditTheValueColumn();
    void unusedKeysSearchRows();
    void wheelScrollsTheTree();
    void switchesLevelWhileEditing();
    void leavesEditorsOfOtherRows_data();
    void leavesEditorsOfOtherRows();
    void clearsFromInsideAStep();
    void clearsFromInsideAWrite();
    void closesDeviceWhileEditing();
    void clearsBelowAnOpenPopup();
    void followsAvailability();
    void locksBelowTheFocus_data();
    void locksBelowTheFocus();
    void removesBelowTheFocus();
    void searchesNamesOfSeveralLetters();
    void escapesToTheRow_data() { editors(); }
    void escapesToTheRow();
    void lendsTheFocus_data() { editors(); }
    void lendsTheFocus();
    void leavesWhatWasNotTyped_data() { editors(); }
    void leavesWhatWasNotTyped();
    void copiesTheValue_data() { editors(); }
    void copiesTheValue();

private:
    static void editors();
};

namespace {

/*! \brief A tree with an editor of each class, and the keyboard focus in one of them. */
class EditedTree : public TreeBench
{
public:
    explicit EditedTree()
        : TreeBench(withAlias(MemoryCollection::createSample()))
    {
    }

    /*! Gives the focus to the editor of \a name, or to a \a part of it: its slider or its list. */
    void enter(const QString &name, const QString &part)
    {
        view()->setCurrentIndex(row(name));
        view()->setFocus();
        if (part == "transient") {
            QTest::keyClick(view(), Qt::Key_F2);
        } else if (part == "slider") {
            view()->indexWidget(value(name))->findChild<QSlider *>()->setFocus();
        } else if (part != "button") {
            view()->indexWidget(value(name))->setFocus();
        }
        if (part == "popup") {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
            settle();
        }
        QVERIFY(part == "button" || QApplication::focusWidget() != view());
    }

    QLineEdit *line(const QString &name)
    {
        QWidget *const editor = view()->indexWidget(value(name));
        auto *const line = qobject_cast<QLineEdit *>(editor);
        return line || !editor ? line : editor->findChild<QLineEdit *>();
    }

    /*! Types the beginning of a value. Returns whether the editor takes text. */
    bool typeHalf(const QString &name)
    {
        if (!line(name) || !line(name)->hasFocus()) {
            auto *const spinBox = qobject_cast<QAbstractSpinBox *>(QApplication::focusWidget());
            if (!spinBox || !line(name)) {
                return false;
            }
        }
        line(name)->selectAll();
        QTest::keyClicks(QApplication::focusWidget(), "1");
        return true;
    }

    /*! Clicks with the right button; the menu is about the row \a current. */
    void openMenu(QWidget *target, const QPoint &position, const QString &current)
    {
        QMenu menu;
        menu.addAction("entry");
        QObject::connect(&widget, &FeatureTreeWidget::contextMenuRequested, &menu,
                         [&menu, this](const QPoint &at) { menu.popup(widget.mapToGlobal(at)); });
        QTest::mousePress(target, Qt::RightButton, {}, position);
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, target->mapToGlobal(position));
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(target, &event);
        settle();
        QVERIFY(menu.isVisible());
        menu.close();
        QCOMPARE(widget.GetCurrentNode()->name(), current); // for what is chosen from the menu
        QTest::mouseRelease(target, Qt::RightButton, {}, position);
        settle();
    }

    /*! Publishes a copy of the snapshot that \a change has changed. */
    void change(const QString &name, const std::function<void(ParameterCollection::ParameterData &)> &change)
    {
        static_cast<void>(tryChange<MemoryInteger>(name, change) || tryChange<MemoryFloat>(name, change)
                          || tryChange<MemoryEnum>(name, change) || tryChange<MemoryBoolean>(name, change)
                          || tryChange<MemoryCommand>(name, change) || tryChange<MemoryPlain>(name, change));
        settle();
    }

    QStringList writes()
    {
        QStringList all;
        for (const char *name : {"Width", "OffsetX", "PixelFormat", "ReverseX", "ExposureTime", "Gain",
                                 "Alias", "DeviceUserID"}) {
            all += node(QString::fromLatin1(name))->writes;
        }
        const int executions = node("TriggerSoftware")->executions;
        return executions == 0 ? all : all + QStringList("executed");
    }

    bool isTransientOpen()
    {
        return view()->viewport()->findChild<QLineEdit *>({}, Qt::FindDirectChildrenOnly);
    }

private:
    template <typename Parameter>
    bool tryChange(const QString &name,
                   const std::function<void(ParameterCollection::ParameterData &)> &change)
    {
        const auto found = parameter<Parameter>(name);
        if (found) {
            found->update(change);
        }
        return !found.isNull();
    }

    static QSharedPointer<MemoryCollection> withAlias(const QSharedPointer<MemoryCollection> &camera)
    {
        camera->addInteger("Alias", QString(), 5000, 10, 1000000, 1);
        camera->setAlias("ExposureTime", "Alias");
        return camera;
    }
};

} // namespace

void TestFeatureTreeEditing::editors()
{
    columns<QString, QString>({"name", "part"});
    row("check box", "ReverseX", "");
    row("list", "PixelFormat", "");
    row("open list", "PixelFormat", "popup");
    row("spin box", "Gain", "");
    row("box of a slider integer", "Width", "");
    row("slider of an integer", "Width", "slider");
    row("box of a slider float", "ExposureTime", "");
    row("slider of a float", "ExposureTime", "slider");
    row("plain integer", "OffsetX", "transient");
    row("text", "DeviceUserID", "transient");
    row("command", "TriggerSoftware", "button");
}

void TestFeatureTreeEditing::locksBelowTheFocus_data()
{
    editors();
}

void TestFeatureTreeEditing::locksBelowTheFocus()
{
    QFETCH(QString, name);
    QFETCH(QString, part);
    for (const QString how : {"locked", "unavailable", "hidden", "above the level", "filtered out"}) {
        EditedTree tree;
        tree.enter(name, part);
        tree.typeHalf(name);
        if (how == "filtered out") {
            tree.widget.onFilterTextChanged("no such feature");
            tree.settle();
        } else {
            tree.change(name, [&how](ParameterCollection::ParameterData &data) {
                data.isWritable = false;
                data.isReadable = how != "unavailable";
                data.isImplemented = how != "hidden";
                data.visibility = how == "above the level" ? GenApi::Invisible : GenApi::Beginner;
            });
        }
        const bool isGone = !how.startsWith("locked") && how != "unavailable";
        QVERIFY2(!QApplication::activePopupWidget(), qPrintable(how));
        QVERIFY2(tree.view()->hasFocus(), qPrintable(how));
        QCOMPARE(tree.view()->currentIndex().siblingAtColumn(0), isGone ? QModelIndex() : tree.row(name));
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_F2, Qt::Key_7}) {
            QTest::keyClick(QApplication::focusWidget(), key);
        }
        QTest::qWait(how == "locked" ? 550 : 0); // what was left is shown again, and not written
        QVERIFY2(tree.view()->hasFocus() && !tree.isTransientOpen(), qPrintable(how));
        QCOMPARE(tree.writes(), QStringList());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY2(tree.box()->hasFocus(), qPrintable(how));
    }
}

void TestFeatureTreeEditing::removesBelowTheFocus()
{
    for (const QString name : {"OffsetX", "Gain", "ReverseX"}) {
        EditedTree tree;
        for (const QString &favorite : {name, QString("DeviceUserID")}) {
            tree.extension()->AddFavorite(tree.camera->parameter(favorite), tree.favorites().count());
        }
        tree.settle();
        tree.view()->setCurrentIndex(tree.favorite(name));
        tree.view()->setFocus();
        QTest::keyClick(tree.view(), name == "ReverseX" ? Qt::Key_Tab : Qt::Key_F2);
        if (auto *const line = qobject_cast<QLineEdit *>(QApplication::focusWidget())) {
            QTest::keyClicks(line, "1");
        }
        tree.favorites().removeEntry(0);
        tree.settle();
        QVERIFY(tree.view()->hasFocus() && !tree.isTransientOpen());
        QVERIFY(!tree.favorite(name).isValid());
        QCOMPARE(tree.writes(), QStringList());
        while (tree.favorites().count() > 0) {
            tree.favorites().removeEntry(0);
        }
    }
}

void TestFeatureTreeEditing::searchesNamesOfSeveralLetters()
{
    EditedTree tree;
    tree.view()->setCurrentIndex(tree.row("ImageFormatControl"));
    tree.view()->setFocus();
    QTest::keyClicks(tree.view(), "deviceu"); // by way of a category
    QCOMPARE(tree.view()->currentIndex().siblingAtColumn(0), tree.row("DeviceUserID"));
    // A blank is a letter as well, and presses no button of the row that is found so far.
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    tree.view()->setCurrentIndex(tree.row("ImageFormatControl"));
    QTest::keyClicks(tree.view(), "trig ");
    QCOMPARE(tree.view()->currentIndex().siblingAtColumn(0), tree.row("TriggerSoftware"));
    QVERIFY(tree.view()->hasFocus() && !tree.isTransientOpen());
    QCOMPARE(tree.writes(), QStringList());
}

void TestFeatureTreeEditing::escapesToTheRow()
{
    QFETCH(QString, name);
    QFETCH(QString, part);
    EditedTree tree;
    tree.widget.onFilterTextChanged(name);
    tree.box()->setText(name);
    tree.enter(name, part);
    const QString shown = tree.line(name) ? tree.line(name)->text() : QString();
    if (part == "popup") {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!QApplication::activePopupWidget());
        tree.settle();
        QCOMPARE(QApplication::focusWidget(), tree.view()->indexWidget(tree.value(name))); // and no further
    }
    tree.typeHalf(name);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    tree.settle();
    QVERIFY(tree.view()->hasFocus() && !tree.isTransientOpen());
    QCOMPARE(tree.view()->currentIndex().siblingAtColumn(0), tree.row(name));
    QCOMPARE(tree.line(name) ? tree.line(name)->text() : shown, shown);
    if (part != "button") {
        QTest::keyClick(tree.view(), Qt::Key_Escape);
        QCOMPARE(tree.box()->text(), name); // that was the first of two
    }
    QTest::keyClick(tree.view(), Qt::Key_Escape);
    QCOMPARE(tree.box()->text(), QString());
    tree.settle();
    QTest::keyClick(tree.view(), Qt::Key_Up);
    QVERIFY(tree.view()->hasFocus() && tree.view()->currentIndex().siblingAtColumn(0) != tree.row(name));
    QTest::qWait(550);
    QCOMPARE(tree.writes(), QStringList());
}

void TestFeatureTreeEditing::lendsTheFocus()
{
    QFETCH(QString, name);
    QFETCH(QString, part);
    EditedTree tree;
    tree.enter(name, part);
    if (!tree.typeHalf(name)) {
        return;
    }
    QPointer<QWidget> input(QApplication::focusWidget());
    const QString above = "ReverseX";
    const QString category = "DeviceControl";
    tree.openMenu(tree.view()->viewport(), tree.view()->visualRect(tree.row(name)).center(), name);
    tree.openMenu(tree.view()->viewport(), tree.view()->visualRect(tree.row(category)).center(), category);
    tree.openMenu(tree.view()->indexWidget(tree.value(above)), QPoint(8, 8), above);
    QTest::mouseClick(tree.view()->verticalScrollBar(), Qt::LeftButton);
    QTest::qWait(550);
    tree.publish(name);
    tree.settle();
    QCOMPARE(QApplication::focusWidget(), input.data());
    QCOMPARE(tree.view()->currentIndex().siblingAtColumn(0), tree.row(name));
    QVERIFY(input && tree.line(name) && tree.line(name)->text() == "1");
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTest::qWait(550);
    tree.publish(name);
    tree.settle();
    QVERIFY(input && tree.line(name) && tree.line(name)->text() == "1");
    QCOMPARE(tree.writes(), QStringList());
    QApplication::setActiveWindow(&tree.widget);
    QTRY_COMPARE(QApplication::focusWidget(), input.data());
    QTest::keyClicks(input, "6");
    QTest::keyClick(input, Qt::Key_Return);
    tree.settle();
    QCOMPARE(tree.writes().size(), 1);
    QVERIFY(tree.writes().constFirst().startsWith("16"));
}

// As after a settings file, until the rows have heard of it.
void TestFeatureTreeEditing::leavesWhatWasNotTyped()
{
    QFETCH(QString, name);
    QFETCH(QString, part);
    EditedTree tree;
    tree.enter(name, part);
    tree.extension()->setGenICamCallbacksEnable(false);
    tree.change(name, [](ParameterCollection::ParameterData &data) {
        data.valueString = "0";
        if (auto *const integer = dynamic_cast<ParameterCollection::IntegerParameterData *>(&data)) {
            integer->value = integer->minimum;
        } else if (auto *const number = dynamic_cast<ParameterCollection::FloatParameterData *>(&data)) {
            number->value = number->minimum;
        }
    });
    tree.widget.setResting(true);
    tree.settle();
    QVERIFY(!tree.isTransientOpen());
    QCOMPARE(tree.writes(), QStringList());
}

void TestFeatureTreeEditing::copiesTheValue()
{
    QFETCH(QString, name);
    QFETCH(QString, part);
    if (part == "popup" || part == "button") {
        return; // a list is at work, a command has no value
    }
    EditedTree tree;
    const QString value = tree.node(name)->snapshot->valueString;
    const auto copied = [] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
        const QString text = QApplication::clipboard()->text();
        QApplication::clipboard()->setText("old");
        return text;
    };
    for (const QModelIndex &index : {tree.row(name), tree.value(name)}) {
        tree.view()->setCurrentIndex(index);
        tree.view()->setFocus();
        QCOMPARE(copied(), value);
    }
    tree.enter(name, part);
    if (QLineEdit *const line = tree.line(name); line && part != "slider") {
        line->setSelection(0, 1);
        QCOMPARE(copied(), line->text().left(1));
        line->deselect();
    }
    QCOMPARE(copied(), value);
    QCOMPARE(tree.writes(), QStringList());
}

void TestFeatureTreeEditing::editorsWriteWhatIsClicked()
{
    TreeBench bench;
    auto *const box = bench.editor<CheckBoxEditor>("ReverseX");
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QCOMPARE(bench.parameter<MemoryBoolean>("ReverseX")->writes, QStringList("1"));
    bench.settle();
    QVERIFY(box->isChecked());
    QCOMPARE(bench.view()->currentIndex().siblingAtColumn(0), bench.row("ReverseX"));

    auto *const width = bench.editor<IntSliderEditor>("Width");
    auto *const slider = width->findChild<QSlider *>();
    QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(slider->width() - 3, slider->height() / 2));
    bench.settle();
    const QStringList widths = bench.parameter<MemoryInteger>("Width")->writes;
    QVERIFY(widths.value(0).toInt() > 640);
    QCOMPARE(QString::number(width->findChild<QSpinBox *>()->value()), widths.constLast());
    QCOMPARE(bench.view()->currentIndex().siblingAtColumn(0), bench.row("Width"));
}

void TestFeatureTreeEditing::refusedWriteShowsTheTruth()
{
    TreeBench bench;
    const auto refuse = [&bench](const QString &name) {
        bench.node(name)->before = [](const QString &operation) {
            if (operation == "setValueFromString") {
                throw GenICam::AccessException("locked");
            }
        };
    };
    refuse("ReverseX");
    auto *const box = bench.editor<CheckBoxEditor>("ReverseX");
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(!box->isChecked());

    refuse("PixelFormat");
    auto *const combo = bench.editor<EnumEditor>("PixelFormat");
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(combo->currentText(), "Mono8");
}

void TestFeatureTreeEditing::refusedTextStaysForCorrection_data()
{
    columns<QString, Qt::Key, int, QStringList>({"typed", "key", "attempts", "written"});
    row("corrected", "5000", Qt::Key_Backspace, 2, QStringList("500"));
    row("taken back", "5000", Qt::Key_Escape, 1, QStringList());
    row("left", "5000", Qt::Key_Tab, 1, QStringList());
    row("tried again", "5000", Qt::Key_Return, 2, QStringList());
}

void TestFeatureTreeEditing::refusedTextStaysForCorrection()
{
    QFETCH(const QString, typed);
    QFETCH(const Qt::Key, key);
    QFETCH(const QStringList, written);
    const QString name = "OffsetX";
    TreeBench bench;
    int attempts = 0;
    bench.node(name)->before = [&attempts](const QString &operation) {
        attempts += operation == "setValueFromString" ? 1 : 0;
    };
    bench.click(bench.value(name));
    QPointer<QLineEdit> edit(bench.editor<QLineEdit>(name));
    QVERIFY(edit);
    edit->selectAll();
    QTest::keyClicks(edit, typed);
    QTest::keyClick(edit, Qt::Key_Return);
    bench.settle();
    bench.publish(name);
    QVERIFY(edit && edit->hasFocus());
    QCOMPARE(edit->text(), typed);
    QVERIFY(!edit->toolTip().isEmpty() && !edit->toolTip().startsWith("Range"));

    QTest::keyClick(edit, key);
    if (!written.isEmpty()) {
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_VERIFY(bench.view()->hasFocus());
    }
    bench.settle();
    QCOMPARE(edit.isNull(), key != Qt::Key_Return);
    QCOMPARE(bench.node(name)->writes, written);
    QTEST(attempts, "attempts");
    QCOMPARE(bench.value(name).data().toString(), written.value(0, "0"));
}

void TestFeatureTreeEditing::arrowsWalkRows()
{
    TreeBench bench;
    for (const int column : {0, 1}) {
        bench.view()->setFocus();
        bench.view()->setCurrentIndex(bench.row("ImageFormatControl"));
        bench.view()->setFocus();
        QStringList walked;
        if (column == 1) {
            bench.view()->setCurrentIndex(bench.value("Width"));
            bench.view()->setFocus();
            walked.append("Width");
        }
        while (walked.size() < 12) {
            const QModelIndex before = bench.view()->currentIndex();
            QTest::keyClick(bench.view(), Qt::Key_Down);
            QCOMPARE(QApplication::focusWidget(), bench.view());
            const QModelIndex now = bench.view()->currentIndex();
            if (now == before) {
                break;
            }
            walked.append(now.siblingAtColumn(0).data(FeatureTreeItem::GenicamNameRole).toString());
        }
        QCOMPARE(walked,
                 QStringList({"Width", "OffsetX", "PixelFormat", "ReverseX", "AcquisitionControl",
                              "ExposureTime", "Gain", "TriggerSoftware", "DeviceControl", "DeviceUserID"}));
    }
}

void TestFeatureTreeEditing::tabWalksEditors()
{
    TreeBench bench;
    const auto focusedRow = [&bench] {
        const QModelIndex index = bench.view()->currentIndex();
        const QWidget *const focus = QApplication::focusWidget();
        return focus && bench.view()->viewport()->isAncestorOf(focus)
            ? index.siblingAtColumn(0).data(FeatureTreeItem::GenicamNameRole).toString()
            : QString();
    };
    bench.view()->setFocus();
    QStringList forth;
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (focusedRow().isEmpty()) {
            break;
        }
        forth.append(focusedRow());
    }
    const QStringList all(
        {"Width", "OffsetX", "PixelFormat", "ReverseX", "ExposureTime", "Gain", "DeviceUserID"});
    QCOMPARE(forth, all);

    bench.editor<FloatEditor>("Gain")->setFocus();
    QStringList back{focusedRow()};
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        if (focusedRow().isEmpty()) {
            break;
        }
        back.prepend(focusedRow());
    }
    QCOMPARE(back, all.mid(0, 6));
    for (const QString &name : all) {
        QVERIFY2(bench.node(name)->writes.isEmpty(), qPrintable(name));
    }

    bench.view()->setCurrentIndex(bench.row("AcquisitionControl"));
    bench.view()->setFocus();
    QTest::keyClick(bench.view(), Qt::Key_Tab);
    QCOMPARE(focusedRow(), "ExposureTime");
}

void TestFeatureTreeEditing::keysEditTheValueColumn_data()
{
    columns<QString, int, QString, QString>({"name", "key", "text", "written"}); // key 0: typing at once
    for (const int key : {0, int(Qt::Key_F2), int(Qt::Key_Return)}) {
        const auto row = [key](const char *name, const char *text) {
            QTest::addRow("%s, %x", name, key) << QString::fromLatin1(name) << key << text << text;
        };
        row("OffsetX", "42");
        row("DeviceUserID", "abc");
        row("Width", "48");
        row("Gain", "7");
        QTest::addRow("ReverseX, %x", key) << "ReverseX" << key << (key == 0 ? " " : "") << "1";
    }
}

void TestFeatureTreeEditing::keysEditTheValueColumn()
{
    QFETCH(QString, name);
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(QString, written);
    TreeBench bench;
    bench.click(bench.row(name));
    bench.view()->setFocus();
    if (key != 0) {
        QTest::keyClick(bench.view(), static_cast<Qt::Key>(key));
    }
    for (const QChar character : text) {
        QTest::keyPress(QApplication::focusWidget(), character.toLatin1());
        QTest::keyRelease(QApplication::focusWidget(), character.toLatin1());
    }
    if (!text.isEmpty() && text != " ") {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    bench.settle();
    QCOMPARE(bench.node(name)->writes, QStringList(written));
}

void TestFeatureTreeEditing::unusedKeysSearchRows()
{
    TreeBench bench;
    bench.click(bench.row("ReverseX"));
    bench.view()->setFocus();
    QTest::keyClick(bench.view(), Qt::Key_G); // nothing that a box could do
    QCOMPARE(bench.view()->currentIndex().siblingAtColumn(0), bench.row("Gain"));
    QVERIFY(bench.view()->hasFocus());
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    bench.view()->setCurrentIndex(bench.row("PixelFormat"));
    QTest::keyClick(bench.view(), Qt::Key_M); // which an entry begins with, but nobody asked for it
    QCOMPARE(bench.node("PixelFormat")->writes, QStringList());
    // Nor can an editor that is out of sight.
    bench.view()->setCurrentIndex(bench.row("ReverseX"));
    bench.editor<CheckBoxEditor>("ReverseX")->hide();
    QTest::keyClick(bench.view(), Qt::Key_Space);
    QCOMPARE(bench.node("ReverseX")->writes, QStringList());
}

void TestFeatureTreeEditing::wheelScrollsTheTree()
{
    auto camera = flatCamera(40);
    for (int i = 0; i < 40; ++i) {
        camera->addEnum(QString("Choice%1").arg(i), "Many", {"a", "b", "c"}, "b");
        camera->addInteger(QString("Size%1").arg(i), "Many", 5, 0, 10, 1, "Linear");
    }
    TreeBench bench(camera);
    for (const QString name : {"Choice5", "Size7", "Size9"}) {
        bench.view()->scrollTo(bench.row(name), QAbstractItemView::PositionAtTop);
        bench.view()->setFocus();
        if (name == "Size9") {
            bench.view()->setCurrentIndex(bench.row(name));
            QTest::keyClick(bench.view(), Qt::Key_F2); // neither a click nor Tab
        }
        QWidget *editor = bench.view()->indexWidget(bench.value(name));
        if (auto *const spin = editor->findChild<QSpinBox *>()) {
            editor = spin;
        }
        const int before = bench.view()->verticalScrollBar()->value();
        const QPoint center = editor->rect().center();
        QWheelEvent wheel(center, editor->mapToGlobal(center), QPoint(), QPoint(0, -240), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel); // others are not handed on to parents
        qApp->notify(editor, &wheel);
        QVERIFY(bench.view()->verticalScrollBar()->value() > before);
        QCOMPARE(dynamic_cast<MemoryNode *>(camera->parameter(name).data())->writes, QStringList());
    }
}

void TestFeatureTreeEditing::switchesLevelWhileEditing()
{
    auto camera = MemoryCollection::createSample();
    for (const QString name : {"OffsetX", "Gain"}) {
        const auto parameter = camera->parameter(name);
        auto *const node = dynamic_cast<MemoryNode *>(parameter.data());
        const_cast<ParameterCollection::ParameterData &>(*node->snapshot).visibility = GenApi::Expert;
    }
    TreeBench bench(camera);
    bench.click(bench.value("DeviceUserID"));
    QPointer<QLineEdit> edit(
        qobject_cast<QLineEdit *>(bench.view()->indexWidget(bench.value("DeviceUserID"))));
    QVERIFY(edit);
    QTest::keyClicks(edit, "half");
    bench.widget.onVisibilityChanged(GenApi::Beginner);
    bench.settle();
    QVERIFY(edit && edit->hasFocus() && edit->text() == "half");
    QVERIFY(!bench.row("Gain").isValid());

    // An editor whose row goes is gone, and comes back with the row.
    bench.widget.onVisibilityChanged(GenApi::Expert);
    bench.settle();
    QVERIFY(bench.editor<FloatEditor>("Gain"));
}

void TestFeatureTreeEditing::leavesEditorsOfOtherRows_data()
{
    columns<QString, QString>({"name", "how"});
    for (const QString name : {"Gain", "OffsetX"}) {
        for (const QString how : {"collapsed", "hidden", "not current"}) {
            QTest::addRow("%s, %s", qPrintable(name), qPrintable(how)) << name << how;
        }
    }
}

void TestFeatureTreeEditing::leavesEditorsOfOtherRows()
{
    QFETCH(QString, name);
    QFETCH(QString, how);
    TreeBench bench;
    const QString category = bench.row(name).parent().data(FeatureTreeItem::GenicamNameRole).toString();
    bench.parameter<MemoryPlain>(category)->edit<ParameterCollection::ParameterData>(
        [](auto &data) { data.visibility = GenApi::Expert; });
    bench.publish(category);
    bench.view()->setCurrentIndex(bench.row(name));
    QTest::keyClick(bench.view(), Qt::Key_F2);
    QVERIFY(bench.view()->viewport()->isAncestorOf(QApplication::focusWidget()));

    if (how == "collapsed") {
        bench.view()->collapseAll();
    } else if (how == "hidden") {
        bench.widget.onVisibilityChanged(GenApi::Beginner);
    } else {
        bench.view()->setCurrentIndex(bench.row("DeviceControl"));
    }
    bench.settle();
    QCOMPARE(QApplication::focusWidget(), bench.view()); // and no editor of another row
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_7}) {
        QTest::keyClick(bench.view(), key);
        QCOMPARE(QApplication::focusWidget(), bench.view());
    }
}

void TestFeatureTreeEditing::clearsFromInsideAStep()
{
    TreeBench bench;
    bench.view()->setCurrentIndex(bench.row("Gain"));
    connect(bench.view(), &FeatureTreeView::onCurrentChanged, &bench.widget,
            [&bench](const QModelIndex &index) {
                if (index.isValid()) {
                    bench.widget.clear();
                }
            });
    QTest::keyClick(bench.view(), Qt::Key_Up);
    QCOMPARE(bench.view()->model()->rowCount(), 0);
}

void TestFeatureTreeEditing::clearsFromInsideAWrite()
{
    TreeBench bench;
    bench.node("ReverseX")->before = [&bench](const QString &operation) {
        if (operation == "setValueFromString") {
            bench.widget.clear();
            throw std::runtime_error("lost");
        }
    };
    auto *const box = bench.editor<CheckBoxEditor>("ReverseX");
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    bench.settle();
    QCOMPARE(bench.view()->model()->rowCount(), 0);
}

void TestFeatureTreeEditing::closesDeviceWhileEditing()
{
    TreeBench bench;
    bench.click(bench.value("DeviceUserID"));
    auto *const edit = qobject_cast<QLineEdit *>(bench.view()->indexWidget(bench.value("DeviceUserID")));
    QVERIFY(edit);
    QTest::keyClicks(edit, "late");
    bench.widget.deviceIsClosed();
    QTest::keyClick(edit, Qt::Key_Return);
    bench.settle();
    QCOMPARE(bench.node("DeviceUserID")->writes, QStringList());
    QCOMPARE(bench.value("DeviceUserID").data().toString(), "left");
}

void TestFeatureTreeEditing::clearsBelowAnOpenPopup()
{
    TreeBench bench;
    bench.editor<EnumEditor>("PixelFormat")->showPopup();
    QVERIFY(QApplication::activePopupWidget());
    bench.widget.Refresh();
    bench.settle();
    QVERIFY(QApplication::activePopupWidget());
    bench.widget.clear();
    bench.settle();
    QVERIFY(!QApplication::activePopupWidget());
}

void TestFeatureTreeEditing::followsAvailability()
{
    TreeBench bench;
    const auto gain = bench.parameter<MemoryFloat>("Gain");
    const auto set = [&](bool available) {
        gain->edit<ParameterCollection::FloatParameterData>([available](auto &data) {
            data.isReadable = available;
            data.isWritable = available;
        });
        gain->publish();
        bench.settle();
    };
    set(false);
    QVERIFY(!bench.view()->indexWidget(bench.value("Gain")));
    QCOMPARE(bench.value("Gain").data().toString(), "<not available>");
    set(true);
    QVERIFY(bench.editor<FloatEditor>("Gain"));
}

QTEST_MAIN(TestFeatureTreeEditing)
#include "tst_featuretreeediting.moc"
