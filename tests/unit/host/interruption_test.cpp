#include "host/admin/interruption.h"

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include <gtest/gtest.h>

#include "ferrowind/adapters/content/doubtful_outcome.h"

namespace ferrowind::host {
namespace {

TEST(Interruption, LetsTheWorkStopWhereItAsks) {
  const Interruption interruption;
  Interruption::ThrowIfAsked();
  std::raise(SIGINT);
  try {
    Interruption::ThrowIfAsked();
    FAIL() << "was not interrupted";
  } catch (const Interrupted& interrupted) {
    EXPECT_EQ(interrupted.Signal(), SIGINT);
  }
}

TEST(Interruption, BeginsAnewWithEachWork) {
  {
    const Interruption interruption;
    std::raise(SIGTERM);
    EXPECT_THROW(Interruption::ThrowIfAsked(), Interrupted);
  }
  const Interruption interruption;
  EXPECT_NO_THROW(Interruption::ThrowIfAsked());
}

TEST(InterruptionDeathTest, ASecondSignalEndsTheProgramAtOnce) {
  EXPECT_EXIT(
      {
        const Interruption interruption;
        std::raise(SIGINT);
        std::raise(SIGINT);
        std::_Exit(0);
      },
      ::testing::KilledBySignal(SIGINT), "");
}

TEST(InterruptionDeathTest, SignalsEndTheProgramAsEverAfterTheWork) {
  EXPECT_EXIT(
      {
        { const Interruption interruption; }
        std::raise(SIGTERM);
        std::_Exit(0);
      },
      ::testing::KilledBySignal(SIGTERM), "");
}

TEST(InterruptionDeathTest, ASignalThatWasIgnoredStaysSo) {
  EXPECT_EXIT(
      {
        std::signal(SIGHUP, SIG_IGN);
        {
          const Interruption interruption;
          std::raise(SIGHUP);
          Interruption::ThrowIfAsked();
        }
        std::raise(SIGHUP);
        std::_Exit(0);
      },
      ::testing::ExitedWithCode(0), "");
}

TEST(InterruptionDeathTest, AWorkThatWasStoppedIsToldOfBeforeTheProgramEnds) {
  EXPECT_EXIT(RunInterruptibly(
                  [] {
                    std::raise(SIGINT);
                    Interruption::ThrowIfAsked();
                  },
                  std::cerr),
              ::testing::KilledBySignal(SIGINT), "nothing was changed");
}

TEST(Interruption, SaysNothingOfAWorkWhoseEndIsNotKnown) {
  std::ostringstream errors;
  const content::DoubtfulOutcome unknown(platform::Failure(4711, "not known"));
  const auto work = [&] {
    std::raise(SIGINT);
    throw content::DoubtfulOutcome(unknown);
  };
  EXPECT_THROW(RunInterruptibly(work, errors), content::DoubtfulOutcome);
  EXPECT_EQ(errors.str(), "");
}

TEST(Interruption, LetsAWorkThatNobodyStoppedGoOn) {
  std::ostringstream errors;
  bool is_done = false;
  RunInterruptibly([&] { is_done = true; }, errors);
  EXPECT_TRUE(is_done);
  EXPECT_EQ(errors.str(), "");
}

TEST(InterruptionDeathTest, EndsTheProgramAsTheSignalWouldHave) {
  EXPECT_EXIT(EndBySignal(SIGTERM), ::testing::KilledBySignal(SIGTERM), "");
}

}  // namespace
}  // namespace ferrowind::host
