#include "file_io.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <utility>

#include "error.hpp"

namespace dakvm::tool {
namespace {

constexpr int ending_signals[] = {SIGHUP, SIGINT, SIGTERM};

// The unfinished output file, for the signal handler; empty when there is none.
char unfinished[4096];

extern "C" void remove_unfinished(int signal) {
  if (unfinished[0] != '\0') unlink(unfinished);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

// Holds the ending signals back while `unfinished` and the file system disagree.
class SignalsHeld {
 public:
  SignalsHeld() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : ending_signals) sigaddset(&set, signal);
    sigprocmask(SIG_BLOCK, &set, &before_);
  }
  ~SignalsHeld() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;

 private:
  sigset_t before_;
};

mode_t default_mode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

}  // namespace

void install_signal_handlers() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  for (const int signal : ending_signals)
    if (std::signal(signal, remove_unfinished) == SIG_IGN) std::signal(signal, SIG_IGN);
}

InputFile::InputFile(const std::string& path)
    : name_(path == "-" ? "standard input" : path),
      fd_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
  if (fd_ < 0) throw Error(Exit::unreadable, name_ + ": cannot open: " + std::strerror(errno));
  struct stat status;
  if (fstat(fd_, &status) == 0 && S_ISREG(status.st_mode)) size_ = status.st_size;
}

InputFile::~InputFile() {
  if (fd_ != STDIN_FILENO) close(fd_);
}

size_t InputFile::read_some(char* to, size_t length) {
  ssize_t got;
  do {
    got = read(fd_, to, length);
  } while (got < 0 && errno == EINTR);
  if (got < 0) throw Error(Exit::unreadable, name_ + ": cannot read: " + std::strerror(errno));
  position_ += got;
  return got;
}

size_t InputFile::read_all(char* to, size_t length) {
  size_t have = 0;
  while (have < length) {
    const size_t got = read_some(to + have, length - have);
    if (got == 0) break;
    have += got;
  }
  return have;
}

bool LineReader::refill() {
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  if (end_ == buffer_.size()) {
    if (end_ >= longest_line)
      throw Error(Exit::columns, file_.name() + ":" + std::to_string(next_number_) +
                                     ": a line of " + "more than " + std::to_string(longest_line) +
                                     " bytes" + (quotes_ ? "; is a quote not closed?" : ""));
    buffer_.resize(2 * buffer_.size());
  }
  const size_t got = file_.read_some(buffer_.data() + end_, buffer_.size() - end_);
  end_ += got;
  return got != 0;
}

bool LineReader::next(std::string_view& line) {
  size_t seen = 0;  // bytes of the line that were looked at
  bool in_quotes = false;
  number_ = next_number_;
  for (;;) {
    const char* const from = buffer_.data() + begin_ + seen;
    const size_t left = end_ - begin_ - seen;
    const auto* const stop = static_cast<const char*>(std::memchr(from, '\n', left));
    const size_t length = stop ? stop + 1 - from : left;
    if (quotes_ && std::memchr(from, '"', length))
      in_quotes ^= std::count(from, from + length, '"') % 2 != 0;
    seen += length;
    next_number_ += stop != nullptr;
    if ((stop && !in_quotes) || (!stop && !refill())) break;
  }
  if (in_quotes)
    throw Error(Exit::columns, file_.name() + ":" + std::to_string(number_) +
                                   ": a quote is opened here and never closed");
  line = {buffer_.data() + begin_, seen};
  begin_ += seen;
  return seen != 0;
}

OutputFile::OutputFile(const std::string& path, bool force)
    : name_(path == "-" ? "standard output" : path),
      target_(path),
      fd_(STDOUT_FILENO),
      force_(force),
      buffer_(buffer_size) {
  if (path == "-") return;
  struct stat status;
  const bool exists = stat(path.c_str(), &status) == 0;
  if (exists && S_ISDIR(status.st_mode)) fail(EISDIR);
  if (exists && !S_ISREG(status.st_mode)) {
    fd_ = open(path.c_str(), O_WRONLY | O_CLOEXEC);
    if (fd_ < 0) fail(errno);
    return;
  }
  if (exists && !force)
    throw Error(Exit::unwritable, name_ + " exists already; --force replaces it");
  if (exists) target_ = std::filesystem::canonical(path);  // a link stays a link

  const std::string pattern = target_ + ".XXXXXX";
  if (pattern.size() >= sizeof unfinished) fail(ENAMETOOLONG);
  {
    SignalsHeld held;
    pattern.copy(unfinished, pattern.size());
    unfinished[pattern.size()] = '\0';
    fd_ = mkostemp(unfinished, O_CLOEXEC);
    if (fd_ < 0) unfinished[0] = '\0';
  }
  if (fd_ < 0) fail(errno);
  temporary_ = true;
  fchmod(fd_, exists ? status.st_mode & 07777 : default_mode());
}

OutputFile::~OutputFile() {
  if (fd_ != STDOUT_FILENO) close(fd_);
  if (temporary_) {
    SignalsHeld held;
    unlink(unfinished);
    unfinished[0] = '\0';
  }
}

void OutputFile::fail(int error) const {
  throw Error(Exit::unwritable, name_ + ": cannot write: " + std::strerror(error));
}

void OutputFile::write_out(const char* from, size_t length) {
  while (length > 0) {
    const ssize_t done = write(fd_, from, length);
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) fail(errno);
    from += done;
    length -= done;
  }
}

char* OutputFile::reserve(size_t length) {
  if (buffer_.size() - used_ < length) {
    write_out(buffer_.data(), used_);
    used_ = 0;
  }
  return buffer_.data() + used_;
}

void OutputFile::append(std::string_view text) {
  while (!text.empty()) {
    const size_t part = std::min(text.size(), buffer_size);
    char* const to = reserve(part);
    text.copy(to, part);
    advance(to + part);
    text.remove_prefix(part);
  }
}

void OutputFile::commit() {
  write_out(buffer_.data(), used_);
  used_ = 0;
  if (fd_ != STDOUT_FILENO) {
    if (close(std::exchange(fd_, STDOUT_FILENO)) != 0) fail(errno);
  }
  if (!temporary_) return;
  SignalsHeld held;
  const char* const target = target_.c_str();
  const auto error_of = [](int result) { return result == 0 ? 0 : errno; };
  int problem =
      error_of(renameat2(AT_FDCWD, unfinished, AT_FDCWD, target, force_ ? 0 : RENAME_NOREPLACE));
  if (problem == EINVAL)  // a file system that does not know RENAME_NOREPLACE
    problem = access(target, F_OK) == 0 ? EEXIST : error_of(rename(unfinished, target));
  if (problem != 0) fail(problem);
  temporary_ = false;
  unfinished[0] = '\0';
}

}  // namespace dakvm::tool
