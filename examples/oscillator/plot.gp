# gnuplot, run beside oscillator.dat: writes oscillator.png.
set terminal pngcairo size 1000,600 font "sans,12"
set output "oscillator.png"
set title "Error of a sine as its argument grows"
set logscale xy
set format x "10^{%L}"
set format y "10^{%L}"
set xlabel "argument, radians"
set ylabel "error, ulp"
set yrange [1e-4:1e10]
set grid
set key outside top center horizontal
plot "oscillator.dat" using 1:($3 < 1e10 ? $3 : 1e10) with points pt 7 ps 0.5 lc rgb "#d95f02" \
       title "argument reduced by the float nearest to 2 pi", \
     "oscillator.dat" using 1:2 with points pt 7 ps 0.5 lc rgb "#1b5e9e" title "sin of this library, float4"
