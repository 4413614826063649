// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <charconv>
#include <cmath>
#include <random>

#include <QTest>

#include <filter/ckalmanfilter.h>

using namespace zuno;

namespace {

/// "1 2; 3 4". No two numbers give the same text, nor do two zeros.
QByteArray text(const CMatrix &m)
{
    QByteArray text;
    for (int i = 0; i < m.rows() * m.cols(); ++i) {
        std::array<char, 32> number {};
        std::to_chars(number.begin(), number.end(), m.element(i / m.cols(), i % m.cols()));
        text.append(i == 0 ? "" : (i % m.cols() == 0 ? "; " : " ")).append(number.data());
    }
    return text;
}

/// Elements from -1 to 1, some of them zeros of either sign; the same in every run.
CMatrix randomMatrix(quint8 rows, quint8 cols)
{
    static std::mt19937 random(7);
    CMatrix m(rows, cols);
    for (int i = 0; i < rows * cols; ++i) {
        const float element = static_cast<float>(random() % 2001) / 1000.0F - 1.0F;
        m.element(i / cols, i % cols) = random() % 5 == 0 ? std::copysign(0.0F, element) : element;
    }
    return m;
}

} // namespace

class TestFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void products()
    {
        QCOMPARE(text(multiply({{1, 2, 3}, {4, 5, 6}}, {{7, 8}, {9, 1}, {2, 3}})), "31 19; 85 55");
        QCOMPARE(text(multiply({{1e8F, 1, -1e8F}}, {{1}, {1}, {1}})), "0"); // from the left
        QCOMPARE(text(multiply({{-0.0F}}, {{1}})), "0"); // begins at 0
        QCOMPARE(text(subtract({{-0.0F, 0, 1}}, {{0, 0, 3}})), "-0 0 -2");
        QCOMPARE(text(transpose({{1, 2, -0.0F}, {4, 5, 6}})), "1 4; 2 5; -0 6");
        // What does not fit gives zeros of the size of the left one.
        QCOMPARE(text(add({{1, 2, 3}, {4, 5, 6}}, {{1, 2}, {3, 4}})), "0 0 0; 0 0 0");
        QCOMPARE(text(subtract({{1}, {2}, {3}}, {{1}, {2}})), "0; 0; 0");
    }

    void solutions()
    {
        QCOMPARE(text(solve({{0, 1}, {1, 0}}, {{1, 2}, {3, 4}})), "3 4; 1 2");
        QCOMPARE(text(inverse({{1, 3, 2}, {3, 1, 1}, {2, 5, 9}})),
                 "-0.08888888 0.3777778 -0.022222234; 0.5555555 -0.11111111 -0.11111107; "
                 "-0.28888887 -0.022222226 0.17777777");
        // Without an inverse the rows come back in pivot order; so do they, filled or cut, when
        // their number does not fit.
        QCOMPARE(text(solve({{1, 2}, {2, 4}}, {{1, 2}, {3, 4}})), "3 4; 1 2");
        QCOMPARE(text(solve({{0, 1}, {1, 0}}, {{1}, {2}, {3}})), "2; 1");
        // Least squares; what has no full rank gives the right-hand side.
        QCOMPARE(text(solve({{1, 0}, {2, 0}, {3, 0}}, {{1}, {2}, {3}})), "1; 2; 3");
        QCOMPARE(text(solve({{1, 2, 3}, {4, 5, 6}}, {{1}, {2}})), "1; 2");
        const CMatrix best = solve({{3, 0}, {4, 0}, {0, 2}}, {{5, 1}, {5, 0}, {2, 6}});
        const CMatrix wanted {{1.4F, 0.12F}, {1, 3}};
        for (int i = 0; i < 4; ++i)
            QVERIFY(std::abs(best.element(i / 2, i % 2) - wanted.element(i / 2, i % 2)) < 1e-6F);
    }

    // Matrices within themselves (up to four elements) and on the heap, onto one of either kind.
    void keepsElements()
    {
        for (const CMatrix &original : {randomMatrix(2, 2), randomMatrix(255, 255)}) {
            const QByteArray wanted = text(original);
            for (const CMatrix &target : {CMatrix(2, 2), CMatrix(2, 3)}) {
                CMatrix copy(target);
                copy = original;
                copy.element(copy.rows() - 1, copy.cols() - 1) += 1.0F;
                QVERIFY(!(copy == original) && text(original) == wanted);
                copy = original;
                CMatrix moved(target);
                moved = std::move(copy);
                QCOMPARE(text(CMatrix(std::move(moved))), wanted);
            }
        }
    }

    // Predicted are 2 * 1 + 3 = 5 with a variance of 2 * 1 * 2 + 4 = 8; the gain is 8 / (8 + 2).
    void step()
    {
        CKalmanFilter filter;
        filter.setState({{1}});
        filter.setCovariance({{1}});
        filter.setTransition({{2}});
        filter.setControl({{3}});
        filter.setControlInput({{1}});
        filter.setObservation({{1}});
        filter.setProcessNoise({{4}});
        filter.setMeasurementNoise({{2}});
        QCOMPARE(text(filter.step({{10}})), "9");
        QVERIFY(std::abs(filter.covariance().element(0, 0) - 1.6F) < 1e-6F);
    }
};

QTEST_GUILESS_MAIN(TestFilter)
#include "tst_filter.moc"
