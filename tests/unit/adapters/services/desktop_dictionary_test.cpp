#include "ferrowind/adapters/services/desktop_dictionary.h"

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

using platform::Value;

/// Has the dictionary "Ccy" of three rows.
class DictionaryEngine : public platform::Engine {
 public:
  std::unique_ptr<platform::Connection> Connect(const std::string& /*connection_string*/) override {
    throw platform::Failure(1, "not asked for here");
  }
  std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string& connection_string,
                                                      const std::string& name) override {
    asked_ = connection_string + " " + name;
    if (name == "None") return nullptr;
    if (name != "Ccy") throw platform::Failure(2, "There is no dictionary " + name);
    return std::make_shared<platform::RecordSet>(
        std::vector<std::string>{"CcyID", "Ccy", "CcyType"},
        std::vector<std::vector<Value>>{{std::int32_t{978}, "EUR", std::int16_t{0}},
                                        {std::int32_t{840}, "USD", std::int16_t{0}},
                                        {std::int32_t{959}, "XAU", std::int16_t{1}}});
  }
  std::unique_ptr<platform::ChangeWatch> Watch(const std::string& /*connection_string*/) override {
    return nullptr;
  }
  std::string asked_;
};

class DesktopDictionaryTest : public ::testing::Test {
 protected:
  DesktopDictionaryTest() { engines_.Register("memory", engine_); }

  std::shared_ptr<DictionaryEngine> engine_ = std::make_shared<DictionaryEngine>();
  platform::EngineRegistry engines_;
  DesktopDictionary dictionary_{engines_, "memory:house"};
};

TEST_F(DesktopDictionaryTest, GivesTheConnectionStringOfItsHost) {
  EXPECT_EQ(dictionary_.dic_ConnectionString(), "memory:house");
}

TEST_F(DesktopDictionaryTest, ReadsTheDictionaryOfItsConnection) {
  static_cast<void>(dictionary_.dic_GetDicRecByFilter("Ccy", ""));
  EXPECT_EQ(engine_->asked_, "memory:house Ccy");
}

TEST_F(DesktopDictionaryTest, GivesTheRowsThatPassTheFilterInTheirOrder) {
  const auto rows = dictionary_.dic_GetDicRecByFilter("Ccy", "CcyType = 0");
  ASSERT_EQ(rows->RowCount(), 2U);
  EXPECT_EQ((*rows)["Ccy"], Value("EUR"));
  rows->MoveNext();
  EXPECT_EQ((*rows)["Ccy"], Value("USD"));
}

TEST_F(DesktopDictionaryTest, GivesAllRowsWithoutAFilter) {
  EXPECT_EQ(dictionary_.dic_GetDicRecByFilter("Ccy", "")->RowCount(), 3U);
}

TEST_F(DesktopDictionaryTest, FailsForAFilterThatDoesNotParse) {
  EXPECT_THROW(static_cast<void>(dictionary_.dic_GetDicRecByFilter("Ccy", "CcyType = 0; DROP TABLE DicCcy")),
               platform::Failure);
}

TEST_F(DesktopDictionaryTest, FailsForAnEngineThatGivesNoRows) {
  EXPECT_THROW(static_cast<void>(dictionary_.dic_GetDicRecByFilter("None", "")), platform::Failure);
}

TEST_F(DesktopDictionaryTest, FailsForAnUnknownDictionary) {
  EXPECT_THROW(static_cast<void>(dictionary_.dic_GetDicRecByFilter("Nope", "")), platform::Failure);
}

TEST_F(DesktopDictionaryTest, FailsForAnUnknownEngineOnlyWhenItIsAsked) {
  DesktopDictionary elsewhere(engines_, "nothing:else");
  EXPECT_EQ(elsewhere.dic_ConnectionString(), "nothing:else");
  EXPECT_THROW(static_cast<void>(elsewhere.dic_GetDicRecByFilter("Ccy", "")), platform::Failure);
}

}  // namespace
}  // namespace ferrowind
