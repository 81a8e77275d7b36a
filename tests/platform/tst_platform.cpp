// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <platform/core/exception.h>
#include <platform/core/formatdoublevalue.h>
#include <platform/core/guard.h>
#include <platform/core/logging.h>
#include <platform/core/savefile.h>
#include <platform/genicam/genericexception.h>
#include <platform/parametercollection/parameterdata.h>
#include <platform/parametercollection/valuewords.h>

#include <support/logcapture.h>
#include <support/table.h>

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <functional>
#include <limits>
#include <thread>
#include <vector>

#include <signal.h>
#include <sys/resource.h>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

class TestPlatform : public QObject
{
    Q_OBJECT

private slots:
    void categoryIdsAreStableAcrossThreads();
    void logLevelsAndRules();
    void guardLogsAndFallsBack_data();
    void guardLogsAndFallsBack();
    void formatDouble_data();
    void formatDouble();
    void snapshotsCompareByContents();
    void factsHaveTheirWords();
    void noRoomLeavesTheFileAsItWas_data();
    void noRoomLeavesTheFileAsItWas();
};

void TestPlatform::categoryIdsAreStableAcrossThreads()
{
    QList<QList<Core::Logging::CategoryId>> found(4);
    std::vector<std::thread> threads; // whose order the thread sanitizer knows
    for (int i = 0; i < found.size(); ++i) {
        threads.emplace_back([&ids = found[i]] {
            for (int n = 0; n < 200; ++n) {
                ids.append(Core::Logging::getCatId(qPrintable(QStringLiteral("zelto.test.%1").arg(n))));
                Core::Logging::createLogEntry(ELogLevel::Debug, ids.constLast(), "unseen");
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    for (const auto &ids : std::as_const(found)) {
        QCOMPARE(ids, found.constFirst());
    }
    QCOMPARE(QSet<Core::Logging::CategoryId>(found[0].cbegin(), found[0].cend()).size(), 200);
}

void TestPlatform::logLevelsAndRules()
{
    const auto id = Core::Logging::getCatId("zelto.test.levels");
    LogCapture log;
    for (const auto level : {ELogLevel::Debug, ELogLevel::Info, ELogLevel::Warning, ELogLevel::Critical}) {
        Core::Logging::createLogEntry(level, id, "a \"text\"");
    }
    QCOMPARE(log.entries(),
             QStringList({"0 zelto.test.levels: a \"text\"", "1 zelto.test.levels: a \"text\"",
                          "2 zelto.test.levels: a \"text\"", "3 zelto.test.levels: a \"text\""}));
    log.clear();
    QLoggingCategory::setFilterRules(QString());
    Core::Logging::createLogEntry(ELogLevel::Debug, id, "off unless asked for");
    QLoggingCategory::setFilterRules("zelto.test.levels.warning=false");
    Core::Logging::createLogEntry(ELogLevel::Warning, id, "filtered");
    Core::Logging::createLogEntry(ELogLevel::Critical, 0, "no category");
    QCOMPARE(log.entries(), QStringList());
}

void TestPlatform::guardLogsAndFallsBack_data()
{
    columns<std::function<void()>, QString>({"fail", "detail"});
    const auto rowOf = [](const char *name, const std::function<void()> &fail, const char *detail) {
        row(name, fail, detail);
    };
    rowOf(
        "own exception", [] { throw Core::Exception::BaseException("5 µs"); }, "Test::run:5 µs");
    rowOf(
        "standard exception", [] { throw std::runtime_error("broken"); }, "Test::run: broken");
    rowOf(
        "GenICam exception", [] { throw GenICam::AccessException("5 µs is short"); },
        "Test::run: 5 µs is short");
    rowOf(
        "anything else", [] { throw 42; }, "Test::run: Unspecified exception occurred.");
}

void TestPlatform::guardLogsAndFallsBack()
{
    QFETCH(const std::function<void()>, fail);
    QFETCH(const QString, detail);
    const Core::GuardSite site{Core::Logging::getCatId("zelto.test.guard"), "Test::run", "%1:%2"};
    LogCapture log;
    const int result = Core::guarded(site, QString("Headline %1"), 7, [&fail] {
        fail();
        return 1;
    });
    QCOMPARE(result, 7);
    QCOMPARE(log.entries(),
             QStringList({"2 zelto.test.guard: Headline %1", "2 zelto.test.guard: " + detail}));

    log.clear();
    const auto badHeadline = []() -> QString { throw 1; };
    QVERIFY(!Core::guardedRun(site, badHeadline, [] { throw 1; }));
    QCOMPARE(log.messages().size(), 2);
    log.clear();
    QVERIFY(Core::guardedRun(site, badHeadline, [] {}));
    QCOMPARE(log.messages(), QStringList());
}

void TestPlatform::formatDouble_data()
{
    columns<double, int, bool, QLocale, QString>({"value", "decimals", "compact", "locale", "text"});
    const QLocale c = QLocale::c();
    row("trailing zeros", 5000.0, 3, true, c, "5000");
    row("fraction", 0.1, 3, true, c, "0.1");
    row("zeros before the point stay", 100.0, 0, true, c, "100");
    row("not compact", 5000.0, 3, false, c, "5000.000");
    row("no group separators", 1234567.5, 2, true, QLocale(QLocale::German), "1234567,5");
    row("tiny", 1e-9, 2, true, c, "1e-09");
    row("rounds up to one digit", 0.006, 2, true, c, "0.01");
    row("largest", std::numeric_limits<double>::max(), 2, true, c, "1.7976931348623157e+308");
    row("zero", 0.0, 2, true, c, "0");
    row("infinity", -std::numeric_limits<double>::infinity(), 2, true, c, "-inf");
}

void TestPlatform::formatDouble()
{
    QFETCH(const double, value);
    QFETCH(const int, decimals);
    QFETCH(const bool, compact);
    QFETCH(const QLocale, locale);
    QTEST(formatDoubleValue(value, decimals, compact, locale), "text");
}

void TestPlatform::snapshotsCompareByContents()
{
    FloatParameterData left;
    FloatParameterData right;
    left.value = right.value = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(left.equals(right));
    right.maximum = 1.0;
    QVERIFY(!left.equals(right));
    QVERIFY(!ParameterData(ParameterType::Integer).equals(IntegerParameterData()));
    EnumParameterData entries;
    entries.symbolicNames.append("Off");
    QVERIFY(!entries.equals(EnumParameterData()));
}

void TestPlatform::factsHaveTheirWords()
{
    for (int mode = GenApi::NI; mode <= GenApi::RW; ++mode) {
        const auto type = static_cast<ParameterType>(mode);
        const auto data = newParameterData(type);
        data->setAccessMode(static_cast<GenApi::EAccessMode>(mode));
        QCOMPARE(int(data->accessMode()), mode);
        QCOMPARE(data->type, type);
        QVERIFY(data->copy()->equals(*data));
        QCOMPARE(accessModeNames().at(mode).contains(u'W'), data->isWritable);
    }
    ParameterData hidden;
    hidden.isReadable = true;
    QCOMPARE(hidden.accessMode(), GenApi::NI); // whatever else it says
    QCOMPARE(visibilityNames().at(GenApi::Invisible), "Invisible");
    QCOMPARE(booleanFrom("TRUE"), std::optional(true));
    QCOMPARE(booleanFrom("0"), std::optional(false));
    QCOMPARE(booleanFrom("yes"), std::nullopt);
}

void TestPlatform::noRoomLeavesTheFileAsItWas_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("held back until the end") << 1000;
    QTest::newRow("written at once") << 1000000;
}

// As on a full disk, which would take privileges.
void TestPlatform::noRoomLeavesTheFileAsItWas()
{
    QFETCH(const int, size);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("kept.txt");
    QCOMPARE(Core::saveFile(fileName, "before"), QString());
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit little{100, usual.rlim_max};
    const auto before = signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &little);
    const QString failure = Core::saveFile(fileName, QByteArray(size, 'x'));
    setrlimit(RLIMIT_FSIZE, &usual);
    signal(SIGXFSZ, before);
    QVERIFY(!failure.isEmpty());
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "before");
}

QTEST_GUILESS_MAIN(TestPlatform)
#include "tst_platform.moc"
