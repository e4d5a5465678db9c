#include "evaluate.hpp"

#include <cfenv>
#include <chrono>

#include "error.hpp"
#include "progress.hpp"

namespace dakvm::tool {
namespace {

using registry::Form;
using registry::Operands;

// Calls the function block by block and keeps account of what it says.
template <class T>
class Evaluator {
 public:
  Evaluator(const registry::Function& function, const T& exponent, Summary& summary)
      : function_(function), exponent_(exponent), summary_(summary) {}

  void run(Block<T>& block) {
    Operands<T> operands{block.src[0].data(), block.src[1].data(), block.dst[0].data(),
                         block.dst[1].data(), exponent_};
    std::feclearexcept(FE_ALL_EXCEPT);
    const int32_t status = function_(operands, block.count);
    summary_.flags |= std::fetestexcept(FE_ALL_EXCEPT);
    if (status < 0)
      throw Error(Exit::internal, summary_.function + " returned " + std::to_string(status));
    if (status != DAKVM_STATUS_OK) {
      if (attribute(block) != status)
        throw Error(Exit::internal,
                    summary_.function + ": the status of a block is not that of its elements");
      summary_.last_status = status;
    }
    summary_.elements += block.count;
  }

 private:
  // A block has one status, its elements each their own: asks for them one by one. Returns the
  // last.
  int32_t attribute(const Block<T>& block) {
    int32_t last = DAKVM_STATUS_OK;
    T results[2];
    Operands<T> operands{block.src[0].data(), block.src[1].data(), &results[0], &results[1],
                         exponent_};
    for (int32_t i = 0; i < block.count; ++i, ++operands.src1, ++operands.src2) {
      const int32_t status = function_(operands, 1);
      if (status == DAKVM_STATUS_OK) continue;
      Tally& tally = tally_of(status);
      if (tally.count++ == 0) {
        tally.first_index = summary_.elements + i;
        for (int k = 0; k < function_.family.sources(); ++k)
          tally.first_input.push_back(to_text(block.src[k][i]));
      }
      last = status;
    }
    return last;
  }

  Tally& tally_of(int32_t status) {
    for (Tally& tally : summary_.tallies)
      if (tally.status == status) return tally;
    return summary_.tallies.emplace_back(Tally{status});
  }

  const registry::Function& function_;
  T exponent_;
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

std::string result_header(const registry::Function& function, const RowReader& rows,
                          const CsvOptions& csv) {
  const int results = function.family.destinations();
  std::string names = csv.result_names;
  if (names.empty()) {
    const std::string name = std::string(function.family.name) + "(" + rows.column_names() + ")";
    if (results == 1) return csv.delimiter + csv_field(name, csv.delimiter);
    return csv.delimiter + csv_field(name + ".1", csv.delimiter) + csv.delimiter +
           csv_field(name + ".2", csv.delimiter);
  }
  if (results == 1) return csv.delimiter + csv_field(names, csv.delimiter);
  const size_t comma = names.find(',');
  if (comma == names.npos)
    throw Error(Exit::usage, "--name: the function has two results, as in --name FIRST,SECOND");
  return csv.delimiter + csv_field(names.substr(0, comma), csv.delimiter) + csv.delimiter +
         csv_field(names.substr(comma + 1), csv.delimiter);
}

template <class T>
void evaluate_as(const registry::Function& function, const EvalOptions& options, Summary& summary) {
  const int sources = function.family.sources();
  const int destinations = function.family.destinations();
  const T exponent = exponent_of<T>(function, options.exponent);

  InputFile file(options.input);
  std::unique_ptr<RowReader> rows;
  std::unique_ptr<Input<T>> input;
  if (options.layout == Layout::raw) {
    input = input_from_raw<T>(file, sources);
  } else {
    rows = options.layout == Layout::csv ? read_csv(file, sources, options.csv)
                                         : read_text(file, sources);
    input = input_from_rows<T>(*rows, sources, options.layout == Layout::csv, summary.bad);
  }

  OutputFile result(options.output, options.force);
  std::unique_ptr<Output<T>> output;
  switch (options.layout) {
    case Layout::text:
      output = output_as_text<T>(result, destinations, options.notation);
      break;
    case Layout::raw:
      output = output_as_raw<T>(result, destinations);
      break;
    case Layout::csv:
      output = output_as_csv<T>(result, destinations, options.notation, options.csv.delimiter);
      if (const std::string header = rows->header(); !header.empty()) {
        const std::string_view body = without_ending(header);
        result.append(body);
        result.append(result_header(function, *rows, options.csv));
        result.append(std::string_view(header).substr(body.size()));
      }
  }

  Evaluator<T> evaluator(function, exponent, summary);
  Progress progress(options.output == "-");
  Block<T> block;
  for (input->read(block); block.count > 0; input->read(block)) {
    evaluator.run(block);
    output->write(block);
    progress.update(file.position(), file.size(), std::to_string(summary.elements) + " elements");
  }
  if (summary.elements == 0 && summary.bad.count == 0)
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
