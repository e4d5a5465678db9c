#include "dakvmpx.h"
#include "x87/x87.hpp"
#define ONE(f, g)                                                                        \
  DAKVM_EXPORT int32_t daks##f##_32f_##g(const float* s, float* d, int32_t len) {         \
    if (len < 1) return -6;                                                              \
    if (!s || !d) return -8;                                                             \
    int32_t status = 0;                                                                  \
    for (int32_t i = 0; i < len; ++i) {                                                  \
      double x = s[i], y;                                                                \
      if (daks##f##_64f_A53(&x, &y, 1)) status = 19;                                     \
      d[i] = dakvm::x87::narrow<float>(y);                                               \
    }                                                                                    \
    return status;                                                                       \
  }
#define TWO(f, g)                                                                        \
  DAKVM_EXPORT int32_t daks##f##_32f_##g(const float* s, float* d, float* e, int32_t len) { \
    if (len < 1) return -6;                                                              \
    if (!s || !d || !e) return -8;                                                       \
    int32_t status = 0;                                                                  \
    for (int32_t i = 0; i < len; ++i) {                                                  \
      double x = s[i], y, z;                                                             \
      if (daks##f##_64f_A53(&x, &y, &z, 1)) status = 19;                                 \
      d[i] = dakvm::x87::narrow<float>(y);                                               \
      e[i] = dakvm::x87::narrow<float>(z);                                               \
    }                                                                                    \
    return status;                                                                       \
  }
ONE(Sin, A11) ONE(Sin, A21) ONE(Sin, A24) ONE(Cos, A11) ONE(Cos, A21) ONE(Cos, A24)
ONE(Tan, A11) ONE(Tan, A21) ONE(Tan, A24) TWO(SinCos, A11) TWO(SinCos, A21) TWO(SinCos, A24)
