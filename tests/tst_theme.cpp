// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>

#include <QTest>

#include <theme/themes.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

Vector linear(const QColor &colour)
{
    return {linear(colour.redF()), linear(colour.greenF()), linear(colour.blueF())};
}

Vector product(const Matrix &matrix, const Vector &vector)
{
    Vector result {};
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = matrix[i][0] * vector[0] + matrix[i][1] * vector[1] + matrix[i][2] * vector[2];
    return result;
}

// WCAG 2.1, relative luminance and contrast ratio.
double luminance(const QColor &colour)
{
    const Vector parts = linear(colour);
    return 0.2126 * parts[0] + 0.7152 * parts[1] + 0.0722 * parts[2];
}

double contrast(const QColor &one, const QColor &other)
{
    const double ratio = (luminance(one) + 0.05) / (luminance(other) + 0.05);
    return std::max(ratio, 1 / ratio);
}

// Machado, Oliveira, Fernandes 2009, severity 1; for linear parts.
const std::array<Matrix, 4> Sights {{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868},
      {0.114503, 0.786281, 0.099216},
      {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968},
      {0.280085, 0.672501, 0.047413},
      {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779},
      {-0.078411, 0.930809, 0.147602},
      {0.004733, 0.691367, 0.303900}}},
}};

// Oklab of linear parts (Ottosson 2020); a distance of 0.02 is just seen.
Vector perceived(const Vector &parts)
{
    Vector cones = product({{{0.4122214708, 0.5363325363, 0.0514459929},
                             {0.2119034982, 0.6806995451, 0.1073969566},
                             {0.0883024619, 0.2817188376, 0.6299787005}}},
                           parts);
    for (double &cone : cones)
        cone = std::cbrt(std::max(cone, 0.0));
    return product({{{0.2104542553, 0.7936177850, -0.0040720468},
                     {1.9779984951, -2.4285922050, 0.4505937099},
                     {0.0259040371, 0.7827717662, -0.8086757660}}},
                   cones);
}

double distance(const QColor &one, const QColor &other, const Matrix &sight)
{
    const Vector a = perceived(product(sight, linear(one)));
    const Vector b = perceived(product(sight, linear(other)));
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

} // namespace

class TestTheme final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrasts_data()
    {
        QTest::addColumn<QList<Colour>>("colours");
        QTest::addColumn<QList<Colour>>("grounds");
        QTest::addColumn<double>("least");
        using enum Colour;
        const QList<Colour> grounds {Window, Pane, Raised, Card, Map};
        QTest::newRow("texts") << QList {Text, SecondText, ThirdText} << grounds << 4.5;
        QTest::newRow("under the mouse") << QList {Text} << QList {Hover} << 4.5;
        QTest::newRow("numbers in the laps' colours")
            << QList {Lap1, Lap2, Gain, Loss} << QList {Window, Pane, Card} << 4.5;
        QTest::newRow("chosen") << QList {ChosenText} << QList {Chosen, AccentHover} << 4.5;
        QTest::newRow("tip") << QList {ToolTipText} << QList {ToolTip} << 4.5;
        QTest::newRow("best lap") << QList {BestLapText} << QList {BestLap} << 4.5;
        QTest::newRow("best section") << QList {BestSectionText} << QList {BestSection} << 4.5;
        QTest::newRow("selected") << QList {SelectedText, SelectedLoss} << QList {SelectedRow}
                                  << 4.5;
        QTest::newRow("thrown out") << QList {Text} << QList {ThrownOut} << 4.5;
        QTest::newRow("warning") << QList {WarningInk} << QList {Warning} << 4.5;
        QTest::newRow("error") << QList {Error} << QList {Window, Pane, Card} << 4.5;
        QTest::newRow("laps' lines")
            << QList {Lap1, Lap2, Lap3, Lap4, Lap5, Lap6, Braking, Accelerating, SectorLine, Cursor}
            << QList {Pane, CornerBand, Map} << 3.0;
        QTest::newRow("focus and signs") << QList {Focus, Sign} << grounds << 3.0;
        QTest::newRow("edges of fields") << QList {Edge} << QList {Pane} << 3.0;
        QTest::newRow("bars") << QList {BestLapBar} << QList {BestLap} << 3.0;
        QTest::newRow("bars of sections") << QList {BestSectionBar} << QList {BestSection} << 3.0;
        // The casing around the line does the rest.
        QTest::newRow("lines on the road")
            << QList {Ramp1, Ramp2, Ramp3, Ramp4, Ramp5, Lap1, Lap2, Neutral} << QList {Road}
            << 2.3;
    }

    void contrasts()
    {
        QFETCH(const QList<Colour>, colours);
        QFETCH(const QList<Colour>, grounds);
        QFETCH(const double, least);
        for (const Theme &theme : {Theme(Theme::Kind::Dark), Theme(Theme::Kind::Light)}) {
            for (const Colour colour : colours) {
                for (const Colour ground : grounds) {
                    const double found = contrast(theme.colour(colour), theme.colour(ground));
                    QVERIFY2(
                        found >= least,
                        qPrintable(u"%1 on %2: %3"_s.arg(Theme::name(colour), Theme::name(ground))
                                       .arg(found)));
                }
            }
        }
    }

    // As everybody sees them. From the fifth lap on, and with the rarest weakness from the fourth
    // on, the dashes do most of it.
    void lapsAreToldApart()
    {
        for (const Theme &theme : {Theme(Theme::Kind::Dark), Theme(Theme::Kind::Light)}) {
            for (std::size_t sight = 0; sight < Sights.size(); ++sight) {
                for (std::size_t lap = 1; lap < LapColourCount; ++lap) {
                    for (std::size_t other = 0; other < lap; ++other) {
                        const double found
                            = distance(theme.lap(lap), theme.lap(other), Sights[sight]);
                        const bool isUsual = lap < 4 && sight < 3;
                        const double least = lap == 1 ? 0.2 : isUsual ? 0.09 : 0.03;
                        QVERIFY2(
                            found >= least,
                            qPrintable(
                                u"%1 and %2 of sight %3: %4"_s.arg(lap).arg(other).arg(sight).arg(
                                    found)));
                    }
                }
                QVERIFY(distance(theme.colour(Colour::Braking), theme.colour(Colour::Accelerating),
                                 Sights[sight])
                        > 0.15);
            }
        }
        for (std::size_t lap = 1; lap < LapColourCount; ++lap) {
            for (std::size_t other = 0; other < lap; ++other)
                QVERIFY(!std::ranges::equal(lapDash(lap), lapDash(other)));
        }
    }

    void sheet_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("filled");
        QTest::newRow("names") << u"a{color:@text;b:@pane}"_s << u"a{color:#0e1720;b:#ffffff}"_s;
        QTest::newRow("one name begins another") << u"@bestLapText"_s << u"#0b3a1f"_s;
        QTest::newRow("no colour") << u"url(a@2x.png) @ @none"_s << u"url(a@2x.png) @ @none"_s;
        QTest::newRow("nothing") << QString() << QString();
    }

    void sheet()
    {
        QFETCH(const QString, sheet);
        QTEST(Theme(Theme::Kind::Light).filled(sheet), "filled");
    }

    void choices()
    {
        for (const auto choice : {ThemeChoice::AsDesktop, ThemeChoice::Dark, ThemeChoice::Light})
            QCOMPARE(Themes::choiceOf(Themes::textOf(choice)), choice);
        QCOMPARE(Themes::choiceOf(u"pink"_s), ThemeChoice::AsDesktop);
    }
};

QTEST_APPLESS_MAIN(TestTheme)
#include "tst_theme.moc"
