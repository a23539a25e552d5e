#!/usr/bin/env bash
# Draws the track pictures of the 4x4 USB window: lanes, and pit lanes with their sensors. Needs ImageMagick.
set -euo pipefail
cd "$(dirname "$0")/../data/pictures"
mkdir -p 4x4

# name, lanes, pit lanes
bild() {
    local zeichnung="" y i
    for ((i = 0; i < $2; i++)); do
        y=$((12 + i * 16))
        zeichnung+=" stroke '#3a3e46' line 4,$y 188,$y stroke none fill '#c41e2a' rectangle 92,$((y - 5)) 98,$((y + 5))"
    done
    for ((i = 0; i < $3; i++)); do
        y=$((84 - i * 20))
        zeichnung+=" fill none stroke '#2a6fc4' path 'M 24,28 C 40,28 40,$y 56,$y L 136,$y C 152,$y 152,28 168,28'"
        zeichnung+=" stroke none fill '#2a6fc4' rectangle 62,$((y - 5)) 68,$((y + 5))"
        zeichnung+=" fill none"
    done
    convert -size 192x88 xc:white -stroke none -strokewidth 3 -draw "$zeichnung" "4x4/$1.gif"
}

bild 4-0 4 0
bild 2-0 2 0
bild 2-1 2 1
bild 2-2 2 2
