#include "worker_process.hpp"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <stdexcept>

namespace dakvm::accuracy {
namespace {

// The worker lies beside this program.
std::string worker_path() {
  return std::filesystem::read_symlink("/proc/self/exe")
      .replace_filename("dakvm-accuracy-worker")
      .string();
}

[[noreturn]] void fail(const std::string& what) {
  throw std::runtime_error(what + ": " + std::strerror(errno));
}

}  // namespace

Worker::Worker(const std::string& library) {
  const std::string path = worker_path();
  int request[2], reply[2];
  if (pipe2(request, O_CLOEXEC) != 0 || pipe2(reply, O_CLOEXEC) != 0) fail("pipe");
  process_ = fork();
  if (process_ < 0) fail("fork");
  if (process_ == 0) {
    dup2(request[0], STDIN_FILENO);
    dup2(reply[1], STDOUT_FILENO);
    execl(path.c_str(), path.c_str(), library.empty() ? nullptr : library.c_str(), nullptr);
    std::perror(path.c_str());
    _exit(127);
  }
  close(request[0]);
  close(reply[1]);
  to_ = request[1];
  from_ = reply[0];
  signal(SIGPIPE, SIG_IGN);
  Hello hello;
  read_all(&hello, sizeof hello);
  if (hello.magic != hello_magic) throw std::runtime_error(path + " is no worker");
  version_ = hello.version;
}

Worker::~Worker() {
  close(to_);
  close(from_);
  waitpid(process_, nullptr, 0);
}

void Worker::write_all(const void* from, size_t length) {
  const char* at = static_cast<const char*>(from);
  while (length > 0) {
    const ssize_t done = write(to_, at, length);
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) throw std::runtime_error("the worker has ended");
    at += done;
    length -= static_cast<size_t>(done);
  }
}

void Worker::read_all(void* to, size_t length) {
  char* at = static_cast<char*>(to);
  while (length > 0) {
    const ssize_t done = read(from_, at, length);
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) throw std::runtime_error("the worker has ended");
    at += done;
    length -= static_cast<size_t>(done);
  }
}

void Worker::send(const Function& function, Modes modes, Calls calls, size_t count,
                  bool consecutive) {
  Request request{};
  function.name.copy(request.function, sizeof request.function - 1);
  request.count = static_cast<uint32_t>(count);
  request.calls = calls;
  request.rounding = modes.rounding;
  request.precision = modes.precision;
  request.consecutive = consecutive;
  write_all(&request, sizeof request);
}

template <class T>
void Worker::receive(const Function& function, Calls calls, size_t count, Outputs<T>& outputs) {
  Reply reply;
  read_all(&reply, sizeof reply);
  if (reply.known == 0) throw std::runtime_error("the library has no function " + function.name);
  for (int d = 0; d < function.destinations(); ++d) {
    outputs.out[d].resize(count);
    read_all(outputs.out[d].data(), count * sizeof(T));
  }
  const size_t reports = calls == Calls::single ? count : 1;
  outputs.statuses.resize(reports);
  outputs.flags.resize(reports);
  read_all(outputs.statuses.data(), reports);
  read_all(outputs.flags.data(), reports);
}

template <class T>
void Worker::evaluate(const Function& function, Modes modes, Calls calls, const Inputs<T>& inputs,
                      size_t first, size_t count, Outputs<T>& outputs) {
  send(function, modes, calls, count, false);
  for (int s = 0; s < function.sources(); ++s)
    write_all(inputs.in[s].data() + first, count * sizeof(T));
  receive(function, calls, count, outputs);
}

template <class T>
void Worker::evaluate_from(const Function& function, Calls calls, Word<T> first, size_t count,
                           Outputs<T>& outputs) {
  send(function, {}, calls, count, true);
  write_all(&first, sizeof first);
  receive(function, calls, count, outputs);
}

template void Worker::evaluate(const Function&, Modes, Calls, const Inputs<double>&, size_t, size_t,
                               Outputs<double>&);
template void Worker::evaluate(const Function&, Modes, Calls, const Inputs<float>&, size_t, size_t,
                               Outputs<float>&);
template void Worker::evaluate_from(const Function&, Calls, uint32_t, size_t, Outputs<float>&);

namespace {

template <class T>
uint64_t fingerprint_as(Worker& worker, const Function& function) {
  constexpr size_t count = 1 << 18;
  Inputs<T> inputs;
  uint64_t state = 0x9e3779b97f4a7c15;
  for (auto& words : inputs.in)
    while (words.size() < count) {
      state ^= state << 13, state ^= state >> 7, state ^= state << 17;
      words.push_back(static_cast<Word<T>>(state >> (64 - 8 * sizeof(T))));
      words.push_back(
          word_of(static_cast<T>(function.low + (function.high - function.low) *
                                                    static_cast<double>(state >> 11) * 0x1p-53)));
    }
  Outputs<T> outputs;
  worker.evaluate(function, {}, Calls::single, inputs, outputs);
  uint64_t hash = state;
  const auto add = [&](uint64_t word) {
    hash = (hash ^ word) * 0x9e3779b97f4a7c15;
    hash ^= hash >> 32;
  };
  for (size_t i = 0; i < count; ++i) {
    for (int d = 0; d < function.destinations(); ++d) add(outputs.out[d][i]);
    add(static_cast<uint64_t>(static_cast<uint8_t>(outputs.statuses[i])) << 8 | outputs.flags[i]);
  }
  return hash;
}

}  // namespace

uint64_t fingerprint(Worker& worker, const Function& function) {
  return function.is_single() ? fingerprint_as<float>(worker, function)
                              : fingerprint_as<double>(worker, function);
}

}  // namespace dakvm::accuracy
