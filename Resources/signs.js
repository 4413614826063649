// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where the signs of corners stand beside the line: none over another one, over the line or over a
// leader. Pixels only, y downwards; nothing here knows a map.
"use strict";

/** Pixels between the road's edge and a sign, in the order in which they are tried. */
const SignDistances = [8, 13, 20, 30, 42, 56];
/** From so far on a leader leads to the sign. */
const LeaderFrom = 20;
/** Degrees by which a sign may stand aside. */
const SignTurns = [0, 15, -15, 30, -30, 45, -45, 60, -60, 75, -75];
/** Between two signs. */
const SignGap = 3;

/** @param {Box} a @param {Box} b */
function boxesTouch(a, b) {
    return Math.abs(a.x - b.x) * 2 < a.w + b.w + 2 * SignGap
        && Math.abs(a.y - b.y) * 2 < a.h + b.h + 2 * SignGap;
}

/** @param {Box} box @param {Spot} place @param {number} reach */
function boxNearSpot(box, place, reach) {
    const x = Math.max(Math.abs(place.x - box.x) - box.w / 2, 0);
    const y = Math.max(Math.abs(place.y - box.y) - box.h / 2, 0);
    return x * x + y * y < reach * reach;
}

/** Whether a straight line passes a box. @param {Leader} line @param {Box} box */
function lineTouchesBox(line, box) {
    const length = Math.hypot(line.to.x - line.from.x, line.to.y - line.from.y);
    const steps = Math.max(1, Math.ceil(length / 3));
    for (let i = 0; i <= steps; ++i) {
        const part = i / steps;
        const spot = {
            x: line.from.x + (line.to.x - line.from.x) * part,
            y: line.from.y + (line.to.y - line.from.y) * part,
        };
        if (boxNearSpot(box, spot, SignGap))
            return true;
    }
    return false;
}

/** Whether a leader crosses the line of the track, besides where it begins.
 *  @param {Leader} leader @param {Spot[]} track */
function leaderCrosses({ from, to }, track) {
    const length = Math.hypot(to.x - from.x, to.y - from.y);
    const middle = { x: (from.x + to.x) / 2, y: (from.y + to.y) / 2, w: 0, h: 0 };
    const near = track.filter((spot) => boxNearSpot(middle, spot, length / 2 + 3));
    for (let done = 4; near.length > 0 && done <= length; done += 1.5) {
        const spot = {
            x: from.x + (to.x - from.x) * done / length,
            y: from.y + (to.y - from.y) * done / length,
        };
        // No two places of the line are farther than 4 pixels apart.
        if (near.some((other) => Math.hypot(other.x - spot.x, other.y - spot.y) < 2.2))
            return true;
    }
    return false;
}

/**
 * A box beside a place, @p distance from the edge of the road.
 * @param {SignWish} wish @param {number} w @param {number} distance @param {number} turn
 * @param {number} road half its width
 * @returns {PlacedBox}
 */
function boxBeside(wish, w, distance, turn, road) {
    const angle = turn * Math.PI / 180;
    const dx = wish.dx * Math.cos(angle) - wish.dy * Math.sin(angle);
    const dy = wish.dx * Math.sin(angle) + wish.dy * Math.cos(angle);
    // How far the box reaches towards the place.
    const reach = Math.min(
        Math.abs(dx) > 1e-6 ? w / 2 / Math.abs(dx) : Infinity,
        Math.abs(dy) > 1e-6 ? wish.h / 2 / Math.abs(dy) : Infinity);
    const away = road + distance + reach;
    const box = { x: wish.x + dx * away, y: wish.y + dy * away, w, h: wish.h };
    const from = { x: wish.x + dx * road, y: wish.y + dy * road };
    const to = { x: wish.x + dx * (road + distance), y: wish.y + dy * (road + distance) };
    return { box, leader: distance >= LeaderFrom ? { from, to } : null };
}

/** What stands already, and where nothing may stand. */
class SignField {
    /** @param {Spot[]} track @param {number} road @param {Bounds | null} bounds */
    constructor(track, road, bounds) {
        this.track = track;
        this.road = road;
        this.bounds = bounds;
        /** @type {Box[]} */
        this.boxes = [];
        /** @type {Leader[]} */
        this.leaders = [];
    }

    /** @param {Box} box */
    isInside(box) {
        return this.bounds === null
            || (box.x - box.w / 2 >= this.bounds.left && box.x + box.w / 2 <= this.bounds.right
                && box.y - box.h / 2 >= this.bounds.top && box.y + box.h / 2 <= this.bounds.bottom);
    }

    /** @param {PlacedBox} placed @param {boolean} mayCross whether its leader may cross the line */
    hasRoom({ box, leader }, mayCross) {
        return this.isInside(box)
            && !this.boxes.some((other) => boxesTouch(box, other))
            && !this.leaders.some((line) => lineTouchesBox(line, box))
            && (leader === null || !this.boxes.some((other) => lineTouchesBox(leader, other)))
            && !this.track.some((spot) => boxNearSpot(box, spot, this.road + 2))
            && (leader === null || mayCross || !leaderCrosses(leader, this.track));
    }

    /** @param {PlacedBox} placed */
    take({ box, leader }) {
        this.boxes.push(box);
        if (leader !== null)
            this.leaders.push(leader);
    }
}

/**
 * The first place with room for a box of that width: on the outside of the corner, near before
 * far, then inside.
 * @param {SignWish} wish @param {number} w @param {SignField} field
 * @param {boolean} mayCross
 */
function findPlace(wish, w, field, mayCross = false) {
    for (const side of [1, -1]) {
        const turned = { ...wish, dx: wish.dx * side, dy: wish.dy * side };
        for (const distance of SignDistances) {
            if (distance > (wish.farthest ?? Infinity))
                break;
            for (const turn of SignTurns) {
                const placed = boxBeside(turned, w, distance, turn, field.road);
                if (field.hasRoom(placed, mayCross))
                    return placed;
            }
        }
    }
    return null;
}

/** Where a number stands that has no place: on its own spot, and over nothing but the line.
 *  @param {SignWish} wish @param {SignField} field @returns {PlacedBox} */
function forcedPlace(wish, field) {
    const w = wish.small;
    for (const side of [1, -1]) {
        for (const distance of SignDistances) {
            for (const turn of SignTurns) {
                const turned = { ...wish, dx: wish.dx * side, dy: wish.dy * side };
                const placed = boxBeside(turned, w, distance, turn, field.road);
                if (field.isInside(placed.box)
                    && !field.boxes.some((other) => boxesTouch(placed.box, other)))
                    return { box: placed.box, leader: null };
            }
        }
    }
    return { box: { x: wish.x, y: wish.y, w, h: wish.h }, leader: null };
}

/**
 * Places signs, those of more weight first. One without room for its value shrinks to its number,
 * which is never left out; one that is optional is.
 * @param {SignWish[]} wishes
 * @param {Spot[]} track places on the line, at most some pixels apart
 * @param {number} road half the width of what must stay free, pixels
 * @param {Bounds | null} bounds of what is seen
 * @param {Box[]} blocks what stands there already, as buttons
 * @returns {(PlacedSign | null)[]} in the order of the wishes
 */
function placeSigns(wishes, track, road, bounds, blocks = []) {
    const field = new SignField(track, road, bounds);
    field.boxes.push(...blocks);
    /** @type {(PlacedSign | null)[]} */
    const placed = wishes.map(() => null);
    const order = wishes.map((_, i) => i);
    order.sort((a, b) => wishes[b].weight - wishes[a].weight || a - b);
    for (const i of order) {
        const wish = wishes[i];
        const isSeen = bounds === null || (wish.x >= bounds.left && wish.x <= bounds.right
            && wish.y >= bounds.top && wish.y <= bounds.bottom);
        if (!isSeen)
            continue;
        let isWhole = wish.w > wish.small;
        // A value is worth more than a leader that crosses nothing.
        let found = isWhole
            ? findPlace(wish, wish.w, field) ?? findPlace(wish, wish.w, field, true) : null;
        if (found === null) {
            isWhole = false;
            found = findPlace(wish, wish.small, field);
        }
        if (found === null && wish.optional)
            continue;
        found ??= forcedPlace(wish, field);
        field.take(found);
        placed[i] = { ...found, isWhole };
    }
    return placed;
}
