// What is read out of libpq's text of a connection that was not made.

#include "ferrowind/adapters/postgres/connection_refusal.h"

#include <string>

#include <gtest/gtest.h>

namespace ferrowind::postgres {
namespace {

TEST(ConnectionRefusal, TheServersNumberAndPlaceAreTakenOutOfTheText) {
  const auto refusal = RefusalIn(
      "connection to server at \"db\", port 5432 failed: FATAL:  28P01: password authentication failed for "
      "user "
      "\"anna\"\nLOCATION:  auth_failed, auth.c:326\n");
  EXPECT_EQ(refusal.sqlstate, "28P01");
  EXPECT_EQ(
      refusal.text,
      "connection to server at \"db\", port 5432 failed: FATAL:  password authentication failed for user "
      "\"anna\"");
  EXPECT_FALSE(refusal.IsForOthers());
  EXPECT_FALSE(refusal.IsFull());
}

TEST(ConnectionRefusal, TheServersLanguageDoesNotMatter) {
  const auto refusal = RefusalIn(
      "Verbindung gescheitert: SCHWERWIEGEND:  53300: zu viele Verbindungen\nORT:  ProcessStartupPacket, "
      "postmaster.c:2314\n");
  EXPECT_TRUE(refusal.IsFull());
  EXPECT_EQ(refusal.text, "Verbindung gescheitert: SCHWERWIEGEND:  zu viele Verbindungen");
}

TEST(ConnectionRefusal, WhatTheLibraryItselfSaysHasNoNumberAndIsForTheNextServer) {
  const auto refusal = RefusalIn(
      "connection to server at \"db\", port 1 failed: Connection refused\n\tIs the server running?\n");
  EXPECT_EQ(refusal.sqlstate, "");
  EXPECT_EQ(refusal.text,
            "connection to server at \"db\", port 1 failed: Connection refused Is the server running?");
  EXPECT_TRUE(refusal.IsForOthers());
}

TEST(ConnectionRefusal, AServerThatIsStartingIsForTheNextOne) {
  EXPECT_TRUE(RefusalIn("FATAL:  57P03: the database system is starting up\n").IsForOthers());
}

TEST(ConnectionRefusal, WhatAPoolSaysIsUnderstood) {
  EXPECT_TRUE(RefusalIn("FATAL:  08P01: no more connections allowed (max_client_conn)\n").IsFull());
  EXPECT_TRUE(RefusalIn("FATAL:  08P01: unsupported startup parameter: options\n").IsOfOptions());
  EXPECT_TRUE(RefusalIn("FATAL:  08P01: unsupported startup parameter in options: work_mem\n").IsOfOptions());
  EXPECT_FALSE(RefusalIn("FATAL:  08P01: unsupported startup parameter: extra_float_digits\n").IsOfOptions());
}

}  // namespace
}  // namespace ferrowind::postgres
