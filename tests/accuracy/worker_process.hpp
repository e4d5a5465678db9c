// The library under measurement, in a process of its own.
#pragma once

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

// What a function makes of the arguments, run in a worker process; a worker that fails ends this
// one.
template <class T>
std::vector<T> evaluate(const std::string& worker, std::string_view function,
                        const std::vector<T>& arguments, size_t outputs) {
  char path[] = "/tmp/dakvm-oracle-XXXXXX";
  const int file = mkstemp(path);
  std::vector<T> results(arguments.size() * outputs);
  FILE* in = file < 0 ? nullptr : fdopen(file, "w");
  if (in == nullptr ||
      std::fwrite(arguments.data(), sizeof(T), arguments.size(), in) != arguments.size() ||
      std::fclose(in) != 0) {
    std::perror(path);
    std::exit(2);
  }
  FILE* out = popen(("'" + worker + "' " + std::string(function) + " < " + path).c_str(), "r");
  const size_t got =
      out == nullptr ? 0 : std::fread(results.data(), sizeof(T), results.size(), out);
  const int status = out == nullptr ? -1 : pclose(out);
  unlink(path);
  if (status != 0) {
    std::fprintf(stderr, "%s failed on %.*s\n", worker.c_str(), static_cast<int>(function.size()),
                 function.data());
    std::exit(2);
  }
  results.resize(got);
  return results;
}
