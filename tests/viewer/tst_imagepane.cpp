// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/image/framefile.h>
#include <viewer/image/framerecorder.h>
#include <viewer/image/imagepane.h>
#include <viewer/image/imagesaving.h>
#include <viewer/image/imageview.h>
#include <viewer/image/regionofinterest.h>
#include <viewer/image/streamcontrol.h>
#include <viewer/mainwindow.h>
#include <viewer/messagebar.h>
#include <viewer/settingsactions.h>

#include <cameras/aravis_p.h>
#include <cameras/framevalues.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <csignal>
#include <memory>

#include <sys/resource.h>
#include <tiffio.h>

using namespace Cameras;
using Side = RegionOfInterest::Side;
using Span = RegionOfInterest::Span;

Q_DECLARE_METATYPE(Side)
Q_DECLARE_METATYPE(Span)

namespace {

FramePointer playedFrame(const char *format, const QSize &size, int value = 100, int bytes = -1)
{
    const auto frame = std::make_shared<Frame>();
    frame->width = size.width();
    frame->height = size.height();
    frame->pixelFormat = pixelFormat(QString::fromLatin1(format));
    frame->stride = size.width() * bitsPerPixel(frame->pixelFormat) / 8;
    frame->bytes = QByteArray(bytes < 0 ? int(frame->stride) * size.height() : bytes, char(value));
    frame->number = 7;
    return frame;
}

// Values that differ from each other in all bits.
FramePointer rampFrame(const char *format, const QSize &size)
{
    const auto frame = std::make_shared<Frame>(*playedFrame(format, size));
    for (qsizetype i = 0; i < frame->bytes.size(); ++i) {
        frame->bytes[i] = char(i * 37 + 11);
    }
    return frame;
}

QString textOf(const QWidget &widget)
{
    QStringList texts;
    const auto labels = widget.findChildren<QLabel *>();
    for (const QLabel *const label : labels) {
        texts.append(label->text());
    }
    return texts.join(QLatin1Char('\n'));
}

QByteArray contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray tiffSamples(const QString &fileName)
{
    TIFF *const tiff = TIFFOpen(qPrintable(fileName), "r");
    uint32_t height = 0;
    QByteArray samples;
    if (tiff && TIFFGetField(tiff, TIFFTAG_IMAGELENGTH, &height)) {
        QByteArray line(TIFFScanlineSize(tiff), '\0');
        for (uint32_t y = 0; y < height; ++y) {
            TIFFReadScanline(tiff, line.data(), y);
            samples += line;
        }
        TIFFClose(tiff);
    }
    return samples;
}

// The values after the three lines of the header, the lower byte first.
QByteArray pnmSamples(const QString &fileName, int bits)
{
    QByteArray contents = contentsOf(fileName);
    for (int line = 0; line < 3; ++line) {
        contents.remove(0, contents.indexOf('\n') + 1);
    }
    for (qsizetype i = 0; bits > 8 && i + 1 < contents.size(); i += 2) {
        std::swap(contents[i], contents[i + 1]);
    }
    return contents;
}

} // namespace

class TestImagePane : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void regionIsTheNearestThatTheCameraHas_data();
    void regionIsTheNearestThatTheCameraHas();
    void drawnRegionIsWrittenAndUndone();
    void endsWhileARegionIsWritten();
    void goesOnAsAWindowOfItsOwn();
    void wheelKeepsThePixelUnderTheCursor();
    void valueUnderTheCursorIsRaw();
    void framesMayChangeInMidStream();
    void filesHaveTheValues_data();
    void filesHaveTheValues();
    void nothingIsOverwritten();
    void recordingHasATable();
    void lookIsRememberedAndSavingWaitsForNothing();
    void recordingEndsWithTheDisk();
    void startStopManyTimes();
    void closingWhileStreamingIsQuick();
    void lostImagesAreOfferedAgain();

private:
    ImagePane &pane() const { return *m_window->findChild<ImagePane *>(); }
    ImageView &view() const { return *pane().view(); }
    qint64 value(const char *feature) const;
    void startImages();
    void showPane();
    void drag(Qt::KeyboardModifiers modifiers, const QRect &pixels);
    QPoint placeOf(const QPoint &pixel) const;

    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestImagePane::init()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_imagepane"));
    QSettings().clear();
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>();
    m_window->showCamera({}, cameraAt({}));
    m_window->resize(1400, 900);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestImagePane::cleanup()
{
    m_window.reset();
}

qint64 TestImagePane::value(const char *feature) const
{
    const auto nodeMap = m_window->settings()->nodeMaps().constFirst();
    const auto parameter = nodeMap.collection->parameter(QString::fromLatin1(feature));
    return parameter->parameterData()->valueString.toLongLong();
}

// As a user does, which also shows the pane.
void TestImagePane::startImages()
{
    QTest::keyClick(m_window.get(), Qt::Key_F9);
    QTRY_VERIFY_WITH_TIMEOUT(view().frame(), 10000);
    QVERIFY(view().isVisible());
}

void TestImagePane::showPane()
{
    pane().parentWidget()->show();
    view().setFocus();
}

QPoint TestImagePane::placeOf(const QPoint &pixel) const
{
    Viewport viewport;
    viewport.setFrameSize({view().frame()->width, view().frame()->height});
    viewport.setViewSize(view().size()); // one pixel of the screen is one of the device here
    return viewport.toView(QPointF(pixel) + QPointF(0.5, 0.5)).toPoint();
}

void TestImagePane::drag(Qt::KeyboardModifiers modifiers, const QRect &pixels)
{
    QTest::mousePress(&view(), Qt::LeftButton, modifiers, placeOf(pixels.topLeft()));
    QTest::mouseMove(&view(), placeOf(pixels.center()));
    QTest::mouseMove(&view(), placeOf(pixels.bottomRight()));
    QTest::mouseRelease(&view(), Qt::LeftButton, modifiers, placeOf(pixels.bottomRight()));
}

void TestImagePane::regionIsTheNearestThatTheCameraHas_data()
{
    QTest::addColumn<Side>("side");
    QTest::addColumn<Span>("wanted");
    QTest::addColumn<Span>("expected");

    const auto row = [](const char *name, Side side, Span wanted, Span expected) {
        QTest::newRow(name) << side << wanted << expected;
    };
    const Side coarse{64, 1920, 16, 8};
    row("exact", {1, 1920, 1, 1}, {101, 333}, {101, 333});
    row("snapped", coarse, {101, 333}, {104, 336});
    row("too small", coarse, {101, 10}, {104, 64});
    row("beyond the edge", coarse, {1900, 64}, {1856, 64});
    row("larger than the sensor", coarse, {-20, 5000}, {0, 1920});
    row("sensor between steps", {10, 1000, 16, 16}, {0, 1000}, {0, 986});
    row("offset in coarser steps", {2, 100, 2, 32}, {50, 60}, {32, 60});
    row("size without choice", {480, 480, 4, 4}, {100, 200}, {0, 480});
}

void TestImagePane::regionIsTheNearestThatTheCameraHas()
{
    QFETCH(Side, side);
    QFETCH(Span, wanted);
    QFETCH(Span, expected);
    const Span found = RegionOfInterest::nearest(wanted, side);
    QCOMPARE(found.offset, expected.offset);
    QCOMPARE(found.size, expected.size);
}

// While images come: the stream makes way, and the way back is one step.
void TestImagePane::drawnRegionIsWrittenAndUndone()
{
    startImages();
    const qint64 before = value("Width");
    const auto hasSize = [this](const QSize &size) {
        return view().frame() && QSize(view().frame()->width, view().frame()->height) == size;
    };
    drag(Qt::ControlModifier, QRect(400, 300, 640, 320));
    QTRY_VERIFY_WITH_TIMEOUT(value("Width") < before && value("OffsetY") > 0, 10000);
    const QSize region(int(value("Width")), int(value("Height")));
    QVERIFY(std::abs(region.width() - 640) < 24 && std::abs(region.height() - 320) < 24);
    QVERIFY(std::abs(value("OffsetX") - 400) < 24 && std::abs(value("OffsetY") - 300) < 24);
    QTRY_VERIFY_WITH_TIMEOUT(hasSize(region), 10000);
    // Within what is seen now, to the right: the offset grows by what is left of it.
    const qint64 offset = value("OffsetX");
    drag(Qt::ControlModifier, QRect(region.width() / 2, 0, region.width() / 2, region.height()));
    QTRY_VERIFY_WITH_TIMEOUT(std::abs(value("OffsetX") - offset - region.width() / 2) < 24, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(pane().stream()->isRunning(), 10000);
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(value("OffsetX"), offset, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(hasSize(region), 10000);
    const auto actions = pane().menuActions();
    QAction *const fullFrame = actions.at(2);
    QTRY_VERIFY_WITH_TIMEOUT(fullFrame->isEnabled(), 10000);
    fullFrame->trigger();
    QTRY_COMPARE_WITH_TIMEOUT(value("Width"), value("WidthMax"), 10000);
    QTRY_COMPARE_WITH_TIMEOUT(value("Height"), value("HeightMax"), 10000);
    QCOMPARE(value("OffsetX"), 0);
}

void TestImagePane::endsWhileARegionIsWritten()
{
    startImages();
    drag(Qt::ControlModifier, QRect(400, 300, 640, 320));
    QTRY_VERIFY(pane().stream()->isPaused());
    m_window.reset(); // the camera goes first
}

void TestImagePane::goesOnAsAWindowOfItsOwn()
{
    startImages();
    auto *const dock = qobject_cast<QDockWidget *>(pane().parentWidget());
    for (const bool isFloating : {true, false}) {
        dock->setFloating(isFloating);
        const auto frame = view().frame();
        QTRY_VERIFY_WITH_TIMEOUT(view().frame() != frame, 10000);
        QVERIFY(pane().stream()->isRunning());
    }
}

void TestImagePane::wheelKeepsThePixelUnderTheCursor()
{
    showPane();
    pane().showFrame(playedFrame("Mono8", {2000, 1000}));
    QVERIFY(view().isFitted());
    const QPoint place = placeOf({500, 600});
    QSignalSpy probed(&view(), SIGNAL(probed(QPoint)));
    for (int i = 0; i < 12; ++i) {
        QWheelEvent event(place, view().mapToGlobal(place), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view(), &event);
    }
    QVERIFY(view().zoom() > 2.0 && !view().isFitted());
    QTest::mouseMove(&view(), place);
    const QPoint pixel = probed.constLast().constFirst().toPoint();
    QVERIFY(std::abs(pixel.x() - 500) <= 2 && std::abs(pixel.y() - 600) <= 2);
    // Dragged by 40 places the cursor is still on that pixel.
    QTest::mousePress(&view(), Qt::LeftButton, {}, place);
    QTest::mouseMove(&view(), place + QPoint(40, 20));
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, place + QPoint(40, 20));
    QCOMPARE(probed.constLast().constFirst().toPoint(), pixel);
    QTest::keyClick(&view(), Qt::Key_1);
    QCOMPARE(view().zoom(), 1.0);
    QTest::keyClick(&view(), Qt::Key_0);
    QVERIFY(view().isFitted());
}

void TestImagePane::valueUnderTheCursorIsRaw()
{
    showPane();
    const auto frame = std::make_shared<Frame>(*playedFrame("BayerRG12", {40, 30}, 0));
    frame->bytes[frame->stride * 10 + 40] = '\xbc'; // x 20, y 10: red
    frame->bytes[frame->stride * 10 + 41] = '\x0a';
    pane().showFrame(frame);
    QTest::mouseMove(&view(), placeOf({20, 10}));
    QVERIFY2(textOf(pane()).contains(QStringLiteral("x 20, y 10:  R 2748")), qPrintable(textOf(pane())));
    // By keys: the first press shows where, the next ones walk.
    QTest::keyClick(&view(), Qt::Key_Right, Qt::ControlModifier);
    const QPoint middle = view().marks().probe.value();
    QTest::keyClick(&view(), Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(view().marks().probe.value(), middle + QPoint(0, 10));
}

// Another size takes away what was drawn for the one before; other formats, short and void frames are said.
void TestImagePane::framesMayChangeInMidStream()
{
    showPane();
    pane().showFrame(playedFrame("Mono8", {640, 480}));
    QTest::keyClick(&view(), Qt::Key_R);
    drag({}, QRect(100, 100, 50, 40));
    QTRY_VERIFY(textOf(pane()).contains(QStringLiteral("mean 100")));
    pane().showFrame(playedFrame("YUV422_8", {640, 480}, 128));
    QVERIFY(!view().marks().part.isEmpty());
    pane().showFrame(playedFrame("BayerGB12Packed", {320, 200}));
    QVERIFY(view().marks().part.isEmpty());
    pane().showFrame(playedFrame("RGB8", {640, 480}, 50, 1000));
    const auto middle = [this] { return qGray(view().grab().toImage().pixel(view().rect().center())); };
    QTRY_COMPARE(middle(), 0); // which has not come
    const auto odd = std::make_shared<Frame>(*playedFrame("Mono8", {64, 48}));
    odd->pixelFormat.code = 0x81234567;
    pane().showFrame(odd);
    QVERIFY(textOf(pane()).contains(QStringLiteral("0x81234567")));
    QVERIFY(!view().grab().isNull());
    const auto none = std::make_shared<Frame>();
    none->missing = QStringLiteral("There is no image in it.");
    pane().showFrame(none);
    QVERIFY(textOf(pane()).contains(none->missing));
    QTest::keyClick(&view(), Qt::Key_Plus);
    QTest::mouseClick(&view(), Qt::LeftButton);
    QVERIFY(!view().grab().isNull());
}

void TestImagePane::filesHaveTheValues_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("fileName");

    for (const char *const format : {"Mono8", "Mono12Packed", "BayerRG10p", "Mono16", "RGB8", "BGRa8"}) {
        QTest::newRow(qPrintable(QString("%1 tif").arg(format))) << QString(format) << QString("a.tif");
        if (qstrcmp(format, "BGRa8") != 0) {
            QTest::newRow(qPrintable(QString("%1 pnm").arg(format))) << QString(format) << QString("a.pnm");
        }
    }
}

void TestImagePane::filesHaveTheValues()
{
    QFETCH(QString, format);
    QFETCH(QString, fileName);
    const FramePointer frame = rampFrame(qPrintable(format), {36, 7});
    const QString path = m_folder->filePath(fileName);
    QCOMPARE(FrameFile::save(*frame, path), QString());
    const FrameValues::Samples samples = FrameValues::all(*frame);
    QCOMPARE(fileName.endsWith("tif") ? tiffSamples(path) : pnmSamples(path, samples.bits), samples.bytes);
}

void TestImagePane::nothingIsOverwritten()
{
    const FramePointer frame = playedFrame("Mono8", {8, 8});
    const QString path = m_folder->filePath("a.png");
    QCOMPARE(FrameFile::save(*frame, path), QString());
    const QByteArray before = contentsOf(path);
    QVERIFY(FrameFile::save(*playedFrame("Mono8", {9, 9}), path).contains("nothing is overwritten"));
    QCOMPARE(contentsOf(path), before);
    // What a file cannot hold is not written at all; the bytes can be.
    const FramePointer yuv = playedFrame("YUV422_8", {8, 8});
    QVERIFY(FrameFile::save(*yuv, m_folder->filePath("a.tif")).contains("YUV422_8"));
    QVERIFY(!QFile::exists(m_folder->filePath("a.tif")));
    QCOMPARE(FrameFile::save(*yuv, m_folder->filePath("a.raw")), QString());
    QCOMPARE(contentsOf(m_folder->filePath("a.raw")), yuv->bytes);
}

void TestImagePane::recordingHasATable()
{
    startImages();
    FrameRecorder &recorder = *pane().saving()->recorder();
    QSignalSpy finished(&recorder, SIGNAL(finished(int, int, QString)));
    QCOMPARE(recorder.start(m_folder->path(), 3, FrameFile::Kind::Tiff), QString());
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 20000);
    QCOMPARE(finished[0][0].toInt(), 3);
    QVERIFY(!recorder.isRecording());
    const QDir folder(recorder.folder());
    QCOMPARE(folder.entryList({"*.tif"}, QDir::Files).size(), 3);
    const QList<QByteArray> lines = contentsOf(folder.filePath("frames.csv")).trimmed().split('\n');
    QCOMPARE(lines.size(), 4);
    const int first = lines[1].split(',').at(1).toInt();
    QVERIFY(lines[3].split(',').at(1).toInt() >= first + 2);
    // At the same second another recording gets another folder.
    QCOMPARE(recorder.start(m_folder->path(), 1000, FrameFile::Kind::Bytes), QString());
    QVERIFY(recorder.folder() != folder.path());
    // It outlasts a change of the region, goes on while nobody sees it, and ends with the images.
    drag(Qt::ControlModifier, QRect(400, 300, 640, 320));
    QTRY_VERIFY_WITH_TIMEOUT(value("Width") < 700 && pane().stream()->isRunning(), 10000);
    pane().parentWidget()->close();
    QCoreApplication::processEvents();
    QVERIFY(recorder.isRecording() && pane().stream()->isRunning());
    QSignalSpy hint(&pane(), SIGNAL(hint(QString, int)));
    QTest::keyClick(m_window.get(), Qt::Key_F9);
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 2, 10000);
    QVERIFY(hint.constLast()[0].toString().contains(QDir::toNativeSeparators(recorder.folder())));
}

// What is changed about the pane alone is remembered as well, and no large file is waited for.
void TestImagePane::lookIsRememberedAndSavingWaitsForNothing()
{
    showPane();
    QTest::keyClick(&view(), Qt::Key_G);
    const auto isRemembered = [] {
        const QSettings settings;
        const auto keys = settings.allKeys();
        return std::any_of(keys.begin(), keys.end(), [&settings](const QString &key) {
            return key.endsWith("Image/Grid") && settings.value(key).toBool();
        });
    };
    QTRY_VERIFY(isRemembered());
    pane().showFrame(rampFrame("BayerRG8", {4000, 3000}));
    QSignalSpy hint(&pane(), SIGNAL(hint(QString, int)));
    const QString path = m_folder->filePath("large.png");
    pane().saving()->saveTo(path);
    QVERIFY(!QFile::exists(path));
    QTRY_COMPARE_WITH_TIMEOUT(hint.size(), 1, 60000);
    QCOMPARE(QImage(path).size(), QSize(4000, 3000));
}

void TestImagePane::recordingEndsWithTheDisk()
{
    FrameRecorder recorder;
    QSignalSpy finished(&recorder, SIGNAL(finished(int, int, QString)));
    QCOMPARE(recorder.start(m_folder->path(), 100, FrameFile::Kind::Pnm), QString());
    recorder.add(playedFrame("Mono8", {8, 8}));
    QTRY_COMPARE(QDir(recorder.folder()).entryList({"*.pgm"}, QDir::Files).size(), 1);
    QVERIFY(QDir(recorder.folder()).removeRecursively());
    recorder.add(playedFrame("Mono8", {8, 8}));
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(finished[0][2].toString().startsWith("Cannot write"));
    recorder.add(playedFrame("Mono8", {8, 8}));
    QVERIFY(!recorder.isRecording());
    // A disk that is full leaves nothing behind that could be taken for an image.
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit full{4096, before.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
    const QString path = m_folder->filePath("large.pgm");
    const QString failure = FrameFile::save(*playedFrame("Mono8", {100, 100}), path);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
    QVERIFY2(failure.startsWith("Cannot write"), qPrintable(failure));
    QVERIFY(!QFile::exists(path));
}

void TestImagePane::startStopManyTimes()
{
    startImages();
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(m_window.get(), Qt::Key_F9);
        QTest::qWait(i % 4 * 10);
    }
    QVERIFY(pane().stream()->isRunning());
    const FramePointer before = view().frame();
    QTRY_VERIFY_WITH_TIMEOUT(view().frame() != before, 10000);
    // One image stops by itself.
    QTest::keyClick(m_window.get(), Qt::Key_F9);
    QVERIFY(!pane().stream()->isRunning());
    const FramePointer last = view().frame();
    QTest::keyClick(m_window.get(), Qt::Key_F9, Qt::ShiftModifier);
    QTRY_VERIFY_WITH_TIMEOUT(view().frame() != last && !pane().stream()->isRunning(), 10000);
    // So does what nobody sees, since the camera locks features meanwhile.
    QTest::keyClick(m_window.get(), Qt::Key_F9);
    QVERIFY(pane().stream()->isRunning());
    pane().parentWidget()->close();
    QTRY_VERIFY(!pane().stream()->isRunning());
}

void TestImagePane::closingWhileStreamingIsQuick()
{
    startImages();
    QElapsedTimer timer;
    timer.start();
    m_window->closeCamera();
    m_window.reset();
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
}

// One message about the loss, and after reconnecting the offer to go on.
void TestImagePane::lostImagesAreOfferedAgain()
{
    std::unique_ptr<ArvGvFakeCamera, decltype(&g_object_unref)> server(
        arv_gv_fake_camera_new("127.0.0.1", "ZIMAGES"), g_object_unref);
    if (!server || !arv_gv_fake_camera_is_running(server.get())) {
        QSKIP("No GigE Vision server can be started on the loopback interface");
    }
    m_window->closeCamera();
    const auto found = Camera::list();
    for (const auto &info : found) {
        if (info->serialNumber() == QLatin1String("ZIMAGES")) {
            m_window->openCamera(CameraAddress::ofCamera(info->id()));
        }
    }
    QTRY_VERIFY_WITH_TIMEOUT(!m_window->isOpening(), 10000);
    if (!m_window->isCameraOpen()) {
        QSKIP("Another server answers in place of this one");
    }
    startImages();
    auto *const bar = m_window->findChild<MessageBar *>();
    const auto button = [bar](const char *text) -> QToolButton * {
        const auto buttons = bar->findChildren<QToolButton *>();
        const auto wanted =
            std::find_if(buttons.begin(), buttons.end(), [text](const QToolButton *candidate) {
                return candidate->isVisible() && candidate->text() == QLatin1String(text);
            });
        return wanted == buttons.end() ? nullptr : *wanted;
    };
    server.reset();
    QTRY_VERIFY_WITH_TIMEOUT(!m_window->isCameraOpen() && bar->isVisible(), 30000);
    QTest::qWait(300);
    QCOMPARE(textOf(*bar).count(QStringLiteral("does not answer")), 1);
    QVERIFY(!pane().stream()->isRunning());
    server.reset(arv_gv_fake_camera_new("127.0.0.1", "ZIMAGES"));
    for (int attempt = 0; attempt < 5 && !m_window->isCameraOpen(); ++attempt) {
        QTRY_VERIFY(button("Reconnect"));
        button("Reconnect")->click();
        QTRY_VERIFY_WITH_TIMEOUT(!m_window->isOpening(), 10000);
    }
    QVERIFY(button("Start Images"));
    button("Start Images")->click();
    QTRY_VERIFY_WITH_TIMEOUT(view().frame(), 10000);
    QVERIFY(!bar->isVisible());
}

QTEST_MAIN(TestImagePane)
#include "tst_imagepane.moc"
