// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/cameradialog.h>
#include <viewer/image/recorddialog.h>
#include <viewer/mainwindow.h>
#include <viewer/openingpage.h>

#include <zeltoviewercomponents/errorhandling/messageboxcheckable.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/network/ipaddresswidget.h>
#include <zeltoviewercomponents/settings/settingsreport.h>
#include <zeltoviewercomponents/settings/settingsreportdialog.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

#include <functional>
#include <memory>

namespace {

/*! \brief A language whose texts are those of the sources and 40 % longer. */
class LongLanguage : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        static const QRegularExpression shortcut(QStringLiteral("^(Ctrl\\+|F\\d)|\\(\\*"));
        if (text.isEmpty() || shortcut.match(text).hasMatch()) {
            return text;
        }
        static const QRegularExpression markup(QStringLiteral("<[^>]*>|%\\w|&"));
        const QString letters = QString(text).remove(markup).remove(QLatin1Char('\n'));
        // Words of usual length, so that lines break as they do in languages that take more room.
        QString more;
        while (more.size() < letters.size() * 2 / 5) {
            more += more.size() % 8 == 0 ? QLatin1Char(' ') : QLatin1Char('m');
        }
        return text + more;
    }
};

// Returns what of a window's texts does not fit, empty when all do.
QString clipped(const QWidget &window)
{
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        if (!widget->isVisible() || widget->objectName().startsWith(QLatin1String("qt_"))) {
            continue;
        }
        const auto *const label = qobject_cast<const QLabel *>(widget);
        const auto *const button = qobject_cast<const QAbstractButton *>(widget);
        const auto *const toolButton = qobject_cast<const QToolButton *>(widget);
        const bool isIcon = toolButton && toolButton->toolButtonStyle() == Qt::ToolButtonIconOnly
            && !toolButton->icon().isNull();
        const QString text = label ? label->text() : button && !isIcon ? button->text() : QString();
        if (text.isEmpty()) {
            continue;
        }
        const QSize needed =
            label && label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : widget->sizeHint();
        if (needed.width() > widget->width() || needed.height() > widget->height()) {
            return QStringLiteral("%1 %2: needs %3 x %4, has %5 x %6")
                .arg(QString::fromLatin1(widget->metaObject()->className()), text)
                .arg(needed.width())
                .arg(needed.height())
                .arg(widget->width())
                .arg(widget->height());
        }
        const QRect inWindow(widget->mapTo(&window, QPoint(0, 0)), widget->size());
        if (!window.rect().contains(inWindow)) {
            return QStringLiteral("%1 sticks out of the window").arg(text);
        }
    }
    return {};
}

SettingsReport sampleReport()
{
    SettingsReport report;
    SettingsReport::Entry entry;
    entry.setting.name = QStringLiteral("Width");
    entry.setting.value = QStringLiteral("1920");
    entry.result = SettingsReport::Result::Refused;
    entry.reason = QStringLiteral("out of range");
    report.entries.append(entry);
    return report;
}

} // namespace

Q_DECLARE_METATYPE(std::function<std::unique_ptr<QWidget>()>)

class TestLongTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void nothingIsClipped_data();
    void nothingIsClipped();
};

void TestLongTexts::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_longtexts"));
    QSettings().clear();
    QCoreApplication::installTranslator(new LongLanguage(this));
}

void TestLongTexts::cleanup()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestLongTexts::nothingIsClipped_data()
{
    using Maker = std::function<std::unique_ptr<QWidget>()>;
    QTest::addColumn<Maker>("make");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    const auto row = [](const char *name, Maker make) {
        QTest::addRow("%s", name) << make << Qt::LeftToRight;
        QTest::addRow("%s, right to left", name) << make << Qt::RightToLeft;
    };
    row("cameras", [] { return std::make_unique<CameraDialog>(); });
    row("record frames", [] { return std::make_unique<RecordDialog>(QStringLiteral("/tmp")); });
    row("IP configuration", [] { return std::make_unique<IpAddressWidget>(); });
    row("report", [] { return std::make_unique<SettingsReportDialog>(sampleReport()); });
    row("question", [] {
        return std::make_unique<MessageBoxCheckable>(
            QStringLiteral("key"), QMessageBox::Question, MainWindow::tr("Close Camera"),
            MainWindow::tr("The new IP configuration takes effect after the camera restarts."),
            QMessageBox::Ok | QMessageBox::Cancel);
    });
    row("opening", [] {
        auto page = std::make_unique<OpeningPage>();
        page->begin(QStringLiteral("camera.xml"));
        return page;
    });
    row("tree", [] { return std::make_unique<FeatureTreeWidget>(QStringLiteral("tree")); });
    row("window", [] { return std::make_unique<MainWindow>(); });
    const auto withPanel = [](const QString &panel) {
        auto window = std::make_unique<MainWindow>();
        window->showCamera({}, cameraAt({}));
        if (auto *const dock = window->findChild<QDockWidget *>(panel + QStringLiteral("Dock"))) {
            dock->show();
            dock->raise();
        }
        return window;
    };
    for (const char *const panel : {"", "changes", "differences", "watch", "visitedFeatures"}) {
        row(qPrintable(QStringLiteral("window with a camera %1").arg(QLatin1String(panel))),
            [panel, withPanel] { return withPanel(QString::fromLatin1(panel)); });
    }
}

void TestLongTexts::nothingIsClipped()
{
    QFETCH(std::function<std::unique_ptr<QWidget>()>, make);
    QFETCH(Qt::LayoutDirection, direction);
    QApplication::setLayoutDirection(direction);
    const auto window = make();
    window->show();
    for (int i = 0; i < 3; ++i) { // what comes in a little later makes itself room
        QCoreApplication::processEvents();
    }
    QCOMPARE(window->layoutDirection(), direction);
    const QString found = clipped(*window);
    QVERIFY2(found.isEmpty(), qPrintable(found));
}

QTEST_MAIN(TestLongTexts)
#include "tst_longtexts.moc"
