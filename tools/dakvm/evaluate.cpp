#include "evaluate.hpp"

#include <unistd.h>

#include <cfenv>
#include <chrono>

#include "error.hpp"
#include "progress.hpp"
#include "text.hpp"

namespace dakvm::tool {
namespace {

using registry::Form;
using registry::Operands;

// Calls the function block by block and keeps account of what it says.
template <class T>
class Evaluator {
 public:
  Evaluator(const registry::Function& function, const T& exponent, const std::vector<Call>& calls,
            Summary& summary)
      : function_(function), exponent_(exponent), calls_(calls), summary_(summary) {
    for (const Call& call : calls) summary_.accounts.push_back({call.columns});
  }

  void run(Block<T>& block) {
    const size_t results = function_.family.destinations();
    for (size_t k = 0; k < calls_.size(); ++k) {
      const auto [first, second] = calls_[k].cells;
      run({block.src[first].data(), block.src[second].data(), block.dst[k * results].data(),
           block.dst[(k + 1) * results - 1].data(), exponent_},
          block.count, summary_.accounts[k]);
    }
    summary_.rows += block.count;
  }

 private:
  void run(const Operands<T>& operands, int32_t count, Account& account) {
    std::feclearexcept(FE_ALL_EXCEPT);
    const int32_t status = function_(operands, count);
    account.flags |= std::fetestexcept(FE_ALL_EXCEPT);
    if (status < 0)
      throw Error(Exit::internal, summary_.function + " returned " + std::to_string(status));
    if (status != DAKVM_STATUS_OK && attribute(operands, count, account) != status)
      throw Error(Exit::internal,
                  summary_.function + ": the status of a block is not that of its elements");
  }

  // A block has one status, its elements each their own: asks for them one by one. Returns the
  // last.
  int32_t attribute(const Operands<T>& block, int32_t count, Account& account) {
    const int sources = function_.family.sources();
    int32_t last = DAKVM_STATUS_OK;
    T results[2];
    Operands<T> operands{block.src1, block.src2, &results[0], &results[1], exponent_};
    for (int32_t i = 0; i < count; ++i, ++operands.src1, ++operands.src2) {
      const int32_t status = function_(operands, 1);
      if (status == DAKVM_STATUS_OK) continue;
      account.last_status = last = status;
      account.last_index = summary_.rows + i;
      Tally& tally = tally_of(account, status);
      if (tally.count++ > 0) continue;
      tally.first_index = account.last_index;
      tally.first_input.push_back(to_text(*operands.src1));
      if (sources == 2) tally.first_input.push_back(to_text(*operands.src2));
    }
    return last;
  }

  static Tally& tally_of(Account& account, int32_t status) {
    for (Tally& tally : account.tallies)
      if (tally.status == status) return tally;
    return account.tallies.emplace_back(Tally{status});
  }

  const registry::Function& function_;
  T exponent_;
  const std::vector<Call>& calls_;
  Summary& summary_;
};

template <class T>
T exponent_of(const registry::Function& function, const std::string& text) {
  T exponent = 0;
  if (function.family.form == Form::scalar_exponent) {
    if (text.empty())
      throw Error(Exit::usage, std::string(function.family.name) + " needs --exponent Y");
    if (!parse(text, exponent))
      throw Error(Exit::usage, "--exponent: " + excerpt(text) + " is not a number");
  } else if (!text.empty()) {
    throw Error(Exit::usage, std::string(function.family.name) + " takes no --exponent");
  }
  return exponent;
}

// What the columns of the results are called.
std::vector<std::string> result_names(const registry::Function& function,
                                      const std::vector<Call>& calls, const std::string& given) {
  const size_t results = function.family.destinations();
  const size_t columns = results * calls.size();
  if (!given.empty()) {
    if (columns == 1) return {given};
    const std::vector<std::string> names = split_list(given);
    if (names.size() != columns)
      throw Error(Exit::usage, "--name: there are " + counted(columns, "result column") +
                                   ", and here " + counted(names.size(), "name") +
                                   "; it takes a list, as in --name FIRST,SECOND");
    return names;
  }
  std::vector<std::string> names;
  for (const Call& call : calls) {
    const std::string name =
        std::string(function.family.name) + "(" + joined(call.columns, ";") + ")";
    for (size_t k = 1; k <= results; ++k)
      names.push_back(results == 1 ? name : name + "." + std::to_string(k));
  }
  return names;
}

template <class T>
void evaluate_as(const registry::Function& function, const EvalOptions& options, Summary& summary) {
  const int sources = function.family.sources();
  const T exponent = exponent_of<T>(function, options.exponent);

  InputFile file(options.input);
  std::unique_ptr<RowReader> rows;
  std::unique_ptr<Input<T>> input;
  size_t width = sources;
  std::vector<Call> calls{Call{{0, width - 1}}};
  if (options.layout == Layout::raw) {
    input = input_from_raw<T>(file, sources);
  } else {
    rows = options.layout == Layout::csv ? read_csv(file, sources, options.csv)
                                         : read_text(file, sources);
    input = input_from_rows<T>(*rows, options.layout == Layout::csv, summary.bad);
    width = rows->width();
    calls = rows->calls();
  }

  OutputFile result(options.output, options.force);
  std::unique_ptr<Output<T>> output;
  switch (options.layout) {
    case Layout::text:
      output = output_as_text<T>(result, options.notation);
      break;
    case Layout::raw:
      output = output_as_raw<T>(result);
      break;
    case Layout::csv:
      output = output_as_csv<T>(result, options.notation, options.csv.delimiter);
      if (const std::string header = rows->header(); !header.empty()) {
        const std::string_view body = without_ending(header);
        result.append(body);
        for (const auto& name : result_names(function, calls, options.csv.result_names))
          result.append(options.csv.delimiter + csv_field(name, options.csv.delimiter));
        result.append(std::string_view(header).substr(body.size()));
      }
  }

  Evaluator<T> evaluator(function, exponent, calls, summary);
  const bool results_on_terminal = options.output == "-" && isatty(STDOUT_FILENO);
  Progress progress(options.quiet || results_on_terminal);
  Block<T> block(width, calls.size() * function.family.destinations());
  for (input->read(block); block.count > 0; input->read(block)) {
    evaluator.run(block);
    output->write(block);
    progress.update(file.position(), file.size(), std::to_string(summary.elements()) + " elements");
  }
  if (summary.rows == 0 && summary.bad.count == 0)
    throw Error(Exit::empty, file.name() + ": the input has no elements");
  result.commit();
}

}  // namespace

Summary evaluate(const registry::Function& function, const EvalOptions& options) {
  const auto start = std::chrono::steady_clock::now();
  Summary summary;
  summary.function = function.name;
  summary.bad.on_error = options.on_error;
  if (function.type == registry::Type::f64)
    evaluate_as<double>(function, options, summary);
  else
    evaluate_as<float>(function, options, summary);
  summary.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  return summary;
}

}  // namespace dakvm::tool
