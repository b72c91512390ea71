#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include <sys/types.h>

namespace ferrowind::bench {

/// A running program of bench/timed_calls.cpp, which ends with this object. A program that has ended before
/// is told by an answer that is missing, so SIGPIPE must be ignored.
class TimedProgram {
 public:
  /// `calls` is what it makes: "read" or "change", on the database `url`.
  TimedProgram(const char* program, const std::string& calls, const std::string& url);
  TimedProgram(const TimedProgram&) = delete;
  TimedProgram& operator=(const TimedProgram&) = delete;
  ~TimedProgram();

  /// The milliseconds that so many calls take.
  [[nodiscard]] double TimeOf(int calls);

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  pid_t process_ = -1;
  std::unique_ptr<std::FILE, Closer> questions_;
  std::unique_ptr<std::FILE, Closer> answers_;
};

}  // namespace ferrowind::bench
