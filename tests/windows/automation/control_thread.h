#pragma once

#include <memory>

#include <gtest/gtest.h>
#include <objbase.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/embedding/calendar_factory.h"
#include "ferrowind/adapters/automation/surroundings.h"
#include "ferrowind/adapters/headless/world.h"

#include "generated/ferrowind.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind::testing {

/// An apartment of one thread, as long as it lives.
class Apartment {
 public:
  Apartment() { EXPECT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

/// What the controls of a test thread run in.
struct ControlWorld {
  ControlWorld() {
    world.dictionary->SetCurrencies({{978, "EUR"}});
    world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1", "Description1"},
               {{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}});
  }
  ControlWorld(const ControlWorld&) = delete;
  ControlWorld& operator=(const ControlWorld&) = delete;
  /// Kept until the thread ends, as its dictionary and services are.
  [[nodiscard]] static ControlWorld& OfThisThread() {
    static thread_local ControlWorld world;
    return world;
  }

  headless::World world;
  platform::Platform platform = world.Platform();
};

class InControlWorld : public automation::Surroundings {
 public:
  [[nodiscard]] const platform::Platform& Get() const override {
    return ControlWorld::OfThisThread().platform;
  }
};

[[nodiscard]] inline automation::ComPointer<IClassFactory> NewFactory() {
  automation::ComPointer<IClassFactory> factory;
  factory.Attach(new automation::CalendarFactory(
      []() -> std::unique_ptr<automation::Surroundings> { return std::make_unique<InControlWorld>(); }));
  return factory;
}

/// A control as a host creates it.
[[nodiscard]] inline automation::ComPointer<_Calendar> NewControl() {
  automation::ComPointer<_Calendar> control;
  EXPECT_EQ(NewFactory()->CreateInstance(nullptr, __uuidof(_Calendar), control.ReceiveAny()), S_OK);
  return control;
}

/// Runs a test in an apartment of a thread of its own.
template <typename Body>
void RunInApartment(Body&& body) {
  RunInFreshThread([&body] {
    const Apartment apartment;
    body();
  });
}

}  // namespace ferrowind::testing
