// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/colours.h>
#include <viewer/mainwindow.h>

#include <zeltoviewercomponents/featuretree/contrast.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <support/table.h>

#include <QApplication>
#include <QLineEdit>
#include <QSettings>
#include <QSlider>
#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <tuple>

using Measure = std::function<double()>;
Q_DECLARE_METATYPE(Measure)

namespace {

enum Choice { System, Light, Dark };

// Of a child with all that it stands on.
QImage picture(const QWidget &widget, const QRect &rect)
{
    QWidget *const window = widget.window();
    return window->grab(QRect(widget.mapTo(window, rect.topLeft()), rect.size())).toImage();
}

// Of the most distinct letter with the background that suits it least: backgrounds run from light to dark.
double textContrast(const QImage &image)
{
    QList<QColor> backgrounds;
    QColor ink;
    double best = 0;
    for (int y = 0; y < image.height(); ++y) {
        QHash<QRgb, int> counts;
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
        const auto most = std::max_element(counts.begin(), counts.end());
        if (2 * *most < image.width()) {
            continue; // hardly anything but letters
        }
        backgrounds.append(most.key());
        for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
            if (contrastRatio(it.key(), most.key()) > best) {
                ink = it.key();
                best = contrastRatio(ink, most.key());
            }
        }
    }
    for (const QColor &background : backgrounds) {
        best = std::min(best, contrastRatio(ink, background));
    }
    return best;
}

double text(const QWidget &widget, const QRect &rect)
{
    return textContrast(picture(widget, rect));
}

// The letters of a field, without its frame and its buttons.
double text(const QWidget &field)
{
    return text(field, field.rect().adjusted(6, 5, std::min(-4, 120 - field.width()), -5));
}

double buttonText(const QWidget &button)
{
    return text(button, button.rect() - QMargins(5, 4, 5, 4));
}

// Of the most distinct pixel on a line that leads across an outline, with both ends of the line.
double line(const QWidget &widget, const QRect &rect)
{
    const QImage image = picture(widget, rect);
    const int length = std::max(image.width(), image.height());
    const auto pixel = [&image](int i) {
        return image.height() > image.width() ? image.pixelColor(image.width() / 2, i)
                                              : image.pixelColor(i, image.height() / 2);
    };
    double best = 0;
    for (int i = 0; i < length; ++i) {
        best = std::max(
            best, std::min(contrastRatio(pixel(i), pixel(0)), contrastRatio(pixel(i), pixel(length - 1))));
    }
    return best;
}

double leftEdge(const QWidget &widget)
{
    return line(widget, QRect(-1, widget.height() / 2, 7, 1));
}

QRect indicator(const QWidget &checkBox)
{
    QStyleOptionButton option;
    option.initFrom(&checkBox);
    return checkBox.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &checkBox);
}

double boxEdge(const QWidget &checkBox)
{
    return line(checkBox, QRect(indicator(checkBox).topLeft() + QPoint(2, -2), QSize(1, 5)));
}

double tick(const QWidget &checkBox)
{
    return text(checkBox, indicator(checkBox).adjusted(2, 2, -2, -2));
}

double groove(const QWidget &editor)
{
    const QSlider &slider = *editor.findChild<QSlider *>();
    return line(slider, QRect(slider.width() - 8, 0, 1, slider.height()));
}

double handle(const QWidget &editor)
{
    const QSlider &slider = *editor.findChild<QSlider *>();
    const int length = slider.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &slider);
    const int x = QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(), slider.value(),
                                                  slider.width() - length);
    return line(slider, QRect(x + length / 2, 0, 1, slider.height() / 2));
}

} // namespace

class TestColours : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void isLegible_data();
    void isLegible();
    void isRemembered_data();
    void isRemembered();
    void changesOnlyDimColours_data();
    void changesOnlyDimColours();
    void focusIsSeen_data();
    void focusIsSeen();

private:
    Measure editor(const char *name, double (*measure)(const QWidget &), bool hasFocus = false) const;
    Measure rowText(const char *name, int column) const;
    QModelIndex row(const char *name, int column) const;

    FeatureTreeView *view() const { return m_window->featureTree()->treeView(); }
    void choose(int choice) const { m_window->findChild<ColoursMenu *>()->actions().at(choice)->trigger(); }

    QList<int> m_choices; // made last
    std::unique_ptr<MainWindow> m_window;
};

void TestColours::initTestCase()
{
    QCOMPARE(contrastRatio(Qt::white, Qt::black), 21.0);
    QCOMPARE(qRound(contrastRatio(QColor("#777777"), Qt::white) * 100), 448); // the guidelines' own example
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_colours"));
    QSettings().clear();
    setUpColours();
    m_window = std::make_unique<MainWindow>();
    m_window->showCamera({}, cameraAt({}));
    m_window->featureTree()->onVisibilityChanged(GenApi::Guru);
    view()->expandEverything();
    m_window->resize(1000, 700);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestColours::isLegible_data()
{
    columns<QList<int>, double, Measure>({"choices", "least", "measure"});
    auto *const search = m_window->findChild<QLineEdit *>(QStringLiteral("filterEdit"));
    const std::tuple<const char *, double, Measure> samples[] = {
        {"value", 4.5, editor("Gamma", text)},
        {"button", 4.5, editor("Timestamp Reset", buttonText)},
        {"read-only list", 4.5, editor("Device Type", text)},
        {"read-only number", 4.5, editor("Device Temperature [°C]", text)},
        {"locked spin box", 4.5, editor("Acquisition Frame Rate [Hz]", text)},
        {"unavailable command", 4.5, rowText("User Set Save", 1)},
        {"read-only name", 4.5, rowText("Timestamp [ns]", 0)},
        {"read-only text", 4.5, rowText("Device Vendor Name", 1)},
        {"not available", 4.5, rowText("Chunk Selector", 1)},
        {"placeholder", 4.5, [search] { return text(*search); }},
        {"list's frame", 3, editor("Gain Auto", leftEdge)},
        {"read-only list's frame", 3, editor("Device Type", leftEdge)},
        {"number's frame", 3, editor("Gamma", leftEdge)},
        {"focused number's frame", 3, editor("Gamma", leftEdge, true)},
        {"read-only number's frame", 3, editor("Device Temperature [°C]", leftEdge)},
        {"spin box's frame", 3, editor("Exposure Time [us]", leftEdge)},
        {"button's frame", 3, editor("Timestamp Reset", leftEdge)},
        {"check box", 3, editor("Reverse X", boxEdge)},
        {"focused check box", 3, editor("Reverse X", boxEdge, true)},
        {"locked check box", 3, editor("Line Status", boxEdge)},
        {"tick", 3, editor("Black Level Clamping Enable", tick)},
        {"locked tick", 3, editor("Line Status", tick)},
        {"groove", 3, editor("Exposure Time [us]", groove)},
        {"handle", 3, editor("Exposure Time [us]", handle)},
        {"search box's frame", 3, [search] { return leftEdge(*search); }},
    };
    const std::pair<const char *, QList<int>> switches[] = {{"dark, after light", {Light, Dark}},
                                                            {"light, after dark", {Dark, Light}},
                                                            {"system, after dark", {Dark, System}}};
    for (const auto &[colours, choices] : switches) {
        for (const auto &[name, least, measure] : samples) {
            QTest::addRow("%s: %s", colours, name) << choices << least << measure;
        }
    }
}

void TestColours::isLegible()
{
    QFETCH(QList<int>, choices);
    QFETCH(double, least);
    QFETCH(Measure, measure);
    for (const int choice : m_choices == choices ? QList<int>() : choices) {
        choose(choice);
        QCoreApplication::processEvents(); // widgets hear of a palette later
    }
    m_choices = choices;
    const double measured = measure();
    QVERIFY2(measured >= least, qPrintable(QString::number(measured, 'f', 2)));
}

QModelIndex TestColours::row(const char *name, int column) const
{
    const QAbstractItemModel &model = *view()->model();
    const auto found = model.match(model.index(0, 0), Qt::DisplayRole, QString::fromUtf8(name), 1,
                                   Qt::MatchExactly | Qt::MatchRecursive);
    view()->scrollTo(found.value(0), QAbstractItemView::PositionAtCenter);
    return found.value(0).siblingAtColumn(column);
}

// Measures nothing when the focus is not where it is asked for.
Measure TestColours::editor(const char *name, double (*measure)(const QWidget &), bool hasFocus) const
{
    return [this, name, measure, hasFocus] {
        QWidget &widget = *view()->indexWidget(row(name, 1));
        hasFocus ? widget.setFocus(Qt::TabFocusReason) : view()->setFocus();
        return widget.hasFocus() == hasFocus ? measure(widget) : 0.0;
    };
}

Measure TestColours::rowText(const char *name, int column) const
{
    return [this, name, column] {
        return text(*view()->viewport(), view()->visualRect(row(name, column)).adjusted(2, 3, -2, -3));
    };
}

void TestColours::isRemembered_data()
{
    columns<QString, int>({"stored", "choice"});
    ::row("nonsense", QStringLiteral("plaid"), int(System));
    ::row("light", QStringLiteral("light"), int(Light));
    ::row("dark", QStringLiteral("dark"), int(Dark));
}

void TestColours::isRemembered()
{
    QFETCH(QString, stored);
    QFETCH(int, choice);
    choose(choice == Light ? Dark : Light);
    QSettings().setValue(QStringLiteral("Colours"), stored);
    setUpColours(); // as the next start does
    QCOMPARE(QApplication::palette().color(QPalette::Base).lightness() < 128, choice == Dark);
    QVERIFY(ColoursMenu().actions().at(choice)->isChecked());
    // The system's colours are no palette of the application: it would no longer hear of new ones.
    QCOMPARE(QCoreApplication::testAttribute(Qt::AA_SetPalette), choice != System);
    choose(choice);
    QCOMPARE(QSettings().value(QStringLiteral("Colours")),
             choice == System ? QStringLiteral("system") : stored);
}

void TestColours::changesOnlyDimColours_data()
{
    columns<QColor, QColor>({"locked", "expected"});
    ::row("high contrast", QColor(Qt::green), QColor(Qt::green));
    ::row("dim", QColor("#303030"), QColor());
}

void TestColours::changesOnlyDimColours()
{
    QFETCH(QColor, locked);
    QFETCH(QColor, expected);
    QPalette palette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white, Qt::black,
                     Qt::black);
    for (const auto role : {QPalette::Highlight, QPalette::Link, QPalette::LinkVisited}) {
        palette.setColor(role, Qt::yellow);
    }
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::Text, locked);
    QPalette polished = palette;
    QApplication::style()->polish(polished);
    const QColor text = polished.color(QPalette::Disabled, QPalette::Text);
    QVERIFY(expected.isValid() ? text == expected : contrastRatio(text, Qt::black) >= 4.5);
    polished.setColor(QPalette::Disabled, QPalette::Text, locked);
    QCOMPARE(polished, palette); // nothing else was touched
}

void TestColours::focusIsSeen_data()
{
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("highlight");
    QTest::newRow("light") << QColor(0xefefef) << QColor(Qt::black) << QColor(0x2874ac);
    QTest::newRow("dark") << QColor(0x2e3135) << QColor(0xeeeeee) << QColor(0x2a73ad);
    QTest::newRow("high contrast") << QColor(Qt::black) << QColor(Qt::yellow) << QColor(Qt::cyan);
    QTest::newRow("high contrast, light")
        << QColor(Qt::white) << QColor(Qt::black) << QColor(Qt::darkMagenta);
}

// Whoever goes around with Tab comes to everything, and sees each time where.
void TestColours::focusIsSeen()
{
    QFETCH(QColor, background);
    QFETCH(QColor, text);
    QFETCH(QColor, highlight);
    setUpColours();
    QPalette palette(background, background);
    palette.setColor(QPalette::Base, background);
    palette.setColor(QPalette::Highlight, highlight);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    QApplication::setPalette(palette);
    QSettings().clear();
    MainWindow window;
    window.setRemembering(false); // branches that are open have stops of their own, marked by the row's frame
    window.showCamera({}, cameraAt({}));
    window.show();
    QApplication::setActiveWindow(&window);
    QTest::qWait(20); // tabs that there are not lose their stop

    QWidget *const start = QApplication::focusWidget();
    QCOMPARE(start, window.featureTree()->treeView());
    QStringList stops;
    QWidget *stop = start;
    do {
        // The frame of a scroll area may belong to what is around it.
        const QRect area = QRect(stop->mapTo(&window, QPoint(0, 0)), stop->size());
        const QImage focused = window.grab(area).toImage();
        stops.append(stop->objectName().isEmpty() ? QString::fromLatin1(stop->metaObject()->className())
                                                  : stop->objectName());
        QTest::keyClick(stop, Qt::Key_Tab);
        QVERIFY2(window.grab(area).toImage() != focused, qPrintable(stops.constLast()));
        stop = QApplication::focusWidget();
    } while (stop != start && stops.size() < 50);
    QApplication::setPalette(QPalette());
    QCOMPARE(stops,
             (QStringList{"treeView", "checkBoxViewAllFavorites", "checkBoxPolling", "resetButton",
                          "QTextBrowser", "QToolButton", "filterEdit"}));
}

QTEST_MAIN(TestColours)
#include "tst_colours.moc"
