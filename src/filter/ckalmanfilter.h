// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filter/cmatrix.h>

namespace zuno {

/// A linear discrete Kalman filter. The eight matrices are assigned before the first step; the
/// state and its covariance change with every step.
class CKalmanFilter
{
public:
    CKalmanFilter() = default;
    virtual ~CKalmanFilter() = default;
    CKalmanFilter(const CKalmanFilter &) = default;
    CKalmanFilter &operator=(const CKalmanFilter &) = default;
    CKalmanFilter(CKalmanFilter &&) = default;
    CKalmanFilter &operator=(CKalmanFilter &&) = default;

    void setCovariance(CMatrix p) { m_p = std::move(p); }
    void setState(CMatrix x) { m_x = std::move(x); }
    void setTransition(CMatrix a) { m_a = std::move(a); }
    void setControl(CMatrix b) { m_b = std::move(b); }
    void setControlInput(CMatrix u) { m_u = std::move(u); }
    void setObservation(CMatrix h) { m_h = std::move(h); }
    void setMeasurementNoise(CMatrix r) { m_r = std::move(r); }
    void setProcessNoise(CMatrix q) { m_q = std::move(q); }

    [[nodiscard]] const CMatrix &covariance() const { return m_p; }
    [[nodiscard]] const CMatrix &state() const { return m_x; }
    [[nodiscard]] const CMatrix &transition() const { return m_a; }
    [[nodiscard]] const CMatrix &control() const { return m_b; }
    [[nodiscard]] const CMatrix &controlInput() const { return m_u; }
    [[nodiscard]] const CMatrix &observation() const { return m_h; }
    [[nodiscard]] const CMatrix &measurementNoise() const { return m_r; }
    [[nodiscard]] const CMatrix &processNoise() const { return m_q; }

    /// One predict-and-correct cycle for the measurement @p z (a column with as many rows as the
    /// observation matrix). Gives the state after it. A singular innovation covariance is not
    /// detected: the inverse then is the permuted identity and the step goes on with it.
    const CMatrix &step(const CMatrix &z);

private:
    CMatrix m_p;
    CMatrix m_x;
    CMatrix m_a;
    CMatrix m_b;
    CMatrix m_u;
    CMatrix m_h;
    CMatrix m_r;
    CMatrix m_q;
};

} // namespace zuno
