#include "ferrowind/platform/events/subscription.h"

#include <optional>
#include <utility>

#include <gtest/gtest.h>

namespace ferrowind::platform {
namespace {

TEST(Subscription, UnsubscribesWhenItIsDropped) {
  int unsubscribed = 0;
  {
    const Subscription subscription([&] { ++unsubscribed; });
  }
  EXPECT_EQ(unsubscribed, 1);
}

TEST(Subscription, UnsubscribesOnlyOnce) {
  int unsubscribed = 0;
  {
    Subscription subscription([&] { ++unsubscribed; });
    subscription.Reset();
    subscription.Reset();
    EXPECT_EQ(unsubscribed, 1);
  }
  EXPECT_EQ(unsubscribed, 1);
}

TEST(Subscription, AnEmptyOneDoesNothing) {
  Subscription subscription;
  subscription.Reset();
  const Subscription moved(std::move(subscription));
}

TEST(Subscription, MovingHandsTheSubscriptionOver) {
  int unsubscribed = 0;
  {
    std::optional<Subscription> first(std::in_place, [&] { ++unsubscribed; });
    const Subscription second(std::move(*first));
    first.reset();
    EXPECT_EQ(unsubscribed, 0);
  }
  EXPECT_EQ(unsubscribed, 1);
}

TEST(Subscription, AssigningDropsTheOldSubscriptionAndKeepsTheNew) {
  int old_unsubscribed = 0;
  int new_unsubscribed = 0;
  Subscription subscription([&] { ++old_unsubscribed; });
  subscription = Subscription([&] { ++new_unsubscribed; });
  EXPECT_EQ(old_unsubscribed, 1);
  EXPECT_EQ(new_unsubscribed, 0);
  subscription.Reset();
  EXPECT_EQ(new_unsubscribed, 1);
}

TEST(Subscription, AssigningToItselfKeepsIt) {
  int unsubscribed = 0;
  Subscription subscription([&] { ++unsubscribed; });
  Subscription& same = subscription;
  subscription = std::move(same);
  EXPECT_EQ(unsubscribed, 0);
  subscription.Reset();
  EXPECT_EQ(unsubscribed, 1);
}

}  // namespace
}  // namespace ferrowind::platform
