#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::exchange {

/// What keeps a list from being read.
struct ListFault {
  /// From 1 on; 0 for the list as a whole.
  std::size_t line = 0;
  /// Without a full stop.
  std::string text;
};

/// The failure of a list that cannot be read: "line 3: ...; line 7: ...".
class ListError : public platform::Failure {
 public:
  /// Precondition: there are faults.
  explicit ListError(std::vector<ListFault> faults);

  /// By line; no more than `kMostTold`, the first ones.
  [[nodiscard]] const std::vector<ListFault>& Faults() const noexcept { return faults_; }

  /// Of all faults, told or not.
  [[nodiscard]] std::size_t Count() const noexcept { return count_; }

  static constexpr std::size_t kMostTold = 20;

 private:
  std::size_t count_;
  std::vector<ListFault> faults_;
};

/// The faults of a list, gathered so that all of them are told at once.
class ListFaults {
 public:
  void Add(std::size_t line, std::string text);
  /// Throws `ListError` when there is any.
  void ThrowIfAny() const;

 private:
  std::vector<ListFault> faults_;
};

/// `text` in quotation marks for a message: on one line, and cut where it is long.
[[nodiscard]] std::string Quoted(const std::string& text);

}  // namespace ferrowind::exchange
