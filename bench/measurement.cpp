#include "bench/measurement.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace ferrowind::bench {
namespace {

double MillisecondsOf(const Contender& contender) {
  if (contender.prepare) contender.prepare();
  const auto start = std::chrono::steady_clock::now();
  contender.run();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double MedianOf(std::vector<double> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

}  // namespace

void Benchmark::Compare(const std::string& name, double limit, const Contender& ours, const Contender& peer,
                        std::size_t runs) const {
  CompareTimes(
      name, limit, [&] { return MillisecondsOf(ours); }, [&] { return MillisecondsOf(peer); }, runs);
}

void Benchmark::CompareTimes(const std::string& name, double limit, const std::function<double()>& ours,
                             const std::function<double()>& peer, std::size_t runs) const {
  std::vector<double> ours_times;
  std::vector<double> peer_times;
  ours();
  peer();
  for (std::size_t run = 0; run < std::max<std::size_t>(runs, 1); ++run) {
    ours_times.push_back(ours());
    peer_times.push_back(peer());
  }
  Report({name, MedianOf(std::move(ours_times)), MedianOf(std::move(peer_times)), "ms", limit});
}

void Benchmark::Report(const Measurement& measurement) const {
  std::printf("%-58s %10.3f %10.3f %-4s %7.2f %7.2f  %s\n", measurement.name.c_str(), measurement.ours,
              measurement.peer, measurement.unit.c_str(), measurement.Ratio(), measurement.limit,
              measurement.Ratio() <= measurement.limit ? "within" : "OVER");
  std::fflush(stdout);
  if (out_file_.empty()) return;
  const nlohmann::ordered_json line = {{"name", measurement.name},     {"ours", measurement.ours},
                                       {"peer", measurement.peer},     {"unit", measurement.unit},
                                       {"ratio", measurement.Ratio()}, {"limit", measurement.limit}};
  std::ofstream file(out_file_, std::ios::app);
  file << line.dump() << '\n' << std::flush;
  if (!file) throw std::runtime_error("cannot write " + out_file_);
}

int RunBenchmark(int argc, char** argv, const std::function<void(const Benchmark&)>& body) {
  std::string out_file;
  if (argc == 3 && std::string_view(argv[1]) == "--out") {
    out_file = argv[2];
  } else if (argc != 1) {
    std::fprintf(stderr, "usage: %s [--out FILE]\n", argv[0]);
    return 2;
  }
  try {
    body(Benchmark(out_file));
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
  }
}

void KeepResult(std::size_t result) {
  [[maybe_unused]] static volatile std::size_t kept = 0;
  kept = result;
}

}  // namespace ferrowind::bench
