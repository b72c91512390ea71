#include "ferrowind/exchange/list_faults.h"

#include <algorithm>
#include <utility>

#include "ferrowind/exchange/listed_day.h"

namespace ferrowind::exchange {
namespace {

std::string TextOf(const std::vector<ListFault>& faults) {
  std::string text;
  for (std::size_t i = 0; i < faults.size() && i < ListError::kMostTold; ++i) {
    if (i != 0) text += "; ";
    if (faults[i].line != 0) text += LineText(faults[i].line) + ": ";
    text += faults[i].text;
  }
  if (faults.size() > ListError::kMostTold) {
    text += "; and " + std::to_string(faults.size() - ListError::kMostTold) + " more";
  }
  return text;
}

std::vector<ListFault> FirstOf(std::vector<ListFault> faults) {
  if (faults.size() > ListError::kMostTold) faults.resize(ListError::kMostTold);
  return faults;
}

}  // namespace

ListError::ListError(std::vector<ListFault> faults)
    : Failure(platform::failure_number::kInvalidArgument, TextOf(faults)),
      count_(faults.size()),
      faults_(FirstOf(std::move(faults))) {}

void ListFaults::Add(std::size_t line, std::string text) { faults_.push_back({line, std::move(text)}); }

void ListFaults::ThrowIfAny() const {
  if (faults_.empty()) return;
  std::vector<ListFault> faults = faults_;
  std::stable_sort(faults.begin(), faults.end(),
                   [](const ListFault& left, const ListFault& right) { return left.line < right.line; });
  throw ListError(std::move(faults));
}

std::string Quoted(const std::string& text) {
  constexpr std::size_t kMostBytes = 60;
  std::string shown;
  for (const char character : text) {
    // A character that continues one before it belongs to it.
    const bool continues = (static_cast<unsigned char>(character) & 0xC0U) == 0x80;
    if (shown.size() >= kMostBytes && !continues) return "\"" + shown + "...\"";
    shown += static_cast<unsigned char>(character) < ' ' ? ' ' : character;
  }
  return "\"" + shown + "\"";
}

}  // namespace ferrowind::exchange
