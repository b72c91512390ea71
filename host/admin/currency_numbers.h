#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace ferrowind::host {

/// The code of the currency that has the number in ISO 4217; what is thrown says that there is none.
using CodeOfNumber = std::function<std::string(std::int32_t number)>;

/// `text`, which names currencies by codes as "EUR", "EUR,USD", "EUR/USD" and "EURUSD" do, with the codes of
/// those that it names by their numbers: "978", "978,840", "978/840", "978840". What is neither stays as it
/// is. Throws what `code_of_number` does.
[[nodiscard]] std::string WithCodes(std::string_view text, const CodeOfNumber& code_of_number);

}  // namespace ferrowind::host
