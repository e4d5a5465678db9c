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
  end interface
end module dakvmpx
