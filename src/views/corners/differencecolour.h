// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>

#include <insight/trackzones.h>
#include <theme/theme.h>

namespace zuno {

/// The colour of a difference in seconds, or of any other figure where @p seconds says which way is
/// slower. What is within the receivers' noise has none.
[[nodiscard]] inline Colour differenceColour(double seconds)
{
    if (std::fabs(seconds) < NoiseLoss)
        return Colour::ThirdText;
    return seconds > 0.0 ? Colour::Loss : Colour::Gain;
}

} // namespace zuno
