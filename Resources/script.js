// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Draws what the program sends: one lap or two, speed markers, landmarks and cursors. The same
// script draws on the map service and on the built-in map.
"use strict";

const FirstColour = "#00FF00";
const SecondColour = "#FF0000";
/** How far from the line a click still means it, in pixels. */
const ClickReach = 25;
/** Pixels around what is shown whole: signs stand above their place, the legend at the lower edge. */
const FitPadding = { top: 56, right: 30, bottom: 72, left: 30 };

/** @type {google.maps.Map | null} */
let map = null;
/** The text that the map was last centred on. */
let centreText = "";
/** Whether the built-in map shall show the whole of the next lap. */
let fitWanted = false;
/** Whether the lap was shown whole and nobody has looked elsewhere since. */
let showsWholeLap = false;
/** @type {PageOptions} */
let options = { minMax: true, landmarks: true };
/** The laps as they were sent last, so that new options need no new data.
 *  @type {LapPayload | null} */
let firstLap = null;
/** @type {LapPayload | null} */
let secondLap = null;
/** @type {JsConnector | null} */
let connector = null;

// What stands on the map.
/** @type {google.maps.Polyline[]} */
let firstLines = [];
/** @type {google.maps.Polyline[]} */
let secondLines = [];
/** @type {google.maps.Marker[]} */
let speedMarkers = [];
/** @type {google.maps.Marker[]} */
let landmarkMarkers = [];
/** @type {google.maps.Marker | null} */
let targetCursor = null;
/** @type {google.maps.Marker | null} */
let rabbitCursor = null;
/** @type {google.maps.Marker | null} */
let secondCursor = null;

// Places

/** @param {string} text such as "46.1°, 6.2°" */
function parseCentre(text) {
    const [lat, lng] = text.split(",").map((part) => parseFloat(part.replace("°", "")));
    return { lat, lng };
}

/**
 * The position of a sample, or null when it has none.
 * @param {LapPoint} point
 */
function positionOf(point) {
    return validPlace(point.dataCoordY, point.dataCoordX);
}

/** @param {number | null} lat @param {number | null} lng */
function validPlace(lat, lng) {
    if (typeof lat !== "number" || typeof lng !== "number")
        return null;
    return Math.abs(lat) <= 90 && Math.abs(lng) <= 180 ? { lat, lng } : null;
}

/** @param {LapPoint[]} points */
function withPosition(points) {
    return points.filter((point) => positionOf(point) !== null);
}

/** The samples of a lap without the one that closes its line. @param {LapPayload} lap */
function samplesOf(lap) {
    return lap.lapPoints.slice(0, -1);
}

/** @param {LapPoint[]} points */
function pathOf(points) {
    return /** @type {google.maps.LatLngLiteral[]} */ (points.map(positionOf).filter(Boolean));
}

/** @param {LapPayload} lap */
function boundsOf(lap) {
    const bounds = new google.maps.LatLngBounds();
    for (const place of pathOf(lap.lapPoints))
        bounds.extend(place);
    return bounds;
}

// Lines

/**
 * @param {google.maps.LatLngLiteral[]} path
 * @param {{ strokeColor: string, strokeOpacity: number, strokeWeight: number }} stroke
 */
function drawLine(path, stroke) {
    // A click goes to the map, which looks for the nearest sample.
    return new google.maps.Polyline({ path, geodesic: true, clickable: false, map, ...stroke });
}

/** @param {number} component */
function hexadecimal(component) {
    return component.toString(16).padStart(2, "0");
}

/**
 * Dark olive without acceleration, towards green when accelerating and towards red when braking.
 * @param {number} acceleration
 * @param {LapPayload} lap whose largest values are the full colours
 */
function gradientColour(acceleration, lap) {
    const largest = acceleration > 0 ? lap.accelMax : lap.decelMax;
    const share = largest === 0 ? 0 : acceleration / largest;
    const strong = hexadecimal(Math.round(155 * share) + 100);
    const weak = hexadecimal(Math.round(100 - 100 * share));
    return acceleration > 0 ? `#${weak}${strong}00` : `#${strong}${weak}00`;
}

/**
 * A line for each two neighbours, in the colour of the first one's acceleration.
 * @param {LapPayload} lap
 * @param {LapPoint[]} points
 * @param {number} strokeWeight
 */
function drawGradient(lap, points, strokeWeight) {
    const path = pathOf(points);
    const samples = withPosition(points);
    return path.slice(0, -1).map((place, i) => drawLine([place, path[i + 1]], {
        strokeColor: gradientColour(samples[i].dataAccelXPHComputed, lap),
        strokeOpacity: 1,
        strokeWeight,
    }));
}

/** @param {LapPayload} lap @param {string} strokeColor @param {number} strokeWeight */
function drawPlain(lap, strokeColor, strokeWeight) {
    return [drawLine(pathOf(samplesOf(lap)), { strokeColor, strokeOpacity: 0.7, strokeWeight })];
}

// Markers

/** @param {({ setMap(map: null): void } | null)[]} things */
function remove(things) {
    for (const thing of things)
        thing?.setMap(null);
}

/** @param {(google.maps.Marker | null)[]} markers @param {boolean} visible */
function setVisible(markers, visible) {
    for (const marker of markers)
        marker?.setVisible(visible);
}

/**
 * @param {LapPoint} point
 * @param {string} url
 */
function drawSpeedMarker(point, url) {
    return new google.maps.Marker({
        position: positionOf(point),
        map,
        clickable: false,
        icon: {
            url,
            anchor: new google.maps.Point(16, 32),
            labelOrigin: new google.maps.Point(16, 11),
        },
        label: { text: String(point.dataSpeed), color: "white" },
    });
}

/** @param {google.maps.LatLngLiteral} position @param {string} url @param {string} text */
function drawLandmark(position, url, text) {
    return new google.maps.Marker({
        position,
        map,
        clickable: false,
        icon: {
            url,
            anchor: new google.maps.Point(16, 48),
            labelOrigin: new google.maps.Point(25, 18),
        },
        // No colour of that name exists: each map keeps the one that it writes best in.
        label: { text, color: "while" },
    });
}

/** @param {LapPayload} lap */
function drawMarkers(lap) {
    remove(speedMarkers);
    remove(landmarkMarkers);
    speedMarkers = [
        ...withPosition(lap.minSpeeds).map((p) => drawSpeedMarker(p, "min_speed_marker.png")),
        ...withPosition(lap.maxSpeeds).map((p) => drawSpeedMarker(p, "max_speed_marker.png")),
    ];
    landmarkMarkers = [];
    lap.landmarks.forEach((landmark, i) => {
        const place = validPlace(landmark.lat, landmark.lng);
        if (place === null)
            return;
        const isLast = i === lap.landmarks.length - 1;
        landmarkMarkers.push(isLast
            ? drawLandmark(place, "landmarkGreen.png", window.zunoPage?.texts.start ?? "")
            : drawLandmark(place, "landmark.png", `P${i + 1}`));
    });
    if (options.landmarks === "false")
        setVisible(landmarkMarkers, false);
}

// Laps

/** @param {LapPayload} lap */
function drawFirstGradient(lap) {
    remove(firstLines);
    drawMarkers(lap);
    firstLines = drawGradient(lap, samplesOf(lap), 5);
    if (options.minMax === "false")
        setVisible(speedMarkers, false);
}

/** @param {LapPayload} lap */
function showOneLap(lap) {
    remove(secondLines);
    secondLines = [];
    secondCursor?.setMap(null);
    secondCursor = null;
    drawFirstGradient(lap);
    setVisible([rabbitCursor], false);
    setVisible([targetCursor], true);
}

/** @param {LapPayload} first @param {LapPayload} second */
function showTwoLaps(first, second) {
    remove(secondLines);
    if (options.compareGradient === "true") {
        secondLines = drawGradient(second, second.lapPoints, 3);
        drawFirstGradient(first);
    } else {
        remove(firstLines);
        secondLines = drawPlain(second, SecondColour, 5);
        firstLines = drawPlain(first, FirstColour, 4);
        drawMarkers(first);
    }
    setVisible(speedMarkers, false);
    setVisible([targetCursor], false);
    setVisible([rabbitCursor], true);
}

/** Draws the stored laps; they wait for a map, and for the end of the editing of one. */
function redraw() {
    if (map === null || firstLap === null || isEditing())
        return;
    // First of all: where signs stand depends on the zoom.
    fitLap();
    if (scene !== null)
        showScene(firstLap, secondLap, scene);
    else if (secondLap === null)
        showOneLap(firstLap);
    else
        showTwoLaps(firstLap, secondLap);
    showLegend();
    showSceneLegend();
    // The frame after the next one is the first that certainly shows it.
    requestAnimationFrame(() => requestAnimationFrame(() => tell({ event: "drawn" })));
}

/** Takes the laps and everything that belongs to them off the map; they stay stored. */
function clearLaps() {
    remove([...firstLines, ...secondLines, ...speedMarkers, ...landmarkMarkers]);
    remove([targetCursor, rabbitCursor, secondCursor]);
    forgetShapes();
    clearScene();
    clearSceneCursors();
    showLegend();
}

function forgetShapes() {
    [firstLines, secondLines, speedMarkers, landmarkMarkers] = [[], [], [], []];
    targetCursor = rabbitCursor = secondCursor = null;
}

/**
 * Lets the built-in map show the whole lap when another place is looked at; the rider's own zoom
 * on the same track stays. A view that gets another size goes on showing the whole lap.
 */
function fitLap() {
    if (map === null || firstLap === null || window.innerWidth === 0 || isEditing())
        return;
    // The map service shows its own choice, unless the program says what is to be seen.
    if (!isOffline() && scene === null)
        return;
    const lap = boundsOf(firstLap);
    if (lap.isEmpty() || (!fitWanted && map.getBounds()?.intersects(lap)))
        return;
    map.fitBounds(lap, scene === null ? FitPadding : sceneMargin());
    fitWanted = false;
    showsWholeLap = true;
}

function fitLapAgain() {
    fitWanted ||= showsWholeLap;
    fitLap();
}

/** As a double click on a chart does. */
function showWholeLap() {
    if (isEditing())
        return;
    fitWanted = true;
    fitLap();
}

function showLegend() {
    const hasLine = firstLines.length > 0 && scene === null;
    const gradient = secondLap === null || options.compareGradient === "true";
    setHidden("legend", !hasLine);
    setHidden("gradientLegend", !gradient);
    setHidden("firstLegend", secondLap === null);
    setHidden("secondLegend", secondLap === null);
    document.getElementById("legend")?.classList.toggle("compared", gradient);
}

/** @param {string} id @param {boolean} hidden */
function setHidden(id, hidden) {
    const element = document.getElementById(id);
    if (element !== null)
        element.hidden = hidden;
}

// Cursors

/** @param {google.maps.LatLngLiteral} position @param {string} url @param {number} anchor */
function drawCursorIcon(position, url, anchor) {
    return new google.maps.Marker({
        position,
        map,
        clickable: false,
        zIndex: 1000000,
        icon: {
            url,
            scaledSize: new google.maps.Size(32, 32),
            anchor: new google.maps.Point(anchor, anchor),
        },
    });
}

/** @param {string} text a point */
function drawCursor(text) {
    if (scene !== null) {
        drawSceneCursor(0, text);
        return;
    }
    const place = positionOf(JSON.parse(text));
    if (map === null || place === null || isEditing())
        return;
    targetCursor ??= drawCursorIcon(place, "target.png", 12);
    rabbitCursor ??= drawCursorIcon(place, "rabbit.png", 16);
    targetCursor.setPosition(place);
    rabbitCursor.setPosition(place);
    targetCursor.setVisible(secondLap === null);
    rabbitCursor.setVisible(secondLap !== null);
    showsWholeLap = false;
    map.setCenter(place);
}

/** @param {string} text a point */
function drawSecondCursor(text) {
    if (scene !== null) {
        drawSceneCursor(1, text);
        return;
    }
    const place = positionOf(JSON.parse(text));
    if (map === null || place === null || isEditing())
        return;
    secondCursor ??= drawCursorIcon(place, "turtle.png", 16);
    secondCursor.setPosition(place);
}

/**
 * Reports the first lap's sample nearest to a place, when it is near enough to be meant.
 * @param {google.maps.LatLng} place
 */
function pickSample(place) {
    if (map === null || firstLap === null)
        return;
    const width = Math.cos(place.lat() * Math.PI / 180);
    const distances = samplesOf(firstLap).map((point) => {
        const sample = positionOf(point);
        return sample === null ? Infinity
            : Math.hypot((sample.lng - place.lng()) * width, sample.lat - place.lat());
    });
    const nearest = Math.min(...distances);
    // The whole world is 256 pixels wide at zoom 0.
    const degreesPerPixel = 360 / 256 / 2 ** (map.getZoom() ?? 0) * width;
    if (nearest <= ClickReach * degreesPerPixel)
        tell({ event: "picked", index: distances.indexOf(nearest) * sampleStep() });
}

// What the program calls

/** Creates the map. @param {string} text the centre, "latitude°, longitude°" */
function initMap(text) {
    centreText = text;
    const element = document.getElementById("map");
    if (element === null)
        return;
    map = new google.maps.Map(element, {
        zoom: 16,
        center: parseCentre(text),
        mapTypeId: "satellite",
        streetViewControl: false,
        disableDoubleClickZoom: true,
    });
    map.addListener("dblclick", showWholeLap);
    map.addListener("click", (/** @type {google.maps.MapMouseEvent} */ event) => {
        if (event.latLng && isEditing())
            clickTrack(event.latLng);
        else if (event.latLng)
            pickSample(event.latLng);
    });
    fitWanted = true;
    redraw();
    showEditing();
}

/** Moves the map's centre. @param {string} text the centre, "latitude°, longitude°" */
function centerMap(text) {
    centreText = text;
    const centre = parseCentre(text);
    map?.setCenter(centre);
    fitWanted = true;
    // A lap of that place may have come first.
    if (isOffline() && firstLap !== null && boundsOf(firstLap).contains(centre))
        fitLap();
}

/** Shows a stretch of track. @param {string} text its bounds as [south, west, north, east] */
function showStretch(text) {
    const [south, west, north, east] = JSON.parse(text);
    const bounds = new google.maps.LatLngBounds();
    bounds.extend({ lat: south, lng: west });
    bounds.extend({ lat: north, lng: east });
    showsWholeLap = false;
    map?.fitBounds(bounds, scene === null ? FitPadding : sceneMargin());
}

/** @param {string} text options */
function setOptions(text) {
    options = JSON.parse(text);
    redraw();
}

/** @param {string} text a lap */
function drawOneLap(text) {
    const lap = JSON.parse(text);
    // A session without laps stays where there is no lap.
    firstLap = lap.lapPoints.length === 0 && ride !== null ? ride : lap;
    secondLap = null;
    redraw();
}

/** @param {string} first a lap @param {string} second a lap */
function drawTwoLaps(first, second) {
    [firstLap, secondLap] = [JSON.parse(first), JSON.parse(second)];
    redraw();
}

/** Tells the program something. @param {object} message with the "event" that it is */
function tell(message) {
    connector?.textFromJs(JSON.stringify(message));
}

// Start

/** Draws everything again on another map: what stood on the old one went with it. */
function startMapAnew() {
    document.getElementById("map")?.replaceChildren();
    forgetShapes();
    clearScene();
    clearSceneCursors();
    clearEditing();
    if (map !== null)
        initMap(centreText);
}

let started = false;

function isStarted() {
    return started;
}

/**
 * Gives the style sheet the theme's colours, by the names of the program's table.
 * @param {Record<string, string>} colours
 */
function showTheme(colours) {
    for (const [name, value] of Object.entries(colours))
        document.documentElement.style.setProperty(`--${name}`, value);
}

function fillTexts() {
    const elements = /** @type {NodeListOf<HTMLElement>} */ (
        document.querySelectorAll("[data-text]"));
    for (const element of elements)
        element.textContent = window.zunoPage?.texts[element.dataset.text ?? ""] ?? "";
}

async function start() {
    if (started)
        return;
    started = true;
    showTheme(window.zunoPage?.colours ?? {});
    fillTexts();
    await chooseMap();
    new QWebChannel(qt.webChannelTransport, (channel) => {
        connector = channel.objects.jsConnector;
        connector.sendTextToJS.connect(() => {});
        connector.drawOneLap.connect(drawOneLap);
        connector.drawTwoLaps.connect(drawTwoLaps);
        connector.drawCursor.connect(drawCursor);
        connector.drawSecondCursor.connect(drawSecondCursor);
        connector.drawScene.connect(drawScene);
        connector.setOptions.connect(setOptions);
        connector.editPath.connect(editPath);
        connector.editDraft.connect(editDraft);
        connector.endEditing.connect(endEditing);
        options = { minMax: true, landmarks: true };
        connector.connected();
    });
}

window.addEventListener("load", start);
window.addEventListener("resize", fitLapAgain);
for (const touch of ["pointerdown", "wheel", "keydown"]) {
    window.addEventListener(touch, () => { showsWholeLap = false; },
        { capture: true, passive: true });
}
// A service that does not answer holds the load event back.
setTimeout(start, ServiceTime);
