// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "treebench.h"

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/enumeditor.h>
#include <zeltoviewercomponents/featuretree/featuretreedelegate.h>
#include <zeltoviewercomponents/featuretree/featuretreehighlighter.h>
#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/floatslidereditor.h>
#include <zeltoviewercomponents/featuretree/inteditor.h>
#include <zeltoviewercomponents/featuretree/intslidereditor.h>
#include <zeltoviewercomponents/featuretree/toolbuttoneditor.h>

#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPair>
#include <QSettings>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTest>

#include <functional>
#include <memory>

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
    void keepsWhatIsTyped();
    void leavesOtherCellsToTheBase();
    void marksMatches();
    void elidesEarlier();
    void paintsOneText_data();
    void paintsOneText();
    void paintsSelectionAndCurrentRow();
    void rendersRichTextOnce();
};

void TestFeatureTreeDelegate::createsEditors_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QByteArray>("commitSignal");
    QTest::newRow("linear integer") << "Linear" << QByteArray("IntSliderEditor")
                                    << QByteArray(SIGNAL(valueChanged(int)));
    QTest::newRow("logarithmic integer")
        << "Logarithmic" << QByteArray("IntSliderEditor") << QByteArray(SIGNAL(valueChanged(int)));
    QTest::newRow("pure integer") << "PureNumber" << QByteArray("IntEditor") << QByteArray();
    QTest::newRow("hexadecimal integer") << "HexNumber" << QByteArray("IntEditor") << QByteArray();
    QTest::newRow("float without alias")
        << "ExposureTime" << QByteArray("FloatEditor") << QByteArray(SIGNAL(boxValueChanged()));
    QTest::newRow("float with alias")
        << "Aliased" << QByteArray("FloatSliderEditor") << QByteArray(SIGNAL(boxValueChanged()));
    QTest::newRow("pure float with alias")
        << "PureAliased" << QByteArray("FloatEditor") << QByteArray(SIGNAL(boxValueChanged()));
    QTest::newRow("enumeration") << "PixelFormat" << QByteArray("EnumEditor")
                                 << QByteArray(SIGNAL(activated(int)));
    QTest::newRow("boolean") << "ReverseX" << QByteArray("CheckBoxEditor")
                             << QByteArray(SIGNAL(clicked(bool)));
    QTest::newRow("command") << "TriggerSoftware" << QByteArray("ToolButtonEditor")
                             << QByteArray(SIGNAL(clicked(bool)));
    QTest::newRow("string") << "DeviceUserID" << QByteArray("QExpandingLineEdit") << QByteArray();
    QTest::newRow("read-only") << "ReadOnly" << QByteArray("CheckBoxEditor")
                               << QByteArray(SIGNAL(clicked(bool)));
    QTest::newRow("not available") << "NotAvailable" << QByteArray() << QByteArray();
    QTest::newRow("not implemented") << "NotImplemented" << QByteArray() << QByteArray();
    QTest::newRow("category") << "DeviceControl" << QByteArray("QExpandingLineEdit") << QByteArray();
}

void TestFeatureTreeDelegate::createsEditors()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, className);
    QFETCH(QByteArray, commitSignal);
    auto camera = MemoryCollection::createSample();
    const QString parent = QStringLiteral("DeviceControl");
    for (const char *const representation : {"Linear", "Logarithmic", "PureNumber", "HexNumber"}) {
        const QString text = QString::fromLatin1(representation);
        camera->addInteger(text, parent, 1, 0, 10, 1, text);
    }
    camera->addFloat(QStringLiteral("Aliased"), parent, 1, 0, 10, 0, QStringLiteral("Linear"));
    camera->addFloat(QStringLiteral("PureAliased"), parent, 1, 0, 10);
    camera->setAlias(QStringLiteral("Aliased"), QStringLiteral("Linear"));
    camera->setAlias(QStringLiteral("PureAliased"), QStringLiteral("Linear"));
    camera->addBoolean(QStringLiteral("ReadOnly"), parent)
        ->edit<ParameterCollection::BooleanParameterData>([](auto &data) { data.isWritable = false; });
    camera->addInteger(QStringLiteral("NotAvailable"), parent)
        ->edit<ParameterCollection::IntegerParameterData>([](auto &data) {
            data.isReadable = false;
            data.isWritable = false;
        });
    const auto missing = camera->addInteger(QStringLiteral("NotImplemented"), parent);

    TreeBench bench(camera);
    const QModelIndex index = bench.value(name); // found before the row is filtered out
    QVERIFY(index.isValid());
    missing->edit<ParameterCollection::IntegerParameterData>([](auto &data) { data.isImplemented = false; });
    missing->publish();
    const FeatureTreeDelegate delegate(nullptr, bench.extension(), nullptr);
    QSignalSpy commits(&delegate, SIGNAL(commitData(QWidget *)));
    const std::unique_ptr<QWidget> editor(
        delegate.createEditor(bench.view()->viewport(), optionFor(bench.view(), 100), index));
    QCOMPARE(editor ? QByteArray(editor->metaObject()->className()) : QByteArray(), className);
    if (!commitSignal.isEmpty()) {
        const QByteArray signal = commitSignal.mid(1);
        const int method = editor->metaObject()->indexOfSignal(signal);
        QVERIFY(method >= 0);
        QVERIFY(editor->metaObject()->method(method).invoke(editor.get(), Q_ARG(int, 1))
                || editor->metaObject()->method(method).invoke(editor.get(), Q_ARG(bool, true))
                || editor->metaObject()->method(method).invoke(editor.get()));
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
    bench.node(QStringLiteral("Gain"))->excluded = false;
    bench.node(QStringLiteral("Gain"))->before = [](const QString &operation) {
        if (operation == QLatin1String("property")) {
            throw GenICam::GenericException(QStringLiteral("gone"));
        }
    };
    QVERIFY(!delegate.createEditor(parent, option, bench.value(QStringLiteral("Gain"))));
}

void TestFeatureTreeDelegate::commitsForTheSender()
{
    TreeBench bench;
    FeatureTreeDelegate delegate(nullptr, bench.extension(), nullptr);
    QSignalSpy commits(&delegate, SIGNAL(commitData(QWidget *)));
    delegate.emitCommitData();
    QObject noWidget;
    connect(&noWidget, SIGNAL(objectNameChanged(QString)), &delegate, SLOT(emitCommitData()));
    noWidget.setObjectName(QStringLiteral("renamed"));
    QCOMPARE(commits.size(), 2);
    for (const QVariantList &arguments : std::as_const(commits)) {
        QCOMPARE(arguments.constFirst().value<QWidget *>(), nullptr);
    }
}

void TestFeatureTreeDelegate::keepsWhatIsTyped()
{
    TreeBench bench;
    const FeatureTreeDelegate delegate(nullptr, bench.extension(), nullptr);
    const QModelIndex index = bench.value(QStringLiteral("DeviceUserID"));
    auto *const edit =
        qobject_cast<QLineEdit *>(delegate.createEditor(&bench.widget, optionFor(bench.view(), 100), index));
    QVERIFY(edit);
    edit->show();
    delegate.setEditorData(edit, index);
    QCOMPARE(edit->text(), QStringLiteral("left"));
    edit->setText(QStringLiteral("typed"));
    edit->setFocus();
    delegate.setEditorData(edit, index);
    QCOMPARE(edit->text(), QStringLiteral("typed"));
    bench.box()->setFocus();
    delegate.setEditorData(edit, index);
    QCOMPARE(edit->text(), QStringLiteral("left"));

    QPointer<QWidget> gone(edit);
    delegate.destroyEditor(edit, index);
    QVERIFY(gone);
    bench.settle();
    QVERIFY(!gone);
}

void TestFeatureTreeDelegate::leavesOtherCellsToTheBase()
{
    TreeBench bench;
    FeatureTreeHighlighter highlighter;
    highlighter.setText(QStringLiteral("o"));
    const FeatureTreeDelegate with(bench.view(), bench.extension(), &highlighter);
    const FeatureTreeDelegate without(bench.view(), bench.extension(), nullptr);
    const QStyledItemDelegate base(bench.view());
    const auto baseRow = [&](const QModelIndex &index) {
        const QStyleOptionViewItem option = optionFor(bench.view(), 300);
        return painted([&](QPainter *painter) { base.paint(painter, option, index); },
                       option.palette.color(QPalette::Base));
    };
    const QModelIndex category = bench.row(QStringLiteral("DeviceControl"));
    const QModelIndex name = bench.row(QStringLiteral("OffsetX"));
    const QModelIndex value = bench.value(QStringLiteral("OffsetX"));
    QCOMPARE(paintedRow(with, bench.view(), category), baseRow(category));
    QCOMPARE(paintedRow(with, bench.view(), value), baseRow(value));
    QCOMPARE(paintedRow(without, bench.view(), name), baseRow(name));
    QVERIFY(paintedRow(with, bench.view(), name) != baseRow(name));
}

void TestFeatureTreeDelegate::marksMatches()
{
    auto camera = MemoryCollection::createSample();
    camera->addInteger(QStringLiteral("AnnotationAnna"), QStringLiteral("DeviceControl"));
    TreeBench bench(camera);
    FeatureTreeHighlighter highlighter;
    const FeatureTreeDelegate delegate(bench.view(), bench.extension(), &highlighter);
    const QModelIndex index = bench.row(QStringLiteral("AnnotationAnna"));
    QCOMPARE(runsOf(highlighter.color(), paintedRow(delegate, bench.view(), index)).size(), 0);

    highlighter.setText(QStringLiteral("ANN"));
    const auto runs = runsOf(highlighter.color(), paintedRow(delegate, bench.view(), index));
    const QFontMetrics metrics(QApplication::font());
    const QString name = QStringLiteral("AnnotationAnna");
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
    const int narrow = metrics.horizontalAdvance(QStringLiteral("Annotation")) + 12;
    QCOMPARE(runsOf(highlighter.color(), paintedRow(delegate, bench.view(), index, narrow)).size(), 1);
}

void TestFeatureTreeDelegate::elidesEarlier()
{
    TreeBench bench;
    FeatureTreeHighlighter highlighter;
    const FeatureTreeDelegate delegate(bench.view(), bench.extension(), &highlighter);
    const QModelIndex index = bench.row(QStringLiteral("TriggerSoftware"));
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
    highlighter.setText(QStringLiteral("zzzzz"));
    QCOMPARE(neededWidth() - before, 10);
}

void TestFeatureTreeDelegate::paintsOneText_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("dark") << QColor(30, 30, 30) << QColor(Qt::white);
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
    const QModelIndex index = bench.row(QStringLiteral("Width"));
    const QImage row = paintedRow(delegate, bench.view(), index);
    // The same as one drawing of the name in the palette's colour on the palette's base.
    QStyleOptionViewItem option = optionFor(bench.view(), 300);
    option.features |= QStyleOptionViewItem::HasDisplay;
    option.text = QStringLiteral("Width");
    const QRect rect = bench.view()->style()->subElementRect(QStyle::SE_ItemViewItemText, &option);
    const QImage alone = painted(
        [&](QPainter *painter) {
            painter->setPen(text);
            const int dy = static_cast<int>(rect.height() / 2.0 - painter->fontMetrics().height() / 2.0);
            painter->drawText(rect.adjusted(0, dy, 0, 0), 0, QStringLiteral("Width"));
        },
        base);
    QCOMPARE(row, alone);

    // On a mark, letters are dark, whatever they are beside it.
    highlighter.setText(QStringLiteral("Width"));
    const QImage marked = paintedRow(delegate, bench.view(), index);
    int darkest = 255;
    for (int x = 0; x < marked.width(); ++x) {
        if (!QRect(runsOf(highlighter.color(), marked).value(0).first, 0,
                   runsOf(highlighter.color(), marked).value(0).second, 24)
                 .contains(x, 12)) {
            continue;
        }
        for (int y = 0; y < marked.height(); ++y) {
            darkest = std::min(darkest, qGray(marked.pixel(x, y)));
        }
    }
    QVERIFY2(darkest < 60, qPrintable(QString::number(darkest)));
}

void TestFeatureTreeDelegate::paintsSelectionAndCurrentRow()
{
    TreeBench bench;
    const auto picture = [&bench] { return bench.view()->viewport()->grab().toImage(); };
    bench.view()->selectionModel()->clear();
    const QImage plain = picture();
    const QModelIndex index = bench.row(QStringLiteral("OffsetX"));
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
    highlighter.setText(QStringLiteral("b"));
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
    const int plain = widthOf(QStringLiteral("bbbb bbbb"));
    QVERIFY(plain > 0);
    QCOMPARE(widthOf(QStringLiteral("<HTML>bbbb bbbb")), plain);
    QVERIFY(widthOf(QStringLiteral("<HTML><B>bbbb bbbb</B>")) < 2 * plain);
}

QTEST_MAIN(TestFeatureTreeDelegate)
#include "tst_featuretreedelegate.moc"
