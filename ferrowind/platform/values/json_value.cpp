#include "ferrowind/platform/values/json_value.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "ferrowind/platform/values/utf8_text.h"

namespace ferrowind::platform {
namespace {

constexpr int kDeepest = 100;

/// Thrown where the text is no JSON, and caught where its reading began.
struct NoJson {};

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  JsonValue ReadAll() {
    JsonValue value = ReadValue(0);
    SkipBlanks();
    if (place_ != text_.size()) throw NoJson();
    return value;
  }

  [[nodiscard]] std::size_t Place() const { return place_; }

 private:
  JsonValue ReadValue(int depth) {
    if (depth > kDeepest) throw NoJson();
    SkipBlanks();
    JsonValue value;
    value.place = place_;
    switch (Next()) {
      case '{':
        ReadMembers(value, depth);
        break;
      case '[':
        ReadItems(value, depth);
        break;
      case '"':
        value.kind = JsonValue::Kind::kText;
        value.text = ReadText();
        break;
      case 't':
      case 'f':
        value.kind = JsonValue::Kind::kTruth;
        value.text = ReadWord(Next() == 't' ? "true" : "false");
        break;
      case 'n':
        ReadWord("null");
        break;
      default:
        value.kind = JsonValue::Kind::kNumber;
        value.text = ReadNumber();
    }
    return value;
  }

  void ReadMembers(JsonValue& object, int depth) {
    object.kind = JsonValue::Kind::kObject;
    ++place_;
    if (TakesAfterBlanks('}')) return;
    do {
      SkipBlanks();
      object.names.push_back(ReadText());
      if (!TakesAfterBlanks(':')) throw NoJson();
      object.items.push_back(ReadValue(depth + 1));
    } while (TakesAfterBlanks(','));
    if (!TakesAfterBlanks('}')) throw NoJson();
  }

  void ReadItems(JsonValue& list, int depth) {
    list.kind = JsonValue::Kind::kList;
    ++place_;
    if (TakesAfterBlanks(']')) return;
    do {
      list.items.push_back(ReadValue(depth + 1));
    } while (TakesAfterBlanks(','));
    if (!TakesAfterBlanks(']')) throw NoJson();
  }

  std::string ReadWord(std::string_view word) {
    if (text_.substr(place_, word.size()) != word) throw NoJson();
    place_ += word.size();
    return std::string(word);
  }

  std::string ReadNumber() {
    const std::size_t start = place_;
    Takes('-');
    if (!Takes('0')) ReadDigits();
    if (Takes('.')) ReadDigits();
    if (Takes('e') || Takes('E')) {
      if (!Takes('+')) Takes('-');
      ReadDigits();
    }
    return std::string(text_.substr(start, place_ - start));
  }

  void ReadDigits() {
    if (!IsDigit(Next())) throw NoJson();
    while (place_ < text_.size() && IsDigit(text_[place_])) ++place_;
  }

  std::string ReadText() {
    if (!Takes('"')) throw NoJson();
    std::string text;
    while (!Takes('"')) {
      const char character = Next();
      ++place_;
      if (static_cast<unsigned char>(character) < 0x20) throw NoJson();
      if (character == '\\') {
        ReadEscape(text);
      } else {
        text += character;
      }
    }
    return text;
  }

  void ReadEscape(std::string& text) {
    constexpr std::string_view kLetters = "\"\\/bfnrt";
    constexpr std::string_view kMeanings = "\"\\/\b\f\n\r\t";
    const char letter = Next();
    ++place_;
    if (letter == 'u') return AppendUtf8(ReadCodePoint(), text);
    const std::size_t meaning = kLetters.find(letter);
    if (meaning == std::string_view::npos) throw NoJson();
    text += kMeanings[meaning];
  }

  std::uint32_t ReadCodePoint() {
    const std::uint32_t first = ReadHexadecimal();
    if (first == 0 || (first >= 0xDC00 && first < 0xE000)) throw NoJson();
    if (first < 0xD800 || first >= 0xE000) return first;
    ReadWord("\\u");
    const std::uint32_t second = ReadHexadecimal();
    if (second < 0xDC00 || second >= 0xE000) throw NoJson();
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
  }

  std::uint32_t ReadHexadecimal() {
    constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i, ++place_) {
      const std::size_t digit = kDigits.find(Next());
      if (digit == std::string_view::npos) throw NoJson();
      number = number * 16 + static_cast<std::uint32_t>(digit < 16 ? digit : digit - 6);
    }
    return number;
  }

  [[nodiscard]] char Next() const {
    if (place_ == text_.size()) throw NoJson();
    return text_[place_];
  }

  bool Takes(char character) {
    if (place_ == text_.size() || text_[place_] != character) return false;
    ++place_;
    return true;
  }

  bool TakesAfterBlanks(char character) {
    SkipBlanks();
    return Takes(character);
  }

  void SkipBlanks() { place_ = std::min(text_.find_first_not_of(" \t\r\n", place_), text_.size()); }

  std::string_view text_;
  std::size_t place_ = 0;
};

}  // namespace

std::optional<JsonValue> ReadJson(std::string_view text) { return ReadJsonAndPlace(text).value; }

JsonReading ReadJsonAndPlace(std::string_view text) {
  Reader reader(text);
  try {
    JsonValue value = reader.ReadAll();
    return {std::move(value), reader.Place()};
  } catch (const NoJson&) {
    return {std::nullopt, reader.Place()};
  }
}

const JsonValue* JsonValue::Find(std::string_view name) const {
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? nullptr : &items[static_cast<std::size_t>(found - names.begin())];
}

}  // namespace ferrowind::platform
