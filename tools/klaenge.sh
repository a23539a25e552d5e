#!/usr/bin/env bash
# Makes the sounds of the race with sox and espeak-ng and checks them: tools/klaenge.sh <folder>
set -euo pipefail
export LC_ALL=C.UTF-8 # a decimal comma would be no number for sox

[ $# -eq 1 ] || { echo "Aufruf: tools/klaenge.sh <Ordner>" >&2; exit 2; }
ziel="$1/sound"
mkdir -p "$ziel"
teile=$(mktemp -d)
trap 'rm -rf "$teile"' EXIT

# Random dither would give other bytes each run
sox() { command sox -D "$@"; }
roh=(-r 16000 -c 1 -e signed -b 32)

# The loudest tenth of a second is what is made equal: the mean of a word with a long hiss is low, and it would become
# too loud by that. The shelf is the ear's own gain above the lower middle.
lautheit() {
    sox "$1" -n pad 0.4 0.4 highpass 80 treble 4 1500 stats -w 0.1 2>&1 | awk '/^RMS Pk dB/ { print $4 }'
}

# pegel <in> <out> <loudness>: the limiter takes from the peaks what a sound needs more
pegel() {
    sox "$1" "$teile/pegel.sox" norm -0.1
    local mehr begrenzer
    for _ in 1 2 3 4; do
        mehr=$(awk -v soll="$3" -v ist="$(lautheit "$teile/pegel.sox")" 'BEGIN { printf "%.2f", soll - ist }')
        begrenzer=-l
        [ "${mehr#-}" = "$mehr" ] || begrenzer=
        sox "$teile/pegel.sox" "$teile/pegel2.sox" gain $begrenzer "$mehr"
        mv "$teile/pegel2.sox" "$teile/pegel.sox"
    done
    mv "$teile/pegel.sox" "$2"
}

# rede <text> <words per minute>: small speakers have no bass, and the hisses that tell "fünf" from "zehn" beside a
# track are weak in the voice. Pauses at commas are shortened, as the next sound may cut this one soon.
rede() {
    espeak-ng -v de -p 55 -s "$2" -w "$teile/a.wav" "$1"
    sox "$teile/a.wav" "${roh[@]}" "$teile/b.sox" gain -9 highpass 160 equalizer 2400 0.8q 4 treble 7 4500 \
        compand 0.002,0.05 6:-90,-90,-60,-50,-35,-24,-15,-10,0,-5 0 -90 0.002
    sox "$teile/b.sox" "$teile/c.sox" norm -0.1 silence 1 0.002 0.8% reverse silence 1 0.002 0.8% reverse
    sox "$teile/c.sox" "$teile/d.sox" silence -l 1 0.001 0 -1 0.07 0.8%
    sox "$teile/d.sox" "$teile/e.sox" fade t 0.004 -0 0.015
    pegel "$teile/e.sox" "$teile/sprache.sox" -10.6
}

# ton <name> <seconds> <decay> <hertz>: a struck tone, which starts at its loudest and is cut before it has died away
ton() {
    sox -r 16000 -c 3 -n "${roh[@]}" "$teile/$1.sox" synth "$3" sine "$4" sine "$((2 * $4))" sine "$((3 * $4))" \
        remix 1v0.5,2v0.3,3v0.15 fade l 0 "$3" "$3" trim 0 "$2" fade t 0.002 -0 0.008
}

# toene <how> <name> <loudness> <seconds> <decay> <hertz>...: struck tones, in a row (concatenate) or at once (mix)
toene() {
    local wie=$1 name=$2 laut=$3 dauer=$4 nachklang=$5 hertz pfade=()
    shift 5
    for hertz in "$@"; do
        ton "$hertz" "$dauer" "$nachklang" "$hertz"
        pfade+=("$teile/$hertz.sox")
    done
    sox --combine "$wie" "${pfade[@]}" "$teile/f.sox"
    pegel "$teile/f.sox" "$teile/$name.sox" "$laut"
}

# klang <file> <part>...
klang() {
    local datei=$1 pfade
    shift
    pfade=("${@/#/$teile/}")
    sox "${pfade[@]/%/.sox}" -b 16 "$ziel/$datei.wav" gain -1.8 highpass 60
}

# meldung <file> <text> <words per minute> [signal before the words]
meldung() {
    rede "$2" "$3"
    klang "$1" ${4:+"$4"} sprache
}

signale() {
    toene concatenate vorbereitung -11.6 0.13 0.9 784 784 1047
    toene concatenate ende -11.6 0.14 1.0 1047 784 523
    toene concatenate abbruch -11.6 0.09 0.6 523 523 523
    toene concatenate chaos -11.6 0.08 2.0 1245 880 1245 880
    toene concatenate weiter -11.6 0.09 0.8 784 1175
    toene concatenate zieleinlauf -11.6 0.09 1.0 784 988 1175 1568
    toene concatenate strafe -11.6 0.08 0.6 587 587
    toene concatenate warnung -11.6 0.09 0.8 880 1109
    toene concatenate leer -11.6 0.09 0.8 880 622
}

# Laps and sectors come every second or faster: they tick under the talk in the room
toene_allein() {
    toene concatenate schritt -11.6 0.28 2.0 587
    klang as schritt
    toene mix los -12.3 0.8 3.5 1175 1480 1760
    klang rs los
    toene concatenate runde -19.5 0.05 0.2 1047
    klang rd runde
    toene concatenate sektor -22 0.04 0.12 2349 2349
    klang sd sektor
}

# Left to itself the voice rolls an r where a German speaks a vowel, makes a hiss of the Ch in Chaos and runs words that
# are put together into one another.
rennende="[[r'En_|'End@]]"
rennabbruch="[[r'En_|'apbrUx]]"
rennvorbereitung="[[r'Enf,o:3b@RaIt,UN]]"
chaos="[[k'A:Os]]"
erster_im_ziel="[[d,e:3 _|'e:3st@ _|Ist _|Im ts'i:l]]"
spur="[[Sp'u:3]]"
disqualifiziert="[[d,Iskval,i:fi:ts'i:3t]]"
leer="[[l'e:3]]"
vier="[[f'i:3]]"

rennen() {
    meldung rv "Achtung, $rennvorbereitung" 165 vorbereitung
    meldung re "$rennende" 145 ende
    meldung ra "$rennabbruch" 145 abbruch
    meldung cp1 "$chaos" 145 chaos
    meldung cp2 "Weiter" 145 weiter
    meldung ez "$erster_im_ziel" 165 zieleinlauf
}

# "zwo" cannot be taken for "drei", and here no count before it helps
spuren() {
    local nummer=0 zahl
    for zahl in eins zwo drei "$vier" fünf sechs; do
        nummer=$((nummer + 1))
        meldung "sr$nummer" "Beste Runde, $spur $zahl" 165
        meldung "fs$nummer" "Frühstart, $spur $zahl" 165 strafe
        meldung "ds$nummer" "$spur $zahl $disqualifiziert" 165 strafe
        meldung "tw$nummer" "$spur $zahl, tanken" 165 warnung
        meldung "tl$nummer" "$spur $zahl, Tank $leer" 165 leer
    done
}

restzeit() {
    meldung m5 "Noch fünf Minuten" 165
    meldung m2 "Noch zwei Minuten" 165
    meldung m1 "Noch eine Minute" 165
    meldung s30 "Noch dreißig Sekunden" 165
    meldung s20 "Noch zwanzig Sekunden" 165
    local zahl=11 wort
    for wort in zehn neun acht sieben sechs fünf "$vier" drei zwei eins; do
        zahl=$((zahl - 1))
        meldung "s$zahl" "$wort" 135
    done
}

signale
toene_allein
rennen
spuren
restzeit
python3 "$(dirname "$0")/klaenge_pruefen.py" "$1"
