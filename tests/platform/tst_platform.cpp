// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <platform/core/exception.h>
#include <platform/core/formatdoublevalue.h>
#include <platform/core/guard.h>
#include <platform/core/logging.h>
#include <platform/genicam/genericexception.h>
#include <platform/parametercollection/parameterdata.h>

#include <support/logcapture.h>
#include <support/memorycollection.h>

#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <limits>
#include <thread>
#include <vector>

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
    void exceptionsCarryTheirText();
    void formatDouble_data();
    void formatDouble();
    void snapshotsCompareByContents();
    void typedInterfacesAreFoundByObjectCast();
    void changeSignalCrossesThreads();
};

void TestPlatform::categoryIdsAreStableAcrossThreads()
{
    QList<QList<Core::Logging::CategoryId>> found(4);
    std::vector<std::thread> threads; // whose order the thread sanitizer knows
    for (int i = 0; i < found.size(); ++i) {
        threads.emplace_back([&ids = found[i]] {
            for (int n = 0; n < 200; ++n) {
                ids.append(Core::Logging::getCatId(qPrintable(QStringLiteral("zelto.test.%1").arg(n))));
                Core::Logging::createLogEntry(ELogLevel::Debug, ids.constLast(), QStringLiteral("unseen"));
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
        Core::Logging::createLogEntry(level, id, QStringLiteral("a \"text\""));
    }
    QCOMPARE(log.entries(),
             QStringList({QStringLiteral("0 zelto.test.levels: a \"text\""),
                          QStringLiteral("1 zelto.test.levels: a \"text\""),
                          QStringLiteral("2 zelto.test.levels: a \"text\""),
                          QStringLiteral("3 zelto.test.levels: a \"text\"")}));
    log.clear();
    QLoggingCategory::setFilterRules(QString());
    Core::Logging::createLogEntry(ELogLevel::Debug, id, QStringLiteral("off unless asked for"));
    QLoggingCategory::setFilterRules(QStringLiteral("zelto.test.levels.warning=false"));
    Core::Logging::createLogEntry(ELogLevel::Warning, id, QStringLiteral("filtered"));
    Core::Logging::createLogEntry(ELogLevel::Critical, 0, QStringLiteral("no category"));
    QCOMPARE(log.entries(), QStringList());
}

void TestPlatform::guardLogsAndFallsBack_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("detail");
    QTest::newRow("own exception") << 0 << QStringLiteral("Test::run:broken");
    QTest::newRow("standard exception") << 1 << QStringLiteral("Test::run: broken");
    QTest::newRow("GenICam exception") << 2 << QStringLiteral("Test::run: broken");
    QTest::newRow("anything else") << 3 << QStringLiteral("Test::run: Unspecified exception occurred.");
}

void TestPlatform::guardLogsAndFallsBack()
{
    QFETCH(const int, kind);
    QFETCH(const QString, detail);
    const Core::GuardSite site{Core::Logging::getCatId("zelto.test.guard"), "Test::run", "%1:%2"};
    LogCapture log;
    const int result = Core::guarded(site, QStringLiteral("Headline %1"), 7, [kind]() -> int {
        switch (kind) {
        case 0:
            throw Core::Exception::BaseException(QStringLiteral("broken"));
        case 1:
            throw std::runtime_error("broken");
        case 2:
            throw GenICam::AccessException(QStringLiteral("broken"));
        default:
            throw 42;
        }
    });
    QCOMPARE(result, 7);
    QCOMPARE(log.entries(),
             QStringList({QStringLiteral("2 zelto.test.guard: Headline %1"),
                          QStringLiteral("2 zelto.test.guard: ") + detail}));

    log.clear();
    const auto badHeadline = []() -> QString { throw 1; };
    QVERIFY(!Core::guardedRun(site, badHeadline, [] { throw 1; }));
    QCOMPARE(log.messages().size(), 2);
    log.clear();
    QVERIFY(Core::guardedRun(site, badHeadline, [] {}));
    QCOMPARE(log.messages(), QStringList());
}

void TestPlatform::exceptionsCarryTheirText()
{
    const QString text = QStringLiteral("Belichtung: 5 µs ist zu kurz");
    const Core::Exception::BaseException own(text);
    QCOMPARE(own.getMessage(), text);
    QCOMPARE(QString::fromUtf8(own.what()), own.getMessage());
    try {
        throw GenICam::OutOfRangeException(text);
    } catch (const GenICam::GenericException &exception) {
        QCOMPARE(QString::fromUtf8(exception.GetDescription()), text);
    }
    QVERIFY_EXCEPTION_THROWN(throw GenICam::TimeoutException(text), std::exception);
}

void TestPlatform::formatDouble_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<bool>("compact");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    const QLocale c = QLocale::c();
    const QLocale german(QLocale::German, QLocale::Germany);
    QTest::newRow("trailing zeros") << 5000.0 << 3 << true << c << QStringLiteral("5000");
    QTest::newRow("fraction") << 0.1 << 3 << true << c << QStringLiteral("0.1");
    QTest::newRow("zeros before the point stay") << 100.0 << 0 << true << c << QStringLiteral("100");
    QTest::newRow("not compact") << 5000.0 << 3 << false << c << QStringLiteral("5000.000");
    QTest::newRow("no group separators") << 1234567.5 << 2 << true << german << QStringLiteral("1234567,5");
    QTest::newRow("tiny") << 1e-9 << 2 << true << c << QStringLiteral("1e-09");
    QTest::newRow("rounds up to one digit") << 0.006 << 2 << true << c << QStringLiteral("0.01");
    QTest::newRow("largest") << std::numeric_limits<double>::max() << 2 << true << c
                             << QStringLiteral("1.7976931348623157e+308");
    QTest::newRow("zero") << 0.0 << 2 << true << c << QStringLiteral("0");
    QTest::newRow("infinity") << -std::numeric_limits<double>::infinity() << 2 << true << c
                              << QStringLiteral("-inf");
}

void TestPlatform::formatDouble()
{
    QFETCH(const double, value);
    QFETCH(const int, decimals);
    QFETCH(const bool, compact);
    QFETCH(const QLocale, locale);
    QFETCH(const QString, text);
    QCOMPARE(formatDoubleValue(value, decimals, compact, locale), text);
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
    entries.symbolicNames.append(QStringLiteral("Off"));
    QVERIFY(!entries.equals(EnumParameterData()));
}

void TestPlatform::typedInterfacesAreFoundByObjectCast()
{
    const auto sample = MemoryCollection::createSample();
    const auto width = sample->parameter(QStringLiteral("@CameraDevice/Width"));
    QVERIFY(qSharedPointerObjectCast<IIntegerParameter>(width));
    QVERIFY(!qSharedPointerObjectCast<IFloatParameter>(width));
}

void TestPlatform::changeSignalCrossesThreads()
{
    const auto sample = MemoryCollection::createSample();
    const auto width = qSharedPointerDynamicCast<MemoryInteger>(sample->parameter(QStringLiteral("Width")));
    QSignalSpy spy(
        width.data(),
        SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)));
    QVERIFY(spy.isValid());
    QThread *const thread = QThread::create([&width] { width->publish(); });
    QObject receiver;
    int received = 0;
    connect(width.data(), &IParameter::parameterDataChangedDecoupled, &receiver, [&received] { ++received; });
    thread->start();
    QVERIFY(thread->wait());
    delete thread;
    QTRY_COMPARE(received, 1);
}

QTEST_GUILESS_MAIN(TestPlatform)
#include "tst_platform.moc"
