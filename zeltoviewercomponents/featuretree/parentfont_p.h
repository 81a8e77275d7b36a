// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>

class QWidget;

/*! \brief Gives a widget that has a style sheet the font of its parent, which Qt does not hand on to it.
 *
 * A font that the widget is given itself stays until the parent's changes.
 *
 * \ingroup controls
 */
class ParentFont
{
public:
    explicit ParentFont(QWidget *widget);

    /*! Takes the parent's font if that has changed; to be called when the widget hears of a change of fonts.
     */
    void update();

private:
    QWidget *m_widget;
    QFont m_font; // the parent's, as it was taken last
};
