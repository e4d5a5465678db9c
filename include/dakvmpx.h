/** \defgroup dakvmpx libdakvmpx: vectorised elementary functions
 * For 32-bit x86, computed on the x87 unit.
 *
 * Every vector function daks<Func>_<type>_<grade> applies one function element by element:
 *
 *     type   64f: double (IEEE binary64)        grades A50, A53 (about 50 and 53 correct bits)
 *            32f: float  (IEEE binary32)        grades A11, A21, A24
 *
 * What holds for all of them:
 *
 * Arguments: source array(s), destination array(s), then the number of elements, which every array
 *           has. Source and destination may be one array, or overlap in any way: elements are done
 *           one by one in increasing index order, arguments read before the result is stored. No
 *           alignment is asked for, nothing outside [0, len) is read or written.
 * Status:   negative: an error, nothing was read or written. DAKVM_STATUS_SIZE_ERR is tested first,
 *           then the pointers in argument order. Otherwise every element has its result, and the
 *           status is that of the last exceptional element, or DAKVM_STATUS_OK. Which elements are
 *           exceptional is said with each function; NaN arguments give NaN results and are not
 *           exceptional.
 * Flags:    every exceptional element raises its IEEE flag: domain invalid, singularity
 *           divide-by-zero, overflow and underflow themselves (with inexact). Results raise what
 *           their arithmetic raises. Unmasked exceptions trap.
 * Rounding: computed in the caller's x87 precision and rounding mode; the figures below are for
 *           64-bit precision and rounding to nearest, the usual setting of Linux. The control word
 *           is left as it was. Errors are in ulp of the result type; the figures are measured
 *           against MPFR, docs/accuracy.md tells how.
 * Threads:  no state, no allocation, no writable data: any number of threads at once, on separate
 *           destination arrays. Flags belong to the calling thread.
 *
 * Where the grades of a type share an algorithm, they return the same bits.
 */
#ifndef DAKVMPX_H
#define DAKVMPX_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** \addtogroup dakvmpx
 * @{ */

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

/** @} */

/** \defgroup daksDiv Division
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

/** \defgroup daksInv Reciprocal
 * dst[i] = 1 / src[i], in one division of the x87 unit.
 *
 * Domain:   all numbers. Zero is DAKVM_STATUS_SINGULARITY, the result the signed infinity. The
 *           reciprocal of a subnormal number may overflow; that is not exceptional.
 * Accuracy: 64f 0.50024 ulp, 99.926 % correctly rounded; 32f correctly rounded for every argument.
 * @{ */
int32_t daksInv_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksInv_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksInv_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksInv_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksInv_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksSqrt Square root
 * dst[i] = sqrt(src[i]): a reciprocal root from a table, three coupled Newton steps, and a
 * correction by the exact residual.
 *
 * Domain:   [-0, +Inf]. Numbers below zero and -Inf are DAKVM_STATUS_DOMAIN, the result NaN.
 *           Zeros keep their sign.
 * Accuracy: 64f 0.50024 ulp, 99.923 % correctly rounded; 32f correctly rounded for every argument.
 * Source:   P. Markstein, IBM J. Res. Dev. 34 (1990) 111-119, for the coupled Newton steps.
 * @{ */
int32_t daksSqrt_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksSqrt_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksSqrt_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksSqrt_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksSqrt_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksInvSqrt Inverse square root
 * dst[i] = 1 / sqrt(src[i]): a short value from a table, corrected in one step by a series in its
 * exact residual.
 *
 * Domain:   [-0, +Inf]. Zeros are DAKVM_STATUS_SINGULARITY, the result the infinity of their sign.
 *           Numbers below zero and -Inf are DAKVM_STATUS_DOMAIN, the result NaN.
 * Accuracy: 64f 0.50134 ulp, 99.945 % correctly rounded; 32f correctly rounded for every argument.
 * @{ */
int32_t daksInvSqrt_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksInvSqrt_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksInvSqrt_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksInvSqrt_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksInvSqrt_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksCbrt Cube root
 * dst[i] = cbrt(src[i]): a table of 32 short reciprocal cube roots, the binomial series of the
 * residual. Odd bit for bit in the rounding mode to nearest.
 *
 * Domain:   all numbers; none is exceptional. Zeros, infinities and NaN are their own results.
 * Accuracy: 64f 0.50042 ulp, 99.976 % correctly rounded; 32f correctly rounded for every argument.
 * @{ */
int32_t daksCbrt_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksCbrt_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksCbrt_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksCbrt_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksCbrt_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksInvCbrt Inverse cube root
 * dst[i] = 1 / cbrt(src[i]): a table of 97 short reciprocal cube roots and a polynomial of the
 * residual. Odd bit for bit in the rounding mode to nearest.
 *
 * Domain:   all numbers. +0 and -0 are DAKVM_STATUS_SINGULARITY, the result +Inf or -Inf; infinite
 *           arguments give zeros of their sign.
 * Accuracy: 64f 0.50786 ulp, 99.870 % correctly rounded; 32f correctly rounded for every argument.
 * @{ */
int32_t daksInvCbrt_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksInvCbrt_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksInvCbrt_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksInvCbrt_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksInvCbrt_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksExp Exponential
 * dst[i] = e^src[i]: reduction by ln2/64, a table of 2^(j/64), a polynomial.
 *
 * Domain:   all numbers. Above the logarithm of the largest number (709.78..., 32f 88.72...)
 *           DAKVM_STATUS_OVERFLOW, the result +Inf; below that of half the least subnormal number
 *           (-745.13..., 32f -103.97...) DAKVM_STATUS_UNDERFLOW, the result +0. Infinite arguments
 *           and subnormal results are not exceptional.
 * Accuracy: 64f A53 0.50272 ulp, 99.981 % correctly rounded; 64f A50 1.00872 ulp, 87.660 %
 *           correctly rounded; 32f correctly rounded for every argument.
 * Source:   P. T. P. Tang, ACM TOMS 15 (1989) 144-157.
 * @{ */
int32_t daksExp_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksExp_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksExp_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksExp_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksExp_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksLn Natural logarithm
 * dst[i] = ln(src[i]). A50: the mantissa in [sqrt(1/2), sqrt(2)), a series for artanh. Others: a
 * table of 65 short reciprocals and their logarithms, a polynomial; near 1 the polynomial alone.
 *
 * Domain:   [-0, +Inf]. Zeros are DAKVM_STATUS_SINGULARITY, the result -Inf. Numbers below zero,
 *           subnormal ones included, and -Inf are DAKVM_STATUS_DOMAIN, the result NaN.
 * Accuracy: 64f A53 0.50091 ulp, 99.974 % correctly rounded; 64f A50 1.15090 ulp, 80.740 %
 *           correctly rounded; 32f correctly rounded for every argument.
 * Source:   P. T. P. Tang, ACM TOMS 16 (1990) 378-400, for the table.
 * @{ */
int32_t daksLn_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksLn_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksLn_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksLn_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksLn_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksLog10 Decimal logarithm
 * dst[i] = log10(src[i]): as the natural logarithm, with log10(2) for ln 2; powers of ten give
 * whole numbers.
 *
 * Domain:   as the natural logarithm.
 * Accuracy: 64f A53 0.50445 ulp, 99.951 % correctly rounded; 64f A50 0.93268 ulp, 89.555 %
 *           correctly rounded; 32f correctly rounded for every argument.
 * Source:   P. T. P. Tang, ACM TOMS 16 (1990) 378-400, for the table.
 * @{ */
int32_t daksLog10_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksLog10_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksLog10_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksLog10_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksLog10_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksPow Power
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

/** \defgroup daksPowx Power with one exponent
 * dst[i] = src[i] ^ exponent: bit for bit the results, statuses and flags of the function above with
 * the exponent repeated. A notification of an exceptional element gets the source array twice.
 * @{ */
int32_t daksPowx_64f_A50(const double* src, double exponent, double* dst, int32_t len);
int32_t daksPowx_64f_A53(const double* src, double exponent, double* dst, int32_t len);
int32_t daksPowx_32f_A11(const float* src, float exponent, float* dst, int32_t len);
int32_t daksPowx_32f_A21(const float* src, float exponent, float* dst, int32_t len);
int32_t daksPowx_32f_A24(const float* src, float exponent, float* dst, int32_t len);
/** @} */

/** \defgroup daksSinh Hyperbolic sine
 * dst[i] = sinh(src[i]): e^|x| and e^-|x| from one reduction by ln2/64 and one table of 2^(j/64),
 * combined with the even and odd part of a polynomial; near zero a series.
 *
 * Domain:   all numbers. From |x| = 710.4758... (32f 89.41599) on DAKVM_STATUS_OVERFLOW, the result
 *           the infinity of the argument's sign. Infinite arguments are not exceptional. Zeros keep
 *           their sign, and sinh(-x) = -sinh(x) bit for bit.
 * Accuracy: 64f A53 0.50281 ulp, 99.967 % correctly rounded; 64f A50 1.00838 ulp, 91.782 %
 *           correctly rounded; 32f 0.50010 ulp, 99.9997330 % correctly rounded.
 * Source:   P. T. P. Tang, ACM TOMS 15 (1989) 144-157, for the exponential.
 * @{ */
int32_t daksSinh_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksSinh_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksSinh_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksSinh_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksSinh_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksCosh Hyperbolic cosine
 * dst[i] = cosh(src[i]), computed as the hyperbolic sine.
 *
 * Domain:   all numbers. From |x| = 710.4758... (32f 89.41599) on DAKVM_STATUS_OVERFLOW, the result
 *           +Inf. Infinite arguments are not exceptional. cosh(-x) = cosh(x) bit for bit.
 * Accuracy: 64f A53 0.50392 ulp, 99.936 % correctly rounded; 64f A50 1.04904 ulp, 81.938 %
 *           correctly rounded; 32f 0.50007 ulp, 99.9997911 % correctly rounded.
 * Source:   as the hyperbolic sine.
 * @{ */
int32_t daksCosh_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksCosh_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksCosh_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksCosh_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksCosh_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksTanh Hyperbolic tangent
 * dst[i] = tanh(src[i]): 29 polynomials on quarters of a binade, their leading terms in two parts;
 * below 1/8 an odd polynomial. No exponential, no division.
 *
 * Domain:   all numbers; nothing is exceptional. From |x| = 19.0615... on the result is 1 with the
 *           argument's sign, and inexact is raised. tanh(-x) = -tanh(x) bit for bit.
 * Accuracy: 64f 0.50073 ulp, 99.979 % correctly rounded; 32f 0.50129 ulp, 99.9996829 % correctly
 *           rounded.
 * @{ */
int32_t daksTanh_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksTanh_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksTanh_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksTanh_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksTanh_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksErf Error function
 * dst[i] = erf(src[i]), computed on |x|, with the sign at the end: 22 intervals up to 5.92, in each of
 * them a polynomial of degree 14 with its first three coefficients in two parts; below 1/8 an odd
 * polynomial, below 2^-40 its first term.
 *
 * Domain:   all numbers. No element is exceptional; infinite arguments give 1 or -1 without a flag.
 * Accuracy: 64f 0.50890 ulp, 99.897 % correctly rounded; 32f correctly rounded for every argument.
 * Source:   rows fitted by Remez's exchange, C. R. Acad. Sci. Paris 199 (1934) 337-340.
 * @{ */
int32_t daksErf_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksErf_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksErf_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksErf_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksErf_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksErfc Complementary error function
 * dst[i] = 1 - erf(src[i]): for |x| a polynomial of degree 15 in 20 intervals, with its first six
 * coefficients in two parts, from 1.83 on times e^(-x^2) from a table of 2^(j/64); for negative x its
 * difference from 2.
 *
 * Domain:   all numbers. From 27.226 (32f 10.054) on DAKVM_STATUS_UNDERFLOW, the result +0. Subnormal
 *           results and infinite arguments are not exceptional.
 * Accuracy: 64f 0.50059 ulp, 99.984 % correctly rounded; 32f correctly rounded for every argument.
 * Source:   as above; the exponential: P. T. P. Tang, ACM TOMS 15 (1989) 144-157.
 * @{ */
int32_t daksErfc_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksErfc_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksErfc_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksErfc_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksErfc_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksAtan Arc tangent
 * dst[i] = atan(src[i]), in [-pi/2, pi/2]. 64f: a table of angles at two breakpoints in each binade,
 * the reduced argument in two doubles, a polynomial. 32f: four intervals and a short polynomial, in
 * extended precision.
 *
 * Domain:   all numbers; no argument is exceptional. Infinities give pi/2 with their sign, zeros
 *           themselves. atan(-x) is -atan(x) bit for bit. A NaN comes back quiet, from the 32f
 *           functions with its sign cleared.
 * Accuracy: 64f 0.50248 ulp, 99.960 % correctly rounded; 32f 0.61675 ulp, 99.883 % correctly
 *           rounded.
 * Source:   T. J. Dekker, Numer. Math. 18 (1971) 224-242, for the quotient of two doubles.
 * @{ */
int32_t daksAtan_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksAtan_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksAtan_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksAtan_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksAtan_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksAtan2 Arc tangent of two arguments
 * dst[i] is the angle of the point with the ordinate a = src1[i] and the abscissa b = src2[i], in
 * [-pi, pi]: the table of the arc tangent, the reduced argument formed without the quotient.
 *
 * Domain:   all numbers; no pair is exceptional. The sign is that of a, also on zeros. With a = 0 the
 *           angle is 0 where b has no sign bit, +0 included, and pi where it has one. Infinities count
 *           as equal: two of them give pi/4 or 3 pi/4. A NaN gives a + b.
 * Accuracy: 64f 0.50485 ulp, 99.978 % correctly rounded; 32f 0.50000 ulp, none of 2008004
 *           misrounded.
 * @{ */
int32_t daksAtan2_64f_A50(const double* src1, const double* src2, double* dst, int32_t len);
int32_t daksAtan2_64f_A53(const double* src1, const double* src2, double* dst, int32_t len);
int32_t daksAtan2_32f_A11(const float* src1, const float* src2, float* dst, int32_t len);
int32_t daksAtan2_32f_A21(const float* src1, const float* src2, float* dst, int32_t len);
int32_t daksAtan2_32f_A24(const float* src1, const float* src2, float* dst, int32_t len);
/** @} */

/** \defgroup daksAsin Arc sine
 * dst[i] = arcsin(src[i]), in radians, in [-pi/2, pi/2]: below 1/2 a polynomial; above, pi/2 less
 * twice the arc sine of sqrt((1 - |x|)/2), the root from a table of 513 short reciprocal roots. Odd
 * bit for bit, in every rounding mode.
 *
 * Domain:   [-1, 1]. Other numbers, infinities included, are DAKVM_STATUS_DOMAIN, the result NaN.
 *           A NaN is not exceptional. A subnormal number is its own result; in 64f it raises
 *           underflow.
 * Accuracy: 64f 0.50116 ulp, 99.982 % correctly rounded; 32f correctly rounded for every argument.
 * @{ */
int32_t daksAsin_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksAsin_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksAsin_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksAsin_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksAsin_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksAcos Arc cosine
 * dst[i] = arccos(src[i]), in radians, in [0, pi]: by the arc sine of the family above.
 *
 * Domain:   [-1, 1], as for the arc sine. At 1 the result is +0; at other arguments inexact is
 *           raised.
 * Accuracy: 64f 0.50099 ulp, 99.977 % correctly rounded; 32f correctly rounded for every argument.
 * @{ */
int32_t daksAcos_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksAcos_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksAcos_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksAcos_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksAcos_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksAsinh Inverse hyperbolic sine
 * dst[i] = arsinh(src[i]). From 1/8 on the logarithm of |x| + sqrt(x^2 + 1) in two parts, by a table
 * of 513 short reciprocal roots and one of 65 short reciprocals; from 2^28 on that of 2 |x|; below
 * 1/8 a polynomial. 32f: the same algorithm, rounded once. Odd bit for bit, in every rounding mode.
 *
 * Domain:   all numbers; no argument is exceptional. Infinities give themselves.
 * Accuracy: 64f 0.50430 ulp, 99.947 % correctly rounded; 32f correctly rounded for every argument.
 * Source:   P. T. P. Tang, ACM TOMS 16 (1990) 378-400, for the table of the logarithm; T. J. Dekker,
 *           Numer. Math. 18 (1971) 224-242.
 * @{ */
int32_t daksAsinh_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksAsinh_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksAsinh_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksAsinh_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksAsinh_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksAcosh Inverse hyperbolic cosine
 * dst[i] = arcosh(src[i]). From 1.0625 on the logarithm of x + sqrt(x^2 - 1), from 2^28 on that of
 * 2 x, as for the sine; below 1.0625 the root of 2 (x - 1) and a polynomial. 32f: the same algorithm,
 * rounded once.
 *
 * Domain:   [1, +Inf]; the result at 1 is +0. Smaller numbers, -Inf included, are
 *           DAKVM_STATUS_DOMAIN, the result NaN.
 * Accuracy: 64f 0.50080 ulp, 99.973 % correctly rounded; 32f correctly rounded for every argument.
 * Source:   as for the sine.
 * @{ */
int32_t daksAcosh_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksAcosh_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksAcosh_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksAcosh_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksAcosh_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksAtanh Inverse hyperbolic tangent
 * dst[i] = artanh(src[i]). 64f: from 1/16 on the logarithm of (1 + |x|)/(1 - |x|), formed in two
 * parts, by a table of 65 short reciprocals; below, a polynomial. 32f: the logarithm of
 * 2/(1 - |x|) - 1 by 256 cubics. Odd bit for bit, in every rounding mode.
 *
 * Domain:   [-1, 1]. -1 and 1 are DAKVM_STATUS_SINGULARITY, the result -Inf or +Inf. Other numbers,
 *           infinities included, are DAKVM_STATUS_DOMAIN, the result NaN (32f: 0x7FFFFFFF with the
 *           argument's sign). A NaN comes back quiet; in 32f with all its bits.
 * Accuracy: 64f 0.50158 ulp, 99.970 % correctly rounded; 32f 0.73453 ulp, 99.959 % correctly
 *           rounded.
 * Source:   P. T. P. Tang, ACM TOMS 16 (1990) 378-400, for the table of the logarithm.
 * @{ */
int32_t daksAtanh_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksAtanh_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksAtanh_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksAtanh_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksAtanh_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksSin Sine
 * dst[i] = sin(src[i]), src in radians. 64f: reduction by pi/32, from 2^17 on by pi/2 first; a table of
 * 64 sines and cosines, Taylor polynomials. 32f: reduction by pi, a polynomial; above 1000000 the
 * double algorithm in 53-bit precision.
 *
 * Domain:   finite numbers. Infinities are DAKVM_STATUS_DOMAIN, the result NaN. sin(-x) = -sin(x),
 *           zeros keep their sign.
 * Accuracy: 64f 0.52850 ulp, 99.934 % correctly rounded; 32f 0.80104 ulp, 98.988 % correctly
 *           rounded.
 * Source:   P. T. P. Tang, 10th IEEE Symp. Computer Arithmetic (1991) 232-236, for reduction to the
 *           points of a table; M. H. Payne and R. N. Hanek, ACM SIGNUM 18 (1983) 19-24.
 * @{ */
int32_t daksSin_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksSin_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksSin_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksSin_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksSin_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksCos Cosine
 * dst[i] = cos(src[i]), src in radians: as the sine, 32f from 500000 on with the double algorithm.
 *
 * Domain:   finite numbers. Infinities are DAKVM_STATUS_DOMAIN, the result NaN. cos(-x) = cos(x).
 * Accuracy: 64f 0.60110 ulp, 99.931 % correctly rounded; 32f 0.80106 ulp, 98.172 % correctly
 *           rounded.
 * Source:   as the sine.
 * @{ */
int32_t daksCos_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksCos_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksCos_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksCos_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksCos_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup daksSinCos Sine and cosine
 * dst1[i] = sin(src[i]), dst2[i] = cos(src[i]): one reduction for both. 64f: bit for bit the results of
 * the two functions above.
 *
 * Domain:   finite numbers. Infinities are DAKVM_STATUS_DOMAIN, both results NaN.
 * Accuracy: 64f 0.60110 ulp, 99.921 % correctly rounded; 32f 0.56299 ulp, 99.875 % correctly
 *           rounded.
 * Source:   as the sine.
 * @{ */
int32_t daksSinCos_64f_A50(const double* src, double* dst1, double* dst2, int32_t len);
int32_t daksSinCos_64f_A53(const double* src, double* dst1, double* dst2, int32_t len);
int32_t daksSinCos_32f_A11(const float* src, float* dst1, float* dst2, int32_t len);
int32_t daksSinCos_32f_A21(const float* src, float* dst1, float* dst2, int32_t len);
int32_t daksSinCos_32f_A24(const float* src, float* dst1, float* dst2, int32_t len);
/** @} */

/** \defgroup daksTan Tangent
 * dst[i] = tan(src[i]), src in radians. 64f: reduction by pi/32, from 12800 on by pi/2 first; a table of
 * 32 expansions, those around a pole of what is left of tan(x) without it; the pole is one division.
 * 32f: reduction by pi/2, a quotient; above 128000 the double algorithm in 53-bit precision.
 *
 * Domain:   finite numbers. Infinities are DAKVM_STATUS_DOMAIN, the result NaN. No number is a pole:
 *           next to one results are large and finite. Zeros keep their sign.
 * Accuracy: 64f 0.52541 ulp, 99.903 % correctly rounded; 32f 0.93559 ulp, 98.537 % correctly
 *           rounded.
 * Source:   T. J. Dekker, Numer. Math. 18 (1971) 224-242, for sums in two parts; M. H. Payne and
 *           R. N. Hanek as the sine.
 * @{ */
int32_t daksTan_64f_A50(const double* src, double* dst, int32_t len);
int32_t daksTan_64f_A53(const double* src, double* dst, int32_t len);
int32_t daksTan_32f_A11(const float* src, float* dst, int32_t len);
int32_t daksTan_32f_A21(const float* src, float* dst, int32_t len);
int32_t daksTan_32f_A24(const float* src, float* dst, int32_t len);
/** @} */

/** \defgroup dakvmpx_scalar Scalar entries
 * Functions of one element, the reduction that they share, and the notification of exceptional
 * elements.
 * @{ */

/** An argument less a multiple of pi/2, as the unevaluated sum of two numbers: hi has the leading
 * 53 bits, lo what follows them. */
typedef struct ReducedArg {
  double hi;
  double lo;
} ReducedArg;

/** Reduction by pi/2 of the double with the words `low` and `high`, finite and of magnitude at least
 * pi/4: writes r = x - Q pi/2, |r| <= pi/4, and returns Q modulo 4. Q is exact for every argument;
 * hi + lo is r to a relative 2^-78, in 53-bit precision 2^-75. An argument of magnitude just below an
 * odd multiple of pi/4 may go either way. Infinities, NaN and smaller numbers give no meaningful
 * result, and no report. Source: M. H. Payne and R. N. Hanek, ACM SIGNUM 18 (1983) 19-24. */
int32_t gaxreduce_pio2d(uint32_t low, uint32_t high, ReducedArg* reduced);

/** \name Scalar trigonometric entries
 * Sine, cosine, both, or tangent of element i: src[i] to dst[i], in 53-bit precision and rounding
 * to nearest whatever the caller's control word, which is left as it was. Arguments of floats are
 * computed as doubles. An infinity gives NaN, is notified by gaxdError or gaxsError with the index,
 * the arrays and a name ("dSin_A11"; of the forms without a suffix the caller's), and writes
 * DAKVM_STATUS_DOMAIN to *status; *status is written in no other case. The forms differ in the name
 * alone.
 * Accuracy: double 0.5165 ulp, tangent 0.539 ulp; float none of 10^6 misrounded.
 * @{ */
void gaxdSin_SC(int32_t i, const double* src, double* dst, int32_t* status, const char* name);
void gaxdSin_SC_A11(int32_t i, const double* src, double* dst, int32_t* status);
void gaxdSin_SC_LA(int32_t i, const double* src, double* dst, int32_t* status);
void gaxdSin_SC_HA(int32_t i, const double* src, double* dst, int32_t* status);
void gaxdCos_SC(int32_t i, const double* src, double* dst, int32_t* status, const char* name);
void gaxdCos_SC_A11(int32_t i, const double* src, double* dst, int32_t* status);
void gaxdCos_SC_LA(int32_t i, const double* src, double* dst, int32_t* status);
void gaxdCos_SC_HA(int32_t i, const double* src, double* dst, int32_t* status);
void gaxdSinCos_SC(int32_t i, const double* src, double* sines, double* cosines, int32_t* status,
                   const char* name);
void gaxdSinCos_SC_A11(int32_t i, const double* src, double* sines, double* cosines,
                       int32_t* status);
void gaxdSinCos_SC_LA(int32_t i, const double* src, double* sines, double* cosines,
                      int32_t* status);
void gaxdSinCos_SC_HA(int32_t i, const double* src, double* sines, double* cosines,
                      int32_t* status);
void gaxdTan_SC(int32_t i, const double* src, double* dst, int32_t* status, const char* name);
void gaxdTan_SC_A11(int32_t i, const double* src, double* dst, int32_t* status);
void gaxdTan_SC_LA(int32_t i, const double* src, double* dst, int32_t* status);
void gaxdTan_SC_HA(int32_t i, const double* src, double* dst, int32_t* status);
void gaxsSin_SC_A11(int32_t i, const float* src, float* dst, int32_t* status);
void gaxsSin_SC_LA(int32_t i, const float* src, float* dst, int32_t* status);
void gaxsSin_SC_HA(int32_t i, const float* src, float* dst, int32_t* status);
void gaxsCos_SC_A11(int32_t i, const float* src, float* dst, int32_t* status);
void gaxsCos_SC_LA(int32_t i, const float* src, float* dst, int32_t* status);
void gaxsCos_SC_HA(int32_t i, const float* src, float* dst, int32_t* status);
void gaxsSinCos_SC_A11(int32_t i, const float* src, float* sines, float* cosines, int32_t* status);
void gaxsSinCos_SC_LA(int32_t i, const float* src, float* sines, float* cosines, int32_t* status);
void gaxsSinCos_SC_HA(int32_t i, const float* src, float* sines, float* cosines, int32_t* status);
void gaxsTan_SC_A11(int32_t i, const float* src, float* dst, int32_t* status);
void gaxsTan_SC_LA(int32_t i, const float* src, float* dst, int32_t* status);
void gaxsTan_SC_HA(int32_t i, const float* src, float* dst, int32_t* status);
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

/** Arc tangent of one float: what daksAtan_32f_A24 stores, without the rounding of the store. No
 * status, no notification. Accuracy after a store to float: 0.6168 ulp. */
long double gaxsatan_scalar(float x);

/** The angle of the point (b, a), ordinate first, by a reduction to four breakpoints and a polynomial.
 * Special arguments as in daksAtan2_64f_A53. No status, no notification. Accuracy: double 0.5005 ulp;
 * of floats the result is the nearest float, none of 10^7 misrounded. */
double gaxdatan2_scalar(double a, double b);
double gaxsatan2_scalar(float a, float b);

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

/** @} */

#ifdef __cplusplus
}
#endif

#endif /* DAKVMPX_H */
