#include "ferrowind/adapters/chain/problem_list.h"

namespace ferrowind::chain {

void ProblemList::Add(std::string problem) {
  constexpr std::size_t kMost = 100;
  if (problems_.size() < kMost) {
    problems_.push_back(std::move(problem));
  } else {
    ++others_;
  }
}

std::vector<std::string> ProblemList::Take() {
  if (others_ != 0) {
    problems_.push_back("The history has " + std::to_string(others_) + " more faults of these kinds");
  }
  return std::move(problems_);
}

}  // namespace ferrowind::chain
