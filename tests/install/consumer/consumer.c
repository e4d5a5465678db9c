/* A program of somebody else: one call, its results and its status. */
#include <dakvmpx.h>
#include <math.h>
#include <stdio.h>

int main(void) {
  const double x[3] = {0.0, 1000.0, 1.0};
  double y[3] = {-1.0, -1.0, -1.0};
  const int32_t status = daksExp_64f_A53(x, y, 3);
  if (status != DAKVM_STATUS_OVERFLOW || y[0] != 1.0 || y[1] != HUGE_VAL ||
      y[2] != 0x1.5bf0a8b145769p+1) {
    printf("status %d, results %a %a %a\n", (int)status, y[0], y[1], y[2]);
    return 1;
  }
  return 0;
}
