// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/colours.h>
#include <viewer/descriptionpane.h>
#include <viewer/mainwindow.h>
#include <viewer/messagebar.h>

#include <zeltoviewercomponents/errorhandling/helplink.h>
#include <zeltoviewercomponents/featuretree/featuretreehighlighter.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/network/ipaddresswidget.h>

#include <support/table.h>

#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QStatusBar>
#include <QStyleOptionButton>
#include <QTest>
#include <QTextBrowser>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

using Measure = std::function<double()>;
Q_DECLARE_METATYPE(Measure)

namespace {

enum Choice { System, Light, Dark };

double luminance(const QColor &color)
{
    const auto linear = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

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
        for (int x = 0; x < image.width(); ++x) {
            if (contrast(image.pixelColor(x, y), backgrounds.constLast()) > best) {
                ink = image.pixelColor(x, y);
                best = contrast(ink, backgrounds.constLast());
            }
        }
    }
    for (const QColor &background : backgrounds) {
        best = std::min(best, contrast(ink, background));
    }
    return best;
}

// Of the most distinct pixel on a line that leads across an outline, with both ends of the line.
double lineContrast(const QImage &image)
{
    const auto pixel = [&image](int i) {
        return image.height() > image.width() ? image.pixelColor(image.width() / 2, i)
                                              : image.pixelColor(i, image.height() / 2);
    };
    const int length = std::max(image.width(), image.height());
    double best = 0;
    for (int i = 0; i < length; ++i) {
        best = std::max(best, std::min(contrast(pixel(i), pixel(0)), contrast(pixel(i), pixel(length - 1))));
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

double leftEdge(const QWidget &widget, int inset = 0)
{
    return lineContrast(picture(widget, QRect(inset - 2, widget.height() / 2, 7, 1)));
}

QRect indicator(const QCheckBox &box)
{
    QStyleOptionButton option;
    option.initFrom(&box);
    return box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
}

// Beside what the box may hold.
double topEdge(const QCheckBox &box)
{
    return lineContrast(picture(box, QRect(indicator(box).topLeft() + QPoint(2, -2), QSize(1, 5))));
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
    void systemsColours_data();
    void systemsColours();

private:
    void addSamples(const char *colours, QList<int> choices);
    QModelIndex row(const char *name, int column = 1) const;
    template <typename Editor = QWidget>
    Editor &editor(const char *name) const;
    double rowText(const char *name, int column) const;
    double currentRow() const;
    double mark() const;
    double selection() const;
    double placeholder() const;
    double handle() const;
    double menuItem(int menu, int item, bool isHovered) const;
    double toolTip() const;
    double message() const;
    QWidget &focused(const char *name) const;

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
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestColours::isLegible_data()
{
    columns<QList<int>, double, Measure>({"choices", "least", "measure"});
    addSamples("dark, after light", {Light, Dark});
    addSamples("light, after dark", {Dark, Light});
    addSamples("system, after dark", {Dark, System});
}

void TestColours::addSamples(const char *colours, QList<int> choices)
{
    const auto add = [=](const char *name, double least, const Measure &measure) {
        QTest::addRow("%s: %s", colours, name) << choices << least << measure;
    };
    const double letters = 4.5;
    const double shapes = 3.0;
    add("value", letters, [this] { return text(editor("Gamma")); });
    add("read-only list", letters, [this] { return text(editor("Device Type")); });
    add("read-only number", letters, [this] { return text(editor("Device Temperature [°C]")); });
    add("locked spin box", letters, [this] { return text(editor("Acquisition Frame Rate [Hz]")); });
    add("unavailable command", letters, [this] { return rowText("User Set Save", 1); });
    add("read-only name", letters, [this] { return rowText("Timestamp [ns]", 0); });
    add("read-only text", letters, [this] { return rowText("Device Vendor Name", 1); });
    add("not available", letters, [this] { return rowText("Chunk Selector", 1); });
    add("button", letters, [this] {
        QWidget &button = editor("Timestamp Reset");
        return text(button, button.rect().adjusted(5, 4, -5, -4));
    });
    add("mark of a match", letters, [this] { return mark(); });
    add("placeholder", letters, [this] { return placeholder(); });
    add("selected text", letters, [this] { return selection(); });
    add("header", letters, [this] { return text(*view()->header()->viewport(), QRect(2, 3, 80, 14)); });
    add("status bar", letters, [this] {
        const QLabel &name = *m_window->statusBar()->findChildren<QLabel *>().constLast();
        return text(name, name.rect());
    });
    add("description", letters, [this] {
        view()->setCurrentIndex(row("Gamma"));
        const QWidget &page =
            *m_window->findChild<DescriptionPane *>()->findChild<QTextBrowser *>()->viewport();
        return text(page, QRect(4, 4, 200, 80));
    });
    add("message", letters, [this] { return message(); });
    add("tool tip", letters, [this] { return toolTip(); });
    add("menu bar", letters, [this] {
        const QMenuBar &bar = *m_window->menuBar();
        return text(bar, bar.actionGeometry(bar.actions().constFirst()).adjusted(4, 4, -4, -4));
    });
    add("menu item", letters, [this] { return menuItem(0, 0, false); });
    add("hovered menu item", letters, [this] { return menuItem(0, 0, true); });
    add("disabled menu item", letters, [this] { return menuItem(0, 2, false); });
    add("dialog's read-only field", letters, [this] {
        const auto edits = m_dialog->findChildren<QLineEdit *>();
        return text(
            **std::find_if(edits.begin(), edits.end(), [](auto *edit) { return edit->isReadOnly(); }));
    });
    add("message box", letters, [this] {
        const QLabel &label = *m_box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        return text(label, label.rect());
    });
    add("link", letters, [this] { return text(*m_link, m_link->rect()); });

    add("list's frame", shapes, [this] { return leftEdge(editor("Gain Auto"), 1); });
    add("read-only list's frame", shapes, [this] { return leftEdge(editor("Device Type"), 1); });
    add("number's frame", shapes, [this] { return leftEdge(editor("Gamma")); });
    add("read-only number's frame", shapes, [this] { return leftEdge(editor("Device Temperature [°C]")); });
    add("spin box's frame", shapes, [this] { return leftEdge(editor("Exposure Time [us]")); });
    add("button's frame", shapes, [this] { return leftEdge(editor("Timestamp Reset")); });
    add("message box's button", shapes, [this] { return leftEdge(*m_box->button(QMessageBox::Ok)); });
    add("search box's frame", shapes, [this] { return leftEdge(*search()); });
    add("check box", shapes, [this] { return topEdge(editor<QCheckBox>("Reverse X")); });
    add("locked check box", shapes, [this] { return topEdge(editor<QCheckBox>("Line Status")); });
    add("locked tick", shapes, [this] {
        const auto &box = editor<QCheckBox>("Line Status");
        return text(box, indicator(box).adjusted(2, 2, -2, -2));
    });
    add("tick", shapes, [this] {
        const auto &box = editor<QCheckBox>("Black Level Clamping Enable");
        return text(box, indicator(box).adjusted(2, 2, -2, -2));
    });
    add("slider's groove", shapes, [this] {
        const QSlider &slider = *editor("Exposure Time [us]").findChild<QSlider *>();
        return lineContrast(picture(slider, QRect(slider.width() - 8, 0, 1, slider.height())));
    });
    add("slider's handle", shapes, [this] { return handle(); });
    add("current row", shapes, [this] { return currentRow(); });
    add("focused number", shapes, [this] { return leftEdge(focused("Gamma")); });
    add("focused check box", shapes,
        [this] { return topEdge(static_cast<QCheckBox &>(focused("Reverse X"))); });
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
    const QModelIndex index = model
                                  .match(model.index(0, 0), Qt::DisplayRole, QString::fromUtf8(name), 1,
                                         Qt::MatchExactly | Qt::MatchRecursive)
                                  .value(0);
    view()->scrollTo(index, QAbstractItemView::PositionAtCenter);
    return index.siblingAtColumn(column);
}

template <typename Editor>
Editor &TestColours::editor(const char *name) const
{
    return *qobject_cast<Editor *>(view()->indexWidget(row(name)));
}

double TestColours::rowText(const char *name, int column) const
{
    return text(*view()->viewport(), view()->visualRect(row(name, column)).adjusted(2, 3, -2, -3));
}

double TestColours::currentRow() const
{
    const QModelIndex index = row("Gain Auto", 0);
    view()->setCurrentIndex(index);
    const QRect name = view()->visualRect(index);
    return lineContrast(picture(*view()->viewport(), QRect(name.left() + 2, name.top() - 2, 1, 6)));
}

double TestColours::mark() const
{
    search()->setText(QStringLiteral("Timestamp"));
    const QImage image = picture(*view()->viewport(), view()->visualRect(row("Timestamp [ns]", 0)));
    search()->clear();
    const QRgb color = view()->getHightlighter()->color().rgb();
    int first = 0;
    while (first < image.width() && image.pixel(first, 3) != color) {
        ++first;
    }
    int last = first;
    while (last < image.width() && image.pixel(last, 3) == color) {
        ++last;
    }
    return last - first < 20 ? 0 : textContrast(image.copy(first, 2, last - first, image.height() - 4));
}

double TestColours::placeholder() const
{
    return text(*search());
}

double TestColours::selection() const
{
    search()->setText(QStringLiteral("m   m   m   m"));
    search()->selectAll();
    const double measured = text(*search(), QRect(6, 5, 40, search()->height() - 10));
    search()->clear();
    return measured;
}

double TestColours::handle() const
{
    const QSlider &slider = *editor("Exposure Time [us]").findChild<QSlider *>();
    const int length = slider.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &slider);
    const int x = QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(), slider.value(),
                                                  slider.width() - length);
    return lineContrast(picture(slider, QRect(x + length / 2, 0, 1, slider.height() / 2)));
}

double TestColours::menuItem(int menu, int item, bool isHovered) const
{
    QMenu &shown = *m_window->menuBar()->actions().at(menu)->menu();
    QAction *const action = shown.actions().at(item);
    shown.popup({});
    shown.setActiveAction(isHovered ? action : nullptr);
    const double measured = text(shown, shown.actionGeometry(action).adjusted(30, 3, -10, -3));
    shown.close();
    return measured;
}

double TestColours::toolTip() const
{
    QToolTip::showText(m_window->geometry().center(), QStringLiteral("Tool tip"), m_window.get());
    double measured = 0;
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget *const widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) {
            measured = text(*widget, widget->rect().adjusted(2, 2, -2, -2));
        }
    }
    QToolTip::hideText();
    return measured;
}

double TestColours::message() const
{
    auto &bar = *m_window->findChild<MessageBar *>();
    bar.showMessage(QStringLiteral("Message"), QString());
    QTest::qWait(1); // until it has its place
    double measured = 0;
    const auto labels = bar.findChildren<QLabel *>();
    for (const QLabel *const label : labels) {
        measured = label->text().isEmpty() ? measured : text(*label, label->rect());
    }
    bar.dismiss();
    return measured;
}

QWidget &TestColours::focused(const char *name) const
{
    m_window->activateWindow();
    (void)QTest::qWaitForWindowActive(m_window.get());
    QWidget &widget = editor(name);
    widget.setFocus(Qt::TabFocusReason);
    return widget;
}

void TestColours::isRemembered_data()
{
    columns<QString, int, bool>({"stored", "choice", "isDark"});
    ::row("nothing", QString(), int(System), false);
    ::row("nonsense", QStringLiteral("plaid"), int(System), false);
    ::row("light", QStringLiteral("light"), int(Light), false);
    ::row("dark", QStringLiteral("dark"), int(Dark), true);
}

void TestColours::isRemembered()
{
    QFETCH(QString, stored);
    QFETCH(int, choice);
    QFETCH(bool, isDark);
    const QString key = QStringLiteral("Colours");
    choose(choice == Light ? Dark : Light);
    QSettings().setValue(key, stored);
    setUpColours(); // as the next start does
    QCOMPARE(QApplication::palette().color(QPalette::Base).lightness() < 128, isDark);
    const ColoursMenu menu;
    QVERIFY(menu.actions().at(choice)->isChecked());
    const QList<QAction *> actions = menu.actions();
    QCOMPARE(std::count_if(actions.begin(), actions.end(), [](auto *action) { return action->isChecked(); }),
             1);
    // The system's colours are no palette of the application: it would no longer hear of new ones.
    QCOMPARE(QCoreApplication::testAttribute(Qt::AA_SetPalette), choice != System);
    choose(choice);
    QCOMPARE(QSettings().value(key).toString(), choice == System ? QStringLiteral("system") : stored);
}

void TestColours::systemsColours_data()
{
    columns<QPalette, bool>({"palette", "isLeftAlone"});
    QPalette palette(Qt::black);
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button,
                            QPalette::ToolTipBase, QPalette::HighlightedText}) {
        palette.setColor(role, Qt::black);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::PlaceholderText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, QColor("#3ff23f"));
    }
    for (const auto role : {QPalette::Highlight, QPalette::Link, QPalette::LinkVisited}) {
        palette.setColor(role, Qt::yellow);
    }
    ::row("of high contrast", palette, true);
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(60, 60, 60));
    ::row("with dim text", palette, false);
}

void TestColours::systemsColours()
{
    QFETCH(QPalette, palette);
    QFETCH(bool, isLeftAlone);
    QPalette polished = palette;
    QApplication::style()->polish(polished);
    QCOMPARE(polished == palette, isLeftAlone);
    const QColor grey = polished.color(QPalette::Disabled, QPalette::Text);
    QVERIFY(contrast(grey, polished.color(QPalette::Base)) >= 4.5);
    polished.setColor(QPalette::Disabled, QPalette::Text, palette.color(QPalette::Disabled, QPalette::Text));
    QCOMPARE(polished, palette); // nothing else was touched
}

QTEST_MAIN(TestColours)
#include "tst_colours.moc"
