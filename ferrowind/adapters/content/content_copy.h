#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "ferrowind/adapters/content/content_source.h"

namespace ferrowind::content {

/// How far a copy is.
struct CopyProgress {
  enum class Step { kCopying, kComparing };
  Step step;
  /// What is copied or compared now, in the plural.
  std::string_view rows;
  /// Rows of all tables behind, and rows that there are. Each is counted twice: it is copied, then compared.
  std::int64_t done;
  std::int64_t total;
};

/// Is called again and again during a copy; what it throws ends the copy.
using CopyObserver = std::function<void(const CopyProgress&)>;

/// Fills `target` with the content of `source` and compares the two. The target must be a database that was
/// just created, or hold what it would hold then and nothing else: that is what "empty" means here, and it is
/// replaced. A target that is not empty, or is the source itself, a row that the target refuses, and a
/// difference are failures that say what and where. Whoever owns the target's transaction commits it only
/// when this has returned.
void CopyContent(Source& source, Target& target, const CopyObserver& observe = {});

}  // namespace ferrowind::content
