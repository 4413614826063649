// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <session/recording/pointacquisition.h>

namespace zuno {

/// The smoothing pass: replaces each sample's recorded speed (km/h) by the filtered one, limited
/// to 0 .. 399, and fills its computed longitudinal acceleration (G), limited to -2 .. 2. The
/// recorded speed stays beside them as `rawSpeed`.
///
/// One Kalman filter runs over all samples, with the recorded speed and longitudinal acceleration
/// as measurements. It starts from standstill, so the first samples are pulled towards zero. The
/// samples are taken to be a tenth of a second apart. A state that is not a number becomes the
/// upper limit.
void smoothSamples(Points &samples);

} // namespace zuno
