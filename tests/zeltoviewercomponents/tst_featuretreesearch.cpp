// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreetest.h"

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/featuretreedelegate.h>
#include <zeltoviewercomponents/featuretree/featuretreelook.h>
#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/toolbuttoneditor.h>

#include <QClipboard>
#include <QList>
#include <QPaintEvent>
#include <QPair>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <cstdlib>
#include <functional>

using Keystroke = QPair<int, Qt::KeyboardModifiers>; // no key: the modifier is struck alone
using Keystrokes = QList<Keystroke>;
Q_DECLARE_METATYPE(Keystrokes)

/*! \brief Counts how often a place in a widget is painted. */
class PaintCounter : public QObject
{
public:
    PaintCounter(QWidget *widget, const QPoint &place)
        : m_place(place)
    {
        widget->installEventFilter(this);
    }

    int count = 0;

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            count += static_cast<QPaintEvent *>(event)->region().contains(m_place) ? 1 : 0;
        }
        return QObject::eventFilter(watched, event);
    }

    QPoint m_place;
};

class TestFeatureTreeSearch : public FeatureTreeTest
{
    Q_OBJECT

private slots:
    void searchKeepsAndRestoresTheTree();
    void searchCounts();
    void countsFollowTheTree();
    void onePassAnAction();
    void searchWithoutResults();
    void clearedSearchScrollsBack();
    void escapeTwiceClearsTheSearch();
    void shortcuts_data();
    void shortcuts();
    void clearsFromInsideASearch();
    void aKeyIsPaintedOnce();
    void enteredBeforeTheRowGoes();
    void tellsTheHostOfTheCurrentRow();
    void currentRowIsKnownAtAnyMoment();
    void downGoesToTheFirstMatch_data();
    void downGoesToTheFirstMatch();
    void showsFeatures_data();
    void showsFeatures();
    void clearEndsASearchFromOutside();
    void copiesTheTree();
};

void TestFeatureTreeSearch::searchKeepsAndRestoresTheTree()
{
    auto camera = MemoryCollection::createSample();
    auto *const device =
        dynamic_cast<MemoryNode *>(camera->parameter(QStringLiteral("DeviceControl")).data());
    device->children.append(QStringLiteral("ReverseX")); // it stands in two categories
    TreeBench bench(camera);
    bench.view()->collapse(bench.row(QStringLiteral("AcquisitionControl")));
    bench.click(bench.view()->model()->index(1, 0, bench.row(QStringLiteral("DeviceControl"))));
    const QStringList before = bench.shownRows();
    QCOMPARE(before.filter(QStringLiteral("ReverseX")).size(), 2);
    QVERIFY(before.constLast().endsWith(QStringLiteral("ReverseX *")));

    bench.type(QStringLiteral("gain"));
    QCOMPARE(bench.shownRows().filter(QStringLiteral("Gain")).size(), 1);
    QCOMPARE(bench.shownRows().filter(QStringLiteral("ReverseX")).size(), 0);
    QVERIFY(bench.editor<FloatEditor>(QStringLiteral("Gain")));
    bench.erase();
    QCOMPARE(bench.shownRows(), before);

    // The same camera opened anew is brought to the same look, in the search and after it.
    bench.type(QStringLiteral("e"));
    bench.view()->setCurrentIndex(bench.row(QStringLiteral("OffsetX")));
    const FeatureTreeLook look(bench.widget);
    TreeBench anew(camera, GenApi::Beginner);
    FeatureTreeLook(look.toMap(~FeatureTreeLook::Parts())).applyTo(anew.widget);
    QCOMPARE(anew.widget.visibility(), GenApi::Guru);
    QCOMPARE(anew.box()->text(), QStringLiteral("e"));
    QCOMPARE(anew.view()->currentIndex(), anew.row(QStringLiteral("OffsetX")));
    anew.erase();
    QCOMPARE(anew.shownRows(), before);

    // What is collapsed in a search is as it was afterwards, too.
    bench.view()->collapseAll();
    bench.erase();
    QCOMPARE(bench.shownRows(), before);
    QVERIFY(bench.favorites().isExpanded());
}

void TestFeatureTreeSearch::searchCounts()
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

void TestFeatureTreeSearch::countsFollowTheTree()
{
    auto camera = MemoryCollection::createSample();
    camera->addCategory(QStringLiteral("Deep"))->edit<ParameterCollection::ParameterData>([](auto &data) {
        data.visibility = GenApi::Expert;
    });
    camera->addFloat(QStringLiteral("GainDeep"), QStringLiteral("Deep"));
    camera->addInteger(QStringLiteral("GainRaw"), QStringLiteral("AcquisitionControl"));
    TreeBench bench(camera, GenApi::Beginner);
    const auto gain = bench.parameter<MemoryFloat>(QStringLiteral("Gain"));
    const auto changeGain = [&gain](const std::function<void(ParameterCollection::ParameterData &)> &edit) {
        gain->edit<ParameterCollection::FloatParameterData>(edit);
        gain->publish();
    };
    QSignalSpy counts(&bench.widget, SIGNAL(filterMatchesChanged(int, int)));
    // What is told by the signal and by the row, and what is in sight.
    const auto state = [&] {
        bench.settle();
        const QStringList rows = bench.shownRows();
        const QVariantList told = counts.constLast();
        return QStringList{told.at(0).toString(), told.at(1).toString(),
                           QString::number(rows.filter(QStringLiteral("Gain")).size())}
        + rows.filter(QStringLiteral("search results"));
    };
    const auto expected = [](int total, int hidden) {
        const QString row =
            QStringLiteral("<HTML><B>%1 search results (%2 of them visible at higher user level)</B>");
        return QStringList{QString::number(total), QString::number(hidden), QString::number(total - hidden)}
        + (hidden > 0 ? QStringList(row.arg(total).arg(hidden)) : QStringList());
    };
    bench.type(QStringLiteral("gain"));
    QCOMPARE(state(), expected(3, 1));
    bench.extension()->AddFavorite(camera->parameter(QStringLiteral("GainDeep")), 0);
    QCOMPARE(state(), expected(3, 0)); // the favorite is in sight
    bench.favorites().removeEntry(0);
    QCOMPARE(state(), expected(3, 1));
    changeGain([](auto &data) { data.visibility = GenApi::Expert; });
    QCOMPARE(state(), expected(3, 2));
    changeGain([](auto &data) { data.isImplemented = false; });
    QCOMPARE(state(), expected(2, 1));
    const auto other = QSharedPointer<MemoryCollection>::create(QStringLiteral("@Second"));
    other->addCategory(QStringLiteral("Stream"));
    other->addInteger(QStringLiteral("GainStream"), QStringLiteral("Stream"));
    bench.add(other);
    QCOMPARE(state(), expected(3, 1));
    bench.widget.setVisibility(GenApi::Expert);
    QCOMPARE(state(), expected(3, 0));
}

/*! \brief Counts the layouts of its view: each asks for the height of the very first row. */
class LayoutCounter : public FeatureTreeDelegate
{
public:
    explicit LayoutCounter(TreeBench &bench)
        : FeatureTreeDelegate(bench.view(), bench.extension(), bench.view()->getHightlighter())
    {
        bench.view()->setItemDelegate(this);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        layouts += index.row() == 0 && index.column() == 0 && !index.parent().isValid() ? 1 : 0;
        return FeatureTreeDelegate::sizeHint(option, index);
    }
    mutable qsizetype layouts = 0;
};

void TestFeatureTreeSearch::onePassAnAction()
{
    auto camera = MemoryCollection::createSample();
    camera->node(QStringLiteral("ReverseX"))->snapshot->visibility = GenApi::Expert;
    TreeBench bench(camera);
    QSignalSpy judged(bench.view()->model(), SIGNAL(judged()));
    QSignalSpy filtered(bench.view()->model(), SIGNAL(filtered()));
    QSignalSpy layouts(bench.view()->model(), &QAbstractItemModel::layoutChanged);
    QSignalSpy told(&bench.widget, SIGNAL(filterMatchesChanged(int, int)));
    LayoutCounter laidOut(bench);
    const auto type = [&bench](const char *text) { bench.box()->setText(QString::fromLatin1(text)); };
    const auto setLevel = [&bench](GenApi::EVisibility level) { bench.widget.onVisibilityChanged(level); };
    struct Action
    {
        const char *name;
        std::function<void()> act;
        QList<qsizetype> expected; // passes, changes of the layout, announcements, layouts of the view
    };
    const QList<Action> actions{
        {"first key", [&] { type("r"); }, {1, 1, 1, 1}},
        {"second key", [&] { type("re"); }, {1, 1, 1, 1}},
        {"a key that changes nothing", [&] { type("rev"); }, {1, 1, 1, 1}},
        {"another one", [&] { type("reve"); }, {1, 0, 1, 0}},
        {"backspace", [&] { type("r"); }, {1, 1, 1, 1}},
        {"level in a search, with a hidden match", [&] { setLevel(GenApi::Beginner); }, {1, 1, 1, 1}},
        {"back", [&] { setLevel(GenApi::Guru); }, {1, 1, 1, 1}},
        {"favorite in a search",
         [&] { bench.extension()->AddFavorite(camera->parameter(QStringLiteral("ReverseX")), 0); },
         {1, 1, 1, 1}},
        {"node map in a search",
         [&] { bench.add(MemoryCollection::createSample(QStringLiteral("@Other"))); },
         {1, 1, 1, 1}},
        {"refreshing in a search", [&] { bench.widget.refreshTree(); }, {1, 0, 1, 1}},
        {"clearing", [&] { type(""); }, {1, 1, 1, 1}},
        {"level", [&] { setLevel(GenApi::Beginner); }, {1, 1, 1, 1}},
        {"favorite", [&] { bench.favorites().removeEntry(0); }, {0, 1, 0, 1}},
        {"node map",
         [&] { bench.add(MemoryCollection::createSample(QStringLiteral("@Third"))); },
         {0, 1, 0, 1}},
        {"a feature that goes",
         [&] {
             bench.node(QStringLiteral("Width"))->snapshot->isImplemented = false;
             bench.publish(QStringLiteral("Width"));
         },
         {1, 1, 0, 2}}, // hidden at once, filtered out later
    };
    for (const Action &action : actions) {
        bench.settle();
        for (QSignalSpy *const spy : {&judged, &filtered, &layouts, &told}) {
            spy->clear();
        }
        laidOut.layouts = 0;
        action.act();
        bench.settle();
        const QList<qsizetype> counted{judged.size(), layouts.size(), told.size(), laidOut.layouts};
        QVERIFY2(counted == action.expected,
                 qPrintable(QStringLiteral("%1: %2 passes, %3 layouts, told %4 times, %5 laid out")
                                .arg(QLatin1String(action.name))
                                .arg(counted[0])
                                .arg(counted[1])
                                .arg(counted[2])
                                .arg(counted[3])));
    }
}

void TestFeatureTreeSearch::searchWithoutResults()
{
    TreeBench bench;
    bench.type(QStringLiteral("zzz"));
    // The text stands at the top, in the middle.
    const QRect viewport = bench.view()->viewport()->rect();
    const QRect text = bench.ink(viewport);
    QVERIFY(!text.isEmpty() && text.bottom() < 2 * bench.view()->fontMetrics().height());
    QVERIFY(std::abs(text.center().x() - viewport.center().x()) < 20);
    bench.erase();
    QVERIFY(bench.ink(viewport).height() > viewport.height() / 3);
}

void TestFeatureTreeSearch::clearedSearchScrollsBack()
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

void TestFeatureTreeSearch::escapeTwiceClearsTheSearch()
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
    bench.box()->setText(QStringLiteral("width")); // by nobody's key
    QTest::keyClick(bench.view(), Qt::Key_Escape);
    QCOMPARE(bench.box()->text(), QStringLiteral("width"));
}

void TestFeatureTreeSearch::shortcuts_data()
{
    QTest::addColumn<Keystrokes>("keystrokes");
    QTest::addColumn<QString>("effect");
    const auto chord = Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier;
    const Keystroke control{0, Qt::ControlModifier};
    const Keystroke alt{0, Qt::AltModifier};
    const Keystroke shift{0, Qt::ShiftModifier};
    const QString find = QStringLiteral("find");
    const QString collapse = QStringLiteral("collapse");
    const QString expand = QStringLiteral("expand");
    QTest::newRow("F3") << Keystrokes{{Qt::Key_F3, {}}} << find;
    QTest::newRow("Ctrl, F") << Keystrokes{control, {Qt::Key_F, {}}} << find;
    QTest::newRow("Ctrl+F") << Keystrokes{{Qt::Key_F, Qt::ControlModifier}} << find;
    QTest::newRow("Ctrl, Alt, Shift, Minus")
        << Keystrokes{control, alt, shift, {Qt::Key_Minus, {}}} << collapse;
    QTest::newRow("Ctrl+Alt+Shift+Minus") << Keystrokes{{Qt::Key_Minus, chord}} << collapse;
    QTest::newRow("Ctrl, Alt, Shift, Plus") << Keystrokes{control, alt, shift, {Qt::Key_Plus, {}}} << expand;
    QTest::newRow("Ctrl+Alt+Shift+Plus") << Keystrokes{{Qt::Key_Plus, chord}} << expand;
    QTest::newRow("Ctrl, Alt, Minus") << Keystrokes{control, alt, {Qt::Key_Minus, {}}} << QString();
}

void TestFeatureTreeSearch::shortcuts()
{
    QFETCH(Keystrokes, keystrokes);
    QFETCH(QString, effect);
    TreeBench bench;
    bench.favorites().setExpanded(true);
    if (effect == QLatin1String("expand")) {
        bench.view()->collapseAll();
    }
    bench.view()->setFocus();
    for (qsizetype i = 0; i < keystrokes.size(); ++i) {
        QVERIFY(bench.view()->hasFocus()); // the last keystroke takes effect, no earlier one
        QTest::sendKeyEvent(QTest::Click, bench.view(), static_cast<Qt::Key>(keystrokes[i].first),
                            QString(QChar(0)), keystrokes[i].second);
    }
    QCOMPARE(bench.box()->hasFocus(), effect == QLatin1String("find"));
    const bool isExpanded = effect != QLatin1String("collapse");
    QCOMPARE(bench.view()->isExpanded(bench.row(QStringLiteral("ImageFormatControl"))), isExpanded);
    QCOMPARE(bench.favorites().isExpanded(), isExpanded);
}

void TestFeatureTreeSearch::clearsFromInsideASearch()
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

void TestFeatureTreeSearch::aKeyIsPaintedOnce()
{
    TreeBench bench;
    for (const char *const text : {"g", "ga", ""}) {
        const QRect cell = bench.view()->visualRect(bench.view()->model()->index(0, 1));
        const PaintCounter paintings(bench.view()->viewport(), cell.center());
        bench.box()->setText(text);
        bench.settle();
        QCOMPARE(paintings.count, 1);
    }
}

void TestFeatureTreeSearch::enteredBeforeTheRowGoes()
{
    TreeBench bench;
    bench.view()->setCurrentIndex(bench.row("OffsetX"));
    QTest::keyClick(bench.view(), Qt::Key_F2);
    QTest::keyClicks(bench.view()->indexWidget(bench.value("OffsetX")), "42");
    // Both are in the queue when the tree gets to it.
    QTest::keyClick(bench.view()->indexWidget(bench.value("OffsetX")), Qt::Key_Return);
    bench.box()->setText("gain");
    bench.settle();
    QCOMPARE(bench.node("OffsetX")->writes, QStringList("42"));
}

void TestFeatureTreeSearch::tellsTheHostOfTheCurrentRow()
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

void TestFeatureTreeSearch::currentRowIsKnownAtAnyMoment()
{
    auto camera = MemoryCollection::createSample();
    const auto deep = camera->addCategory(QStringLiteral("Deep"));
    deep->snapshot->visibility = GenApi::Expert;
    camera->addInteger(QStringLiteral("DeepGain"), QStringLiteral("Deep"));
    TreeBench bench(camera);
    // What a host shows that asks each time that it is told to.
    QString shown;
    const auto nameNow = [&bench] {
        const auto node = bench.widget.GetCurrentNode();
        return node ? node->name() : QString();
    };
    connect(bench.view(), &FeatureTreeView::onCurrentChanged, &bench.widget,
            [&shown, &nameNow] { shown = nameNow(); });
    const auto state = [&](const QString &name) {
        bench.settle();
        const auto *const item = qobject_cast<FeatureTreeINodeItem *>(bench.widget.getDeepestSelectedItem());
        return shown == name && nameNow() == name && (item ? item->nodeName() : QString()) == name
            && bench.widget.GetCurrentIndex().isValid() == !name.isEmpty();
    };
    bench.click(bench.row(QStringLiteral("Width")));
    QVERIFY(state(QStringLiteral("Width")));
    bench.type(QStringLiteral("gain"));
    QVERIFY(state(QString()));
    QTest::keyClick(bench.box(), Qt::Key_Down);
    QVERIFY(state(QStringLiteral("Gain")));
    bench.type(QStringLiteral("zzz"));
    QVERIFY(state(QString()));
    bench.erase();
    QVERIFY(state(QStringLiteral("Width")));
    QTest::mouseClick(bench.editor<ToolButtonEditor>(QStringLiteral("TriggerSoftware")), Qt::LeftButton);
    QVERIFY(state(QStringLiteral("Width"))); // the button leaves the row and the focus where they are
    // The row's category goes with the level, and the row with it.
    bench.type(QStringLiteral("gain"));
    bench.view()->setCurrentIndex(bench.row(QStringLiteral("DeepGain")));
    bench.widget.onVisibilityChanged(GenApi::Beginner);
    QVERIFY(state(QString()));
    bench.widget.onVisibilityChanged(GenApi::Guru);
    bench.erase();
    bench.view()->setCurrentIndex(bench.row(QStringLiteral("DeepGain")));
    QVERIFY(state(QStringLiteral("DeepGain")));
    bench.widget.onVisibilityChanged(GenApi::Beginner);
    QVERIFY(state(QString()));
    bench.click(bench.row(QStringLiteral("Width")));
    QVERIFY(state(QStringLiteral("Width")));
    bench.widget.clear();
    QVERIFY(state(QString()));
}

void TestFeatureTreeSearch::downGoesToTheFirstMatch_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("walk"); // the current rows after each Down
    QTest::newRow("below a category")
        << QStringLiteral("gain") << QStringList{QStringLiteral("Gain"), QStringLiteral("GainFine")};
    QTest::newRow("below the search row")
        << QStringLiteral("expo") << QStringList{QStringLiteral("Exposure Time [us]")};
    QTest::newRow("nothing found") << QStringLiteral("zzz") << QStringList{QString()};
}

void TestFeatureTreeSearch::downGoesToTheFirstMatch()
{
    QFETCH(QString, text);
    QFETCH(QStringList, walk);
    auto camera = MemoryCollection::createSample();
    camera->addFloat(QStringLiteral("GainFine"), QStringLiteral("DeviceControl"));
    camera->addFloat(QStringLiteral("ExposureRaw"), QStringLiteral("DeviceControl"))->snapshot->visibility =
        GenApi::Guru;
    TreeBench bench(camera, GenApi::Beginner);
    bench.type(text);
    bench.view()->collapseAll();
    QSignalSpy told(&bench.widget, SIGNAL(currentChanged(QSharedPointer<ParameterCollection::IParameter>)));
    QTest::keyClick(bench.box(), Qt::Key_Down);
    QVERIFY(bench.view()->hasFocus());
    QCOMPARE(told.size(), walk.constFirst().isEmpty() ? 0 : 1);
    QCOMPARE(bench.widget.GetCurrentIndex().data().toString(), walk.constFirst());
    if (walk.size() > 1) {
        bench.view()->expandEverything();
        QTest::keyClick(bench.view(), Qt::Key_Down); // the category
        QTest::keyClick(bench.view(), Qt::Key_Down);
        QCOMPARE(bench.widget.GetCurrentIndex().data().toString(), walk.at(1));
    }
    QCOMPARE(bench.widget.searchText(), text);
}

void TestFeatureTreeSearch::showsFeatures_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<bool>("keepsSearch");
    QTest::newRow("collapsed") << QString() << QStringLiteral("Gain") << true << true;
    QTest::newRow("a hit") << QStringLiteral("gain") << QStringLiteral("Gain") << true << true;
    QTest::newRow("no hit") << QStringLiteral("gain") << QStringLiteral("Width") << true << false;
    QTest::newRow("unknown") << QStringLiteral("gain") << QStringLiteral("Nothing") << false << true;
    QTest::newRow("above the level") << QStringLiteral("gain") << QStringLiteral("Hidden") << false << true;
    QTest::newRow("in two places") << QString() << QStringLiteral("GainFine") << true << true;
}

void TestFeatureTreeSearch::showsFeatures()
{
    QFETCH(QString, search);
    QFETCH(QString, feature);
    QFETCH(bool, isShown);
    QFETCH(bool, keepsSearch);
    auto camera = MemoryCollection::createSample();
    camera->addCategory(QStringLiteral("Hidden"), QStringLiteral("AcquisitionControl"))
        ->snapshot->visibility = GenApi::Guru;
    camera->addFloat(QStringLiteral("GainFine"), QStringLiteral("Hidden"));
    camera->node(QStringLiteral("DeviceControl"))->children.append(QStringLiteral("GainFine"));
    TreeBench bench(camera, GenApi::Beginner);
    bench.extension()->AddFavorite(camera->parameter(QStringLiteral("Gain")), 0);
    bench.view()->collapseAll();
    bench.widget.setSearchText(search);
    QCOMPARE(bench.widget.showFeature(QStringLiteral("@CameraDevice/") + feature), isShown);
    QCOMPARE(bench.widget.searchText(), keepsSearch ? search : QString());
    QCOMPARE(bench.box()->text(), bench.widget.searchText());
    const QModelIndex current = bench.widget.GetCurrentIndex();
    QCOMPARE(current.data().toString(), isShown ? feature : QString());
    QCOMPARE(bench.view()->viewport()->rect().contains(bench.view()->visualRect(current)), isShown);
    QVERIFY(!bench.widget.IsCurrentFavorite());
}

void TestFeatureTreeSearch::clearEndsASearchFromOutside()
{
    auto camera = MemoryCollection::createSample();
    camera->addInteger(QStringLiteral("GainRaw"), QStringLiteral("DeviceControl"))->snapshot->visibility =
        GenApi::Expert;
    TreeBench bench(camera, GenApi::Beginner);
    QSignalSpy counts(&bench.widget, SIGNAL(filterMatchesChanged(int, int)));
    bench.widget.onFilterTextChanged(QStringLiteral("gain"));
    QCOMPARE(counts.constLast(), QVariantList({2, 1}));
    bench.widget.clear();
    QCOMPARE(bench.widget.searchText(), QString());
    QCOMPARE(bench.view()->getHightlighter()->text(), QString());
    QCOMPARE(counts.constLast(), QVariantList({0, 0}));
    bench.add(camera);
    bench.view()->expandEverything();
    const QStringList rows = bench.shownRows();
    QCOMPARE(rows.filter(QStringLiteral("search results")), QStringList());
    QVERIFY(!rows.filter(QStringLiteral("Width")).isEmpty());
}

void TestFeatureTreeSearch::copiesTheTree()
{
    TreeBench bench;
    bench.type(QStringLiteral("gain"));
    bench.widget.copyToClipboard();
    const QString text = QApplication::clipboard()->text();
    QVERIFY(text.contains(QStringLiteral("Gain\t1.5")));
    QVERIFY(!text.contains(QStringLiteral("Width")) && !text.contains(QLatin1Char('<')));
}

QTEST_MAIN(TestFeatureTreeSearch)
#include "tst_featuretreesearch.moc"
