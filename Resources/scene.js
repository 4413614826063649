// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Draws what the program says about the laps: their line in the colours of a mode, the corners with
// their values, who brakes where. All colours and texts come from the program. Without a scene the
// page draws the laps as script.js does.
"use strict";

/** Metres that the road is wide, whatever circuit it is. */
const RoadWidth = 12;
const LeastRoad = 9;
const LineWidth = 5;
const CasingWidth = 7;
/** How many shades a line has: neighbours of the same one are drawn in one go. */
const Shades = 24;
/** Pixels. */
const SignHeight = 19;
/** Below these widths of the view only larger differences keep their value. */
const NarrowViews = [{ width: 560, least: 0.1 }, { width: 640, least: 0.055 }];
/** Part of the view that is left free around a lap that is shown whole, and its most pixels. */
const FitMargin = 0.12;
const MostFitMargin = 44;

/** @type {ScenePayload | null} */
let scene = null;
/** The session without laps that it shows. @type {LapPayload | null} */
let ride = null;
/** What of it stands on the map. @type {google.maps.Polyline[]} */
let sceneLines = [];
/** @type {google.maps.Polyline[]} */
let roadLines = [];
/** @type {google.maps.Marker[]} */
let sceneSigns = [];
/** @type {google.maps.Polyline[]} */
let leaderLines = [];
/** @type {(google.maps.Marker | null)[]} */
let sceneCursors = [null, null];
/** The map whose moves are listened to. @type {google.maps.Map | null} */
let watchedMap = null;

// Pixels: both maps use the same projection, at any zoom.

/** @param {google.maps.LatLngLiteral} place @param {number} zoom @returns {Spot} */
function worldPixel(place, zoom) {
    const size = 256 * 2 ** zoom;
    const sine = Math.min(Math.max(Math.sin(place.lat * Math.PI / 180), -0.9999), 0.9999);
    return {
        x: size * (0.5 + place.lng / 360),
        y: size * (0.5 - Math.log((1 + sine) / (1 - sine)) / (4 * Math.PI)),
    };
}

/** @param {Spot} spot @param {number} zoom @returns {google.maps.LatLngLiteral} */
function placeOfPixel(spot, zoom) {
    const size = 256 * 2 ** zoom;
    const angle = Math.PI * (1 - 2 * spot.y / size);
    return { lat: Math.atan(Math.sinh(angle)) * 180 / Math.PI, lng: (spot.x / size - 0.5) * 360 };
}

/** @param {number} lat @param {number} zoom */
function metresPerPixel(lat, zoom) {
    return 40075016.686 / 256 / 2 ** zoom * Math.cos(lat * Math.PI / 180);
}

/** What is seen, in world pixels; null where the map does not tell. @returns {Bounds | null} */
function viewBounds() {
    const bounds = map?.getBounds();
    const zoom = map?.getZoom();
    if (!bounds || zoom === undefined || typeof bounds.getNorthEast !== "function")
        return null;
    const [ne, sw] = [bounds.getNorthEast(), bounds.getSouthWest()];
    const upper = worldPixel({ lat: ne.lat(), lng: ne.lng() }, zoom);
    const lower = worldPixel({ lat: sw.lat(), lng: sw.lng() }, zoom);
    return { left: lower.x + 2, right: upper.x - 2, top: upper.y + 2, bottom: lower.y - 2 };
}

// Colours

/** @param {string} from "#rrggbb" @param {string} to @param {number} part */
function mixed(from, to, part) {
    const channel = (/** @type {number} */ at) => {
        const [a, b] = [from, to].map((colour) => parseInt(colour.slice(at, at + 2), 16));
        return hexadecimal(Math.round(a + (b - a) * part));
    };
    return `#${channel(1)}${channel(3)}${channel(5)}`;
}

/**
 * The colour of a value from 0 to 1 on a row of colours.
 * @param {number | null} value @param {string[]} stops @param {string} none
 */
function stopColour(value, stops, none) {
    if (value === null || stops.length === 0)
        return none;
    const shade = Math.round(Math.min(Math.max(value, 0), 1) * Shades) / Shades;
    const at = shade * (stops.length - 1);
    const first = Math.min(Math.floor(at), stops.length - 1);
    return mixed(stops[first], stops[Math.min(first + 1, stops.length - 1)], at - first);
}

// What the rider wants to see

/** Whether the line tells a value; two laps may have one colour each instead. */
function isLineColoured() {
    return secondLap === null || options.compareGradient !== "false";
}

/** The gates that are shown: the line always, as it tells where a lap begins.
 *  @param {ScenePayload} shown */
function shownGates(shown) {
    return shown.gates.filter((gate) => gate.isStart || options.landmarks !== "false");
}

/** The way to the right of a line at one of its samples, metres east and north of length 1.
 *  @param {LapPoint[]} line @param {LapPoint} point */
function rightOf(line, point) {
    const at = line.findIndex((other) =>
        other.dataCoordX === point.dataCoordX && other.dataCoordY === point.dataCoordY);
    const from = at < 0 ? null : positionOf(line[Math.max(at - 2, 0)]);
    const to = at < 0 ? null : positionOf(line[Math.min(at + 2, line.length - 1)]);
    if (from === null || to === null)
        return { dx: 0, dy: 1 };
    const east = (to.lng - from.lng) * Math.cos(from.lat * Math.PI / 180);
    const north = to.lat - from.lat;
    const length = Math.hypot(east, north);
    return length > 0 ? { dx: north / length, dy: -east / length } : { dx: 0, dy: 1 };
}

/** Signs of the first lap's lowest and highest speeds. They give way to all others, and the less
 *  outstanding ones to the rest of them.
 *  @param {LapPayload} lap @param {ScenePayload} shown @returns {SceneSign[]} */
function speedSigns(lap, shown) {
    const line = withPosition(samplesOf(lap));
    const speeds = [...lap.maxSpeeds, ...lap.minSpeeds].map((point) => point.dataSpeed);
    const middle = (Math.min(...speeds) + Math.max(...speeds)) / 2;
    const sign = (/** @type {LapPoint} */ point, /** @type {string} */ arrow) => ({
        .../** @type {google.maps.LatLngLiteral} */ (positionOf(point)),
        ...rightOf(line, point),
        label: `${arrow}${Math.round(point.dataSpeed * shown.speedFactor)}`,
        value: "",
        colour: shown.colours.edge,
        ink: shown.colours.text,
        weight: Math.min(Math.abs(point.dataSpeed - middle) / 1000, 0.9) - 2,
        optional: true,
        zone: -1,
    });
    // The corners' signs tell the lowest speeds already where the line tells the speed.
    const lowest = shown.mode === "speed" && shown.signs.some((one) => one.zone >= 0)
        ? [] : lap.minSpeeds;
    return [...withPosition(lap.maxSpeeds).map((point) => sign(point, "\u2191")),
        ...withPosition(lowest).map((point) => sign(point, "\u2193"))];
}

/** @param {ScenePayload} shown */
function shownSigns(shown) {
    const signs = shown.signs.filter((sign) => !sign.optional || options.landmarks !== "false");
    return options.minMax === "false" || firstLap === null
        ? signs : [...signs, ...speedSigns(firstLap, shown)];
}

// Lines

/**
 * The first lap in pieces of one colour each.
 * @param {LapPayload} lap @param {ScenePayload} shown
 */
function drawColoured(lap, shown) {
    const samples = samplesOf(lap);
    if (!isLineColoured())
        return [drawSolid(pathOf(samples), shown.colours.lap1, LineWidth)];
    const fits = shown.values.length === samples.length;
    const line = samples.map((point, i) => ({
        place: positionOf(point),
        colour: stopColour(fits ? shown.values[i] : null, shown.stops, shown.colours.neutral),
    })).filter((one) => one.place !== null);
    /** @type {google.maps.Polyline[]} */
    const lines = [];
    for (let i = 0; i + 1 < line.length;) {
        const path = [/** @type {google.maps.LatLngLiteral} */ (line[i].place)];
        const colour = line[i].colour;
        for (; i + 1 < line.length && line[i].colour === colour; ++i)
            path.push(/** @type {google.maps.LatLngLiteral} */ (line[i + 1].place));
        lines.push(drawLine(path,
            { strokeColor: colour, strokeOpacity: 1, strokeWeight: LineWidth }));
    }
    return lines;
}

/** @param {google.maps.LatLngLiteral[]} path @param {string} strokeColor @param {number} strokeWeight */
function drawSolid(path, strokeColor, strokeWeight) {
    return drawLine(path, { strokeColor, strokeOpacity: 1, strokeWeight });
}

/** Dashes of 9 pixels and gaps of 3, as in the charts.
 *  @param {google.maps.LatLngLiteral[]} path @param {string} strokeColor */
function drawDashed(path, strokeColor) {
    return new google.maps.Polyline({
        path,
        geodesic: true,
        clickable: false,
        map,
        strokeColor,
        strokeOpacity: 0,
        strokeWeight: 3,
        icons: [{
            icon: { path: "M 0,-4.5 0,4.5", strokeOpacity: 1, strokeWeight: 3, scale: 1 },
            offset: "0",
            repeat: "12px",
        }],
    });
}

function roadPixels() {
    const place = firstLap === null ? null : pathOf(firstLap.lapPoints)[0];
    const zoom = map?.getZoom();
    if (!place || zoom === undefined)
        return LeastRoad;
    return Math.max(LeastRoad, RoadWidth / metresPerPixel(place.lat, zoom));
}

/** The grey road, as wide as it is in metres; a satellite map has the real one. */
function drawRoad(/** @type {google.maps.LatLngLiteral[]} */ path,
                  /** @type {ScenePayload} */ shown) {
    if (!isOffline() || path.length < 2)
        return [];
    return [drawSolid(path, shown.colours.roadEdge, roadPixels() + 2),
        drawSolid(path, shown.colours.road, roadPixels())];
}

// Signs

/** @param {google.maps.LatLngLiteral} position @param {google.maps.Symbol} icon
 *  @param {google.maps.MarkerLabel | null} label @param {number} zIndex
 *  @param {number} zone that a click shows */
function drawSymbol(position, icon, label, zIndex, zone = -1) {
    const marker = new google.maps.Marker({
        position,
        map,
        clickable: zone >= 0,
        ...(zone >= 0 ? { cursor: "pointer" } : {}),
        zIndex,
        icon: { strokeWeight: 1, fillOpacity: 1, anchor: new google.maps.Point(0, 0), ...icon },
        ...(label === null ? {} : { label }),
    });
    if (zone >= 0)
        marker.addListener("click", () => tell({ event: "zonePicked", index: zone }));
    return marker;
}

/** A box with round ends around the origin. @param {number} w @param {number} h */
function pillPath(w, h) {
    const r = h / 2;
    const x = Math.max(w / 2 - r, 0);
    return `M ${-x} ${-r} H ${x} A ${r} ${r} 0 0 1 ${x} ${r} H ${-x} A ${r} ${r} 0 0 1 ${-x} ${-r} Z`;
}

/** @param {string} text @param {boolean} bold */
function textWidth(text, bold) {
    // Wider than any usual font writes them: pixels that are free cost nothing.
    return text.length * (bold ? 7.4 : 6.6);
}

/** @param {SceneSign} sign */
function numberWidth(sign) {
    return Math.max(SignHeight, textWidth(sign.label, true) + 8);
}

/** @param {SceneSign} sign */
function hasRoomForValue(sign) {
    if (sign.value === "")
        return false;
    const view = NarrowViews.find(({ width }) => window.innerWidth < width);
    return !view || sign.weight === null || sign.weight >= view.least;
}

/** @param {SceneSign} sign @param {number} zoom @returns {SignWish} */
function wishOf(sign, zoom) {
    const spot = worldPixel(sign, zoom);
    const small = numberWidth(sign);
    const w = hasRoomForValue(sign) ? small + textWidth(sign.value, true) + 10 : small;
    return {
        ...spot,
        dx: sign.dx,
        dy: -sign.dy,
        w,
        small,
        h: SignHeight,
        weight: sign.weight ?? 0,
        optional: sign.optional,
        farthest: sign.optional ? 13 : undefined,
    };
}

/** @param {SceneSign} sign @param {PlacedSign} placed @param {number} zoom @param {number} index */
function drawSign(sign, placed, zoom, index) {
    const colours = /** @type {ScenePayload} */ (scene).colours;
    const { box, isWhole } = placed;
    const small = numberWidth(sign);
    const left = { x: box.x - box.w / 2 + small / 2, y: box.y };
    const point = (/** @type {number} */ x) => new google.maps.Point(x, 0);
    const font = { fontSize: "11px", fontWeight: "bold" };
    const markers = [];
    if (isWhole) {
        markers.push(drawSymbol(placeOfPixel(box, zoom), {
            path: pillPath(box.w, box.h),
            fillColor: colours.card,
            strokeColor: sign.colour,
            labelOrigin: point(small / 2),
        }, { text: sign.value, color: sign.ink, ...font }, 1000 + index, sign.zone));
    }
    const isPlain = sign.optional;
    markers.push(drawSymbol(placeOfPixel(isWhole ? left : box, zoom), {
        path: pillPath(small, SignHeight),
        fillColor: isPlain ? colours.map : colours.text,
        strokeColor: isPlain ? colours.map : isWhole ? sign.colour : colours.card,
        fillOpacity: isPlain ? 0 : 1,
        strokeWeight: isPlain ? 0 : 1,
        labelOrigin: point(0),
    }, { text: sign.label, color: isPlain ? colours.secondText : colours.map, ...font },
    1001 + index, sign.zone));
    return markers;
}

/** A short line across the track, and behind that of the start an arrow on the way that is ridden.
 *  @param {SceneGate} gate */
function drawGate(gate) {
    const colours = /** @type {ScenePayload} */ (scene).colours;
    const half = Math.max(roadPixels() / 2 + 4, 9);
    const line = drawSymbol({ lat: gate.lat, lng: gate.lng }, {
        path: `M ${-half} 0 H ${half}`,
        rotation: gate.heading,
        strokeColor: gate.isStart ? colours.text : colours.secondText,
        strokeWeight: gate.isStart ? 4 : 2,
        fillOpacity: 0,
    }, null, 500);
    return gate.isStart ? [line, drawWayArrow(gate)] : [line];
}

/** Notched, unlike the triangles of who brakes. @param {SceneGate} gate */
function drawWayArrow(gate) {
    const colours = /** @type {ScenePayload} */ (scene).colours;
    return drawSymbol({ lat: gate.lat, lng: gate.lng }, {
        path: "M -7 -8 L 0 -24 L 7 -8 L 0 -12 Z",
        rotation: gate.heading,
        fillColor: colours.text,
        strokeColor: colours.casing,
    }, null, 501);
}

/** @param {SceneAct} act */
function drawAct(act) {
    const colours = /** @type {ScenePayload} */ (scene).colours;
    const tip = act.isBraking ? 5.5 : -5.5;
    return drawSymbol({ lat: act.lat, lng: act.lng }, {
        path: `M -5.5 ${-tip} H 5.5 L 0 ${tip} Z`,
        fillColor: act.isOther ? colours.lap2 : colours.lap1,
        strokeColor: colours.casing,
    }, null, 900);
}

/** Every few pixels a place of the first lap that signs keep away from. @param {number} zoom */
function trackSpots(zoom) {
    const path = firstLap === null ? [] : pathOf(firstLap.lapPoints);
    /** @type {Spot[]} */
    const spots = [];
    let last = null;
    for (const place of path) {
        const spot = worldPixel(place, zoom);
        const way = last === null ? 0 : Math.hypot(spot.x - last.x, spot.y - last.y);
        if (last !== null && way < 3)
            continue;
        for (let done = 4; last !== null && done < way && way < 400; done += 4) {
            const part = done / way;
            spots.push({ x: last.x + (spot.x - last.x) * part,
                y: last.y + (spot.y - last.y) * part });
        }
        spots.push(spot);
        last = spot;
    }
    return spots;
}

/** The buttons of either map: below on the left, or on the right. @param {Bounds} bounds */
function buttonBlocks(bounds) {
    const [w, h] = isOffline() ? [48, 84] : [60, 120];
    const x = isOffline() ? bounds.left + w / 2 : bounds.right - w / 2;
    return [{ x, y: bounds.bottom - h / 2, w, h }];
}

/** Places all signs for the zoom there is. */
function drawSigns() {
    remove([...sceneSigns, ...leaderLines]);
    [sceneSigns, leaderLines] = [[], []];
    const zoom = map?.getZoom();
    if (scene === null || map === null || zoom === undefined)
        return;
    const shown = scene;
    sceneSigns.push(...shownGates(shown).flatMap(drawGate), ...shown.acts.map(drawAct));
    const bounds = viewBounds();
    const near = bounds === null ? trackSpots(zoom) : trackSpots(zoom).filter((spot) =>
        spot.x > bounds.left - 50 && spot.x < bounds.right + 50
        && spot.y > bounds.top - 50 && spot.y < bounds.bottom + 50);
    const signs = shownSigns(shown);
    const placed = placeSigns(signs.map((sign) => wishOf(sign, zoom)), near,
        roadPixels() / 2, bounds, bounds === null ? [] : buttonBlocks(bounds));
    signs.forEach((sign, i) => {
        const found = placed[i];
        if (found === null)
            return;
        if (found.leader !== null) {
            leaderLines.push(drawSolid([found.leader.from, found.leader.to].map(
                (spot) => placeOfPixel(spot, zoom)), shown.colours.edge, 1));
        }
        sceneSigns.push(...drawSign(sign, found, zoom, 2 * i));
    });
}

// All of it

/** @param {LapPayload} first @param {LapPayload | null} second @param {ScenePayload} shown */
function showScene(first, second, shown) {
    clearScene();
    remove([...firstLines, ...secondLines, ...speedMarkers, ...landmarkMarkers]);
    remove([targetCursor, rabbitCursor, secondCursor]);
    forgetShapes();
    const path = pathOf(first.isComplete ? first.lapPoints : samplesOf(first));
    roadLines = drawRoad(path, shown);
    if (second !== null) {
        const other = pathOf(samplesOf(second));
        sceneLines.push(drawSolid(other, shown.colours.casing, LineWidth),
            drawDashed(other, shown.colours.lap2));
    }
    sceneLines.push(drawSolid(pathOf(samplesOf(first)), shown.colours.casing, CasingWidth),
        ...drawColoured(first, shown));
    firstLines = sceneLines;
    watchMap();
    drawSigns();
}

function clearScene() {
    remove([...sceneLines, ...roadLines, ...sceneSigns, ...leaderLines]);
    [sceneLines, roadLines, sceneSigns, leaderLines] = [[], [], [], []];
}

/** Another zoom has other pixels. */
function watchMap() {
    if (map === null || watchedMap === map)
        return;
    watchedMap = map;
    let lastZoom = map.getZoom();
    map.addListener("idle", () => {
        if (scene === null || isEditing())
            return;
        if (map?.getZoom() !== lastZoom) {
            lastZoom = map?.getZoom();
            roadLines.forEach((line, i) => {
                line.setOptions({ strokeWeight: roadPixels() + (i === 0 ? 2 : 0) });
            });
        }
        drawSigns();
        showSceneLegend();
    });
    // Whole levels would leave the lap as small as half of the view.
    if (!isOffline())
        map.setOptions({ isFractionalZoomEnabled: true });
}

// Cursors

/** @param {number} which 0 for the first lap @param {google.maps.LatLngLiteral} position */
function moveSceneCursor(which, position) {
    const colours = /** @type {ScenePayload} */ (scene).colours;
    const cursor = sceneCursors[which];
    // The first lap's stands above the other, also where that one is nearer to the lower edge.
    if (cursor !== null) {
        cursor.setPosition(position);
        return;
    }
    sceneCursors[which] = drawSymbol(position, {
        path: pillPath(13, 13),
        fillColor: which === 0 ? colours.lap1 : colours.lap2,
        strokeColor: colours.text,
        strokeWeight: 2,
    }, null, 1000000 - 10000 * which);
}

/** The text of a point that the cursor is at. @param {number} which @param {string} text */
function drawSceneCursor(which, text) {
    const place = positionOf(JSON.parse(text));
    if (map === null || place === null || isEditing())
        return;
    moveSceneCursor(which, place);
    // Only a cursor that has left the view takes it along.
    if (which === 0 && map.getBounds()?.contains(place) === false) {
        showsWholeLap = false;
        map.setCenter(place);
    }
}

function clearSceneCursors() {
    remove(sceneCursors);
    sceneCursors = [null, null];
}

// The line below the map

/** @param {string} kind @param {string} text */
function legendPart(kind, text) {
    const part = document.createElement("span");
    part.className = kind;
    part.textContent = text;
    return part;
}

/** The longest round number of metres that is at most 90 pixels. */
function scaleLength() {
    const zoom = map?.getZoom();
    const place = firstLap === null ? undefined : pathOf(firstLap.lapPoints)[0];
    if (zoom === undefined || place === undefined)
        return { metres: 0, pixels: 0 };
    const most = 90 * metresPerPixel(place.lat, zoom);
    const power = 10 ** Math.floor(Math.log10(most));
    const metres = [5, 2, 1].map((k) => k * power).find((length) => length <= most) ?? power;
    return { metres, pixels: metres / metresPerPixel(place.lat, zoom) };
}

function showSceneLegend() {
    let line = document.getElementById("line");
    if (line === null) {
        line = document.createElement("div");
        line.id = "line";
        document.body.append(line);
    }
    document.body.classList.toggle("scene", scene !== null);
    if (scene === null)
        return;
    const { colours, legend, stops } = scene;
    document.body.style.setProperty("--ground", colours.map);
    document.body.style.setProperty("--line", colours.card);
    document.body.style.setProperty("--text", colours.text);
    document.body.style.setProperty("--second", colours.secondText);
    document.body.style.setProperty("--edge", colours.edge);
    /** @type {HTMLElement[]} */
    const parts = [];
    if (isLineColoured()) {
        const bar = legendPart("bar", "");
        bar.style.background = `linear-gradient(to right, ${stops.join(", ")})`;
        parts.push(legendPart("text", legend.from), bar, legendPart("text", legend.to));
    }
    const sample = (/** @type {string} */ kind, /** @type {string} */ colour,
        /** @type {string} */ text) => {
        const sign = legendPart(kind, "");
        sign.style.setProperty("--sign", colour);
        parts.push(sign, legendPart("text", text));
    };
    if (!isLineColoured())
        sample("whole", colours.lap1, window.zunoPage?.texts.firstLap ?? "");
    if (secondLap !== null)
        sample("dash", colours.lap2, legend.other);
    if (scene.acts.length > 0) {
        sample("brakes", colours.lap1, legend.brakes);
        sample("gas", colours.lap1, legend.gas);
    }
    const { metres, pixels } = scaleLength();
    const scale = legendPart("scale", "");
    scale.style.width = `${pixels}px`;
    const length = metres >= 1000 ? `${metres / 1000} km` : `${metres} m`;
    parts.push(legendPart("space", ""));
    if (isOffline()) {
        const note = legendPart("second", legend.offline);
        note.title = document.getElementById("note")?.textContent ?? "";
        parts.push(note);
    }
    parts.push(scale, legendPart("", length));
    line.replaceChildren(...parts);
}

/** What is left free around a lap that is shown whole. */
function sceneMargin() {
    const free = (/** @type {number} */ size) => Math.min(size * FitMargin, MostFitMargin);
    const [x, y] = [free(window.innerWidth), free(window.innerHeight - 24)];
    return { top: y, right: x, bottom: y, left: x };
}

// What the program calls

/** A whole session in the form of a lap. @param {NonNullable<ScenePayload["path"]>} path
 *  @returns {LapPayload} */
function rideOf(path) {
    const lapPoints = [...path, path[0]].map(([lat, lng]) => /** @type {LapPoint} */ ({
        dataCoordX: lng,
        dataCoordY: lat,
    }));
    return { lapPoints, maxSpeeds: [], minSpeeds: [], landmarks: [], accelMax: 0, decelMax: 0,
        isComplete: false };
}

/** Of how many samples the line on the map has one. */
function sampleStep() {
    return scene?.path ? scene.step ?? 1 : 1;
}

/** @param {string} text a scene; an empty object takes it back */
function drawScene(text) {
    const shown = JSON.parse(text);
    const wasShown = scene !== null;
    scene = Array.isArray(shown.values) ? shown : null;
    if (scene === null)
        clearScene();
    clearSceneCursors();
    ride = scene?.path && scene.path.length > 0 ? rideOf(scene.path) : null;
    if (ride !== null)
        [firstLap, secondLap] = [ride, null];
    showSceneLegend();
    if (!wasShown && scene !== null)
        fitWanted = true;
    redraw();
}
