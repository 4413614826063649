// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the page may load depends on the key of the map service, which the program has: it hands the
// policy over, and from here on it holds. Without one the page has nothing but its own resources.
"use strict";

{
    const policy = document.createElement("meta");
    policy.httpEquiv = "Content-Security-Policy";
    policy.content = window.zunoPage?.policy ?? "default-src 'none'; script-src qrc:; style-src qrc:";
    document.head.append(policy);
}
