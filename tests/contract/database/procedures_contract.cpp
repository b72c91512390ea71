#include "tests/contract/database/procedures_contract.h"

#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::contract {

using platform::Value;

std::string ProceduresContract::Fingerprint(std::int32_t currency, std::int32_t year) {
  const auto outcome = caller().Call("CldGetFingerprint", {{"ID1", currency}, {"Year1", year}});
  EXPECT_EQ(outcome.return_value, 0);
  return platform::ToText((*outcome.record_sets.at(0))["Fingerprint"]);
}

int ProceduresContract::Apply(std::int32_t currency, std::int32_t year, const std::string& days) {
  return caller().Return(
      "CldApplyPlan",
      {{"ID1", currency}, {"Year1", year}, {"Expected", Fingerprint(currency, year)}, {"Days", days}});
}

int ProceduresContract::StoreBook(std::int32_t currency, const std::string& rules, const Value& from_year) {
  const auto books = caller().Call("CldGetBook", {{"ID1", currency}}).record_sets.at(0);
  const Value expected = books->RowCount() == 0 ? Value("") : (*books)["Fingerprint"];
  return caller().Return("CldIUBook", {{"ID1", currency},
                                       {"Expected", expected},
                                       {"Publisher", "Publisher"},
                                       {"Document", "Document"},
                                       {"Rules", rules},
                                       {"FromYear", from_year}});
}

std::int32_t ProceduresContract::LastEntry() {
  const auto newest = caller().Call("CldGetHistory", {{"Count", 1}}).record_sets.at(0);
  return newest->RowCount() == 0 ? 0 : platform::ToInt32((*newest)["EntryID"]);
}

std::string ProceduresContract::LastMoment() {
  return platform::ToText((*caller().Call("CldGetHistory", {{"Count", 1}}).record_sets.at(0))["Moment"]);
}

std::vector<Row> ProceduresContract::Content() {
  std::vector<Row> content;
  const auto add = [&](const std::string& procedure, const Arguments& arguments = {}) {
    for (const auto& record_set : caller().Call(procedure, arguments).record_sets) {
      for (auto& row : RowsOf(*record_set)) content.push_back(std::move(row));
    }
  };
  add("CldAllInfo");
  for (const Row& calendar : RowsOf(*caller().Call("CldAllInfo").record_sets.at(0))) {
    add("CldGetMain", {{"ID1", calendar[0]}, {"Year1", calendar[1]}});
  }
  add("CldGetBook");
  add("CldGetCurrencies");
  add("CldGetConventions");
  return content;
}

}  // namespace ferrowind::contract
