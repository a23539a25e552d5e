#!/usr/bin/env bash
# Runs a Windows program of the mingw build, in a Windows of its own below build/: tools/wine.sh <program> [<argument>...]
set -euo pipefail
export WINEPREFIX=${WINEPREFIX:-$(cd "$(dirname "$0")/.." && pwd)/build/wine}
export WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
mkdir -p "$(dirname "$WINEPREFIX")"
wine=$(command -v wine64 || command -v wine || echo /usr/lib/wine/wine64)
exec "$wine" "$@"
