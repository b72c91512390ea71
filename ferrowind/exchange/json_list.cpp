#include "ferrowind/exchange/json_list.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>
#include <utility>

#include "ferrowind/exchange/list_entry.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/platform/values/json_text.h"
#include "ferrowind/platform/values/json_value.h"

namespace ferrowind::exchange {
namespace {

using platform::JsonValue;

/// Tells lines of ascending places of a text.
class LineCounter {
 public:
  explicit LineCounter(std::string_view text) : text_(text) {}

  std::size_t LineOf(std::size_t place) {
    place = std::min(place, text_.size());
    for (; place_ < place; ++place_) {
      if (text_[place_] == '\n') ++line_;
    }
    return line_;
  }

 private:
  std::string_view text_;
  std::size_t place_ = 0;
  std::size_t line_ = 1;
};

const JsonValue& ListIn(const JsonValue& whole) {
  if (whole.kind == JsonValue::Kind::kList) return whole;
  for (const std::string_view name : {"days", "holidays", "events"}) {
    const JsonValue* const list = whole.Find(name);
    if (list != nullptr && list->kind == JsonValue::Kind::kList) return *list;
  }
  throw ListError({{1, "a list of days is expected, or an object with the member \"days\""}});
}

class Reader {
 public:
  explicit Reader(std::string_view text) : lines_(text) {}

  DayList Read(const JsonValue& whole) {
    for (const JsonValue& day : ListIn(whole).items) {
      const std::size_t line = lines_.LineOf(day.place);
      if (day.kind == JsonValue::Kind::kText) {
        TakeEntry({line, day.text}, list_, faults_);
      } else if (day.kind == JsonValue::Kind::kObject) {
        TakeObject(day, line);
      } else {
        faults_.Add(line,
                    "a day is expected: a date in quotation marks, or an object with the member \"date\"");
      }
    }
    faults_.ThrowIfAny();
    return std::move(list_);
  }

 private:
  void TakeObject(const JsonValue& day, std::size_t line) {
    constexpr std::array<std::string_view, 5> kMembers = {"date", "name", "type", "currency", "weekday"};
    std::array<std::string_view, kMembers.size()> texts;
    std::array<bool, kMembers.size()> is_there{};
    for (std::size_t i = 0; i < day.names.size(); ++i) {
      const auto* const known = std::find(kMembers.begin(), kMembers.end(), day.names[i]);
      if (known == kMembers.end()) {
        if (others_.insert(day.names[i]).second && others_.size() <= kMostOthers) {
          list_.remarks.push_back("The member " + Quoted(day.names[i]) + " is left out");
        }
        continue;
      }
      const auto member = static_cast<std::size_t>(known - kMembers.begin());
      const JsonValue& value = day.items[i];
      if (is_there.at(member)) {
        return faults_.Add(line, "the member " + Quoted(day.names[i]) + " is there twice");
      }
      is_there.at(member) = true;
      if (value.kind == JsonValue::Kind::kNull) continue;
      if (value.kind != JsonValue::Kind::kText) {
        return faults_.Add(line, "the member " + Quoted(day.names[i]) + " is no text");
      }
      texts.at(member) = value.text;
    }
    if (texts[0].empty()) return faults_.Add(line, "the day has no member \"date\"");
    TakeEntry({line, texts[0], texts[1], texts[2], texts[3]}, list_, faults_);
  }

  static constexpr std::size_t kMostOthers = 10;
  LineCounter lines_;
  DayList list_;
  ListFaults faults_;
  std::set<std::string> others_;
};

}  // namespace

DayList ReadJsonList(std::string_view text) {
  const platform::JsonReading reading = platform::ReadJsonAndPlace(text);
  if (!reading.value) {
    throw ListError({{LineCounter(text).LineOf(reading.place), "this is no JSON"}});
  }
  return Reader(text).Read(*reading.value);
}

std::string WriteJsonList(const DayList& list) {
  std::string text = "[";
  for (const ListedDay& day : list.days) {
    text += text.size() == 1 ? "\n" : ",\n";
    text += R"({"date": )" + platform::JsonText(day.date.ToIso());
    text += R"(, "name": )" + platform::JsonText(day.name);
    text += R"(, "type": )" + platform::JsonText(TextOf(day.kind));
    text += R"(, "currency": )" + platform::JsonText(day.currency) + "}";
  }
  return text + "\n]\n";
}

}  // namespace ferrowind::exchange
