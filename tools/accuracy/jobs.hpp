// Work in several processes: tasks are dealt out one by one, each process answers with a record.
#pragma once

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <type_traits>
#include <vector>

namespace dakvm::accuracy {

// `prepare` runs once in each process and returns what computes a task's Result; `done(task,
// result)` runs here, as results arrive.
template <class Result, class Prepare, class Done>
void run_jobs(const std::vector<uint32_t>& tasks, int jobs, Prepare prepare, Done done) {
  static_assert(std::is_trivially_copyable_v<Result>);
  struct Answer {
    uint32_t task;
    Result result;
  };
  struct Process {
    pid_t id;
    int to, from;
  };
  const auto transfer_all = [](auto transfer, int file, auto* at, size_t length) {
    while (length > 0) {
      const ssize_t part = transfer(file, at, length);
      if (part <= 0) return false;
      at += part;
      length -= static_cast<size_t>(part);
    }
    return true;
  };
  const auto write_all = [&](int file, const void* from, size_t length) {
    return transfer_all(write, file, static_cast<const char*>(from), length);
  };
  const auto read_all = [&](int file, void* to, size_t length) {
    return transfer_all(read, file, static_cast<char*>(to), length);
  };

  std::vector<Process> processes;
  size_t next = 0, outstanding = 0;
  const auto deal = [&](const Process& p) {
    if (next == tasks.size()) return;
    if (!write_all(p.to, &tasks[next], sizeof tasks[next]))
      throw std::runtime_error("a process has ended");
    ++next;
    ++outstanding;
  };
  std::fflush(nullptr);
  for (int j = 0; j < jobs && static_cast<size_t>(j) < tasks.size(); ++j) {
    int task_pipe[2], answer_pipe[2];
    if (pipe(task_pipe) != 0 || pipe(answer_pipe) != 0) throw std::runtime_error("no pipe");
    const pid_t id = fork();
    if (id < 0) throw std::runtime_error("no process");
    if (id == 0) {
      close(task_pipe[1]);
      close(answer_pipe[0]);
      for (const Process& p : processes) close(p.to), close(p.from);
      int code = 0;
      try {
        auto compute = prepare();
        for (Answer answer; read_all(task_pipe[0], &answer.task, sizeof answer.task);) {
          answer.result = compute(answer.task);
          if (!write_all(answer_pipe[1], &answer, sizeof answer)) break;
        }
      } catch (const std::exception& e) {
        std::fprintf(stderr, "dakvm-accuracy: %s\n", e.what());
        code = 1;
      }
      // The destructors have run; the parent's buffers are not this process's to flush.
      _exit(code);
    }
    close(task_pipe[0]);
    close(answer_pipe[1]);
    processes.push_back({id, task_pipe[1], answer_pipe[0]});
  }
  bool lost = false;
  for (const Process& p : processes) deal(p);
  while (outstanding > 0 && !lost) {
    std::vector<pollfd> waiting;
    for (const Process& p : processes) waiting.push_back({p.from, POLLIN, 0});
    if (poll(waiting.data(), waiting.size(), -1) < 0) continue;
    for (size_t p = 0; p < processes.size() && !lost; ++p) {
      if (waiting[p].revents == 0) continue;
      Answer answer;
      lost = !read_all(processes[p].from, &answer, sizeof answer);
      if (lost) break;
      --outstanding;
      done(answer.task, answer.result);
      deal(processes[p]);
      if (outstanding == 0) break;
    }
  }
  for (const Process& p : processes) close(p.to), close(p.from);
  for (const Process& p : processes) waitpid(p.id, nullptr, 0);
  if (lost) throw std::runtime_error("a measuring process has ended");
}

}  // namespace dakvm::accuracy
