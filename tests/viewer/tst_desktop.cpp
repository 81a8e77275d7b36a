// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/cameraaddress.h>
#include <viewer/options.h>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QMimeDatabase>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString desktopFile(const char *suffix)
{
    return QStringLiteral(DESKTOP_DIR "/org.zelto.viewer.") + QString::fromLatin1(suffix);
}

} // namespace

class TestDesktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void filesAgree();
    void filesAreValid_data();
    void filesAreValid();
    void contentsTellTheType_data();
    void contentsTellTheType();
    void manualHasEveryOption();
    void shellCompletes_data();
    void shellCompletes();
    void sessionOpensTheSameCamera_data();
    void sessionOpensTheSameCamera();

private:
    QTemporaryDir m_data;
};

void TestDesktop::initTestCase()
{
    const QDir data(m_data.path());
    QVERIFY(data.mkpath("mime/packages"));
    QVERIFY(QFile::copy(desktopFile("mime.xml"), data.filePath("mime/packages/org.zelto.viewer.xml")));
    qputenv("XDG_DATA_HOME", m_data.path().toLocal8Bit());
    qputenv("XDG_DATA_DIRS", "/nonexistent"); // what else is installed here
}

void TestDesktop::filesAgree()
{
    QSettings desktop(desktopFile("desktop"), QSettings::IniFormat);
    desktop.beginGroup("Desktop Entry");
    QVERIFY(QFile::exists(QStringLiteral(DESKTOP_DIR "/%1.svg").arg(desktop.value("Icon").toString())));
    // A file that is double-clicked comes as an argument of its own.
    QCOMPARE(desktop.value("Exec").toString(), "zelto-viewer %f");
    QCOMPARE(parseOptions({"zelto-viewer", "camera.xml"}).options.description, "camera.xml");
    QVERIFY(!parseOptions({"zelto-viewer", "a.xml", "b.xml"}).error.isEmpty());
    QVERIFY(!parseOptions({"zelto-viewer", "--camera", "x", "a.xml"}).error.isEmpty());

    QDomDocument metainfo;
    QVERIFY(metainfo.setContent(contents(desktopFile("metainfo.xml"))));
    const QDomElement component = metainfo.documentElement();
    QCOMPARE(component.firstChildElement("launchable").text(), "org.zelto.viewer.desktop");
    const QString type = component.firstChildElement("provides").firstChildElement("mediatype").text();
    QCOMPARE(desktop.value("MimeType").toString(), type); // a semicolon begins a comment here
    const QDomElement release = component.firstChildElement("releases").firstChildElement("release");
    QCOMPARE(release.attribute("version"), ZELTO_VERSION);
}

void TestDesktop::filesAreValid_data()
{
    QTest::addColumn<QString>("validator");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("metainfo") << "appstreamcli"
                              << QStringList{"validate", "--no-net", "--pedantic", "--explain",
                                             desktopFile("metainfo.xml")};
    QTest::newRow("desktop entry") << "desktop-file-validate" << QStringList{desktopFile("desktop")};
}

void TestDesktop::filesAreValid()
{
    QFETCH(QString, validator);
    QFETCH(QStringList, arguments);
    if (QStandardPaths::findExecutable(validator).isEmpty()) {
        QSKIP("The validator is not installed.");
    }
    QProcess process;
    process.start(validator, arguments);
    QVERIFY(process.waitForFinished());
    const QString report = QString::fromUtf8(process.readAll());
    QVERIFY2(process.exitCode() == 0 && !report.contains(" pedantic:"), qPrintable(report));
}

// Where the name does not: desktops go by what a name ends with, and .xml and .txt are anything.
void TestDesktop::contentsTellTheType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("type");
    const QByteArray xml = "<?xml version=\"1.0\"?>\n";
    QTest::newRow("description") << "camera" << xml + "<RegisterDescription ModelName=\"M\"/>"
                                 << "application/x-genicam-description+xml";
    QTest::newRow("other XML") << "page" << xml + "<page/>" << QString();
    QTest::newRow("settings") << "settings" << QByteArray("# Camera settings 1\nWidth=640\n")
                              << "text/x-zelto-camera-settings";
    QTest::newRow("other text") << "notes" << QByteArray("Width=640\n") << QString();
}

void TestDesktop::contentsTellTheType()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, data);
    QFETCH(QString, type);
    QCOMPARE(QMimeDatabase().mimeTypeForFileNameAndData(name, data).name(), type);
}

void TestDesktop::manualHasEveryOption()
{
    const QString manual = contents(MANUAL_FILE);
    const auto options = commandLineOptions();
    QVERIFY(options.size() > 20);
    for (const QCommandLineOption &option : options) {
        const QString name = QString(option.names().constFirst()).replace("-", "\\-");
        const QString text = option.description().replace("-", "\\-");
        QVERIFY2(manual.contains(QStringLiteral("\n\\fB\\-\\-%1\\fR").arg(name)), qPrintable(name));
        QVERIFY2(manual.contains(text), qPrintable(name));
    }
}

void TestDesktop::shellCompletes_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("replies");
    QTest::newRow("option") << "--vis"
                            << "--visibility";
    QTest::newRow("options") << "--co"
                             << "--compare --count";
    QTest::newRow("word") << "--visibility g"
                          << "guru";
    QTest::newRow("form") << "--output "
                          << "text json";
    QTest::newRow("file") << "--description ca"
                          << "FILES";
    QTest::newRow("no words") << "--camera x"
                              << "";
    QTest::newRow("argument") << "ca"
                              << "FILES";
}

void TestDesktop::shellCompletes()
{
    QFETCH(QString, line);
    QFETCH(QString, replies);
    // The functions of bash-completion, which need not be installed.
    const QString script = QStringLiteral("_init_completion() { cur=${W[-1]}; prev=${W[-2]}; }\n"
                                          "_filedir() { COMPREPLY=(FILES); }\n"
                                          "source '%1'\n"
                                          "IFS=' ' read -ra W <<< 'zelto-viewer %2'\n"
                                          "[[ '%2' == *' ' ]] && W+=('')\n"
                                          "_zelto_viewer\n"
                                          "echo \"${COMPREPLY[*]}\"\n")
                               .arg(QStringLiteral(COMPLETION_FILE), line);
    QProcess shell;
    shell.start("bash", {"-c", script});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(QString::fromUtf8(shell.readAllStandardError()), QString());
    QCOMPARE(QString::fromUtf8(shell.readAllStandardOutput()).trimmed(), replies);
}

void TestDesktop::sessionOpensTheSameCamera_data()
{
    QTest::addColumn<CameraAddress>("address");
    QTest::newRow("embedded") << CameraAddress();
    QTest::newRow("live") << CameraAddress::ofCamera("Zelto-1234");
    QTest::newRow("description") << CameraAddress::ofDescription("/tmp/a camera.xml");
    QTest::newRow("zeroed") << CameraAddress{"/tmp/camera.xml", {}, true, {}};
    QTest::newRow("registers") << CameraAddress{"/tmp/camera.xml", {}, false, "/tmp/camera.registers"};
}

void TestDesktop::sessionOpensTheSameCamera()
{
    QFETCH(CameraAddress, address);
    const ParsedOptions parsed = parseOptions(QStringList("zelto-viewer") + address.arguments());
    QCOMPARE(parsed.error, QString());
    const Options &options = parsed.options;
    QVERIFY(options.isInteractive());
    QVERIFY(
        (CameraAddress{options.description, options.camera, options.zeroed, options.registers} == address));
}

QTEST_GUILESS_MAIN(TestDesktop)
#include "tst_desktop.moc"
