#include "host/admin/nearest_word.h"

#include <gtest/gtest.h>

namespace ferrowind::host {
namespace {

const std::vector<std::string> kWords = {"status", "show", "set", "next", "is"};

TEST(NearestWord, IsTheOneOfTheFewestSlips) {
  EXPECT_EQ(NearestWord("stauts", kWords), "status");
  EXPECT_EQ(NearestWord("statu", kWords), "status");
  EXPECT_EQ(NearestWord("sstatus", kWords), "status");
  EXPECT_EQ(NearestWord("shwo", kWords), "show");
  EXPECT_EQ(NearestWord("netx", kWords), "next");
  EXPECT_EQ(NearestWord("sets", kWords), "set");
}

TEST(NearestWord, IsNoneOfThoseThatHaveLittleInCommon) {
  EXPECT_EQ(NearestWord("frobnicate", kWords), std::nullopt);
  EXPECT_EQ(NearestWord("ab", {"is"}), std::nullopt);
  EXPECT_EQ(NearestWord("", kWords), std::nullopt);
  EXPECT_EQ(NearestWord("status", {}), std::nullopt);
}

}  // namespace
}  // namespace ferrowind::host
