// What an element can be, besides ordinary.
#pragma once

#include <cstdint>

#include "dakvmpx.h"

namespace dakvm {

enum class Status : int32_t {
  ok = DAKVM_STATUS_OK,
  size_err = DAKVM_STATUS_SIZE_ERR,
  null_ptr_err = DAKVM_STATUS_NULL_PTR_ERR,
  overflow = DAKVM_STATUS_OVERFLOW,
  underflow = DAKVM_STATUS_UNDERFLOW,
  singularity = DAKVM_STATUS_SINGULARITY,
  domain = DAKVM_STATUS_DOMAIN,
};

}  // namespace dakvm
