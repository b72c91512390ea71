#pragma once

#include <string_view>

namespace ferrowind::embedded {

/// SQL that gives a new database the holiday rules of an office with five currencies: weekends, celebrations
/// and holiday points. The windows are tested with them.
extern const std::string_view kOfficeRules;

}  // namespace ferrowind::embedded
