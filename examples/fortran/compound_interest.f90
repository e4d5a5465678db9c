! Growth of a deposit over 40 years at several rates, (1 + rate)**years, by one call; checks itself
! against repeated multiplication. Build:
!   gfortran -m32 dakvmpx.f90 compound_interest.f90 -ldakvmpx
program compound_interest
  use, intrinsic :: iso_c_binding, only: c_int32_t, c_double
  use dakvmpx
  implicit none
  integer(c_int32_t), parameter :: rates = 5
  integer, parameter :: years = 40
  real(c_double) :: factor(rates), grown(rates), expected
  integer(c_int32_t) :: status
  integer :: i, year

  factor = [1.01d0, 1.02d0, 1.03d0, 1.05d0, 1.08d0]
  status = daksPowx(factor, real(years, c_double), grown, rates)
  if (status /= dakvm_status_ok) error stop "daksPowx reported a status"
  do i = 1, rates
    expected = 1
    do year = 1, years
      expected = expected * factor(i)
    end do
    print '(f5.1, a, f10.6)', 100 * (factor(i) - 1), " %: ", grown(i)
    if (abs(grown(i) / expected - 1) > 1d-13) error stop "a result is wrong"
  end do

  factor(1) = -0.5d0
  status = daksLn(factor, grown, rates)
  if (status /= dakvm_status_domain) error stop "the logarithm of a negative number passed"
end program
