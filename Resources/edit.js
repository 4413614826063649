// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The map as the rider makes one: draws a session's way and a draft on it and tells the program
// what is clicked and dragged. The program decides where things are; what it sends is drawn.
"use strict";

/** The number of the start point; the timing points count from 0. */
const StartPoint = -1;
/** The line is met within so many gate sizes. */
const LineGates = 2;
const MetresPerDegree = 111195.08;
/** As FitPadding, with the scale at the lower edge but no legend. */
const EditPadding = { top: 56, right: 30, bottom: 40, left: 30 };
/** Where around a gate the handle stands, clear of the start's sign: radians from north. */
const HandleBearing = 2.1;

const EditColours = {
    path: "#aeb8c2",
    outline: "#00b7eb",
    start: "#1f9d4d",
    point: "#2b6cd4",
    selected: "#ffd23f",
    warned: "#d9381e",
};
/** What lies over what: the place of the line has the start's sign and the last point's. */
const Layers = { arrow: 0, start: 10000, point: 20000, selected: 30000, handle: 40000 };

/** What is edited; null while nothing is.
 *  @type {Draft | null} */
let edited = null;
/** The rider has moved the map, or something on it: the view stays as it is. */
let isTouched = false;
/** What the mouse has hold of: the number of a point, or the gate.
 *  @type {number | "gate" | null} */
let held = null;

// What stands on the map.
/** @type {google.maps.Polyline | null} */
let pathLine = null;
/** @type {google.maps.Polyline | null} */
let outlineLine = null;
/** @type {google.maps.Marker[]} */
let arrows = [];
/** By number, the start point first.
 *  @type {{ marker: google.maps.Marker, gate: google.maps.Circle, look: string }[]} */
let signs = [];
/** @type {google.maps.Marker | null} */
let gateHandle = null;

function isEditing() {
    return edited !== null;
}

// Places

/** @param {PlacePair} pair */
function placeOf(pair) {
    return pair === null ? null : validPlace(pair[0], pair[1]);
}

/** @param {PlacePair[]} pairs */
function placesOf(pairs) {
    return /** @type {google.maps.LatLngLiteral[]} */ (pairs.map(placeOf).filter(Boolean));
}

/** Metres to the north and to the east; exact enough for a circuit.
 *  @param {google.maps.LatLngLiteral} from @param {google.maps.LatLngLiteral} to */
function metresBetween(from, to) {
    const width = Math.cos(from.lat * Math.PI / 180);
    return {
        north: (to.lat - from.lat) * MetresPerDegree,
        east: (to.lng - from.lng) * MetresPerDegree * width,
    };
}

/** @param {google.maps.LatLngLiteral} from @param {google.maps.LatLngLiteral} to */
function distance(from, to) {
    const { north, east } = metresBetween(from, to);
    return Math.hypot(north, east);
}

/** @param {google.maps.LatLngLiteral} centre @param {number} radius metres */
function rimOf(centre, radius) {
    const width = Math.cos(centre.lat * Math.PI / 180);
    return {
        lat: centre.lat + radius * Math.cos(HandleBearing) / MetresPerDegree,
        lng: centre.lng + radius * Math.sin(HandleBearing) / (MetresPerDegree * width),
    };
}

/** @param {google.maps.LatLng} place */
function literal(place) {
    return { lat: place.lat(), lng: place.lng() };
}

// The draft

/** @param {number} number */
function pointAt(number) {
    if (edited === null)
        return null;
    return number === StartPoint ? edited.start : edited.timingPoints[number] ?? null;
}

/** Metres; the gate of the line is twice as wide. @param {number} number */
function radiusOf(number) {
    return (edited?.gateSize ?? 0) * (number === StartPoint ? LineGates : 1);
}

/** Whose gate has the handle: the selected point's, else the start's. */
function handledPoint() {
    return edited !== null && pointAt(edited.selected) !== null ? edited.selected : StartPoint;
}

// Signs

/** @param {number} radius @param {number} x @param {number} y */
function disc(radius, x = 0, y = 0) {
    const [r, d] = [radius, 2 * radius];
    return `M ${x - r} ${y} a ${r} ${r} 0 1 0 ${d} 0 a ${r} ${r} 0 1 0 ${-d} 0 z`;
}

/** A flag on a pole, whose foot stands on the place. @param {number} width of the flag */
function flag(width) {
    return `M -1.5 0 L -1.5 -46 L ${width} -46 L ${width} -25 L 1.5 -25 L 1.5 0 z`;
}

/** The sign of a point. @param {number} number @param {boolean} warned @param {boolean} selected */
function signOf(number, warned, selected) {
    const isStart = number === StartPoint;
    // The colour alone would not tell everybody.
    const text = (isStart ? window.zunoPage?.texts.start ?? "" : String(number + 1))
        + (warned ? "!" : "");
    const width = 14 + 7.5 * text.length;
    return {
        label: { text, color: "white", fontSize: "12px", fontWeight: "bold" },
        // A timing point on the line stays in sight: the start can be had by its flag.
        zIndex: isStart ? Layers.start : selected ? Layers.selected : Layers.point,
        icon: {
            path: isStart ? flag(width) : disc(10),
            fillColor: warned ? EditColours.warned
                : isStart ? EditColours.start : EditColours.point,
            fillOpacity: 1,
            strokeColor: selected ? EditColours.selected : "#ffffff",
            strokeWeight: selected ? 3.5 : 1.5,
            labelOrigin: isStart ? new google.maps.Point(width / 2, -35.5)
                : new google.maps.Point(0, 0),
        },
    };
}

/** @param {boolean} isStart @param {boolean} warned @param {boolean} selected */
function gateLook(isStart, warned, selected) {
    const colour = warned ? EditColours.warned : selected ? EditColours.selected
        : isStart ? EditColours.start : EditColours.point;
    return {
        strokeColor: colour,
        strokeOpacity: 1,
        strokeWeight: selected ? 3 : 2,
        fillColor: colour,
        fillOpacity: 0.15,
    };
}

/** @param {number} number @param {google.maps.LatLngLiteral} place */
function makeSign(number, place) {
    const marker = new google.maps.Marker({
        ...signOf(number, false, false), position: place, map, draggable: true, crossOnDrag: false,
    });
    const gate = new google.maps.Circle({
        center: place, radius: radiusOf(number), map, clickable: false,
    });
    marker.addListener("click", () => tell({ event: "pointSelected", point: number }));
    listenToDrag(marker, number, (at) => ({ event: "pointMoved", point: number, ...at }));
    return { marker, gate, look: "" };
}

/** @param {number} number */
function showSign(number) {
    const place = pointAt(number);
    const index = number - StartPoint;
    if (edited === null || place === null) {
        signs[index]?.marker.setMap(null);
        signs[index]?.gate.setMap(null);
        delete signs[index];
        return;
    }
    const sign = signs[index] ??= makeSign(number, place);
    const warned = edited.warned.includes(number);
    const selected = edited.selected === number;
    const look = `${warned} ${selected}`;
    if (sign.look !== look) {
        sign.look = look;
        sign.marker.setOptions(signOf(number, warned, selected));
        sign.gate.setOptions(gateLook(number === StartPoint, warned, selected));
    }
    // The mouse has the held one; its gate shows where the point will be.
    if (held !== number)
        sign.marker.setPosition(place);
    sign.gate.setCenter(place);
    sign.gate.setRadius(radiusOf(number));
}

function showHandle() {
    const number = handledPoint();
    const centre = pointAt(number);
    if (centre === null) {
        gateHandle?.setMap(null);
        gateHandle = null;
        return;
    }
    gateHandle ??= makeHandle(centre);
    if (held !== "gate")
        gateHandle.setPosition(rimOf(centre, radiusOf(number)));
}

/** A knob beside the rim, so that it can be had where a gate is only a few pixels wide.
 *  @param {google.maps.LatLngLiteral} position */
function makeHandle(position) {
    const [x, y] = [Math.sin(HandleBearing), -Math.cos(HandleBearing)];
    const marker = new google.maps.Marker({
        position,
        map,
        draggable: true,
        crossOnDrag: false,
        cursor: "nwse-resize",
        zIndex: Layers.handle,
        icon: {
            path: `M 0 0 L ${12 * x} ${12 * y} ${disc(8, 20 * x, 20 * y)}`,
            fillColor: EditColours.selected,
            fillOpacity: 1,
            strokeColor: "#ffffff",
            strokeWeight: 1.5,
        },
    });
    listenToDrag(marker, "gate", (at) => {
        const number = handledPoint();
        const metres = distance(pointAt(number) ?? at, at);
        return {
            event: "gateResized", metres: number === StartPoint ? metres / LineGates : metres,
        };
    });
    return marker;
}

// Dragging

/** What the program has not been told yet. @type {object | null} */
let untold = null;

/** Tells the last of what happens within a frame. @param {object} message */
function tellSoon(message) {
    if (untold === null) {
        requestAnimationFrame(() => {
            if (untold !== null)
                tell(untold);
            untold = null;
        });
    }
    untold = message;
}

/**
 * @param {google.maps.Marker} marker
 * @param {number | "gate"} what it stands for
 * @param {(at: google.maps.LatLngLiteral) => object} message of a move to a place
 */
function listenToDrag(marker, what, message) {
    /** @param {google.maps.MapMouseEvent} event @param {boolean} done */
    const move = (event, done) => {
        if (held === what && event.latLng !== null)
            tellSoon({ ...message(literal(event.latLng)), done });
    };
    marker.addListener("dragstart", () => {
        held = what;
        if (typeof what === "number")
            tell({ event: "pointSelected", point: what });
    });
    marker.addListener("drag", (/** @type {google.maps.MapMouseEvent} */ e) => move(e, false));
    marker.addListener("dragend", (/** @type {google.maps.MapMouseEvent} */ e) => {
        move(e, true);
        held = null;
        // Back to the last place that the program gave, which the answer may change once more.
        showDraft();
    });
}

/** @param {google.maps.LatLng} place */
function clickTrack(place) {
    const at = literal(place);
    // The whole world is 256 pixels wide at zoom 0.
    const metresPerPixel = MetresPerDegree * 360 / 256 / 2 ** (map?.getZoom() ?? 0)
        * Math.cos(at.lat * Math.PI / 180);
    tell({ event: "trackClicked", ...at, metresPerPixel });
}

// Lines

function showPath() {
    pathLine?.setMap(null);
    pathLine = null;
    if (map === null || edited === null)
        return;
    pathLine = drawLine(edited.path, {
        strokeColor: EditColours.path, strokeOpacity: 0.7, strokeWeight: 1,
    });
    fitPath();
}

/** Shows the whole circuit, until the rider has looked elsewhere. The way to it is only of interest
 *  before there is an outline: a session can be tried that was ridden far from the draft. */
function fitPath() {
    if (map === null || edited === null || isTouched || window.innerWidth === 0)
        return;
    const bounds = new google.maps.LatLngBounds();
    for (const place of edited.outline.length > 0 ? edited.outline : edited.path)
        bounds.extend(place);
    if (!bounds.isEmpty())
        map.fitBounds(bounds, EditPadding);
}

function showOutline() {
    outlineLine?.setMap(null);
    outlineLine = null;
    remove(arrows);
    arrows = [];
    if (map === null || edited === null || edited.outline.length < 2)
        return;
    outlineLine = drawLine(edited.outline, {
        strokeColor: EditColours.outline, strokeOpacity: 0.9, strokeWeight: 4,
    });
    arrows = [0.12, 0.45, 0.78].map(drawArrow);
}

/** An arrow in riding order. @param {number} share of the outline that lies before it */
function drawArrow(share) {
    const outline = edited?.outline ?? [];
    const pieces = outline.slice(1).map((place, i) => distance(outline[i], place));
    let left = share * pieces.reduce((sum, piece) => sum + piece, 0);
    const i = pieces.findIndex((piece) => (left -= piece) <= 0);
    const from = outline[Math.max(i, 0)];
    const to = outline[Math.max(i, 0) + 1];
    const { north, east } = metresBetween(from, to);
    return new google.maps.Marker({
        position: to,
        map,
        clickable: false,
        zIndex: Layers.arrow,
        icon: {
            path: "M -8 7 L 0 -10 L 8 7 L 0 3 z",
            rotation: Math.atan2(east, north) * 180 / Math.PI,
            fillColor: "#ffffff",
            fillOpacity: 1,
            strokeColor: "#14181d",
            strokeWeight: 1.5,
        },
    });
}

// All of it

function showDraft() {
    if (map === null || edited === null)
        return;
    if (typeof held === "number" && pointAt(held) === null)
        held = null;
    const count = Math.max(signs.length, edited.timingPoints.length + 1);
    for (let index = 0; index < count; ++index)
        showSign(index + StartPoint);
    signs.length = edited.timingPoints.length + 1;
    showHandle();
}

/** A point that is moved by the keyboard stays in sight. */
function keepSelectedInSight() {
    const place = pointAt(edited?.selected ?? StartPoint - 1);
    if (map !== null && place !== null && held === null
        && map.getBounds()?.contains(place) === false)
        map.setCenter(place);
}

/** Draws everything that is edited on a map that has nothing of it. */
function showEditing() {
    if (map === null || edited === null)
        return;
    isTouched = false;
    clearLaps();
    showPath();
    showOutline();
    showDraft();
}

/** Takes everything off the map; what is edited is kept. */
function clearEditing() {
    remove([pathLine, outlineLine, gateHandle, ...arrows]);
    remove(signs.flatMap((sign) => sign ? [sign.marker, sign.gate] : []));
    pathLine = outlineLine = gateHandle = null;
    [arrows, signs] = [[], []];
    held = untold = null;
}

// What the program calls

/** @param {string} text a session's way */
function editPath(text) {
    clearEditing();
    edited = {
        path: placesOf(JSON.parse(text).path),
        outline: [],
        start: null,
        timingPoints: [],
        gateSize: 0,
        selected: StartPoint - 1,
        warned: [],
    };
    showEditing();
}

/** @param {string} text a draft; without an outline it is the one before */
function editDraft(text) {
    if (edited === null)
        return;
    /** @type {DraftPayload} */
    const draft = JSON.parse(text);
    const { gateSize, selected, warned } = draft;
    const before = JSON.stringify([edited.selected, pointAt(edited.selected)]);
    const hadOutline = edited.outline.length > 0;
    edited = {
        path: edited.path,
        outline: draft.outline ? placesOf(draft.outline) : edited.outline,
        start: placeOf(draft.start),
        timingPoints: draft.timingPoints.map(placeOf),
        gateSize, selected, warned,
    };
    if (draft.outline)
        showOutline();
    if (!hadOutline)
        fitPath();
    showDraft();
    if (JSON.stringify([selected, pointAt(selected)]) !== before)
        keepSelectedInSight();
}

function endEditing() {
    clearEditing();
    edited = null;
    redraw();
}

window.addEventListener("resize", fitPath);
for (const touch of ["pointerdown", "wheel", "keydown"])
    window.addEventListener(touch, () => { isTouched = true; }, { capture: true, passive: true });
