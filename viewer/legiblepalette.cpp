// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "legiblepalette.h"

#include <zeltoviewercomponents/featuretree/contrast.h>

#include <QColor>
#include <QPalette>

#include <algorithm>

namespace {

constexpr int mixingSteps = 32;
constexpr double margin = 1.1; // the edges of letters are blurred, which takes some contrast

QColor mixed(const QColor &from, const QColor &to, double share)
{
    const auto between = [share](float a, float b) { return a + static_cast<float>(share) * (b - a); };
    return QColor::fromRgbF(between(from.redF(), to.redF()), between(from.greenF(), to.greenF()),
                            between(from.blueF(), to.blueF()));
}

double leastContrast(const QColor &color, const QList<QColor> &backgrounds)
{
    double least = 21;
    for (const QColor &background : backgrounds) {
        const QColor seen = mixed(background, color, color.alphaF());
        least = std::min(least, contrastRatio(seen, background));
    }
    return least;
}

/*! \brief Changes the texts of one group of colours. */
class Group
{
public:
    Group(QPalette &palette, QPalette::ColorGroup group)
        : m_palette(palette)
        , m_group(group)
    {
    }

    QColor color(QPalette::ColorRole role) const { return m_palette.color(m_group, role); }

    void improve(QPalette::ColorRole role, const QList<QColor> &backgrounds, double minimum)
    {
        const QColor better = legible(color(role), backgrounds, minimum);
        if (better != color(role)) { // a brush with a pattern stays one
            m_palette.setColor(m_group, role, better);
        }
    }

    // A text of full contrast gets a highlight that lets it be read: it would have to turn otherwise.
    void improveHighlight()
    {
        improve(QPalette::Highlight, {color(QPalette::Base)}, legibleShape);
        const QColor text = color(QPalette::HighlightedText);
        const QColor better = legible(color(QPalette::Highlight), {text}, legibleText);
        if (leastContrast(better, {color(QPalette::Base)}) >= legibleShape) {
            improve(QPalette::Highlight, {text}, legibleText);
        }
        improve(QPalette::HighlightedText, {color(QPalette::Highlight)}, legibleText);
    }

private:
    QPalette &m_palette;
    const QPalette::ColorGroup m_group;
};

} // namespace

QColor legible(const QColor &color, const QList<QColor> &backgrounds, double minimum)
{
    if (leastContrast(color, backgrounds) >= minimum) {
        return color;
    }
    const QColor opaque = mixed(backgrounds.constFirst(), color, color.alphaF());
    const QColor end =
        leastContrast(Qt::black, backgrounds) > leastContrast(Qt::white, backgrounds) ? Qt::black : Qt::white;
    for (int step = 0; step < mixingSteps; ++step) {
        const QColor better = mixed(opaque, end, static_cast<double>(step) / mixingSteps);
        if (leastContrast(better, backgrounds) >= margin * minimum) {
            return better;
        }
    }
    return end;
}

QColor litButton(const QColor &button)
{
    return button.lighter(150);
}

void makeLegible(QPalette &palette)
{
    for (const auto number : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        Group group(palette, number);
        const QColor window = group.color(QPalette::Window);
        const QColor base = group.color(QPalette::Base);
        // What cannot be changed stands in the tree on the same colour as what can be.
        const QColor tree = palette.color(QPalette::Active, QPalette::Base);
        const QColor alternate = group.color(QPalette::AlternateBase);
        const QColor button = group.color(QPalette::Button);
        group.improve(QPalette::WindowText, {window, base, alternate}, legibleText);
        group.improve(QPalette::Text, {base, tree, alternate, window, button, litButton(button)},
                      legibleText);
        group.improve(QPalette::ButtonText, {button, litButton(button)}, legibleText);
        group.improve(QPalette::PlaceholderText, {base}, legibleText);
        group.improve(QPalette::ToolTipText, {group.color(QPalette::ToolTipBase)}, legibleText);
        group.improve(QPalette::Link, {base, window}, legibleText);
        group.improve(QPalette::LinkVisited, {base, window}, legibleText);
        group.improveHighlight();
    }
}
