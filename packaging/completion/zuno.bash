# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Completion of the commands and options of zuno, for bash.

_zuno_files() {
    local pattern=$1
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -d -- "$cur"; compgen -f -X "!$pattern" -- "$cur")
}

_zuno() {
    local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local commands="decode laps map corners insight csv payload set export import demo help"
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "$commands --help --version" -- "$cur")
        return
    fi
    case $previous in
    --format)
        mapfile -t COMPREPLY < <(compgen -W "vbo gpx kml csv" -- "$cur")
        return
        ;;
    --maps)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$cur")
        return
        ;;
    esac
    local command=${COMP_WORDS[1]} options="--help"
    case $command in
    decode) options+=" --smooth --no-points --json" ;;
    laps) options+=" --maps --map --invalidate --json --jobs" ;;
    map) options+=" --maps --json --force" ;;
    corners) options+=" --maps --map --json" ;;
    insight) options+=" --lap --against --maps --map --json --jobs" ;;
    csv) options+=" --lap --locale --maps --map --output --jobs" ;;
    payload) options+=" --lap --maps --map" ;;
    export) options+=" --format --lap --maps --map --output --jobs" ;;
    import) options+=" --output --json" ;;
    set) options+=" --output" ;;
    demo) options+=" --sessions --samples" ;;
    esac
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
    elif [[ $command == map && $COMP_CWORD == 2 ]]; then
        _zuno_files '*.map'
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W "new check" -- "$cur")
    elif [[ $command == import || $command == demo || $previous == -o ]]; then
        _zuno_files '*'
    else
        _zuno_files '*.@(ra1|RA1|map)'
    fi
}

shopt -q extglob || shopt -s extglob
complete -F _zuno zuno
