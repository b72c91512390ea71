#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

namespace ferrowind::bench {

/// One side of a comparison.
struct Contender {
  /// What is timed.
  std::function<void()> run;
  /// Done before each run and not timed; may be empty.
  std::function<void()> prepare = {};
};

/// What ours and the peer took, as medians, and how many times the peer's time ours may take.
struct Measurement {
  std::string name;
  double ours = 0;
  double peer = 0;
  std::string unit;
  double limit = 0;

  [[nodiscard]] double Ratio() const { return ours / peer; }
};

/// Takes the measurements of one benchmark program and reports each as it is taken: a table row to standard
/// output and, with an output file, a line that is a JSON object with `name`, `ours`, `peer`, `unit`,
/// `ratio`, `limit`.
class Benchmark {
 public:
  static constexpr std::size_t kRuns = 15;

  /// Lines are appended to the file `out_file`; none are written when it is empty.
  explicit Benchmark(std::string out_file) : out_file_(std::move(out_file)) {}

  /// Measures the median of `runs` runs of each side in milliseconds, after one run of each that does not
  /// count. The two run in turns, so that a machine that slows down for a while slows both.
  void Compare(const std::string& name, double limit, const Contender& ours, const Contender& peer,
               std::size_t runs = kRuns) const;

  /// As `Compare`, for sides that take the time themselves: each runs once and returns the milliseconds that
  /// count.
  void CompareTimes(const std::string& name, double limit, const std::function<double()>& ours,
                    const std::function<double()>& peer, std::size_t runs = kRuns) const;

  /// Reports a measurement that was taken in another way. Throws std::runtime_error when the file cannot be
  /// written.
  void Report(const Measurement& measurement) const;

 private:
  std::string out_file_;
};

/// The body of a benchmark program's `main`: understands `--out FILE`, runs `body`, and turns an exception
/// into a message and the exit status 1, a wrong argument into 2.
int RunBenchmark(int argc, char** argv, const std::function<void(const Benchmark&)>& body);

/// Uses `result`, so that the compiler cannot leave out the work that it came from.
void KeepResult(std::size_t result);

}  // namespace ferrowind::bench
