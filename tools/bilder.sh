#!/usr/bin/env bash
# Draws the pictures of drivers and vehicles, and the stand-ins for those without one: tools/bilder.sh <folder>
set -euo pipefail

[ $# -eq 1 ] || { echo "Aufruf: tools/bilder.sh <Ordner>" >&2; exit 2; }
ziel=$1
teile=$(dirname "$0")/bilder
mkdir -p "$ziel/pictures" "$ziel/slotcars"

grund='#eceef1' hell='#cdd2dc' mittel='#9aa1ad' dunkel='#626a78' schwarz='#262b34' akzent='#c41e2a'

# Four times the size, because scaling down smooths edges better than drawing small does
blatt=(-size 1280x960)
# Dates and profiles go, so that the same drawing always gives the same bytes
klein=(-filter Box -resize '320x240!' -strip +set date:create +set date:modify)

# als_jpg <file> <ground> <drawing> [quality]
als_jpg() {
    convert "${blatt[@]}" "xc:$2" -draw "$3" "${klein[@]}" -sampling-factor 1x1 -quality "${4:-85}" "$ziel/$1.jpg"
}

# nur_in <outline> <drawing>: puts the drawing, cut off at the outline, into `ausschnitt`. Only line ends part these
# commands; each outline needs a name of its own.
schnitte=0
nur_in() {
    schnitte=$((schnitte + 1))
    ausschnitt="push defs
        push clip-path \"schnitt$schnitte\"
        path '$1'
        pop clip-path
        pop defs
        push graphic-context
        clip-path 'url(#schnitt$schnitte)'
        $2
        pop graphic-context"
}

. "$teile/fahrer.sh"
. "$teile/fahrzeuge.sh"
