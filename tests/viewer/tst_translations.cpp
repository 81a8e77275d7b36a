// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/languages.h>
#include <viewer/mainwindow.h>

#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/translations.h>

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSettings>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QTranslator>
#include <QTreeView>
#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

// Menu texts alone stand for letters on the keyboard.
QChar mnemonic(const QString &text)
{
    const auto ampersand = text.indexOf(QLatin1Char('&'));
    return ampersand < 0 ? QChar() : text.at(ampersand + 1).toLower();
}

// The marks that stand for values and the tags of rich text, which a translation has to keep.
QStringList marks(const QString &text)
{
    static const QRegularExpression mark(QStringLiteral("%[0-9n]|</?[a-z0-9]+>"),
                                         QRegularExpression::CaseInsensitiveOption);
    QStringList found;
    auto match = mark.globalMatch(text);
    while (match.hasNext()) {
        found.append(match.next().captured());
    }
    found.sort();
    return found;
}

// Returns the texts of a file of translations, each with its context.
QStringList sourcesIn(const QString &folder, const QString &language)
{
    QFile file(QStringLiteral(ZELTO_SOURCE_DIR "/%1/translations/%1_%2.ts").arg(folder, language));
    QStringList sources;
    QXmlStreamReader reader(file.open(QFile::ReadOnly) ? &file : nullptr);
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            sources.append(context + QLatin1String(": ") + reader.readElementText());
        }
    }
    return sources;
}

void appendRows(QStringList &texts, const QTreeView &view, const QModelIndex &parent = {})
{
    for (int row = 0; row < view.model()->rowCount(parent); ++row) {
        const QModelIndex index = view.model()->index(row, 0, parent);
        texts.append(index.data().toString());
        texts.append(index.data(Qt::ToolTipRole).toString());
        if (view.isExpanded(index)) {
            appendRows(texts, view, index);
        }
    }
}

// Returns what a window says anywhere, in menus, tool tips and the headers of lists, too.
QStringList textsIn(const QMainWindow &window)
{
    QStringList texts{window.windowTitle()};
    const auto actions = window.findChildren<QAction *>();
    for (const QAction *const action : actions) {
        texts.append({action->text(), action->toolTip(), action->statusTip()});
    }
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        if (widget->objectName().startsWith(QLatin1String("qt_"))
            || qobject_cast<const QTabBar *>(widget->parentWidget())) {
            continue; // Qt's own buttons keep the names that they were made with
        }
        texts.append({widget->windowTitle(), widget->toolTip(), widget->accessibleName()});
        for (const char *const property : {"text", "title", "placeholderText", "currentText", "plainText"}) {
            texts.append(widget->property(property).toString());
        }
        const auto *const view = qobject_cast<const QTreeView *>(widget);
        if (view && view->model()) {
            for (int column = 0; column < view->model()->columnCount(); ++column) {
                texts.append(view->model()->headerData(column, Qt::Horizontal).toString());
            }
            appendRows(texts, *view);
        }
    }
    texts.removeAll(QString());
    texts.sort();
    return texts;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void filesAreComplete_data();
    void filesAreComplete();
    void languagesHaveTheSameTexts_data();
    void languagesHaveTheSameTexts();
    void countsHaveTheirPlural_data();
    void countsHaveTheirPlural();
    void librariesAreTranslated();
    void textsFollowTheLanguage_data();
    void textsFollowTheLanguage();
    void theLanguageIsChosenInAMenu();
    void mnemonicsAreUnique_data();
    void mnemonicsAreUnique();
};

void TestTranslations::init()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_translations"));
    QSettings().clear();
}

void TestTranslations::cleanup()
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
}

void TestTranslations::filesAreComplete_data()
{
    QTest::addColumn<QString>("fileName");
    for (const char *const folder : {"platform", "zeltoviewercomponents", "cameras", "viewer"}) {
        const QDir dir(QStringLiteral(ZELTO_SOURCE_DIR "/%1/translations").arg(QLatin1String(folder)));
        const auto files = dir.entryInfoList({QStringLiteral("*.ts")});
        for (const QFileInfo &file : files) {
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
        }
    }
}

void TestTranslations::filesAreComplete()
{
    QFETCH(QString, fileName);
    QFile file(fileName);
    QVERIFY(file.open(QFile::ReadOnly));
    QXmlStreamReader reader(&file);
    QString source;
    int translations = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("source")) {
            source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            QVERIFY2(!reader.attributes().hasAttribute(QLatin1String("type")), qPrintable(source));
            if (!source.contains(QLatin1String("%n"))) {
                QCOMPARE(marks(reader.readElementText()), marks(source));
            }
            ++translations;
        } else if (reader.name() == QLatin1String("numerusform")) {
            QCOMPARE(marks(reader.readElementText()), marks(source));
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QVERIFY(translations > 0);
}

void TestTranslations::languagesHaveTheSameTexts_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("language");
    for (const char *const folder : {"platform", "zeltoviewercomponents", "cameras", "viewer"}) {
        for (const char *const language : {"es", "fr", "ja", "zh_CN"}) {
            QTest::addRow("%s_%s", folder, language)
                << QString::fromLatin1(folder) << QString::fromLatin1(language);
        }
    }
}

// The German ones are held against the sources by scripts/translations.
void TestTranslations::languagesHaveTheSameTexts()
{
    QFETCH(QString, folder);
    QFETCH(QString, language);
    const QStringList expected = sourcesIn(folder, QStringLiteral("de"));
    const QStringList found = sourcesIn(folder, language);
    for (const QString &text : expected) {
        QVERIFY2(found.contains(text), qPrintable(text));
    }
    QCOMPARE(found.size(), expected.size());
}

void TestTranslations::countsHaveTheirPlural_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("shown");
    QTest::newRow("one, English") << QLocale(QLocale::English) << QStringLiteral("ExposureMode")
                                  << QStringLiteral("1 result");
    QTest::newRow("many, C") << QLocale::c() << QStringLiteral("exposure") << QStringLiteral("5 results");
    QTest::newRow("many, German") << QLocale(QLocale::German) << QStringLiteral("exposure")
                                  << QStringLiteral("5 Treffer");
    QTest::newRow("one, French") << QLocale(QLocale::French) << QStringLiteral("ExposureMode")
                                 << QStringLiteral("1 résultat");
    QTest::newRow("many, Spanish") << QLocale(QLocale::Spanish) << QStringLiteral("exposure")
                                   << QStringLiteral("5 resultados");
    QTest::newRow("many, Japanese") << QLocale(QLocale::Japanese) << QStringLiteral("exposure")
                                    << QStringLiteral("5 件");
    QTest::newRow("many, Chinese") << QLocale(QLocale::Chinese) << QStringLiteral("exposure")
                                   << QStringLiteral("5 个结果");
    QTest::newRow("untranslated language")
        << QLocale(QLocale::Icelandic) << QStringLiteral("exposure") << QStringLiteral("5 results");
}

void TestTranslations::countsHaveTheirPlural()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, search);
    QFETCH(QString, shown);
    installTranslations(locale);
    MainWindow window;
    window.showCamera({}, cameraAt({}));
    window.featureTree()->setSearchText(search);
    const auto labels = window.statusBar()->findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.cbegin(), labels.cend(),
                        [&shown](const QLabel *label) { return label->text() == shown; }));
}

void TestTranslations::librariesAreTranslated()
{
    installTranslations(QLocale(QLocale::German, QLocale::Austria));
    MainWindow window;
    const auto *const tree = window.featureTree();
    QCOMPARE(tree->treeView()->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Merkmal"));
    window.showCamera({}, cameraAt({}));
    QCOMPARE(tree->treeView()->model()->index(1, 0).data().toString(), QStringLiteral("Kamera"));
}

void TestTranslations::textsFollowTheLanguage_data()
{
    QTest::addColumn<bool>("hasCamera");
    QTest::newRow("without a camera") << false;
    QTest::newRow("with a camera") << true;
}

// A window that has changed its language says all that one says that had it from the beginning.
void TestTranslations::textsFollowTheLanguage()
{
    QFETCH(bool, hasCamera);
    const auto open = [hasCamera] {
        auto window = std::make_unique<MainWindow>();
        if (hasCamera) {
            window->showCamera({}, cameraAt({}));
        }
        window->show();
        QCoreApplication::processEvents(); // the current row is described a little later
        return window;
    };
    installTranslations(QLocale(QLocale::English));
    const auto window = open();
    const QStringList english = textsIn(*window);
    installTranslations(QLocale(QLocale::German));
    QCoreApplication::processEvents();
    const QStringList german = textsIn(*window);
    const auto fresh = open();
    const QStringList expected = textsIn(*fresh);
    for (const QString &text : german) {
        QVERIFY2(expected.contains(text), qPrintable(text));
    }
    QCOMPARE(german, expected);
    QVERIFY(german != english);
    installTranslations(QLocale(QLocale::English));
    QCoreApplication::processEvents();
    QCOMPARE(textsIn(*window), english);
}

void TestTranslations::theLanguageIsChosenInAMenu()
{
    installTranslations(chosenLanguage());
    {
        const MainWindow window;
        const auto *const menu = window.findChild<LanguagesMenu *>();
        const auto actions = menu->actions();
        const auto german = std::find_if(actions.cbegin(), actions.cend(), [](const QAction *action) {
            return action->text() == QStringLiteral("Deutsch");
        });
        QVERIFY(german != actions.cend());
        (*german)->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(menu->title(), QStringLiteral("Spra&che"));
    }
    cleanup();
    installTranslations(chosenLanguage()); // as the next start does
    const MainWindow window;
    QCOMPARE(window.findChild<LanguagesMenu *>()->title(), QStringLiteral("Spra&che"));
}

void TestTranslations::mnemonicsAreUnique_data()
{
    QTest::addColumn<QLocale>("locale");
    for (const auto &language : {QLocale::English, QLocale::German, QLocale::Spanish, QLocale::French,
                                 QLocale::Japanese, QLocale::Chinese}) {
        QTest::newRow(qPrintable(QLocale::languageToString(language))) << QLocale(language);
    }
}

void TestTranslations::mnemonicsAreUnique()
{
    QFETCH(QLocale, locale);
    installTranslations(locale);
    const MainWindow window;
    QWidgetList menus{window.menuBar()};
    const auto pullDowns = window.menuBar()->findChildren<QMenu *>();
    std::copy(pullDowns.cbegin(), pullDowns.cend(), std::back_inserter(menus));
    int checked = 0;
    for (const QWidget *const menu : std::as_const(menus)) {
        if (qobject_cast<const LanguagesMenu *>(menu)) {
            continue; // names in letters that the keyboard may not have
        }
        QString seen;
        const auto actions = menu->actions();
        for (const QAction *const action : actions) {
            const QChar letter = mnemonic(action->text());
            if (action->isSeparator() || qobject_cast<QDockWidget *>(action->parent())) {
                continue; // a panel's title is its own
            }
            QVERIFY2(!letter.isNull() && !seen.contains(letter), qPrintable(action->text()));
            seen.append(letter);
            ++checked;
        }
    }
    QVERIFY(checked > 10);
}

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
