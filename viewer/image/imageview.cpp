// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "imageview.h"

#include <platform/core/livetexts.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Cameras;

namespace {

constexpr double zoomStep = 1.25;
constexpr int wheelStep = 120;
constexpr int keyPan = 8; // a part of the view
constexpr int largeStep = 10; // pixels
constexpr int smallestRegion = 2; // less is a click that slipped
constexpr double usualRate = 60.0; // of a screen, per second

QRect spanned(const QPoint &first, const QPoint &last)
{
    return QRect(first, last).normalized() == QRect(first, last)
        ? QRect(first, last)
        : QRect(QPoint(std::min(first.x(), last.x()), std::min(first.y(), last.y())),
                QPoint(std::max(first.x(), last.x()), std::max(first.y(), last.y())));
}

QPoint stepOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

ImageView::ImageView(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    (new Core::LiveTexts(this))->add(this, &QWidget::setAccessibleName, [] { return tr("Camera image"); });
    setTool(Tool::Pan);
    connect(&m_maker, SIGNAL(made(Picture)), this, SLOT(showPicture(Picture)));
}

ImageView::~ImageView() = default;

QSize ImageView::sizeHint() const
{
    return {60 * fontMetrics().averageCharWidth(), 20 * fontMetrics().height()};
}

QSize ImageView::minimumSizeHint() const
{
    return {16 * fontMetrics().averageCharWidth(), 6 * fontMetrics().height()};
}

void ImageView::setHint(const QString &text)
{
    m_hint = text;
    update();
}

void ImageView::setLook(const FrameConversion::Look &look)
{
    m_look = look;
    refresh();
}

void ImageView::setTool(Tool tool)
{
    m_tool = tool;
    setCursor(tool == Tool::Pan ? Qt::OpenHandCursor : Qt::CrossCursor);
}

void ImageView::setCrosshair(bool isShown)
{
    m_marks.hasCrosshair = isShown;
    update();
}

void ImageView::setGrid(bool isShown)
{
    m_marks.hasGrid = isShown;
    update();
}

void ImageView::showFrame(FramePointer frame)
{
    const QSize former = m_frame ? QSize(m_frame->width, m_frame->height) : QSize();
    m_frame = std::move(frame);
    const QSize size = m_frame ? QSize(m_frame->width, m_frame->height) : QSize();
    if (size != former) {
        m_viewport.setFrameSize(size);
        m_drag = Drag::None; // what is drawn would lie elsewhere now
        m_marks.part = {};
        m_marks.line.reset();
        m_marks.region = {};
        m_marks.probe.reset();
        Q_EMIT drawn();
        Q_EMIT zoomChanged();
    }
    if (!m_frame) {
        m_maker.cancel();
        m_picture = {};
        update();
    }
    refresh();
}

// What nobody sees is not made; showEvent() makes up for that.
void ImageView::refresh()
{
    if (!m_frame || !isVisible()) {
        return;
    }
    const double rate = screen() ? std::max(screen()->refreshRate(), 1.0) : usualRate;
    m_maker.want({m_frame, m_viewport, m_look, {}}, int(1000.0 / rate));
}

void ImageView::showPicture(const Picture &picture)
{
    const bool isNew = m_picture.frame != picture.frame;
    m_picture = picture;
    m_picture.image.setDevicePixelRatio(devicePixelRatioF());
    update();
    if (isNew) {
        Q_EMIT frameSeen();
    }
}

void ImageView::fit()
{
    m_viewport.fit();
    changeZoom();
}

void ImageView::showPixelByPixel()
{
    zoomBy(1.0 / m_viewport.scale(), QPointF(width(), height()) / 2.0);
}

void ImageView::zoomIn()
{
    zoomBy(zoomStep, QPointF(width(), height()) / 2.0);
}

void ImageView::zoomOut()
{
    zoomBy(1.0 / zoomStep, QPointF(width(), height()) / 2.0);
}

void ImageView::zoomBy(double factor, const QPointF &place)
{
    m_viewport.setScale(m_viewport.scale() * factor, devicePlace(place));
    changeZoom();
}

void ImageView::changeZoom()
{
    refresh();
    Q_EMIT zoomChanged();
}

QPoint ImageView::pixelAt(const QPointF &place) const
{
    const QPointF position = m_viewport.toFrame(devicePlace(place));
    return {int(std::floor(position.x())), int(std::floor(position.y()))};
}

QPoint ImageView::heldInside(const QPoint &position) const
{
    return {std::clamp(position.x(), 0, std::max(m_frame->width - 1, 0)),
            std::clamp(position.y(), 0, std::max(m_frame->height - 1, 0))};
}

void ImageView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Dark));
    if (!m_frame) {
        paintMessage(painter, m_hint);
        return;
    }
    if (m_viewport.viewSize() != deviceSize()) { // a screen has changed
        m_viewport.setViewSize(deviceSize());
        refresh();
    }
    if (m_picture.frame && m_picture.image.isNull()) {
        paintMessage(painter, obstacle(*m_picture.frame));
    } else if (m_picture.frame) {
        paintPicture(painter);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

// Where it was made for, so that image and marks fit together while the next one is made.
void ImageView::paintPicture(QPainter &painter)
{
    const double ratio = devicePixelRatioF();
    const Viewport &viewport = m_picture.viewport;
    painter.drawImage(QPointF(viewport.placeOf(viewport.visiblePart()).topLeft()) / ratio, m_picture.image);
    const QPointF origin = viewport.toView({0.0, 0.0}) / ratio;
    const double scale = viewport.scale() / ratio;
    m_marks.paint(painter, QTransform(scale, 0.0, 0.0, scale, origin.x(), origin.y()),
                  {m_picture.frame->width, m_picture.frame->height});
}

QString ImageView::obstacle(const Frame &frame)
{
    if (!frame.isComplete()) {
        return frame.missing;
    }
    return FrameConversion::canConvert(frame.pixelFormat)
        ? tr("An image of %1 × %2 pixels cannot be shown.").arg(frame.width).arg(frame.height)
        : tr("The pixel format %1 cannot be shown. Its bytes can be saved.")
              .arg(pixelFormatName(frame.pixelFormat));
}

void ImageView::paintMessage(QPainter &painter, const QString &text)
{
    const bool isDark = palette().color(QPalette::Dark).lightness() < 128;
    painter.setPen(isDark ? Qt::white : Qt::black);
    const int margin = fontMetrics().height();
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin), Qt::AlignCenter | Qt::TextWordWrap,
                     text);
}

void ImageView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_viewport.setViewSize(deviceSize());
    changeZoom();
}

void ImageView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void ImageView::wheelEvent(QWheelEvent *event)
{
    if (m_frame && event->angleDelta().y() != 0) {
        zoomBy(std::pow(zoomStep, double(event->angleDelta().y()) / wheelStep), event->position());
    }
    event->accept(); // the panes around must not scroll instead
}

void ImageView::mousePressEvent(QMouseEvent *event)
{
    if (!m_frame || m_drag != Drag::None) {
        return;
    }
    m_marks.probe.reset();
    m_dragPlace = devicePlace(event->position());
    m_dragStart = heldInside(pixelAt(event->position()));
    if (event->button() == Qt::MiddleButton) {
        m_drag = Drag::Pan;
    } else if (event->button() == Qt::LeftButton) {
        m_drag = event->modifiers() & Qt::ControlModifier ? Drag::Region
            : m_tool == Tool::Part                        ? Drag::Part
            : m_tool == Tool::Line                        ? Drag::Line
                                                          : Drag::Pan;
    }
}

void ImageView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_frame) {
        return;
    }
    if (m_drag == Drag::Pan) {
        m_viewport.pan(devicePlace(event->position()) - m_dragPlace);
        m_dragPlace = devicePlace(event->position());
        changeZoom();
    } else if (m_drag != Drag::None) {
        draw(heldInside(pixelAt(event->position())));
    }
    Q_EMIT probed(pixelAt(event->position()));
}

void ImageView::draw(const QPoint &position)
{
    if (m_drag == Drag::Part) {
        m_marks.part = spanned(m_dragStart, position);
    } else if (m_drag == Drag::Line) {
        m_marks.line = QLine(m_dragStart, position);
    } else {
        m_marks.region = spanned(m_dragStart, position);
    }
    update();
    if (m_drag != Drag::Region) {
        Q_EMIT drawn();
    }
}

void ImageView::mouseReleaseEvent(QMouseEvent *event)
{
    Q_UNUSED(event)
    endDrag();
}

void ImageView::endDrag()
{
    const Drag drag = std::exchange(m_drag, Drag::None);
    if (drag != Drag::Region) {
        return;
    }
    const QRect region = std::exchange(m_marks.region, QRect());
    update();
    if (region.width() >= smallestRegion && region.height() >= smallestRegion) {
        Q_EMIT regionDrawn(region);
    }
}

// First what is being drawn, then what was drawn.
void ImageView::cancel()
{
    if (std::exchange(m_drag, Drag::None) == Drag::Region) {
        m_marks.region = {};
    } else {
        m_marks.part = {};
        m_marks.line.reset();
        m_marks.probe.reset();
        Q_EMIT drawn();
    }
    update();
}

void ImageView::keyPressEvent(QKeyEvent *event)
{
    const QPoint step = stepOf(event->key());
    if (event->key() == Qt::Key_Escape) {
        cancel();
    } else if (event->key() == Qt::Key_Plus) {
        zoomIn();
    } else if (event->key() == Qt::Key_Minus) {
        zoomOut();
    } else if (step.isNull() || !m_frame) {
        QWidget::keyPressEvent(event);
    } else if (event->modifiers() & Qt::ControlModifier) {
        moveProbe(event->modifiers() & Qt::ShiftModifier ? step * largeStep : step);
    } else {
        m_viewport.pan(-devicePlace(QPointF(step.x() * width(), step.y() * height()) / keyPan));
        changeZoom();
    }
}

void ImageView::moveProbe(const QPoint &step)
{
    const QPoint middle = m_viewport.visiblePart().center();
    m_marks.probe = heldInside(m_marks.probe ? *m_marks.probe + step : middle);
    update();
    Q_EMIT probed(*m_marks.probe);
}

// The arrows are about pixels here, also those that fold the tree elsewhere.
bool ImageView::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *const key = static_cast<QKeyEvent *>(event);
        if (!stepOf(key->key()).isNull() && key->modifiers() & Qt::ControlModifier) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void ImageView::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    Q_EMIT probed(m_marks.probe.value_or(QPoint(-1, -1)));
}
