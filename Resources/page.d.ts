// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the scripts of the map page get from outside, for the type checker.

/** A sample of a lap. A value that is no number, or too large for one, arrives as null. */
interface LapPoint {
    acquisitionNumber: number;
    dataTimeStamp: number;
    dataTimeSec: number;
    /** Longitude, degrees. */
    dataCoordX: number | null;
    /** Latitude, degrees. */
    dataCoordY: number | null;
    dataSpeed: number;
    dataAngle: number;
    dataAccelXPH: number;
    dataAccelXPHComputed: number;
    dataAccelYPH: number;
}

interface LapPayload {
    /** The samples in order, then the first one again. */
    lapPoints: LapPoint[];
    maxSpeeds: LapPoint[];
    minSpeeds: LapPoint[];
    landmarks: { lat: number | null, lng: number | null }[];
    accelMax: number;
    decelMax: number;
    isComplete: boolean;
}

// Signs, in pixels.
interface Spot { x: number, y: number }
/** By its middle. */
interface Box extends Spot { w: number, h: number }
interface Bounds { left: number, right: number, top: number, bottom: number }
interface Leader { from: Spot, to: Spot }
interface PlacedBox { box: Box, leader: Leader | null }
/** A sign with or without its value. */
interface PlacedSign extends PlacedBox { isWhole: boolean }
/** A place on the line with the way to the corner's outside (of length 1), the width of its sign
 *  with the value and without. */
interface SignWish extends Box {
    dx: number;
    dy: number;
    small: number;
    weight: number;
    optional: boolean;
    /** Pixels from the road's edge. */
    farthest?: number;
}

/** A place with the way out of the corner there, metres east and north of length 1. */
interface SceneSign {
    lat: number;
    lng: number;
    dx: number;
    dy: number;
    label: string;
    value: string;
    /** Of the frame, and of the value. */
    colour: string;
    ink: string;
    /** Seconds; null where the values are no differences. */
    weight: number | null;
    /** Whether it may be left out, and is plain text. */
    optional: boolean;
    /** The zone that a click shows; -1 for none. */
    zone: number;
}

interface SceneGate {
    lat: number;
    lng: number;
    /** Degrees, of the way that is ridden. */
    heading: number;
    isStart: boolean;
}

interface SceneAct { lat: number, lng: number, isBraking: boolean, isOther: boolean }

/** What the program says about the laps. */
interface ScenePayload {
    mode: string;
    /** From 0 to 1 for each sample of the first lap; null where nothing is known. */
    values: (number | null)[];
    stops: string[];
    colours: Record<"map" | "road" | "roadEdge" | "casing" | "text" | "secondText" | "card" | "edge"
        | "lap1" | "lap2" | "neutral", string>;
    signs: SceneSign[];
    gates: SceneGate[];
    acts: SceneAct[];
    /** Makes the rider's unit of km/h. */
    speedFactor: number;
    /** The way of a session without laps, of every so many samples. */
    path?: ([number, number] | [null, null])[];
    step?: number;
    legend: Record<"from" | "to" | "other" | "brakes" | "gas" | "offline", string>;
}

/** [latitude, longitude], degrees; null without a position. */
type PlacePair = [number, number] | null;

/** A map that is being made, as it is sent. */
interface DraftPayload {
    /** Left out when it is the one before. */
    outline?: PlacePair[];
    start: PlacePair;
    timingPoints: PlacePair[];
    /** Metres. */
    gateSize: number;
    /** The number of a point: -1 the start, from 0 the timing points, -2 none. */
    selected: number;
    warned: number[];
}

/** What of it the page keeps, with the session's way behind it. */
interface Draft {
    path: google.maps.LatLngLiteral[];
    outline: google.maps.LatLngLiteral[];
    start: google.maps.LatLngLiteral | null;
    timingPoints: (google.maps.LatLngLiteral | null)[];
    gateSize: number;
    selected: number;
    warned: number[];
}

/** Everything is text once it has come from the program; absent settings are empty. */
interface PageOptions {
    minMax: string | boolean;
    landmarks: string | boolean;
    compareGradient?: string;
}

/** What the program puts into the page before its scripts run. */
interface PageSettings {
    /** What the page may load, as a content security policy. */
    policy: string;
    /** Where the map service's library is, with the key; empty without a key. */
    service: string;
    texts: Record<string, string>;
    /** Of the theme at the start. */
    colours: Record<string, string>;
}

interface Signal<Arguments extends string[]> {
    connect(slot: (...texts: Arguments) => void): void;
}

/** The program's end of the channel. */
interface JsConnector {
    sendTextToJS: Signal<[string]>;
    drawOneLap: Signal<[string]>;
    drawTwoLaps: Signal<[string, string]>;
    drawCursor: Signal<[string]>;
    drawSecondCursor: Signal<[string]>;
    drawScene: Signal<[string]>;
    setOptions: Signal<[string]>;
    editPath: Signal<[string]>;
    editDraft: Signal<[string]>;
    endEditing: Signal<[]>;
    connected(): void;
    textFromJs(text: string): void;
}

declare class QWebChannel {
    constructor(transport: object, ready: (channel: { objects: { jsConnector: JsConnector } }) => void);
}

declare const qt: { webChannelTransport: object };

interface Window {
    zunoPage?: PageSettings;
    google?: typeof google;
    /** The map service calls this when it refuses the key. */
    gm_authFailure?: () => void;
}
