// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The built-in map: as much of the map service's interface as the page script uses, drawn by
// Leaflet on a dark ground. Nothing of it asks the network.
"use strict";

(() => {
    /** @param {google.maps.LatLngLiteral} place */
    const toLeaflet = (place) => L.latLng(place.lat, place.lng);

    class LatLng {
        /** @param {number} lat @param {number} lng */
        constructor(lat, lng) {
            this.place = { lat, lng };
        }
        lat() { return this.place.lat; }
        lng() { return this.place.lng; }
    }

    /** @param {L.LatLng} place */
    const toService = (place) => new LatLng(place.lat, place.lng);

    /** @param {L.LatLng} place */
    const eventAt = (place) => ({ latLng: new LatLng(place.lat, place.lng) });

    class Point {
        /** @param {number} x @param {number} y */
        constructor(x, y) {
            this.x = x;
            this.y = y;
        }
    }

    class Size {
        /** @param {number} width @param {number} height */
        constructor(width, height) {
            this.width = width;
            this.height = height;
        }
    }

    class LatLngBounds {
        constructor(bounds = new L.LatLngBounds([])) {
            this.bounds = bounds;
        }
        isEmpty() { return !this.bounds.isValid(); }
        /** @param {google.maps.LatLngLiteral} place */
        extend(place) {
            this.bounds.extend(toLeaflet(place));
            return this;
        }
        /** @param {google.maps.LatLngLiteral} place */
        contains(place) { return !this.isEmpty() && this.bounds.contains(toLeaflet(place)); }
        getNorthEast() { return toService(this.bounds.getNorthEast()); }
        getSouthWest() { return toService(this.bounds.getSouthWest()); }
        /** @param {LatLngBounds} other */
        intersects(other) { return this.bounds.intersects(other.bounds); }
    }

    class Map {
        /** @param {HTMLElement} element @param {google.maps.MapOptions} options */
        constructor(element, options) {
            this.leaflet = L.map(element, {
                // Lines beside the view are drawn too, so that moving it uncovers no gap.
                renderer: L.canvas({ padding: 0.5 }),
                attributionControl: false,
                zoomControl: false,
                doubleClickZoom: !options.disableDoubleClickZoom,
                // Any zoom, so that what is fitted into the view fills it.
                zoomSnap: 0,
                zoomDelta: 0.5,
                wheelPxPerZoomLevel: 90,
                minZoom: 3,
                maxZoom: 21,
            });
            // Beside the canvas, which would draw all its lines again for each change of a circle.
            this.circles = L.svg({ padding: 0.5 });
            L.control.zoom({ position: "bottomleft" }).addTo(this.leaflet);
            L.control.scale({ imperial: false }).addTo(this.leaflet);
            const centre = /** @type {google.maps.LatLngLiteral} */ (options.center);
            this.leaflet.setView(toLeaflet(centre), options.zoom ?? undefined);
        }
        /** @param {google.maps.LatLngLiteral} place */
        setCenter(place) {
            this.leaflet.panTo(toLeaflet(place), { animate: false });
        }
        getZoom() { return this.leaflet.getZoom(); }
        getBounds() { return new LatLngBounds(this.leaflet.getBounds()); }
        /** @param {LatLngBounds} bounds @param {Required<google.maps.Padding>} padding */
        fitBounds(bounds, padding) {
            // In the moment of a resize the library still has the old size.
            this.leaflet.invalidateSize({ pan: false });
            this.leaflet.fitBounds(bounds.bounds, {
                animate: false,
                paddingTopLeft: [padding.left, padding.top],
                paddingBottomRight: [padding.right, padding.bottom],
            });
        }
        /** @param {"click" | "dblclick" | "idle"} event
         *  @param {(event: { latLng: LatLng }) => void} slot */
        addListener(event, slot) {
            if (event === "idle")
                this.leaflet.on("moveend", () => slot(eventAt(this.leaflet.getCenter())));
            else
                this.leaflet.on(event, (e) => slot(eventAt(e.latlng)));
        }
    }

    /** What can stand on the map and be taken off it. */
    class Shape {
        /** @param {L.Layer} layer @param {unknown} map */
        constructor(layer, map) {
            this.layer = layer;
            this.setMap(map);
        }
        /** @param {unknown} map */
        setMap(map) {
            this.map = map instanceof Map ? map : null;
            this.show(this.map !== null);
        }
        /** @param {boolean} visible */
        show(visible) {
            this.layer.remove();
            if (visible && this.map)
                this.layer.addTo(this.map.leaflet);
        }
    }

    class Polyline extends Shape {
        /** @param {google.maps.PolylineOptions} options */
        constructor(options) {
            const path = /** @type {google.maps.LatLngLiteral[]} */ (options.path);
            const dashed = (options.icons ?? []).length > 0;
            const line = L.polyline(path.map(toLeaflet), {
                color: options.strokeColor ?? undefined,
                opacity: dashed ? 1 : options.strokeOpacity ?? undefined,
                weight: options.strokeWeight ?? undefined,
                // The one kind that is used; butt ends keep the gaps.
                ...(dashed ? { dashArray: "9 3", lineCap: "butt" } : {}),
                interactive: false,
                // Each sample counts: a piece of line may be a few pixels long.
                smoothFactor: 0,
            });
            super(line, options.map);
            this.line = line;
        }
        /** @param {{ strokeWeight: number }} options */
        setOptions(options) {
            // The library fails on a line without points.
            if (!this.line.isEmpty())
                this.line.setStyle({ weight: options.strokeWeight });
        }
    }

    class Circle extends Shape {
        /** @param {google.maps.CircleOptions} options */
        constructor(options) {
            const centre = /** @type {google.maps.LatLngLiteral} */ (options.center);
            const map = options.map instanceof Map ? options.map : null;
            const circle = L.circle(toLeaflet(centre), {
                radius: options.radius ?? 0,
                interactive: false,
                renderer: map?.circles,
            });
            super(circle, options.map);
            this.circle = circle;
        }
        /** @param {google.maps.LatLngLiteral} place */
        setCenter(place) { this.circle.setLatLng(toLeaflet(place)); }
        /** @param {number} metres */
        setRadius(metres) { this.circle.setRadius(metres); }
        /** @param {google.maps.CircleOptions} options */
        setOptions(options) {
            this.circle.setStyle({
                color: options.strokeColor ?? undefined,
                opacity: options.strokeOpacity ?? undefined,
                weight: options.strokeWeight ?? undefined,
                fillColor: options.fillColor ?? undefined,
                fillOpacity: options.fillOpacity ?? undefined,
            });
        }
    }

    /** @param {google.maps.Icon} icon */
    function imageOf(icon) {
        const image = document.createElement("img");
        image.src = icon.url;
        if (icon.scaledSize)
            [image.width, image.height] = [icon.scaledSize.width, icon.scaledSize.height];
        return image;
    }

    /** @param {google.maps.Symbol} symbol */
    function drawingOf(symbol) {
        const space = "http://www.w3.org/2000/svg";
        const path = document.createElementNS(space, "path");
        for (const [name, value] of Object.entries({
            "d": symbol.path,
            "transform": `rotate(${symbol.rotation ?? 0})`,
            "fill": symbol.fillColor,
            "fill-opacity": symbol.fillOpacity,
            "stroke": symbol.strokeColor,
            "stroke-width": symbol.strokeWeight,
        }))
            path.setAttribute(name, String(value));
        const drawing = document.createElementNS(space, "svg");
        drawing.append(path);
        return drawing;
    }

    /** What a marker shows. @param {google.maps.MarkerOptions} options */
    function pictureOf(options) {
        const icon = /** @type {google.maps.Icon | google.maps.Symbol} */ (options.icon);
        const label = /** @type {google.maps.MarkerLabel | undefined} */ (options.label);
        const picture = "url" in icon ? imageOf(icon) : drawingOf(icon);
        if (!label || !icon.labelOrigin)
            return [picture];
        const text = document.createElement("span");
        text.textContent = label.text;
        // Keeps the style sheet's black for a colour that does not exist.
        text.style.color = label.color ?? "";
        text.style.fontSize = label.fontSize ?? "";
        text.style.fontWeight = label.fontWeight ?? "";
        text.style.left = `${icon.labelOrigin.x}px`;
        text.style.top = `${icon.labelOrigin.y}px`;
        return [picture, text];
    }

    class Marker extends Shape {
        /** @param {google.maps.MarkerOptions} options */
        constructor(options) {
            const place = /** @type {google.maps.LatLngLiteral} */ (options.position);
            const anchor = /** @type {google.maps.Icon} */ (options.icon).anchor ?? new Point(0, 0);
            const element = document.createElement("div");
            element.append(...pictureOf(options));
            element.style.cursor = options.cursor ?? "";
            const marker = L.marker(toLeaflet(place), {
                icon: L.divIcon({
                    className: "place",
                    html: element,
                    iconSize: [0, 0],
                    iconAnchor: [anchor.x, anchor.y],
                }),
                interactive: options.draggable === true || options.clickable === true,
                draggable: options.draggable === true,
                autoPan: true,
                // Nearer to the edge than what has just been fitted into the view.
                autoPanPadding: [20, 20],
                keyboard: false,
                zIndexOffset: options.zIndex ?? 0,
            });
            super(marker, options.map);
            this.marker = marker;
            this.element = element;
        }
        /** @param {google.maps.LatLngLiteral} place */
        setPosition(place) { this.marker.setLatLng(toLeaflet(place)); }
        /** @param {boolean} visible */
        setVisible(visible) { this.show(visible); }
        /** Leaves the marker's own element alone: a new one would end a drag.
         *  @param {google.maps.MarkerOptions} options */
        setOptions(options) {
            this.element.replaceChildren(...pictureOf(options));
            this.marker.setZIndexOffset(options.zIndex ?? 0);
        }
        /** @param {"click" | "dragstart" | "drag" | "dragend"} event
         *  @param {(event: { latLng: LatLng }) => void} slot */
        addListener(event, slot) {
            this.marker.on(event, () => slot(eventAt(this.marker.getLatLng())));
        }
    }

    keepMap({ Circle, LatLng, LatLngBounds, Map, Marker, Point, Polyline, Size });
})();
