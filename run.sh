#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. Without a screen, or on demand, a short race against a
# simulated timing device shows it at work:
#   ./run.sh                            the program, without a screen the demonstration
#   ./run.sh vorfuehrung [cu|at2560|iow|lpt|4x4|rc|tk]
#                                       the demonstration, with one of these devices
set -euo pipefail
cd "$(dirname "$0")"

vorfuehrung() {
    tools/programmordner.sh
    cmake --build --preset release --target vorfuehrung
    exec build/release/tools/vorfuehrung "$@"
}

case "${1:-}" in
vorfuehrung)
    shift
    vorfuehrung "$@"
    ;;
cu | at2560 | iow | lpt | 4x4 | rc | tk) vorfuehrung "$@" ;;
"") ;;
*)
    echo "Aufruf: ./run.sh [vorfuehrung] [cu|at2560|iow|lpt|4x4|rc|tk]" >&2
    exit 2
    ;;
esac
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    echo "Kein Bildschirm: das Programm fährt ein Rennen gegen einen Simulator und erzählt es als Text."
    vorfuehrung
fi
tools/programmordner.sh
ende=0
Tarvel/tarvel || ende=$?
if [ "$ende" -eq 134 ]; then # Qt gives up this way if the display cannot be opened
    echo "Der Bildschirm lässt sich nicht öffnen. Ohne ihn geht: ./run.sh vorfuehrung" >&2
    ende=1
fi
exit "$ende"
