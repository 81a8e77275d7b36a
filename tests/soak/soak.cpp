// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "soak.h"

#include <viewer/image/imagepane.h>
#include <viewer/image/imageview.h>
#include <viewer/image/streamcontrol.h>
#include <viewer/messagebar.h>
#include <viewer/openingpage.h>

#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QTest>

#include <array>
#include <functional>
#include <utility>

namespace {

constexpr int losses = 3; // kinds of them, in turns
constexpr int warmUp = losses; // minutes, in which everything happens once
constexpr int workTime = 40000; // ms, until the camera is lost
constexpr int actionPause = 100; // between two things that are done

constexpr qint64 blockBound = 100; // ms
constexpr qint64 writeBound = 1000;
constexpr qint64 faultyBlock = 1100; // what is shorter is told, and may be a loaded machine or a debug build
constexpr qint64 memoryBound = 16384; // kB, more than after the warm-up
constexpr qint64 countBound = 4; // descriptors or threads more than after the warm-up

bool waitUntil(const std::function<bool()> &isSo, int milliseconds)
{
    return QTest::qWaitFor(isSo, milliseconds);
}

void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    if (QWidget *const focus = QApplication::focusWidget()) {
        QTest::keyClick(focus, key, modifiers);
    }
}

void type(const QString &text)
{
    if (QWidget *const focus = QApplication::focusWidget()) {
        QTest::keyClicks(focus, text);
    }
}

} // namespace

Soak::Soak(double hours, quint32 seed)
    : m_minutes(qMax(warmUp + 1, qRound(hours * 60)))
    , m_random(seed)
    , m_out(stdout)
{
    m_out << "seed " << seed << ", " << m_minutes << " minutes" << Qt::endl;
}

int Soak::run()
{
    if (!m_camera.start()) {
        m_out << "No GigE Vision server can be started on the loopback interface" << Qt::endl;
        return 2;
    }
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_gauge.takeLongest(); // the start is no block of anything
    m_window->openCamera(CameraAddress::ofCamera(QStringLiteral("127.0.0.1")));
    if (!waitUntil([this] { return m_window->isCameraOpen(); }, 20000)) {
        fault(QStringLiteral("the camera was not opened"));
        return 1;
    }
    m_window->featureTree()->setPolling(true);
    const auto *const images = m_window->findChild<StreamControl *>();
    QObject::connect(images, &StreamControl::frameArrived, &m_gauge, [this] { ++m_images; });
    take(m_longestBlock, blockBound, QStringLiteral("the opening"));
    m_out << "minute actions images memory/kB descriptors threads block/ms write/ms (own/with waiting for a "
             "processor)"
          << Qt::endl;
    for (int number = 0; number < m_minutes; ++number) {
        minute(number);
    }
    m_window->close();
    m_window.reset();
    m_out << (m_faults.isEmpty() ? "every bound was kept" : "bounds were exceeded") << Qt::endl;
    return m_faults.isEmpty() ? 0 : 1;
}

void Soak::minute(int number)
{
    QElapsedTimer time;
    time.start();
    workFor(workTime);
    lose(number);
    come(number);
    workFor(qMax(5000, 60000 - int(time.elapsed())));
    report(number);
}

void Soak::lose(int number)
{
    if (number % 2 == 0) {
        startImages(QStringLiteral("before the loss"));
    }
    number % losses == 0 ? m_camera.kill() : m_camera.stop();
    if (!waitUntil([this] { return !m_window->isCameraOpen(); }, 20000)) {
        fault(QStringLiteral("the loss was not noticed"));
    }
    if (m_window->findChild<StreamControl *>()->isRunning()) {
        fault(QStringLiteral("images did not end with the camera"));
    }
    if (number % losses == 2) {
        hangInOpening();
    }
    take(m_longestBlock, blockBound, QStringLiteral("the loss"));
    workFor(500);
}

// The engine is left alone with a camera that does not answer.
void Soak::hangInOpening()
{
    m_window->reconnect();
    const auto *const page = m_window->findChild<OpeningPage *>();
    waitUntil([page] { return page->isVisible(); }, 1000);
    QTest::qWait(500);
    if (page->isVisible()) {
        key(Qt::Key_Escape);
    }
    if (m_window->isOpening()) {
        fault(QStringLiteral("the opening was not cancelled"));
    }
}

void Soak::come(int number)
{
    if (number % losses != 0) {
        m_camera.goOn();
    } else if (!m_camera.start()) {
        fault(QStringLiteral("the camera did not start again"));
    }
    const auto *const bar = m_window->findChild<MessageBar *>();
    const auto isBack = [bar] {
        return bar->findChildren<QLabel *>().last()->text().contains(QStringLiteral("answers again"));
    };
    if (number % losses != 2 && !waitUntil(isBack, 20000)) {
        fault(QStringLiteral("the return was not noticed"));
    }
    m_window->reconnect();
    if (!waitUntil([this] { return m_window->isCameraOpen(); }, 20000)) {
        fault(QStringLiteral("the camera was not opened again"));
    } else if (!m_window->featureTree()->getPolling()) {
        fault(QStringLiteral("the polling was not taken up again"));
    }
    if (number % 2 == 0) {
        startImages(QStringLiteral("after the return"));
    }
    take(m_longestBlock, blockBound, QStringLiteral("the return"));
}

void Soak::workFor(int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    while (!deadline.hasExpired()) {
        const QString what = act();
        QTest::qWait(actionPause);
        take(m_longestBlock, blockBound, what);
    }
}

// Returns what was done.
QString Soak::act()
{
    ++m_actions;
    FeatureTreeWidget &tree = *m_window->featureTree();
    switch (m_random.bounded(9)) {
    case 0:
    case 1:
        edit();
        return QStringLiteral("after an edit");
    case 2:
    case 3:
        search();
        return QStringLiteral("a search");
    case 4:
        tree.onVisibilityChanged(m_random.bounded(GenApi::Invisible + 1));
        return QStringLiteral("another level");
    case 5:
        markFavorite();
        return QStringLiteral("a favorite");
    case 6:
        m_random.bounded(2) == 0 ? tree.treeView()->collapseAll() : tree.treeView()->expandAll();
        return QStringLiteral("folding");
    case 7:
        useImages();
        return QStringLiteral("images");
    default:
        walk();
        return QStringLiteral("a key");
    }
}

void Soak::edit()
{
    static const std::array features{"Width", "Height", "OffsetX", "ExposureTimeAbs", "GainRaw"};
    const QString feature = QString::fromLatin1(features.at(m_random.bounded(int(features.size()))));
    FeatureTreeWidget &tree = *m_window->featureTree();
    // Cameras lock the size of what they send; this one goes astray instead.
    const bool isSize = feature == QLatin1String("Width") || feature == QLatin1String("Height");
    if (isSize && m_window->findChild<StreamControl *>()->isRunning()) {
        return;
    }
    if (!m_window->isCameraOpen() || !tree.showFeature(QStringLiteral("@CameraDevice/") + feature)) {
        return;
    }
    tree.treeView()->setFocus();
    key(Qt::Key_Return);
    key(Qt::Key_A, Qt::ControlModifier);
    type(QString::number(m_random.bounded(1, 512)));
    take(m_longestBlock, blockBound, QStringLiteral("typing"));
    key(m_random.bounded(4) == 0 ? Qt::Key_Escape : Qt::Key_Return);
    QTest::qWait(1); // what the write brings about belongs to it
    take(m_longestWrite, writeBound, QStringLiteral("a write"));
}

void Soak::search()
{
    static const std::array words{"gain", "e", "width", "time", "nothing at all", "gev"};
    m_window->featureTree()->focusSearch();
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Delete);
    if (m_random.bounded(2) == 0) {
        type(QString::fromLatin1(words.at(m_random.bounded(int(words.size())))));
    }
}

void Soak::markFavorite()
{
    FeatureTreeWidget &tree = *m_window->featureTree();
    if (tree.IsCurrentFavorite()) {
        m_random.bounded(2) == 0 ? tree.FavouriteRemove_triggered() : tree.FavouriteMoveUp_triggered();
    } else if (tree.GetCurrentNode()) {
        tree.AddToFavourites_triggered();
    }
}

void Soak::walk()
{
    static const std::array keys{Qt::Key_Down, Qt::Key_Up,  Qt::Key_PageDown,
                                 Qt::Key_Home, Qt::Key_End, Qt::Key_Right};
    m_window->featureTree()->treeView()->setFocus();
    key(keys.at(m_random.bounded(int(keys.size()))));
}

// Starts and stops, and what is done with an image; more of the latter, so that images come most of the time.
void Soak::useImages()
{
    static const std::array keys{Qt::Key_F9, Qt::Key_0,    Qt::Key_1,     Qt::Key_H,
                                 Qt::Key_X,  Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Right};
    QWidget *const view = m_window->findChild<ImageView *>();
    view->setFocus();
    const Qt::Key chosen = keys.at(m_random.bounded(int(keys.size())));
    if (chosen == Qt::Key_F9 || view->hasFocus()) {
        key(chosen);
    }
}

void Soak::startImages(const QString &when)
{
    const StreamControl &images = *m_window->findChild<StreamControl *>();
    // A camera that was stopped may take the former connection for the one in control for a while.
    if (!waitUntil([&images] { return images.isRunning() || images.isPossible(); }, 20000)) {
        fault(QStringLiteral("no images were possible %1").arg(when));
    }
    if (!images.isRunning()) {
        key(Qt::Key_F9);
    }
    const int before = m_images;
    if (!waitUntil([this, before] { return m_images > before; }, 20000)) {
        fault(QStringLiteral("no images came %1: %2").arg(when, images.summary()));
    }
}

// What the window was blocked since the last time belongs to what has been done meanwhile.
void Soak::take(Block &longest, qint64 bound, const QString &what)
{
    const Block block = m_gauge.takeLongest();
    longest = {qMax(longest.own, block.own), qMax(longest.whole, block.whole)};
    const QString told = QStringLiteral("%1: %2 ms").arg(what).arg(block.own);
    if (block.own > faultyBlock) {
        fault(told);
    } else if (block.own > bound) {
        m_out << "long: " << told << Qt::endl;
    }
}

void Soak::report(int number)
{
    StreamControl &images = *m_window->findChild<StreamControl *>();
    const bool wasRunning = images.isRunning();
    images.stop();
    QTest::qWait(1000); // the engine's buffers go with the stream
    const Holdings held = Holdings::now();
    const Block block = std::exchange(m_longestBlock, {});
    const Block write = std::exchange(m_longestWrite, {});
    m_out << number + 1 << ' ' << std::exchange(m_actions, 0) << ' ' << std::exchange(m_images, 0) << ' '
          << held.memory << ' ' << held.descriptors << ' ' << held.threads << ' ' << block.own << '/'
          << block.whole << ' ' << write.own << '/' << write.whole << Qt::endl;
    if (number + 1 == warmUp) {
        m_warm = held;
    }
    if (m_warm) {
        judge(held);
    }
    if (wasRunning) {
        images.start();
    }
}

void Soak::judge(const Holdings &held)
{
    if (held.memory > m_warm->memory + memoryBound) {
        fault(QStringLiteral("%1 kB more memory than at first").arg(held.memory - m_warm->memory));
    }
    if (held.descriptors > m_warm->descriptors + countBound || held.threads > m_warm->threads + countBound) {
        fault(QStringLiteral("more descriptors or threads than at first"));
    }
}

void Soak::fault(const QString &what)
{
    m_faults.append(what);
    m_out << "FAULT: " << what << Qt::endl;
}
