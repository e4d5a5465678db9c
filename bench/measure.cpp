#include "bench/measure.hpp"

#include <dlfcn.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "bench/libm_reference.hpp"
#include "bench/operations.hpp"
#include "error.hpp"

namespace dakvm::bench {
namespace {

using registry::Function;
using registry::Type;
using tool::Error;
using tool::Exit;

// A build of the library by its path; without a path, the one that is linked.
class Library {
 public:
  explicit Library(const std::string& path) : path_(path) {
    if (path.empty()) return;
    const std::string file = path.find('/') == std::string::npos ? "./" + path : path;
    handle_ = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle_ == nullptr) throw Error(Exit::unreadable, std::string(dlerror()));
  }
  // The entry of the same name and form, null if this build does not have it.
  template <class T>
  std::optional<registry::Entry<T>> find(const Function& function) const {
    auto entry = std::get<registry::Entry<T>>(function.entry);
    if (handle_ == nullptr) return entry;
    void* const symbol = dlsym(handle_, std::string(function.name).c_str());
    if (symbol == nullptr) return std::nullopt;
    std::visit([&](auto& f) { f = reinterpret_cast<std::remove_reference_t<decltype(f)>>(symbol); },
               entry);
    return entry;
  }
  // What keeps tasks of two builds apart.
  std::string label() const { return path_.empty() ? "linked" : path_; }

 private:
  std::string path_;
  void* handle_ = nullptr;
};

std::string describe(const Workload& w) {
  return std::string(w.range) + "/" + std::to_string(w.length) + "/" +
         std::to_string(w.exceptional) + (w.in_place ? "/in-place" : "");
}

// A call of the library over all elements of fresh arrays.
template <class T>
struct Call {
  registry::Entry<T> entry;
  std::shared_ptr<Arrays<T>> arrays;

  void operator()() const {
    std::visit(
        [&](auto f) {
          arrays->walk([&](const registry::Operands<T>& o, int32_t length) {
            registry::invoke<T>(f, o, length);
          });
        },
        entry);
  }
};

template <class T>
struct LibmCall {
  Loop<T> loop;
  std::shared_ptr<Arrays<T>> arrays;

  void operator()() const {
    arrays->walk([&](const registry::Operands<T>& o, int32_t length) { loop(o, length); });
  }
};

template <class T>
Loop<T> loop_of(std::span<const Reference> references, const Function& function) {
  const Reference& reference =
      *std::ranges::find(references, function.family.name, &Reference::family);
  if constexpr (std::is_same_v<T, double>)
    return reference.f64;
  else
    return reference.f32;
}

// Whether the loop computes what the function does, up to the errors of the coarsest grade.
template <class T>
void check_same_function(const Call<T>& ours, const LibmCall<T>& theirs, const Function& function) {
  ours();
  theirs();
  const auto close = [](T a, T b) { return std::abs(a - b) <= std::abs(b) / 256 + T{1} / 65536; };
  if (!std::ranges::equal(ours.arrays->first_results(), theirs.arrays->first_results(), close) ||
      !std::ranges::equal(ours.arrays->second_results(), theirs.arrays->second_results(), close))
    throw Error(Exit::internal,
                std::string(function.name) + " and its loop in bench/libm_reference.cpp disagree");
}

// The tasks of one row, and how the row is filled from their timings.
class Plan {
 public:
  explicit Plan(const Request& request) : library_(request.library), request_(request) {
    if (!request.baseline.empty()) baseline_.emplace(request.baseline);
  }

  template <class T>
  void add(const Function& function, const Workload& workload) {
    const auto entry = library_.find<T>(function);
    if (!entry) return;
    const auto arrays = std::make_shared<Arrays<T>>(function.family, workload);
    const Call<T> own{*entry, arrays};
    Planned planned;
    planned.row.function = &function;
    planned.row.workload = workload;
    planned.own = schedule(own, function.name, library_.label(), workload, arrays->elements());
    if (baseline_) {
      const auto old = baseline_->find<T>(function);
      if (!old) return;
      const Call<T> before{*old, std::make_shared<Arrays<T>>(function.family, workload)};
      planned.baseline = schedule(before, function.name, "baseline " + baseline_->label(), workload,
                                  arrays->elements());
      planned_.push_back(planned);
      return;
    }
    const std::string group =
        std::string(function.family.name) + "_" + std::string(function.type_name());
    const auto libm_task = [&](std::span<const Reference> references, const char* label,
                               const Workload& w) {
      const auto copy = std::make_shared<Arrays<T>>(function.family, w);
      const LibmCall<T> call{loop_of<T>(references, function), copy};
      if (w.exceptional == 0 && w.range == "main" && w.length == workload.length)
        check_same_function(own, call, function);
      return schedule(call, group, label, w, copy->elements());
    };
    planned.plain = libm_task(plain::references(), "libm", workload);
    planned.stored = libm_task(stored::references(), "libm stored", workload);
    if (workload.length == 1024) {
      Workload one = workload;
      one.length = 1;
      const auto single = std::make_shared<Arrays<T>>(function.family, one);
      planned.single = schedule(Call<T>{*entry, single}, function.name, library_.label(), one,
                                single->elements());
      planned.single_libm = libm_task(plain::references(), "libm", one);
      planned.row.operations = operations(*entry, function, workload);
    }
    planned_.push_back(planned);
  }

  std::vector<Row> run() {
    const auto timings = session_.measure(request_.repetitions, request_.progress);
    std::vector<Row> rows;
    for (Planned& p : planned_) {
      const auto timing = [&](const std::string& task) -> std::optional<Timing> {
        if (task.empty()) return std::nullopt;
        return timings.at(task);
      };
      p.row.own = timings.at(p.own);
      p.row.plain = timing(p.plain);
      p.row.stored = timing(p.stored);
      p.row.single = timing(p.single);
      p.row.single_libm = timing(p.single_libm);
      p.row.baseline = timing(p.baseline);
      rows.push_back(p.row);
    }
    return rows;
  }

 private:
  // Of one element; fewer elements than in a measurement, because single steps take long.
  template <class T>
  static std::optional<double> operations(const registry::Entry<T>& entry, const Function& function,
                                          Workload workload) {
    workload.length = 128;
    const auto arrays = std::make_shared<Arrays<T>>(function.family, workload, workload.length);
    const auto count = count_operations(Call<T>{entry, arrays});
    if (!count) return std::nullopt;
    return static_cast<double>(count->add_multiply) / workload.length;
  }

  struct Planned {
    Row row;
    std::string own, plain, stored, single, single_libm, baseline;  // tasks; empty: none
  };

  std::string schedule(std::function<void()> call, std::string_view what, const std::string& how,
                       const Workload& workload, int elements) {
    const std::string name = std::string(what) + "/" + how + "/" + describe(workload);
    session_.add(name, elements, std::move(call));
    return name;
  }

  Library library_;
  std::optional<Library> baseline_;
  const Request& request_;
  Session session_;
  std::vector<Planned> planned_;
};

}  // namespace

std::vector<Row> measure(const Request& request) {
  Plan plan(request);
  for (const Function* function : request.functions)
    for (const int32_t length : request.lengths) {
      Workload workload = main_workload(function->family);
      workload.length = length;
      workload.exceptional = request.exceptional;
      workload.in_place = request.in_place;
      const auto add = [&] {
        if (function->type == Type::f64)
          plan.add<double>(*function, workload);
        else
          plan.add<float>(*function, workload);
      };
      add();
      if (request.wide && wide_workload(function->family, workload)) add();
    }
  return plan.run();
}

}  // namespace dakvm::bench
