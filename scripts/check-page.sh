#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Checks the map page's scripts: the TypeScript compiler holds every call against the published
# types of the map service and of Leaflet, and ESLint looks for common mistakes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/install-dependencies.sh --page
# Only when the tools are missing or others than those asked for.
if ! cmp -s package-lock.json node_modules/.zuno-lock; then
    npm ci --no-fund --no-audit --loglevel=error
    cp package-lock.json node_modules/.zuno-lock
fi
node_modules/.bin/tsc --project .
node_modules/.bin/eslint --max-warnings 0 Resources tests eslint.config.mjs
echo "The page's scripts are clean."
