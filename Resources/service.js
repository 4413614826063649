// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which map the page draws on: the map service's, or the built-in one when the service cannot be
// had. Either way the page script finds it as google.maps.
"use strict";

/** How long the map service may take, in milliseconds. */
const ServiceTime = 4000;

/** Why the built-in map stands in; empty as long as the map service is used. */
let offlineReason = "";

/** Whether a map library stands in the page, the service's or another one in its place. */
function mapStands() {
    return typeof window.google?.maps?.Map === "function";
}

/** A library that is refused, or that is late, finds its place taken and cannot change it. */
function keepMap(/** @type {object} */ maps) {
    const value = Object.freeze({ maps: Object.freeze(maps) });
    Object.defineProperty(window, "google", { value, writable: false, configurable: false });
}

/**
 * Adds a script or style sheet to the page.
 * @param {"script" | "link"} kind
 * @param {Record<string, string>} attributes
 * @returns {Promise<void>} done when it has been loaded
 */
function load(kind, attributes) {
    return new Promise((resolve, reject) => {
        const element = document.createElement(kind);
        for (const [name, value] of Object.entries(attributes))
            element.setAttribute(name, value);
        element.addEventListener("load", () => resolve());
        element.addEventListener("error", () => reject(new Error(`Cannot load ${kind}`)));
        document.head.append(element);
    });
}

/** Asks for the map service's library; the page goes on without waiting. */
function requestService() {
    if (mapStands())
        return;
    const service = window.zunoPage?.service ?? "";
    offlineReason = service === "" ? "noKey" : "noAnswer";
    if (service === "")
        return;
    // A service that loads may refuse the key at once, and one that comes too late is not used.
    const settle = () => {
        if (offlineReason === "noAnswer" && !isOffline())
            offlineReason = mapStands() ? "" : "notLoaded";
    };
    load("script", { src: service, async: "" }).then(settle, settle);
}

let offline = false;

/** Whether the page draws on the built-in map. */
function isOffline() {
    return offline;
}

/** Puts the built-in map in the map service's place and says why. */
async function useBuiltInMap() {
    offline = true;
    showNote(offlineReason);
    await load("link", { rel: "stylesheet", href: "leaflet/leaflet.css" });
    await load("script", { src: "leaflet/leaflet.min.js" });
    await load("script", { src: "offline.js" });
}

/** @param {string} name of the text to be shown in the corner; without a text, nothing */
function showNote(name) {
    const note = document.getElementById("note");
    if (note === null)
        return;
    note.textContent = window.zunoPage?.texts[name] ?? "";
    note.hidden = note.textContent === "";
}

/** Sees to it that there is a map to draw on. */
async function chooseMap() {
    if (mapStands() && offlineReason !== "refused")
        showNote(offlineReason = "");
    else
        await useBuiltInMap();
}

window.gm_authFailure = () => {
    if (isOffline())
        return;
    offlineReason = "refused";
    // Before the start it only has to be remembered.
    if (isStarted())
        useBuiltInMap().then(startMapAnew);
};

document.addEventListener("DOMContentLoaded", () => showNote("loading"));
requestService();
