#!/usr/bin/env bash
# Draws what the program is known by: tools/logo.sh <folder of the icons> <file of the wordmark>
set -euo pipefail

[ $# -eq 2 ] || { echo "Aufruf: tools/logo.sh <Ordner der Symbole> <Schriftzug.png>" >&2; exit 2; }
mkdir -p "$1" "$(dirname "$2")"

nacht='#14171d' weiss='#ffffff' rot='#e0303d'
fertig=(-depth 8 -strip +set date:create +set date:modify -define png:exclude-chunks=date,time)

# Upright letters on a base line at 250, each from its own left edge. They are outlines of ours: with letters of a font,
# the picture would depend on the machine that draws it.
declare -A buchstabe=(
    [T]='M -4,60 L 178,60 L 178,96 L 106,96 L 106,250 L 68,250 L 68,96 L -4,96 Z'
    [a]='M 94,126 L 130,126 L 130,250 L 94,250 L 94,240 C 86,248 76,252 60,252 C 24,252 0,224 0,188
        C 0,152 24,124 60,124
         C 76,124 86,128 94,136 Z  M 66,158 C 46,158 37,170 37,188 C 37,206 46,218 66,218 C 86,218 94,206 94,188
         C 94,170 86,158 66,158 Z'
    [r]='M 0,126 L 36,126 L 36,146 C 46,130 62,124 90,124 L 90,160 C 54,160 37,172 37,206 L 37,250 L 0,250 Z'
    [v]='M -2,126 L 38,126 L 62,204 L 86,126 L 126,126 L 82,250 L 42,250 Z'
    [e]='M 64,124 C 24,124 0,152 0,188 C 0,224 24,252 66,252 C 92,252 110,244 122,228 L 98,208 C 90,217 82,220 68,220
         C 52,220 42,214 38,201 L 127,201 C 131,156 106,124 64,124 Z  M 38,176 C 41,162 50,154 65,154
         C 80,154 89,162 92,176 Z'
    [l]='M 0,56 L 37,56 L 37,250 L 0,250 Z'
)
# zug <letter> <x>
zug() { echo "push graphic-context translate $2,0 path '${buchstabe[$1]}' pop graphic-context"; }

# The car of the stand-in picture, 1280 wide, its wheels on the track at 0
auto() {
    echo "translate 0,-694
        fill '$1' path 'M 96,656 Q 66,570 82,484 C 150,460 220,448 290,446 C 370,444 410,420 466,392
            C 540,354 600,334 668,334 C 756,334 826,372 902,428 C 970,424 1020,438 1066,460
            C 1136,494 1196,546 1222,598 C 1234,622 1232,642 1218,656 Z'
        path 'M 62,350 Q 150,352 240,378 Q 260,386 256,404 Q 250,422 230,420 L 208,416 L 236,470 L 176,470 L 150,404
        L 62,402
            Q 40,398 40,376 Q 40,352 62,350 Z'
        fill '$2' path 'M 462,446 C 526,398 580,374 656,370 L 670,446 Z'
        path 'M 700,370 C 756,376 802,404 860,446 L 714,446 Z'
        path 'M 1084,640 L 1168,640 L 1158,790 Q 1124,804 1096,788 Z'
        circle 290,588 290,466  circle 960,588 960,466
        fill '$3' circle 290,588 290,488  circle 960,588 960,488
        fill '$2' circle 290,588 290,544  circle 960,588 960,544"
}

convert -size 1920x500 xc:"$nacht" -draw "
    push graphic-context translate 150,-24 scale 1.84,1.84 skewX -12 fill '$weiss' fill-rule evenodd
    $(zug T 0) $(zug a 130) $(zug r 284) $(zug v 382) $(zug e 516) $(zug l 664) pop graphic-context
    fill '$weiss' rectangle 0,450 1920,458
    push graphic-context translate 1436,450 scale 0.34,0.34 $(auto "$rot" "$nacht" "$weiss") pop graphic-context" \
    -filter Box -resize '960x250!' "${fertig[@]}" "$2"

convert -size 1024x1024 xc:none -draw "
    fill '$nacht' roundrectangle 16,16 1008,1008 200,200
    fill '$weiss' path 'M 236,130 L 916,130 L 886,270 L 636,270 L 540,720 L 380,720 L 476,270 L 206,270 Z'
    rectangle 16,838 1008,862
    push graphic-context translate 100,838 scale 0.64,0.64 $(auto "$rot" "$nacht" "$weiss") pop graphic-context" \
    "PNG32:$1/gross.png"
for seite in 16 24 32 48 64 128 256; do
    convert "$1/gross.png" -filter Box -resize "${seite}x$seite" "${fertig[@]}" "PNG32:$1/symbol_$seite.png"
done
rm "$1/gross.png"
