// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreetest.h"

#include <QAction>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QScopedPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

/* Gives tests the place where the view shows that a drop would land. */
class View : public FeatureTreeView
{
public:
    using FeatureTreeView::AboveItem;
    using FeatureTreeView::BelowItem;
    using FeatureTreeView::dropIndicatorPosition;
    using FeatureTreeView::OnItem;
    using FeatureTreeView::OnViewport;
};

/*! \brief A row that is dragged over the tree. */
class Drag
{
public:
    Drag(FeatureTreeView *view, const QModelIndex &row)
        : m_view(view)
        , m_data(view->model()->mimeData({row}))
    {
        QDragEnterEvent enter(view->visualRect(row).center(), Qt::MoveAction, m_data.data(), Qt::LeftButton,
                              {});
        QApplication::sendEvent(view->viewport(), &enter);
    }

    /* Returns whether a drop would be taken there. */
    bool moveTo(const QPoint &point)
    {
        QDragMoveEvent move(point, Qt::MoveAction, m_data.data(), Qt::LeftButton, {});
        QApplication::sendEvent(m_view->viewport(), &move);
        m_isTaken = move.isAccepted();
        return m_isTaken;
    }

    /* Lets go: where no drop is taken, the drag ends without one. */
    void drop(const QPoint &point)
    {
        QDropEvent drop(point, Qt::MoveAction, m_data.data(), Qt::LeftButton, {});
        QDragLeaveEvent leave;
        QApplication::sendEvent(m_view->viewport(), m_isTaken ? static_cast<QEvent *>(&drop) : &leave);
    }

private:
    FeatureTreeView *m_view;
    QScopedPointer<QMimeData> m_data;
    bool m_isTaken = false;
};

class TestFeatureTreeFavorites : public FeatureTreeTest
{
    Q_OBJECT

private slots:
    void contextMenuOffersWhatTheRowAllows();
    void favoritesByShortcuts();
    void favoritesByDragging();
    void draggingScrolls();
    void favoritesKeepTheirPlaceOnScreen();
    void widgetsShareFavorites();
    void unavailableFavorites();
    void whatIsTypedMovesAlong_data();
    void whatIsTypedMovesAlong();
};

void TestFeatureTreeFavorites::contextMenuOffersWhatTheRowAllows()
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

void TestFeatureTreeFavorites::favoritesByShortcuts()
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

    // The first one goes no higher, nor does the value in its editor.
    bench.view()->setCurrentIndex(bench.favorite(QStringLiteral("Width")));
    QTest::keyClick(bench.view(), Qt::Key_F2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(bench.node(QStringLiteral("Width"))->writes, QStringList());

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

void TestFeatureTreeFavorites::favoritesByDragging()
{
    TreeBench bench;
    QVERIFY(bench.view()->dragEnabled() && bench.view()->viewport()->acceptDrops());
    // Drops a row on the given part of another one. Returns where the indicator was, if anywhere.
    const auto drop = [&bench](const QModelIndex &from, const QModelIndex &onto, double part) {
        const QRect rect = bench.view()->visualRect(onto);
        Drag drag(bench.view(), from);
        const QPoint point(rect.center().x(), rect.top() + static_cast<int>(part * rect.height()));
        const bool isTaken = drag.moveTo(point);
        const auto place = (bench.view()->*(&View::dropIndicatorPosition))();
        drag.drop(point);
        return isTaken ? place : View::OnViewport;
    };
    const auto branch = [&bench] { return bench.extension()->GetFavoritesRootIndex(); };
    const QModelIndex hint = bench.view()->model()->index(0, 0, branch());
    QVERIFY(drop(bench.row(QStringLiteral("Width")), hint, 0.5) != View::OnViewport);
    QCOMPARE(drop(bench.row(QStringLiteral("Gain")), branch(), 0.5), View::OnItem);
    QCOMPARE(drop(bench.row(QStringLiteral("ReverseX")), bench.favorite(QStringLiteral("Gain")), 0.3),
             View::AboveItem);
    QCOMPARE(bench.favoriteNames(), QStringList({"Width", "ReverseX", "Gain"}));
    QCOMPARE(drop(bench.favorite(QStringLiteral("Width")), bench.favorite(QStringLiteral("Gain")), 0.7),
             View::BelowItem);
    QCOMPARE(bench.favoriteNames(), QStringList({"ReverseX", "Gain", "Width"}));
    QCOMPARE(drop(bench.favorite(QStringLiteral("Width")), bench.row(QStringLiteral("Gain")), 0.5),
             View::OnViewport);
    QCOMPARE(bench.favorites().count(), 3);
}

void TestFeatureTreeFavorites::draggingScrolls()
{
    TreeBench bench(flatCamera(150));
    QScrollBar *const bar = bench.view()->verticalScrollBar();
    bar->setValue(bar->maximum() - 5);
    const int center = bench.view()->viewport()->width() / 2;
    Drag drag(bench.view(), bench.view()->indexAt(QPoint(center, 100)));
    drag.moveTo(QPoint(center, bench.view()->viewport()->height() - 3));
    QTRY_COMPARE(bar->value(), bar->maximum());
    drag.moveTo(QPoint(center, bench.view()->viewport()->height() / 2));
    QTest::qWait(120);
    QCOMPARE(bar->value(), bar->maximum()); // only near the edges
    drag.moveTo(QPoint(center, 3));
    QTRY_COMPARE(bar->value(), 0);
    const QPoint head = bench.view()->visualRect(bench.extension()->GetFavoritesRootIndex()).center();
    QVERIFY(drag.moveTo(head));
    drag.drop(head);
    QCOMPARE(bench.favorites().count(), 1);
    // Once dropped, nothing scrolls on.
    bar->setValue(40);
    QTest::qWait(120);
    QCOMPARE(bar->value(), 40);
}

void TestFeatureTreeFavorites::favoritesKeepTheirPlaceOnScreen()
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

void TestFeatureTreeFavorites::widgetsShareFavorites()
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

void TestFeatureTreeFavorites::unavailableFavorites()
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

void TestFeatureTreeFavorites::whatIsTypedMovesAlong_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<int>("from"); // -1: added
    QTest::addColumn<int>("to"); // -1: removed
    QTest::addColumn<int>("row"); // where what is typed is then
    QTest::newRow("another is added above") << "" << -1 << 0 << 2;
    QTest::newRow("another is removed above") << "" << 0 << -1 << 0;
    QTest::newRow("it is moved up") << "" << 1 << 0 << 0;
    QTest::newRow("it is moved to the end") << "" << 1 << 3 << 2;
    QTest::newRow("in a search, which hides the others") << "offset" << 1 << 0 << 0;
}

void TestFeatureTreeFavorites::whatIsTypedMovesAlong()
{
    QFETCH(QString, search);
    QFETCH(int, from);
    QFETCH(int, to);
    TreeBench bench;
    for (const char *name : {"Width", "OffsetX", "ReverseX"}) {
        bench.extension()->AddFavorite(bench.camera->parameter(QString::fromLatin1(name)), 3);
    }
    bench.view()->expand(bench.extension()->GetFavoritesRootIndex());
    bench.box()->setText(search);
    bench.settle();
    const auto value = [&bench] { return bench.favorite(QStringLiteral("OffsetX")).siblingAtColumn(1); };
    const auto editorOf = [&bench](const QString &name) {
        return QPointer<QWidget>(bench.view()->indexWidget(bench.favorite(name).siblingAtColumn(1)));
    };
    const QPointer<QWidget> checkBox = search.isEmpty() ? editorOf(QStringLiteral("ReverseX")) : nullptr;
    bench.view()->setCurrentIndex(bench.favorite(QStringLiteral("OffsetX")));
    QTest::keyClick(bench.view(), Qt::Key_F2);
    const QPointer<QLineEdit> editor(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    QVERIFY(editor && editor == bench.view()->indexWidget(value()));
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("7"));

    if (from < 0) {
        bench.extension()->AddFavorite(bench.camera->parameter(QStringLiteral("Gain")), to);
    } else {
        to < 0 ? bench.favorites().removeEntry(from) : bench.favorites().moveEntry(from, to);
    }
    bench.settle();
    QTEST(value().row(), "row");
    QCOMPARE(bench.view()->indexWidget(value()), editor.data());
    QVERIFY(search.isEmpty() ? checkBox && checkBox == editorOf(QStringLiteral("ReverseX")) : !checkBox);
    QCOMPARE(QApplication::focusWidget(), editor.data());
    QCOMPARE(bench.view()->currentIndex().siblingAtColumn(1), value());
    QCOMPARE(editor->text(), QStringLiteral("7"));
    QCOMPARE(bench.node(QStringLiteral("OffsetX"))->writes, QStringList());
    QTest::keyClick(editor, Qt::Key_Return);
    bench.settle();
    QCOMPARE(bench.node(QStringLiteral("OffsetX"))->writes, QStringList("7"));
}

QTEST_MAIN(TestFeatureTreeFavorites)
#include "tst_featuretreefavorites.moc"
