// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QObject>
#include <QPointer>

class QScreen;
class QWidget;
class QWindow;

/*! \brief Scales fixed sizes to the screen that a widget stands on.
 *
 * The scale is that of device-independent pixels: 1 on a screen whose text has the usual size, 2 where the
 * desktop asks for text twice as large. A scale that Qt itself applies to all pixels is not part of it, so
 * nothing is scaled twice. A helper belongs to its widget and follows it from screen to screen.
 *
 * \ingroup errors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT CStyleHelper : public QObject
{
    Q_OBJECT

public:
    /*! \brief Sizes of fonts, in pixels of an unscaled screen. */
    enum EFontSize {
        SmallFont = 11,
        NormalFont = 13,
        LargeFont = 17,
    };
    Q_ENUM(EFontSize)

    /*! Constructs the helper of \a widget, and as its child. */
    explicit CStyleHelper(QWidget *widget);
    ~CStyleHelper() override;

    /*! Returns the scale of the screen that the widget stands on. */
    qreal screenScale() const;
    /*! Returns \a pixels, a size made for a scale of 1, at the scale of the widget's screen. */
    int scaled(int pixels) const;
    /*! Returns the size in pixels of a font that is \a size pixels high at a scale of 1. */
    int fontPixelSize(EFontSize size) const;

    /*! Returns the scale of the screen that \a widget stands on, of the primary screen for a null one. */
    static qreal screenScale(const QWidget *widget);
    /*! Returns \a pixels at the scale of the screen of \a widget. */
    static int scaled(int pixels, const QWidget *widget);

Q_SIGNALS:
    /*! The widget has come to a screen of another scale, or the scale of its screen has changed. */
    void screenScaleChanged(qreal scale);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void followScreen();

private:
    void followWindow();

    QWidget *m_widget;
    QPointer<QWindow> m_window;
    QPointer<QScreen> m_screen;
    qreal m_screenScale;
};
