// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filter/cmatrix.h>

#include <filter/cludecomposition.h>
#include <filter/cqrdecomposition.h>

namespace zuno {

CMatrix solve(const CMatrix &a, const CMatrix &b)
{
    return a.rows() == a.cols() ? CLUDecomposition(a).solve(b) : CQRDecomposition(a).solve(b);
}

CMatrix inverse(const CMatrix &a)
{
    return solve(a, identity(a.rows()));
}

} // namespace zuno
