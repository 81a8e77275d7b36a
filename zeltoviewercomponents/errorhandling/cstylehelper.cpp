// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "cstylehelper.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <cmath>

namespace {

#ifdef Q_OS_MACOS
constexpr qreal usualDotsPerInch = 72;
#else
constexpr qreal usualDotsPerInch = 96;
#endif

// Some drivers report screens of no size, and with it no or absurd resolutions.
constexpr qreal smallestScale = 0.5;
constexpr qreal largestScale = 8;

qreal scaleOf(const QScreen *screen)
{
    const qreal scale = screen ? screen->logicalDotsPerInch() / usualDotsPerInch : 1;
    return std::isfinite(scale) && scale > 0 ? qBound(smallestScale, scale, largestScale) : 1;
}

QScreen *screenOf(const QWidget *widget)
{
    return widget ? widget->screen() : QGuiApplication::primaryScreen();
}

} // namespace

CStyleHelper::CStyleHelper(QWidget *widget)
    : QObject(widget)
    , m_widget(widget)
    , m_screenScale(screenScale(widget))
{
    widget->installEventFilter(this);
    followWindow();
}

CStyleHelper::~CStyleHelper() = default;

qreal CStyleHelper::screenScale() const
{
    return m_screenScale;
}

int CStyleHelper::scaled(int pixels) const
{
    return qRound(pixels * m_screenScale);
}

int CStyleHelper::fontPixelSize(EFontSize size) const
{
    return scaled(size);
}

qreal CStyleHelper::screenScale(const QWidget *widget)
{
    return scaleOf(screenOf(widget));
}

int CStyleHelper::scaled(int pixels, const QWidget *widget)
{
    return qRound(pixels * screenScale(widget));
}

bool CStyleHelper::eventFilter(QObject *watched, QEvent *event)
{
    // A widget gets its window, and with it a screen of its own, no later than it is shown.
    if (event->type() == QEvent::Show || event->type() == QEvent::ParentChange) {
        followWindow();
    }
    return QObject::eventFilter(watched, event);
}

void CStyleHelper::followWindow()
{
    QWindow *const window = m_widget->window()->windowHandle();
    if (window != m_window) {
        if (m_window) {
            disconnect(m_window, nullptr, this, nullptr);
        }
        m_window = window;
        if (window) {
            connect(window, SIGNAL(screenChanged(QScreen *)), this, SLOT(followScreen()));
        }
    }
    followScreen();
}

void CStyleHelper::followScreen()
{
    QScreen *const screen = screenOf(m_widget);
    if (screen != m_screen) {
        if (m_screen) {
            disconnect(m_screen, nullptr, this, nullptr);
        }
        m_screen = screen;
        if (screen) {
            connect(screen, SIGNAL(logicalDotsPerInchChanged(qreal)), this, SLOT(followScreen()));
        }
    }
    const qreal scale = scaleOf(screen);
    if (!qFuzzyCompare(scale, m_screenScale)) {
        m_screenScale = scale;
        emit screenScaleChanged(scale);
    }
}
