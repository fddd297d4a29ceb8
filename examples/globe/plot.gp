# gnuplot, run beside globe.dat: writes globe.png.
set terminal pngcairo size 1200,600 font "sans,12"
set output "globe.png"
set logscale xy
set format x "10^{%L}"
set format y "10^{%L}"
set yrange [1e-13:1]
set xrange [1e-4:2e7]
set grid
set key top center horizontal
set multiplot layout 1,2 title "Error of a great-circle distance, in metres, double"
less(x) = x > 1e-13 ? x : 1e-13
set xlabel "distance, metres"
set ylabel "error, metres"
do for [antipode = 0:1] {
    if (antipode == 1) {
        set xrange [2e7:1e-4] reverse
        set xlabel "metres that are missing to the antipode"
        unset ylabel
    }
    plot "globe.dat" using ($1 == antipode ? $2 : NaN):(less($5)) with points pt 7 ps 0.4 lc rgb "#d95f02" title "acos", \
         "" using ($1 == antipode ? $2 : NaN):(less($4)) with points pt 7 ps 0.4 lc rgb "#7570b3" title "asin", \
         "" using ($1 == antipode ? $2 : NaN):(less($3)) with points pt 7 ps 0.4 lc rgb "#1b5e9e" title "atan2"
}
unset multiplot
