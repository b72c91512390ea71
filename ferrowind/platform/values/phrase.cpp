#include "ferrowind/platform/values/phrase.h"

#include <cstddef>
#include <utility>

namespace ferrowind::platform {

Phrase Phrase::Of(std::string text, std::vector<Phrase> arguments) {
  Phrase phrase(std::move(text));
  phrase.is_english_ = true;
  phrase.arguments_ = std::move(arguments);
  return phrase;
}

Phrase Phrase::OfNumber(std::int64_t number, const std::string& one, std::string many,
                        std::vector<Phrase> arguments) {
  Phrase phrase = Of(std::move(many), std::move(arguments));
  phrase.number_ = number;
  phrase.one_ = one;
  return phrase;
}

std::string Phrase::InEnglish() const {
  return In([](const std::string&, const std::optional<std::int64_t>&) { return std::nullopt; });
}

std::string Phrase::In(const Translation& translation) const {
  if (!is_english_ || text_.empty()) return text_;
  const std::string text = translation(text_, number_).value_or(number_ == 1 ? one_ : text_);
  std::string said;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = text[i] == '%' && i + 1 < text.size() ? text[i + 1] : '\0';
    const auto argument = static_cast<std::size_t>(next - '1');
    if (next == 'n' && number_) {
      said += std::to_string(*number_);
      ++i;
    } else if (next >= '1' && next <= '9' && argument < arguments_.size()) {
      said += arguments_[argument].In(translation);
      ++i;
    } else {
      said += text[i];
    }
  }
  return said;
}

}  // namespace ferrowind::platform
