// How the command fails: every failure has a message that says what to do and an exit code.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace dakvm::tool {

enum class Exit {
  ok = 0,
  bad_cell = 1,
  usage = 2,
  unreadable = 3,
  unknown_function = 4,
  columns = 5,
  empty = 6,
  truncated = 7,
  unwritable = 8,
  internal = 9,
};

inline constexpr std::string_view exit_code_table =
    "Exit codes:\n"
    "  0  every element has its result, exceptional ones included\n"
    "  1  an input cell is not a number\n"
    "  2  the command line is wrong\n"
    "  3  the input file is missing or cannot be read\n"
    "  4  no function has that name\n"
    "  5  a column is unknown, or a line has the wrong number of columns\n"
    "  6  the input is empty\n"
    "  7  raw input ends in the middle of an element\n"
    "  8  the output exists already or cannot be written\n"
    "  9  an internal error\n";

class Error : public std::runtime_error {
 public:
  Error(Exit code, const std::string& message) : std::runtime_error(message), code_(code) {}
  Exit code() const { return code_; }

 private:
  Exit code_;
};

// `text` in quotes, fit for a message on one line: control characters escaped, long text cut.
std::string excerpt(std::string_view text);

}  // namespace dakvm::tool
