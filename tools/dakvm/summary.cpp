#include "summary.hpp"

#include <cfenv>
#include <cstdio>

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

std::string joined(const std::vector<std::string>& parts, const char* separator) {
  std::string result;
  for (const std::string& part : parts) result += (result.empty() ? "" : separator) + part;
  return result;
}

std::string json_array(std::vector<std::string> strings) {
  for (std::string& s : strings) s = json_string(s);
  return "[" + joined(strings, ",") + "]";
}

std::string rate(const Summary& summary) {
  char text[32];
  const double elements = static_cast<double>(summary.elements);
  std::snprintf(text, sizeof text, "%.0f", summary.seconds > 0 ? elements / summary.seconds : 0.0);
  return text;
}

}  // namespace

std::string summary_text(const Summary& summary) {
  std::string text = summary.function + ": " + std::to_string(summary.elements) +
                     (summary.elements == 1 ? " element, " : " elements, ") + rate(summary) +
                     " a second\n";
  for (const Tally& tally : summary.tallies)
    text += "  " + status_name(tally.status) + " (" + std::to_string(tally.status) +
            "): " + std::to_string(tally.count) + ", first at index " +
            std::to_string(tally.first_index) + ", input " + joined(tally.first_input, " ") + "\n";
  text += "  last status: " + status_name(summary.last_status) + " (" +
          std::to_string(summary.last_status) + ")\n";
  const auto flags = flag_names(summary.flags);
  text += "  flags raised: " + (flags.empty() ? "none" : joined(flags, ", ")) + "\n";
  if (summary.bad.count > 0)
    text += "  bad cells: " + std::to_string(summary.bad.count) +
            (summary.bad.on_error == OnError::nan ? ", taken as NaN" : ", their lines left out") +
            "; first " + summary.bad.first + "\n";
  return text;
}

std::string summary_json(const Summary& summary) {
  std::vector<std::string> statuses;
  for (const Tally& tally : summary.tallies)
    statuses.push_back("{\"status\":" + std::to_string(tally.status) +
                       ",\"name\":" + json_string(status_name(tally.status)) +
                       ",\"count\":" + std::to_string(tally.count) +
                       ",\"first_index\":" + std::to_string(tally.first_index) +
                       ",\"first_input\":" + json_array(tally.first_input) + "}");
  return "{\"function\":" + json_string(summary.function) +
         ",\"elements\":" + std::to_string(summary.elements) + ",\"statuses\":[" +
         joined(statuses, ",") + "],\"last_status\":" + std::to_string(summary.last_status) +
         ",\"flags\":" + json_array(flag_names(summary.flags)) +
         ",\"bad_cells\":" + std::to_string(summary.bad.count) +
         ",\"first_bad_cell\":" + json_string(summary.bad.first) +
         ",\"elements_per_second\":" + rate(summary) + "}\n";
}

std::string json_string(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      result += {'\\', c};
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
      result += escape;
    } else {
      result += c;
    }
  }
  return result + '"';
}

}  // namespace dakvm::tool
