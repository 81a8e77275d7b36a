// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingscomparison.h>
#include <zeltoviewercomponents/settings/settingsprogress.h>
#include <zeltoviewercomponents/settings/settingsreader.h>
#include <zeltoviewercomponents/settings/settingsreportdialog.h>

#include <platform/core/exception.h>
#include <support/memorycollection.h>

#include <QBuffer>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <functional>

using namespace ParameterCollection;

namespace {

using CollectionPtr = QSharedPointer<MemoryCollection>;
using Change = std::function<void(MemoryCollection &)>;

// A camera with plain features, ones that limit each other, and selectors that nest.
CollectionPtr newCamera()
{
    const QString root = "Root";
    const auto camera = CollectionPtr::create();
    camera->addString("UserID", root, "left");
    camera->addInteger("Width", root, 640, 0, 640);
    camera->addInteger("OffsetX", root, 0, 0, 0);
    camera->addFloat("Exposure", root, 5000.0, 10.0, 1e6);
    camera->addBoolean("Reverse", root);
    camera->addCommand("Start", root);
    camera->addEnum("Source", root, {"A", "B"}, "A");
    camera->addInteger("Channel", root, 1, 0, 2);
    camera->addEnum("Trigger", root, {"Off", "On"}, "Off");
    camera->addFloat("Gain", root, 1.0, 0.0, 24.0);
    camera->addString("Serial", root, "4711");
    camera->get<MemoryPlain>("Serial")->edit([](ParameterData &data) { data.isWritable = false; });
    camera->select("Source", "Trigger");
    camera->select("Source", "Channel");
    camera->select("Channel", "Gain");
    return camera;
}

// The sum of the width and its offset never exceeds the sensor's width.
void limitEachOther(MemoryCollection &camera)
{
    const auto width = camera.get<MemoryInteger>("Width");
    const auto offset = camera.get<MemoryInteger>("OffsetX");
    const auto limit = [](MemoryInteger &other, const MemoryInteger &written) {
        const qint64 used = static_cast<const IntegerParameterData &>(*written.snapshot).value;
        other.edit([used](IntegerParameterData &data) { data.maximum = 640 - used; });
    };
    MemoryInteger *const one = width.data();
    MemoryInteger *const two = offset.data();
    one->written = [=] { limit(*two, *one); };
    two->written = [=] { limit(*one, *two); };
}

QString textOf(const FeatureSettings &settings)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    settings.write(buffer);
    QStringList lines = QString::fromUtf8(buffer.data()).split('\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) { return line.startsWith('#'); });
    return lines.join(' ').replace('\t', '=');
}

FeatureSettings settingsFrom(const QByteArray &text)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return FeatureSettings::read(buffer);
}

// Assignments as "a=1 b=2".
FeatureSettings assignments(QString text)
{
    return settingsFrom(text.replace('=', '\t').replace(' ', '\n').toUtf8());
}

bool finish(SettingsTask &task)
{
    QSignalSpy finished(&task, SIGNAL(finished()));
    if (!task.isRunning()) {
        task.start();
    }
    return finished.wait(20000) && !task.isRunning();
}

QStringList selectorValues(const MemoryCollection &camera)
{
    return {camera.node("Source")->snapshot->valueString, camera.node("Channel")->snapshot->valueString};
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void files_data();
    void files();
    void otherFiles_data();
    void otherFiles();
    void badFiles_data();
    void badFiles();
    void unwritableFiles_data();
    void unwritableFiles();
    void differences_data();
    void differences();
    void reading_data();
    void reading();
    void cancelledReadingPutsSelectorsBack();
    void applying_data();
    void applying();
    void former();
    void aPartOfTheSettings();
    void lostInTheMiddle();
    void cancelledInTheMiddle();
    void progressShowsAfterAWhile();
    void reportDialog();
};

void TestSettings::files_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("plain") << "5000" << QByteArray("5000");
    QTest::newRow("empty") << "" << QByteArray("");
    QTest::newRow("blanks around") << " a b  " << QByteArray(" a b \\s");
    QTest::newRow("line breaks and tabs") << "a\tb\nc\r" << QByteArray("a\\tb\\nc\\r");
    QTest::newRow("backslashes") << "C:\\new\\" << QByteArray("C:\\\\new\\\\");
    QTest::newRow("comment sign") << "# no comment" << QByteArray("# no comment");
    QTest::newRow("other script") << QString::fromUtf8("Größe 大") << QByteArray("Größe 大");
    QTest::newRow("null") << QString(QChar(0)) << QByteArray("\\0");
}

void TestSettings::files()
{
    QFETCH(const QString, value);
    QFETCH(const QByteArray, written);
    FeatureSettings settings;
    settings.origin = {"Vendor", "Model: 7", "ZS 1", QDateTime({2026, 1, 2}, {3, 4, 5})};
    settings.nodeMaps = {
        {"@CameraDevice", {{"Source", "A", 0}, {"UserID", value, 0}}, {{"Source", {"UserID"}}}},
        {"@Stream", {{"Size", "1", 0}}, {}}};
    const QTemporaryDir dir;
    const QString fileName = dir.filePath("settings.txt");
    settings.save(fileName);
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY2(text.contains("\nUserID\t" + written + '\n'), text.constData());
    for (const QByteArray &bytes : {text, QByteArray(text).replace('\n', "\r\n"), "\xef\xbb\xbf" + text}) {
        const FeatureSettings read = settingsFrom(bytes);
        QCOMPARE(read.nodeMaps.size(), 2);
        QCOMPARE(read.nodeMaps[0].assignments[1].value, value);
        QCOMPARE(read.nodeMaps[0].assignments[1].line, 10);
        QCOMPARE(read.nodeMaps[0].selected, settings.nodeMaps[0].selected);
        QCOMPARE(read.nodeMaps[1].name, "@Stream");
        QCOMPARE(read.origin.model, settings.origin.model);
        QCOMPARE(read.origin.serialNumber, settings.origin.serialNumber);
        QCOMPARE(read.origin.taken, settings.origin.taken);
        QVERIFY(compare(read, settings).isEmpty());
    }
}

void TestSettings::otherFiles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("read");
    QTest::newRow("blanks") << QByteArray("Width 640\n  Gain   1.5  \n") << "Width=640 Gain=1.5";
    QTest::newRow("blanks within the value") << QByteArray("UserID left camera\n") << "UserID=left camera";
    QTest::newRow("backslashes are plain") << QByteArray("UserID\tC:\\new\n") << "UserID=C:\\\\new";
    QTest::newRow("comments, no last line break")
        << QByteArray("# made elsewhere\n#\n\nWidth\t640") << "Width=640";
    QTest::newRow("full names") << QByteArray("@CameraDevice/Width\t640\n") << "@CameraDevice/Width=640";
    QTest::newRow("nothing") << QByteArray() << "";
}

void TestSettings::otherFiles()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, read);
    QCOMPARE(textOf(settingsFrom(text)), read);
}

void TestSettings::badFiles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("named");
    const QByteArray good = "Width\t640\n";
    QTest::newRow("no name") << good + "= 5\n"
                             << "line 2: \"=\"";
    QTest::newRow("no value") << good + good + "Gain\n"
                              << "line 3: Gain";
    QTest::newRow("not UTF-8") << good + "UserID\t\xff\xfe\n"
                               << "line 2";
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\0\1\2\n\0\0",
                                          9)
                            << "line 1";
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n", 8) << "line 1";
    QTest::newRow("endless line") << "UserID\t" + QByteArray(1 << 20, 'x') << "line 1";
    QTest::newRow("endless name") << QByteArray(100000, 'x') + "\t1\n"
                                  << "line 1";
    QTest::newRow("50 MB") << QByteArray("# nothing but remarks\n").repeated(50 * 1024 * 1024 / 22) << "MiB";
    QTest::newRow("too many values") << good.repeated(100001) << "line 100001";
    QTest::newRow("markup") << QByteArray("<?xml version=\"1.0\"?>\n") << "line 1";
}

void TestSettings::badFiles()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, named);
    try {
        settingsFrom(text);
        QFAIL("was taken for settings");
    } catch (const Core::Exception::BaseException &exception) {
        const QString message = exception.getMessage();
        QVERIFY2(message.contains(named) && message.size() < 200 && !message.contains('\n'),
                 qPrintable(message));
    }
}

void TestSettings::unwritableFiles_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("no folder") << "/nowhere/at/all/settings.txt";
    QTest::newRow("read-only folder") << "/proc/settings.txt";
    QTest::newRow("folder") << "/";
}

void TestSettings::unwritableFiles()
{
    QFETCH(const QString, fileName);
    QVERIFY_EXCEPTION_THROWN(assignments("Width=1").save(fileName), Core::Exception::BaseException);
    QVERIFY_EXCEPTION_THROWN(FeatureSettings::load(fileName), Core::Exception::BaseException);
}

void TestSettings::differences_data()
{
    QTest::addColumn<QString>("here");
    QTest::addColumn<QString>("there");
    QTest::addColumn<QStringList>("different");
    const QString selected = "FooSelector=A Gain=1 FooSelector=B Gain=2 FooSelector=A";
    QTest::newRow("same") << "Width=640 Gain=1.5"
                          << "Gain=1.5 Width=640" << QStringList();
    QTest::newRow("forms of numbers")
        << "A=16 B=1e3 C=true D=0.1 E=9007199254740993"
        << "A=0x10 B=1000 C=1 D=0.10000000149 E=9007199254740993" << QStringList();
    QTest::newRow("large integers") << "E=9007199254740993"
                                    << "E=9007199254740992" << QStringList{"E"};
    QTest::newRow("digits of double precision") << "A=30.000001 B=5000"
                                                << "A=30.000002 B=5000.0001" << QStringList{"A", "B"};
    QTest::newRow("words") << "A=Off B=0 C=1"
                           << "A=off B=-0 C=true" << QStringList{"A"};
    QTest::newRow("values") << "Width=640 Gain=1"
                            << "Width=641 Gain=1" << QStringList{"Width"};
    QTest::newRow("only here, only there") << "A=1 B=1"
                                           << "B=1 C=1" << QStringList{"+A", "-C"};
    QTest::newRow("selectors") << selected << QString(selected).replace("=2", "=3")
                               << QStringList{"Gain [FooSelector=B]"};
    QTest::newRow("order of entries")
        << selected << "FooSelector=B Gain=2 FooSelector=A Gain=1" << QStringList();
    QTest::newRow("end of a selector")
        << selected << selected + " FooSelector=B" << QStringList{"FooSelector"};
}

void TestSettings::differences()
{
    QFETCH(const QString, here);
    QFETCH(const QString, there);
    QFETCH(const QStringList, different);
    QStringList found;
    const auto differences = compare(assignments(here), assignments(there));
    for (const SettingsDifference &difference : differences) {
        const bool isHere = difference.kind != SettingsDifference::Kind::OnlyThere;
        const QString kind = difference.kind == SettingsDifference::Kind::Different ? "" : isHere ? "+" : "-";
        found.append(kind + (isHere ? difference.here : difference.there).title());
    }
    QCOMPARE(found, different);
}

void TestSettings::reading_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("read");
    QTest::addColumn<QString>("noted");
    const QString plain = "UserID=left Width=640 OffsetX=0 Exposure=5000 Reverse=false ";
    const QString all = plain
        + "Source=A Trigger=Off Source=B Trigger=Off Source=A "
          "Channel=0 Gain=1 Channel=1 Gain=1 Channel=2 Gain=1 Channel=1 "
          "Source=B Channel=0 Gain=1 Channel=1 Gain=1 Channel=2 Gain=1 Channel=1 Source=A";
    const auto set = [](const char *feature, bool readable, bool writable) {
        return Change([=](MemoryCollection &camera) {
            auto *const node = camera.node(feature);
            node->snapshot->isReadable = readable;
            node->snapshot->isWritable = writable;
        });
    };
    QTest::newRow("all") << Change() << all << "";
    QTest::newRow("not writable now")
        << set("Exposure", true, false) << QString(all).remove("Exposure=5000 ") << "";
    QTest::newRow("not readable now")
        << set("UserID", false, true) << QString(all).remove("UserID=left ") << "";
    QTest::newRow("selector cannot be changed") << set("Source", true, false)
                                                << plain
            + "Source=A Trigger=Off Source=A Channel=0 Gain=1 Channel=1 Gain=1 Channel=2 Gain=1 "
              "Channel=1 Source=A"
                                                << "";
    QTest::newRow("selector refuses all") << Change([](MemoryCollection &camera) {
        camera.node("Channel")->fail({"setValueFromString"}, GenICam::AccessException("Channel is locked"));
    })
                                          << plain
            + "Source=A Trigger=Off Source=B Trigger=Off Source=A Channel=1 Gain=1 Channel=1 "
              "Source=B Channel=1 Gain=1 Channel=1 Source=A"
                                          << "Channel=0 cannot be chosen: Channel is locked";
    QTest::newRow("an entry that cannot be chosen") << Change([](MemoryCollection &camera) {
        auto *const node = camera.node("Source");
        node->written = [node] {
            if (node->snapshot->valueString == "B") {
                node->change([](ParameterData &data) { data.valueString = "A"; });
                throw GenICam::AccessException("no B now");
            }
        };
    })
                                                    << plain
            + "Source=A Trigger=Off Source=A Channel=0 Gain=1 Channel=1 Gain=1 Channel=2 Gain=1 "
              "Channel=1 Source=A"
                                                    << "Source=B cannot be chosen: no B now";
    QTest::newRow("a table") << Change([](MemoryCollection &camera) {
        camera.addInteger("Index", "Root", 0, 0, 256);
        camera.select("Index", "Reverse");
    }) << QString(all).remove("Reverse=false ")
                             << "Index selects among more than 256 values";
    QTest::newRow("a selector of many") << Change([](MemoryCollection &camera) {
        camera.addInteger("PortSelector", "Root", 7, 0, 256);
        camera.select("PortSelector", "Reverse");
    }) << QString(all).replace("Reverse=false ", "PortSelector=7 Reverse=false PortSelector=7 ")
                                        << "PortSelector selects among more than 256 values";
    QTest::newRow("too many combinations") << Change([](MemoryCollection &camera) {
        for (const char *const name : {"One", "Two"}) {
            camera.addInteger(name, "Root", 0, 0, 99);
        }
        camera.select("One", "Reverse");
        camera.select("Two", "Reverse");
    }) << QString() << "Two makes more than 4096 combinations";
    QTest::newRow("streamable") << Change([](MemoryCollection &camera) {
        for (const char *const name : {"Width", "Gain", "Serial", "Start"}) {
            camera.node(name)->properties.insert("Streamable", "Yes");
        }
    })
                                << QString("Width=640 " + all.mid(all.indexOf("Channel=0")) + " Serial=4711")
                                       .replace("Width=640 ", "Width=640 Source=A ")
                                << "";
    QTest::newRow("circle of selectors") << Change([](MemoryCollection &camera) {
        camera.node("Channel")->properties.insert("pSelected", "Gain\tSource\tChannel\tNobody");
    }) << QString() << "";
}

void TestSettings::reading()
{
    QFETCH(const Change, change);
    QFETCH(const QString, read);
    QFETCH(const QString, noted);
    const auto camera = newCamera();
    if (change) {
        change(*camera);
    }
    const QStringList selectors = selectorValues(*camera);
    SettingsReader reader({{"@CameraDevice", camera}});
    QVERIFY(finish(reader));
    if (!read.isEmpty()) {
        QCOMPARE(textOf(reader.settings()), read);
    }
    QVERIFY2(reader.notes().join('\n').contains(noted) && reader.notes().isEmpty() == noted.isEmpty(),
             qPrintable(reader.notes().join('\n')));
    QCOMPARE(selectorValues(*camera), selectors);
    QCOMPARE(camera->get<MemoryCommand>("Start")->executions, 0);
}

void TestSettings::cancelledReadingPutsSelectorsBack()
{
    const auto camera = newCamera();
    const QStringList selectors = selectorValues(*camera);
    int cancelled = 0;
    for (int accesses = 1;; ++accesses) {
        SettingsReader reader({{"@CameraDevice", camera}});
        int left = accesses;
        for (const QString &name : camera->childNames("Root", 0, false)) {
            camera->node(name)->before = [&](const QString &operation) {
                if (operation == "scheduleParameterDataChangedCheck" && --left == 0) {
                    reader.cancel();
                }
            };
        }
        QVERIFY(finish(reader));
        QCOMPARE(selectorValues(*camera), selectors);
        if (!reader.isCancelled()) {
            break;
        }
        ++cancelled;
    }
    QVERIFY(cancelled > 20); // at each access once
}

void TestSettings::applying_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("report"); // of each feature that is not unchanged
    QTest::addColumn<QStringList>("values"); // feature=value in the end
    QTest::newRow("unchanged") << Change() << "UserID=left Width=0x280 Exposure=5e3 Reverse=0"
                               << "" << QStringList();
    QTest::newRow("digits of double precision") << Change() << "Exposure=5000.0001"
                                                << "Exposure:0" << QStringList{"Exposure=5000.0001"};
    QTest::newRow("set") << Change() << "UserID=x Width=16 Exposure=20.5 Reverse=1"
                         << "UserID:0 Width:0 Exposure:0 Reverse:0"
                         << QStringList{"UserID=x", "Width=16", "Exposure=20.5", "Reverse=true"};
    QTest::newRow("limits, offset first") << Change(limitEachOther) << "OffsetX=320 Width=320"
                                          << "OffsetX:0 Width:0" << QStringList{"OffsetX=320", "Width=320"};
    QTest::newRow("limits, width first") << Change(limitEachOther) << "Width=320 OffsetX=320"
                                         << "Width:0 OffsetX:0" << QStringList{"OffsetX=320", "Width=320"};
    QTest::newRow("missing, refused, set")
        << Change() << "Nobody=1 Width=9999 Reverse=maybe UserID=x"
        << "Nobody:3 Width:2 Reverse:2 UserID:0" << QStringList{"Width=640"};
    QTest::newRow("command") << Change() << "Start=1"
                             << "Start:2" << QStringList();
    QTest::newRow("read-only") << Change() << "Serial=4711 Serial=1"
                               << "Serial:2" << QStringList{"Serial=4711"};
    QTest::newRow("selected") << Change() << "Source=A Trigger=On Source=B Trigger=Off Source=A"
                              << "Trigger [Source=A]:0" << QStringList{"Trigger=On", "Source=A"};
    QTest::newRow("another entry at the end")
        << Change() << "Source=A Trigger=On Source=B Channel=2 Gain=3"
        << "Trigger [Source=A]:0 Source:0 Channel [Source=B]:0 "
           "Gain [Source=B, Channel=2]:0"
        << QStringList{"Source=B", "Channel=2", "Gain=3", "Trigger=Off"};
    QTest::newRow("no such entry") << Change() << "Source=C Trigger=On Source=A Exposure=20"
                                   << "Trigger [Source=C]:2 Exposure:0"
                                   << QStringList{"Trigger=Off", "Source=A"};
    QTest::newRow("in front of its selector") << Change([](MemoryCollection &camera) {
        auto *const user = camera.node("UserID");
        camera.node("Trigger")->before = [user](const QString &operation) {
            if (operation == "setValueFromString" && user->writes.isEmpty()) {
                throw GenICam::AccessException("locked"); // until the pass after
            }
        };
    }) << "Trigger=On Source=B UserID=x"
                                              << "Trigger [Source=A]:0 Source:0 UserID:0"
                                              << QStringList{"Source=B", "Trigger=Off"};
    QTest::newRow("camera has its own way") << Change([](MemoryCollection &camera) {
        auto *const width = camera.get<MemoryInteger>("Width").data();
        width->written = [width] {
            width->edit([](IntegerParameterData &data) {
                data.value = 333;
                data.valueString = "333";
            });
        };
    }) << "Width=16 UserID=x"
                                            << "Width:4 UserID:0" << QStringList{"Width=333"};
    QTest::newRow("changed by a later one") << Change([](MemoryCollection &camera) {
        auto *const width = camera.get<MemoryInteger>("Width").data();
        camera.node("Reverse")->written = [width] {
            width->edit([](IntegerParameterData &data) {
                data.value = 0;
                data.valueString = "0";
            });
        };
    }) << "Width=16 Reverse=true"
                                            << "Width:0 Reverse:0" << QStringList{"Width=16", "Reverse=true"};
    QTest::newRow("refuses everything") << Change([](MemoryCollection &camera) {
        for (const QString &name : camera.childNames("Root", 0, false)) {
            camera.node(name)->fail({"setValueFromString"}, GenICam::AccessException("no"));
        }
    }) << "UserID=left Width=16 Source=B Trigger=On"
                                        << "Width:2 Source:2 Trigger [Source=B]:2"
                                        << QStringList{"Width=640", "Source=A"};
}

void TestSettings::applying()
{
    QFETCH(const Change, change);
    QFETCH(const QString, file);
    QFETCH(const QString, report);
    QFETCH(const QStringList, values);
    const auto camera = newCamera();
    if (change) {
        change(*camera);
    }
    SettingsApplier applier(assignments(file), {{"@CameraDevice", camera}}, SettingsApplier::Before::Forget);
    QVERIFY(finish(applier));
    QStringList found;
    QStringList unchanged;
    for (const SettingsReport::Entry &entry : applier.report().entries) {
        if (entry.result == SettingsReport::Result::Unchanged) {
            unchanged.append(entry.setting.name);
        } else {
            found.append(QString("%1:%2").arg(entry.setting.title()).arg(int(entry.result)));
        }
        QCOMPARE(SettingsReport::problem(entry).startsWith("line "),
                 entry.result > SettingsReport::Result::Unchanged);
        QCOMPARE(entry.result == SettingsReport::Result::Refused, !entry.reason.isEmpty());
    }
    QCOMPARE(found.join(' '), report);
    QCOMPARE(applier.report().problems().isEmpty(), applier.report().isSuccess());
    for (const QString &name : std::as_const(unchanged)) {
        QVERIFY(camera->node(name)->writes.isEmpty() || name == "Source" || name == "Trigger");
    }
    for (const QString &value : values) {
        QCOMPARE(camera->node(value.section('=', 0, 0))->snapshot->valueString, value.section('=', 1));
    }
    QCOMPARE(camera->get<MemoryCommand>("Start")->executions, 0);
}

void TestSettings::former()
{
    const auto camera = newCamera();
    limitEachOther(*camera);
    SettingsReader before({{"@CameraDevice", camera}});
    QVERIFY(finish(before));
    SettingsApplier applier(assignments("OffsetX=320 Width=320 Source=B Trigger=On Channel=2 Gain=24"),
                            {{"@CameraDevice", camera}});
    QVERIFY(finish(applier));
    QVERIFY2(applier.report().isSuccess(), qPrintable(applier.report().problems().join('\n')));
    const auto back = applier.putBack();
    QVERIFY(finish(*back));
    QVERIFY2(back->report().isSuccess(), qPrintable(back->report().problems().join('\n')));
    SettingsReader after({{"@CameraDevice", camera}});
    QVERIFY(finish(after));
    QCOMPARE(textOf(after.settings()), textOf(before.settings()));
}

void TestSettings::aPartOfTheSettings()
{
    const auto camera = newCamera();
    SettingsReader reader({{"@CameraDevice", camera}});
    QVERIFY(finish(reader));
    QList<FeatureSettings::Setting> part;
    for (FeatureSettings::Setting setting : reader.settings().settings()) {
        if (setting.title() == "Gain [Source=B, Channel=2]" || setting.title() == "Trigger [Source=B]") {
            setting.value = setting.name == "Gain" ? "7" : "On";
            part.append(setting);
        }
    }
    QCOMPARE(part.size(), 2);
    SettingsApplier applier(FeatureSettings::of(part), {{"@CameraDevice", camera}});
    QVERIFY(finish(applier));
    QCOMPARE(applier.report().count(SettingsReport::Result::Set), 2);
    QCOMPARE(applier.report().entries.size(), 2);
    QCOMPARE(selectorValues(*camera), (QStringList{"A", "1"}));
    SettingsReader after({{"@CameraDevice", camera}});
    QVERIFY(finish(after));
    QCOMPARE(compare(reader.settings(), after.settings()).size(),
             3); // both sources share the channels' gains
}

// A parameter of a camera that has gone publishes nothing any more.
void TestSettings::lostInTheMiddle()
{
    const auto camera = newCamera();
    camera->node("Width")->written = [&] {
        camera->before = [](const QString &operation) {
            if (operation == "parameter") {
                throw GenICam::TimeoutException("gone");
            }
        };
        camera->get<MemoryInteger>("Width")->blockSignals(true);
    };
    SettingsApplier applier(assignments("UserID=x Width=16 Exposure=20"), {{"@CameraDevice", camera}},
                            SettingsApplier::Before::Forget);
    QVERIFY(finish(applier));
    QVERIFY(applier.isLost());
    const SettingsReport &report = applier.report();
    QVERIFY(report.isLost && !report.isSuccess());
    QCOMPARE(report.entries[0].result, SettingsReport::Result::Set);
    QCOMPARE(report.entries[2].result, SettingsReport::Result::NotTried);
    QVERIFY2(report.summary().contains("lost"), qPrintable(report.summary()));
}

void TestSettings::cancelledInTheMiddle()
{
    const auto camera = newCamera();
    SettingsApplier applier(assignments("UserID=x Source=B Trigger=On Source=A Exposure=20"),
                            {{"@CameraDevice", camera}}, SettingsApplier::Before::Forget);
    camera->node("Trigger")->written = [&applier] { applier.cancel(); };
    QVERIFY(finish(applier));
    QVERIFY(applier.report().isCancelled);
    QCOMPARE(selectorValues(*camera), (QStringList{"A", "1"}));
    QCOMPARE(applier.report().entries.constLast().result, SettingsReport::Result::NotTried);
    QCOMPARE(camera->node("Exposure")->snapshot->valueString, "5000");
}

void TestSettings::progressShowsAfterAWhile()
{
    const auto camera = newCamera();
    bool isSlow = false;
    for (const QString &name : camera->childNames("Root", 0, false)) {
        camera->node(name)->before = [&](const QString &operation) {
            if (isSlow && operation == "scheduleParameterDataChangedCheck") {
                QTest::qSleep(40);
            }
        };
    }
    SettingsReader quick({{"@CameraDevice", camera}});
    SettingsProgress quickProgress(&quick, "Save");
    QVERIFY(finish(quick));
    QTest::qWait(600);
    QVERIFY(!quickProgress.isVisible());

    isSlow = true;
    SettingsReader slow({{"@CameraDevice", camera}});
    SettingsProgress progress(&slow, "Save");
    slow.start();
    QTRY_VERIFY_WITH_TIMEOUT(progress.isVisible(), 3000);
    QTRY_VERIFY(progress.findChild<QLabel *>()->text().contains(" of "));
    QTest::mouseClick(progress.findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(finish(slow));
    QVERIFY(slow.isCancelled());
    QVERIFY(!progress.isVisible());
    QCOMPARE(selectorValues(*camera), (QStringList{"A", "1"}));
}

void TestSettings::reportDialog()
{
    const auto camera = newCamera();
    SettingsApplier applier(assignments("UserID=x Width=9999 Reverse=0"), {{"@CameraDevice", camera}});
    QVERIFY(finish(applier));
    SettingsReportDialog dialog(applier.report());
    dialog.show();
    auto *const list = dialog.findChild<QTreeWidget *>();
    QCOMPARE(list->topLevelItemCount(), 1);
    QCOMPARE(list->topLevelItem(0)->text(0), "Width");
    QVERIFY(list->topLevelItem(0)->text(4).contains("9999"));
    QTest::keyClick(dialog.findChild<QCheckBox *>(), Qt::Key_Space);
    QCOMPARE(list->topLevelItemCount(), 3);
    QSignalSpy back(&dialog, SIGNAL(putBackRequested()));
    for (auto *const button : dialog.findChildren<QPushButton *>()) {
        if (button->text().contains("Before")) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    QCOMPARE(back.count(), 1);
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
