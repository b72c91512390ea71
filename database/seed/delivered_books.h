#pragma once

#include <span>
#include <string_view>

/// The rule books and date tables that come with the program, as the build found them in database/seed.
namespace ferrowind::embedded {

struct DeliveredText {
  /// The file's name without its ending: the currency of a book ("EUR"), the name of a table.
  std::string_view name;
  std::string_view text;
};

/// In the order of CMakeLists.txt. The texts are always there.
[[nodiscard]] std::span<const DeliveredText> DeliveredBooks();
[[nodiscard]] std::span<const DeliveredText> DeliveredTables();

}  // namespace ferrowind::embedded
