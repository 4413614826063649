// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Stands in for the map service's library and keeps what was asked of it.
"use strict";

window.shapes = [];

class Shape {
    constructor(options) {
        Object.assign(this, options, { visible: true });
        window.shapes.push(this);
    }
    setMap(map) {
        this.map = map;
        window.shapes = window.shapes.filter((shape) => shape !== this || map !== null);
    }
    setVisible(visible) { this.visible = visible; }
    setPosition(position) { this.position = position; }
    setCenter(center) { this.center = center; }
    setRadius(radius) { this.radius = radius; }
    setOptions(options) { Object.assign(this, options); }
    addListener(event, slot) { this[event] = slot; }
}

class LatLng {
    constructor(lat, lng) { [this.lat, this.lng] = [() => lat, () => lng]; }
}

window.google = {
    maps: {
        LatLng,
        LatLngBounds: class {
            places = [];
            extend(place) { this.places.push(`${place.lat}/${place.lng}`); }
            isEmpty() { return false; }
        },
        Circle: class Circle extends Shape {},
        Map: class {
            constructor(element, options) { this.options = options; this.calls = []; }
            setCenter(place) { this.calls.push(`center ${place.lat} ${place.lng}`); }
            fitBounds(bounds) { this.calls.push(`fit ${bounds.places.join(" ")}`); }
            setOptions() {}
            getBounds() {}
            getZoom() { return 16; }
            addListener(event, slot) { this[event] = slot; }
        },
        Marker: class Marker extends Shape {},
        Point: class { constructor(x, y) { [this.x, this.y] = [x, y]; } },
        Polyline: class Polyline extends Shape {},
        Size: class { constructor(x, y) { [this.width, this.height] = [x, y]; } },
    },
};
