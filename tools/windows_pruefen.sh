#!/usr/bin/env bash
# Compiles all but the windows for Windows, and lets a quick selection of its tests run under Wine: damaged files of
# every kind, what reads and writes files, the libraries that stand in for the vendors', and the files that come with the
# program, byte for byte.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/pakete.sh
pakete_sicherstellen --no-install-recommends "${PAKETE_WINDOWS[@]}"

cmake --preset mingw >/dev/null
cmake --build --preset mingw

tools/wine.sh build/mingw/tests/logik_tests.exe --gtest_brief=1 \
    --gtest_filter='Dateien.*:Einstellungsdatei.*:Ergebnisdatei.*:Listenseite.*:Namensliste.*:Sprache.*:Text.*:Wechselschema.*'
tools/wine.sh build/mingw/tests/fuzz/fuzz_lauf.exe 100 1
tools/wine.sh build/mingw/tests/windows_bibliotheken.exe build/mingw/tools/*/*.dll build/mingw/tools/ersatz/*/*.dll

rm -rf build/windows-daten
cp -r data build/windows-daten
rm -rf build/windows-daten/{Einstellungen,Listen,Ergebnisse,language}/*
tools/wine.sh build/mingw/tests/grunddateien.exe build/windows-daten
diff -r data build/windows-daten
