# gnuplot, run in docs/: draws pictures/performance.png from the tables of performance.md: how many times as long the
# others take for the same vectors of 16 lanes.
set terminal pngcairo size 1100,520 font "sans,11"
set output "pictures/performance.png"
set title "Time of others over ours, vectors of 16 floats, operands in range"
set style data histograms
set style histogram clustered gap 1.5
set style fill solid 0.9 border -1
set logscale y 2
set yrange [0.5:64]
set ytics (0.5, 1, 2, 4, 8, 16, 32, 64)
set grid ytics
set xtics rotate by -40 scale 0
set key top right
set arrow from graph 0, first 1 to graph 1, first 1 nohead lw 2 lc rgb "#444444" front
set datafile missing "-"
rows = "awk -F'|' -f ../bench/performance_rows.awk performance.md"
plot "< " . rows using 2:xtic(1) title "C library, scalar" lc rgb "#7570b3", \
     "< " . rows using 3 title "SLEEF, its fastest" lc rgb "#d95f02", \
     "< " . rows using 4 title "xsimd, inlined" lc rgb "#1b9e77"
