// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <insight/sessioninsight.h>

namespace zuno {

/// What a unit of the circuit cost a lap, in words and figures.
struct TimePlace
{
    /// An index into the circuit's units.
    std::size_t unit = 0;
    /// "3", "7-9", a name; "line" of the piece before the first corner.
    QString label;
    /// How many corners it has; with one, its side.
    std::size_t corners = 0;
    bool isRight = false;
    /// Seconds lost; negative when won.
    double loss = 0.0;
    /// What was won and lost on the way, seconds of 0 and more: their difference is the loss.
    double won = 0.0;
    double lost = 0.0;
    /// Whether the speeds say so as well.
    bool isConfirmed = true;
    QStringList causes;

    /// "Corner 3", "Corners 7-9", the corner's name, "Start/finish".
    [[nodiscard]] QString title() const;
    /// "left" or "right"; empty where it has not got one side.
    [[nodiscard]] QString side() const;
    /// The whole of it in words, for whoever hears the program: "Corner 3, left, 0.41 seconds lost,
    /// 5 km/h slower at the apex".
    [[nodiscard]] QString spoken() const;

    Q_DECLARE_TR_FUNCTIONS(TimePlace)
};

/// Where a lap lost its time against another, or against the best of each unit.
struct TimePlaces
{
    /// All units in the order of the track.
    std::vector<TimePlace> places;
    /// Indexes into places of the largest losses, at most three.
    std::vector<std::size_t> largest;
    /// Whether it is the best of each unit that the lap was held against.
    bool isAgainstBest = false;
    /// Seconds; what the places add up to.
    double total = 0.0;

    [[nodiscard]] bool isEmpty() const { return places.empty(); }
    /// Indexes into places of all others, in the order of the track, and their sum.
    [[nodiscard]] std::vector<std::size_t> others() const;
    [[nodiscard]] double sumOfOthers() const;
};

/// How many losses stand before the others.
inline constexpr std::size_t MostLargest = 3;

[[nodiscard]] TimePlaces placesAgainst(const RiddenLap &lap, const RiddenLap &reference,
                                       const CircuitCorners &circuit);

/// The same against the used lap that was quickest in each unit; empty without another lap.
[[nodiscard]] TimePlaces placesAgainstBest(const InsightLap &lap, const SessionInsight &insight);

} // namespace zuno
