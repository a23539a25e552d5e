# Drivers: helmet and shoulders, one drawing in the colours and patterns of each. Part of tools/bilder.sh.

schultern='M 130,960 C 134,842 206,788 346,752 C 420,732 460,714 480,670 L 800,670
           C 820,714 860,732 934,752 C 1074,788 1146,842 1150,960 Z'
kragen='M 446,700 C 486,876 794,876 834,700 L 812,700 C 770,850 510,850 468,700 Z'
# The rim of background keeps the helmet apart from the shoulders in a small picture
helmrand='M 640,48 C 830,48 936,180 936,362 C 936,480 930,560 904,640 C 882,708 834,746 756,750
          L 524,750 C 446,746 398,708 376,640 C 350,560 344,480 344,362 C 344,180 450,48 640,48 Z'
helmform='M 640,72 C 816,72 912,194 912,362 C 912,476 906,554 882,630 C 862,692 822,722 754,726
          L 526,726 C 458,722 418,692 398,630 C 374,554 368,476 368,362 C 368,194 464,72 640,72 Z'
visierrahmen='M 390,306 C 540,272 740,272 890,306 C 912,312 922,322 923,342 C 927,406 924,456 912,504
              C 906,524 894,536 872,542 C 800,562 740,564 640,564 C 540,564 480,562 408,542
              C 386,536 374,524 368,504 C 356,456 353,406 357,342 C 358,322 368,312 390,306 Z'
visier='M 434,348 C 550,322 730,322 846,348 C 858,351 864,356 865,368 C 867,408 866,442 860,470
        C 856,486 848,494 834,500 C 780,518 720,520 640,520 C 560,520 500,518 446,500
        C 432,494 424,486 420,470 C 414,442 413,408 415,368 C 416,356 422,351 434,348 Z'
# The air slots follow a smile, which makes the helmet a friendly one
lueftung="fill none stroke-width 26 stroke-linecap round
          path 'M 588,640 Q 640,650 692,640'  line 502,608 536,624  line 778,608 744,624"

# Without a name: grey, but for a stripe
als_jpg pictures/nopic "$grund" "
    fill '$dunkel' path '$schultern'
    fill '$mittel' path '$kragen' rectangle 631,824 649,960
    fill '$grund'  path '$helmrand'  fill '$mittel' path '$helmform'
    fill '$akzent' path 'M 584,75 Q 640,69 696,75 L 686,320 L 594,320 Z'
    fill '$dunkel' path '$visierrahmen'  fill '$hell' path '$visier'
    fill '$dunkel' ellipse 550,424 28,40 0,360  ellipse 730,424 28,40 0,360
    stroke '$dunkel' $lueftung" 90

# What is on the helmets
mittelstreifen="fill '#ffffff' path 'M 548,60 L 618,60 L 612,740 L 554,740 Z'
    path 'M 662,60 L 732,60 L 726,740 L 668,740 Z'"
stern="fill '#ffd23c' path 'M 640,82 L 668,156 L 747,160 L 685,209 L 706,285 L 640,242 L 574,285 L 595,209 L 533,160
        L 612,156 Z'
       path 'M 360,560 L 480,560 L 560,740 L 360,740 Z' path 'M 920,560 L 800,560 L 720,740 L 920,740 Z'"
winkel="fill '#ffffff' path 'M 340,90 L 640,236 L 940,90 L 940,180 L 640,326 L 340,180 Z'
        fill '#ff8a1f' path 'M 340,230 L 640,376 L 940,230 L 940,290 L 640,436 L 340,290 Z'
        path 'M 340,590 L 640,740 L 340,740 Z' path 'M 940,590 L 640,740 L 940,740 Z'"
flammen="fill '#e8401c' path 'M 350,330 C 352,250 388,236 396,176 C 430,216 452,222 470,160 C 486,130 492,112 494,88
         C 534,128 520,196 548,216 C 578,194 592,150 640,96 C 688,150 702,194 732,216 C 760,196 746,128 786,88
         C 788,112 794,130 810,160 C 828,222 850,216 884,176 C 892,236 928,250 930,330 Z'
         fill '#ff9a1f' path 'M 372,330 C 380,284 408,270 418,236 C 440,266 470,262 492,206 C 514,246 522,276 552,280
         C 586,272 606,226 640,186 C 674,226 694,272 728,280 C 758,276 766,246 788,206 C 810,262 840,266 862,236
         C 872,270 900,284 908,330 Z'"
karos="fill '#262b34' $(for reihe in 0 1 2; do for spalte in 0 1 2 3; do
    x=$((355 + 71 * (2 * spalte + reihe % 2)))
    echo "rectangle $x,$((92 + 71 * reihe)) $((x + 71)),$((163 + 71 * reihe))"
done; done) rectangle 340,700 940,740"
punkte="fill '#ffffff' circle 640,160 640,110  circle 500,210 500,166  circle 780,210 780,166  circle 408,288 408,250
        circle 872,288 872,250  circle 570,276 570,248  circle 710,276 710,248  circle 560,90 560,62
        circle 720,90 720,62
        circle 420,600 420,560  circle 860,600 860,560  circle 470,704 470,672  circle 810,704 810,672"

# What is on the suits
schulterstreifen="fill '#ffffff' path 'M 250,740 L 318,740 L 268,980 L 200,980 Z'
    path 'M 1030,740 L 962,740 L 1012,980 L 1080,980 Z'"
passe="fill '#ffd23c' path 'M 120,980 C 150,850 290,770 430,690 L 560,690 L 500,790 C 360,826 260,880 226,980 Z'
       path 'M 1160,980 C 1130,850 990,770 850,690 L 720,690 L 780,790 C 920,826 1020,880 1054,980 Z'"
brustwinkel="fill '#ff8a1f' path 'M 100,800 L 640,1010 L 1180,800 L 1180,870 L 640,1080 L 100,870 Z'"
aermel="fill '#e8401c' path 'M 100,960 L 100,740 L 330,740 C 290,800 280,880 290,980 Z'
        path 'M 1180,960 L 1180,740 L 950,740 C 990,800 1000,880 990,980 Z'"
karoband="fill '#ffffff' $(for reihe in 0 1; do for spalte in 0 1 2 3 4 5 6 7 8; do
    x=$((96 + 62 * (2 * spalte + reihe)))
    echo "rectangle $x,$((836 + 62 * reihe)) $((x + 62)),$((898 + 62 * reihe))"
done; done)"
herz="fill '#ffffff' path 'M 880,930 C 820,888 800,862 800,836 C 800,800 856,790 880,828 C 904,790 960,800 960,836
      C 960,862 940,888 880,930 Z'"

# Faces: what is around the eyes
brauen="fill none stroke-width 13 stroke-linecap round path 'M 508,378 Q 546,348 586,370'
    path 'M 772,378 Q 734,348 694,370'"
dichte_brauen="fill none stroke-width 20 stroke-linecap round path 'M 508,374 L 584,366' path 'M 772,374 L 696,366'"
wimpern="fill none stroke-width 13 stroke-linecap round path 'M 524,402 L 496,384' path 'M 530,388 L 510,364'
         path 'M 756,402 L 784,384' path 'M 750,388 L 770,364'"
brille="stroke '#ffd23c' fill none stroke-width 13 circle 550,428 550,366 circle 730,428 730,366
    path 'M 612,420 L 668,420'
        path 'M 488,420 L 424,408' path 'M 792,420 L 856,408'"
sprossen="stroke none fill '#b5713f' circle 470,470 470,462  circle 496,486 496,478  circle 448,490 448,482
          circle 810,470 810,462  circle 784,486 784,478  circle 832,490 832,482"
wangen="stroke none fill '#e0567a90' ellipse 478,482 34,22 0,360 ellipse 802,482 34,22 0,360"
augen="fill '#262b34' ellipse 550,430 27,39 0,360  ellipse 730,430 27,39 0,360
       fill '#ffffff' circle 560,414 560,404  circle 740,414 740,404"

# fahrer <name> <ground> <helmet> <suit> <trim> <skin> <on the helmet> <on the suit> <around the eyes>
fahrer() {
    local bild
    nur_in "$schultern" "$8"
    bild="fill '$4' path '$schultern' $ausschnitt
        fill '$5' path '$kragen' rectangle 631,824 649,960
        fill '$2' path '$helmrand' fill '$3' path '$helmform'"
    nur_in "$helmform" "$7 fill '#00000022' path 'M 790,40 C 850,300 850,520 720,760 L 960,760 L 960,40 Z'"
    bild+=" $ausschnitt fill '$schwarz' path '$visierrahmen' fill '$6' path '$visier'"
    nur_in "$visier" "fill '#00000022' rectangle 400,310 880,360"
    bild+=" $ausschnitt $augen push graphic-context fill '#3a2a22' stroke '#3a2a22' $9 pop graphic-context
        stroke '$schwarz' $lueftung"
    als_jpg "pictures/$1" "$2" "$bild"
}

# Each in the colour that its lane has in the settings
fahrer 'Fahrer 1' '#f6dcdd' '#d3202e' '#a51722' '#ffffff' '#f3c9a5' "$mittelstreifen" "$schulterstreifen" "$brauen"
fahrer 'Fahrer 2' '#d6eedd' '#1d9b4b' '#14713a' '#ffd23c' '#c68a5b' "$stern" "$passe" "$dichte_brauen"
fahrer 'Fahrer 3' '#dae4f8' '#2456c8' '#1b3f94' '#ffffff' '#f6d3b3' "$winkel" "$brustwinkel" "$wimpern"
fahrer 'Fahrer 4' '#fbf1cd' '#ffcb1f' '#f2b200' "$schwarz" '#f3c9a5' "$flammen" "$aermel" "$brauen $sprossen"
fahrer 'Fahrer 5' '#cfd6e0' '#fbfcfd' '#3a404b' '#ffffff' '#8a5a3a' "$karos" "$karoband" "$brille"
fahrer 'Fahrer 6' '#f6dcf0' '#d63aa8' '#97227a' '#ffffff' '#e2ac80' "$punkte" "$herz" "$brauen $wangen"
