#include <cstring>

#include "ferrowind/adapters/sqlite/text_search.h"

namespace ferrowind::sqlite {

std::size_t Find(std::string_view text, std::string_view wanted) noexcept {
  if (wanted.empty()) return 0;
  if (text.size() < wanted.size()) return std::string_view::npos;
  const void* const found = memmem(text.data(), text.size(), wanted.data(), wanted.size());
  return found == nullptr ? std::string_view::npos
                          : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

}  // namespace ferrowind::sqlite
