#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/row_filter_step.h"

namespace ferrowind::platform {

/// Reads a row filter, written as row_filter.h says, into the steps that decide it; used once.
class FERROWIND_EXPORT RowFilterParser {
 public:
  /// `text` and `fields` must outlive the parser.
  RowFilterParser(std::string_view text, const std::vector<std::string>& fields)
      : text_(text), fields_(fields) {}

  /// The steps, to be taken from the first one on; never none. Failure 3001 as `RowFilter` describes it.
  [[nodiscard]] std::vector<RowFilterStep> Parse();

 private:
  /// The steps of a part of the filter whose way on, when they decide it so, is still open.
  struct OpenEnds {
    std::vector<std::size_t> if_true;
    std::vector<std::size_t> if_false;
  };

  OpenEnds ParseFilter();
  OpenEnds ParseConjunction();
  OpenEnds ParseTerm();
  OpenEnds ParseComparison();
  std::size_t ParseField();
  std::uint8_t ParseOperator();
  RowFilterStep::Literal ParseLiteral();
  RowFilterStep::Literal ParseNumber();
  RowFilterStep::Literal ParseText();
  RowFilterStep::Literal ParseDate();

  void SetTrueTargets(const OpenEnds& ends, std::uint32_t target);
  void SetFalseTargets(const OpenEnds& ends, std::uint32_t target);
  [[nodiscard]] std::uint32_t NextStep() const { return static_cast<std::uint32_t>(steps_.size()); }

  void SkipBlanks();
  [[nodiscard]] bool AtEnd() const { return place_ == text_.size(); }
  /// Moves behind `wanted` when it comes next.
  bool Take(std::string_view wanted);
  /// The word that comes next, empty when none does; not moved over.
  [[nodiscard]] std::string_view PeekWord() const;
  /// Moves behind `wanted` when it is the word that comes next, in any letter case.
  bool TakeWord(std::string_view wanted);

  /// The failure that says what is wrong at the byte `place` of the text.
  [[nodiscard]] Failure NotUnderstood(std::size_t place, const std::string& reason) const;

  std::string_view text_;
  const std::vector<std::string>& fields_;
  std::size_t place_ = 0;
  std::size_t nesting_ = 0;
  std::vector<RowFilterStep> steps_;
};

}  // namespace ferrowind::platform
