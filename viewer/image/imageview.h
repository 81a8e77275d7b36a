// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "imagemarks.h"
#include "picturemaker.h"
#include "viewport.h"

#include <cameras/frame.h>
#include <cameras/frameconversion.h>

#include <QString>
#include <QWidget>

/*! \brief Shows a frame, and what users draw on it.
 *
 * What is painted is made on another thread: a frame is seen a moment after it came, and one that comes
 * before another was painted may be left out.
 *
 * The wheel zooms at the cursor, dragging pans or draws as the tool says, with Ctrl it draws a region of
 * interest. Keys: plus, minus and the arrows; with Ctrl the arrows walk from pixel to pixel; Escape ends what
 * is being drawn, or takes it away.
 */
class ImageView : public QWidget
{
    Q_OBJECT

public:
    enum class Tool { Pan, Part, Line };

    explicit ImageView(QWidget *parent = nullptr);
    ~ImageView() override;

    const Cameras::FramePointer &frame() const { return m_frame; }
    const ImageMarks &marks() const { return m_marks; }
    Cameras::FrameConversion::Look look() const { return m_look; }
    void setLook(const Cameras::FrameConversion::Look &look);
    void setTool(Tool tool);
    /*! Returns how many device pixels a pixel of the frame takes along a side. */
    double zoom() const { return m_viewport.scale(); }
    bool isFitted() const { return m_viewport.isFitted(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /*! Shows \a frame; null shows that there is none. */
    void showFrame(Cameras::FramePointer frame);
    /*! Says \a text where there is no frame. */
    void setHint(const QString &text);
    void fit();
    void showPixelByPixel();
    void zoomIn();
    void zoomOut();
    void setCrosshair(bool isShown);
    void setGrid(bool isShown);

Q_SIGNALS:
    /*! Another frame than before is seen now. */
    void frameSeen();
    /*! \a position is under the cursor now, or chosen by keys; outside of the frame when nothing is. */
    void probed(const QPoint &position);
    /*! What is shown how large has changed. */
    void zoomChanged();
    /*! The part or the line that was drawn has changed. */
    void drawn();
    /*! \a region, in pixels of the frame, was drawn to be the region of interest. */
    void regionDrawn(const QRect &region);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool event(QEvent *event) override;

private Q_SLOTS:
    void showPicture(const Picture &picture);

private:
    enum class Drag { None, Pan, Part, Line, Region };

    void draw(const QPoint &position);
    void endDrag();
    void cancel();
    void moveProbe(const QPoint &step);
    void zoomBy(double factor, const QPointF &place);
    void changeZoom();
    void refresh();
    QSize deviceSize() const { return (QSizeF(size()) * devicePixelRatioF()).toSize(); }
    QPointF devicePlace(const QPointF &place) const { return place * devicePixelRatioF(); }
    QPoint pixelAt(const QPointF &place) const;
    QPoint heldInside(const QPoint &position) const;
    void paintPicture(QPainter &painter);
    static QString obstacle(const Cameras::Frame &frame);
    void paintMessage(QPainter &painter, const QString &text);

    Cameras::FramePointer m_frame;
    Cameras::FrameConversion::Look m_look;
    Viewport m_viewport;
    PictureMaker m_maker;
    Picture m_picture; // that is painted; its frame is null when none is
    ImageMarks m_marks;
    Tool m_tool = Tool::Pan;
    Drag m_drag = Drag::None;
    QPointF m_dragPlace; // in device pixels, of the last step
    QPoint m_dragStart; // in the frame
    QString m_hint;
};
