#include "bench/timed_program.h"

#include <array>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace ferrowind::bench {

TimedProgram::TimedProgram(const char* program, const std::string& calls, const std::string& url) {
  std::array<int, 2> asked{};
  std::array<int, 2> answered{};
  if (pipe(asked.data()) != 0 || pipe(answered.data()) != 0) throw std::runtime_error("there is no pipe");
  process_ = fork();
  if (process_ < 0) throw std::runtime_error("there is no process");
  if (process_ == 0) {
    dup2(asked[0], STDIN_FILENO);
    dup2(answered[1], STDOUT_FILENO);
    for (const int end : {asked[0], asked[1], answered[0], answered[1]}) close(end);
    execl(program, program, calls.c_str(), url.c_str(), nullptr);
    _exit(127);
  }
  close(asked[0]);
  close(answered[1]);
  questions_.reset(fdopen(asked[1], "w"));
  answers_.reset(fdopen(answered[0], "r"));
}

TimedProgram::~TimedProgram() {
  questions_.reset();
  waitpid(process_, nullptr, 0);
}

double TimedProgram::TimeOf(int calls) {
  double time = 0;
  std::fprintf(questions_.get(), "%d\n", calls);
  std::fflush(questions_.get());
  if (std::fscanf(answers_.get(), "%lf", &time) != 1) throw std::runtime_error("the calls were not timed");
  return time;
}

}  // namespace ferrowind::bench
