// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

/*! \brief The application's style, with palettes whose texts can be read.
 *
 * Where that style is Fusion, whose frames take hardly another colour than the window, those of buttons,
 * boxes and sliders are drawn so that they can be seen, and that of the focus too.
 */
class LegibleStyle : public QProxyStyle
{
    Q_OBJECT

public:
    LegibleStyle();
    ~LegibleStyle() override;

    using QProxyStyle::polish;
    void polish(QPalette &palette) override;

    /*! Leaves a tool button room for the arrow that says it has a menu. */
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;

private:
    void outlineSlider(const QStyleOptionComplex &option, QPainter *painter, const QWidget *widget) const;

    const bool m_drawsFrames;
};
