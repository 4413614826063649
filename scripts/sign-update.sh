#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Makes what the update server gives out; docs/formats.md describes the files.
#   scripts/sign-update.sh key KEY.pem
#       makes a secret key and prints the public one, for UPDATE_KEY or UPDATE_KEY_SPARE
#   scripts/sign-update.sh item INSTALLER VERSION PLATFORM URL [DAYS]
#       prints what _Infos.xml has to say of an installer; it is offered for so many days (90)
#   scripts/sign-update.sh sign KEY.pem _Infos.xml
#       writes _Infos.xml.sig
# The secret key belongs on no server and into no repository.
set -euo pipefail

usage() {
    sed -n 's/^#   scripts/usage: scripts/p' "${BASH_SOURCE[0]}" >&2
    exit 2
}

# The last 32 bytes of the structure that holds it are the key itself.
public_key() { openssl pkey -in "$1" -pubout -outform DER | tail -c 32; }

escaped() { sed 's/&/\&amp;/g; s/</\&lt;/g' <<<"$1"; }

new_key() {
    [[ ! -e $1 ]] || { echo "$1 is there already." >&2 && return 1; }
    (umask 077 && openssl genpkey -algorithm ED25519 -out "$1")
    public_key "$1" | base64
}

item() {
    cat <<EOF
  <item name="ZUNO Analyzer">
    <name>$(escaped "${1##*/}")</name>
    <version>$(escaped "$2")</version>
    <platform>$(escaped "$3")</platform>
    <size>$(stat -Lc %s "$1")</size>
    <sha256>$(sha256sum <"$1" | cut -d ' ' -f 1)</sha256>
    <validUntil>$(date -u -d "+${5:-90} days" +%Y-%m-%dT%H:%M:%SZ)</validUntil>
    <url>$(escaped "$4")</url>
  </item>
EOF
}

sign() {
    local work
    work=$(mktemp -d)
    # shellcheck disable=SC2064 # the folder of now is meant
    trap "rm -rf '$work'" EXIT
    openssl pkeyutl -sign -rawin -inkey "$1" -in "$2" -out "$work/raw"
    (($(stat -c %s "$work/raw") == 64)) || { echo "$1 is no Ed25519 key." >&2 && return 1; }
    base64 -w 0 "$work/raw" >"$work/text"
    echo >>"$work/text"
    cp "$work/text" "$2.sig"
    echo "$2.sig: signed by $(public_key "$1" | base64)" >&2
}

case "${1:-}/$#" in
key/2) new_key "$2" ;;
item/5 | item/6) item "${@:2}" ;;
sign/3) sign "$2" "$3" ;;
*) usage ;;
esac
