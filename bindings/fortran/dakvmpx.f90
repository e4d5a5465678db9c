! libdakvmpx for Fortran 2003. Printed by `genbindings fortran`; do not edit.
!
! Each function has the name and arguments of its C namesake, which dakvmpx.h documents, and returns
! the status. The generic name of a family (daksExp) is its most accurate grade: A53 for
! real(c_double), A24 for real(c_float). Arrays are contiguous and hold len elements.
module dakvmpx
  use, intrinsic :: iso_c_binding, only: c_int32_t, c_double, c_float
  implicit none
  private

  integer(c_int32_t), parameter, public :: dakvm_status_ok = 0
  integer(c_int32_t), parameter, public :: dakvm_status_size_err = -6
  integer(c_int32_t), parameter, public :: dakvm_status_null_ptr_err = -8
  integer(c_int32_t), parameter, public :: dakvm_status_overflow = 12
  integer(c_int32_t), parameter, public :: dakvm_status_underflow = 17
  integer(c_int32_t), parameter, public :: dakvm_status_singularity = 18
  integer(c_int32_t), parameter, public :: dakvm_status_domain = 19

  public :: daksDiv_64f_A50
  public :: daksDiv_64f_A53
  public :: daksDiv_32f_A11
  public :: daksDiv_32f_A21
  public :: daksDiv_32f_A24
  public :: daksInv_64f_A50
  public :: daksInv_64f_A53
  public :: daksInv_32f_A11
  public :: daksInv_32f_A21
  public :: daksInv_32f_A24
  public :: daksSqrt_64f_A50
  public :: daksSqrt_64f_A53
  public :: daksSqrt_32f_A11
  public :: daksSqrt_32f_A21
  public :: daksSqrt_32f_A24
  public :: daksInvSqrt_64f_A50
  public :: daksInvSqrt_64f_A53
  public :: daksInvSqrt_32f_A11
  public :: daksInvSqrt_32f_A21
  public :: daksInvSqrt_32f_A24
  public :: daksCbrt_64f_A50
  public :: daksCbrt_64f_A53
  public :: daksCbrt_32f_A11
  public :: daksCbrt_32f_A21
  public :: daksCbrt_32f_A24
  public :: daksInvCbrt_64f_A50
  public :: daksInvCbrt_64f_A53
  public :: daksInvCbrt_32f_A11
  public :: daksInvCbrt_32f_A21
  public :: daksInvCbrt_32f_A24
  public :: daksExp_64f_A50
  public :: daksExp_64f_A53
  public :: daksExp_32f_A11
  public :: daksExp_32f_A21
  public :: daksExp_32f_A24
  public :: daksLn_64f_A50
  public :: daksLn_64f_A53
  public :: daksLn_32f_A11
  public :: daksLn_32f_A21
  public :: daksLn_32f_A24
  public :: daksLog10_64f_A50
  public :: daksLog10_64f_A53
  public :: daksLog10_32f_A11
  public :: daksLog10_32f_A21
  public :: daksLog10_32f_A24
  public :: daksPow_64f_A50
  public :: daksPow_64f_A53
  public :: daksPow_32f_A11
  public :: daksPow_32f_A21
  public :: daksPow_32f_A24
  public :: daksPowx_64f_A50
  public :: daksPowx_64f_A53
  public :: daksPowx_32f_A11
  public :: daksPowx_32f_A21
  public :: daksPowx_32f_A24
  public :: daksSinh_64f_A50
  public :: daksSinh_64f_A53
  public :: daksSinh_32f_A11
  public :: daksSinh_32f_A21
  public :: daksSinh_32f_A24
  public :: daksCosh_64f_A50
  public :: daksCosh_64f_A53
  public :: daksCosh_32f_A11
  public :: daksCosh_32f_A21
  public :: daksCosh_32f_A24
  public :: daksTanh_64f_A50
  public :: daksTanh_64f_A53
  public :: daksTanh_32f_A11
  public :: daksTanh_32f_A21
  public :: daksTanh_32f_A24
  public :: daksErf_64f_A50
  public :: daksErf_64f_A53
  public :: daksErf_32f_A11
  public :: daksErf_32f_A21
  public :: daksErf_32f_A24
  public :: daksErfc_64f_A50
  public :: daksErfc_64f_A53
  public :: daksErfc_32f_A11
  public :: daksErfc_32f_A21
  public :: daksErfc_32f_A24
  public :: daksAtan_64f_A50
  public :: daksAtan_64f_A53
  public :: daksAtan_32f_A11
  public :: daksAtan_32f_A21
  public :: daksAtan_32f_A24
  public :: daksAtan2_64f_A50
  public :: daksAtan2_64f_A53
  public :: daksAtan2_32f_A11
  public :: daksAtan2_32f_A21
  public :: daksAtan2_32f_A24
  public :: daksAsin_64f_A50
  public :: daksAsin_64f_A53
  public :: daksAsin_32f_A11
  public :: daksAsin_32f_A21
  public :: daksAsin_32f_A24
  public :: daksAcos_64f_A50
  public :: daksAcos_64f_A53
  public :: daksAcos_32f_A11
  public :: daksAcos_32f_A21
  public :: daksAcos_32f_A24
  public :: daksAtanh_64f_A50
  public :: daksAtanh_64f_A53
  public :: daksAtanh_32f_A11
  public :: daksAtanh_32f_A21
  public :: daksAtanh_32f_A24
  public :: daksAsinh_64f_A50
  public :: daksAsinh_64f_A53
  public :: daksAsinh_32f_A11
  public :: daksAsinh_32f_A21
  public :: daksAsinh_32f_A24
  public :: daksAcosh_64f_A50
  public :: daksAcosh_64f_A53
  public :: daksAcosh_32f_A11
  public :: daksAcosh_32f_A21
  public :: daksAcosh_32f_A24
  public :: daksSin_64f_A50
  public :: daksSin_64f_A53
  public :: daksSin_32f_A11
  public :: daksSin_32f_A21
  public :: daksSin_32f_A24
  public :: daksCos_64f_A50
  public :: daksCos_64f_A53
  public :: daksCos_32f_A11
  public :: daksCos_32f_A21
  public :: daksCos_32f_A24
  public :: daksSinCos_64f_A50
  public :: daksSinCos_64f_A53
  public :: daksSinCos_32f_A11
  public :: daksSinCos_32f_A21
  public :: daksSinCos_32f_A24
  public :: daksTan_64f_A50
  public :: daksTan_64f_A53
  public :: daksTan_32f_A11
  public :: daksTan_32f_A21
  public :: daksTan_32f_A24

  ! a / b
  public :: daksDiv
  interface daksDiv
    procedure :: daksDiv_64f_A53, daksDiv_32f_A24
  end interface
  ! 1 / x
  public :: daksInv
  interface daksInv
    procedure :: daksInv_64f_A53, daksInv_32f_A24
  end interface
  ! sqrt(x)
  public :: daksSqrt
  interface daksSqrt
    procedure :: daksSqrt_64f_A53, daksSqrt_32f_A24
  end interface
  ! 1 / sqrt(x)
  public :: daksInvSqrt
  interface daksInvSqrt
    procedure :: daksInvSqrt_64f_A53, daksInvSqrt_32f_A24
  end interface
  ! cbrt(x)
  public :: daksCbrt
  interface daksCbrt
    procedure :: daksCbrt_64f_A53, daksCbrt_32f_A24
  end interface
  ! 1 / cbrt(x)
  public :: daksInvCbrt
  interface daksInvCbrt
    procedure :: daksInvCbrt_64f_A53, daksInvCbrt_32f_A24
  end interface
  ! e^x
  public :: daksExp
  interface daksExp
    procedure :: daksExp_64f_A53, daksExp_32f_A24
  end interface
  ! ln(x)
  public :: daksLn
  interface daksLn
    procedure :: daksLn_64f_A53, daksLn_32f_A24
  end interface
  ! log10(x)
  public :: daksLog10
  interface daksLog10
    procedure :: daksLog10_64f_A53, daksLog10_32f_A24
  end interface
  ! x^y
  public :: daksPow
  interface daksPow
    procedure :: daksPow_64f_A53, daksPow_32f_A24
  end interface
  ! x^y, one y for all
  public :: daksPowx
  interface daksPowx
    procedure :: daksPowx_64f_A53, daksPowx_32f_A24
  end interface
  ! sinh(x)
  public :: daksSinh
  interface daksSinh
    procedure :: daksSinh_64f_A53, daksSinh_32f_A24
  end interface
  ! cosh(x)
  public :: daksCosh
  interface daksCosh
    procedure :: daksCosh_64f_A53, daksCosh_32f_A24
  end interface
  ! tanh(x)
  public :: daksTanh
  interface daksTanh
    procedure :: daksTanh_64f_A53, daksTanh_32f_A24
  end interface
  ! erf(x)
  public :: daksErf
  interface daksErf
    procedure :: daksErf_64f_A53, daksErf_32f_A24
  end interface
  ! 1 - erf(x)
  public :: daksErfc
  interface daksErfc
    procedure :: daksErfc_64f_A53, daksErfc_32f_A24
  end interface
  ! atan(x)
  public :: daksAtan
  interface daksAtan
    procedure :: daksAtan_64f_A53, daksAtan_32f_A24
  end interface
  ! angle of the point (b, a)
  public :: daksAtan2
  interface daksAtan2
    procedure :: daksAtan2_64f_A53, daksAtan2_32f_A24
  end interface
  ! arcsin(x)
  public :: daksAsin
  interface daksAsin
    procedure :: daksAsin_64f_A53, daksAsin_32f_A24
  end interface
  ! arccos(x)
  public :: daksAcos
  interface daksAcos
    procedure :: daksAcos_64f_A53, daksAcos_32f_A24
  end interface
  ! artanh(x)
  public :: daksAtanh
  interface daksAtanh
    procedure :: daksAtanh_64f_A53, daksAtanh_32f_A24
  end interface
  ! arsinh(x)
  public :: daksAsinh
  interface daksAsinh
    procedure :: daksAsinh_64f_A53, daksAsinh_32f_A24
  end interface
  ! arcosh(x)
  public :: daksAcosh
  interface daksAcosh
    procedure :: daksAcosh_64f_A53, daksAcosh_32f_A24
  end interface
  ! sin(x)
  public :: daksSin
  interface daksSin
    procedure :: daksSin_64f_A53, daksSin_32f_A24
  end interface
  ! cos(x)
  public :: daksCos
  interface daksCos
    procedure :: daksCos_64f_A53, daksCos_32f_A24
  end interface
  ! sin(x), cos(x)
  public :: daksSinCos
  interface daksSinCos
    procedure :: daksSinCos_64f_A53, daksSinCos_32f_A24
  end interface
  ! tan(x)
  public :: daksTan
  interface daksTan
    procedure :: daksTan_64f_A53, daksTan_32f_A24
  end interface

  interface
    function daksDiv_64f_A50(src1, src2, dst, len) result(status) bind(c, name="daksDiv_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src1(*), src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksDiv_64f_A53(src1, src2, dst, len) result(status) bind(c, name="daksDiv_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src1(*), src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksDiv_32f_A11(src1, src2, dst, len) result(status) bind(c, name="daksDiv_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src1(*), src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksDiv_32f_A21(src1, src2, dst, len) result(status) bind(c, name="daksDiv_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src1(*), src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksDiv_32f_A24(src1, src2, dst, len) result(status) bind(c, name="daksDiv_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src1(*), src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInv_64f_A50(src, dst, len) result(status) bind(c, name="daksInv_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInv_64f_A53(src, dst, len) result(status) bind(c, name="daksInv_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInv_32f_A11(src, dst, len) result(status) bind(c, name="daksInv_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInv_32f_A21(src, dst, len) result(status) bind(c, name="daksInv_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInv_32f_A24(src, dst, len) result(status) bind(c, name="daksInv_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSqrt_64f_A50(src, dst, len) result(status) bind(c, name="daksSqrt_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSqrt_64f_A53(src, dst, len) result(status) bind(c, name="daksSqrt_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSqrt_32f_A11(src, dst, len) result(status) bind(c, name="daksSqrt_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSqrt_32f_A21(src, dst, len) result(status) bind(c, name="daksSqrt_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSqrt_32f_A24(src, dst, len) result(status) bind(c, name="daksSqrt_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvSqrt_64f_A50(src, dst, len) result(status) bind(c, name="daksInvSqrt_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvSqrt_64f_A53(src, dst, len) result(status) bind(c, name="daksInvSqrt_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvSqrt_32f_A11(src, dst, len) result(status) bind(c, name="daksInvSqrt_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvSqrt_32f_A21(src, dst, len) result(status) bind(c, name="daksInvSqrt_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvSqrt_32f_A24(src, dst, len) result(status) bind(c, name="daksInvSqrt_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCbrt_64f_A50(src, dst, len) result(status) bind(c, name="daksCbrt_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCbrt_64f_A53(src, dst, len) result(status) bind(c, name="daksCbrt_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCbrt_32f_A11(src, dst, len) result(status) bind(c, name="daksCbrt_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCbrt_32f_A21(src, dst, len) result(status) bind(c, name="daksCbrt_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCbrt_32f_A24(src, dst, len) result(status) bind(c, name="daksCbrt_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvCbrt_64f_A50(src, dst, len) result(status) bind(c, name="daksInvCbrt_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvCbrt_64f_A53(src, dst, len) result(status) bind(c, name="daksInvCbrt_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvCbrt_32f_A11(src, dst, len) result(status) bind(c, name="daksInvCbrt_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvCbrt_32f_A21(src, dst, len) result(status) bind(c, name="daksInvCbrt_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksInvCbrt_32f_A24(src, dst, len) result(status) bind(c, name="daksInvCbrt_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksExp_64f_A50(src, dst, len) result(status) bind(c, name="daksExp_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksExp_64f_A53(src, dst, len) result(status) bind(c, name="daksExp_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksExp_32f_A11(src, dst, len) result(status) bind(c, name="daksExp_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksExp_32f_A21(src, dst, len) result(status) bind(c, name="daksExp_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksExp_32f_A24(src, dst, len) result(status) bind(c, name="daksExp_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLn_64f_A50(src, dst, len) result(status) bind(c, name="daksLn_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLn_64f_A53(src, dst, len) result(status) bind(c, name="daksLn_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLn_32f_A11(src, dst, len) result(status) bind(c, name="daksLn_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLn_32f_A21(src, dst, len) result(status) bind(c, name="daksLn_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLn_32f_A24(src, dst, len) result(status) bind(c, name="daksLn_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLog10_64f_A50(src, dst, len) result(status) bind(c, name="daksLog10_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLog10_64f_A53(src, dst, len) result(status) bind(c, name="daksLog10_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLog10_32f_A11(src, dst, len) result(status) bind(c, name="daksLog10_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLog10_32f_A21(src, dst, len) result(status) bind(c, name="daksLog10_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksLog10_32f_A24(src, dst, len) result(status) bind(c, name="daksLog10_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPow_64f_A50(src1, src2, dst, len) result(status) bind(c, name="daksPow_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src1(*), src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPow_64f_A53(src1, src2, dst, len) result(status) bind(c, name="daksPow_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src1(*), src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPow_32f_A11(src1, src2, dst, len) result(status) bind(c, name="daksPow_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src1(*), src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPow_32f_A21(src1, src2, dst, len) result(status) bind(c, name="daksPow_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src1(*), src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPow_32f_A24(src1, src2, dst, len) result(status) bind(c, name="daksPow_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src1(*), src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPowx_64f_A50(src, exponent, dst, len) result(status) bind(c, name="daksPowx_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), value :: exponent
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPowx_64f_A53(src, exponent, dst, len) result(status) bind(c, name="daksPowx_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), value :: exponent
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPowx_32f_A11(src, exponent, dst, len) result(status) bind(c, name="daksPowx_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), value :: exponent
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPowx_32f_A21(src, exponent, dst, len) result(status) bind(c, name="daksPowx_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), value :: exponent
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksPowx_32f_A24(src, exponent, dst, len) result(status) bind(c, name="daksPowx_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), value :: exponent
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinh_64f_A50(src, dst, len) result(status) bind(c, name="daksSinh_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinh_64f_A53(src, dst, len) result(status) bind(c, name="daksSinh_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinh_32f_A11(src, dst, len) result(status) bind(c, name="daksSinh_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinh_32f_A21(src, dst, len) result(status) bind(c, name="daksSinh_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinh_32f_A24(src, dst, len) result(status) bind(c, name="daksSinh_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCosh_64f_A50(src, dst, len) result(status) bind(c, name="daksCosh_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCosh_64f_A53(src, dst, len) result(status) bind(c, name="daksCosh_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCosh_32f_A11(src, dst, len) result(status) bind(c, name="daksCosh_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCosh_32f_A21(src, dst, len) result(status) bind(c, name="daksCosh_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCosh_32f_A24(src, dst, len) result(status) bind(c, name="daksCosh_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTanh_64f_A50(src, dst, len) result(status) bind(c, name="daksTanh_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTanh_64f_A53(src, dst, len) result(status) bind(c, name="daksTanh_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTanh_32f_A11(src, dst, len) result(status) bind(c, name="daksTanh_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTanh_32f_A21(src, dst, len) result(status) bind(c, name="daksTanh_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTanh_32f_A24(src, dst, len) result(status) bind(c, name="daksTanh_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErf_64f_A50(src, dst, len) result(status) bind(c, name="daksErf_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErf_64f_A53(src, dst, len) result(status) bind(c, name="daksErf_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErf_32f_A11(src, dst, len) result(status) bind(c, name="daksErf_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErf_32f_A21(src, dst, len) result(status) bind(c, name="daksErf_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErf_32f_A24(src, dst, len) result(status) bind(c, name="daksErf_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErfc_64f_A50(src, dst, len) result(status) bind(c, name="daksErfc_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErfc_64f_A53(src, dst, len) result(status) bind(c, name="daksErfc_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErfc_32f_A11(src, dst, len) result(status) bind(c, name="daksErfc_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErfc_32f_A21(src, dst, len) result(status) bind(c, name="daksErfc_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksErfc_32f_A24(src, dst, len) result(status) bind(c, name="daksErfc_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan_64f_A50(src, dst, len) result(status) bind(c, name="daksAtan_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan_64f_A53(src, dst, len) result(status) bind(c, name="daksAtan_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan_32f_A11(src, dst, len) result(status) bind(c, name="daksAtan_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan_32f_A21(src, dst, len) result(status) bind(c, name="daksAtan_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan_32f_A24(src, dst, len) result(status) bind(c, name="daksAtan_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan2_64f_A50(src1, src2, dst, len) result(status) bind(c, name="daksAtan2_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src1(*), src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan2_64f_A53(src1, src2, dst, len) result(status) bind(c, name="daksAtan2_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src1(*), src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan2_32f_A11(src1, src2, dst, len) result(status) bind(c, name="daksAtan2_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src1(*), src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan2_32f_A21(src1, src2, dst, len) result(status) bind(c, name="daksAtan2_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src1(*), src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtan2_32f_A24(src1, src2, dst, len) result(status) bind(c, name="daksAtan2_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src1(*), src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsin_64f_A50(src, dst, len) result(status) bind(c, name="daksAsin_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsin_64f_A53(src, dst, len) result(status) bind(c, name="daksAsin_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsin_32f_A11(src, dst, len) result(status) bind(c, name="daksAsin_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsin_32f_A21(src, dst, len) result(status) bind(c, name="daksAsin_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsin_32f_A24(src, dst, len) result(status) bind(c, name="daksAsin_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcos_64f_A50(src, dst, len) result(status) bind(c, name="daksAcos_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcos_64f_A53(src, dst, len) result(status) bind(c, name="daksAcos_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcos_32f_A11(src, dst, len) result(status) bind(c, name="daksAcos_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcos_32f_A21(src, dst, len) result(status) bind(c, name="daksAcos_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcos_32f_A24(src, dst, len) result(status) bind(c, name="daksAcos_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtanh_64f_A50(src, dst, len) result(status) bind(c, name="daksAtanh_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtanh_64f_A53(src, dst, len) result(status) bind(c, name="daksAtanh_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtanh_32f_A11(src, dst, len) result(status) bind(c, name="daksAtanh_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtanh_32f_A21(src, dst, len) result(status) bind(c, name="daksAtanh_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAtanh_32f_A24(src, dst, len) result(status) bind(c, name="daksAtanh_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsinh_64f_A50(src, dst, len) result(status) bind(c, name="daksAsinh_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsinh_64f_A53(src, dst, len) result(status) bind(c, name="daksAsinh_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsinh_32f_A11(src, dst, len) result(status) bind(c, name="daksAsinh_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsinh_32f_A21(src, dst, len) result(status) bind(c, name="daksAsinh_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAsinh_32f_A24(src, dst, len) result(status) bind(c, name="daksAsinh_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcosh_64f_A50(src, dst, len) result(status) bind(c, name="daksAcosh_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcosh_64f_A53(src, dst, len) result(status) bind(c, name="daksAcosh_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcosh_32f_A11(src, dst, len) result(status) bind(c, name="daksAcosh_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcosh_32f_A21(src, dst, len) result(status) bind(c, name="daksAcosh_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksAcosh_32f_A24(src, dst, len) result(status) bind(c, name="daksAcosh_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSin_64f_A50(src, dst, len) result(status) bind(c, name="daksSin_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSin_64f_A53(src, dst, len) result(status) bind(c, name="daksSin_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSin_32f_A11(src, dst, len) result(status) bind(c, name="daksSin_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSin_32f_A21(src, dst, len) result(status) bind(c, name="daksSin_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSin_32f_A24(src, dst, len) result(status) bind(c, name="daksSin_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCos_64f_A50(src, dst, len) result(status) bind(c, name="daksCos_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCos_64f_A53(src, dst, len) result(status) bind(c, name="daksCos_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCos_32f_A11(src, dst, len) result(status) bind(c, name="daksCos_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCos_32f_A21(src, dst, len) result(status) bind(c, name="daksCos_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksCos_32f_A24(src, dst, len) result(status) bind(c, name="daksCos_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinCos_64f_A50(src, dst1, dst2, len) result(status) bind(c, name="daksSinCos_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst1(*), dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinCos_64f_A53(src, dst1, dst2, len) result(status) bind(c, name="daksSinCos_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst1(*), dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinCos_32f_A11(src, dst1, dst2, len) result(status) bind(c, name="daksSinCos_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst1(*), dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinCos_32f_A21(src, dst1, dst2, len) result(status) bind(c, name="daksSinCos_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst1(*), dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksSinCos_32f_A24(src, dst1, dst2, len) result(status) bind(c, name="daksSinCos_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst1(*), dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTan_64f_A50(src, dst, len) result(status) bind(c, name="daksTan_64f_A50")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTan_64f_A53(src, dst, len) result(status) bind(c, name="daksTan_64f_A53")
      import :: c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTan_32f_A11(src, dst, len) result(status) bind(c, name="daksTan_32f_A11")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTan_32f_A21(src, dst, len) result(status) bind(c, name="daksTan_32f_A21")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
    function daksTan_32f_A24(src, dst, len) result(status) bind(c, name="daksTan_32f_A24")
      import :: c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int32_t) :: status
    end function
  end interface
end module dakvmpx
