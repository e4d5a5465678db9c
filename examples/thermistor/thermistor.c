/* The table of a thermometer: a converter of 12 bits reads a divider of a fixed resistor and an NTC
 * thermistor of 10 kOhm, whose temperature the equation of Steinhart and Hart gives:
 *
 *   1/T = A + B ln R + C (ln R)^3
 *
 * One call takes the logarithms of all 4096 readings, in single precision. Checks itself against
 * temperatures computed in double precision, and the statuses of broken sensors. */
#include <dakvmpx.h>
#include <math.h>
#include <stdio.h>

enum { codes = 4096 };
static const float fixed_ohm = 10000;

/* Temperatures in degrees Celsius for resistances in ohm; returns the status of the logarithms. */
static int32_t temperatures(const float* ohm, float* celsius, int32_t n) {
  const float A = 1.129148e-3F, B = 2.34125e-4F, C = 8.76741e-8F;
  const int32_t status = daksLn_32f_A24(ohm, celsius, n);
  for (int32_t i = 0; i < n; ++i) {
    const float l = celsius[i];
    celsius[i] = 1 / (A + l * (B + C * l * l)) - 273.15F;
  }
  return status;
}

static int known_temperatures(void) {
  static const float ohm[] = {500, 1000, 2000, 5000, 10000, 15000, 20000, 50000, 100000, 200000};
  static const double expected[] = {110.69969917, 87.16814013, 66.15397190, 41.57212484,
                                    24.99966818,  16.00099828, 9.89861061,  -8.13565151,
                                    -20.52287592, -31.97317958};
  enum { count = sizeof ohm / sizeof *ohm };
  float celsius[count];
  if (temperatures(ohm, celsius, count) != DAKVM_STATUS_OK) return 0;
  for (int i = 0; i < count; ++i) {
    printf("%8.0f Ohm  %9.4f C\n", ohm[i], celsius[i]);
    /* Two floats near 300 K, their distance 3e-5 K. */
    if (fabs(celsius[i] - expected[i]) > 1e-4) return 0;
  }
  return 1;
}

int main(void) {
  static float ohm[codes], celsius[codes];
  if (!known_temperatures()) {
    fputs("a temperature is wrong\n", stderr);
    return 1;
  }

  /* Code 0 is a shorted sensor, of no resistance: the pole of the logarithm. */
  for (int code = 0; code < codes; ++code)
    ohm[code] = fixed_ohm * (float)code / (float)(codes - code);
  if (temperatures(ohm, celsius, codes) != DAKVM_STATUS_SINGULARITY) return 1;
  for (int code = 2; code < codes; ++code)
    if (!(celsius[code] < celsius[code - 1])) {
      fprintf(stderr, "the table does not fall at code %d\n", code);
      return 1;
    }
  printf("codes 1 to %d: %.1f C to %.1f C\n", codes - 1, celsius[1], celsius[codes - 1]);

  /* A resistance below zero is no resistance. */
  ohm[7] = -1;
  return temperatures(ohm + 1, celsius, codes - 1) == DAKVM_STATUS_DOMAIN && isnan(celsius[6]) ? 0
                                                                                               : 1;
}
