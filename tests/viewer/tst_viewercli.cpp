// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/options.h>

#include <QDateTime>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
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
    void operations_data();
    void operations();
    void grabsImages();
    void settingsGoThroughStandardStreams();
    void streamableFeaturesAreTheSettings();
    void settingsOfAnotherModelNeedForce();
    void jsonIsOneDocument();
    void watchEndsCleanly();

private:
    struct Result
    {
        int exitCode = -1;
        QString out;
        QString err;
    };

    /*! Runs the viewer with \a arguments, which blanks separate. */
    Result run(const QString &arguments, const Changes &changes = {}, const QString &outFile = {},
               const QByteArray &in = {}) const;
    QString path(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestViewerCli::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

TestViewerCli::Result TestViewerCli::run(const QString &arguments, const Changes &changes,
                                         const QString &outFile, const QByteArray &in) const
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
    process.write(in);
    process.closeWriteChannel();
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
    row("a.xml stray", "stray");
    row("--dump --visibility wizard", "wizard");
    row("--dump --description", "description");
    row("--dump --description=", "--description");
    row("--dump --camera=", "--camera");
    row("--screenshot= --expand", "--screenshot");
    row("--dump --camera x --description y", "exclude each other");
    row("--editors --dump", "exclude each other");
    row("--list --search=x", "exclude each other");
    row("--grab x.png --grab-count 0", "--grab-count expects");
    row("--grab-count 2", "needs --grab");
    row("--stream-statistics soon", "soon");
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
    row("--get ExposureTme", "no feature ExposureTme; did you mean ExposureTime?");
    row("--set Width=320 --get @CameraDevice/Gian", "did you mean @CameraDevice/Gain?");
    row("--get Xyzzyxyzzy", "no feature Xyzzyxyzzy");
    row("--get TriggerSoftware", "TriggerSoftware");
    row("--execute Width", "Width");
    row("--watch Root --count 1", "Root: this is no feature");
    row("--get Width --save - --output json", "--save -");
    row("--set Width", "NAME=VALUE");
    row("--get=", "empty");
    row("--get Width --dump", "--dump");
    row("--watch Width --count 0", "--count");
    row("--interval 10", "--interval needs --watch");
    row("--get Width --force", "--force needs --load");
    row("--list --output json", "--output needs");
    row("--get Width --output xml", "xml");
    row("--load - --compare -", "only once");
    row("--load missing.txt", "missing.txt");
    row("--load .", "directory");
    row("--load given", "given: there are no settings");
    row("--save /nowhere/at.all", "/nowhere/at.all");
    row("--save /dev/full/x", "/dev/full/x");
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
    QVERIFY(run(open + "--save-registers -").out.contains("\n0x0"));
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

void TestViewerCli::operations_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QByteArray>("file"); // "given"
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("out"); // lines joined by blanks, tabs as ":"
    QTest::addColumn<QString>("named"); // in the one line of error, empty for none
    const QByteArray narrow("Width\t640\n");
    const auto row = [](const char *arguments, int exitCode, const char *out, const char *named = "",
                        const QByteArray &file = {}) {
        QTest::newRow(arguments) << arguments << file << exitCode << out << named;
    };
    row("--get Width --get @CameraDevice/ExposureTime", 0, "Width:1920 @CameraDevice/ExposureTime:5000");
    row("--get Width --set Width=640 --get Width", 0, "Width:1920 Width:640");
    row("--set TriggerSelector=LineStart --get TriggerDelay", 0, "TriggerDelay:20");
    row("--set Width=1 --get Width", 1, "", "Width: \"1\" is out of range");
    row("--set DeviceModelName=x --set Width=640 --get Width", 1, "", "DeviceModelName");
    row("--execute UserSetLoad --get Width", 0, "Width:1920");
    row("--load given --get Width", 0, "Width:640", "", narrow);
    row("--compare given --get Width", 1, "Width:1920:640 Width:1920", "", "Width 640\n");
    row("--load given --compare given", 0, "", "", narrow);
    row("--load given --get Height", 1, "", "given: line 2: Width: refused: ", "Height\t64\nWidth\tmuch\n");
    row("--load given --get Nobody", 2, "", "no feature Nobody", narrow);
    row("--load given", 1, "", "line 1: Nobody: the camera has no such feature", "Nobody\t1\n");
    row("--watch Width --count 2 --interval 1", 0, "", "");
    row("--grab given", 2, "", "nothing is overwritten");
    row("--set TriggerMode=On --stream-statistics 1", 1,
        "complete:0 incomplete:0 dropped:0 framesPerSecond:0.00 bytesPerSecond:0", "no image came");
}

void TestViewerCli::operations()
{
    QFETCH(QString, arguments);
    QFETCH(const QByteArray, file);
    QFETCH(const int, exitCode);
    QFETCH(const QString, out);
    QFETCH(const QString, named);
    QFile given(path("given"));
    QVERIFY(given.open(QIODevice::WriteOnly) && given.write(file) == file.size());
    given.close();
    const Result result = run(arguments.replace(" given", ' ' + given.fileName()));
    if (!result.out.startsWith("time,")) {
        // Of a comparison with a part of the settings, what is only on the camera is left out here.
        QStringList lines = result.out.split('\n', Qt::SkipEmptyParts);
        lines.removeIf([&](const QString &line) { return line.endsWith('\t'); });
        QCOMPARE(lines.join(' ').replace('\t', ':'), out);
    }
    QVERIFY2(result.err.contains(named) && result.err.count('\n') == (named.isEmpty() ? 0 : 1),
             qPrintable(result.err));
    QVERIFY(result.exitCode == exitCode || (arguments.contains("--compare") && result.exitCode == 1));
}

// Each of the kinds, with the settings that were made just before; several in numbered files.
void TestViewerCli::grabsImages()
{
    const Result result =
        run(QStringLiteral("--set Width=640 --set Height=480 --grab %1 --grab %2 --grab-count 2 "
                           "--stream-statistics 1")
                .arg(path("a.png"), path("b.pgm")));
    QVERIFY2(result.exitCode == 0, qPrintable(result.err));
    for (const char *const name : {"a-0001.png", "a-0002.png", "b-0001.pgm", "b-0002.pgm"}) {
        QCOMPARE(QImage(path(name)).size(), QSize(640, 480));
    }
    QVERIFY(result.out.startsWith("complete\t") && !result.out.startsWith("complete\t0\n"));
}

void TestViewerCli::settingsGoThroughStandardStreams()
{
    const Result saved = run("--set Width=640 --set DeviceUserID=a\tb --save -");
    QCOMPARE(saved.exitCode, 0);
    QCOMPARE(saved.err, QString());
    QVERIFY2(saved.out.contains("\nWidth\t640\n") && saved.out.contains("\nDeviceUserID\ta\\tb\n"),
             qPrintable(saved.out));
    const Result loaded = run("--load - --get Width --get DeviceUserID", {}, {}, saved.out.toUtf8());
    QCOMPARE(loaded.exitCode, 0);
    QCOMPARE(loaded.out, "Width\t640\nDeviceUserID\ta\\tb\n");
    QCOMPARE(run("--compare -", {}, {}, saved.out.toUtf8()).exitCode, 1);
    QCOMPARE(run("--set Width=640 --set DeviceUserID=a\tb --compare -", {}, {}, saved.out.toUtf8()).exitCode,
             0);
    if (QFile::exists("/dev/full")) {
        QCOMPARE(run("--save -", {}, "/dev/full").exitCode, 2);
        QCOMPARE(run("--get Width", {}, "/dev/full").exitCode, 2);
    }
}

void TestViewerCli::streamableFeaturesAreTheSettings()
{
    QFile description(DESCRIPTION_FILE);
    QVERIFY(description.open(QIODevice::ReadOnly));
    QByteArray xml = description.readAll();
    for (const char *const feature : {"<Integer Name=\"Width\"", "<Float Name=\"TriggerDelay\""}) {
        const auto end = xml.indexOf('>', xml.indexOf(feature)) + 1;
        xml.insert(end, "<Streamable>Yes</Streamable>");
    }
    QFile changed(path("streamable.xml"));
    QVERIFY(changed.open(QIODevice::WriteOnly) && changed.write(xml) == xml.size());
    changed.close();
    QStringList lines = run("--description " + changed.fileName() + " --save -").out.split('\n');
    lines.removeIf([](const QString &line) { return line.startsWith('#') || line.isEmpty(); });
    QCOMPARE(lines.filter("Width\t").size(), 1);
    QVERIFY(lines.filter("TriggerDelay\t").size() >= 1);
    QCOMPARE(lines.size(), 1 + lines.filter("Trigger").size());
}

void TestViewerCli::settingsOfAnotherModelNeedForce()
{
    const QByteArray other("# Camera settings 1\n# Model: Other\nWidth\t640\n");
    const Result refused = run("--load - --get Width", {}, {}, other);
    QCOMPARE(refused.exitCode, 2);
    QVERIFY2(refused.err.contains("Other") && refused.err.contains("--force"), qPrintable(refused.err));
    const Result forced = run("--force --load - --get Width", {}, {}, other);
    QCOMPARE(forced.exitCode, 0);
    QCOMPARE(forced.out, "Width\t640\n");
}

void TestViewerCli::jsonIsOneDocument()
{
    const auto parsed = [this](const QString &arguments) {
        const Result result = run(arguments + " --output json", {}, {}, "Width\t640\n");
        return QJsonDocument::fromJson(result.out.toUtf8());
    };
    const QJsonObject both = parsed("--get Width --get ExposureTime --compare -").object();
    const QJsonArray values = both.value("get").toArray();
    QCOMPARE(values.size(), 2);
    QCOMPARE(values[1].toObject().value("fullName").toString(), "@CameraDevice/ExposureTime");
    QCOMPARE(values[1].toObject().value("value").toString(), "5000");
    bool hasWidth = false;
    for (const QJsonValue difference : both.value("compare").toArray()) {
        const QJsonObject object = difference.toObject();
        hasWidth = hasWidth
            || (object.value("name") == "Width" && object.value("camera") == "1920"
                && object.value("file") == "640");
    }
    QVERIFY(hasWidth);
    const QJsonArray tree = parsed("--dump --search ExposureTime").array();
    const QByteArray text = QJsonDocument(tree).toJson();
    QVERIFY2(tree.size() >= 1 && text.contains("\"value\": \"5000\""), text.constData());
}

void TestViewerCli::watchEndsCleanly()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", path("config"));
    process.setProcessEnvironment(environment);
    process.start(VIEWER_PROGRAM,
                  {"--set", "TriggerSelector=FrameStart", "--watch", "ExposureTime", "--watch",
                   "DeviceTemperature", "--interval", "20"});
    QByteArray out;
    while (out.count('\n') < 5 && process.waitForReadyRead(20000)) {
        out += process.readAllStandardOutput();
    }
    process.terminate(); // as Ctrl+C does
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray());
    out += process.readAllStandardOutput();
    QVERIFY(out.endsWith('\n'));
    const QList<QByteArray> lines = out.trimmed().split('\n');
    QCOMPARE(lines[0], "time,ExposureTime,DeviceTemperature");
    QDateTime before;
    for (const QByteArray &line : lines.mid(1)) {
        const QList<QByteArray> cells = line.split(',');
        QCOMPARE(cells.size(), 3);
        const QDateTime time = QDateTime::fromString(QString::fromLatin1(cells[0]), Qt::ISODateWithMs);
        QVERIFY2(time.isValid() && (!before.isValid() || time > before), line.constData());
        before = time;
        QCOMPARE(cells[1], "5000");
        QVERIFY(cells[2].toDouble() > 0.0);
    }
}

QTEST_GUILESS_MAIN(TestViewerCli)
#include "tst_viewercli.moc"
