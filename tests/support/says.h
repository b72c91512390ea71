#pragma once

#include <gmock/gmock.h>

namespace ferrowind::testing {

/// Matches a phrase (platform/values/phrase.h) by what it is in English: a text or a matcher of texts.
MATCHER_P(Says, english, "") {
  return ::testing::ExplainMatchResult(english, arg.InEnglish(), result_listener);
}

}  // namespace ferrowind::testing
