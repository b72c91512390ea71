// The file that hosts get, against the size that it may have.

#include <filesystem>

#include "bench/measurement.h"

namespace ferrowind::bench {
namespace {

void Run(const Benchmark& benchmark) {
  constexpr double kMegabyte = 1024.0 * 1024.0;
  constexpr double kMostMegabytes = 4;
  const double size = static_cast<double>(std::filesystem::file_size(FERROWIND_STRIPPED)) / kMegabyte;
  benchmark.Report({"Ferrowind.dll without symbols", size, kMostMegabytes, "MB", 1});
}

}  // namespace
}  // namespace ferrowind::bench

int main(int argc, char** argv) { return ferrowind::bench::RunBenchmark(argc, argv, ferrowind::bench::Run); }
