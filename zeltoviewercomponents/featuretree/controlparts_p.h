// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/core/logging.h>

#include <functional>

class QAbstractSpinBox;
class QSlider;
class QWidget;

/*! \brief How the controls that are made of a spin box, with a slider or without, are put together. */
namespace ControlParts {

/*! Puts \a spinBox and \a slider side by side into \a editor, which hands its focus to the spin box. */
void layOutComboSlider(QWidget *editor, QAbstractSpinBox *spinBox, QSlider *slider);

/*! Makes \a editor hand its focus to \a spinBox, cover what is below it and leave the wheel to the view. */
void setUpComposite(QWidget *editor, QAbstractSpinBox *spinBox);

/*! Returns the width that a spin box needs for twelve digits. */
int editBoxWidth(const QAbstractSpinBox &spinBox);

/*! Runs \a work, which sets a tool tip; a GenICam or standard exception is logged to \a category and ends it.
 */
void guardedToolTip(Core::Logging::CategoryId category, const std::function<void()> &work);

} // namespace ControlParts
