#include "tally.hpp"

namespace dakvm::accuracy {

void Tally::add(const Tally& later) {
  results += later.results;
  correct += later.correct;
  sum += later.sum;
  for (size_t bin = 0; bin < histogram.size(); ++bin) histogram[bin] += later.histogram[bin];
  if (later.worst.ulp > worst.ulp) worst = later.worst;
  if (wrong_statuses == 0) wrong_status = later.wrong_status;
  if (wrong_flags == 0) wrong_flag = later.wrong_flag;
  wrong_statuses += later.wrong_statuses;
  wrong_flags += later.wrong_flags;
  not_monotone += later.not_monotone;
  out_of_range += later.out_of_range;
  exact_values += later.exact_values;
}

}  // namespace dakvm::accuracy
