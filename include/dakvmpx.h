/* libdakvmpx: vectorised elementary functions for 32-bit x86, computed on the x87 unit.
 *
 * Every vector function daks<Func>_<type>_<grade> applies one function element by element:
 *
 *   type   64f: double (IEEE binary64)        grades A50, A53 (about 50 and 53 correct bits)
 *          32f: float  (IEEE binary32)        grades A11, A21, A24
 *
 * What holds for all of them:
 *
 *   Arguments   source array(s), destination array(s), then the number of elements, which every
 *               array has. Source and destination may be one array, or overlap in any way: elements
 *               are done one by one in increasing index order, arguments read before the result is
 *               stored. No alignment is asked for, nothing outside [0, len) is read or written.
 *   Status      negative: an error, nothing was read or written. DAKVM_STATUS_SIZE_ERR is tested
 *               first, then the pointers in argument order. Otherwise every element has its result,
 *               and the status is that of the last exceptional element, or DAKVM_STATUS_OK. Which
 *               elements are exceptional is said with each function; NaN arguments give NaN results
 *               and are not exceptional.
 *   Flags       every exceptional element raises its IEEE flag: domain invalid, singularity
 *               divide-by-zero, overflow and underflow themselves (with inexact). Results raise
 *               what their arithmetic raises. Unmasked exceptions trap.
 *   Rounding    computed in the caller's x87 precision and rounding mode; the figures below are for
 *               64-bit precision and rounding to nearest, the usual setting of Linux. The control
 *               word is left as it was. Errors are in ulp of the result type; the figures are
 *               measured against MPFR, docs/accuracy.md tells how.
 *   Threads     no state, no allocation, no writable data: any number of threads at once, on
 *               separate destination arrays. Flags belong to the calling thread.
 *
 * Where the grades of a type share an algorithm, they return the same bits.
 */
#ifndef DAKVMPX_H
#define DAKVMPX_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef double dakvm64f; /**< element type 64f, IEEE binary64 */
typedef float dakvm32f;  /**< element type 32f, IEEE binary32 */

/** What a vector function returns. */
enum {
  DAKVM_STATUS_OK = 0,            /**< every element was ordinary */
  DAKVM_STATUS_SIZE_ERR = -6,     /**< length below 1; nothing read or written */
  DAKVM_STATUS_NULL_PTR_ERR = -8, /**< an array is a null pointer; nothing read or written */
  DAKVM_STATUS_OVERFLOW = 12,     /**< a result overflowed */
  DAKVM_STATUS_UNDERFLOW = 17,    /**< a result underflowed */
  DAKVM_STATUS_SINGULARITY = 18,  /**< an argument was a pole */
  DAKVM_STATUS_DOMAIN = 19        /**< an argument lay outside the domain */
};

/** The library's description of itself. */
typedef struct LibraryVersion {
  int32_t major;
  int32_t minor;
  int32_t build;
  int32_t revision;
  char target[4];         /**< processor code, zero-padded */
  const char* name;       /**< file name */
  const char* version;    /**< "v<major>.<minor>" */
  const char* build_date; /**< "Mmm dd yyyy" */
} LibraryVersion;

/** The version record: the same constant at every call, not to be changed or freed. */
const LibraryVersion* dakvmGetLibVersion(void);

/** The processor-specific code that is in use: always 0, there is only one. */
int32_t dll_cpu_version(void);

/** \name Division
 * dst[i] = src1[i] / src2[i], in one division of the x87 unit.
 *
 * Domain:   all numbers. A zero divisor under a finite dividend is DAKVM_STATUS_SINGULARITY, 0/0
 *           included: the result is the signed infinity, or NaN. Quotients that overflow or underflow
 *           are not exceptional; their flags are raised.
 * Aliasing: the 64f functions look for the zero divisor after the quotient is stored. When dst is
 *           src2, a quotient of zero or NaN is reported in place of a zero divisor.
 * Accuracy: 64f 0.50024 ulp, 99.976 % correctly rounded; 32f 0.50000 ulp, none of 1004002
 *           misrounded.
 * @{ */
int32_t daksDiv_64f_A50(const double* src1, const double* src2, double* dst, int32_t len);
int32_t daksDiv_64f_A53(const double* src1, const double* src2, double* dst, int32_t len);
int32_t daksDiv_32f_A11(const float* src1, const float* src2, float* dst, int32_t len);
int32_t daksDiv_32f_A21(const float* src1, const float* src2, float* dst, int32_t len);
int32_t daksDiv_32f_A24(const float* src1, const float* src2, float* dst, int32_t len);
/** @} */

/** \name Reciprocal
 * dst[i] = 1 / src[i], in one division of the x87 unit.
 *
 * Domain:   all numbers. Zero is DAKVM_STATUS_SINGULARITY, the result the signed infinity. The
 *           reciprocal of a subnormal number may overflow; that is not exceptional.
 * Accuracy: 64f 0.50024 ulp, 99.926 % correctly rounded; 32f 0.50000 ulp, none of 1004002
 *           misrounded.
 * @{ */
int32_t daksInv_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksInv_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksInv_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksInv_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksInv_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \name Square root
 * dst[i] = sqrt(src[i]): a reciprocal root from a table, three coupled Newton steps, and a
 * correction by the exact residual.
 *
 * Domain:   [-0, +Inf]. Numbers below zero and -Inf are DAKVM_STATUS_DOMAIN, the result NaN.
 *           Zeros keep their sign.
 * Accuracy: 64f 0.50024 ulp, 99.923 % correctly rounded; 32f 0.50000 ulp, none of 1004002
 *           misrounded.
 * Source:   P. Markstein, IBM J. Res. Dev. 34 (1990) 111-119, for the coupled Newton steps.
 * @{ */
int32_t daksSqrt_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksSqrt_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksSqrt_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksSqrt_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksSqrt_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \name Inverse square root
 * dst[i] = 1 / sqrt(src[i]): a short value from a table, corrected in one step by a series in its
 * exact residual.
 *
 * Domain:   [-0, +Inf]. Zeros are DAKVM_STATUS_SINGULARITY, the result the infinity of their sign.
 *           Numbers below zero and -Inf are DAKVM_STATUS_DOMAIN, the result NaN.
 * Accuracy: 64f 0.50131 ulp, 99.945 % correctly rounded; 32f 0.50000 ulp, none of 1004002
 *           misrounded.
 * @{ */
int32_t daksInvSqrt_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksInvSqrt_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksInvSqrt_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksInvSqrt_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksInvSqrt_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \name Exponential
 * dst[i] = e^src[i]: reduction by ln2/64, a table of 2^(j/64), a polynomial.
 *
 * Domain:   all numbers. Above the logarithm of the largest number (709.78..., 32f 88.72...)
 *           DAKVM_STATUS_OVERFLOW, the result +Inf; below that of half the least subnormal number
 *           (-745.13..., 32f -103.97...) DAKVM_STATUS_UNDERFLOW, the result +0. Infinite arguments
 *           and subnormal results are not exceptional.
 * Accuracy: 64f A53 0.50267 ulp, 99.981 % correctly rounded; 64f A50 1.00856 ulp, 87.660 %
 *           correctly rounded; 32f 0.50000 ulp, none of 1004002 misrounded.
 * Source:   P. T. P. Tang, ACM TOMS 15 (1989) 144-157.
 * @{ */
int32_t daksExp_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksExp_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksExp_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksExp_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksExp_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \name Natural logarithm
 * dst[i] = ln(src[i]). A50: the mantissa in [sqrt(1/2), sqrt(2)), a series for artanh. Others: a
 * table of 65 short reciprocals and their logarithms, a polynomial; near 1 the polynomial alone.
 *
 * Domain:   [-0, +Inf]. Zeros are DAKVM_STATUS_SINGULARITY, the result -Inf. Numbers below zero,
 *           subnormal ones included, and -Inf are DAKVM_STATUS_DOMAIN, the result NaN.
 * Accuracy: 64f A53 0.50091 ulp, 99.974 % correctly rounded; 64f A50 1.13692 ulp, 80.740 %
 *           correctly rounded; 32f 0.50000 ulp, none of 2008004 misrounded.
 * Source:   P. T. P. Tang, ACM TOMS 16 (1990) 378-400, for the table.
 * @{ */
int32_t daksLn_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksLn_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksLn_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksLn_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksLn_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \name Decimal logarithm
 * dst[i] = log10(src[i]): as the natural logarithm, with log10(2) for ln 2; powers of ten give
 * whole numbers.
 *
 * Domain:   as the natural logarithm.
 * Accuracy: 64f A53 0.50437 ulp, 99.951 % correctly rounded; 64f A50 0.93268 ulp, 89.555 %
 *           correctly rounded; 32f 0.50000 ulp, none of 2008004 misrounded.
 * Source:   P. T. P. Tang, ACM TOMS 16 (1990) 378-400, for the table.
 * @{ */
int32_t daksLog10_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksLog10_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksLog10_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksLog10_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksLog10_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \name Power
 * dst[i] = src1[i] ^ src2[i]. 64f: log2 in two parts through three table reductions, an exactly split
 * product, a table of 2^(j/128) and a polynomial. 32f: the same identity in extended precision.
 *
 * Domain:   x > 0 with any y, x < 0 with integer y, x = 0 with y > 0. DAKVM_STATUS_DOMAIN is zero to
 *           a negative power, -Inf included (the result +Inf, or -Inf for -0 to an odd power), and a
 *           finite negative number to a finite power that is no integer (NaN). Results that overflow
 *           or underflow are not exceptional; their flags are raised.
 * Special:  1 to any power, -1 to an infinite or NaN power, and any number to the power 0 give 1, NaN
 *           included. From 2^53 (32f 2^24) on all numbers are even integers.
 * Accuracy: 64f 0.54748 ulp, 99.924 % correctly rounded; 32f 0.50000 ulp, none of 1004002
 *           misrounded.
 * Source:   P. T. P. Tang, ACM TOMS 16 (1990) 378-400; T. J. Dekker, Numer. Math. 18 (1971) 224-242.
 * @{ */
int32_t daksPow_64f_A50(const double* src1, const double* src2, double* dst, int32_t len);
int32_t daksPow_64f_A53(const double* src1, const double* src2, double* dst, int32_t len);
int32_t daksPow_32f_A11(const float* src1, const float* src2, float* dst, int32_t len);
int32_t daksPow_32f_A21(const float* src1, const float* src2, float* dst, int32_t len);
int32_t daksPow_32f_A24(const float* src1, const float* src2, float* dst, int32_t len);
/** @} */

/** \name Power with one exponent
 * dst[i] = src[i] ^ exponent: bit for bit the results, statuses and flags of the function above with
 * the exponent repeated. A notification of an exceptional element gets the source array twice.
 * @{ */
int32_t daksPowx_64f_A50(const double* src, double exponent, double* dst, int32_t len);
int32_t daksPowx_64f_A53(const double* src, double exponent, double* dst, int32_t len);
int32_t daksPowx_32f_A11(const float* src, float exponent, float* dst, int32_t len);
int32_t daksPowx_32f_A21(const float* src, float exponent, float* dst, int32_t len);
int32_t daksPowx_32f_A24(const float* src, float exponent, float* dst, int32_t len);
/** @} */

/** Square root of one double, by a polynomial for the reciprocal root and one Newton step. The
 * result is returned without a last rounding, in 64 significant bits. Negative numbers and -Inf
 * give the NaN 0x7FF8A5A55A5A5A5A, -0 itself. No status, no notification. Accuracy after a store
 * to double: 0.703 ulp. */
long double gaxdsqrt_scalar(double x);

/** Square root of one float, by a polynomial. The result is returned without a last rounding.
 * Negative numbers and -Inf give the NaN 0xFFC00000, -0 itself. No status, no notification.
 * Accuracy after a store to float: 0.586 ulp, of subnormal numbers 1.009 ulp. */
long double gaxssqrt_scalar(float x);

/** |x|, by clearing the sign bit: payloads of NaN are kept and no flag is raised. On i386 the result
 * travels in an x87 register, where a signalling NaN arrives intact; storing it from there is the
 * caller's operation, and raises invalid. */
float gax_sabs_scalar(float x);
double gax_dabs_scalar(double x);

/** x, read from memory at the precision of its type. */
double STRICT_DOUBLE(double x);
float STRICT_FLOAT(float x);

/** Notification of one exceptional element, as the vector functions make it: raises the IEEE flag of
 * `code` (19 invalid, 18 divide-by-zero, 12 overflow and inexact, 17 underflow and inexact; others
 * none). The arrays are not looked at and may be null; `name` is a zero-terminated string, of which
 * 64 characters count. */
void gaxdError(int32_t code, int32_t index, const double* src1, const double* src2, double* dst1,
               double* dst2, const char* name);
void gaxsError(int32_t code, int32_t index, const float* src1, const float* src2, float* dst1,
               float* dst2, const char* name);

#ifdef __cplusplus
}
#endif

#endif /* DAKVMPX_H */
