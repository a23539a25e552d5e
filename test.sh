#!/usr/bin/env bash
# Installs what is missing, builds the tests with sanitizers and runs them all. Needs no screen.
set -euo pipefail
cd "$(dirname "$0")"
. tools/pakete.sh
pakete_sicherstellen "${PAKETE_BAU[@]}" "${PAKETE_TEST[@]}"

cmake --preset asan >/dev/null
cmake --build --preset asan
ctest --preset asan
# Most cases run many to a process, and ctest counts processes.
echo "$(grep -c '^\[       OK \]' build/asan/Testing/Temporary/LastTest.log) Fälle bestanden"
