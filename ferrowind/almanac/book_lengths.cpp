#include "ferrowind/almanac/book_lengths.h"

#include <string>
#include <utility>

#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind::almanac {

using platform::LimitedText;
using platform::Phrase;

std::vector<Phrase> LengthFaultsOf(const RuleBook& book, const std::vector<std::size_t>& lines) {
  std::vector<Phrase> faults;
  for (const auto& [what, text] : {std::pair(LimitedText::kPublisher, &book.publisher),
                                   std::pair(LimitedText::kDocument, &book.document)}) {
    if (auto fault = platform::TooLong(what, *text)) faults.push_back(std::move(*fault));
  }
  for (std::size_t position = 0; position < book.rules.size(); ++position) {
    const BookRule& rule = book.rules[position];
    const std::string expression = rule.expression.ToText();
    const Phrase place = position < lines.size() ? Phrase::Of("Line %1", {std::to_string(lines[position])})
                                                 : Phrase::Of("Rule %1", {std::to_string(position + 1)});
    for (const auto& [what, text] :
         {std::pair(LimitedText::kName, &rule.name), std::pair(LimitedText::kExpression, &expression),
          std::pair(LimitedText::kComment, &rule.comment),
          std::pair(LimitedText::kMovedName, &rule.moved_name)}) {
      if (auto fault = platform::TooLong(what, *text))
        faults.push_back(Phrase::Of("%1: %2", {place, std::move(*fault)}));
    }
  }
  return faults;
}

}  // namespace ferrowind::almanac
