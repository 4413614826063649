# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# For scripts that show the program on a virtual display: source this. They set "work", a folder of
# theirs, and call end_started when they end.

started=()

# try COMMAND...: until it succeeds, for a minute.
try() {
    local deadline=$((SECONDS + 60))
    until "$@"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.25
    done
}

# start COMMAND...: in the background, in a process group of its own. Sets pid.
start() {
    setsid "$@" >"${work:?}/log" 2>&1 &
    pid=$!
    started+=("$pid")
}

# start_display WIDTHxHEIGHT: what is started from now on shows on it.
start_display() {
    [[ -d /tmp/.X11-unix ]] || mkdir -m 1777 /tmp/.X11-unix
    start Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$work/display"
    if ! try test -s "$work/display"; then
        echo "The virtual display did not start." >&2
        return 1
    fi
    DISPLAY=:$(<"$work/display")
    export DISPLAY QT_QPA_PLATFORM=xcb
    unset WAYLAND_DISPLAY XAUTHORITY XDG_CURRENT_DESKTOP DESKTOP_SESSION
    # The web engine's sandbox does not work for root.
    ((EUID != 0)) || export QTWEBENGINE_DISABLE_SANDBOX=1
}

end() { # end PID: what start has started
    kill -- "-$1" 2>/dev/null || true
    wait "$1" 2>/dev/null || true
}

end_started() {
    local i
    for ((i = ${#started[@]} - 1; i >= 0; --i)); do
        end "${started[i]}"
    done
}
