// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreetest.h"

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/enumeditor.h>
#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/intslidereditor.h>
#include <zeltoviewercomponents/featuretree/toolbuttoneditor.h>

#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <cstdlib>

namespace {

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
        const QList<void (Monkey::*)()> actions{
            &Monkey::click,       &Monkey::click,        &Monkey::click,     &Monkey::press,
            &Monkey::press,       &Monkey::press,        &Monkey::press,     &Monkey::wheel,
            &Monkey::search,      &Monkey::rareThings,   &Monkey::favorites, &Monkey::changeFeature,
            &Monkey::openOrClose, &Monkey::letEventsPass};
        (this->*actions.at(m_random.bounded(actions.size())))();
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
    void search()
    {
        m_bench.box()->setText(QStringLiteral("egainraw ").mid(m_random.bounded(6), m_random.bounded(3)));
    }
    void letEventsPass() { TreeBench::settle(); }
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

namespace {

bool hasColor(const QImage &image, const QColor &color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y); // letters are smoothed
            if (std::abs(pixel.red() - color.red()) + std::abs(pixel.green() - color.green())
                    + std::abs(pixel.blue() - color.blue())
                < 150) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

/*! \brief Looks at each picture that a window full of flags shows: whether there is a check box in every row
 * but the first ones. */
class Film : public QObject
{
public:
    explicit Film(TreeBench &bench)
        : m_window(bench.widget.windowHandle())
        , m_base(bench.view()->palette().color(QPalette::Base).rgb())
    {
        QWidget *const viewport = bench.view()->viewport();
        const int left = bench.view()->header()->sectionPosition(1);
        m_rowHeight = bench.view()->visualRect(bench.view()->indexAt(QPoint(0, 0))).height();
        m_values = QRect(viewport->mapTo(&bench.widget, QPoint(left, 5 * m_rowHeight)),
                         QSize(30, (viewport->height() / m_rowHeight - 5) * m_rowHeight));
        bench.widget.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::UpdateRequest) {
            return false;
        }
        watched->event(event);
        const QImage picture = m_window->screen()->grabWindow(m_window->winId()).toImage().copy(m_values);
        ++pictures;
        for (int y = 0; y < picture.height(); y += m_rowHeight) {
            emptyRows += isEmpty(picture.copy(0, y, picture.width(), m_rowHeight)) ? 1 : 0;
        }
        return true;
    }

    int pictures = 0;
    int emptyRows = 0;

private:
    bool isEmpty(const QImage &row) const
    {
        for (int y = 0; y < row.height(); ++y) {
            for (int x = 0; x < row.width(); ++x) {
                if (row.pixel(x, y) != m_base) {
                    return false;
                }
            }
        }
        return true;
    }

    QWindow *m_window;
    QRgb m_base;
    int m_rowHeight = 0;
    QRect m_values;
};

class TestFeatureTreeWidget : public FeatureTreeTest
{
    Q_OBJECT

private slots:
    void opensWithItsParts();
    void paintsBothWays_data();
    void paintsBothWays();
    void followsItsFont_data();
    void followsItsFont();
    void remembersItsHeader();
    void polls();
    void ignoresUnknownLevels();
    void setsVisibilityTwice();
    void clearsAndFillsAgain();
    void hidesTheCurrentRow();
    void opensEditorsWhereTheyAreSeen();
    void showsNoRowWithoutItsEditor();
    void keepsUnsentTextOutOfSight();
    void opensFewEditorsAtOnce();
    void opensEditorsThatAreAskedFor();
    void expandsChildrenOnly();
    void followsThePalette_data();
    void followsThePalette();
    void standsRandomUse();
};

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

void TestFeatureTreeWidget::paintsBothWays_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isReadLeftwards");
    const QString hebrew = QString::fromUtf8("\327\251\327\234\327\225\327\235");
    QTest::newRow("left to right") << Qt::LeftToRight << QStringLiteral("Sharpness") << false;
    QTest::newRow("right to left") << Qt::RightToLeft << QStringLiteral("Sharpness") << false;
    QTest::newRow("a Hebrew name, left to right") << Qt::LeftToRight << hebrew << true;
    QTest::newRow("a Hebrew name, right to left") << Qt::RightToLeft << hebrew << true;
}

void TestFeatureTreeWidget::paintsBothWays()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QString, name);
    QFETCH(bool, isReadLeftwards);
    const QString feature = QStringLiteral("Feature");
    auto camera = MemoryCollection::createSample();
    for (const QString &added : {feature, QStringLiteral("Hidden")}) {
        const auto parameter = camera->addInteger(added, QStringLiteral("DeviceControl"));
        parameter->properties.insert(QStringLiteral("DisplayName"), name);
        parameter->edit<ParameterCollection::IntegerParameterData>(
            [&](auto &data) { data.visibility = added == feature ? GenApi::Beginner : GenApi::Guru; });
    }
    TreeBench bench(camera, GenApi::Beginner);
    bench.widget.setLayoutDirection(direction);
    bench.view()->header()->resizeSection(0, 250);
    bench.settle();
    // How far a text begins from the edge of its cell.
    const auto gap = [&](const QModelIndex &index) {
        const QRect cell = bench.view()->visualRect(index);
        const QRect ink = bench.ink(cell);
        return direction == Qt::LeftToRight ? ink.left() - cell.left() : cell.right() - ink.right();
    };
    const int margin = gap(bench.row(QStringLiteral("DeviceControl"))); // which the style paints
    const QModelIndex hint = bench.view()->model()->index(0, 0, bench.extension()->GetFavoritesRootIndex());
    const QRect ink = bench.ink(bench.view()->visualRect(bench.row(feature)));
    QVERIFY(gap(hint) >= 0 && gap(hint) <= margin);
    QVERIFY(gap(bench.row(feature)) >= 0 && gap(bench.row(feature)) <= margin);
    QCOMPARE(bench.editor<IntSliderEditor>(QStringLiteral("Width"))->geometry(),
             bench.view()->visualRect(bench.value(QStringLiteral("Width"))));

    bench.box()->setText(name.left(2));
    bench.settle();
    const QModelIndex searchRow = bench.view()->model()->index(0, 0);
    QVERIFY(gap(searchRow) >= 0 && gap(searchRow) <= margin);
    const QRect mark =
        bench.ink(bench.view()->visualRect(bench.row(feature)), bench.view()->getHightlighter()->color());
    QVERIFY(mark.width() < ink.width());
    const int off = isReadLeftwards ? mark.right() - ink.right() : mark.left() - ink.left();
    QVERIFY2(std::abs(off) <= 2, qPrintable(QString::number(off)));
}

void TestFeatureTreeWidget::followsItsFont_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("editors that are open") << true;
    QTest::newRow("editors that open later") << false;
}

void TestFeatureTreeWidget::followsItsFont()
{
    QFETCH(bool, isOpen);
    TreeBench bench(isOpen ? MemoryCollection::createSample() : nullptr);
    QFont large = bench.widget.font();
    large.setPointSize(2 * large.pointSize());
    bench.widget.setFont(large);
    if (!isOpen) {
        bench.camera = MemoryCollection::createSample();
        bench.add(bench.camera);
        bench.view()->expandEverything();
    }
    bench.settle();
    const int needed = QFontMetrics(large).height();
    const QList<QWidget *> descendants = bench.widget.findChildren<QWidget *>();
    for (const QWidget *const widget : descendants) {
        const bool isIcon = widget->parentWidget() == bench.box();
        const bool isInPopup = widget->window() != &bench.widget; // painted in the font of its box
        QVERIFY2(isIcon || isInPopup || widget->font() == large, widget->metaObject()->className());
        const bool hasText =
            qobject_cast<const QLineEdit *>(widget) || qobject_cast<const EnumEditor *>(widget);
        QVERIFY2(!hasText || widget->contentsRect().height() >= needed, widget->metaObject()->className());
    }
    QVERIFY(bench.editor<EnumEditor>(QStringLiteral("PixelFormat")));
    QVERIFY(bench.view()->visualRect(bench.row(QStringLiteral("Gain"))).height() >= needed + 8);
    // What was given to one of them alone stays.
    QFont own = large;
    own.setBold(true);
    bench.box()->setFont(own);
    QVERIFY(bench.box()->font().bold());
}

void TestFeatureTreeWidget::remembersItsHeader()
{
    TreeBench saved;
    saved.view()->header()->resizeSection(0, 211);
    const QByteArray state = saved.widget.saveState(3);
    TreeBench restored;
    const int before = restored.view()->header()->sectionSize(0);
    QVERIFY(before != 211);
    QVERIFY(!restored.widget.restoreState(state, 4));
    QVERIFY(!restored.widget.restoreState(QByteArray("garbage, and no state at all"), 3));
    QCOMPARE(restored.view()->header()->sectionSize(0), before);
    QVERIFY(restored.widget.restoreState(state, 3));
    QCOMPARE(restored.view()->header()->sectionSize(0), 211);
    QCOMPARE(restored.view()->header()->length(), restored.view()->viewport()->width());
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

void TestFeatureTreeWidget::opensEditorsWhereTheyAreSeen()
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
    const auto openBelow = [&bench](int pages) { // the viewport
        const QRect viewport = bench.view()->viewport()->rect();
        const QModelIndex row = bench.view()->indexAt(QPoint(0, viewport.bottom() - 30));
        const int rows = pages * viewport.height() / bench.view()->visualRect(row).height();
        return bench.view()->indexWidget(row.siblingAtRow(row.row() + rows).siblingAtColumn(1)) != nullptr;
    };
    QVERIFY(openBelow(0));
    QTRY_VERIFY(openBelow(1));
    QVERIFY(!openBelow(2));
    // One that the user is working in stays, wherever it is.
    auto *const worked = bench.editor<CheckBoxEditor>(QStringLiteral("Flag3"));
    worked->setFocus();
    QRandomGenerator random(11);
    QScrollBar *const bar = bench.view()->verticalScrollBar();
    for (int i = 0; i < 30; ++i) {
        bar->setValue(random.bounded(bar->maximum() + 1));
        TreeBench::settle();
        QVERIFY(allShownRowsHaveOne());
    }
    QTRY_VERIFY2(openEditors() < 150, qPrintable(QString::number(openEditors())));
    QCOMPARE(bench.editor<CheckBoxEditor>(QStringLiteral("Flag3")), worked);

    // A row among many gets its editor back, too, where it can be seen.
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

void TestFeatureTreeWidget::showsNoRowWithoutItsEditor()
{
    TreeBench bench(flatCamera(600));
    QTest::qWait(100);
    Film film(bench);
    QScrollBar *const bar = bench.view()->verticalScrollBar();
    QRandomGenerator random(5);
    for (int i = 0; i < 60; ++i) {
        bar->setValue(i < 40 ? 3 * i : random.bounded(bar->maximum()));
        QTest::qWait(5);
    }
    bench.type(QStringLiteral("flag1"));
    QTest::qWait(20);
    QTest::keyClick(bench.box(), Qt::Key_Backspace);
    QTest::qWait(20);
    bench.erase();
    QTest::qWait(50);
    QVERIFY2(film.pictures > 40, qPrintable(QString::number(film.pictures)));
    QCOMPARE(film.emptyRows, 0);
}

void TestFeatureTreeWidget::keepsUnsentTextOutOfSight()
{
    const auto camera = flatCamera(300);
    camera->addFloat(QStringLiteral("Gain"), QStringLiteral("Many"), 1.0, 0.0, 10.0);
    camera->addFloat(QStringLiteral("Gamma"), QStringLiteral("Many"), 1.0, 0.0, 10.0);
    TreeBench bench(camera);
    bench.view()->scrollTo(bench.row(QStringLiteral("Gamma")));
    bench.settle();
    QPointer<FloatEditor> gamma = bench.editor<FloatEditor>(QStringLiteral("Gamma"));
    QPointer<FloatEditor> gain = bench.editor<FloatEditor>(QStringLiteral("Gain"));
    gain->setFocus();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7.5"));
    QApplication::setActiveWindow(nullptr); // what is typed waits for its window to come back
    bench.view()->scrollToTop();
    QTRY_VERIFY(!gamma);
    QVERIFY(gain);
    QApplication::setActiveWindow(&bench.widget);
    QTest::keyClick(bench.widget.focusWidget(), Qt::Key_Return);
    bench.settle();
    QCOMPARE(bench.parameter<MemoryFloat>(QStringLiteral("Gain"))->snapshot->valueString.toDouble(), 7.51);
}

void TestFeatureTreeWidget::opensFewEditorsAtOnce()
{
    TreeBench bench(flatCamera(64));
    // Those of rows that are filtered out leave room for those that come back.
    for (int i = 0; i < 5; ++i) {
        bench.type(QStringLiteral("flag1"));
        bench.erase();
    }
    const auto openEditors = [&bench] {
        return bench.view()->viewport()->findChildren<CheckBoxEditor *>().size();
    };
    bench.settle();
    QCOMPARE(openEditors(), 64);
    // The editors of a collapsed branch stay, and do not count.
    bench.view()->collapse(bench.row(QStringLiteral("Many")));
    bench.camera = flatCamera(40);
    bench.widget.addParameterCollection(bench.camera, QStringLiteral("Other"), bench.camera->name(), false);
    bench.view()->expandRecursively(bench.view()->model()->index(3, 0));
    QCOMPARE(openEditors(), 64 + 40);
}

void TestFeatureTreeWidget::opensEditorsThatAreAskedFor()
{
    FeatureTreeWidget tree(QStringLiteral("never shown"));
    const auto camera = flatCamera(300);
    tree.addParameterCollection(camera, QStringLiteral("Camera"), camera->name(), false);
    tree.treeView()->expandEverything();
    const auto openEditors = [&tree] { return tree.findChildren<CheckBoxEditor *>().size(); };
    QCOMPARE(openEditors(), 0);
    const QModelIndex last =
        tree.getFeatureExtension()->findItemByFullName(QStringLiteral("@CameraDevice/Flag299"), nullptr, 1);
    QVERIFY(tree.treeView()->indexWidget(last));
    tree.treeView()->collapse(last.parent());
    QVERIFY(!tree.treeView()->indexWidget(last.siblingAtRow(1)));
    tree.treeView()->expand(last.parent());
    // A window that is hidden again opens no more of them.
    tree.show();
    TreeBench::settle();
    tree.hide();
    tree.treeView()->scrollTo(last.siblingAtRow(150));
    TreeBench::settle();
    QVERIFY(openEditors() < 64);
    QVERIFY(!tree.treeView()->indexWidget(last.siblingAtRow(150)));
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

void TestFeatureTreeWidget::followsThePalette_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("sheet"); // instead of a palette
    QTest::newRow("of the application") << "application"
                                        << "";
    QTest::newRow("of the widget") << "widget"
                                   << "";
    QTest::newRow("of the window") << "window"
                                   << "";
    const QString sheet =
        QStringLiteral("QComboBox, QLineEdit, QTreeView { background: #323c46; color: #f040f0 }");
    QTest::newRow("sheet of the application") << "application" << sheet;
    QTest::newRow("sheet of the widget") << "widget" << sheet;
    QTest::newRow("sheet of the window") << "window" << sheet;
}

void TestFeatureTreeWidget::followsThePalette()
{
    QFETCH(QString, target);
    QFETCH(QString, sheet);
    QWidget window;
    TreeBench bench;
    window.resize(600, 800);
    bench.widget.setParent(&window);
    window.show();
    bench.widget.show();
    bench.node(QStringLiteral("ReverseX"))->snapshot->isWritable = false;
    bench.publish(QStringLiteral("ReverseX"));
    bench.settle();
    QWidget &receiver = target == QLatin1String("widget") ? bench.widget : window;
    const QColor text(QStringLiteral("#f040f0"));
    const QColor base(QStringLiteral("#323c46"));
    QPalette dark(base);
    for (const auto role : {QPalette::Base, QPalette::Button}) {
        dark.setColor(role, base);
    }
    for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        dark.setColor(role, text);
    }
    const QPalette light = QApplication::palette();
    const auto restore = qScopeGuard([&] {
        QApplication::setPalette(light);
        qApp->setStyleSheet(QString());
        bench.widget.setParent(nullptr);
    });
    // Twice: a widget with a sheet of its own follows the first time, at least.
    for (const bool isDark : {true, false, true}) {
        if (target == QLatin1String("application")) {
            sheet.isEmpty() ? QApplication::setPalette(isDark ? dark : light)
                            : qApp->setStyleSheet(isDark ? sheet : QString());
        } else {
            sheet.isEmpty() ? receiver.setPalette(isDark ? dark : light)
                            : receiver.setStyleSheet(isDark ? sheet : QString());
        }
        bench.settle();
        bench.box()->setText(isDark ? QStringLiteral("e") : QString());
        const QColor expected = isDark ? base : light.color(QPalette::Base);
        const QImage box = bench.box()->grab().toImage();
        QCOMPARE(box.pixelColor(box.rect().center()), expected);
        QCOMPARE(hasColor(box, text), isDark);
        auto *const list = bench.editor<EnumEditor>(QStringLiteral("PixelFormat"));
        const QImage shown = list->grab().toImage();
        QCOMPARE(hasColor(shown, text), isDark);
    }
    bench.box()->clear();
    bench.settle();
    for (const char *const name : {"Width", "PixelFormat", "ReverseX", "Gain"}) {
        const auto *const editor = bench.editor<QWidget>(QLatin1String(name));
        QVERIFY2(editor && (!sheet.isEmpty() || editor->palette().color(QPalette::Base) == base), name);
    }
}

/* Set ZELTO_MONKEY_STEPS and ZELTO_MONKEY_SEED for longer and other runs. */
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
