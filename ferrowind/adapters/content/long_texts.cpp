#include "ferrowind/adapters/content/long_texts.h"

#include <cstddef>
#include <string_view>

#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind::content {
namespace {

struct LimitedColumn {
  std::string_view table;
  std::string_view column;
  std::size_t most;
  /// An expression: the text's name, in front of "has ... characters".
  std::string_view subject;
};

constexpr LimitedColumn kColumns[] = {
    {"DicCcy", "Name", platform::kLongestName, "'The name of the currency ' || Ccy"},
    {"CldHoliday", "Name1", platform::kLongestName, "'The name of the rule ' || ID2"},
    {"CldHoliday", "Comment", platform::kLongestComment, "'The comment of the rule ' || ID2"},
    {"CldBook", "Publisher", platform::kLongestName, "'The publisher of the rule book of ' || {code}"},
    {"CldBook", "Document", platform::kLongestComment, "'The document of the rule book of ' || {code}"},
    {"CldRecurrence", "Name1", platform::kLongestName,
     "'The name of the rule ' || Position || ' of the rule book of ' || {code}"},
    {"CldRecurrence", "MovedName", platform::kLongestName,
     "'The name of the moved day of the rule ' || Position || ' of the rule book of ' || {code}"},
    {"CldRecurrence", "Expression", platform::kLongestComment,
     "'The expression of the rule ' || Position || ' of the rule book of ' || {code}"},
    {"CldRecurrence", "Comment", platform::kLongestComment,
     "'The comment of the rule ' || Position || ' of the rule book of ' || {code}"},
    {"CldDay", "Comment", platform::kLongestComment,
     "'The comment of the day ' || ODate || ' of the calendar of ' || {code}"},
};

std::string Replaced(std::string text, std::string_view place, const std::string& by) {
  for (std::size_t at = text.find(place); at != std::string::npos; at = text.find(place, at + by.size())) {
    text.replace(at, place.size(), by);
  }
  return text;
}

}  // namespace

std::vector<std::string> LongTextQuestions(const std::string& schema, const std::string& length) {
  // By its number where a broken database lacks the currency.
  const std::string code =
      "coalesce((SELECT c.Ccy FROM " + schema + "DicCcy c WHERE c.CcyID = t.ID1), t.ID1 || '')";
  std::vector<std::string> questions;
  for (const LimitedColumn& limited : kColumns) {
    const std::string characters = length + "(t." + std::string(limited.column) + ")";
    const std::string most = std::to_string(limited.most);
    questions.push_back("SELECT " + Replaced(std::string(limited.subject), "{code}", code) +
                        " || ' has ' || " + characters + " || ' characters; it may have " + most +
                        " at most' FROM " + schema + std::string(limited.table) + " t WHERE " + characters +
                        " > " + most + " ORDER BY 1");
  }
  return questions;
}

}  // namespace ferrowind::content
