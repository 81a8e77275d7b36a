// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/options.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
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
    void answers_data();
    void answers();
    void dumpIsLimited_data();
    void dumpIsLimited();
    void dumpForgetsTheWindow();
    void savesAndLoadsRegisters();
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
    const QString error =
        parseOptions(QStringList("zelto-viewer") + arguments.split(u' ', Qt::SkipEmptyParts)).error;
    if (!error.isEmpty() && !arguments.startsWith("--frobnicate")) { // one that really runs is enough
        QVERIFY2(error.contains(named) && !error.contains(u'\n'), qPrintable(error));
        return;
    }
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

void TestViewerCli::answers_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<Changes>("changes");

    const auto row = [](const char *name, const char *arguments, const char *expected,
                        const Changes &changes = {}) {
        QTest::newRow(name) << arguments << expected << changes;
    };
    const char *const exposure = "\n        Exposure Time \\[us\\]\t5000\n";
    const QString runtime = "XDG_RUNTIME_DIR";
    row("as it is", "--dump", exposure);
    row("no session", "--dump", exposure, {{runtime, QString()}});
    row("session directory is gone", "--dump", exposure, {{runtime, "/dev/null/at/all"}});
    row("session directory of another", "--dump", exposure, {{runtime, "/usr"}});
    row("no locale", "--dump", exposure, {{"LC_ALL", "C"}});
    row("no home", "--dump", exposure, {{"HOME", "/dev/null"}, {"XDG_CONFIG_HOME", "/dev/null"}});
    row("unreachable display", "--dump", exposure, {{"DISPLAY", ":4711"}});
    row("a description file", "--dump --description " DESCRIPTION_FILE, "Exposure Time \\[us\\]\t");
    row("a search", "--dump --search exposuretime", "^(?!(.|\n)*Width)(.|\n)*Exposure Time \\[us\\]\t5000\n");
    row("favorites", "--favorites", "^    Add favorites[^\n]*\n$");
    row("favorites in a search", "--favorites --search=exposure", "^$");
    row("help", "--help", "Usage: zelto-viewer ", {{runtime, QString()}});
    row("version", "--version", "^zelto-viewer ", {{runtime, QString()}});
    row("list", "--list", "", {{runtime, QString()}});
}

void TestViewerCli::answers()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, expected);
    QFETCH(const Changes, changes);
    const Result result = run(arguments, changes);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err, QString());
    QVERIFY2(result.out.contains(QRegularExpression(expected)), qPrintable(result.out));
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
