// What every database engine keeps to, whatever its procedures do.

#include "tests/contract/database/engine_contract.h"

#include <cstdint>
#include <limits>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Failure;
using platform::ParameterDirection;
using platform::ParameterType;
using platform::Value;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::vector<Row> StoredRows(ProcedureCaller& caller) {
  return RowsOf(*caller.Call("ProbeLoad").record_sets.at(0));
}

/// The text after it was stored and loaded.
Value RoundTrip(ProcedureCaller& caller, const Value& text) {
  caller.Call("ProbeStore", {{"Text", text}});
  return StoredRows(caller).back().at(2);
}

TEST_P(EngineContract, DescribesTheReturnValueFirstAndThenTheInputsByPosition) {
  const auto parameters =
      database().Engine().Connect(database().ConnectionString())->DescribeProcedure("ProbeStore");
  ASSERT_EQ(parameters.size(), 5U);
  EXPECT_EQ(parameters[0].name, "@RETURN_VALUE");
  EXPECT_EQ(parameters[0].direction, ParameterDirection::kReturnValue);
  EXPECT_EQ(parameters[0].type, ParameterType::kInt32);
  const std::vector<std::string> names = {"@RETURN_VALUE", "@Small", "@Number", "@Text", "@Day"};
  const std::vector<ParameterType> types = {ParameterType::kInt32, ParameterType::kInt16,
                                            ParameterType::kInt32, ParameterType::kText,
                                            ParameterType::kDate};
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    EXPECT_EQ(parameters[i].name, names[i]);
    EXPECT_EQ(parameters[i].position, static_cast<std::int32_t>(i));
    EXPECT_EQ(parameters[i].type, types[i]);
    if (i > 0) {
      EXPECT_EQ(parameters[i].direction, ParameterDirection::kInput);
    }
  }
}

TEST_P(EngineContract, DescribesAProcedureWithoutInputsByItsReturnValueAlone) {
  EXPECT_EQ(database().Engine().Connect(database().ConnectionString())->DescribeProcedure("ProbeLoad").size(),
            1U);
}

TEST_P(EngineContract, FindsAProcedureWhateverItsLetterCase) {
  const auto connection = database().Engine().Connect(database().ConnectionString());
  EXPECT_EQ(connection->DescribeProcedure("pRoBeStOrE").size(), 5U);
  EXPECT_EQ(connection->Call("PROBESTORE", {{}, Value(7), {}, {}}).return_value, 0);
  EXPECT_THAT(StoredRows(caller()), ElementsAre(ElementsAre(Value(), Value(7), Value(), Value())));
}

TEST_P(EngineContract, NamesAnUnknownProcedure) {
  const auto connection = database().Engine().Connect(database().ConnectionString());
  EXPECT_THAT(FailureTextOf([&] { (void)connection->DescribeProcedure("NoSuchOne"); }),
              HasSubstr("NoSuchOne"));
  EXPECT_THAT(FailureTextOf([&] { (void)connection->Call("NoSuchOne", {}); }), HasSubstr("NoSuchOne"));
}

TEST_P(EngineContract, TakesAProcedureNameForANameOnly) {
  const auto connection = database().Engine().Connect(database().ConnectionString());
  for (const std::string name : {"ProbeLoad; DROP TABLE DicCcy", "ProbeLoad' OR '1'='1", "", "%",
                                 "ProbeLoad\"", "Probe*", "@ProbeLoad"}) {
    EXPECT_THROW((void)connection->DescribeProcedure(name), Failure) << name;
  }
  EXPECT_EQ(connection->Call("ProbeLoad", {}).return_value, 0);
}

TEST_P(EngineContract, BringsBackEveryTypeAtItsLimits) {
  const std::vector<Row> rows = {
      {Value(std::numeric_limits<std::int16_t>::min()), Value(std::numeric_limits<std::int32_t>::min()),
       Value("a"), Value(Date(1900, 1, 1))},
      {Value(std::numeric_limits<std::int16_t>::max()), Value(std::numeric_limits<std::int32_t>::max()),
       Value("b"), Value(Date(3000, 12, 31))},
      {Value(std::int16_t{0}), Value(0), Value("c"), Value(Date(2024, 2, 29))},
      {Value(std::int16_t{-1}), Value(-1), Value("d"), Value(Date(1899, 12, 30))},
      {Value(std::int16_t{1}), Value(1), Value("e"), Value(Date(9999, 12, 31))},
  };
  for (const auto& row : rows) {
    ASSERT_EQ(caller().Return("ProbeStore",
                              {{"Small", row[0]}, {"Number", row[1]}, {"Text", row[2]}, {"Day", row[3]}}),
              0);
  }
  EXPECT_EQ(StoredRows(caller()), rows);
}

TEST_P(EngineContract, BringsBackAnEmptyValueAsEmptyAndAnEmptyTextAsText) {
  caller().Call("ProbeStore");
  caller().Call("ProbeStore", {{"Text", ""}});
  EXPECT_THAT(StoredRows(caller()), ElementsAre(ElementsAre(Value(), Value(), Value(), Value()),
                                                ElementsAre(Value(), Value(), Value(""), Value())));
}

TEST_P(EngineContract, BringsBackTextsExactlyOrRefusesThem) {
  const std::vector<std::string> texts = {
      "O'Brien; DROP TABLE CldDay; --",
      "\"double\" `back` [square] 'single' ''doubled''",
      "/* not a comment */ -- nor this",
      "%s %n ?1 :ID1 @ID1 $1 \\ \\' \\0",
      "  outer blanks and a tab\t",
      "line\r\nbreak\n",
      "Größe, ÆØÅ, Ψωμί, Работа, 祝日, עִבְרִית, عُطلة, हिन्दी",
      "\U0001F600\U0001F1E9\U0001F1EA e\u0301 \u202E \uFEFF \U0010FFFF",
      std::string(1000, '\''),
      std::string(1024 * 1024, 'x'),
  };
  for (const auto& text : texts) EXPECT_EQ(RoundTrip(caller(), text), Value(text)) << text.substr(0, 60);
}

TEST_P(EngineContract, BringsBackATextWithNulExactlyOrRefusesIt) {
  const std::string text("before\0after\0", 13);
  Value back;
  const std::string failure = FailureTextOf([&] { back = RoundTrip(caller(), text); });
  if (failure.empty()) {
    EXPECT_EQ(back, Value(text));
  } else {
    EXPECT_THAT(failure, HasSubstr("@Text"));
    EXPECT_THAT(StoredRows(caller()), IsEmpty());
  }
}

TEST_P(EngineContract, RefusesTextThatIsNotUtf8AndNamesTheParameter) {
  for (const std::string text :
       {"\xFF", "broken \xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\x80"}) {
    EXPECT_THAT(FailureTextOf([&] { caller().Call("ProbeStore", {{"Text", text}}); }), HasSubstr("@Text"));
  }
  EXPECT_THAT(StoredRows(caller()), IsEmpty());
}

TEST_P(EngineContract, DeliversTheRecordSetsInTheProceduresOrder) {
  caller().Call("ProbeStore", {{"Number", 1}});
  caller().Call("ProbeStore", {{"Number", 2}});
  const auto outcome = caller().Call("ProbeLoad");
  EXPECT_EQ(outcome.return_value, 0);
  ASSERT_EQ(outcome.record_sets.size(), 2U);
  EXPECT_THAT(FieldsOf(*outcome.record_sets[0]), ElementsAre("Small", "Number", "Text", "Day"));
  EXPECT_THAT(ColumnOf(*outcome.record_sets[0], "Number"), ElementsAre(Value(1), Value(2)));
  EXPECT_THAT(FieldsOf(*outcome.record_sets[1]), ElementsAre("Count"));
  EXPECT_THAT(RowsOf(*outcome.record_sets[1]), ElementsAre(ElementsAre(Value(2))));
}

TEST_P(EngineContract, GivesFieldsToARecordSetWithoutRows) {
  const auto outcome = caller().Call("ProbeLoad");
  ASSERT_EQ(outcome.record_sets.size(), 2U);
  EXPECT_THAT(FieldsOf(*outcome.record_sets[0]), ElementsAre("Small", "Number", "Text", "Day"));
  EXPECT_EQ(outcome.record_sets[0]->RowCount(), 0U);
  EXPECT_TRUE(outcome.record_sets[0]->Eof());
}

TEST_P(EngineContract, GivesNoRecordSetForAProcedureWithoutOne) {
  EXPECT_THAT(caller().Call("ProbeStore", {{"Number", 1}}).record_sets, IsEmpty());
}

TEST_P(EngineContract, StandsOnTheFirstRowOfEachRecordSet) {
  caller().Call("ProbeStore", {{"Number", 5}});
  const auto outcome = caller().Call("ProbeLoad");
  EXPECT_EQ((*outcome.record_sets.at(0))["number"], Value(5));
  EXPECT_EQ((*outcome.record_sets.at(1))["Count"], Value(1));
}

TEST_P(EngineContract, KeepsWhatAProcedureDidThatReturnsZero) {
  const auto outcome = caller().Call("ProbeStoreAndReturn", {{"Number", 4}, {"Outcome", 0}});
  EXPECT_EQ(outcome.return_value, 0);
  EXPECT_EQ(outcome.record_sets.size(), 1U);
  EXPECT_THAT(StoredRows(caller()), ElementsAre(ElementsAre(Value(), Value(4), Value(), Value())));
}

TEST_P(EngineContract, UndoesAProcedureThatReturnsAnotherValueAndGivesNoRecordSet) {
  for (const std::int32_t value :
       {1, 5, -1, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
    const auto outcome = caller().Call("ProbeStoreAndReturn", {{"Number", 4}, {"Outcome", value}});
    EXPECT_EQ(outcome.return_value, value);
    EXPECT_THAT(outcome.record_sets, IsEmpty());
  }
  EXPECT_THAT(StoredRows(caller()), IsEmpty());
}

TEST_P(EngineContract, UndoesAProcedureThatFailsAndNamesIt) {
  EXPECT_THAT(FailureTextOf([&] {
                caller().Call("ProbeStoreAndFail", {{"Number", 4}});
              }),
              HasSubstr("ProbeStoreAndFail"));
  EXPECT_THAT(StoredRows(caller()), IsEmpty());
  EXPECT_EQ(caller().Return("ProbeStore", {{"Number", 5}}), 0) << "the database takes the next call";
}

TEST_P(EngineContract, KeepsAConnectionUsableAfterAFailedCall) {
  const auto connection = database().Engine().Connect(database().ConnectionString());
  EXPECT_THROW((void)connection->Call("ProbeStoreAndFail", {Value(1)}), Failure);
  EXPECT_EQ(connection->Call("ProbeStore", {{}, Value(2), {}, {}}).return_value, 0);
  EXPECT_EQ(StoredRows(caller()).size(), 1U);
}

TEST_P(EngineContract, RefusesInputsThatAreNotTheProceduresOwn) {
  const auto connection = database().Engine().Connect(database().ConnectionString());
  EXPECT_THROW((void)connection->Call("ProbeStore", {Value(std::int16_t{1})}), Failure) << "too few";
  EXPECT_THROW((void)connection->Call("ProbeLoad", {Value(1)}), Failure) << "too many";
  EXPECT_THAT(FailureTextOf([&] {
                (void)connection->Call("ProbeStore", {{}, Value("many"), {}, {}});
              }),
              HasSubstr("@Number"));
  EXPECT_THAT(StoredRows(caller()), IsEmpty());
}

TEST_P(EngineContract, OpensConnectionsThatSeeEachOthersWork) {
  const auto first = database().Engine().Connect(database().ConnectionString());
  const auto second = database().Engine().Connect(database().ConnectionString());
  EXPECT_EQ(first->Call("ProbeStore", {{}, Value(1), {}, {}}).return_value, 0);
  EXPECT_EQ(second->Call("ProbeStore", {{}, Value(2), {}, {}}).return_value, 0);
  EXPECT_EQ(first->Call("ProbeLoad", {}).record_sets.at(0)->RowCount(), 2U);
}

TEST_P(EngineContract, GivesRecordSetsThatOutliveTheConnection) {
  caller().Call("ProbeStore", {{"Text", std::string(100, 't')}});
  auto connection = database().Engine().Connect(database().ConnectionString());
  const auto outcome = connection->Call("ProbeLoad", {});
  connection.reset();
  caller().Call("ProbeStore", {{"Text", "later"}});
  EXPECT_THAT(ColumnOf(*outcome.record_sets.at(0), "Text"), ElementsAre(Value(std::string(100, 't'))));
}

TEST_P(EngineContract, ReadsTheCurrenciesOrderedByTheirCodes) {
  const auto currencies = database().Engine().ReadDictionary(database().ConnectionString(), "Ccy");
  EXPECT_THAT(FieldsOf(*currencies), ElementsAre("CcyID", "Ccy", "CcyType", "Name"));
  const Row codes = ColumnOf(*currencies, "Ccy");
  EXPECT_TRUE(std::is_sorted(codes.begin(), codes.end(), [](const Value& left, const Value& right) {
    return *left.If<std::string>() < *right.If<std::string>();
  }));
  EXPECT_THAT(
      RowsOf(*currencies),
      ::testing::IsSupersetOf({Row{Value(978), Value("EUR"), Value(std::int16_t{0}), Value("Euro")},
                               Row{Value(959), Value("XAU"), Value(std::int16_t{1}), Value("Gold")}}));
}

TEST_P(EngineContract, NamesAnUnknownDictionary) {
  for (const std::string name : {"Country", "DicCcy", "", "Ccy; DROP TABLE DicCcy"}) {
    EXPECT_THAT(
        FailureTextOf([&] { (void)database().Engine().ReadDictionary(database().ConnectionString(), name); }),
        HasSubstr("dictionary " + name));
  }
}

TEST_P(EngineContract, RefusesAConnectionStringOfAnotherEngine) {
  for (const std::string text : {"nosuchengine:somewhere", "", ":"}) {
    EXPECT_THROW((void)database().Engine().Connect(text), Failure) << text;
    EXPECT_THROW((void)database().Engine().ReadDictionary(text, "Ccy"), Failure) << text;
  }
}

}  // namespace
}  // namespace ferrowind::contract
