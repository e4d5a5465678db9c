# gnuplot -c plot.gnuplot FAMILY TABLE SVG: the table of `dakvm-accuracy plot FAMILY` as a picture.
family = ARG1
table = ARG2
set terminal svg size 960,400 font "sans-serif,12" background "#ffffff"
set output ARG3
set multiplot layout 1,2 title family.": largest error around each argument, in ulp" font ",14"
set xlabel "argument"
set xtics nomirror
set ytics nomirror
set border 3 lc rgb "#888888"
set grid ytics lc rgb "#dddddd" lt 1
set key top right opaque
set yrange [0:*]
if (system("head -1 ".table) eq "# logarithmic") { set logscale x; set format x "10^{%L}" }
stats table using 3 name "low" nooutput
stats table using 2 name "high" nooutput
set arrow 1 from graph 0, first 0.5 to graph 1, first 0.5 nohead dt 2 lc rgb "#444444" front
differ = abs(low_mean - high_mean) > 0.001
set title "64f (double)"
top = (low_max > high_max ? low_max : high_max)
set yrange [0:(top > 0.6 ? top * 1.25 : 0.7)]
if (differ) {
  plot table using 1:3 with points pt 7 ps 0.3 lc rgb "#e08214" title "A50", \
       table using 1:2 with points pt 7 ps 0.3 lc rgb "#2166ac" title "A53"
} else {
  plot table using 1:2 with points pt 7 ps 0.3 lc rgb "#2166ac" title "A50, A53"
}
set title "32f (float)"
set yrange [0:0.7]
plot table using 1:4 with points pt 7 ps 0.3 lc rgb "#1b7837" title "A11, A21, A24"
unset multiplot
