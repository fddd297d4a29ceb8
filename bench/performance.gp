# gnuplot -e "data='performance.csv'; picture='performance.png'": how many times as long the others take for the same
# vectors of 16 lanes as the accurate families, in both precisions; conversions are left out.
set terminal pngcairo size 1500,900 font "sans,11"
set output picture
set datafile separator ","
set style data histograms
set style histogram clustered gap 1.5
set style fill solid 0.9 noborder
set logscale y 2
set yrange [0.5:64]
set ytics (0.5, 1, 2, 4, 8, 16, 32, 64)
set ylabel "time of others over ours"
set grid ytics
set xtics rotate by -60 scale 0 noenhanced
set key top right
set arrow from graph 0, first 1 to graph 1, first 1 nohead lw 2 lc rgb "#444444" front
rows(precision) = "< awk -F, 'NR == 1 || ($3 == \"" . precision . "\" && $4 == \"accurate\" && $6 == 16 && " \
    . "$7 == \"in_range\" && $5 !~ /^(to|from)_/ && $9 != \"\")' " . data
set multiplot layout 2,1 title "Vectors of 16 lanes, operands in range; bars beyond 64 are cut off, peers off by more than 4 ulp left out"
do for [precision in "float double"] {
    set title precision
    plot rows(precision) using "c":xtic(1) title "C library, scalar" lc rgb "#7570b3", \
         "" using "fastest_sleef" title "SLEEF, its fastest" lc rgb "#d95f02", \
         "" using "xsimd" title "xsimd, inlined" lc rgb "#1b9e77"
}
