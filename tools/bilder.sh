#!/usr/bin/env bash
# Draws the stand-in pictures of driver and vehicle: tools/bilder.sh <folder>
set -euo pipefail

[ $# -eq 1 ] || { echo "Aufruf: tools/bilder.sh <Ordner>" >&2; exit 2; }
mkdir -p "$1/pictures" "$1/slotcars"

ground='#eceef1' light='#cdd2dc' mid='#9aa1ad' dark='#626a78' accent='#c41e2a'

# Four times the size, because scaling down smooths edges better than drawing small does
blatt=(-size 1280x960 "xc:$ground")
# Dates and profiles go, so that the same drawing always gives the same bytes
klein=(-filter Box -resize '320x240!' -strip +set date:create +set date:modify)

# The rim of background keeps the helmet apart from the shoulders in a small picture. The air slots follow a smile,
# which makes the helmet a friendly one.
fahrer="
    fill '$dark'   path 'M 130,960 C 134,842 206,788 346,752 C 420,732 460,714 480,670 L 800,670
                         C 820,714 860,732 934,752 C 1074,788 1146,842 1150,960 Z'
    fill '$mid'    path 'M 446,700 C 486,876 794,876 834,700 L 812,700 C 770,850 510,850 468,700 Z'
                   rectangle 631,824 649,960
    fill '$ground' path 'M 640,48 C 830,48 936,180 936,362 C 936,480 930,560 904,640 C 882,708 834,746 756,750
                         L 524,750 C 446,746 398,708 376,640 C 350,560 344,480 344,362 C 344,180 450,48 640,48 Z'
    fill '$mid'    path 'M 640,72 C 816,72 912,194 912,362 C 912,476 906,554 882,630 C 862,692 822,722 754,726
                         L 526,726 C 458,722 418,692 398,630 C 374,554 368,476 368,362 C 368,194 464,72 640,72 Z'
    fill '$accent' path 'M 584,75 Q 640,69 696,75 L 686,320 L 594,320 Z'
    fill '$dark'   path 'M 390,306 C 540,272 740,272 890,306 C 912,312 922,322 923,342 C 927,406 924,456 912,504
                         C 906,524 894,536 872,542 C 800,562 740,564 640,564 C 540,564 480,562 408,542
                         C 386,536 374,524 368,504 C 356,456 353,406 357,342 C 358,322 368,312 390,306 Z'
    fill '$light'  path 'M 434,348 C 550,322 730,322 846,348 C 858,351 864,356 865,368 C 867,408 866,442 860,470
                         C 856,486 848,494 834,500 C 780,518 720,520 640,520 C 560,520 500,518 446,500
                         C 432,494 424,486 420,470 C 414,442 413,408 415,368 C 416,356 422,351 434,348 Z'
    fill '$dark'   ellipse 550,424 28,40 0,360  ellipse 730,424 28,40 0,360
    fill none stroke '$dark' stroke-width 26 stroke-linecap round
                   path 'M 588,640 Q 640,650 692,640'  line 502,608 536,624  line 778,608 744,624"

# The guide blade reaches below the track, into the slot. The stripe comes before the wheels, which cut it;
# the track comes after the cut, so that they stand on it.
wagen="translate 0,-56
    fill '$dark'   path 'M 62,360 Q 150,362 234,384 Q 248,390 245,403 Q 240,416 226,414
                         Q 150,394 62,394 Q 46,392 46,377 Q 46,362 62,360 Z'
                   path 'M 130,388 L 180,394 L 216,480 L 164,480 Z'
    fill '$mid'    path 'M 96,656 Q 66,570 82,484 C 150,460 220,448 290,446 C 370,444 410,420 466,392
                         C 540,354 600,334 668,334 C 756,334 826,372 902,428 C 970,424 1020,438 1066,460
                         C 1136,494 1196,546 1222,598 C 1234,622 1232,642 1218,656 Z'
    fill '$accent' path 'M 74,528 L 1180,548 L 1210,580 L 77,580 Z'
    fill '$dark'   path 'M 96,656 Q 88,640 83,618 L 1230,618 Q 1231,642 1218,656 Z'
                   path 'M 462,440 C 526,394 580,370 656,366 L 670,440 Z'
                   path 'M 692,366 C 752,372 802,400 856,440 L 706,440 Z'
    fill '$light'  path 'M 1076,484 C 1114,500 1142,518 1162,536 Q 1112,532 1076,484 Z'
    fill '$ground' circle 290,598 290,486  circle 960,598 960,486
    fill '$light'  roundrectangle 24,690 1256,712 11,11
    fill '$dark'   path 'M 1092,640 L 1160,640 L 1152,734 Q 1124,744 1102,732 Z'
    fill '$dark'   circle 290,598 290,502  circle 960,598 960,502
    fill '$light'  circle 290,598 290,546  circle 960,598 960,546
    fill '$dark'   circle 290,598 290,582  circle 960,598 960,582"

convert "${blatt[@]}" -draw "$fahrer" "${klein[@]}" -sampling-factor 1x1 -quality 90 "$1/pictures/nopic.jpg"
convert "${blatt[@]}" -draw "$wagen" "${klein[@]}" +dither -colors 256 "$1/slotcars/nocar.gif"
