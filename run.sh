#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it.
set -euo pipefail
cd "$(dirname "$0")"

kein_bildschirm() {
    echo "Tarvel braucht einen Bildschirm: bitte ./run.sh in einer grafischen Sitzung aufrufen." >&2
    exit 1
}

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    kein_bildschirm
fi
tools/programmordner.sh
ende=0
Tarvel/tarvel || ende=$?
[ "$ende" -ne 134 ] || kein_bildschirm # Qt gives up this way if the display cannot be opened
exit "$ende"
