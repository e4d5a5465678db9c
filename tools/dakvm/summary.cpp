#include "summary.hpp"

#include <algorithm>
#include <cfenv>
#include <cstdio>

#include "text.hpp"

namespace dakvm::tool {
namespace {

std::string status_name(int32_t status) {
  switch (status) {
    case DAKVM_STATUS_OK:
      return "ok";
    case DAKVM_STATUS_OVERFLOW:
      return "overflow";
    case DAKVM_STATUS_UNDERFLOW:
      return "underflow";
    case DAKVM_STATUS_SINGULARITY:
      return "singularity";
    case DAKVM_STATUS_DOMAIN:
      return "domain";
    default:
      return "status";
  }
}

std::vector<std::string> flag_names(int flags) {
  std::vector<std::string> names;
  if (flags & FE_INVALID) names.push_back("invalid");
  if (flags & FE_DIVBYZERO) names.push_back("divide-by-zero");
  if (flags & FE_OVERFLOW) names.push_back("overflow");
  if (flags & FE_UNDERFLOW) names.push_back("underflow");
  if (flags & FE_INEXACT) names.push_back("inexact");
  return names;
}

std::string rate(const Summary& summary) {
  char text[32];
  const double elements = static_cast<double>(summary.elements());
  std::snprintf(text, sizeof text, "%.0f", summary.seconds > 0 ? elements / summary.seconds : 0.0);
  return text;
}

// All accounts as one, of rows instead of elements: the first and the last are the leftmost and the
// rightmost of their row.
Account total(const std::vector<Account>& accounts) {
  Account sum;
  for (const Account& account : accounts) {
    for (const Tally& tally : account.tallies) {
      const auto same = std::find_if(sum.tallies.begin(), sum.tallies.end(),
                                     [&](const Tally& t) { return t.status == tally.status; });
      if (same == sum.tallies.end()) {
        sum.tallies.push_back(tally);
        continue;
      }
      const uint64_t count = same->count + tally.count;
      if (tally.first_index < same->first_index) *same = tally;
      same->count = count;
    }
    if (account.last_status != DAKVM_STATUS_OK && account.last_index >= sum.last_index) {
      sum.last_status = account.last_status;
      sum.last_index = account.last_index;
    }
    sum.flags |= account.flags;
  }
  std::stable_sort(sum.tallies.begin(), sum.tallies.end(),
                   [](const Tally& a, const Tally& b) { return a.first_index < b.first_index; });
  return sum;
}

std::string account_text(const Account& account, const std::string& indent) {
  std::string text;
  for (const Tally& tally : account.tallies)
    text += indent + status_name(tally.status) + " (" + std::to_string(tally.status) +
            "): " + std::to_string(tally.count) + ", first at index " +
            std::to_string(tally.first_index) + ", input " + joined(tally.first_input, " ") + "\n";
  text += indent + "last status: " + status_name(account.last_status) + " (" +
          std::to_string(account.last_status) + ")\n";
  const auto flags = flag_names(account.flags);
  return text + indent + "flags raised: " + (flags.empty() ? "none" : joined(flags, ", ")) + "\n";
}

// The members of an object.
std::string account_json(const Account& account) {
  std::vector<std::string> statuses;
  for (const Tally& tally : account.tallies)
    statuses.push_back("{\"status\":" + std::to_string(tally.status) +
                       ",\"name\":" + json_string(status_name(tally.status)) +
                       ",\"count\":" + std::to_string(tally.count) +
                       ",\"first_index\":" + std::to_string(tally.first_index) +
                       ",\"first_input\":" + json_array(tally.first_input) + "}");
  return "\"statuses\":[" + joined(statuses, ",") +
         "],\"last_status\":" + std::to_string(account.last_status) +
         ",\"flags\":" + json_array(flag_names(account.flags));
}

}  // namespace

std::string summary_text(const Summary& summary) {
  std::string text = summary.function + ": " + counted(summary.elements(), "element") + ", " +
                     rate(summary) + " a second\n";
  if (summary.accounts.size() == 1) {
    text += account_text(summary.accounts[0], "  ");
  } else {
    for (const Account& account : summary.accounts)
      text += "  " + joined(account.columns, ";") + ": " + counted(summary.rows, "element") + "\n" +
              account_text(account, "    ");
  }
  if (summary.bad.count > 0)
    text += "  bad cells: " + std::to_string(summary.bad.count) +
            (summary.bad.on_error == OnError::nan ? ", taken as NaN" : ", their lines left out") +
            "; first " + summary.bad.first + "\n";
  return text;
}

std::string summary_json(const Summary& summary) {
  std::vector<std::string> columns;
  for (const Account& account : summary.accounts)
    if (!account.columns.empty())
      columns.push_back("{\"columns\":" + json_array(account.columns) + ",\"elements\":" +
                        std::to_string(summary.rows) + "," + account_json(account) + "}");
  return "{\"function\":" + json_string(summary.function) +
         ",\"elements\":" + std::to_string(summary.elements()) + "," +
         account_json(total(summary.accounts)) +
         (columns.empty() ? "" : ",\"by_column\":[" + joined(columns, ",") + "]") +
         ",\"bad_cells\":" + std::to_string(summary.bad.count) +
         ",\"first_bad_cell\":" + json_string(summary.bad.first) +
         ",\"elements_per_second\":" + rate(summary) + "}\n";
}

}  // namespace dakvm::tool
