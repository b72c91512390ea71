#include "ferrowind/views/planning/text_index.h"

#include <algorithm>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind {
namespace {

constexpr char kEnd = '\n';

std::string Folded(std::string_view text) {
  std::string folded = platform::FoldCase(text);
  std::replace(folded.begin(), folded.end(), kEnd, ' ');
  return folded;
}

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    if (end > 0) words.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return words;
}

}  // namespace

void TextIndex::Add(std::string_view text) {
  texts_ += Folded(text);
  ends_.push_back(texts_.size());
  texts_ += kEnd;
  // What was found among fewer texts says nothing of this one.
  if (!last_typed_.empty()) FindAll();
  found_.push_back(true);
  ++found_count_;
}

const std::vector<bool>& TextIndex::Having(std::string_view typed) {
  const std::string folded = Folded(typed);
  if (!folded.starts_with(last_typed_)) FindAll();
  for (const std::string_view word : WordsOf(folded)) {
    if (found_count_ > Count() / 4) {
      KeepOfAllThoseWith(word);
    } else {
      KeepThoseWith(word);
    }
  }
  last_typed_ = folded;
  return found_;
}

void TextIndex::FindAll() {
  found_.assign(found_.size(), true);
  found_count_ = found_.size();
  last_typed_.clear();
}

std::string_view TextIndex::Text(std::size_t number) const {
  const std::size_t begin = number == 0 ? 0 : ends_[number - 1] + 1;
  return std::string_view(texts_).substr(begin, ends_[number] - begin);
}

void TextIndex::KeepThoseWith(std::string_view word) {
  for (std::size_t number = 0; number < Count(); ++number) {
    if (!found_[number] || Text(number).find(word) != std::string_view::npos) continue;
    found_[number] = false;
    --found_count_;
  }
}

void TextIndex::KeepOfAllThoseWith(std::string_view word) {
  // One search through everything is many times faster than one for each text.
  const std::string_view all = texts_;
  std::size_t number = 0;
  found_count_ = 0;
  for (std::size_t at = all.find(word); at != std::string_view::npos; at = all.find(word, ends_[number++])) {
    while (ends_[number] < at) found_[number++] = false;
    if (found_[number]) ++found_count_;
  }
  while (number < Count()) found_[number++] = false;
}

}  // namespace ferrowind
