// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <charconv>
#include <cmath>
#include <random>

#include <QTest>

#include <filter/ckalmanfilter.h>

using namespace zuno;

namespace {

/// "1 2; 3 4" or, without elements, "0x2". No two numbers give the same text, nor do two zeros.
QByteArray text(const CMatrix &m)
{
    QByteArray text;
    for (int i = 0; i < m.rows() * m.cols(); ++i) {
        std::array<char, 32> number {};
        std::to_chars(number.begin(), number.end(), m.element(i / m.cols(), i % m.cols()));
        text.append(i == 0 ? "" : (i % m.cols() == 0 ? "; " : " ")).append(number.data());
    }
    return text.isEmpty() ? QByteArray::number(m.rows()) + 'x' + QByteArray::number(m.cols())
                          : text;
}

/// The largest distance from 0 of an element of a·x - b.
float rest(const CMatrix &a, const CMatrix &x, const CMatrix &b)
{
    const CMatrix rest = subtract(multiply(a, x), b);
    float largest = 0.0F;
    for (int i = 0; i < b.rows() * b.cols(); ++i)
        largest = std::max(largest, std::abs(rest.element(i / b.cols(), i % b.cols())));
    return largest;
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

/// c + sign a·b, or c + sign a·bᵀ: all that a step is made of, but for the inverse.
CMatrix plus(CMatrix c, float sign, const CMatrix &a, const CMatrix &b, bool isFlipped = false)
{
    for (int i = 0; i < c.rows(); ++i) {
        for (int j = 0; j < c.cols(); ++j) {
            float sum = 0.0F;
            for (int k = 0; k < a.cols(); ++k)
                sum += a.element(i, k) * (isFlipped ? b.element(j, k) : b.element(k, j));
            c.element(i, j) += sign * sum;
        }
    }
    return c;
}

} // namespace

class TestFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void products()
    {
        QCOMPARE(text(multiply({{1, 2, 3}, {4, 5, 6}}, {{7, 8}, {9, 1}, {2, 3}})), "31 19; 85 55");
        QCOMPARE(text(multiply({{1, 2, 3}, {4, 5, 6}}, {{1, 2}, {3, 4}})), "0 0; 0 0");
        QCOMPARE(text(multiply(CMatrix(2, 0), CMatrix(0, 2))), "0 0; 0 0");
        QCOMPARE(text(multiply({{1e8F, 1, -1e8F}}, {{1}, {1}, {1}})), "0"); // from the left
        QCOMPARE(text(multiply({{-0.0F}}, {{1}})), "0"); // begins at 0
        QCOMPARE(text(add({{-0.0F, -0.0F, 1}}, {{-0.0F, 0, 2}})), "-0 0 3");
        QCOMPARE(text(add({{1}, {2}}, {{1, 2}})), "0; 0");
        QCOMPARE(text(add({{1, 2, 3}, {4, 5, 6}}, {{1, 2}, {3, 4}})), "0 0 0; 0 0 0");
        QCOMPARE(text(subtract({{-0.0F, 0, 1}}, {{0, 0, 3}})), "-0 0 -2");
        QCOMPARE(text(subtract({{1}, {2}, {3}}, {{1}, {2}})), "0; 0; 0");
        QCOMPARE(text(transpose({{1, 2, -0.0F}, {4, 5, 6}})), "1 4; 2 5; -0 6");
        QCOMPARE(text(transpose(CMatrix(2, 0))), "0x2");
    }

    void solutions()
    {
        QCOMPARE(text(solve({{0, 1}, {1, 0}}, {{1, 2}, {3, 4}})), "3 4; 1 2");
        QCOMPARE(text(inverse({{2, 0}, {0, -4}})), "0.5 0; -0 -0.25");
        QCOMPARE(text(inverse({{1, 3, 2}, {3, 1, 1}, {2, 5, 9}})),
                 "-0.08888888 0.3777778 -0.022222234; 0.5555555 -0.11111111 -0.11111107; "
                 "-0.28888887 -0.022222226 0.17777777");
        QCOMPARE(text(inverse(CMatrix())), "0x0");
        // Without an inverse the rows come back in pivot order; so do they, filled or cut, when
        // their number does not fit.
        QCOMPARE(text(solve({{1, 2}, {2, 4}}, {{1, 2}, {3, 4}})), "3 4; 1 2");
        QCOMPARE(text(solve({{1, 1}, {-1, -1}}, {{1, 2}, {3, 4}})), "1 2; 3 4");
        QCOMPARE(text(solve({{0, 1, 0}, {0, 0, 1}, {0, 2, 0}}, {{1}, {2}, {3}})), "1; 3; 2");
        QCOMPARE(text(solve({{0, 1}, {1, 0}}, {{5, 6}})), "0 0; 5 6");
        QCOMPARE(text(solve({{0, 1}, {1, 0}}, {{1}, {2}, {3}})), "2; 1");
        // Least squares; what does not fit or has no full rank gives the right-hand side.
        QCOMPARE(text(solve({{1, 0}, {1, 1}, {1, 2}}, {{1}, {2}})), "1; 2");
        QCOMPARE(text(solve({{1, 0}, {2, 0}, {3, 0}}, {{1}, {2}, {3}})), "1; 2; 3");
        QCOMPARE(text(solve({{1, 2, 3}, {4, 5, 6}}, {{1}, {2}})), "1; 2");
        QVERIFY(rest(identity(2), solve({{0, 1}, {2, 1}, {4, 1}}, {{1}, {2}, {3}}), {{0.5F}, {1}})
                < 1e-6F);
        // beside a line, with two right-hand sides; and too large to be squared
        QVERIFY(rest(identity(2), solve({{3, 0}, {4, 0}, {0, 2}}, {{5, 1}, {5, 0}, {2, 6}}),
                     {{1.4F, 0.12F}, {1, 3}})
                < 1e-6F);
        const CMatrix large {{3e30F, 0}, {4e30F, 0}, {0, 2e30F}};
        QVERIFY(rest(identity(2), solve(large, {{5e30F}, {5e30F}, {2e30F}}), {{1.4F}, {1}})
                < 1e-6F);
    }

    // Matrices within themselves (up to four elements) and on the heap, onto one of either kind.
    void keepsElements()
    {
        QCOMPARE(text({{1, 2}, {3}, {4, 5, 6}}), "1 2; 3 0; 4 5");
        for (const CMatrix &original :
             {randomMatrix(2, 2), randomMatrix(1, 5), randomMatrix(255, 255)}) {
            const QByteArray wanted = text(original);
            for (const CMatrix &target : {CMatrix(), CMatrix(2, 2), CMatrix(2, 3)}) {
                CMatrix copy(target);
                copy = original;
                copy.element(copy.rows() - 1, copy.cols() - 1) += 1.0F;
                QVERIFY(!(copy == original) && text(original) == wanted);
                copy = original;
                CMatrix moved(target);
                moved = std::move(copy);
                // cppcheck-suppress accessMoved // What is left is empty.
                QCOMPARE(text(copy), "0x0"); // NOLINT(bugprone-use-after-move)
                QCOMPARE(text(CMatrix(std::move(moved))), wanted);
            }
        }
    }

    // The large elements stand off the diagonal, so nothing is solved without exchanging rows.
    void solvesSquares()
    {
        for (const quint8 size : {1, 2, 5, 255}) {
            CMatrix a = randomMatrix(size, size);
            for (int i = 0; i < size; ++i)
                a.element(i, (i + 1) % size) += static_cast<float>(size + 1);
            const CMatrix b = randomMatrix(size, 1);
            QVERIFY2(rest(a, solve(a, b), b) < 1e-4F, qPrintable(QString::number(size)));
        }
    }

    void steps_data()
    {
        QTest::addColumn<QList<quint8>>("sizes"); // states, inputs and measurements
        QTest::addColumn<bool>("isSingular");
        QTest::newRow("two of each, one input") << QList<quint8> {2, 1, 2} << false;
        QTest::newRow("two of each, no inverse") << QList<quint8> {2, 1, 2} << true;
        QTest::newRow("two states, one measurement") << QList<quint8> {2, 1, 1} << false;
        QTest::newRow("four states") << QList<quint8> {4, 2, 3} << false;
    }
    void steps()
    {
        QFETCH(const QList<quint8>, sizes);
        QFETCH(const bool, isSingular);
        const quint8 n = sizes[0];
        const quint8 m = sizes[2];
        for (int start = 0; start < 500; ++start) {
            CKalmanFilter filter;
            filter.setState(randomMatrix(n, 1));
            filter.setCovariance(randomMatrix(n, n));
            filter.setTransition(randomMatrix(n, n));
            filter.setControl(randomMatrix(n, sizes[1]));
            filter.setControlInput(randomMatrix(sizes[1], 1));
            // What does not depend on the state has no variance but its noise.
            filter.setObservation(isSingular ? CMatrix(m, n) : randomMatrix(m, n));
            const auto noise = static_cast<float>(start % 2);
            const CMatrix singular {{noise, noise}, {2 * noise, 2 * noise}};
            filter.setMeasurementNoise(isSingular ? singular : randomMatrix(m, m));
            filter.setProcessNoise(randomMatrix(n, n));
            CMatrix x = filter.state();
            CMatrix p = filter.covariance();
            const CMatrix &a = filter.transition();
            const CMatrix &h = filter.observation();
            for (int step = 0; step < 4; ++step) {
                const CMatrix z = randomMatrix(m, 1);
                x = plus(multiply(filter.control(), filter.controlInput()), 1, a, x);
                p = plus(filter.processNoise(), 1, plus(CMatrix(n, n), 1, a, p), a, true);
                const CMatrix s
                    = plus(filter.measurementNoise(), 1, plus(CMatrix(m, n), 1, h, p), h, true);
                const CMatrix crossed = plus(CMatrix(n, m), 1, p, h, true);
                const CMatrix gain = plus(CMatrix(n, m), 1, crossed, inverse(s));
                x = plus(x, 1, gain, plus(z, -1, h, x));
                p = plus(CMatrix(n, n), 1, plus(identity(n), -1, gain, h), p);
                QCOMPARE(text(filter.step(z)), text(x));
                QCOMPARE(text(filter.covariance()), text(p));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestFilter)
#include "tst_filter.moc"
