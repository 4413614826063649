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
