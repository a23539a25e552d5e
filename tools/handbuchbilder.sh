#!/usr/bin/env bash
# Draws the pictures of README and handbook anew: docs/*.png, and those of the English handbook: docs/en/*.png
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/pakete.sh
pakete_sicherstellen "${PAKETE_BAU[@]}" "${PAKETE_TEST[@]}" imagemagick

cmake --preset debug >/dev/null
cmake --build --preset debug --target fensterbilder
ablage=$(mktemp -d)
trap 'rm -rf "$ablage"' EXIT

# few colours are enough for windows, and keep the repository small
bild() { # <png> <picture>
    convert "$1" -strip +dither -colors 128 -define png:compression-level=9 "PNG8:$2"
}

# scene, picture, size
while read -r szene bild groesse; do
    for sprache in deutsch englisch; do
        ziel=docs/$bild.png wie=()
        [ $sprache = deutsch ] || { ziel=docs/en/$bild.png && wie=(englisch); }
        # tells of texts without room as well
        build/debug/tests/ui/fensterbilder "$ablage" "$groesse" "${wie[@]}" "$szene" 2>/dev/null || true
        bild "$ablage/$szene.png" "$ziel"
    done
done <<'BILDER'
rennen                   rennen             1280x800
rennen_zeilen            rennen_zeilen      1280x800
hauptfenster             hauptfenster       1024x768
hauptfenster_liste       fahrerliste        1024x768
rennleitung              rennleitung        960x720
startampel_im_rennen     startampel         1280x800
einstellungen_start      einstellungen      1180x800
auswertung               auswertung         1280x900
auswertung_nachtragen    nachtragen         1024x740
wiedergabe               wiedergabe         1280x900
rundenverlauf            rundenverlauf      1280x800
protokoll                protokoll          1280x800
wettkampf_vorbereiten    wettkampf          1180x800
wettkampf2               wettkampfabend     1100x820
einfahren_runden         einfahren          1024x640
tagesrennen              tagesrennen        1100x720
betrachter_drei_rennen   ergebnisse         1180x800
betrachter_vergleich     fahrervergleich    1180x640
bestzeiten               bestzeiten         1000x560
bestzeitverwaltung       bestzeitverwaltung 1180x760
usbtest                  usbtest            1012x690
druckeranschluss         druckeranschluss   960x520
uart_probe               at2560_pruefen     1000x720
urkunden                 urkunden           1024x768
BILDER
