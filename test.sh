#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs what is missing, builds, and runs every test. Needs no display.
#   ./test.sh [--preset dev|ci|asan|tsan|release] [-- arguments for ctest]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
[[ ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LC_ALL=C.UTF-8

preset=dev
while (($#)); do
    case $1 in
    --preset)
        preset=${2:?--preset needs a name}
        shift 2
        ;;
    --)
        shift
        break
        ;;
    *)
        echo "usage: ./test.sh [--preset NAME] [-- ctest arguments]" >&2
        exit 2
        ;;
    esac
done

if [[ $preset == asan || $preset == tsan ]]; then
    scripts/install-dependencies.sh --core
else
    scripts/install-dependencies.sh --gui
fi
echo "== Building (preset $preset)"
cmake --preset "$preset"
cmake --build --preset "$preset"

# A home of their own: no test sees the settings of whoever runs it, or of the run before.
home=$PWD/build/$preset/test-home
rm -rf "$home"
mkdir -p "$home"/{data,config,cache}
mkdir -m 700 "$home/runtime"
export XDG_DATA_HOME=$home/data XDG_CONFIG_HOME=$home/config XDG_CACHE_HOME=$home/cache
export XDG_RUNTIME_DIR=$home/runtime QT_QPA_PLATFORM=offscreen
# The web engine's sandbox does not work for root, as which containers run the tests.
((EUID != 0)) || export QTWEBENGINE_DISABLE_SANDBOX=1

echo "== Testing"
exec ctest --preset "$preset" --parallel "$(nproc)" "$@"
