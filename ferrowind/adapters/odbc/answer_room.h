#pragma once

#include <cstddef>

#include "ferrowind/adapters/postgres_calls/answer_size.h"

namespace ferrowind::odbc {

/// That the answers to a statement take more than they may. No failure of one of them, for nothing more is
/// read.
struct AnswerWithoutEnd {};

/// What all answers to a statement may still take in this program. What a driver keeps of them is its own.
class AnswerRoom {
 public:
  explicit AnswerRoom(std::size_t bytes = postgres::kMostBytesOfAnAnswer) : left_(bytes) {}

  /// Throws `AnswerWithoutEnd` when there is less left.
  void Take(std::size_t bytes) {
    if (bytes > left_) throw AnswerWithoutEnd();
    left_ -= bytes;
  }

 private:
  std::size_t left_;
};

}  // namespace ferrowind::odbc
