#include "ferrowind/platform/events/signal.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ferrowind::platform {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Signal, CallsItsHandlersInTheOrderOfSubscription) {
  Signal<> signal;
  std::vector<int> calls;
  const Subscription first = signal.Subscribe([&] { calls.push_back(1); });
  const Subscription second = signal.Subscribe([&] { calls.push_back(2); });
  signal.Emit();
  EXPECT_THAT(calls, ElementsAre(1, 2));
}

TEST(Signal, PassesItsArgumentsToEveryHandler) {
  Signal<std::string, int&> signal;
  std::vector<std::string> texts;
  const auto handler = [&](const std::string& text, int& answer) {
    texts.push_back(text);
    ++answer;
  };
  const Subscription first = signal.Subscribe(handler);
  const Subscription second = signal.Subscribe(handler);
  int answer = 40;
  signal.Emit("EUR", answer);
  EXPECT_THAT(texts, ElementsAre("EUR", "EUR"));
  EXPECT_EQ(answer, 42);
}

TEST(Signal, WithoutHandlersEmitsToNobody) {
  const Signal<int> signal;
  EXPECT_NO_THROW(signal.Emit(1));
}

TEST(Signal, DoesNotCallADroppedHandler) {
  Signal<> signal;
  std::vector<int> calls;
  Subscription first = signal.Subscribe([&] { calls.push_back(1); });
  const Subscription second = signal.Subscribe([&] { calls.push_back(2); });
  first.Reset();
  signal.Emit();
  EXPECT_THAT(calls, ElementsAre(2));
}

TEST(Signal, LetsGoOfWhatADroppedHandlerOwns) {
  Signal<> signal;
  auto owned = std::make_shared<int>(1);
  const std::weak_ptr<int> watched = owned;
  Subscription subscription = signal.Subscribe([owned = std::move(owned)] {});
  subscription.Reset();
  EXPECT_TRUE(watched.expired());
}

TEST(Signal, AHandlerMayDropItsOwnSubscription) {
  Signal<> signal;
  std::vector<int> calls;
  Subscription own;
  const std::string captured(100, 'x');
  own = signal.Subscribe([&own, &calls, captured] {
    own.Reset();
    calls.push_back(static_cast<int>(captured.size()));  // The handler must still be alive here.
  });
  const Subscription other = signal.Subscribe([&] { calls.push_back(2); });
  signal.Emit();
  signal.Emit();
  EXPECT_THAT(calls, ElementsAre(100, 2, 2));
}

TEST(Signal, AHandlerDroppedDuringAnEmissionIsNotCalledAnyMore) {
  Signal<> signal;
  std::vector<int> calls;
  Subscription second;
  const Subscription first = signal.Subscribe([&] {
    calls.push_back(1);
    second.Reset();
  });
  second = signal.Subscribe([&] { calls.push_back(2); });
  const Subscription third = signal.Subscribe([&] { calls.push_back(3); });
  signal.Emit();
  EXPECT_THAT(calls, ElementsAre(1, 3));
}

TEST(Signal, AHandlerAddedDuringAnEmissionIsFirstCalledByTheNext) {
  Signal<> signal;
  std::vector<int> calls;
  std::vector<Subscription> added;
  const Subscription first = signal.Subscribe([&] {
    calls.push_back(1);
    added.push_back(signal.Subscribe([&] { calls.push_back(2); }));
  });
  signal.Emit();
  EXPECT_THAT(calls, ElementsAre(1));
  calls.clear();
  signal.Emit();
  EXPECT_THAT(calls, ElementsAre(1, 2));
}

TEST(Signal, AHandlerMayDestroyTheSignal) {
  auto signal = std::make_unique<Signal<>>();
  std::vector<int> calls;
  const Subscription first = signal->Subscribe([&] {
    signal.reset();
    calls.push_back(1);
  });
  signal->Emit();
  EXPECT_EQ(signal, nullptr);
  EXPECT_THAT(calls, ElementsAre(1));
}

TEST(Signal, AHandlerMayDestroyTheSignalAndItsOwnSubscriptionTogether) {
  struct Source {
    Signal<> signal;
    Subscription subscription;
  };
  auto source = std::make_unique<Source>();
  bool was_called = false;
  source->subscription = source->signal.Subscribe([&] {
    source.reset();
    was_called = true;
  });
  source->signal.Emit();
  EXPECT_TRUE(was_called);
}

TEST(Signal, ASubscriptionMayOutliveTheSignal) {
  auto signal = std::make_unique<Signal<>>();
  Subscription subscription = signal->Subscribe([] {});
  signal.reset();
  EXPECT_NO_THROW(subscription.Reset());
}

TEST(Signal, AFailingHandlerEndsTheEmissionAndReachesTheCaller) {
  Signal<> signal;
  std::vector<int> calls;
  const Subscription first = signal.Subscribe([] { throw std::runtime_error("failing handler"); });
  const Subscription second = signal.Subscribe([&] { calls.push_back(2); });
  EXPECT_THROW(signal.Emit(), std::runtime_error);
  EXPECT_THAT(calls, IsEmpty());
}

TEST(Signal, StillTidiesUpAfterAFailingHandler) {
  Signal<> signal;
  auto owned = std::make_shared<int>(1);
  const std::weak_ptr<int> watched = owned;
  Subscription subscription;
  subscription = signal.Subscribe([&subscription, owned = std::move(owned)] {
    subscription.Reset();
    throw std::runtime_error("failing handler");
  });
  EXPECT_THROW(signal.Emit(), std::runtime_error);
  EXPECT_TRUE(watched.expired());
}

TEST(Signal, AHandlerMayEmitAgain) {
  Signal<int> signal;
  std::vector<int> calls;
  Subscription once;
  const Subscription nested = signal.Subscribe([&](int depth) {
    calls.push_back(depth);
    if (depth > 0) signal.Emit(depth - 1);
  });
  once = signal.Subscribe([&](int depth) {
    calls.push_back(100 + depth);
    once.Reset();
  });
  signal.Emit(1);
  EXPECT_THAT(calls, ElementsAre(1, 0, 100));
}

TEST(Signal, AHandlerMayOwnOtherSubscriptionsOfTheSameSignal) {
  Signal<> signal;
  std::vector<int> calls;
  auto chain = std::make_shared<std::vector<Subscription>>();
  for (int i = 0; i < 4; ++i) chain->push_back(signal.Subscribe([&] { calls.push_back(1); }));
  Subscription owner = signal.Subscribe([chain = std::move(chain)] {});
  const Subscription last = signal.Subscribe([&] { calls.push_back(2); });
  owner.Reset();
  signal.Emit();
  EXPECT_THAT(calls, ElementsAre(2));
}

TEST(Signal, DroppingSeveralHandlersThatOwnOthersDuringAnEmissionKeepsTheRest) {
  Signal<> signal;
  std::vector<int> calls;
  std::vector<Subscription> owners;
  for (int i = 0; i < 3; ++i) {
    auto owned = std::make_shared<Subscription>(signal.Subscribe([&] { calls.push_back(1); }));
    owners.push_back(signal.Subscribe([owned = std::move(owned)] {}));
  }
  const Subscription dropper = signal.Subscribe([&] { owners.clear(); });
  const Subscription last = signal.Subscribe([&] { calls.push_back(2); });
  signal.Emit();
  calls.clear();
  signal.Emit();
  EXPECT_THAT(calls, ElementsAre(2));
}

}  // namespace
}  // namespace ferrowind::platform
