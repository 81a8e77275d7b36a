// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/parameterdata.h>

#include <QtGlobal>

#include <limits>

/*! \brief The arithmetic of the number editors: grids, limits and digits. No widget in it. */
namespace EditorNumbers {

/*! Returns \a value, limited to the signed 32-bit range of Qt's integer controls. */
int saturated(qint64 value);
int saturated(double value);

/*! Returns \a a - \a b as 32-bit arithmetic that wraps around. */
int wrappingDifference(int a, int b);

/*! Returns the larger of a twentieth of the distance of the limits and twice \a increment, in 32-bit
 * arithmetic that wraps around: the full 32-bit range counts as narrow. */
int pageStep(int minimum, int maximum, int increment);

/*! Returns \a value moved toward \a minimum onto the grid that starts there; as it is when \a increment is 0.
 */
int trimmedToGrid(int value, int minimum, int increment);

/*! Returns the point of the grid minimum, minimum + increment, ... that is nearest to \a value and inside the
 * limits. Without a usable increment \a value is only limited. The limits are finite and in order. */
double snappedToGrid(double value, double minimum, double maximum, double increment);

/*! Returns \a value without the binary noise behind its 15th significant digit. */
double withoutNoise(double value);

/*! Returns the sum without the binary noise behind the 15th significant digit of the larger of both: -0.3 and
 * three times 0.1 are 0. */
double sumWithoutNoise(double a, double b);

/*! \brief What a control makes of the limits of a feature: they are finite and in order, the increment is 0
 * when there is none.
 *
 * \ingroup editors
 */
struct FloatLimits
{
    /*! Returns whether there are two limits: those as far away as numbers go are none. */
    bool isBounded() const;

    double minimum = std::numeric_limits<double>::lowest();
    double maximum = std::numeric_limits<double>::max();
    double increment = 0.0;
};

/*! Returns the limits of \a data. A limit that is not finite becomes the farthest double, as do both limits
 * when they are in the wrong order. */
FloatLimits usableLimits(const ParameterCollection::FloatParameterData &data);

/*! Returns whether \a data has a value that can be shown as a number. */
bool hasNumber(const ParameterCollection::FloatParameterData &data);

/*! Returns whether steps make sense: there is a value, and the limits are in order. */
bool canStep(const ParameterCollection::FloatParameterData &data);

} // namespace EditorNumbers
