#include "tests/contract/database/random_calls.h"

#include <algorithm>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/date.h"

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {

using platform::Date;
using platform::Value;

void RandomCalls::Make() {
  switch (UpTo(12)) {
    case 0:
      Call("CldIUMain", {{"ID1", Currency()}, {"Year1", Year()}});
      break;
    case 1:
      StoreRule();
      break;
    case 2:
      Call("CldIUCelebrate", {{"ID2", UpTo(14)}, {"Del", UpTo(1) == 0 ? 2 : 4}});
      break;
    case 3:
    case 4:
      ApplyPlan();
      break;
    case 5:
    case 6:
      Call("CldUndo", {{"EntryID", std::max(1, Entries() - UpTo(UpTo(3) == 0 ? 60 : 3))}});
      break;
    case 7:
      StoreBook();
      break;
    case 8:
      ChangeCurrency();
      break;
    case 9:
      ChangeConvention();
      break;
    default:
      AssignDays();
  }
}

int RandomCalls::Currency() { return UpTo(1) == 0 ? kEuro : kDollar; }

int RandomCalls::Entries() {
  const auto newest = Call("CldGetHistory", {{"Count", 1}}).record_sets.at(0);
  return newest->RowCount() == 0 ? 0 : platform::ToInt32((*newest)["EntryID"]);
}

Value RandomCalls::Comment() { return UpTo(2) == 0 ? Value() : Value("comment " + std::to_string(UpTo(9))); }

Value RandomCalls::Fingerprint(const std::string& procedure, const Arguments& arguments) {
  const auto rows = Call(procedure, arguments).record_sets.at(0);
  return rows->RowCount() == 0 ? Value("") : (*rows)["Fingerprint"];
}

void RandomCalls::StoreRule() {
  Arguments arguments = {{"Name1", Name()}, {"Comment", Comment()}};
  if (UpTo(3) != 0) arguments.emplace_back("ID2", 2 + UpTo(12));
  const int type = 2 + UpTo(2);
  arguments.emplace_back("TID1", type);
  if (type == 2) {
    arguments.emplace_back("WD", 1 + UpTo(6));
  } else {
    const Date date = Date(2027, 1, 1).AddDays(UpTo(364));
    arguments.insert(arguments.end(), {{"D1", date}, {"MY", date.Month()}, {"MD", date.Day()}});
  }
  Call("CldIUCelebrate", arguments);
}

void RandomCalls::AssignDays() {
  const int year = Year();
  const int day = 1 + UpTo(9);
  Arguments arguments = {{"ID1", Currency()}, {"Year1", year}, {"Comment", Comment()}};
  const int type = 1 + UpTo(3);
  arguments.insert(arguments.end(), {{"TID1", type}, {"ID2", type == 1 ? 1 : 2 + UpTo(12)}});
  if (type != 2) {
    arguments.insert(arguments.end(), {{"Day1", day}, {"ODate", Date(year, 1, 1).AddDays(day - 1)}});
  }
  Call("CldIUMain", arguments);
}

void RandomCalls::ApplyPlan() {
  const int currency = Currency();
  const int year = Year();
  std::string days = "[";
  for (int item = 0, day = 1; item < 3; ++item) {
    const int type = 1 + UpTo(3);
    if (item != 0) days += ", ";
    days += R"({"TID1": )" + std::to_string(type);
    if (type != 1) days += R"(, "Name1": ")" + Name() + '"';
    if (UpTo(1) == 0) days += R"(, "DayComment": "plan )" + std::to_string(UpTo(9)) + '"';
    day += 1 + UpTo(3);
    days += R"(, "Dates": [")" + Date(year, 1, 1).AddDays(day - 1).ToIso() + R"("]})";
  }
  const auto fingerprint = Fingerprint("CldGetFingerprint", {{"ID1", currency}, {"Year1", year}});
  Call("CldApplyPlan", {{"ID1", currency}, {"Year1", year}, {"Expected", fingerprint}, {"Days", days + "]"}});
}

void RandomCalls::StoreBook() {
  const int currency = Currency();
  std::string rules;
  for (int count = UpTo(3); count > 0; --count) {
    rules += rules.empty() ? "[" : ", ";
    rules += R"({"Name1": ")" + Name() + R"(", "TID1": 4, "Expression": "easter+)" + std::to_string(UpTo(9)) +
             R"("})";
  }
  const Value fingerprint = Fingerprint("CldGetBook", {{"ID1", currency}});
  Arguments arguments = {{"ID1", currency}, {"Expected", fingerprint}};
  // Without rules the book goes.
  if (!rules.empty()) {
    arguments.insert(arguments.end(), {{"Publisher", "publisher " + std::to_string(UpTo(2))},
                                       {"Document", "document"},
                                       {"Rules", rules + "]"},
                                       {"FromYear", UpTo(1) == 0 ? Value() : Value(2015 + UpTo(1))}});
  }
  Call("CldIUBook", arguments);
}

void RandomCalls::ChangeCurrency() {
  const bool is_euro = UpTo(1) == 0;
  Call("CldIUCurrency", {{"CcyID", is_euro ? kEuro : kDollar},
                         {"Ccy", is_euro ? "EUR" : "USD"},
                         {"CcyType", 0},
                         {"Name", "currency " + std::to_string(UpTo(9))},
                         {"LastDay", UpTo(1) == 0 ? Value() : Value(Date(2029, 1, 1).AddDays(UpTo(999)))}});
}

void RandomCalls::ChangeConvention() {
  const Value value = UpTo(2) == 0 ? Value() : Value(UpTo(1));
  if (UpTo(1) == 0) {
    Call("CldIUConvention", {{"CcyID", kEuro}, {"OtherID", kDollar}, {"SpotDays", value}});
  } else {
    Call("CldIUConvention", {{"CcyID", Currency()}, {"DollarStops", value}});
  }
}

platform::CallOutcome RandomCalls::Call(const std::string& procedure, const Arguments& arguments) {
  return caller_.Call(procedure, arguments);
}

}  // namespace ferrowind::contract
