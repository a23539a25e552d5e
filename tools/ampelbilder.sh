#!/usr/bin/env bash
# Draws the lamps of the start light, each lit and unlit: tools/ampelbilder.sh <folder>
set -euo pipefail

[ $# -eq 1 ] || { echo "Aufruf: tools/ampelbilder.sh <Ordner>" >&2; exit 2; }
ziel="$1/ampel"
mkdir -p "$ziel"
teile=$(mktemp -d)
trap 'rm -rf "$teile"' EXIT

# Twice the size, because scaling down smooths edges better than drawing small does
blatt=(-size 720x720)
linsenkreis='circle 360,360 360,94'

# schicht <name> <colour or gradient> <drawing> <softness> <opacity in percent>: what lies over a lamp, as light or shade.
# The softness is the mask's alone; blurred together with its colour, a light would have a dark rim.
schicht() {
    convert "${blatt[@]}" "$2" \( "${blatt[@]}" xc:black -fill "gray($5%)" -draw "$3" -blur "0x$4" \) \
        -alpha off -compose CopyOpacity -composite "$teile/$1.png"
}

# The housing reaches the edges and is the same left and right, so that five lamps side by side are one bar; a seam
# parts the modules.
gehaeuse() {
    convert "${blatt[@]}" gradient:'#363a41'-'#1b1d21' \
        -fill '#0d0e10' -draw 'rectangle 0,0 3,719 rectangle 716,0 719,719' \
        -fill '#4a4f57' -draw 'rectangle 4,0 6,719 rectangle 0,0 719,3' \
        -fill '#0d0e10' -draw 'circle 62,62 62,48 circle 658,62 658,48 circle 62,658 62,644 circle 658,658 658,644' \
        -fill '#5b616a' -draw 'circle 62,62 62,51 circle 658,62 658,51 circle 62,658 62,647 circle 658,658 658,647' \
        -stroke '#1b1d21' -strokewidth 4 -draw 'line 55,55 69,69 line 651,69 665,55 line 55,665 69,651 line 651,651 665,665' \
        "$teile/gehaeuse.png"
}

# The bezel is bright below, where the light of the room meets it, and dark above under the hood
fassung() {
    schicht sockel xc:'#08090a' 'circle 360,372 360,54' 10 85
    schicht ring gradient:'#3c4147'-'#c3c9d1' 'circle 360,360 360,62' 0 100
    schicht innenring gradient:'#8f969f'-'#2b2f34' 'circle 360,360 360,78' 0 100
    schicht grund xc:'#0a0b0c' 'circle 360,360 360,88' 0 100
    convert "$teile/gehaeuse.png" "$teile/sockel.png" -composite "$teile/ring.png" -composite \
        "$teile/innenring.png" -composite "$teile/grund.png" -composite "$teile/lampe.png"
}

# Bands of 256 colours would draw rings into the glow. Fine noise breaks them up; dithering by error diffusion leaves dark
# specks in the bright glass. The seed and the missing dates make the same drawing the same bytes.
fertig() {
    convert "$teile/bild.png" -filter Box -resize '360x360!' -alpha off -strip +set date:create +set date:modify \
        -seed 5 -attenuate 0.12 +noise Gaussian +dither -colors 256 "$ziel/$1.gif"
}

# aus <file> <middle> <rim>: the glint of the room on the dome shows glass without light behind it
aus() {
    schicht glas radial-gradient:"$2-$3" "$linsenkreis" 0 100
    schicht haube xc:black 'ellipse 360,128 236,112 0,360' 30 75
    schicht glanz xc:white 'ellipse 360,530 120,34 0,360' 16 30
    convert "$teile/lampe.png" "$teile/glas.png" -composite "$teile/haube.png" -composite \
        "$teile/glanz.png" -composite "$teile/bild.png"
    fertig "$1"
}

# an <file> <core> <colour> <rim>: the glow has faded at the picture's edges, or it would show where the lamps meet
an() {
    schicht schein xc:"$3" 'circle 360,360 360,70' 42 100
    schicht glas radial-gradient:"$3-$4" "$linsenkreis" 0 100
    schicht haube xc:black 'ellipse 360,104 226,66 0,360' 28 38
    schicht kern xc:"$2" 'circle 360,372 360,250' 56 100
    convert "$teile/lampe.png" "$teile/haube.png" -composite "$teile/schein.png" -compose Screen -composite \
        -compose Over "$teile/glas.png" -composite "$teile/haube.png" -composite "$teile/kern.png" -composite "$teile/bild.png"
    fertig "$1"
}

gehaeuse
fassung
an rt_an '#ffe2d6' '#ff2e18' '#e60c04'
aus rt_aus '#7a1414' '#2c0505'
an gr_an '#f0ffe6' '#35ff48' '#00d422'
aus gr_aus '#12642a' '#04260c'
an ge_an '#fffce0' '#ffd428' '#ffab00'
aus ge_aus '#735a10' '#2c2104'
