// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "legiblestyle.h"

#include "legiblepalette.h"

#include <QPainter>
#include <QPalette>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionSpinBox>
#include <QStyleOptionToolButton>

namespace {

// Those of the style below.
constexpr double radius = 2;
constexpr double grooveRadius = 1;

QColor outlineColor(const QPalette &palette, bool hasFocus)
{
    const QColor button = palette.color(QPalette::Button);
    const QList<QColor> around{palette.color(QPalette::Window), palette.color(QPalette::Base),
                               palette.color(QPalette::Active, QPalette::Base), button, litButton(button)};
    const auto role = hasFocus ? QPalette::Highlight : QPalette::Mid;
    return legible(palette.color(role), around, legibleShape);
}

bool hasKeyboardFocus(const QStyleOption &option)
{
    return option.state.testFlags(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange);
}

// Along the middle of the outermost pixels.
void outline(QPainter *painter, const QRectF &frame, double corner, const QColor &color)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(color);
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter->restore();
}

bool isFlat(const QStyleOption &option)
{
    const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && button->features.testFlag(QStyleOptionButton::Flat);
}

} // namespace

LegibleStyle::LegibleStyle()
    : m_drawsFrames(baseStyle()->inherits("QFusionStyle"))
{
}

LegibleStyle::~LegibleStyle() = default;

void LegibleStyle::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    makeLegible(palette);
}

QSize LegibleStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                     const QWidget *widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    const auto *const button = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    if (type == CT_ToolButton && button && button->features.testFlag(QStyleOptionToolButton::HasMenu)) {
        result.rwidth() += proxy()->pixelMetric(PM_MenuButtonIndicator, option, widget);
    }
    return result;
}

void LegibleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!m_drawsFrames) {
        return;
    }
    switch (element) {
    case PE_IndicatorCheckBox:
        outline(painter, option->rect, 0, outlineColor(option->palette, hasKeyboardFocus(*option)));
        break;
    case PE_PanelButtonCommand:
        if (!isFlat(*option)) {
            outline(painter, option->rect, radius, outlineColor(option->palette, hasKeyboardFocus(*option)));
        }
        break;
    case PE_FrameLineEdit:
        outline(painter, option->rect, radius,
                outlineColor(option->palette, option->state.testFlag(State_HasFocus)));
        break;
    case PE_Frame: // of lists and texts
        if (option->state.testFlag(State_HasFocus)) {
            outline(painter, option->rect, 0, outlineColor(option->palette, true));
        }
        break;
    case PE_PanelMenu:
        outline(painter, option->rect, 0, outlineColor(option->palette, false));
        break;
    case PE_FrameFocusRect:
        if (option->state.testFlag(State_KeyboardFocusChange)) {
            outline(painter, option->rect, grooveRadius, outlineColor(option->palette, true));
        }
        break;
    default:
        break;
    }
}

void LegibleStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!m_drawsFrames) {
        return;
    }
    const bool hasFocus = option->state.testFlag(State_HasFocus);
    if (const auto *const box = qstyleoption_cast<const QStyleOptionSpinBox *>(option); box && box->frame) {
        outline(painter, QRectF(box->rect).adjusted(0, 1, 0, -1), radius,
                outlineColor(box->palette, hasFocus));
    } else if (const auto *const list = qstyleoption_cast<const QStyleOptionComboBox *>(option);
               list && list->editable && list->frame) {
        outline(painter, list->rect, radius, outlineColor(list->palette, hasFocus));
    } else if (control == CC_Slider) {
        outlineSlider(*option, painter, widget);
    }
}

void LegibleStyle::outlineSlider(const QStyleOptionComplex &option, QPainter *painter,
                                 const QWidget *widget) const
{
    const QRect groove = proxy()->subControlRect(CC_Slider, &option, SC_SliderGroove, widget);
    const QRect handle = proxy()->subControlRect(CC_Slider, &option, SC_SliderHandle, widget);
    const QColor color = outlineColor(option.palette, hasKeyboardFocus(option));
    painter->save();
    painter->setClipRegion(QRegion(option.rect) - handle.adjusted(1, 1, -1, -1));
    outline(painter, QRectF(groove).adjusted(1, 1, -1, -1), grooveRadius,
            outlineColor(option.palette, false));
    painter->restore();
    outline(painter, QRectF(handle).adjusted(1, 1, -1, -1), radius, color);
}
