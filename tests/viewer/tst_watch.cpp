// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/memorycollection.h>
#include <viewer/plugins/watch/watchmodel.h>
#include <viewer/plugins/watch/watchpanel.h>
#include <viewer/plugins/watch/watchplot.h>
#include <viewer/plugins/watch/watchseries.h>

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QImage>
#include <QTest>
#include <QToolButton>

#include <algorithm>
#include <limits>

using namespace ParameterCollection;

class TestWatch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void memoryIsBounded();
    void gapsStay();
    void knowsExtremesToTheDigit();
    void readsAtThePollingTime();
    void takesThirtyASecondAtMost();
    void asksAgainWhenNobodyAnswers();
    void panelWatchesTheCurrentFeature();

private:
    void press(const QWidget &panel, const char *text) const;

    QSharedPointer<MemoryCollection> m_camera;
};

void TestWatch::init()
{
    m_camera = MemoryCollection::createSample();
}

void TestWatch::press(const QWidget &panel, const char *text) const
{
    const auto buttons = panel.findChildren<QToolButton *>();
    for (QToolButton *const button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == QLatin1String(text)) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
}

// A day at thirty values a second.
void TestWatch::memoryIsBounded()
{
    constexpr qint64 count = 24 * 3600 * 30;
    WatchSeries series;
    for (qint64 i = 0; i < count; ++i) {
        series.add(i * 33, i == count / 3 ? 1000.0 : i == count / 2 ? -1000.0 : double(i % 7));
        if (series.buckets().size() > WatchSeries::mostBuckets) {
            QFAIL("too many");
        }
    }
    const auto &buckets = series.buckets();
    QVERIFY(buckets.size() >= WatchSeries::mostBuckets / 2 - 1);
    WatchSeries::Bucket all = buckets.front();
    qint64 values = 0;
    qint64 last = -1;
    for (const auto &bucket : buckets) {
        values += bucket.count;
        all.minimum = std::min(all.minimum, bucket.minimum);
        all.maximum = std::max(all.maximum, bucket.maximum);
        QVERIFY(bucket.begin > last && bucket.end >= bucket.begin);
        last = bucket.end;
    }
    QCOMPARE(values, count);
    QCOMPARE(all.minimum, -1000.0); // no peak is lost
    QCOMPARE(all.maximum, 1000.0);
    QCOMPARE(buckets.back().end, (count - 1) * 33);
}

void TestWatch::gapsStay()
{
    WatchSeries series;
    for (int i = 0; i < 3; ++i) {
        series.add(i, 1.0);
    }
    series.addGap();
    series.add(10, 1.0);
    QCOMPARE(series.buckets().size(), size_t(4));
    QVERIFY(series.buckets().back().followsGap);
    QVERIFY(!series.buckets().front().followsGap);
}

void TestWatch::knowsExtremesToTheDigit()
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const auto counter =
        m_camera->addInteger(QStringLiteral("Counter"), QStringLiteral("ImageFormatControl"), most - 1);
    const auto publish = [&counter](qint64 value) {
        counter->update([value](IntegerParameterData &data) {
            data.value = value;
            data.valueString = QString::number(value);
        });
    };
    publish(most - 1);
    WatchedFeature feature(counter);
    for (const qint64 value : {most - 1, most, most - 2}) {
        QTest::qWait(40); // else two are too close
        publish(value);
    }
    QCOMPARE(feature.maximum(), QString::number(most));
    QCOMPARE(feature.minimum(), QString::number(most - 2));
    QCOMPARE(feature.value(), QString::number(most - 2));
    feature.restart();
    QVERIFY(feature.maximum().isEmpty() && feature.series().buckets().empty());
}

void TestWatch::readsAtThePollingTime()
{
    MemoryNode &gain = *m_camera->node("Gain");
    gain.properties.insert(QStringLiteral("PollingTime"), QStringLiteral("50"));
    WatchedFeature feature(m_camera->parameter("Gain"));
    QTest::qWait(1050);
    QVERIFY2(gain.forcedChecks > 8 && gain.forcedChecks <= 22,
             qPrintable(QString::number(gain.forcedChecks)));
    QCOMPARE(feature.mean(), QStringLiteral("1.5"));
    feature.setPaused(true);
    QTest::qWait(20);
    const int checks = gain.forcedChecks;
    const auto values = feature.series().buckets().size();
    m_camera->get<MemoryFloat>("Gain")->publish();
    QTest::qWait(200);
    QCOMPARE(gain.forcedChecks, checks);
    QCOMPARE(feature.series().buckets().size(), values);
}

void TestWatch::takesThirtyASecondAtMost()
{
    m_camera->node("Gain")->properties.insert(QStringLiteral("PollingTime"), QStringLiteral("1"));
    WatchedFeature feature(m_camera->parameter("Gain"));
    QElapsedTimer time;
    time.start();
    while (!time.hasExpired(1000)) {
        m_camera->get<MemoryFloat>("Gain")->publish(); // others ask all the time
        QTest::qWait(1);
    }
    const auto count = feature.series().buckets().size();
    QVERIFY2(count > 5 && count <= 61, qPrintable(QString::number(count)));
}

void TestWatch::asksAgainWhenNobodyAnswers()
{
    const auto gain = m_camera->get<MemoryFloat>("Gain");
    WatchedFeature feature(gain);
    QTRY_COMPARE(feature.value(), QStringLiteral("1.5"));
    gain->update([](FloatParameterData &data) { data.isReadable = false; });
    QVERIFY(feature.value().isEmpty());
    QCOMPARE(feature.maximum(), QStringLiteral("1.5"));
    gain->fail({QStringLiteral("scheduleParameterDataChangedCheck")},
               GenICam::RuntimeException(QStringLiteral("gone")));
    QTest::qWait(1100);
    gain->before = nullptr;
    gain->update([](FloatParameterData &data) { data.isReadable = true; });
    feature.setParameter(gain);
    QTRY_COMPARE(feature.value(), QStringLiteral("1.5"));
    QVERIFY(feature.series().buckets().back().followsGap);
}

void TestWatch::panelWatchesTheCurrentFeature()
{
    WatchPanel panel(nullptr);
    panel.resize(500, 500);
    panel.show();
    auto *const model = panel.findChild<WatchModel *>();
    const QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    panel.setCurrent(m_camera->parameter("DeviceUserID"));
    press(panel, "Add"); // no number
    QCOMPARE(model->rowCount(), 0);
    panel.setCurrent(m_camera->parameter("Gain"));
    press(panel, "Add");
    press(panel, "Add"); // it is there
    QCOMPARE(model->rowCount(), 1);
    QTRY_COMPARE(model->index(0, WatchModel::ValueColumn).data().toString(), QStringLiteral("1.5"));
    QTest::qWait(1100);
    const QStringList lines = panel.csv().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(lines.size() >= 2);
    QVERIFY(lines.at(1).endsWith(QLatin1String(",@CameraDevice/Gain,1.5,1.5,1.5,1")));
    // The line is painted in a colour of its own.
    const QImage plot = panel.findChild<WatchPlot *>()->grab().toImage();
    int coloured = 0;
    for (int y = 0; y < plot.height(); ++y) {
        for (int x = 0; x < plot.width(); ++x) {
            coloured += plot.pixelColor(x, y).hslSaturation() > 60 ? 1 : 0;
        }
    }
    QVERIFY2(coloured > 50, qPrintable(QString::number(coloured)));
}

QTEST_MAIN(TestWatch)
#include "tst_watch.moc"
