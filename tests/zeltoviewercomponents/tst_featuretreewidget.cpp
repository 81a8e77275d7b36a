// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "treebench.h"

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/enumeditor.h>
#include <zeltoviewercomponents/featuretree/featuretreeproxymodel.h>
#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/inteditor.h>
#include <zeltoviewercomponents/featuretree/intslidereditor.h>
#include <zeltoviewercomponents/featuretree/toolbuttoneditor.h>

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

namespace {

/* What Qt warns of; the library's own log categories apart. */
QStringList &warnings()
{
    static QStringList texts;
    return texts;
}

QtMessageHandler previousHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.contains(QLatin1String("propagateSizeHints"))) {
        return; // the offscreen platform complains of itself
    }
    if (type != QtDebugMsg && type != QtInfoMsg && !QByteArray(context.category).startsWith("zelto")) {
        warnings().append(message);
    }
    previousHandler(type, context, message);
}

QSharedPointer<MemoryCollection> flatCamera(int features)
{
    auto camera = QSharedPointer<MemoryCollection>::create();
    camera->addCategory(QStringLiteral("Many"));
    for (int i = 0; i < features; ++i) {
        camera->addBoolean(QStringLiteral("Flag%1").arg(i), QStringLiteral("Many"));
    }
    return camera;
}

} // namespace

class TestFeatureTreeWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opensWithItsParts();
    void searchKeepsAndRestoresTheTree();
    void searchKnowsFeaturesOfTwoCategories();
    void searchCounts();
    void searchWithoutResults();
    void clearedSearchScrollsBack();
    void editorsWriteValues();
    void transientEditorsWriteValues_data();
    void transientEditorsWriteValues();
    void refusedWriteShowsTheTruth();
    void arrowsWalkRows();
    void tabWalksEditors();
    void keysEditTheValueColumn_data();
    void keysEditTheValueColumn();
    void wheelScrollsTheTree();
    void escapeTwiceClearsTheSearch();
    void shortcutsReachTheSearchBox();
};

void TestFeatureTreeWidget::init()
{
    QSettings().clear();
    warnings().clear();
    previousHandler = qInstallMessageHandler(handleMessage);
}

void TestFeatureTreeWidget::cleanup()
{
    {
        TreeBench bench(nullptr);
        while (bench.favorites().count() > 0) {
            bench.favorites().removeEntry(0);
        }
        bench.favorites().setViewAll(false);
        bench.favorites().setExpanded(true);
    }
    qInstallMessageHandler(previousHandler);
    QCOMPARE(warnings(), QStringList());
}

void TestFeatureTreeWidget::opensWithItsParts()
{
    TreeBench bench;
    QCOMPARE(bench.widget.objectName(), QStringLiteral("tree"));
    QCOMPARE(bench.view()->editTriggers(), QAbstractItemView::EditTriggers(31));
    QCOMPARE(bench.widget.visibility(), GenApi::Guru);
    QVERIFY(bench.box()->placeholder().contains(QStringLiteral("Ctrl+F")));
    QVERIFY(bench.widget.findChild<QCheckBox *>(QStringLiteral("checkBoxPolling"))->isVisible());
    FeatureTreeWidget plain(QStringLiteral("plain"), {}, nullptr, GenApi::Beginner, false);
    plain.show();
    QVERIFY(!plain.findChild<QCheckBox *>(QStringLiteral("checkBoxPolling"))->isVisible());
    QCOMPARE(plain.visibility(), GenApi::Beginner);

    // A category spans the row; a feature shows its value beside its name.
    QVERIFY(bench.view()->isFirstColumnSpanned(1, bench.row(QStringLiteral("Width")).parent().parent()));
    QVERIFY(!bench.view()->isFirstColumnSpanned(0, bench.row(QStringLiteral("Width")).parent()));
    QVERIFY(bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX")));
    QVERIFY(bench.editor<EnumEditor>(QStringLiteral("PixelFormat")));
    QVERIFY(bench.editor<IntSliderEditor>(QStringLiteral("Width")));
    QVERIFY(bench.editor<FloatEditor>(QStringLiteral("ExposureTime")));
    QVERIFY(bench.editor<ToolButtonEditor>(QStringLiteral("TriggerSoftware")));
    QVERIFY(!bench.view()->indexWidget(bench.value(QStringLiteral("OffsetX"))));
    QVERIFY(!bench.view()->indexWidget(bench.value(QStringLiteral("DeviceUserID"))));
    QCOMPARE(bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX"))->accessibleName(),
             QStringLiteral("ReverseX"));
}

void TestFeatureTreeWidget::searchKeepsAndRestoresTheTree()
{
    TreeBench bench;
    bench.view()->collapse(bench.row(QStringLiteral("AcquisitionControl")));
    bench.click(bench.row(QStringLiteral("ReverseX")));
    const QStringList before = bench.shownRows();
    QVERIFY(before.filter(QStringLiteral("ReverseX *")).size() == 1);

    bench.type(QStringLiteral("gain"));
    QCOMPARE(bench.shownRows().filter(QStringLiteral("Gain")).size(), 1);
    QCOMPARE(bench.shownRows().filter(QStringLiteral("ReverseX")).size(), 0);
    QVERIFY(bench.editor<FloatEditor>(QStringLiteral("Gain")));
    bench.erase();
    QCOMPARE(bench.shownRows(), before);

    // What is collapsed in a search is as it was afterwards, too.
    bench.type(QStringLiteral("e"));
    bench.view()->collapseAll();
    bench.erase();
    QCOMPARE(bench.shownRows(), before);
}

void TestFeatureTreeWidget::searchKnowsFeaturesOfTwoCategories()
{
    auto camera = MemoryCollection::createSample();
    auto *const device =
        dynamic_cast<MemoryNode *>(camera->parameter(QStringLiteral("DeviceControl")).data());
    device->children.append(QStringLiteral("ReverseX"));
    TreeBench bench(camera);
    const QModelIndex category = bench.row(QStringLiteral("DeviceControl"));
    bench.click(bench.view()->model()->index(1, 0, category));
    const QStringList before = bench.shownRows();
    QCOMPARE(before.filter(QStringLiteral("ReverseX")).size(), 2);
    bench.type(QStringLiteral("gain"));
    bench.erase();
    QCOMPARE(bench.shownRows(), before);
}

void TestFeatureTreeWidget::searchCounts()
{
    auto camera = MemoryCollection::createSample();
    camera->addInteger(QStringLiteral("GainRaw"), QStringLiteral("AcquisitionControl"))
        ->edit<ParameterCollection::IntegerParameterData>(
            [](auto &data) { data.visibility = GenApi::Expert; });
    TreeBench bench(camera, GenApi::Beginner);
    QSignalSpy counts(&bench.widget, SIGNAL(filterMatchesChanged(int, int)));

    bench.type(QStringLiteral("gai"));
    QCOMPARE(counts.takeLast(), QVariantList({2, 1}));
    QCOMPARE(bench.shownRows().constFirst(),
             QStringLiteral("<HTML><B>2 search results (1 of them visible at higher user level)</B>"));
    // The row goes with the key that leaves nothing to tell, and comes back with the one that does.
    bench.type(QStringLiteral("q"));
    QCOMPARE(counts.takeLast(), QVariantList({0, 0}));
    QCOMPARE(bench.shownRows(), QStringList());
    QTest::keyClick(bench.box(), Qt::Key_Backspace);
    QCOMPARE(bench.shownRows().filter(QStringLiteral("search results")).size(), 1);
    QCOMPARE(counts.takeLast(), QVariantList({2, 1}));
    const QModelIndex hint = bench.view()->model()->index(0, 0);
    QCOMPARE(hint.data(Qt::AccessibleTextRole).toString(),
             QStringLiteral("2 search results (1 of them visible at higher user level)"));

    bench.type(QStringLiteral("nraw"));
    QCOMPARE(bench.shownRows(),
             QStringList(
                 QStringLiteral("<HTML><B>1 search results (1 of them visible at higher user level)</B>")));
    bench.widget.onVisibilityChanged(GenApi::Guru);
    QCOMPARE(counts.takeLast(), QVariantList({1, 0}));
    QCOMPARE(bench.shownRows().filter(QStringLiteral("search results")).size(), 0);
    QCOMPARE(bench.shownRows().filter(QStringLiteral("GainRaw")).size(), 1);
    bench.erase();
    QCOMPARE(counts.takeLast(), QVariantList({0, 0}));
    QCOMPARE(bench.shownRows().filter(QStringLiteral("search results")).size(), 0);
}

void TestFeatureTreeWidget::searchWithoutResults()
{
    TreeBench bench;
    const auto picture = [&bench] { return bench.view()->viewport()->grab().toImage(); };
    bench.type(QStringLiteral("zzz"));
    const QImage image = picture();
    // The text stands at the top, in the middle.
    const QRgb base = bench.view()->palette().color(QPalette::Base).rgb();
    QRect text;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != base) {
                text |= QRect(x, y, 1, 1);
            }
        }
    }
    QVERIFY(!text.isEmpty() && text.bottom() < 2 * bench.view()->fontMetrics().height());
    QVERIFY(std::abs(text.center().x() - image.width() / 2) < 20);
    bench.erase();
    QVERIFY(picture() != image);
}

void TestFeatureTreeWidget::clearedSearchScrollsBack()
{
    TreeBench bench(flatCamera(150));
    bench.view()->verticalScrollBar()->setValue(60);
    const QModelIndex top = bench.view()->indexAt(QPoint(0, 0));
    bench.click(bench.view()->indexBelow(top));
    const int scrolled = bench.view()->verticalScrollBar()->value();
    bench.type(QStringLiteral("flag14"));
    QVERIFY(bench.view()->verticalScrollBar()->value() < scrolled);
    bench.erase();
    QCOMPARE(bench.view()->verticalScrollBar()->value(), scrolled);
    bench.settle();
    QCOMPARE(bench.view()->verticalScrollBar()->value(), scrolled);
}

void TestFeatureTreeWidget::editorsWriteValues()
{
    TreeBench bench;
    auto *const box = bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX"));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QCOMPARE(bench.parameter<MemoryBoolean>(QStringLiteral("ReverseX"))->writes, QStringList("1"));
    bench.settle();
    QVERIFY(box->isChecked());
    QCOMPARE(bench.view()->currentIndex().siblingAtColumn(0), bench.row(QStringLiteral("ReverseX")));

    auto *const combo = bench.editor<EnumEditor>(QStringLiteral("PixelFormat"));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(bench.parameter<MemoryEnum>(QStringLiteral("PixelFormat"))->writes, QStringList("Mono12"));

    auto *const width = bench.editor<IntSliderEditor>(QStringLiteral("Width"));
    auto *const spin = width->findChild<QSpinBox *>();
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, QStringLiteral("800"));
    QTest::keyClick(spin, Qt::Key_Return);
    bench.settle();
    auto *const slider = width->findChild<QSlider *>();
    QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(slider->width() - 3, slider->height() / 2));
    bench.settle();
    const QStringList widths = bench.parameter<MemoryInteger>(QStringLiteral("Width"))->writes;
    QCOMPARE(widths.value(0), QStringLiteral("800"));
    QVERIFY(widths.value(1).toInt() > 800);
    QCOMPARE(QString::number(spin->value()), widths.constLast());
    QCOMPARE(bench.view()->currentIndex().siblingAtColumn(0), bench.row(QStringLiteral("Width")));

    auto *const gain = bench.editor<FloatEditor>(QStringLiteral("Gain"))->findChild<QLineEdit *>();
    gain->setFocus();
    gain->selectAll();
    QTest::keyClicks(gain, QStringLiteral("2.5"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(bench.parameter<MemoryFloat>(QStringLiteral("Gain"))->writes, QStringList("2.5"));

    auto *const button = bench.editor<ToolButtonEditor>(QStringLiteral("TriggerSoftware"));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(bench.parameter<MemoryCommand>(QStringLiteral("TriggerSoftware"))->executions, 1);
}

void TestFeatureTreeWidget::transientEditorsWriteValues_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::newRow("integer") << QStringLiteral("OffsetX") << QStringLiteral("12");
    QTest::newRow("string") << QStringLiteral("DeviceUserID") << QStringLiteral("right");
}

void TestFeatureTreeWidget::transientEditorsWriteValues()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    TreeBench bench;
    auto *const node = bench.node(name);
    bench.click(bench.value(name));
    auto *edit = qobject_cast<QLineEdit *>(bench.view()->indexWidget(bench.value(name)));
    QVERIFY(edit && edit == QApplication::focusWidget());
    edit->selectAll();
    QTest::keyClicks(edit, typed);
    // A refresh of the row leaves what is being typed.
    bench.publish(name);
    QCOMPARE(edit->text(), typed);
    QTest::keyClick(edit, Qt::Key_Return);
    bench.settle();
    QCOMPARE(node->writes, QStringList(typed));
    QVERIFY(!bench.view()->indexWidget(bench.value(name)));
    QCOMPARE(bench.value(name).data().toString(), typed);
    QCOMPARE(QApplication::focusWidget(), bench.view());

    QTest::keyClick(bench.view(), Qt::Key_F2);
    edit = qobject_cast<QLineEdit *>(bench.view()->indexWidget(bench.value(name)));
    QVERIFY(edit);
    QTest::keyClicks(edit, QStringLiteral("7"));
    QTest::keyClick(edit, Qt::Key_Escape);
    bench.settle();
    // The first Escape undoes, the second leaves.
    if (QWidget *const stillOpen = bench.view()->indexWidget(bench.value(name))) {
        QTest::keyClick(stillOpen, Qt::Key_Escape);
        bench.settle();
    }
    QVERIFY(!bench.view()->indexWidget(bench.value(name)));
    QCOMPARE(node->writes, QStringList(typed));
}

void TestFeatureTreeWidget::refusedWriteShowsTheTruth()
{
    TreeBench bench;
    const auto refuse = [&bench](const QString &name) {
        bench.node(name)->before = [](const QString &operation) {
            if (operation == QLatin1String("setValueFromString")) {
                throw GenICam::AccessException(QStringLiteral("locked"));
            }
        };
    };
    refuse(QStringLiteral("ReverseX"));
    auto *const box = bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX"));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(!box->isChecked());

    refuse(QStringLiteral("PixelFormat"));
    auto *const combo = bench.editor<EnumEditor>(QStringLiteral("PixelFormat"));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(combo->currentText(), QStringLiteral("Mono8"));

    refuse(QStringLiteral("Width"));
    auto *const spin = bench.editor<IntSliderEditor>(QStringLiteral("Width"))->findChild<QSpinBox *>();
    spin->setFocus();
    QTest::keyClick(spin, Qt::Key_Up);
    QCOMPARE(spin->value(), 640);

    // So does what is written to a device that is gone.
    bench.widget.deviceIsClosed();
    auto *const gain = bench.editor<FloatEditor>(QStringLiteral("Gain"))->findChild<QLineEdit *>();
    const QString shown = gain->text();
    gain->setFocus();
    gain->selectAll();
    QTest::keyClicks(gain, QStringLiteral("9"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(gain->text(), shown);
    QCOMPARE(bench.parameter<MemoryFloat>(QStringLiteral("Gain"))->writes, QStringList());
}

void TestFeatureTreeWidget::arrowsWalkRows()
{
    TreeBench bench;
    for (const int column : {0, 1}) {
        bench.view()->setFocus();
        bench.view()->setCurrentIndex(bench.row(QStringLiteral("ImageFormatControl")));
        bench.view()->setFocus();
        QStringList walked;
        if (column == 1) {
            bench.view()->setCurrentIndex(bench.value(QStringLiteral("Width")));
            bench.view()->setFocus();
            walked.append(QStringLiteral("Width"));
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

void TestFeatureTreeWidget::tabWalksEditors()
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

    bench.editor<FloatEditor>(QStringLiteral("Gain"))->setFocus();
    QStringList back{focusedRow()};
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        if (focusedRow().isEmpty()) {
            break;
        }
        back.prepend(focusedRow());
    }
    QCOMPARE(back, all.mid(0, 6));
}

void TestFeatureTreeWidget::keysEditTheValueColumn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    for (const int key : {Qt::Key_F2, Qt::Key_Return}) {
        const auto row = [key](const char *name) { return QByteArray(name) + QByteArray::number(key); };
        QTest::newRow(row("integer").constData()) << "OffsetX" << key << "8"
                                                  << "8";
        QTest::newRow(row("string").constData()) << "DeviceUserID" << key << "x"
                                                 << "x";
        QTest::newRow(row("slider").constData()) << "Width" << key << "32"
                                                 << "32";
        QTest::newRow(row("float").constData()) << "Gain" << key << "3"
                                                << "3";
        QTest::newRow(row("boolean").constData()) << "ReverseX" << key << ""
                                                  << "1";
    }
    QTest::newRow("typing an integer") << "OffsetX" << 0 << "42"
                                       << "42";
    QTest::newRow("typing a string") << "DeviceUserID" << 0 << "abc"
                                     << "abc";
    QTest::newRow("typing a float") << "Gain" << 0 << "7"
                                    << "7";
    QTest::newRow("typing into a slider") << "Width" << 0 << "48"
                                          << "48";
    QTest::newRow("space on a box") << "ReverseX" << 0 << " "
                                    << "1";
}

void TestFeatureTreeWidget::keysEditTheValueColumn()
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
    if (!text.isEmpty() && text != QLatin1String(" ")) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    bench.settle();
    QCOMPARE(bench.node(name)->writes, QStringList(written));
}

void TestFeatureTreeWidget::wheelScrollsTheTree()
{
    auto camera = flatCamera(40);
    for (int i = 0; i < 40; ++i) {
        camera->addEnum(QStringLiteral("Choice%1").arg(i), QStringLiteral("Many"),
                        {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}, QStringLiteral("b"));
        camera->addInteger(QStringLiteral("Size%1").arg(i), QStringLiteral("Many"), 5, 0, 10, 1,
                           QStringLiteral("Linear"));
    }
    TreeBench bench(camera);
    for (const QString &name : {QStringLiteral("Choice5"), QStringLiteral("Size7")}) {
        bench.view()->scrollTo(bench.row(name), QAbstractItemView::PositionAtTop);
        bench.view()->setFocus();
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

void TestFeatureTreeWidget::escapeTwiceClearsTheSearch()
{
    TreeBench bench;
    bench.type(QStringLiteral("gain"));
    QTest::keyClick(bench.box(), Qt::Key_Escape);
    QCOMPARE(bench.box()->text(), QStringLiteral("gain"));
    QTest::keyClick(bench.box(), Qt::Key_Left); // the box keeps this one for itself
    QTest::keyClick(bench.box(), Qt::Key_Escape);
    QCOMPARE(bench.box()->text(), QStringLiteral("gain"));
    bench.click(bench.row(QStringLiteral("Gain")));
    QTest::keyClick(bench.view(), Qt::Key_Escape);
    QCOMPARE(bench.box()->text(), QStringLiteral("gain"));
    QTest::keyClick(bench.view(), Qt::Key_Escape);
    QCOMPARE(bench.box()->text(), QString());
}

void TestFeatureTreeWidget::shortcutsReachTheSearchBox()
{
    TreeBench bench;
    bench.view()->setFocus();
    QTest::keyClick(bench.view(), Qt::Key_F3);
    QVERIFY(bench.box()->hasFocus());
    bench.view()->setFocus();
    QTest::keyClick(bench.view(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(bench.box()->hasFocus());

    bench.view()->setFocus();
    const auto chord = Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier;
    QTest::keyClick(bench.view(), Qt::Key_Minus, chord);
    QVERIFY(!bench.shownRows().join(QLatin1Char('\n')).contains(QStringLiteral("ImageFormatControl")));
    QVERIFY(!bench.favorites().isExpanded());
    QTest::keyClick(bench.view(), Qt::Key_Plus, chord);
    QVERIFY(bench.shownRows().join(QLatin1Char('\n')).contains(QStringLiteral("Gain")));
    QVERIFY(bench.favorites().isExpanded());
}

QTEST_MAIN(TestFeatureTreeWidget)
#include "tst_featuretreewidget.moc"
