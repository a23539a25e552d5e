#!/usr/bin/env bash
# Builds the release program and lays the program folder Tarvel/ out. A file that is there stays as it is, but for the
# program itself.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/pakete.sh
pakete_sicherstellen "${PAKETE_BAU[@]}"

# A newer compiler may know new warnings; they must not keep anybody from racing.
cmake --preset release -DTARVEL_WARNUNGEN_SIND_FEHLER="${TARVEL_WARNUNGEN_SIND_FEHLER:-OFF}" \
    -DTARVEL_VORKOMPILIERT="${TARVEL_VORKOMPILIERT:-ON}" >/dev/null
simulatoren=(cu_simulator at2560_simulator m4x4_simulator)
bibliotheken=(ftd2xx inpout32 iowkit RaceControl)
cmake --build --preset release --target tarvel nachrechnen "${simulatoren[@]}" rc_simulator "${bibliotheken[@]}"

mkdir -p Tarvel
cp -f build/release/ui/tarvel Tarvel/tarvel.neu
mv -f Tarvel/tarvel.neu Tarvel/tarvel
mkdir -p Tarvel/Werkzeuge
for werkzeug in "${simulatoren[@]}"; do
    cp -f --remove-destination "build/release/tools/simulator/$werkzeug" Tarvel/Werkzeuge/
done
cp -f --remove-destination build/release/tools/ersatz/race_control/rc_simulator build/release/tools/nachrechnen/nachrechnen Tarvel/Werkzeuge/
# Not beside the program: there they would go before the vendors' own.
mkdir -p Tarvel/Werkzeuge/Bibliotheken
for bibliothek in "${bibliotheken[@]}"; do
    find build/release/tools -name "lib$bibliothek.so" -exec cp -f --remove-destination {} Tarvel/Werkzeuge/Bibliotheken/ \;
done
mkdir -p Tarvel/Hilfe/en
cp -f --remove-destination docs/Handbuch.md docs/Einstellungen.md docs/*.png Tarvel/Hilfe/ # what F1 shows
cp -f --remove-destination docs/en/*.md docs/en/*.png Tarvel/Hilfe/en/
if [ -d data ]; then
    (cd data && find . -type f -print0) | while IFS= read -r -d '' datei; do
        if [ -e "Tarvel/$datei" ]; then
            # Language files go by the place of each text: one with another number of texts is of another version.
            case $datei in ./language*/*) ;; *) continue ;; esac
            [ "$(wc -l <"Tarvel/$datei")" -eq "$(wc -l <"data/$datei")" ] && continue
            mv -f "Tarvel/$datei" "Tarvel/$datei.alt"
        fi
        mkdir -p "Tarvel/$(dirname "$datei")"
        cp "data/$datei" "Tarvel/$datei"
    done
fi
