#include "ferrowind/adapters/postgres/delivered_catalogue.h"

#include <map>
#include <string>
#include <string_view>

#include "ferrowind/adapters/postgres/delivered_scripts.h"

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {
namespace {

using std::string_view;

/// Takes off `rest` what stands in front of the next `end`, and `end`; all of it where there is none.
string_view TakeUntil(string_view& rest, string_view end) {
  const auto place = rest.find(end);
  const string_view taken = rest.substr(0, place);
  rest.remove_prefix(place == string_view::npos ? rest.size() : place + end.size());
  return taken;
}

/// As the server keeps a name that is written without quotes.
std::string Folded(string_view name) {
  std::string folded(name);
  for (char& c : folded) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return folded;
}

/// The texts of the routines that a script creates, by name, and by name and arguments as they are written:
/// each is written CREATE [OR REPLACE] FUNCTION or PROCEDURE at the beginning of a line, with its text
/// between two $$. Where several have a name, their arguments are written as the catalogue has them.
void AddRoutineTexts(string_view script, std::map<std::string, string_view>& texts) {
  constexpr string_view kBeginnings[] = {"CREATE FUNCTION ", "CREATE PROCEDURE ",
                                         "CREATE OR REPLACE FUNCTION ", "CREATE OR REPLACE PROCEDURE "};
  while (!script.empty()) {
    for (const string_view beginning : kBeginnings) {
      if (!script.starts_with(beginning)) continue;
      script.remove_prefix(beginning.size());
      const std::string name = Folded(TakeUntil(script, "("));
      const std::string arguments = Folded(TakeUntil(script, ")"));
      TakeUntil(script, "$$");
      const string_view text = TakeUntil(script, "$$");
      texts[name] = text;
      texts[name + '(' + arguments + ')'] = text;
      break;
    }
    TakeUntil(script, "\n");
  }
}

std::map<std::string, string_view> RoutineTexts() {
  std::map<std::string, string_view> texts;
  for (const string_view script : DeliveredScripts()) AddRoutineTexts(script, texts);
  return texts;
}

}  // namespace

std::vector<CatalogueFact> DeliveredCatalogue() {
  constexpr string_view kRoutine = "routine ";
  const auto texts = RoutineTexts();
  std::vector<CatalogueFact> facts;
  string_view rest = embedded::kPostgresCatalogue;
  while (!rest.empty()) {
    string_view line = TakeUntil(rest, "\n");
    const string_view object = TakeUntil(line, "\t");
    const string_view property = TakeUntil(line, "\t");
    facts.push_back({std::string(object), std::string(property), std::string(line)});
    // One of the facts of each routine, so that each gets one text.
    if (!object.starts_with(kRoutine) || property != "kind") continue;
    const std::string routine(object.substr(kRoutine.size()));
    auto text = texts.find(routine);
    if (text == texts.end()) text = texts.find(routine.substr(0, routine.find('(')));
    if (text != texts.end()) facts.push_back({std::string(object), "text", std::string(text->second)});
  }
  return facts;
}

}  // namespace ferrowind::postgres
