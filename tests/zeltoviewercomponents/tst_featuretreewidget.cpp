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
#include <QClipboard>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QRandomGenerator>
#include <QScopedPointer>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include <algorithm>
#include <stdexcept>

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
    if (message.contains(QLatin1String("This plugin does not support"))) {
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

/*! \brief Uses a tree at random. */
class Monkey
{
public:
    Monkey(TreeBench &bench, quint32 seed)
        : m_bench(bench)
        , m_random(seed)
    {
    }

    void step()
    {
        switch (m_random.bounded(14)) {
        case 0:
        case 1:
        case 2:
            click();
            break;
        case 3:
        case 4:
        case 5:
        case 6:
            press();
            break;
        case 7:
            wheel();
            break;
        case 8:
            m_bench.box()->setText(QStringLiteral("egainraw ").mid(m_random.bounded(6), m_random.bounded(3)));
            break;
        case 9:
            rareThings();
            break;
        case 10:
            changeFeature();
            break;
        case 11:
            favorites();
            break;
        case 12:
            openOrClose();
            break;
        default:
            TreeBench::settle();
        }
    }

private:
    QWidget *target()
    {
        if (QWidget *const popup = QApplication::activePopupWidget()) {
            return popup;
        }
        const QList<QWidget *> all = m_bench.widget.findChildren<QWidget *>();
        QWidget *const widget = all.at(m_random.bounded(all.size()));
        return widget->isVisible() ? widget : m_bench.view()->viewport();
    }
    void click()
    {
        QWidget *const widget = target();
        const QPoint point(m_random.bounded(std::max(1, widget->width())),
                           m_random.bounded(std::max(1, widget->height())));
        QTest::mouseClick(widget, m_random.bounded(8) == 0 ? Qt::RightButton : Qt::LeftButton, {}, point);
    }
    void press()
    {
        static const QList<Qt::Key> keys{Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left,    Qt::Key_Right,
                                         Qt::Key_Tab,    Qt::Key_Escape, Qt::Key_F2,      Qt::Key_Return,
                                         Qt::Key_Home,   Qt::Key_End,    Qt::Key_5,       Qt::Key_Space,
                                         Qt::Key_Delete, Qt::Key_D,      Qt::Key_Backtab, Qt::Key_PageUp,
                                         Qt::Key_F3,     Qt::Key_Plus,   Qt::Key_Minus,   Qt::Key_G};
        QWidget *const focus = QApplication::focusWidget();
        const Qt::Key key = keys.at(m_random.bounded(keys.size()));
        const bool isChord = m_random.bounded(3) == 0;
        QTest::keyClick(focus ? focus : m_bench.view(), key, isChord ? Qt::ControlModifier : Qt::NoModifier);
    }
    void wheel()
    {
        QPointer<QWidget> widget = target();
        const QPoint center = widget->rect().center();
        QWheelEvent event(center, widget->mapToGlobal(center), QPoint(),
                          QPoint(0, m_random.bounded(2) == 0 ? 120 : -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(widget, &event);
    }
    void rareThings()
    {
        switch (m_random.bounded(6)) {
        case 0:
            m_bench.widget.onVisibilityChanged(m_random.bounded(4));
            break;
        case 1:
            m_bench.widget.clear();
            m_bench.add(m_bench.camera);
            break;
        case 2:
            m_bench.widget.deviceIsClosed();
            break;
        case 3:
            m_bench.widget.Refresh();
            break;
        case 4:
            m_bench.widget.setViewAllFavorites(m_random.bounded(2) == 0);
            break;
        default:
            m_bench.widget.resize(200 + m_random.bounded(400), 150 + m_random.bounded(500));
        }
    }
    void changeFeature()
    {
        const auto gain = m_bench.parameter<MemoryFloat>(QStringLiteral("Gain"));
        const int state = m_random.bounded(4);
        gain->edit<ParameterCollection::FloatParameterData>([state](auto &data) {
            data.isImplemented = state != 0;
            data.isReadable = state != 1;
            data.isWritable = state > 1;
            data.visibility = state == 3 ? GenApi::Expert : GenApi::Beginner;
        });
        gain->publish();
        const auto offset = m_bench.parameter<MemoryInteger>(QStringLiteral("OffsetX"));
        offset->edit<ParameterCollection::IntegerParameterData>(
            [state](auto &data) { data.isWritable = state > 0; });
        offset->publish();
    }
    void favorites()
    {
        static const QStringList names{QStringLiteral("Gain"), QStringLiteral("Width"),
                                       QStringLiteral("ReverseX"), QStringLiteral("PixelFormat"),
                                       QStringLiteral("OffsetX")};
        FavoritesData &data = m_bench.favorites();
        const int row = m_random.bounded(std::max(1, data.count()));
        switch (m_random.bounded(3)) {
        case 0:
            m_bench.extension()->AddFavorite(
                m_bench.camera->parameter(names.at(m_random.bounded(names.size()))), row);
            break;
        case 1:
            data.removeEntry(row);
            break;
        default:
            data.moveEntry(row, m_random.bounded(data.count() + 1));
        }
    }
    void openOrClose()
    {
        QModelIndex index;
        for (int depth = m_random.bounded(3); depth >= 0; --depth) {
            const int count = m_bench.view()->model()->rowCount(index);
            if (count == 0) {
                break;
            }
            index = m_bench.view()->model()->index(m_random.bounded(count), 0, index);
        }
        m_bench.view()->setExpanded(index, m_random.bounded(3) > 0);
    }

    TreeBench &m_bench;
    QRandomGenerator m_random;
};

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
    void unusedKeysSearchRows();
    void wheelScrollsTheTree();
    void escapeTwiceClearsTheSearch();
    void shortcutsReachTheSearchBox();
    void contextMenuOffersWhatTheRowAllows();
    void favoritesByShortcuts();
    void favoritesByDragging();
    void favoritesKeepTheirPlaceOnScreen();
    void widgetsShareFavorites();
    void unavailableFavorites();
    void polls();
    void switchesLevelWhileEditing();
    void leavesEditorsOfOtherRows_data();
    void leavesEditorsOfOtherRows();
    void ignoresUnknownLevels();
    void setsVisibilityTwice();
    void clearsFromInsideAWrite();
    void closesDeviceWhileEditing();
    void clearsAndFillsAgain();
    void clearsFromInsideASearch();
    void clearsFromInsideAStep();
    void refreshesBelowAnOpenPopup();
    void followsAvailability();
    void hidesTheCurrentRow();
    void tellsTheHostOfTheCurrentRow();
    void copiesTheTree();
    void keepsEditorsWithinTheBudget();
    void budgetCountsOpenEditorsOnly();
    void expandsChildrenOnly();
    void followsThePalette();
    void standsRandomUse();
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
    const QString plain = QStringLiteral("2 search results (1 of them visible at higher user level)");
    QCOMPARE(hint.data(Qt::AccessibleTextRole).toString(), plain);
    bench.view()->setCurrentIndex(hint);
    QTest::keyClick(bench.view(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), plain);
    bench.view()->setCurrentIndex(bench.row(QStringLiteral("Gain")));

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
    for (const QString &name : all) {
        QVERIFY2(bench.node(name)->writes.isEmpty(), qPrintable(name));
    }

    bench.view()->setCurrentIndex(bench.row(QStringLiteral("AcquisitionControl")));
    bench.view()->setFocus();
    QTest::keyClick(bench.view(), Qt::Key_Tab);
    QCOMPARE(focusedRow(), QStringLiteral("ExposureTime"));
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

void TestFeatureTreeWidget::unusedKeysSearchRows()
{
    TreeBench bench;
    bench.click(bench.row(QStringLiteral("ReverseX")));
    bench.view()->setFocus();
    QTest::keyClick(bench.view(), Qt::Key_G); // nothing that a box could do
    QCOMPARE(bench.view()->currentIndex().siblingAtColumn(0), bench.row(QStringLiteral("Gain")));
    QVERIFY(bench.view()->hasFocus());
    // Nor can an editor that is out of sight.
    bench.view()->setCurrentIndex(bench.row(QStringLiteral("ReverseX")));
    bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX"))->hide();
    QTest::keyClick(bench.view(), Qt::Key_Space);
    QCOMPARE(bench.node(QStringLiteral("ReverseX"))->writes, QStringList());
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

void TestFeatureTreeWidget::contextMenuOffersWhatTheRowAllows()
{
    TreeBench bench;
    QStringList texts;
    QSharedPointer<QMenu> menu;
    connect(&bench.widget, &FeatureTreeWidget::contextMenuRequested, &bench.widget,
            [&](const QPoint &, const QSharedPointer<QMenu> &requested) {
                menu = requested;
                texts.clear();
                const auto actions = menu->actions();
                for (const QAction *action : actions) {
                    texts.append(action->isSeparator() ? QStringLiteral("-") : action->iconText());
                }
            });
    const auto rightClick = [&bench](const QModelIndex &index) {
        const QPoint point = bench.view()->visualRect(index).center();
        QTest::mouseClick(bench.view()->viewport(), Qt::RightButton, {}, point);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point,
                                bench.view()->viewport()->mapToGlobal(point));
        QApplication::sendEvent(bench.view()->viewport(), &event);
    };
    bench.widget.contextualMenu(QPoint());
    QVERIFY(!menu);
    rightClick(bench.row(QStringLiteral("Gain")));
    QCOMPARE(texts, QStringList("Add to Favorites"));
    menu->actions().constFirst()->trigger();
    QCOMPARE(bench.favoriteNames(), QStringList("Gain"));
    QVERIFY(!menu->actions().constFirst()->isEnabled());

    rightClick(bench.favorite(QStringLiteral("Gain")));
    QCOMPARE(texts, QStringList({"Move Up", "Move Down", "-", "Remove"}));
    QVERIFY(!menu->actions().at(0)->isEnabled() && !menu->actions().at(1)->isEnabled());
    menu->actions().constLast()->trigger();
    QCOMPARE(bench.favorites().count(), 0);
    rightClick(bench.row(QStringLiteral("DeviceControl")));
    QCOMPARE(texts, QStringList("Add to Favorites"));
    QVERIFY(!menu->actions().constFirst()->isEnabled());
}

void TestFeatureTreeWidget::favoritesByShortcuts()
{
    TreeBench bench;
    for (const QString &name :
         {QStringLiteral("Width"), QStringLiteral("OffsetX"), QStringLiteral("PixelFormat"),
          QStringLiteral("ReverseX"), QStringLiteral("Gain")}) {
        bench.click(bench.row(name));
        QTest::keyClick(bench.view(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(bench.view()->currentIndex(), bench.row(name));
    }
    QCOMPARE(bench.favoriteNames(), QStringList({"Width", "OffsetX", "PixelFormat", "ReverseX", "Gain"}));
    QTest::keyClick(bench.view(), Qt::Key_D, Qt::ControlModifier); // it is one already
    QCOMPARE(bench.favorites().count(), 5);

    bench.click(bench.favorite(QStringLiteral("OffsetX")));
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(bench.view(), Qt::Key_Down, Qt::ControlModifier);
    }
    QCOMPARE(bench.favoriteNames(), QStringList({"Width", "PixelFormat", "ReverseX", "Gain", "OffsetX"}));
    QCOMPARE(bench.view()->currentIndex(), bench.favorite(QStringLiteral("OffsetX")));
    QVERIFY(bench.view()->selectionModel()->isSelected(bench.view()->currentIndex()));
    QTest::keyClick(bench.view(), Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(bench.favoriteNames(), QStringList({"Width", "PixelFormat", "ReverseX", "OffsetX", "Gain"}));

    // The next row takes the place of the removed one, so that the key can be pressed again.
    QTest::keyClick(bench.view(), Qt::Key_Delete);
    QCOMPARE(bench.view()->currentIndex(), bench.favorite(QStringLiteral("Gain")));
    QTest::keyClick(bench.view(), Qt::Key_Delete);
    QCOMPARE(bench.view()->currentIndex(), bench.favorite(QStringLiteral("ReverseX")));
    QCOMPARE(bench.favoriteNames(), QStringList({"Width", "PixelFormat", "ReverseX"}));

    // A plain row of a favorite is no row of the branch.
    bench.click(bench.row(QStringLiteral("Width")));
    QTest::keyClick(bench.view(), Qt::Key_Delete);
    QCOMPARE(bench.favorites().count(), 3);
}

void TestFeatureTreeWidget::favoritesByDragging()
{
    TreeBench bench;
    QVERIFY(bench.view()->dragEnabled() && bench.view()->viewport()->acceptDrops());
    const auto drag = [&bench](const QModelIndex &from, const QModelIndex &onto, double part) {
        const QScopedPointer<QMimeData> data(bench.view()->model()->mimeData({from}));
        const QRect rect = bench.view()->visualRect(onto);
        const QPoint point(rect.center().x(), rect.top() + static_cast<int>(part * rect.height()));
        QDragEnterEvent enter(point, Qt::MoveAction, data.data(), Qt::LeftButton, {});
        QApplication::sendEvent(bench.view()->viewport(), &enter);
        QDragMoveEvent move(point, Qt::MoveAction, data.data(), Qt::LeftButton, {});
        QApplication::sendEvent(bench.view()->viewport(), &move);
        if (!move.isAccepted()) {
            QDragLeaveEvent leave;
            QApplication::sendEvent(bench.view()->viewport(), &leave);
            return false;
        }
        QDropEvent drop(point, Qt::MoveAction, data.data(), Qt::LeftButton, {});
        QApplication::sendEvent(bench.view()->viewport(), &drop);
        return true;
    };
    const auto branch = [&bench] { return bench.extension()->GetFavoritesRootIndex(); };
    const auto hint = [&bench, &branch] { return bench.view()->model()->index(0, 0, branch()); };
    QVERIFY(drag(bench.row(QStringLiteral("Width")), hint(), 0.5)); // the empty branch
    QVERIFY(drag(bench.row(QStringLiteral("Gain")), branch(), 0.5)); // its head
    QVERIFY(drag(bench.row(QStringLiteral("ReverseX")), bench.favorite(QStringLiteral("Gain")), 0.05));
    QCOMPARE(bench.favoriteNames(), QStringList({"Width", "ReverseX", "Gain"}));
    QVERIFY(drag(bench.favorite(QStringLiteral("Width")), bench.favorite(QStringLiteral("Gain")), 0.95));
    QCOMPARE(bench.favoriteNames(), QStringList({"ReverseX", "Gain", "Width"}));
    QVERIFY(!drag(bench.favorite(QStringLiteral("Width")), bench.row(QStringLiteral("Gain")), 0.5));
    QCOMPARE(bench.favorites().count(), 3);
}

void TestFeatureTreeWidget::favoritesKeepTheirPlaceOnScreen()
{
    TreeBench bench(flatCamera(100));
    bench.view()->verticalScrollBar()->setValue(50);
    const QPersistentModelIndex top = bench.view()->indexAt(QPoint(0, 0));
    bench.click(bench.view()->indexBelow(top));
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(bench.view(), Qt::Key_Down);
        QTest::keyClick(bench.view(), Qt::Key_D, Qt::ControlModifier);
    }
    QCOMPARE(bench.favorites().count(), 3);
    QCOMPARE(bench.view()->indexAt(QPoint(0, 0)), top);
}

void TestFeatureTreeWidget::widgetsShareFavorites()
{
    TreeBench one;
    TreeBench other(MemoryCollection::createSample());
    QApplication::setActiveWindow(&one.widget);
    one.click(one.row(QStringLiteral("Gain")));
    QTest::keyClick(one.view(), Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(other.favoriteNames(), QStringList("Gain"));
    // Removing it there takes the action here along.
    one.click(one.favorite(QStringLiteral("Gain")));
    QVERIFY(one.widget.IsCurrentFavorite());
    other.favorites().removeEntry(0);
    QVERIFY(!one.widget.IsCurrentFavorite());
    QTest::keyClick(one.view(), Qt::Key_Delete);

    const QModelIndex branch = one.extension()->GetFavoritesRootIndex();
    one.view()->collapse(branch);
    QVERIFY(!other.view()->isExpanded(other.extension()->GetFavoritesRootIndex()));
    one.type(QStringLiteral("gain"));
    QVERIFY(!other.view()->isExpanded(other.extension()->GetFavoritesRootIndex()));
    one.erase();
    QVERIFY(!one.favorites().isExpanded());

    auto *const box = one.widget.findChild<QCheckBox *>(QStringLiteral("checkBoxViewAllFavorites"));
    auto *const otherBox = other.widget.findChild<QCheckBox *>(QStringLiteral("checkBoxViewAllFavorites"));
    QSignalSpy states(&one.widget, SIGNAL(viewAllFavoritesStateChanged(bool)));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QCOMPARE(states.value(0), QVariantList({true}));
    QVERIFY(one.favorites().viewAll() && otherBox->isChecked());
    QVERIFY(TreeBench(nullptr)
                .widget.findChild<QCheckBox *>(QStringLiteral("checkBoxViewAllFavorites"))
                ->isChecked());
}

void TestFeatureTreeWidget::unavailableFavorites()
{
    TreeBench bench;
    FavoriteEntry entry;
    entry.featureName = QStringLiteral("Elsewhere");
    entry.displayName = entry.featureName;
    entry.nodeMapKey = QStringLiteral("@CameraDevice");
    bench.favorites().appendEntry(entry);
    QCOMPARE(bench.shownRows().filter(entry.featureName).size(), 0);
    auto *const box = bench.widget.findChild<QCheckBox *>(QStringLiteral("checkBoxViewAllFavorites"));
    box->click();
    QCOMPARE(bench.shownRows().filter(entry.featureName).size(), 1);
    box->click();
    QCOMPARE(bench.shownRows().filter(entry.featureName).size(), 0);
}

void TestFeatureTreeWidget::polls()
{
    TreeBench bench;
    QSignalSpy states(&bench.widget, SIGNAL(pollingStateChanged(bool)));
    auto *const box = bench.widget.findChild<QCheckBox *>(QStringLiteral("checkBoxPolling"));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(bench.widget.getPolling());
    QTRY_VERIFY(bench.camera->polls.size() >= 2);
    QCOMPARE(bench.camera->polls.constFirst(), 300);
    bench.widget.deviceIsClosed();
    QTRY_VERIFY(!bench.widget.getPolling());
    QVERIFY(!box->isChecked());
    QCOMPARE(states, QList<QVariantList>({{true}, {false}}));
}

void TestFeatureTreeWidget::switchesLevelWhileEditing()
{
    auto camera = MemoryCollection::createSample();
    for (const QString &name : {QStringLiteral("OffsetX"), QStringLiteral("Gain")}) {
        const auto parameter = camera->parameter(name);
        auto *const node = dynamic_cast<MemoryNode *>(parameter.data());
        const_cast<ParameterCollection::ParameterData &>(*node->snapshot).visibility = GenApi::Expert;
    }
    TreeBench bench(camera);
    bench.click(bench.value(QStringLiteral("DeviceUserID")));
    QPointer<QLineEdit> edit(
        qobject_cast<QLineEdit *>(bench.view()->indexWidget(bench.value(QStringLiteral("DeviceUserID")))));
    QVERIFY(edit);
    QTest::keyClicks(edit, QStringLiteral("half"));
    bench.widget.onVisibilityChanged(GenApi::Beginner);
    bench.settle();
    QVERIFY(edit && edit->hasFocus() && edit->text() == QLatin1String("half"));
    QVERIFY(!bench.row(QStringLiteral("Gain")).isValid());

    // An editor whose row goes is gone, and comes back with the row.
    bench.widget.onVisibilityChanged(GenApi::Expert);
    bench.settle();
    QVERIFY(bench.editor<FloatEditor>(QStringLiteral("Gain")));
    bench.click(bench.value(QStringLiteral("OffsetX")));
    QVERIFY(bench.view()->indexWidget(bench.value(QStringLiteral("OffsetX"))));
    bench.widget.onVisibilityChanged(GenApi::Beginner);
    bench.settle();
    QVERIFY(!bench.row(QStringLiteral("OffsetX")).isValid());
    QVERIFY(!bench.widget.GetCurrentNode());
    QVERIFY(bench.view()->hasFocus());
}

void TestFeatureTreeWidget::leavesEditorsOfOtherRows_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("how");
    for (const QString &name : {QStringLiteral("Gain"), QStringLiteral("OffsetX")}) {
        for (const QString &how :
             {QStringLiteral("collapsed"), QStringLiteral("hidden"), QStringLiteral("not current")}) {
            QTest::addRow("%s, %s", qPrintable(name), qPrintable(how)) << name << how;
        }
    }
}

void TestFeatureTreeWidget::leavesEditorsOfOtherRows()
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

    if (how == QLatin1String("collapsed")) {
        bench.view()->collapseAll();
    } else if (how == QLatin1String("hidden")) {
        bench.widget.onVisibilityChanged(GenApi::Beginner);
    } else {
        bench.view()->setCurrentIndex(bench.row(QStringLiteral("DeviceControl")));
    }
    bench.settle();
    QCOMPARE(QApplication::focusWidget(), bench.view()); // and no editor of another row
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_7}) {
        QTest::keyClick(bench.view(), key);
        QCOMPARE(QApplication::focusWidget(), bench.view());
    }
}

void TestFeatureTreeWidget::ignoresUnknownLevels()
{
    TreeBench bench;
    QSignalSpy levels(&bench.widget, SIGNAL(visibilityChanged(GenApi::EVisibility)));
    bench.widget.onVisibilityChanged(7);
    bench.widget.onVisibilityChanged(-1);
    QCOMPARE(bench.widget.visibility(), GenApi::Guru);
    QCOMPARE(levels.size(), 0);
    bench.widget.onVisibilityChanged(3);
    QCOMPARE(bench.widget.visibility(), GenApi::Invisible);
    QCOMPARE(levels.size(), 1);
}

void TestFeatureTreeWidget::setsVisibilityTwice()
{
    TreeBench one;
    one.view()->setVisibility(GenApi::Expert);
    const int refreshes = one.camera->refreshes;
    one.view()->setVisibility(GenApi::Expert);
    QCOMPARE(one.camera->refreshes, refreshes);
    // Another view's call makes the next one count again.
    TreeBench other(MemoryCollection::createSample());
    other.view()->setVisibility(GenApi::Expert);
    one.view()->setVisibility(GenApi::Expert);
    QCOMPARE(one.camera->refreshes, refreshes + 1);
}

void TestFeatureTreeWidget::clearsFromInsideAWrite()
{
    TreeBench bench;
    bench.node(QStringLiteral("ReverseX"))->before = [&bench](const QString &operation) {
        if (operation == QLatin1String("setValueFromString")) {
            bench.widget.clear();
            throw std::runtime_error("lost");
        }
    };
    auto *const box = bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX"));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    bench.settle();
    QCOMPARE(bench.view()->model()->rowCount(), 0);
}

void TestFeatureTreeWidget::closesDeviceWhileEditing()
{
    TreeBench bench;
    bench.click(bench.value(QStringLiteral("DeviceUserID")));
    auto *const edit =
        qobject_cast<QLineEdit *>(bench.view()->indexWidget(bench.value(QStringLiteral("DeviceUserID"))));
    QVERIFY(edit);
    QTest::keyClicks(edit, QStringLiteral("late"));
    bench.widget.deviceIsClosed();
    QTest::keyClick(edit, Qt::Key_Return);
    bench.settle();
    QCOMPARE(bench.node(QStringLiteral("DeviceUserID"))->writes, QStringList());
    QCOMPARE(bench.value(QStringLiteral("DeviceUserID")).data().toString(), QStringLiteral("left"));
}

void TestFeatureTreeWidget::clearsAndFillsAgain()
{
    TreeBench bench;
    const QStringList before = bench.shownRows();
    for (int i = 0; i < 3; ++i) {
        bench.type(QStringLiteral("e"));
        bench.click(bench.value(QStringLiteral("DeviceUserID")));
        QVERIFY(bench.view()->indexWidget(bench.value(QStringLiteral("DeviceUserID"))));
        bench.widget.clear();
        QCOMPARE(bench.view()->model()->rowCount(), 0);
        QCOMPARE(bench.box()->text(), QString());
        QCOMPARE(bench.view()->getHightlighter()->text(), QString());
        QVERIFY(!bench.widget.GetCurrentItem());
        bench.settle();
        QCOMPARE(bench.view()->viewport()->findChildren<QWidget *>().size(), 0);
        QTest::keyClick(bench.view(), Qt::Key_D, Qt::ControlModifier);

        bench.add(bench.camera);
        bench.view()->expandEverything();
        bench.settle();
        QCOMPARE(bench.shownRows(), before);
        QVERIFY(bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX")));
    }
}

void TestFeatureTreeWidget::clearsFromInsideASearch()
{
    TreeBench bench;
    bench.widget.clear();
    bench.add(bench.camera);
    // The first search after a change of the tree lets events through.
    QMetaObject::invokeMethod(
        &bench.widget, [&bench] { bench.widget.clear(); }, Qt::QueuedConnection);
    bench.box()->setText(QStringLiteral("gain"));
    QCOMPARE(bench.box()->text(), QString());
    QCOMPARE(bench.view()->getHightlighter()->text(), QString());
    QVERIFY(!QApplication::overrideCursor());
    bench.add(bench.camera);
    bench.view()->expandEverything();
    QVERIFY(bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX")));
}

void TestFeatureTreeWidget::clearsFromInsideAStep()
{
    TreeBench bench;
    bench.view()->setCurrentIndex(bench.row(QStringLiteral("Gain")));
    connect(bench.view(), &FeatureTreeView::onCurrentChanged, &bench.widget,
            [&bench](const QModelIndex &index) {
                if (index.isValid()) {
                    bench.widget.clear();
                }
            });
    QTest::keyClick(bench.view(), Qt::Key_Up);
    QCOMPARE(bench.view()->model()->rowCount(), 0);
}

void TestFeatureTreeWidget::refreshesBelowAnOpenPopup()
{
    TreeBench bench;
    auto *const combo = bench.editor<EnumEditor>(QStringLiteral("PixelFormat"));
    combo->showPopup();
    QWidget *const popup = QApplication::activePopupWidget();
    QVERIFY(popup);
    const auto snapshot = bench.node(QStringLiteral("PixelFormat"))->snapshot;
    auto changed = QSharedPointer<ParameterCollection::EnumParameterData>::create(
        static_cast<const ParameterCollection::EnumParameterData &>(*snapshot));
    changed->valueString = QStringLiteral("Mono12");
    bench.node(QStringLiteral("PixelFormat"))->snapshot = changed;
    bench.publish(QStringLiteral("PixelFormat"));
    bench.widget.Refresh();
    bench.settle();
    QCOMPARE(QApplication::activePopupWidget(), popup);
    QCOMPARE(combo->count(), 2);
    combo->hidePopup();
    QTRY_COMPARE(combo->currentText(), QStringLiteral("Mono12"));
    // The tree may even go away below it.
    combo->showPopup();
    bench.widget.clear();
    bench.settle();
    QVERIFY(!QApplication::activePopupWidget());
}

void TestFeatureTreeWidget::followsAvailability()
{
    TreeBench bench;
    const auto gain = bench.parameter<MemoryFloat>(QStringLiteral("Gain"));
    const auto set = [&](bool available) {
        gain->edit<ParameterCollection::FloatParameterData>([available](auto &data) {
            data.isReadable = available;
            data.isWritable = available;
        });
        gain->publish();
        bench.settle();
    };
    set(false);
    QVERIFY(!bench.view()->indexWidget(bench.value(QStringLiteral("Gain"))));
    QCOMPARE(bench.value(QStringLiteral("Gain")).data().toString(), QStringLiteral("<not available>"));
    set(true);
    QVERIFY(bench.editor<FloatEditor>(QStringLiteral("Gain")));

    // What is locked while its text is edited loses the editor.
    bench.click(bench.value(QStringLiteral("OffsetX")));
    QVERIFY(bench.view()->indexWidget(bench.value(QStringLiteral("OffsetX"))));
    const auto offset = bench.parameter<MemoryInteger>(QStringLiteral("OffsetX"));
    offset->edit<ParameterCollection::IntegerParameterData>([](auto &data) { data.isWritable = false; });
    offset->publish();
    bench.settle();
    QVERIFY(!bench.view()->indexWidget(bench.value(QStringLiteral("OffsetX"))));
}

void TestFeatureTreeWidget::hidesTheCurrentRow()
{
    TreeBench bench;
    bench.click(bench.row(QStringLiteral("ReverseX")));
    QSignalSpy current(bench.view(), SIGNAL(onCurrentChanged(QModelIndex)));
    const auto reverse = bench.parameter<MemoryBoolean>(QStringLiteral("ReverseX"));
    reverse->edit<ParameterCollection::BooleanParameterData>([](auto &data) { data.isImplemented = false; });
    reverse->publish();
    QVERIFY(!current.isEmpty() && !current.constLast().constFirst().toModelIndex().isValid());
    bench.settle();
    QVERIFY(!bench.widget.GetCurrentIndex().isValid());
    QTest::keyClick(bench.view(), Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(bench.favorites().count(), 0);
    QVERIFY(!bench.shownRows().join(QLatin1Char('\n')).contains(QStringLiteral("ReverseX")));

    reverse->edit<ParameterCollection::BooleanParameterData>([](auto &data) { data.isImplemented = true; });
    reverse->publish();
    bench.settle();
    QVERIFY(bench.shownRows().join(QLatin1Char('\n')).contains(QStringLiteral("ReverseX")));
    QVERIFY(bench.editor<CheckBoxEditor>(QStringLiteral("ReverseX")));
}

void TestFeatureTreeWidget::tellsTheHostOfTheCurrentRow()
{
    TreeBench bench;
    QStringList features;
    connect(&bench.widget, &FeatureTreeWidget::currentChanged, &bench.widget,
            [&features](const auto &parameter) { features.append(parameter->name()); });
    QSignalSpy texts(&bench.widget, SIGNAL(newText(QString)));
    bench.click(bench.row(QStringLiteral("Gain")));
    QCOMPARE(features, QStringList("Gain"));
    bench.click(bench.extension()->GetFavoritesRootIndex());
    QVERIFY(texts.value(0).value(0).toString().contains(QStringLiteral("Favorites")));
    bench.click(bench.row(QStringLiteral("Width")));
    features.clear();
    bench.type(QStringLiteral("gain"));
    bench.erase();
    QCOMPARE(features, QStringList());
    QVERIFY(bench.box()->hasFocus());
}

void TestFeatureTreeWidget::copiesTheTree()
{
    TreeBench bench;
    bench.type(QStringLiteral("gain"));
    bench.widget.copyToClipboard();
    const QString text = QApplication::clipboard()->text();
    QVERIFY(text.contains(QStringLiteral("Gain\t1.5")));
    QVERIFY(!text.contains(QStringLiteral("Width")) && !text.contains(QLatin1Char('<')));
}

void TestFeatureTreeWidget::keepsEditorsWithinTheBudget()
{
    const int features = 600;
    TreeBench bench(flatCamera(features));
    const auto openEditors = [&bench] {
        return bench.view()->viewport()->findChildren<CheckBoxEditor *>().size();
    };
    const auto allShownRowsHaveOne = [&bench] {
        const QRect visible = bench.view()->viewport()->rect();
        QModelIndex index = bench.view()->indexAt(QPoint(0, 0));
        for (; index.isValid() && bench.view()->visualRect(index).intersects(visible);
             index = bench.view()->indexBelow(index)) {
            QWidget *const editor = bench.view()->indexWidget(index.siblingAtColumn(1));
            const bool wanted = index.data(FeatureTreeItem::GenicamNameRole).toString().startsWith("Flag");
            if (wanted != (editor && editor->isVisible())) {
                return false;
            }
        }
        return true;
    };
    QVERIFY(allShownRowsHaveOne());
    // One that the user is working in stays, wherever it is.
    auto *const worked = bench.editor<CheckBoxEditor>(QStringLiteral("Flag3"));
    worked->setFocus();
    QRandomGenerator random(11);
    QScrollBar *const bar = bench.view()->verticalScrollBar();
    for (int i = 0; i < 30; ++i) {
        bar->setValue(random.bounded(bar->maximum() + 1));
        TreeBench::settle();
        QVERIFY(allShownRowsHaveOne());
        QVERIFY2(openEditors() <= 201 + 60, qPrintable(QString::number(openEditors())));
    }
    QCOMPARE(bench.editor<CheckBoxEditor>(QStringLiteral("Flag3")), worked);

    // A row beyond the budget gets its editor back, too, where it can be seen.
    bar->setValue(400);
    TreeBench::settle();
    const QString name = bench.view()
                             ->indexAt(QPoint(0, 50))
                             .siblingAtColumn(0)
                             .data(FeatureTreeItem::GenicamNameRole)
                             .toString();
    const auto flag = bench.parameter<MemoryBoolean>(name);
    for (const bool available : {false, true}) {
        flag->edit<ParameterCollection::BooleanParameterData>([available](auto &data) {
            data.isReadable = available;
            data.isWritable = available;
        });
        flag->publish();
        TreeBench::settle();
        QCOMPARE(bench.editor<CheckBoxEditor>(name) != nullptr, available);
    }

    // Tab goes on where rows come into view.
    bench.view()->setFocus();
    bench.editor<CheckBoxEditor>(name)->setFocus();
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const int reached = QStringView(name).mid(4).toInt() + 40;
    QCOMPARE(QApplication::focusWidget(),
             bench.editor<CheckBoxEditor>(QStringLiteral("Flag%1").arg(reached)));
}

void TestFeatureTreeWidget::budgetCountsOpenEditorsOnly()
{
    TreeBench bench(flatCamera(150));
    // The editors of rows that are filtered out leave room for those that come back.
    for (int i = 0; i < 5; ++i) {
        bench.type(QStringLiteral("flag1"));
        bench.erase();
    }
    for (int i = 0; i < 150; ++i) {
        QVERIFY(bench.editor<CheckBoxEditor>(QStringLiteral("Flag%1").arg(i)));
    }
}

void TestFeatureTreeWidget::expandsChildrenOnly()
{
    auto camera = QSharedPointer<MemoryCollection>::create();
    camera->addCategory(QStringLiteral("Outer"));
    camera->addBoolean(QStringLiteral("OuterFlag"), QStringLiteral("Outer"));
    camera->addCategory(QStringLiteral("Inner"), QStringLiteral("Outer"));
    camera->addBoolean(QStringLiteral("InnerFlag"), QStringLiteral("Inner"));
    TreeBench bench(nullptr);
    bench.camera = camera;
    bench.add(camera);
    bench.widget.expandRootNodes();
    const auto hasEditor = [&bench](const char *name) {
        return bench.view()->indexWidget(bench.value(QLatin1String(name))) != nullptr;
    };
    QVERIFY(!hasEditor("OuterFlag"));
    bench.view()->expand(bench.row(QStringLiteral("Outer")));
    QVERIFY(hasEditor("OuterFlag") && !hasEditor("InnerFlag"));
    bench.view()->expand(bench.row(QStringLiteral("Inner")));
    QVERIFY(hasEditor("InnerFlag"));
    // What is collapsed keeps its editors, out of sight.
    bench.view()->collapse(bench.row(QStringLiteral("Outer")));
    bench.settle();
    QVERIFY(hasEditor("OuterFlag"));
    QVERIFY(!bench.editor<CheckBoxEditor>(QStringLiteral("OuterFlag"))->isVisible());
}

/* Set ZELTO_MONKEY_STEPS and ZELTO_MONKEY_SEED for longer and other runs. */
void TestFeatureTreeWidget::followsThePalette()
{
    TreeBench bench;
    bench.node(QStringLiteral("ReverseX"))->snapshot->isWritable = false;
    bench.publish(QStringLiteral("ReverseX"));
    const QPalette light = QApplication::palette();
    QPalette dark(QColor(50, 50, 50));
    dark.setColor(QPalette::Disabled, QPalette::Base, QColor(90, 90, 90));
    QApplication::setPalette(dark);
    TreeBench::settle();
    const QColor base = dark.color(QPalette::Active, QPalette::Base);
    QCOMPARE(bench.box()->grab().toImage().pixelColor(bench.box()->rect().center()), base);
    for (const char *const name : {"Width", "PixelFormat", "ReverseX", "Gain"}) {
        const auto *const editor = bench.editor<QWidget>(QLatin1String(name));
        QVERIFY2(editor && editor->palette().color(QPalette::Base) == base, name);
    }
    QApplication::setPalette(light);
}

void TestFeatureTreeWidget::standsRandomUse()
{
    const int steps = qEnvironmentVariableIsSet("ZELTO_MONKEY_STEPS")
        ? qEnvironmentVariableIntValue("ZELTO_MONKEY_STEPS")
        : 2000;
    const auto seed = static_cast<quint32>(qEnvironmentVariableIsSet("ZELTO_MONKEY_SEED")
                                               ? qEnvironmentVariableIntValue("ZELTO_MONKEY_SEED")
                                               : 7);
    auto camera = MemoryCollection::createSample();
    camera->addCategory(QStringLiteral("Inner"), QStringLiteral("DeviceControl"));
    camera->addBoolean(QStringLiteral("InnerFlag"), QStringLiteral("Inner"));
    auto expert = camera->addInteger(QStringLiteral("GainRaw"), QStringLiteral("AcquisitionControl"));
    expert->edit<ParameterCollection::IntegerParameterData>(
        [](auto &data) { data.visibility = GenApi::Guru; });
    TreeBench bench(camera);
    Monkey monkey(bench, seed);
    for (int i = 0; i < steps; ++i) {
        monkey.step();
    }
    // Whatever happened, a tree that is filled anew works.
    QWidget *const popup = QApplication::activePopupWidget();
    delete popup;
    bench.widget.clear();
    bench.widget.onVisibilityChanged(GenApi::Guru);
    bench.add(camera);
    bench.view()->expandEverything();
    bench.settle();
    QVERIFY(bench.editor<CheckBoxEditor>(QStringLiteral("InnerFlag")));
    const int writes = static_cast<int>(bench.node(QStringLiteral("InnerFlag"))->writes.size());
    auto *const box = bench.editor<CheckBoxEditor>(QStringLiteral("InnerFlag"));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QCOMPARE(bench.node(QStringLiteral("InnerFlag"))->writes.size(), writes + 1);
}

QTEST_MAIN(TestFeatureTreeWidget)
#include "tst_featuretreewidget.moc"
