# The log of a packed-bed reactor, with the faults that logs have:
#   LC_ALL=C awk -f make_reactor_log.awk > reactor_log.csv
#
# Columns: time; sensor (quoted, with a comma in it); temperature in kelvin; the exponent -E/(RT) of
# the reaction rate; the variance of the noise above its baseline; moles converted and moles fed.
# Faults: exponents of a sensor that wraps around (e^x overflows or underflows), variances below
# zero, intervals without feed (division by zero), blank cells, nan and text.
#
# Numbers come from + - * / and int() alone, so that every awk prints the same file.

# A linear congruential generator in [0, 1); its products stay below 2^53.
function uniform() {
  seed = (seed * 16807) % 2147483647
  return seed / 2147483647
}

BEGIN {
  seed = 20240501
  split("bed, inlet|bed, middle|bed, outlet", sensor, "|")
  print "time,sensor,kelvin,minus_e_over_rt,noise_variance,converted,fed"
  for (row = 0; row < 12000; ++row) {
    minute = int(row / 3)
    day = minute / 1440
    phase = day - int(day)
    wave = 4 * phase * (1 - phase)  # a day's warming: a parabola in place of a sine
    kelvin = 560 + 35 * wave + 12 * (row % 3) + 4 * (uniform() - 0.5)
    exponent = sprintf("%.6f", -52400 / (8.314462618 * kelvin))
    variance = sprintf("%.5f", 0.02 * uniform() + 0.005 * (uniform() - 0.6))
    fed = sprintf("%.4f", 1.5 + uniform())
    converted = sprintf("%.4f", fed * (0.3 + 0.5 * wave * uniform()))

    if (row % 1700 == 1699) exponent = "812.5"
    if (row % 2900 == 2899) exponent = "-32768"
    if (row % 1100 == 1050) exponent = ""
    if (row % 1300 == 777) exponent = "nan"
    if (row % 2500 == 2222) exponent = "ERR"
    if (row % 480 >= 477) { fed = "0"; converted = row % 960 >= 957 ? "0" : converted }
    if (row % 1900 == 1234) converted = ""

    printf "2024-05-%02dT%02d:%02d,\"%s\",%.2f,%s,%s,%s,%s\n", 1 + int(day), int(minute / 60) % 24,
           minute % 60, sensor[row % 3 + 1], kelvin, exponent, variance, converted, fed
  }
}
