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
    void savesAndLoadsRegisters();
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

    /*! Runs the viewer with \a arguments, which blanks separate. */
    Result run(const QString &arguments, const Changes &changes = {}, const QString &outFile = {}) const;
    QString path(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestViewerCli::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

TestViewerCli::Result TestViewerCli::run(const QString &arguments, const Changes &changes,
                                         const QString &outFile) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QString::fromLatin1(display));
    }
    environment.insert("XDG_CONFIG_HOME", path("config"));
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
    process.start(VIEWER_PROGRAM, arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    Result result;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit) {
        result.exitCode = process.exitCode();
    }
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.err = QString::fromUtf8(process.readAllStandardError());
    return result;
}

void TestViewerCli::failsInOneLine_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named"); // what the line has to name
    QTest::addColumn<QByteArray>("contents"); // of the file "given"
    QTest::addColumn<Changes>("changes");

    const auto row = [](const char *arguments, const char *named, const Changes &changes = {}) {
        QTest::newRow(*arguments ? arguments : named) << arguments << named << QByteArray() << changes;
    };
    const auto fileRow = [](const char *name, const QByteArray &contents) {
        QTest::newRow(name) << "--dump --description given"
                            << "given" << contents << Changes();
    };
    row("--frobnicate", "frobnicate");
    row("stray", "stray");
    row("--dump --visibility wizard", "wizard");
    row("--dump --description", "description");
    row("--dump --description=", "--description");
    row("--dump --camera=", "--camera");
    row("--screenshot= --expand", "--screenshot");
    row("--dump --camera x --description y", "exclude each other");
    row("--editors --dump", "exclude each other");
    row("--list --search=x", "exclude each other");
    row("--dump --zeroed", "needs --description");
    row("--dump --registers=x --camera=y", "needs --description");
    row("--dump --save-registers=x", "exclude each other");
    row("--dump --registers missing --description " DESCRIPTION_FILE, "missing");
    row("--save-registers /dev/null/a", "/dev/null/a");
    row("--dump --description missing.xml", "missing.xml");
    row("--dump --description miss\ning.xml", "ing.xml");
    row("--dump --description .", "directory");
    row("--screenshot a.png --description /dev/null", "/dev/null");
    row("--screenshot /dev/null/a.png", "/dev/null/a.png");
    row("--dump --camera Nobody-0", "Nobody-0");
    row("", "display");
    row("", "display", {{"DISPLAY", ":4711"}, {"QT_QPA_PLATFORM", "xcb"}});
    row("--dump --description missing.xml", "missing.xml",
        {{"XDG_RUNTIME_DIR", QString()}, {"LC_ALL", "C"}, {"HOME", "/dev/null"}});
    fileRow("empty file", "");
    fileRow("no XML", "This is no camera description.\n");
    fileRow("other XML", "<?xml version=\"1.0\"?><html><body/></html>");
    fileRow("XML breaks off",
            "<?xml version=\"1.0\"?><RegisterDescription><Category Name=\"Root\"><pFeature>Wid");
    fileRow("no root",
            "<?xml version=\"1.0\"?><RegisterDescription ModelName=\"M\" VendorName=\"V\">"
            "<Integer Name=\"Width\"><Value>1</Value></Integer></RegisterDescription>");
    fileRow("binary", QByteArray(4096, '\xfe'));
    fileRow("no archive", "PK\x03\x04 and nothing else");
}

void TestViewerCli::failsInOneLine()
{
    QFETCH(QString, arguments);
    QFETCH(const QString, named);
    QFETCH(const QByteArray, contents);
    QFETCH(const Changes, changes);
    QFile file(path("given"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
    file.close();
    const Result result = run(arguments.replace(" given", ' ' + file.fileName()), changes);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.out, QString());
    QVERIFY2(result.err.startsWith("zelto-viewer: ") && result.err.endsWith(QLatin1Char('\n'))
                 && result.err.count(QLatin1Char('\n')) == 1,
             qPrintable(result.err));
    QVERIFY2(result.err.contains(named), qPrintable(result.err));
}

void TestViewerCli::dumpsSilently_data()
{
    QTest::addColumn<Changes>("changes");
    const QString runtime = "XDG_RUNTIME_DIR";
    QTest::newRow("as it is") << Changes{};
    QTest::newRow("no session") << Changes{{runtime, QString()}};
    QTest::newRow("session directory is gone") << Changes{{runtime, "/dev/null/at/all"}};
    QTest::newRow("session directory of another") << Changes{{runtime, "/usr"}};
    QTest::newRow("no locale") << Changes{{"LC_ALL", "C"}};
    QTest::newRow("no home") << Changes{{"HOME", "/dev/null"}, {"XDG_CONFIG_HOME", "/dev/null"}};
    QTest::newRow("unreachable display") << Changes{{"DISPLAY", ":4711"}};
}

void TestViewerCli::dumpsSilently()
{
    QFETCH(const Changes, changes);
    const Result result = run("--dump", changes);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY(result.out.contains("Exposure Time [us]"));
}

void TestViewerCli::dumpShowsValues()
{
    const QString out = run("--dump").out;
    QVERIFY2(out.contains("\n        Exposure Time [us]\t5000\n"), qPrintable(out));
    const QStringList lines = out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        QVERIFY2(line.count(QLatin1Char('\t')) == 1 && !line.contains("<B>"), qPrintable(line));
    }
}

void TestViewerCli::dumpIsLimited_data()
{
    QTest::addColumn<QString>("level");
    QTest::addColumn<int>("more"); // has more rows than the level below
    QTest::newRow("expert") << "expert" << 0;
    QTest::newRow("guru") << "guru" << 1;
    QTest::newRow("invisible") << "invisible" << 2;
}

void TestViewerCli::dumpIsLimited()
{
    QFETCH(const QString, level);
    QFETCH(const int, more);
    const QStringList levels{"beginner", "expert", "guru"};
    const auto rows = [this](const QString &name) {
        const Result result = run("--dump --visibility " + name);
        return result.exitCode == 0 ? result.out.count(QLatin1Char('\n')) : -1;
    };
    const auto below = rows(levels[more]);
    QVERIFY(below > 10);
    QVERIFY(rows(level) > below);
}

void TestViewerCli::dumpForgetsTheWindow()
{
    const QString guru = run("--dump --visibility guru").out;
    QSettings window(path("config/Zelto/zelto-viewer.conf"), QSettings::IniFormat);
    window.setValue("MainWindow/Level", 0);
    window.sync();
    const QString out = run("--dump").out;
    QCOMPARE(out.count(QLatin1Char('\n')), guru.count(QLatin1Char('\n')));
}

void TestViewerCli::dumpsADescriptionFile()
{
    const Result result = run("--dump --description " DESCRIPTION_FILE);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY(result.out.contains("Exposure Time [us]\t"));
}

void TestViewerCli::savesAndLoadsRegisters()
{
    const QString open = "--description " DESCRIPTION_FILE " ";
    const QString alive = run("--dump " + open).out;
    const QString zeroed = run("--dump --zeroed " + open).out;
    QVERIFY(zeroed.contains("Sensor Width [px]\t0\n") && alive != zeroed);
    const Result saved = run(open + "--save-registers " + path("state"));
    QCOMPARE(saved.exitCode, 0);
    QCOMPARE(saved.out + saved.err, QString());
    QCOMPARE(run("--dump " + open + "--registers " + path("state")).out, alive);
}

void TestViewerCli::dumpsSearchResults()
{
    const Result result = run("--dump --search exposuretime");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY(result.out.contains("Exposure Time [us]\t5000\n"));
    QVERIFY(!result.out.contains("Width"));
}

void TestViewerCli::dumpsFavorites()
{
    const Result result = run("--favorites");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY2(result.out.startsWith("    Add favorites"), qPrintable(result.out));
    QCOMPARE(result.out.count(QLatin1Char('\n')), 1);

    const Result none = run("--favorites --search=exposure");
    QCOMPARE(none.exitCode, 0);
    QCOMPARE(none.out, QString());
}

void TestViewerCli::answersAboutItself_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("named");
    QTest::newRow("help") << "--help"
                          << "Usage: zelto-viewer ";
    QTest::newRow("version") << "--version"
                             << "zelto-viewer ";
    QTest::newRow("list") << "--list" << QString();
}

void TestViewerCli::answersAboutItself()
{
    QFETCH(const QString, option);
    QFETCH(const QString, named);
    const Result result = run(option, {{"XDG_RUNTIME_DIR", QString()}});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY2(result.out.contains(named), qPrintable(result.out));
}

void TestViewerCli::takesScreenshots()
{
    const QString picture = path("picture");
    const Result result = run("--expand --screenshot " + picture);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.out, QString());
    const QImage image(picture, "PNG");
    QVERIFY(image.width() > 400 && image.height() > 300);
}

void TestViewerCli::fullDeviceIsAFailure()
{
    if (!QFile::exists("/dev/full")) {
        QSKIP("needs /dev/full");
    }
    const Result result = run("--dump", {}, "/dev/full");
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
}

QTEST_GUILESS_MAIN(TestViewerCli)
#include "tst_viewercli.moc"
