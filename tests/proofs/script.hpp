// The files that a generator writes.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <string>
#include <utility>

// What every script begins with.
inline const std::string formats =
    "@x87 = float<x86_80, ne>;  # an operation in the register\n"
    "@dbl = float<ieee_64, ne>; # a store to memory\n\n";

// The text with each <<name>> replaced by its value.
inline std::string fill(std::string text,
                        std::initializer_list<std::pair<std::string, std::string>> values) {
  for (const auto& [name, value] : values)
    for (size_t at; (at = text.find("<<" + name + ">>")) != std::string::npos;)
      text.replace(at, name.size() + 4, value);
  if (const size_t at = text.find("<<"); at != std::string::npos) {
    std::fprintf(stderr, "no value for %s\n", text.substr(at, 30).c_str());
    std::exit(1);
  }
  return text;
}

inline void write_script(const std::string& folder, const std::string& name,
                         const std::string& text) {
  const std::string path = folder + "/" + name + ".gappa";
  std::FILE* file = std::fopen(path.c_str(), "w");
  if (file == nullptr || std::fputs(text.c_str(), file) < 0 || std::fclose(file) != 0) {
    std::perror(path.c_str());
    std::exit(1);
  }
}

inline std::string scripts_folder(int argc, char** argv) {
  if (argc == 2) return argv[1];
  std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
  std::exit(2);
}
