// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/smoothing.h>

#include <base/processorstate.h>
#include <filter/ckalmanfilter.h>

namespace zuno {

namespace {

// km/h gained in a tenth of a second at one G: 9.81 x 0.1 x 3.6. One step of a float above 3.5316,
// which is what the results of earlier releases rest on.
constexpr float SpeedPerAcceleration = 3.5316002368927F;

constexpr float MaximumSpeed = 399.0F;
constexpr float MaximumAcceleration = 2.0F;

// Not std::clamp: a value that is not a number must become the upper limit.
float limited(float value, float low, float high)
{
    const float raised = low > value ? low : value;
    return high > raised ? raised : high;
}

CKalmanFilter makeFilter()
{
    CKalmanFilter filter;
    filter.setTransition({{1.0F, SpeedPerAcceleration}, {0.0F, 1.0F}});
    filter.setControl({{0.0F}, {0.0F}});
    filter.setControlInput({{0.0F}});
    filter.setObservation({{1.0F, 0.0F}, {0.0F, 1.0F}});
    filter.setState({{0.0F}, {0.0F}});
    filter.setCovariance({{1250.0F, 0.0F}, {0.0F, 0.01F}});
    filter.setMeasurementNoise({{125.0F, 0.0F}, {0.0F, 1.0F}});
    filter.setProcessNoise({{0.125F, 0.0F}, {0.0F, 0.01F}});
    return filter;
}

} // namespace

void smoothSamples(Points &samples)
{
    clearVectorRegisters();
    CKalmanFilter filter = makeFilter();
    CMatrix measurement(2, 1);
    for (PointAcquisition &sample : samples) {
        sample.rawSpeed = static_cast<float>(sample.dataSpeed);
        measurement.element(0, 0) = sample.rawSpeed;
        measurement.element(1, 0) = static_cast<float>(sample.dataAccelXPH);
        const CMatrix &state = filter.step(measurement);
        sample.dataSpeed = static_cast<double>(limited(state.element(0, 0), 0.0F, MaximumSpeed));
        sample.dataAccelXPHComputed = static_cast<double>(
            limited(state.element(1, 0), -MaximumAcceleration, MaximumAcceleration));
    }
}

} // namespace zuno
