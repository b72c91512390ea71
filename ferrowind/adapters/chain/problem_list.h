#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace ferrowind::chain {

/// Sentences about what is wrong. Of very many, which one change can cause, the first are kept and the others
/// counted.
class ProblemList {
 public:
  void Add(std::string problem);
  /// Called once.
  [[nodiscard]] std::vector<std::string> Take();

 private:
  std::vector<std::string> problems_;
  std::size_t others_ = 0;
};

}  // namespace ferrowind::chain
