#include "host/admin/outcome_writer.h"

#include <memory>
#include <sstream>

#include <gtest/gtest.h>

namespace ferrowind::host {
namespace {

using platform::Date;
using platform::RecordSet;
using platform::Value;

using Rows = std::vector<std::vector<Value>>;

ProcedureOutcome Outcome(std::vector<std::string> fields, Rows rows) {
  return {0, {std::make_shared<RecordSet>(std::move(fields), std::move(rows))}, {}};
}

std::string Written(const ProcedureOutcome& outcome, OutputFormat format) {
  std::ostringstream out;
  WriteOutcome(outcome, format, out);
  return out.str();
}

TEST(JsonWriter, WritesTheReturnValueAndEachRecordSetInOrder) {
  ProcedureOutcome outcome = Outcome({"ODate", "ID2", "Comment"},
                                     {{Date(2026, 1, 2), std::int32_t{7}, Value()}, {Value(), Value(), ""}});
  outcome.record_sets.push_back(std::make_shared<RecordSet>(std::vector<std::string>{"FirstDay"}, Rows{}));
  EXPECT_EQ(Written(outcome, OutputFormat::kJson),
            R"({"return":0,"results":[{"fields":["ODate","ID2","Comment"],)"
            R"("rows":[["2026-01-02",7,null],[null,null,""]]},{"fields":["FirstDay"],"rows":[]}]})"
            "\n");
}

TEST(JsonWriter, WritesAReturnValueWithoutRecordSets) {
  EXPECT_EQ(Written({5, {}, {}}, OutputFormat::kJson), "{\"return\":5,\"results\":[]}\n");
}

TEST(JsonWriter, EscapesTextsAndKeepsUnicode) {
  EXPECT_EQ(Written(Outcome({"N"}, {{"\"q\"\n祝日"}}), OutputFormat::kJson),
            "{\"return\":0,\"results\":[{\"fields\":[\"N\"],\"rows\":[[\"\\\"q\\\"\\n祝日\"]]}]}\n");
}

TEST(JsonWriter, ReplacesBytesThatAreNoUtf8) {
  EXPECT_EQ(Written(Outcome({"N"}, {{"a\xff"}}), OutputFormat::kJson),
            "{\"return\":0,\"results\":[{\"fields\":[\"N\"],\"rows\":[[\"a\uFFFD\"]]}]}\n");
}

TEST(CsvWriter, WritesTablesWithAnEmptyLineBetween) {
  EXPECT_EQ(Written(Outcome({"ODate", "ID2"}, {{Date(2026, 1, 2), std::int16_t{7}}}), OutputFormat::kCsv),
            "return\r\n0\r\n\r\nODate,ID2\r\n2026-01-02,7\r\n");
}

TEST(CsvWriter, QuotesSeparatorsQuotesAndLineBreaks) {
  EXPECT_EQ(Written(Outcome({"A", "B", "C"}, {{"a,b", "say \"x\"", "1\r\n2"}}), OutputFormat::kCsv),
            "return\r\n0\r\n\r\nA,B,C\r\n\"a,b\",\"say \"\"x\"\"\",\"1\r\n2\"\r\n");
}

TEST(CsvWriter, TellsAnEmptyTextFromNoValue) {
  EXPECT_EQ(Written(Outcome({"A", "B"}, {{"", Value()}}), OutputFormat::kCsv),
            "return\r\n0\r\n\r\nA,B\r\n\"\",\r\n");
}

TEST(CsvWriter, WritesNoEmptyLineInsideATable) {
  EXPECT_EQ(Written(Outcome({"A"}, {{Value()}, {"x"}}), OutputFormat::kCsv),
            "return\r\n0\r\n\r\nA\r\n\"\"\r\nx\r\n");
}

TEST(TableWriter, AlignsTextsLeftAndNumbersRightByTheirColumns) {
  EXPECT_EQ(Written(Outcome({"Name1", "ID2", "Comment"},
                            {{"祝日", std::int32_t{7}, "x"}, {"Zürich", std::int32_t{117}, Value()}}),
                    OutputFormat::kTable),
            "Return value: 0\n\nRecord set 1, 2 rows\n"
            "Name1   ID2  Comment\n"
            "------  ---  -------\n"
            "祝日      7  x\n"
            "Zürich  117  \n");
}

TEST(TableWriter, ShowsTheReturnValueAlone) {
  EXPECT_EQ(Written({-1, {}, {}}, OutputFormat::kTable), "Return value: -1\n");
}

TEST(TableWriter, ShowsTheFieldsOfAnEmptyRecordSet) {
  EXPECT_EQ(Written(Outcome({"ID1"}, {}), OutputFormat::kTable),
            "Return value: 0\n\nRecord set 1, 0 rows\nID1\n---\n");
}

RecordSets TwoRecordSets() {
  return {
      std::make_shared<RecordSet>(std::vector<std::string>{"A", "B"}, Rows{{std::int64_t{1}, "x"}}),
      std::make_shared<RecordSet>(std::vector<std::string>{"Year"}, Rows{{std::int32_t{2026}}, {Value()}})};
}

std::string WrittenRows(const RecordSets& record_sets, OutputFormat format) {
  std::ostringstream out;
  WriteRows(record_sets, format, out);
  return out.str();
}

TEST(RowWriters, WriteNoReturnValue) {
  EXPECT_EQ(WrittenRows(TwoRecordSets(), OutputFormat::kTable),
            "A  B\n-  -\n1  x\n\nYear\n----\n2026\n    \n");
  EXPECT_EQ(
      WrittenRows(TwoRecordSets(), OutputFormat::kJson),
      R"({"results":[{"fields":["A","B"],"rows":[[1,"x"]]},{"fields":["Year"],"rows":[[2026],[null]]}]})"
      "\n");
  EXPECT_EQ(WrittenRows(TwoRecordSets(), OutputFormat::kCsv), "A,B\r\n1,x\r\n\r\nYear\r\n2026\r\n\"\"\r\n");
}

TEST(RowWriters, WriteNothingOfNothing) {
  EXPECT_EQ(WrittenRows({}, OutputFormat::kTable), "");
  EXPECT_EQ(WrittenRows({}, OutputFormat::kJson), "{\"results\":[]}\n");
  EXPECT_EQ(WrittenRows({}, OutputFormat::kCsv), "");
}

std::string WrittenList(const RecordSet& rows, OutputFormat format) {
  std::ostringstream out;
  WriteList(rows, format, out);
  return out.str();
}

TEST(ListWriter, WritesTextsInFullListsOfObjectsAndCsv) {
  const std::string sentence(100, 'x');
  const RecordSet rows({"date", "now", "why"}, Rows{{Date(2028, 4, 14), Value(), sentence}});
  EXPECT_EQ(WrittenList(rows, OutputFormat::kTable), "date        now  why\n----------  ---  " +
                                                         std::string(100, '-') + "\n2028-04-14       " +
                                                         sentence + "\n");
  EXPECT_EQ(WrittenList(rows, OutputFormat::kJson),
            "[{\"date\":\"2028-04-14\",\"now\":null,\"why\":\"" + sentence + "\"}]\n");
  EXPECT_EQ(WrittenList(rows, OutputFormat::kCsv), "date,now,why\r\n2028-04-14,," + sentence + "\r\n");
}

TEST(ListWriter, WritesAListOfNothing) {
  const RecordSet rows({"date"}, Rows{});
  EXPECT_EQ(WrittenList(rows, OutputFormat::kJson), "[]\n");
  EXPECT_EQ(WrittenList(rows, OutputFormat::kCsv), "date\r\n");
}

}  // namespace
}  // namespace ferrowind::host
