// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "treebench.h"

#include <support/table.h>
#include <zeltoviewercomponents/featuretree/featuretreedelegate.h>
#include <zeltoviewercomponents/featuretree/featuretreehighlighter.h>
#include <zeltoviewercomponents/featuretree/toolbuttoneditor.h>

#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPaintEvent>
#include <QPainter>
#include <QPair>
#include <QPixmap>
#include <QSet>
#include <QSettings>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <stdexcept>

static_assert(QStyle::CE_ItemViewItem == 45 && QStyle::SE_ItemViewItemText == 46);

namespace {

/* Gives tests the option that the view paints with. */
class View : public FeatureTreeView
{
public:
    using FeatureTreeView::initViewItemOption;
};

QStyleOptionViewItem optionFor(FeatureTreeView *view, int width, int height = 24)
{
    QStyleOptionViewItem option;
    (view->*(&View::initViewItemOption))(&option);
    option.rect = QRect(0, 0, width, height);
    option.widget = view;
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    return option;
}

QImage painted(const std::function<void(QPainter *)> &paint, const QColor &base, int width = 300)
{
    QImage image(width, 24, QImage::Format_RGB32);
    image.fill(base);
    QPainter painter(&image);
    paint(&painter);
    return image;
}

QImage paintedRow(const FeatureTreeDelegate &delegate, FeatureTreeView *view, const QModelIndex &index,
                  int width = 300)
{
    const QStyleOptionViewItem option = optionFor(view, width);
    return painted([&](QPainter *painter) { delegate.paint(painter, option, index); },
                   option.palette.color(QPalette::Base), width);
}

/* Returns first and last column of each run of the colour along the topmost line of the picture. */
QList<QPair<int, int>> runsOf(const QColor &color, const QImage &image)
{
    QList<QPair<int, int>> runs;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, 0) != color.rgb()) {
            continue;
        }
        if (runs.isEmpty() || runs.constLast().second != x - 1) {
            runs.append({x, x});
        }
        runs.last().second = x;
    }
    return runs;
}

} // namespace

class TestFeatureTreeDelegate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QSettings().clear(); }

    void createsEditors_data();
    void createsEditors();
    void createsNoEditorForUnusableRows();
    void commitsForTheSender();
    void destroysEditorsLater();
    void leavesOtherCellsToTheBase();
    void marksMatches();
    void elidesEarlier();
    void paintsOneText_data();
    void paintsOneText();
    void leavesTheTextToAStyleSheet_data();
    void leavesTheTextToAStyleSheet();
    void asksBeforeCommands();
    void paintsSelectionAndCurrentRow();
    void rendersRichTextOnce();
    void paintsWhatIsNew();
};

void TestFeatureTreeDelegate::createsEditors_data()
{
    columns<QString, QByteArray, QByteArray>({"name", "className", "commitSignal"});
    const auto editor = [](const char *name, const char *className, const char *commitSignal) {
        row(name, name, QByteArray(className), QByteArray(commitSignal));
    };
    editor("Linear", "IntSliderEditor", SIGNAL(valueChanged(int)));
    editor("Logarithmic", "IntSliderEditor", SIGNAL(valueChanged(int)));
    editor("PureNumber", "IntEditor", "");
    editor("HexNumber", "IntEditor", "");
    editor("ExposureTime", "FloatEditor", SIGNAL(boxValueChanged()));
    editor("Aliased", "FloatSliderEditor", SIGNAL(boxValueChanged()));
    editor("PureAliased", "FloatEditor", SIGNAL(boxValueChanged()));
    editor("PixelFormat", "EnumEditor", SIGNAL(activated(int)));
    editor("ReverseX", "CheckBoxEditor", SIGNAL(clicked(bool)));
    editor("TriggerSoftware", "ToolButtonEditor", SIGNAL(clicked(bool)));
    editor("DeviceUserID", "QExpandingLineEdit", "");
    editor("ReadOnly", "CheckBoxEditor", SIGNAL(clicked(bool)));
    editor("NotAvailable", "", "");
    editor("NotImplemented", "", "");
    editor("DeviceControl", "QExpandingLineEdit", "");
}

void TestFeatureTreeDelegate::createsEditors()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, commitSignal);
    auto camera = MemoryCollection::createSample();
    const QString parent = "DeviceControl";
    for (const char *const representation : {"Linear", "Logarithmic", "PureNumber", "HexNumber"}) {
        camera->addInteger(representation, parent, 1, 0, 10, 1, representation);
    }
    camera->addFloat("Aliased", parent, 1, 0, 10, 0, "Linear");
    camera->addFloat("PureAliased", parent, 1, 0, 10);
    camera->setAlias("Aliased", "Linear");
    camera->setAlias("PureAliased", "Linear");
    camera->addBoolean("ReadOnly", parent)->snapshot->isWritable = false;
    camera->addInteger("NotAvailable", parent)->edit([](auto &data) {
        data.isReadable = data.isWritable = false;
    });
    const auto missing = camera->addInteger("NotImplemented", parent);

    TreeBench bench(camera);
    const QModelIndex index = bench.value(name); // found before the row is filtered out
    QVERIFY(index.isValid());
    missing->update([](auto &data) { data.isImplemented = false; });
    const FeatureTreeDelegate delegate(nullptr, bench.extension(), nullptr);
    QSignalSpy commits(&delegate, SIGNAL(commitData(QWidget *)));
    const std::unique_ptr<QWidget> editor(
        delegate.createEditor(bench.view()->viewport(), optionFor(bench.view(), 100), index));
    QTEST(QByteArray(editor ? editor->metaObject()->className() : ""), "className");
    if (!commitSignal.isEmpty()) {
        const QMetaObject &metaObject = *editor->metaObject();
        const QMetaMethod method = metaObject.method(metaObject.indexOfSignal(commitSignal.mid(1)));
        QVERIFY(method.invoke(editor.get(), Q_ARG(int, 1)) || method.invoke(editor.get(), Q_ARG(bool, true))
                || method.invoke(editor.get()));
        QCOMPARE(commits.size(), 1);
        QCOMPARE(commits.value(0).value(0).value<QWidget *>(), editor.get());
    }
}

void TestFeatureTreeDelegate::createsNoEditorForUnusableRows()
{
    TreeBench bench;
    const FeatureTreeDelegate delegate(nullptr, bench.extension(), nullptr);
    QWidget *const parent = bench.view()->viewport();
    const QStyleOptionViewItem option = optionFor(bench.view(), 100);
    QVERIFY(!delegate.createEditor(parent, option, QModelIndex()));
    QVERIFY(!delegate.createEditor(parent, option, bench.extension()->GetFavoritesRootIndex()));

    // A float alone falls back to a text editor when its parameter turns out to be unusable.
    for (const char *const name : {"Width", "PixelFormat", "ReverseX", "TriggerSoftware", "Gain"}) {
        const QModelIndex index = bench.value(QLatin1String(name));
        bench.node(QLatin1String(name))->excluded = true;
        const std::unique_ptr<QWidget> editor(delegate.createEditor(parent, option, index));
        QCOMPARE(editor != nullptr, QByteArray(name) == "Gain");
    }
    // A parameter that throws costs the editor, nothing else.
    bench.node("Gain")->excluded = false;
    bench.node("Gain")->fail({"property"}, GenICam::GenericException("gone"));
    QVERIFY(!delegate.createEditor(parent, option, bench.value("Gain")));
}

void TestFeatureTreeDelegate::commitsForTheSender()
{
    TreeBench bench;
    FeatureTreeDelegate delegate(nullptr, bench.extension(), nullptr);
    QSignalSpy commits(&delegate, SIGNAL(commitData(QWidget *)));
    delegate.emitCommitData();
    QObject noWidget;
    connect(&noWidget, SIGNAL(objectNameChanged(QString)), &delegate, SLOT(emitCommitData()));
    noWidget.setObjectName("renamed");
    QCOMPARE(commits.size(), 2);
    for (const QVariantList &arguments : std::as_const(commits)) {
        QCOMPARE(arguments.constFirst().value<QWidget *>(), nullptr);
    }
}

void TestFeatureTreeDelegate::destroysEditorsLater()
{
    TreeBench bench;
    const FeatureTreeDelegate delegate(nullptr, bench.extension(), nullptr);
    const QModelIndex index = bench.value("DeviceUserID");
    const QPointer<QWidget> editor(delegate.createEditor(&bench.widget, optionFor(bench.view(), 100), index));
    delegate.destroyEditor(editor, index);
    QVERIFY(editor);
    bench.settle();
    QVERIFY(!editor);
}

void TestFeatureTreeDelegate::leavesOtherCellsToTheBase()
{
    TreeBench bench;
    FeatureTreeHighlighter highlighter;
    highlighter.setText("o");
    const FeatureTreeDelegate with(bench.view(), bench.extension(), &highlighter);
    const FeatureTreeDelegate without(bench.view(), bench.extension(), nullptr);
    const QStyledItemDelegate base(bench.view());
    const auto baseRow = [&](const QModelIndex &index) {
        const QStyleOptionViewItem option = optionFor(bench.view(), 300);
        return painted([&](QPainter *painter) { base.paint(painter, option, index); },
                       option.palette.color(QPalette::Base));
    };
    const QModelIndex category = bench.row("DeviceControl");
    const QModelIndex name = bench.row("OffsetX");
    const QModelIndex value = bench.value("OffsetX");
    QCOMPARE(paintedRow(with, bench.view(), category), baseRow(category));
    QCOMPARE(paintedRow(with, bench.view(), value), baseRow(value));
    QCOMPARE(paintedRow(without, bench.view(), name), baseRow(name));
    QVERIFY(paintedRow(with, bench.view(), name) != baseRow(name));
}

void TestFeatureTreeDelegate::marksMatches()
{
    auto camera = MemoryCollection::createSample();
    camera->addInteger("AnnotationAnna", "DeviceControl");
    TreeBench bench(camera);
    FeatureTreeHighlighter highlighter;
    const FeatureTreeDelegate delegate(bench.view(), bench.extension(), &highlighter);
    const QModelIndex index = bench.row("AnnotationAnna");
    QCOMPARE(runsOf(highlighter.color(), paintedRow(delegate, bench.view(), index)).size(), 0);

    highlighter.setText("ANN");
    const auto runs = runsOf(highlighter.color(), paintedRow(delegate, bench.view(), index));
    const QFontMetrics metrics(QApplication::font());
    const QString name = "AnnotationAnna";
    QStyleOptionViewItem option = optionFor(bench.view(), 300);
    option.features |= QStyleOptionViewItem::HasDisplay;
    option.text = name;
    const int left = bench.view()->style()->subElementRect(QStyle::SE_ItemViewItemText, &option).left();
    QCOMPARE(runs.size(), 2);
    QCOMPARE(runs.at(0).first, left);
    QCOMPARE(runs.at(0).second, left + metrics.horizontalAdvance(name, 3) - 1);
    QCOMPARE(runs.at(1).first, left + metrics.horizontalAdvance(name, 10));
    QCOMPARE(runs.at(1).second, left + metrics.horizontalAdvance(name, 13) - 1);
    // What was elided has nothing to mark.
    const int narrow = metrics.horizontalAdvance("Annotation") + 12;
    QCOMPARE(runsOf(highlighter.color(), paintedRow(delegate, bench.view(), index, narrow)).size(), 1);
}

void TestFeatureTreeDelegate::elidesEarlier()
{
    TreeBench bench;
    FeatureTreeHighlighter highlighter;
    const FeatureTreeDelegate delegate(bench.view(), bench.extension(), &highlighter);
    const QModelIndex index = bench.row("TriggerSoftware");
    const auto cellOf = [&](int width) {
        const QStyleOptionViewItem option = optionFor(bench.view(), width);
        return painted([&](QPainter *painter) { delegate.paint(painter, option, index); }, Qt::white);
    };
    // The narrowest cell that holds the whole name: its picture no longer changes with the width.
    const auto neededWidth = [&] {
        const QImage whole = cellOf(300);
        int width = 300;
        while (cellOf(width - 1) == whole) {
            --width;
        }
        return width;
    };
    const int before = neededWidth();
    highlighter.setText("zzzzz");
    QCOMPARE(neededWidth() - before, 10);
}

void TestFeatureTreeDelegate::paintsOneText_data()
{
    columns<QColor, QColor, QColor>({"base", "text", "mark"});
    row("light", QColor(Qt::white), QColor(Qt::black), QColor(Qt::yellow));
    row("dark", QColor(30, 30, 30), QColor(Qt::white), QColor(Qt::yellow));
    row("dark, with a mark of middling lightness", QColor(30, 30, 30), QColor(Qt::white), QColor(Qt::red));
}

void TestFeatureTreeDelegate::paintsOneText()
{
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    TreeBench bench;
    QPalette palette = bench.view()->palette();
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    bench.view()->setPalette(palette);
    FeatureTreeHighlighter highlighter;
    const FeatureTreeDelegate delegate(bench.view(), bench.extension(), &highlighter);
    const QModelIndex index = bench.row("Width");
    // No more ink than the base delegate needs for the name once, in the same colours.
    const auto inkOf = [&](const QAbstractItemDelegate &painter) {
        const QStyleOptionViewItem option = optionFor(bench.view(), 300);
        const QImage image = painted([&](QPainter *p) { painter.paint(p, option, index); }, base);
        double ink = 0.0;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QRgb pixel = image.pixel(i % image.width(), i / image.width());
            ink += std::abs(qGray(pixel) - qGray(base.rgb()));
        }
        return ink;
    };
    const double once = inkOf(QStyledItemDelegate());
    QVERIFY(once > 0.0 && std::abs(inkOf(delegate) / once - 1.0) < 0.1);

    // On a mark, letters are dark, whatever they are beside it.
    QFETCH(QColor, mark);
    highlighter.setColor(mark);
    highlighter.setText("Width");
    const QImage marked = paintedRow(delegate, bench.view(), index);
    const QPair<int, int> run = runsOf(highlighter.color(), marked).value(0);
    int darkest = 255;
    for (int x = run.first; x < run.second; ++x) {
        for (int y = 0; y < marked.height(); ++y) {
            darkest = std::min(darkest, qGray(marked.pixel(x, y)));
        }
    }
    QVERIFY2(darkest < 60, qPrintable(QString::number(darkest)));
}

void TestFeatureTreeDelegate::leavesTheTextToAStyleSheet_data()
{
    columns<QString, QString>({"sheet", "search"});
    row("colour", "QTreeView::item { color: #ff0000 }", "");
    row("hover", "QTreeView::item:hover { color: #ff0000 }", "");
    row("padding", "QTreeView::item { color: #ff0000; padding-left: 7px }", "");
    row("search", "QTreeView::item { color: #ff0000; background: #ffeeee }", "idt");
}

void TestFeatureTreeDelegate::leavesTheTextToAStyleSheet()
{
    QFETCH(QString, sheet);
    QFETCH(QString, search);
    TreeBench bench;
    QPalette palette = bench.widget.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    bench.widget.setPalette(palette);
    bench.widget.setStyleSheet(sheet);
    bench.view()->setColumnWidth(0, 250);
    bench.view()->getHightlighter()->setText(search);
    bench.settle();
    const QRect cell = bench.view()->visualRect(bench.row("Width"));
    QHoverEvent hover(QEvent::HoverMove, cell.center(), bench.view()->mapToGlobal(cell.center()), QPointF());
    QCoreApplication::sendEvent(bench.view()->viewport(), &hover);
    const QImage image = bench.view()->viewport()->grab(cell).toImage();
    // All that is painted lies between the base and the colour, and a mark stands where the letters are.
    QSet<int> marked;
    int darkest = 255;
    const QColor mark = bench.view()->getHightlighter()->color();
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel == mark) {
                marked.insert(x);
            } else if (search.isEmpty()) {
                QVERIFY2(pixel.red() == 255 && pixel.green() == pixel.blue(), qPrintable(pixel.name()));
            }
            darkest = std::min(darkest, pixel.green());
        }
    }
    QVERIFY2(darkest < 120, qPrintable(QString::number(darkest)));
    const int expected = search.isEmpty() ? 0 : bench.view()->fontMetrics().horizontalAdvance(search);
    QVERIFY2(std::abs(marked.size() - expected) <= 1, qPrintable(QString::number(marked.size())));
}

void TestFeatureTreeDelegate::asksBeforeCommands()
{
    TreeBench bench;
    const auto command = bench.parameter<MemoryCommand>("TriggerSoftware");
    auto *const button = bench.editor<ToolButtonEditor>("TriggerSoftware");
    QStringList asked;
    bool isVetoed = true;
    bench.widget.setCommandVeto([&](const QSharedPointer<ParameterCollection::IParameter> &parameter) {
        asked.append(parameter->name());
        QDialog dialog; // as one that asks the user
        QTimer::singleShot(20, &dialog, SLOT(accept()));
        dialog.exec();
        return isVetoed;
    });
    const QList<std::function<void()>> ways = {
        [&] { QTest::mouseClick(button, Qt::LeftButton); },
        [&] { QTest::keyClick(bench.view(), Qt::Key_Return); },
        [&] { QTest::keyClick(bench.view(), Qt::Key_Space); },
    };
    for (const auto &press : ways) {
        for (const bool veto : {true, false}) {
            isVetoed = veto;
            asked.clear();
            command->executions = 0;
            bench.view()->setCurrentIndex(bench.row("TriggerSoftware"));
            bench.view()->setFocus();
            press();
            press(); // no second question
            QVERIFY(asked.isEmpty() && command->executions == 0 && !button->isChecked());
            QTRY_COMPARE(asked, QStringList("TriggerSoftware"));
            QTRY_COMPARE(command->executions, veto ? 0 : 1);
            bench.settle();
        }
    }
    // A question that fails is not a yes.
    bench.widget.setCommandVeto([](const auto &) -> bool { throw std::runtime_error("no dialog"); });
    QTest::mouseClick(button, Qt::LeftButton);
    bench.settle();
    QCOMPARE(command->executions, 1);
    // The tree may be cleared while the question stands.
    bench.widget.setCommandVeto([&](const auto &) {
        bench.widget.clear();
        return false;
    });
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(bench.view()->model()->rowCount(), 0);
    bench.settle();
    QCOMPARE(command->executions, 1);
}

void TestFeatureTreeDelegate::paintsSelectionAndCurrentRow()
{
    TreeBench bench;
    const auto picture = [&bench] { return bench.view()->viewport()->grab().toImage(); };
    bench.view()->selectionModel()->clear();
    const QImage plain = picture();
    const QModelIndex index = bench.row("OffsetX");
    bench.view()->selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QCOMPARE(picture(), plain);
    QVERIFY(bench.view()->selectionModel()->isSelected(index));

    bench.view()->setCurrentIndex(index);
    const QImage current = picture();
    const QRect row = bench.view()->visualRect(index);
    const QRgb frame = bench.view()->palette().color(QPalette::Active, QPalette::Highlight).rgb();
    for (const int y : {row.top(), row.bottom()}) {
        QCOMPARE(current.pixel(row.center().x(), y), frame);
    }
    QCOMPARE(current.pixel(0, row.center().y()), frame);
    // Inside of it nothing has changed.
    const QRect inside(1, row.top() + 1, current.width() - 2, row.height() - 2);
    QCOMPARE(current.copy(inside), plain.copy(inside));
}

void TestFeatureTreeDelegate::rendersRichTextOnce()
{
    TreeBench bench;
    FeatureTreeHighlighter highlighter;
    highlighter.setText("b");
    const FeatureTreeDelegate delegate(bench.view(), bench.extension(), &highlighter);
    FeatureTreeItem *const row = bench.extension()->getSearchHelpItem();
    row->setVisibility(GenApi::Beginner);
    bench.extension()->refreshSpecialItems();
    bench.settle();
    const QModelIndex index = bench.extension()->indexForItem(row, 0);
    QVERIFY(index.isValid());
    const auto widthOf = [&](const QString &text) {
        row->setDisplayedName(text);
        const QImage image = paintedRow(delegate, bench.view(), index);
        if (!runsOf(highlighter.color(), image).isEmpty()) {
            return -1; // a special row has no matches
        }
        int last = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                last = image.pixel(x, y) != image.pixel(299, 0) ? x : last;
            }
        }
        return last;
    };
    const int plain = widthOf("bbbb bbbb");
    QVERIFY(plain > 0);
    QCOMPARE(widthOf("<HTML>bbbb bbbb"), plain);
    QVERIFY(widthOf("<HTML><B>bbbb bbbb</B>") < 2 * plain);
}

void TestFeatureTreeDelegate::paintsWhatIsNew()
{
    class PaintedRegion : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Paint) {
                region += static_cast<QPaintEvent *>(event)->region();
            }
            return false;
        }
        QRegion region;
    };
    TreeBench bench;
    PaintedRegion painted;
    bench.view()->viewport()->installEventFilter(&painted);
    const QString name = "DeviceUserID";
    const auto update = [&](const auto &change) {
        painted.region = QRegion();
        bench.parameter<MemoryPlain>(name)->update(change);
        bench.settle();
        return painted.region.intersects(bench.view()->visualRect(bench.row(name)));
    };
    QVERIFY(!update([](auto &data) { data.valueString = "right"; }));
    QVERIFY(painted.region.intersects(bench.view()->visualRect(bench.value(name))));
    QVERIFY(update([](auto &data) { data.isWritable = false; }));
    // Rows that are painted in parts look as those that are painted as a whole.
    QPixmap pixmap(bench.view()->viewport()->size());
    pixmap.fill(bench.view()->palette().color(QPalette::Base));
    for (int x = 0; x < pixmap.width(); x += 37) {
        bench.view()->viewport()->render(&pixmap, QPoint(x, 0), QRect(x, 0, 37, pixmap.height()));
    }
    QCOMPARE(pixmap.toImage(), bench.view()->viewport()->grab().toImage());
}

QTEST_MAIN(TestFeatureTreeDelegate)
#include "tst_featuretreedelegate.moc"
