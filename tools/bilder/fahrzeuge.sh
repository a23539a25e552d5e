# Vehicles: body shapes seen from the side, none of them anybody's make. Part of tools/bilder.sh.

# The guide blade reaches below the track, into the slot. The stripe comes before the wheels, which cut it;
# the track comes after the cut, so that they stand on it.
standardwagen="translate 0,-56
    fill '$dunkel' path 'M 62,360 Q 150,362 234,384 Q 248,390 245,403 Q 240,416 226,414
                         Q 150,394 62,394 Q 46,392 46,377 Q 46,362 62,360 Z'
                   path 'M 130,388 L 180,394 L 216,480 L 164,480 Z'
    fill '$mittel' path 'M 96,656 Q 66,570 82,484 C 150,460 220,448 290,446 C 370,444 410,420 466,392
                         C 540,354 600,334 668,334 C 756,334 826,372 902,428 C 970,424 1020,438 1066,460
                         C 1136,494 1196,546 1222,598 C 1234,622 1232,642 1218,656 Z'
    fill '$akzent' path 'M 74,528 L 1180,548 L 1210,580 L 77,580 Z'
    fill '$dunkel'   path 'M 96,656 Q 88,640 83,618 L 1230,618 Q 1231,642 1218,656 Z'
                   path 'M 462,440 C 526,394 580,370 656,366 L 670,440 Z'
                   path 'M 692,366 C 752,372 802,400 856,440 L 706,440 Z'
    fill '$hell' path 'M 1076,484 C 1114,500 1142,518 1162,536 Q 1112,532 1076,484 Z'
    fill '$grund' circle 290,598 290,486  circle 960,598 960,486
    fill '$hell'  roundrectangle 24,690 1256,712 11,11
    fill '$dunkel'   path 'M 1092,640 L 1160,640 L 1152,734 Q 1124,744 1102,732 Z'
    fill '$dunkel'   circle 290,598 290,502  circle 960,598 960,502
    fill '$hell'  circle 290,598 290,546  circle 960,598 960,546
    fill '$dunkel'   circle 290,598 290,582  circle 960,598 960,582"
convert "${blatt[@]}" "xc:$grund" -draw "$standardwagen" "${klein[@]}" +dither -colors 256 "$ziel/slotcars/nocar.gif"

# rad <x> <radius> <rim>: a wheel on the track
rad() {
    local y=$((694 - $2))
    raeder+=" fill '$schwarz' circle $1,$y $1,$((y - $2))  fill '$3' circle $1,$y $1,$((y - $2 * 58 / 100))
        fill '$schwarz' circle $1,$y $1,$((y - $2 * 46 / 100))  fill '$3' circle $1,$y $1,$((y - $2 * 36 / 100))
        fill '$schwarz' circle $1,$y $1,$((y - $2 * 14 / 100))"
    luecken+=" circle $1,$y $1,$((y - $2 - 14))"
}

# fahrzeug <name> <colour> <outline> <rear x,radius> <front x,radius> <rim> <on the body> <around it>
# The lower body lies in shade. What is on the body ends at its outline.
fahrzeug() {
    local raeder='' luecken="fill '$grund'" x=${5%,*} kiel
    rad "${4%,*}" "${4#*,}" "$6"
    rad "$x" "${5#*,}" "$6"
    kiel="M $((x + 106)),640 L $((x + 162)),640 L $((x + 154)),734 Q $((x + 132)),744 $((x + 114)),732 Z"
    nur_in "$3" "$7 fill '#00000026' rectangle 0,586 1280,720  fill '$schwarz' rectangle 0,632 1280,720"
    als_jpg "slotcars/$1" "$grund" "translate 0,-56 $8 fill '$2' path '$3' $ausschnitt $luecken
        fill '$hell' roundrectangle 24,690 1256,712 11,11  fill '$dunkel' path '$kiel' $raeder"
}

glas="fill '$schwarz'"
schein="fill '#ffffff2e'"

fahrzeug 'Formel 1' '#d3202e' 'M 318,652 L 322,548 C 410,530 486,478 540,420 C 552,404 596,400 604,420 L 624,488
         L 752,506 C 900,530 1060,566 1150,606 C 1196,626 1214,640 1206,652 Z' 236,104 976,92 "$hell" "
    fill '#ffffff' path 'M 300,560 C 420,540 490,500 545,440 L 570,470 C 510,530 430,572 300,590 Z'
    path 'M 1010,540 L 1080,560 L 1060,660 L 990,660 Z'
    fill '#a51722' path 'M 440,660 C 430,580 500,544 580,540 L 770,548 C 806,556 820,590 826,660 Z'
    $glas path 'M 752,556 C 790,564 806,590 808,628 L 780,628 C 780,590 770,566 752,556 Z'" "
    fill '$schwarz' path 'M 150,440 L 196,440 L 300,600 L 240,600 Z'
    path 'M 1060,668 L 1070,640 L 1240,640 Q 1256,640 1256,656 L 1256,672 L 1070,672 Z'
    fill '#ffffff' roundrectangle 90,424 300,446 10,10  fill '#d3202e' roundrectangle 90,372 300,414 12,12
    fill '$schwarz' roundrectangle 66,360 122,508 12,12
    fill '#ffcb1f' circle 676,460 676,400
    fill '$schwarz' path 'M 680,430 L 732,438 Q 740,468 726,480 L 682,472 Z'
    fill '$dunkel' path 'M 752,510 L 776,470 L 788,470 L 800,520 Z'"

fahrzeug 'Porsche GT3' '#f07a12' 'M 108,656 C 82,610 84,546 112,506 C 160,472 220,456 280,432 C 380,388 470,334 596,330
         C 700,328 776,376 852,436 C 910,440 960,424 1020,436 C 1110,456 1176,510 1194,570
         C 1204,606 1204,640 1190,656 Z' \
         290,98 962,96 "$hell" "
    fill '#ffffff' path 'M 60,556 L 1240,556 L 1240,580 L 60,580 Z'
    $glas path 'M 380,444 C 440,396 520,368 592,364 L 598,446 Z' path 'M 622,364 C 700,364 760,404 808,446 L 628,446 Z'
    $schein path 'M 520,360 L 570,360 L 500,450 L 450,450 Z'  path 'M 690,360 L 720,360 L 690,450 L 650,450 Z'
    fill '#ffffff' ellipse 1098,496 38,30 0,360  fill '$hell' ellipse 1106,498 22,18 0,360
    fill '#00000040' path 'M 410,484 L 470,476 L 466,520 L 430,530 Z'" "
    fill '$schwarz' path 'M 150,400 L 200,404 L 232,480 L 184,480 Z'
    path 'M 62,366 Q 180,364 290,392 Q 306,398 302,412 Q 298,424 282,420 Q 180,398 62,400 Q 46,398 46,383
        Q 46,368 62,366 Z'"

fahrzeug 'Peugeot 206' '#14a3b8' 'M 206,656 C 180,600 182,520 200,470 C 216,424 244,376 276,344
        C 300,322 420,314 520,318
         C 640,324 716,372 796,446 C 900,452 1010,474 1058,524 C 1090,560 1094,610 1084,656 Z' 346,88 892,88 '#ffffff' "
    fill '#ffffff' path 'M 120,660 L 330,440 L 420,440 L 210,660 Z'  path 'M 250,660 L 460,440 L 490,440 L 280,660 Z'
    $glas path 'M 272,440 C 290,400 310,376 334,358 Q 400,350 486,352 L 492,444 Z'
    path 'M 514,352 C 610,356 670,396 728,448 L 518,444 Z'
    $schein path 'M 400,340 L 450,340 L 370,450 L 320,450 Z' path 'M 590,340 L 620,340 L 590,450 L 550,450 Z'
    fill '#ffffff' circle 610,540 610,488
    path 'M 954,486 C 1010,494 1052,520 1066,554 C 1020,552 970,530 954,486 Z'" "
    fill '$schwarz' path 'M 306,326 L 196,304 Q 180,304 182,320 L 190,334 L 270,366 Z'
    path 'M 262,640 L 244,694 L 230,694 L 236,640 Z'"

fahrzeug 'Peugeot 307' '#7a3fc0' 'M 128,656 C 110,600 112,520 126,470 C 138,430 160,380 196,344
        C 230,318 380,306 540,310
         C 660,314 760,362 850,440 C 960,446 1090,470 1134,520 C 1160,560 1162,610 1154,656 Z' 296,92 950,92 '#ffd23c' "
    fill '#ffd23c' path 'M 60,470 C 400,500 800,480 1200,590 L 1200,622 C 800,520 400,560 60,530 Z'
    $glas path 'M 176,436 C 190,396 210,370 236,354 L 350,346 L 350,440 Z'
    path 'M 372,345 L 560,344 L 564,440 L 372,440 Z'
    path 'M 588,346 C 670,352 730,394 784,444 L 590,440 Z'
    $schein path 'M 480,330 L 530,330 L 450,450 L 400,450 Z' path 'M 270,340 L 310,340 L 240,450 L 200,450 Z'
    fill '#ffffff' path 'M 1030,480 C 1090,490 1126,512 1140,546 C 1090,544 1046,524 1030,480 Z'" "
    fill '$schwarz' path 'M 470,314 L 492,286 L 580,290 Q 592,300 590,318 Z'
    path 'M 220,640 L 200,694 L 186,694 L 190,640 Z'
    path 'M 206,340 L 106,318 Q 92,320 96,338 L 180,372 Z'
    path 'M 1034,480 L 1044,440 Q 1050,424 1070,424 L 1126,424 L 1126,510 L 1060,500 Z'
    fill '#fff3b0' ellipse 1128,466 16,42 0,360"

fahrzeug 'Subaru Impreza' '#1f4fc4' 'M 96,656 C 76,600 78,520 92,474 C 110,450 200,442 300,438 C 360,390 420,332 500,320
         C 590,312 680,318 730,342 C 780,372 820,404 862,440 C 980,444 1110,462 1164,514
         C 1192,550 1196,610 1188,656 Z' \
         284,94 958,94 '#ffffff' "
    fill '#ffffff' path 'M 620,660 L 820,430 L 900,430 L 700,660 Z' fill '#ff8a1f'
    path 'M 730,660 L 930,430 L 970,430 L 770,660 Z'
    $glas path 'M 358,440 C 400,396 440,362 500,352 L 560,348 L 562,440 Z'
    path 'M 584,348 C 650,346 690,352 714,366 C 750,388 780,414 806,444 L 586,440 Z'
    $schein path 'M 480,340 L 530,340 L 450,450 L 400,450 Z' path 'M 680,340 L 710,340 L 660,450 L 620,450 Z'
    fill '#ffffff' path 'M 1060,478 C 1120,488 1156,510 1168,540 C 1120,540 1076,520 1060,478 Z'
    fill '#d3202e' path 'M 80,486 L 140,480 L 130,524 L 76,530 Z'" "
    fill '$schwarz' path 'M 120,360 L 164,364 L 190,470 L 134,470 Z'
    path 'M 56,316 L 236,336 Q 250,340 248,354 Q 246,368 230,366 L 56,356 Q 40,352 40,336 Q 40,318 56,316 Z'
    path 'M 880,450 C 890,416 920,404 1000,408 Q 1012,412 1010,426 L 1006,452 Z'
    path 'M 210,640 L 190,694 L 176,694 L 180,640 Z'"

fahrzeug 'Viper' '#157a3c' 'M 92,656 C 70,600 74,530 106,490 C 160,440 250,424 340,434 L 370,470 L 580,470 L 596,440
         C 780,420 1000,430 1120,490 C 1190,530 1214,590 1206,656 Z' 268,98 986,94 "$hell" "
    fill '#ffffff' path 'M 60,520 L 1260,540 L 1260,572 L 60,552 Z'
    fill '#0d5328' path 'M 800,596 L 826,486 L 850,486 L 846,596 Z'
    fill '$hell' roundrectangle 400,606 830,628 11,11
    fill '#ffffff' path 'M 1120,510 C 1160,524 1188,550 1196,580 C 1160,570 1130,550 1120,510 Z'" "
    fill '$schwarz' path 'M 340,470 L 364,360 Q 370,344 390,348 L 420,356 L 410,378 L 388,374 L 372,470 Z'
    fill '#ffcb1f' circle 452,406 452,346  fill '$schwarz' path 'M 452,378 L 508,384 Q 516,412 502,424 L 456,418 Z'
    fill '$schwarz' path 'M 590,480 L 536,366 L 560,360 L 650,450 Z'"

fahrzeug 'Corvette' '#ffc61a' 'M 92,656 L 78,486 C 90,470 110,462 130,464 C 210,462 280,452 330,444
        C 430,396 520,346 620,344
         C 700,346 748,392 806,444 C 960,436 1130,490 1214,596 C 1226,620 1224,644 1212,656 Z' 282,98 968,94 "$hell" "
    fill '$schwarz' path 'M 60,560 L 860,548 L 830,590 L 60,590 Z'
    $glas path 'M 352,446 C 440,402 520,372 584,368 L 590,448 Z' path 'M 614,368 C 690,368 724,404 764,448 L 618,448 Z'
    $schein path 'M 520,360 L 570,360 L 500,450 L 450,450 Z'  path 'M 670,360 L 700,360 L 670,450 L 640,450 Z'
    $glas path 'M 1086,494 L 1160,544 L 1150,558 L 1076,510 Z'
    path 'M 812,500 L 830,500 L 816,540 L 798,540 Z' path 'M 846,500 L 864,500 L 850,540 L 832,540 Z'
    fill '#d3202e' ellipse 100,512 24,16 0,360" "
    fill '#ffc61a' path 'M 76,480 L 60,438 Q 120,440 220,468 Z'"

fahrzeug 'Mini Cooper S' '#d2266b' 'M 262,656 C 240,600 242,510 262,462 L 316,350 C 322,322 336,308 366,308 L 668,308
         C 700,308 712,322 728,350 L 796,448 C 910,450 1004,466 1030,520
         C 1048,560 1050,620 1040,656 Z' 388,86 866,86 '#ffffff' "
    fill '$schwarz' rectangle 200,300 900,340
    fill '#ffffff' path 'M 200,516 L 1100,516 L 1100,540 L 200,540 Z'
    $glas path 'M 304,448 L 344,358 L 470,358 L 470,448 Z' path 'M 496,358 L 606,358 L 606,448 L 496,448 Z'
    path 'M 630,358 L 692,358 L 756,448 L 630,448 Z'
    $schein path 'M 420,350 L 456,350 L 396,460 L 360,460 Z' path 'M 560,350 L 586,350 L 540,460 L 514,460 Z'
    fill '#ffffff' ellipse 986,512 28,36 0,360 fill '$hell' ellipse 992,512 17,24 0,360
    fill '#ffd23c' ellipse 262,520 22,34 0,360" ""
