#pragma once

#include <string>
#include <string_view>

namespace ferrowind::almanac {

/// `text` between quotes as a message can show it, whatever its bytes: UTF-8 on one line, of a length that
/// people read.
[[nodiscard]] std::string Quotation(std::string_view text);

}  // namespace ferrowind::almanac
