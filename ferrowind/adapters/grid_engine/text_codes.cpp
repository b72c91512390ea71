#include "ferrowind/adapters/grid_engine/text_codes.h"

#include <algorithm>
#include <functional>
#include <string>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::grid_engine {

namespace {

constexpr std::size_t kFirstSlots = 256;

struct FoldedText {
  /// The first eight bytes, the first one most significant: decides nearly all comparisons without touching
  /// the text.
  std::uint64_t head = 0;
  std::string text;
  std::uint32_t number = 0;
};

std::uint64_t HeadOf(const std::string& text) {
  std::uint64_t head = 0;
  for (std::size_t i = 0; i < sizeof(head); ++i) {
    head = (head << 8U) | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
  }
  return head;
}

}  // namespace

TextCodes::TextCodes() : slots_(kFirstSlots) {}

std::uint32_t TextCodes::NumberOf(std::string_view text) {
  const std::size_t hash = std::hash<std::string_view>{}(text);
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t place = hash & mask;; place = (place + 1) & mask) {
    Slot& slot = slots_[place];
    if (slot.number_plus_one == 0) {
      texts_.push_back(text);
      hashes_.push_back(hash);
      slot = {hash, static_cast<std::uint32_t>(texts_.size())};
      const std::uint32_t number = slot.number_plus_one - 1;
      if (texts_.size() * 2 > slots_.size()) Grow();
      return number;
    }
    if (slot.hash == hash && texts_[slot.number_plus_one - 1] == text) return slot.number_plus_one - 1;
  }
}

void TextCodes::Grow() {
  slots_.assign(slots_.size() * 4, {});
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t number = 0; number < hashes_.size(); ++number) {
    std::size_t place = hashes_[number] & mask;
    while (slots_[place].number_plus_one != 0) place = (place + 1) & mask;
    slots_[place] = {hashes_[number], static_cast<std::uint32_t>(number + 1)};
  }
}

std::vector<std::uint32_t> TextCodes::Places() const {
  std::vector<FoldedText> folded(texts_.size());
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    folded[i].text = platform::FoldCase(texts_[i]);
    folded[i].head = HeadOf(folded[i].text);
    folded[i].number = static_cast<std::uint32_t>(i);
  }
  std::sort(folded.begin(), folded.end(), [](const FoldedText& left, const FoldedText& right) {
    return left.head != right.head ? left.head < right.head : left.text < right.text;
  });
  std::vector<std::uint32_t> places(texts_.size());
  std::uint32_t place = 0;
  for (std::size_t i = 0; i < folded.size(); ++i) {
    if (i > 0 && folded[i].text != folded[i - 1].text) ++place;
    places[folded[i].number] = place;
  }
  return places;
}

}  // namespace ferrowind::grid_engine
