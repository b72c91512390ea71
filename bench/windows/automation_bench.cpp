// A late-bound call of the control, against the same of an object that was written for this one call.

#include <memory>
#include <stdexcept>

#include <oaidl.h>
#include <objbase.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/embedding/calendar_factory.h"
#include "ferrowind/adapters/automation/owned_variant.h"
#include "ferrowind/adapters/automation/surroundings.h"
#include "ferrowind/adapters/headless/world.h"

#include "bench/measurement.h"
#include "bench/windows/minimal_version.h"

namespace ferrowind::bench {
namespace {

using automation::ComPointer;

constexpr DISPID kVersion = 0x68030004;

struct BenchSurroundings : automation::Surroundings {
  [[nodiscard]] const platform::Platform& Get() const override { return platform; }

  headless::World world;
  platform::Platform platform = world.Platform();
};

ComPointer<IDispatch> NewControl() {
  ComPointer<IClassFactory> factory;
  factory.Attach(new automation::CalendarFactory(
      []() -> std::unique_ptr<automation::Surroundings> { return std::make_unique<BenchSurroundings>(); }));
  ComPointer<IDispatch> control;
  if (FAILED(factory->CreateInstance(nullptr, __uuidof(IDispatch), control.ReceiveAny()))) {
    throw std::runtime_error("The control was not created");
  }
  return control;
}

void ReadVersion(IDispatch& object, DISPID member, int times) {
  for (int i = 0; i < times; ++i) {
    DISPPARAMS none{};
    automation::OwnedVariant version;
    if (FAILED(object.Invoke(member, GUID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                             version.Address(), nullptr, nullptr)) ||
        version.Type() != (VT_ARRAY | VT_VARIANT)) {
      throw std::runtime_error("The version was not given");
    }
  }
}

void Run(const Benchmark& benchmark) {
  constexpr int kTimes = 10000;
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
    throw std::runtime_error("There is no apartment");
  }
  {
    const auto control = NewControl();
    const auto minimal = NewMinimalVersion();
    benchmark.Compare("automation: Version through Invoke, 10000 times", 3,
                      {[&] { ReadVersion(*control.Get(), kVersion, kTimes); }},
                      {[&] { ReadVersion(*minimal.Get(), kMinimalVersion, kTimes); }});
  }
  CoUninitialize();
}

}  // namespace
}  // namespace ferrowind::bench

int main(int argc, char** argv) { return ferrowind::bench::RunBenchmark(argc, argv, ferrowind::bench::Run); }
