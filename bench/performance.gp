# gnuplot -e "data='performance.csv'; picture='performance.png'": how many times as long the others take for the same
# vectors of 16 lanes as the accurate families, in both precisions; conversions are left out. A bar begins at 1 and
# goes up where the other one takes longer.
set terminal pngcairo size 1600,1000 font "sans,11"
set output picture
set datafile separator ","
set datafile columnheaders
columns = "c fastest_sleef xsimd"
array titles[3] = ["C library, scalar", "SLEEF, its fastest", "xsimd, inlined"]
array colours[3] = [0x7570b3, 0xd95f02, 0x1b9e77]

lowest = -4; highest = 6
ratio(i) = log(column(word(columns, i))) / log(2)
shown(y) = y > highest ? highest : y < lowest ? lowest : y
is_missing(i) = strlen(stringcolumn(word(columns, i))) == 0
place(i) = $0 + (i - 2) * 0.27
# `nan`, which nobody else has, is no label that gnuplot would show; a comma keeps an empty last cell.
rows(precision) = "< awk -F, 'NR == 1 || ($3 == \"" . precision . "\" && $4 == \"accurate\" && $6 == 16 && " \
    . "$7 == \"in_range\" && $5 !~ /^(to|from)_/ && $1 !~ /^nan/) { print $0 \",\" }' " . data

set boxwidth 0.27
set style fill solid 0.9 noborder
set yrange [lowest - 0.9:highest + 1]
set offsets 0.7,0.7,0,0
set ytics ("1/16" -4, "1/8" -3, "1/4" -2, "1/2" -1, "1" 0, "2" 1, "4" 2, "8" 3, "16" 4, "32" 5, "64" 6)
set grid ytics
set xtics rotate by 90 right scale 0 noenhanced offset 0,0.3
set key outside top center horizontal
set arrow from graph 0, first 0 to graph 1, first 0 nohead lw 2 lc rgb "#444444" front
set lmargin 9
set multiplot layout 2,1 title "Vectors of 16 lanes, operands in range: above 1 this library is faster\n "
do for [precision in "float double"] {
    set ylabel "time of the other over ours, " . precision
    plot rows(precision) using 0:(0):xtic(1) with points ps 0 notitle, \
         for [i=1:3] "" using (place(i)):(shown(ratio(i))) with boxes lc rgb colours[i] title titles[i], \
         for [i=1:3] "" using (place(i)):(is_missing(i) ? 0.2 : NaN) \
             with points pt 2 ps 0.6 lc rgb colours[i] notitle, \
         for [i=1:3] "" using (place(i)):(ratio(i) > highest ? highest + 0.05 : NaN): \
             (sprintf("%.0f", column(word(columns, i)))) with labels left rotate by 90 font "sans,8" notitle, \
         for [i=1:3] "" using (place(i)):(ratio(i) < lowest ? lowest - 0.05 : NaN): \
             (sprintf("%.2g", column(word(columns, i)))) with labels right rotate by 90 font "sans,8" notitle, \
         NaN with points pt 2 ps 0.6 lc rgb "black" title "no such function, or off by more than 4 ulp", \
         NaN with lines lc rgb "white" title "number at an end: the bar is cut off there"
}
