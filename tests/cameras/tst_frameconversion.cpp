// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <cameras/frameconversion.h>
#include <cameras/framestatistics.h>
#include <cameras/framevalues.h>

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using namespace Cameras;

namespace {

Frame frameOf(const QString &format, const QSize &size, qint64 stride, const QByteArray &bytes)
{
    Frame frame;
    frame.width = size.width();
    frame.height = size.height();
    frame.pixelFormat = pixelFormat(format);
    frame.stride = stride;
    frame.bytes = bytes;
    return frame;
}

Frame randomFrame(const QString &format, const QSize &size, int padding)
{
    const int bits = size.width() * bitsPerPixel(pixelFormat(format));
    Frame frame = frameOf(format, size, padding < 0 ? 0 : (bits + 7) / 8 + padding, {});
    const int bytes = padding < 0 ? (bits * size.height() + 7) / 8 : int(frame.stride) * size.height();
    frame.bytes.resize(bytes);
    QRandomGenerator random(quint32(qHash(format)));
    for (char &byte : frame.bytes) {
        byte = char(random.generate());
    }
    return frame;
}

/*! \brief The conventions of the standard, bit by bit. */
class Transcription
{
public:
    explicit Transcription(const Frame &frame)
        : m_frame(frame)
        , m_name(pixelFormatName(frame.pixelFormat))
    {
    }

    QList<quint32> at(int x, int y) const
    {
        const int line = m_frame.stride > 0 ? int(m_frame.stride) * 8 * y : 0;
        const int pixel = m_frame.stride > 0 ? x : m_frame.width * y + x;
        const int pixelBits = bitsPerPixel(m_frame.pixelFormat);
        if (m_name.contains("422")) {
            return yuv(line + pixel / 2 * 32, pixel % 2);
        }
        if (m_name.endsWith("Packed")) {
            return {grouped(line + pixel / 2 * 24, pixel % 2, m_name.contains("10") ? 2 : 4)};
        }
        if (!m_name.startsWith("RGB") && !m_name.startsWith("BGR")) {
            return {bits(line + pixel * pixelBits, pixelBits)};
        }
        QList<quint32> values;
        for (int i = 0; i < pixelBits / 8; ++i) {
            values.append(bits(line + pixel * pixelBits + i * 8, 8));
        }
        if (m_name.startsWith("BGR")) {
            values.swapItemsAt(0, 2);
        }
        return values;
    }

private:
    quint32 bits(int first, int count) const
    {
        quint32 value = 0;
        for (int i = 0; i < count; ++i) {
            const int bit = first + i;
            value |= quint32((m_frame.bytes.at(bit / 8) >> (bit % 8)) & 1) << i;
        }
        return value;
    }
    quint32 grouped(int first, int place, int lowBits) const
    {
        return (bits(first + place * 16, 8) << lowBits) | bits(first + 8 + place * 4, lowBits);
    }
    QList<quint32> yuv(int first, int place) const
    {
        const bool startsWithColour = m_name.endsWith("UYVY") || m_name.endsWith("CbYCrY");
        const int luma = startsWithColour ? 8 : 0;
        const int colour = startsWithColour ? 0 : 8;
        return {bits(first + luma + place * 16, 8), bits(first + colour, 8), bits(first + colour + 16, 8)};
    }

    const Frame &m_frame;
    QString m_name;
};

QList<quint32> numbers(const QList<FrameValues::Value> &values)
{
    QList<quint32> found;
    for (const FrameValues::Value &value : values) {
        found.append(value.value);
    }
    return found;
}

int distance(QRgb left, QRgb right)
{
    return std::max({std::abs(qRed(left) - qRed(right)), std::abs(qGreen(left) - qGreen(right)),
                     std::abs(qBlue(left) - qBlue(right))});
}

} // namespace

class TestFrameConversion : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreThoseOfTheCamera_data();
    void valuesAreThoseOfTheCamera();
    void colourOfAMosaicIsThatOfItsCells_data();
    void colourOfAMosaicIsThatOfItsCells();
    void yuvIsTheColourOfItsStandard_data();
    void yuvIsTheColourOfItsStandard();
    void imageShowsThePartThatIsAskedFor();
    void extremesAreMarkedHoweverSmall();
    void lookChangesTheImageAlone();
    void statisticsAreThoseOfTheValues();
    void badFramesAreHarmless_data();
    void badFramesAreHarmless();
};

void TestFrameConversion::valuesAreThoseOfTheCamera_data()
{
    QTest::addColumn<QString>("format");
    const auto formats = knownPixelFormats();
    for (const PixelFormat format : formats) {
        QTest::newRow(qPrintable(pixelFormatName(format))) << pixelFormatName(format);
    }
}

// Values, all values, the histogram and, for monochrome, the image; with lines that share bytes, too.
void TestFrameConversion::valuesAreThoseOfTheCamera()
{
    QFETCH(QString, format);
    for (const int padding : {-1, 0, 5}) {
        const Frame frame =
            randomFrame(format, format.contains("422") ? QSize(38, 9) : QSize(37, 9), padding);
        const Transcription slow(frame);
        const quint32 maximum = FrameValues::maximum(frame.pixelFormat);
        const FrameValues::Samples samples = FrameValues::all(frame);
        const QImage image = FrameConversion().image(frame);
        QCOMPARE(image.size(), QSize(frame.width, frame.height));
        quint64 saturated = 0;
        quint64 values = 0;
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x) {
                const QList<quint32> expected = slow.at(x, y);
                QCOMPARE(numbers(FrameValues::at(frame, {x, y})), expected);
                const int counted = format.contains("422") ? 1 : std::min<int>(expected.size(), 3);
                values += counted;
                saturated += std::count_if(expected.begin(), expected.begin() + counted,
                                           [maximum](quint32 value) { return value >= maximum; });
                if (samples.channels == 1) {
                    const auto *const data = reinterpret_cast<const uchar *>(samples.bytes.constData());
                    const int place = y * frame.width + x;
                    const quint32 sample =
                        samples.bits > 8 ? data[2 * place] + 256U * data[2 * place + 1] : data[place];
                    QCOMPARE(sample, expected.constFirst());
                }
                if (format.startsWith("Mono")) {
                    const double shown = std::min(expected.constFirst(), maximum) * 255.0 / maximum;
                    QCOMPARE(qRed(image.pixel(x, y)), int(std::lround(shown)));
                }
                if (samples.channels >= 3) {
                    QCOMPARE(image.pixel(x, y), qRgb(expected[0], expected[1], expected[2]));
                }
            }
        }
        const Histogram histogram = histogramOf(frame);
        QCOMPARE(histogram.values, values);
        QCOMPARE(histogram.saturated, saturated);
    }
}

void TestFrameConversion::colourOfAMosaicIsThatOfItsCells_data()
{
    QTest::addColumn<QString>("format");
    for (const char *const format :
         {"BayerGR8", "BayerRG8", "BayerGB8", "BayerBG8", "BayerRG12", "BayerGB16"}) {
        QTest::newRow(format) << QString::fromLatin1(format);
    }
}

// A flat colour is that colour everywhere: at the border, in parts that begin anywhere, and smaller.
void TestFrameConversion::colourOfAMosaicIsThatOfItsCells()
{
    QFETCH(QString, format);
    const QRgb colour = qRgb(200, 120, 40);
    Frame frame = randomFrame(format, {41, 31}, 0);
    const int bytes = bitsPerPixel(frame.pixelFormat) / 8;
    for (int y = 0; y < frame.height; ++y) {
        for (int x = 0; x < frame.width; ++x) {
            const QChar first = format.at(5);
            const bool isGreen = (x + y) % 2 == (first == 'G' ? 0 : 1);
            const bool isRedLine = (y % 2 == 0) == (first == 'R' || format.mid(5, 2) == "GR");
            const int value = isGreen ? qGreen(colour) : isRedLine ? qRed(colour) : qBlue(colour);
            const int scaled = value * int(FrameValues::maximum(frame.pixelFormat)) / 255;
            char *const out = frame.bytes.data() + frame.stride * y + x * bytes;
            out[0] = char(scaled);
            if (bytes > 1) {
                out[1] = char(scaled >> 8);
            }
        }
    }
    FrameConversion conversion;
    const QList<std::pair<QRect, QSize>> views{
        {QRect(0, 0, 41, 31), QSize(41, 31)}, {QRect(7, 5, 20, 13), QSize(20, 13)},
        {QRect(40, 30, 1, 1), QSize(8, 8)},   {QRect(0, 0, 41, 31), QSize(10, 7)},
        {QRect(3, 3, 9, 9), QSize(27, 30)},   {QRect(0, 0, 41, 31), QSize(30, 23)}};
    for (const auto &[part, size] : views) {
        const QImage image = conversion.image(frame, part, size);
        QCOMPARE(image.size(), size);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                QVERIFY2(
                    distance(image.pixel(x, y), colour) <= 1,
                    qPrintable(QStringLiteral("%1 at %2, %3").arg(image.pixel(x, y), 8, 16).arg(x).arg(y)));
            }
        }
    }
}

void TestFrameConversion::yuvIsTheColourOfItsStandard_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("pair"); // of pixels, in memory
    QTest::addColumn<QRgb>("colour");

    const auto row = [](const char *format, const char *hex, QRgb colour) {
        QTest::newRow(qPrintable(QString("%1 %2").arg(format, hex)))
            << QString::fromLatin1(format) << QByteArray::fromHex(hex) << colour;
    };
    row("YUV422_8", "ff80ff80", qRgb(255, 255, 255));
    row("YUV422_8_UYVY", "554cff4c", qRgb(255, 0, 0));
    row("YCbCr422_8", "952b9515", qRgb(0, 255, 0));
    row("YCbCr601_422_8", "eb80eb80", qRgb(255, 255, 255));
    row("YCbCr601_422_8", "10801080", qRgb(0, 0, 0));
    row("YCbCr601_422_8", "515a51f0", qRgb(255, 0, 0));
    row("YCbCr709_422_8", "3f663ff0", qRgb(255, 0, 0));
    row("YCbCr709_422_8_CbYCrY", "2aad1aad", qRgb(0, 255, 0));
}

void TestFrameConversion::yuvIsTheColourOfItsStandard()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, pair);
    QFETCH(QRgb, colour);
    const Frame frame = frameOf(format, {2, 1}, 4, pair);
    const QRgb shown = FrameConversion().image(frame).pixel(1, 0);
    QVERIFY2(distance(shown, colour) <= 4, qPrintable(QString::number(shown, 16)));
}

void TestFrameConversion::imageShowsThePartThatIsAskedFor()
{
    const Frame frame = randomFrame("Mono12p", {64, 48}, -1);
    FrameConversion conversion;
    const QImage all = conversion.image(frame);
    const QRect part(9, 11, 17, 5);
    QCOMPARE(conversion.image(frame, part, part.size()), all.copy(part));
    // Enlarged, each pixel is a square of its colour.
    const QImage large = conversion.image(frame, part, part.size() * 4);
    for (const QPoint place : {QPoint(0, 0), QPoint(3, 3), QPoint(4, 3), QPoint(67, 19)}) {
        QCOMPARE(large.pixel(place),
                 all.pixel(part.topLeft() + place / 4.0 - QPoint(place.x() % 4 >= 2, place.y() % 4 >= 2)));
    }
    QVERIFY(conversion.image(frame, QRect(64, 0, 5, 5), {5, 5}).isNull());
}

// A single saturated pixel must not go under when the image is smaller than the frame.
void TestFrameConversion::extremesAreMarkedHoweverSmall()
{
    for (const char *const format : {"Mono8", "BayerRG8"}) {
        Frame frame = randomFrame(format, {8, 8}, 0);
        frame.bytes.fill(100);
        frame.bytes[0] = char(255);
        FrameConversion conversion;
        const FrameConversion::Look look{1.0, 0.0, 1.0, true};
        conversion.setLook(look);
        QCOMPARE(conversion.image(frame).pixel(0, 0), qRgb(255, 0, 0));
        QCOMPARE(conversion.image(frame, QRect(0, 0, 8, 8), {2, 2}).pixel(0, 0), qRgb(255, 0, 0));
        frame.bytes.fill(0);
        QCOMPARE(conversion.image(frame).pixel(3, 3), qRgb(0, 0, 255));
        QCOMPARE(conversion.image(frame, QRect(1, 1, 2, 2), {9, 9}).pixel(8, 8), qRgb(0, 0, 255));
    }
}

void TestFrameConversion::lookChangesTheImageAlone()
{
    const Frame frame = frameOf("Mono8", {3, 1}, 3, QByteArray("\x40\x80\xc0", 3));
    FrameConversion conversion;
    const FrameConversion::Look look{2.0, 0.25, 0.75, false};
    conversion.setLook(look);
    const QImage image = conversion.image(frame);
    QCOMPARE(qRed(image.pixel(0, 0)), 11); // the root of 0.00196 of 255, rounded
    QCOMPARE(qRed(image.pixel(1, 0)), 181); // that of 0.50392
    QCOMPARE(qRed(image.pixel(2, 0)), 255);
    QCOMPARE(numbers(FrameValues::at(frame, {1, 0})), QList<quint32>{0x80});
}

void TestFrameConversion::statisticsAreThoseOfTheValues()
{
    // Stripes: neighbours differ by 20, so does the deviation by 10 from the mean of 100.
    Frame frame = randomFrame("Mono8", {16, 16}, 0);
    for (int i = 0; i < frame.bytes.size(); ++i) {
        frame.bytes[i] = i % 2 == 0 ? 90 : 110;
    }
    PartStatistics statistics = statisticsOf(frame, QRect(2, 2, 8, 8));
    QCOMPARE(statistics.channels.size(), 1);
    QCOMPARE(statistics.channels[0].values, 64);
    QCOMPARE(statistics.channels[0].mean, 100.0);
    QCOMPARE(statistics.channels[0].deviation, 10.0);
    QCOMPARE(statistics.sharpness, 20.0 / std::sqrt(2.0)); // there is no step downwards
    // The same as a mosaic: columns of different colours are no edges.
    frame.pixelFormat = pixelFormat("BayerRG8");
    statistics = statisticsOf(frame, QRect(2, 2, 8, 8));
    QCOMPARE(statistics.channels[0].mean, 90.0);
    QCOMPARE(statistics.channels[1].mean, 100.0);
    QCOMPARE(statistics.channels[2].mean, 110.0);
    QCOMPARE(statistics.sharpness, 0.0);
    const auto curves = FrameValues::along(frame, QLine(0, 0, 3, 0));
    QCOMPARE(curves.size(), 2); // red and green alternate
    QCOMPARE(curves[1].points, QList<QPoint>({{1, 110}, {3, 110}}));
}

void TestFrameConversion::badFramesAreHarmless_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<qint64>("stride");
    QTest::addColumn<int>("bytes");

    const auto row = [](const char *name, const char *format, QSize size, qint64 stride, int bytes) {
        QTest::newRow(name) << QString::fromLatin1(format) << size << stride << bytes;
    };
    row("one byte", "BayerGB12p", {640, 480}, 0, 1);
    row("half of it", "YUV422_8", {64, 48}, 128, 64 * 48);
    row("nothing", "RGB8", {64, 48}, 192, 0);
    row("no width", "Mono8", {0, 48}, 0, 100);
    row("negative", "Mono8", {-5, -5}, 5, 100);
    row("2^31 pixels", "Mono16", {65536, 32768}, 131072, 1000);
    row("largest sides", "BayerRG10Packed", {std::numeric_limits<int>::max(), 2}, 0, 1000);
    row("far stride", "Mono12", {16, 16}, std::numeric_limits<qint64>::max(), 1000);
    row("overlapping lines", "Mono12p", {1000, 3}, 1, 40);
    row("one pixel", "BayerRG8", {1, 1}, 1, 1);
    row("one line", "BayerGR16", {9, 1}, 18, 18);
    row("unknown", "none", {4, 4}, 4, 16);
}

// What has come is shown, the rest is black; nothing is read beyond the end, and nothing takes for ever.
void TestFrameConversion::badFramesAreHarmless()
{
    QFETCH(QString, format);
    QFETCH(QSize, size);
    QFETCH(qint64, stride);
    QFETCH(int, bytes);
    const Frame frame = frameOf(format, size, stride, QByteArray(bytes, '\xff'));
    const QRect all(QPoint(), size);
    FrameConversion conversion;
    for (const QSize &painted : {QSize(100, 80), QSize(1, 1), QSize(3000, 2)}) {
        const QImage image = conversion.image(frame, all, painted);
        QVERIFY(image.isNull() || image.size() == painted);
    }
    const Histogram histogram = histogramOf(frame);
    QVERIFY(histogram.values <= quint64(bytes));
    FrameValues::at(frame, {size.width() - 1, size.height() - 1});
    FrameValues::along(frame, QLine(0, 0, size.width() - 1, std::min(size.height() - 1, 50)));
    statisticsOf(frame, all.intersected(QRect(0, 0, 5000, 5000)));
    if (size.width() < 1000) {
        FrameValues::all(frame);
    }
}

QTEST_GUILESS_MAIN(TestFrameConversion)
#include "tst_frameconversion.moc"
