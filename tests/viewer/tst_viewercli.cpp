// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using Changes = QMap<QString, QString>; // environment variables, removed where the value is null

Q_DECLARE_METATYPE(Changes)

/*! \brief Runs the viewer as a script or a shell does, with settings of its own and no display. */
class TestViewerCli : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void failsInOneLine_data();
    void failsInOneLine();
    void dumpsSilently_data();
    void dumpsSilently();
    void dumpShowsValues();
    void dumpIsLimited_data();
    void dumpIsLimited();
    void dumpForgetsTheWindow();
    void dumpsADescriptionFile();
    void dumpsSearchResults();
    void dumpsFavorites();
    void answersAboutItself_data();
    void answersAboutItself();
    void takesScreenshots();
    void fullDeviceIsAFailure();

private:
    struct Result
    {
        int exitCode = -1;
        QString out;
        QString err;
    };

    Result run(const QStringList &arguments, const Changes &changes = {}, const QString &outFile = {}) const;
    QString path(const QString &name) const { return m_dir->filePath(name); }
    QString fileWith(const QString &name, const QByteArray &contents) const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestViewerCli::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

TestViewerCli::Result TestViewerCli::run(const QStringList &arguments, const Changes &changes,
                                         const QString &outFile) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QString::fromLatin1(display));
    }
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("config")));
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change.value().isNull()) {
            environment.remove(change.key());
        } else {
            environment.insert(change.key(), change.value());
        }
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    if (!outFile.isEmpty()) {
        process.setStandardOutputFile(outFile);
    }
    process.start(QStringLiteral(VIEWER_PROGRAM), arguments);
    Result result;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit) {
        result.exitCode = process.exitCode();
    }
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.err = QString::fromUtf8(process.readAllStandardError());
    return result;
}

QString TestViewerCli::fileWith(const QString &name, const QByteArray &contents) const
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() ? file.fileName()
                                                                                      : QString();
}

void TestViewerCli::failsInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("contents"); // of the file "given"
    QTest::addColumn<Changes>("changes");
    QTest::addColumn<QString>("named"); // what the line has to name

    const auto row = [&](const char *name, const QStringList &arguments, const QString &named,
                         const QByteArray &contents = {}, const Changes &changes = {}) {
        QTest::newRow(name) << arguments << contents << changes << named;
    };
    const QStringList given{QStringLiteral("--dump"), QStringLiteral("--description"),
                            QStringLiteral("given")};
    row("unknown option", {QStringLiteral("--frobnicate")}, QStringLiteral("frobnicate"));
    row("unknown argument", {QStringLiteral("stray")}, QStringLiteral("stray"));
    row("unknown level", {QStringLiteral("--dump"), QStringLiteral("--visibility"), QStringLiteral("wizard")},
        QStringLiteral("wizard"));
    row("value is missing", {QStringLiteral("--dump"), QStringLiteral("--description")},
        QStringLiteral("description"));
    row("file name is empty", {QStringLiteral("--dump"), QStringLiteral("--description"), QStringLiteral("")},
        QStringLiteral("--description"));
    row("camera id is empty", {QStringLiteral("--dump"), QStringLiteral("--camera"), QStringLiteral("")},
        QStringLiteral("--camera"));
    row("picture name is empty", {QStringLiteral("--screenshot="), QStringLiteral("--expand")},
        QStringLiteral("--screenshot"));
    row("two cameras",
        {QStringLiteral("--dump"), QStringLiteral("--camera"), QStringLiteral("x"),
         QStringLiteral("--description"), QStringLiteral("y")},
        QStringLiteral("exclude each other"));
    row("two answers", {QStringLiteral("--editors"), QStringLiteral("--dump")},
        QStringLiteral("exclude each other"));
    row("option that would be ignored", {QStringLiteral("--list"), QStringLiteral("--search=x")},
        QStringLiteral("exclude each other"));
    row("no such file",
        {QStringLiteral("--dump"), QStringLiteral("--description"), QStringLiteral("missing.xml")},
        QStringLiteral("missing.xml"));
    row("file name of two lines",
        {QStringLiteral("--dump"), QStringLiteral("--description"), QStringLiteral("miss\ning.xml")},
        QStringLiteral("ing.xml"));
    row("directory", {QStringLiteral("--dump"), QStringLiteral("--description"), QStringLiteral(".")},
        QStringLiteral("directory"));
    row("empty file", given, QStringLiteral("given"), "");
    row("no XML", given, QStringLiteral("given"), "This is no camera description.\n");
    row("other XML", given, QStringLiteral("given"), "<?xml version=\"1.0\"?><html><body/></html>");
    row("XML breaks off", given, QStringLiteral("given"),
        "<?xml version=\"1.0\"?><RegisterDescription><Category Name=\"Root\"><pFeature>Wid");
    row("no root", given, QStringLiteral("given"),
        "<?xml version=\"1.0\"?><RegisterDescription ModelName=\"M\" VendorName=\"V\">"
        "<Integer Name=\"Width\"><Value>1</Value></Integer></RegisterDescription>");
    row("binary", given, QStringLiteral("given"), QByteArray(4096, '\xfe'));
    row("no archive", given, QStringLiteral("given"), "PK\x03\x04 and nothing else");
    row("screenshot of a broken file",
        {QStringLiteral("--screenshot"), QStringLiteral("a.png"), QStringLiteral("--description"),
         QStringLiteral("given")},
        QStringLiteral("given"), "<");
    row("picture cannot be written", {QStringLiteral("--screenshot"), QStringLiteral("/dev/null/a.png")},
        QStringLiteral("/dev/null/a.png"));
    row("unreachable camera",
        {QStringLiteral("--dump"), QStringLiteral("--camera"), QStringLiteral("Nobody-0")},
        QStringLiteral("Nobody-0"));
    row("no display", {}, QStringLiteral("display"));
    row("unreachable display", {}, QStringLiteral("display"), {},
        {{QStringLiteral("DISPLAY"), QStringLiteral(":4711")},
         {QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb")}});
    row("no session", given, QStringLiteral("given"), "<",
        {{QStringLiteral("XDG_RUNTIME_DIR"), QString()},
         {QStringLiteral("LC_ALL"), QStringLiteral("C")},
         {QStringLiteral("HOME"), QStringLiteral("/dev/null")}});
}

void TestViewerCli::failsInOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(const QByteArray, contents);
    QFETCH(const Changes, changes);
    QFETCH(const QString, named);
    if (arguments.contains(QStringLiteral("given"))) {
        arguments.replaceInStrings(QStringLiteral("given"), fileWith(QStringLiteral("given"), contents));
    }
    const Result result = run(arguments, changes);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.out, QString());
    QVERIFY2(result.err.startsWith(QStringLiteral("zelto-viewer: ")) && result.err.endsWith(QLatin1Char('\n'))
                 && result.err.count(QLatin1Char('\n')) == 1,
             qPrintable(result.err));
    QVERIFY2(result.err.contains(named), qPrintable(result.err));
}

void TestViewerCli::dumpsSilently_data()
{
    QTest::addColumn<Changes>("changes");
    const QString runtime = QStringLiteral("XDG_RUNTIME_DIR");
    QTest::newRow("as it is") << Changes{};
    QTest::newRow("no session") << Changes{{runtime, QString()}};
    QTest::newRow("session directory is gone") << Changes{{runtime, QStringLiteral("/dev/null/at/all")}};
    QTest::newRow("session directory of another") << Changes{{runtime, QStringLiteral("/usr")}};
    QTest::newRow("no locale") << Changes{{QStringLiteral("LC_ALL"), QStringLiteral("C")}};
    QTest::newRow("no home") << Changes{{QStringLiteral("HOME"), QStringLiteral("/dev/null")},
                                        {QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("/dev/null")}};
    QTest::newRow("unreachable display") << Changes{{QStringLiteral("DISPLAY"), QStringLiteral(":4711")}};
}

void TestViewerCli::dumpsSilently()
{
    QFETCH(const Changes, changes);
    const Result result = run({QStringLiteral("--dump")}, changes);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY(result.out.contains(QStringLiteral("Exposure Time [us]")));
}

void TestViewerCli::dumpShowsValues()
{
    const QString out = run({QStringLiteral("--dump")}).out;
    QVERIFY2(out.contains(QStringLiteral("\n        Exposure Time [us]\t5000\n")), qPrintable(out));
    const QStringList lines = out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        QVERIFY2(line.count(QLatin1Char('\t')) == 1 && !line.contains(QStringLiteral("<B>")),
                 qPrintable(line));
    }
}

void TestViewerCli::dumpIsLimited_data()
{
    QTest::addColumn<QString>("level");
    QTest::addColumn<int>("more"); // has more rows than the level below
    QTest::newRow("expert") << QStringLiteral("expert") << 0;
    QTest::newRow("guru") << QStringLiteral("guru") << 1;
    QTest::newRow("invisible") << QStringLiteral("invisible") << 2;
}

void TestViewerCli::dumpIsLimited()
{
    QFETCH(const QString, level);
    QFETCH(const int, more);
    const QStringList levels{QStringLiteral("beginner"), QStringLiteral("expert"), QStringLiteral("guru")};
    const auto rows = [this](const QString &name) {
        const Result result = run({QStringLiteral("--dump"), QStringLiteral("--visibility"), name});
        return result.exitCode == 0 ? result.out.count(QLatin1Char('\n')) : -1;
    };
    const auto below = rows(levels[more]);
    QVERIFY(below > 10);
    QVERIFY(rows(level) > below);
}

void TestViewerCli::dumpForgetsTheWindow()
{
    const QString guru =
        run({QStringLiteral("--dump"), QStringLiteral("--visibility"), QStringLiteral("guru")}).out;
    QSettings window(path(QStringLiteral("config/Zelto/zelto-viewer.conf")), QSettings::IniFormat);
    window.setValue(QStringLiteral("MainWindow/Level"), 0);
    window.sync();
    const QString out = run({QStringLiteral("--dump")}).out;
    QCOMPARE(out.count(QLatin1Char('\n')), guru.count(QLatin1Char('\n')));
}

void TestViewerCli::dumpsADescriptionFile()
{
    const Result result =
        run({QStringLiteral("--dump"), QStringLiteral("--description"), QStringLiteral(DESCRIPTION_FILE)});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY(result.out.contains(QStringLiteral("Exposure Time [us]\t")));
}

void TestViewerCli::dumpsSearchResults()
{
    const Result result =
        run({QStringLiteral("--dump"), QStringLiteral("--search"), QStringLiteral("exposure time")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY(result.out.contains(QStringLiteral("Exposure Time [us]\t5000\n")));
    QVERIFY(!result.out.contains(QStringLiteral("Width")));
}

void TestViewerCli::dumpsFavorites()
{
    const Result result = run({QStringLiteral("--favorites")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY2(result.out.startsWith(QStringLiteral("    Add favorites")), qPrintable(result.out));
    QCOMPARE(result.out.count(QLatin1Char('\n')), 1);

    const Result none = run({QStringLiteral("--favorites"), QStringLiteral("--search=exposure")});
    QCOMPARE(none.exitCode, 0);
    QCOMPARE(none.out, QString());
}

void TestViewerCli::answersAboutItself_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("named");
    QTest::newRow("help") << QStringLiteral("--help") << QStringLiteral("Usage: zelto-viewer ");
    QTest::newRow("version") << QStringLiteral("--version") << QStringLiteral("zelto-viewer ");
    QTest::newRow("list") << QStringLiteral("--list") << QString();
}

void TestViewerCli::answersAboutItself()
{
    QFETCH(const QString, option);
    QFETCH(const QString, named);
    const Result result = run({option}, {{QStringLiteral("XDG_RUNTIME_DIR"), QString()}});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY2(result.out.contains(named), qPrintable(result.out));
}

void TestViewerCli::takesScreenshots()
{
    const QString picture = path(QStringLiteral("picture of the tree"));
    const Result result = run({QStringLiteral("--screenshot"), picture, QStringLiteral("--expand")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.out, QString());
    const QImage image(picture, "PNG");
    QVERIFY(image.width() > 400 && image.height() > 300);
}

void TestViewerCli::fullDeviceIsAFailure()
{
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        QSKIP("needs /dev/full");
    }
    const Result result = run({QStringLiteral("--dump")}, {}, QStringLiteral("/dev/full"));
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
}

QTEST_GUILESS_MAIN(TestViewerCli)
#include "tst_viewercli.moc"
