// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/colours.h>
#include <viewer/descriptionpane.h>
#include <viewer/mainwindow.h>
#include <viewer/messagebar.h>

#include <zeltoviewercomponents/errorhandling/helplink.h>
#include <zeltoviewercomponents/featuretree/contrast.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/network/ipaddresswidget.h>

#include <support/table.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QStatusBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolTip>

#include <algorithm>
#include <functional>
#include <memory>

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

private:
    void addEditors(const char *colours, const QList<int> &choices);
    void addOthers(const char *colours, const QList<int> &choices);
    QModelIndex row(const char *name, int column) const;
    QWidget &editor(const char *name, bool hasFocus) const;
    double rowText(const char *name, int column) const;
    double currentRow() const;
    double mark() const;
    double selection() const;
    double menuItem(int item, bool isHovered) const;
    double toolTip() const;
    double message() const;

    FeatureTreeView *view() const { return m_window->featureTree()->treeView(); }
    QLineEdit *search() const { return m_window->findChild<QLineEdit *>(QStringLiteral("filterEdit")); }
    void choose(int choice) const { m_window->findChild<ColoursMenu *>()->actions().at(choice)->trigger(); }

    QList<int> m_choices; // made last
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<IpAddressWidget> m_dialog; // open all the time, as are the next two
    std::unique_ptr<QMessageBox> m_box;
    std::unique_ptr<HelpLink> m_link;
};

void TestColours::initTestCase()
{
    QCOMPARE(contrastRatio(Qt::white, Qt::black), 21.0);
    QCOMPARE(qRound(contrastRatio(QColor("#777777"), Qt::white) * 100), 448); // the guidelines' own example
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_colours"));
    QSettings().clear();
    setUpColours();
    m_dialog = std::make_unique<IpAddressWidget>();
    m_dialog->setMacAddress(QStringLiteral("02:1A:2B:3C:4D:5E"));
    m_dialog->show();
    m_box = std::make_unique<QMessageBox>(QMessageBox::Question, QStringLiteral("Title"),
                                          QStringLiteral("Question"), QMessageBox::Ok);
    m_box->show();
    m_link = std::make_unique<HelpLink>(QUrl(QStringLiteral("https://example.org")));
    m_link->resize(200, 30);
    m_link->show();
    m_window = std::make_unique<MainWindow>();
    m_window->openCamera(Options());
    m_window->featureTree()->onVisibilityChanged(GenApi::Guru);
    view()->expandEverything();
    m_window->resize(1000, 700);
    m_window->show();
}

void TestColours::isLegible_data()
{
    columns<QList<int>, double, Measure>({"choices", "least", "measure"});
    const std::pair<const char *, QList<int>> switches[] = {{"dark, after light", {Light, Dark}},
                                                            {"light, after dark", {Dark, Light}},
                                                            {"system, after dark", {Dark, System}}};
    for (const auto &[name, choices] : switches) {
        addEditors(name, choices);
        addOthers(name, choices);
    }
}

void TestColours::addEditors(const char *colours, const QList<int> &choices)
{
    struct Sample
    {
        const char *name;
        const char *feature;
        double least;
        double (*measure)(const QWidget &);
        bool hasFocus = false;
    };
    const Sample samples[] = {
        {"value", "Gamma", 4.5, text},
        {"read-only list", "Device Type", 4.5, text},
        {"read-only number", "Device Temperature [°C]", 4.5, text},
        {"locked spin box", "Acquisition Frame Rate [Hz]", 4.5, text},
        {"button", "Timestamp Reset", 4.5,
         [](const QWidget &w) { return text(w, w.rect() - QMargins(5, 4, 5, 4)); }},
        {"list's frame", "Gain Auto", 3, leftEdge},
        {"read-only list's frame", "Device Type", 3, leftEdge},
        {"number's frame", "Gamma", 3, leftEdge},
        {"focused number's frame", "Gamma", 3, leftEdge, true},
        {"read-only number's frame", "Device Temperature [°C]", 3, leftEdge},
        {"spin box's frame", "Exposure Time [us]", 3, leftEdge},
        {"button's frame", "Timestamp Reset", 3, leftEdge},
        {"check box", "Reverse X", 3, boxEdge},
        {"focused check box", "Reverse X", 3, boxEdge, true},
        {"locked check box", "Line Status", 3, boxEdge},
        {"tick", "Black Level Clamping Enable", 3, tick},
        {"locked tick", "Line Status", 3, tick},
        {"slider's groove", "Exposure Time [us]", 3, groove},
        {"slider's handle", "Exposure Time [us]", 3, handle},
    };
    for (const Sample &sample : samples) {
        QTest::addRow("%s: %s", colours, sample.name)
            << choices << sample.least
            << Measure([this, sample] { return sample.measure(editor(sample.feature, sample.hasFocus)); });
    }
}

void TestColours::addOthers(const char *colours, const QList<int> &choices)
{
    const std::pair<const char *, Measure> texts[] = {
        {"unavailable command", [this] { return rowText("User Set Save", 1); }},
        {"read-only name", [this] { return rowText("Timestamp [ns]", 0); }},
        {"read-only text", [this] { return rowText("Device Vendor Name", 1); }},
        {"not available", [this] { return rowText("Chunk Selector", 1); }},
        {"mark of a match", [this] { return mark(); }},
        {"selected text", [this] { return selection(); }},
        {"placeholder", [this] { return text(*search()); }},
        {"description",
         [this] {
             view()->setCurrentIndex(row("Gamma", 0));
             return text(*m_window->findChild<QTextBrowser *>()->viewport(), QRect(4, 4, 200, 80));
         }},
        {"status bar",
         [this] {
             const QLabel &name = *m_window->statusBar()->findChildren<QLabel *>().constLast();
             return text(name, name.rect());
         }},
        {"message", [this] { return message(); }},
        {"tool tip", [this] { return toolTip(); }},
        {"menu item", [this] { return menuItem(0, false); }},
        {"hovered menu item", [this] { return menuItem(0, true); }},
        {"disabled menu item", [this] { return menuItem(2, false); }},
        {"dialog's read-only field",
         [this] { return text(*m_dialog->findChildren<QLineEdit *>().constLast()); }},
        {"message box",
         [this] {
             return text(*m_box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label")), {0, 0, 80, 20});
         }},
        {"link", [this] { return text(*m_link, m_link->rect()); }},
    };
    for (const auto &[name, measure] : texts) {
        QTest::addRow("%s: %s", colours, name) << choices << 4.5 << measure;
    }
    const std::pair<const char *, Measure> shapes[] = {
        {"message box's button", [this] { return leftEdge(*m_box->button(QMessageBox::Ok)); }},
        {"search box's frame", [this] { return leftEdge(*search()); }},
        {"current row", [this] { return currentRow(); }},
    };
    for (const auto &[name, measure] : shapes) {
        QTest::addRow("%s: %s", colours, name) << choices << 3.0 << measure;
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

QWidget &TestColours::editor(const char *name, bool hasFocus) const
{
    QWidget &widget = *view()->indexWidget(row(name, 1));
    m_window->activateWindow();
    (void)QTest::qWaitForWindowActive(m_window.get());
    hasFocus ? widget.setFocus(Qt::TabFocusReason) : view()->setFocus();
    return widget;
}

double TestColours::rowText(const char *name, int column) const
{
    return text(*view()->viewport(), view()->visualRect(row(name, column)).adjusted(2, 3, -2, -3));
}

double TestColours::currentRow() const
{
    const QModelIndex index = row("Gain Auto", 0);
    view()->setCurrentIndex(index);
    return line(*view()->viewport(), QRect(view()->visualRect(index).topLeft() + QPoint(2, -2), QSize(1, 6)));
}

double TestColours::mark() const
{
    search()->setText(QStringLiteral("Timestamp"));
    const QRect name = view()->visualRect(row("Timestamp [ns]", 0));
    const double measured =
        text(*view()->viewport(), QRect(name.left() + 5, name.top() + 2, 50, name.height() - 4));
    search()->clear();
    return measured;
}

double TestColours::selection() const
{
    search()->setText(QStringLiteral("m   m   m   m"));
    search()->selectAll();
    const double measured = text(*search(), QRect(6, 5, 40, search()->height() - 10));
    search()->clear();
    return measured;
}

double TestColours::menuItem(int item, bool isHovered) const
{
    QMenu &menu = *m_window->menuBar()->actions().constFirst()->menu();
    QAction *const action = menu.actions().at(item);
    menu.popup({});
    menu.setActiveAction(isHovered ? action : nullptr);
    const double measured = text(menu, menu.actionGeometry(action).adjusted(30, 3, -10, -3));
    menu.close();
    return measured;
}

double TestColours::toolTip() const
{
    QToolTip::showText({}, QStringLiteral("Tool tip"), m_window.get());
    double measured = 0;
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget *const widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) {
            measured = text(*widget, widget->rect() - QMargins(2, 2, 2, 2));
        }
    }
    QToolTip::hideText();
    return measured;
}

double TestColours::message() const
{
    auto &bar = *m_window->findChild<MessageBar *>();
    bar.showMessage(QStringLiteral("Message"), QString());
    QCoreApplication::processEvents(); // until it has its place
    const QLabel &label = *bar.findChildren<QLabel *>().at(1); // after the icon
    const double measured = text(label, label.rect());
    bar.dismiss();
    return measured;
}

void TestColours::isRemembered_data()
{
    columns<QString, int>({"stored", "choice"});
    ::row("nothing", QString(), int(System));
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

QTEST_MAIN(TestColours)
#include "tst_colours.moc"
