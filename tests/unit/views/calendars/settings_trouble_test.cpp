// Settings of the Calendars window that cannot be read or written, one at a time.
#include <map>
#include <memory>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using testing::CalendarsWorld;
using testing::kLayoutSection;
using testing::kPlacementSection;
using testing::RunInFreshThread;
using testing::Value;

constexpr const char* kLayout = "Layout";
const std::map<std::string, float> kPlace = {
    {"Left", 300.0F}, {"Top", 450.0F}, {"Width", 9000.0F}, {"Height", 6000.0F}};

/// Services of which one setting fails; the layout of a grid is the setting "Layout".
class FailingSettings : public headless::HeadlessSharedServices {
 public:
  using HeadlessSharedServices::HeadlessSharedServices;

  Value ReadSetting(const std::string& section, const std::string& name, const Value& user,
                    const Value& default_value) override {
    Pass(name);
    return HeadlessSharedServices::ReadSetting(section, name, user, default_value);
  }
  void WriteSetting(const std::string& section, const std::string& name, const Value& value) override {
    Pass(name);
    HeadlessSharedServices::WriteSetting(section, name, value);
  }
  void LoadGridLayout(platform::Grid& grid, const std::string& section) override {
    Pass(kLayout);
    HeadlessSharedServices::LoadGridLayout(grid, section);
  }
  void SaveGridLayout(platform::Grid& grid, const std::string& section) override {
    Pass(kLayout);
    HeadlessSharedServices::SaveGridLayout(grid, section);
    has_saved_layout = true;
  }

  std::string failing;
  bool are_all_failing = false;
  bool has_saved_layout = false;

 private:
  void Pass(const std::string& name) const {
    if (are_all_failing || name == failing) throw platform::Failure(5, "The server of the settings is away");
  }
};

std::shared_ptr<FailingSettings> UseFailingSettings(CalendarsWorld& calendars) {
  auto services = std::make_shared<FailingSettings>(calendars.world.log);
  Module().shared_services = services;
  return services;
}

void ExpectPlaceBut(const std::string& failing, const headless::HeadlessForm& form) {
  const std::map<std::string, float> place = {
      {"Left", form.Left()}, {"Top", form.Top()}, {"Width", form.Width()}, {"Height", form.Height()}};
  for (const auto& [name, stored] : kPlace) {
    if (name == failing) {
      EXPECT_NE(place.at(name), stored);
    } else {
      EXPECT_EQ(place.at(name), stored) << name;
    }
  }
}

TEST(SettingsTrouble, OneThatCannotBeReadCostsTheWindowThatSettingAlone) {
  for (const std::string failing : {"Left", "Top", "Width", "Height", kLayout}) {
    SCOPED_TRACE(failing);
    RunInFreshThread([&failing] {
      CalendarsWorld calendars;
      const auto services = UseFailingSettings(calendars);
      calendars.Open();
      calendars.Grid().ColumnByKey("Comment").SetVisible(false);
      EXPECT_TRUE(calendars.window->ForceClosing());
      for (const auto& [name, stored] : kPlace) services->PutSetting(kPlacementSection, name, stored);

      services->failing = failing;
      ASSERT_TRUE(calendars.Start());
      ExpectPlaceBut(failing, calendars.Form());
      EXPECT_EQ(calendars.Grid().ColumnByKey("Comment").Visible(), failing == kLayout);
      EXPECT_TRUE(services->Messages().empty());
      EXPECT_TRUE(services->Reports().empty());
    });
  }
}

TEST(SettingsTrouble, ALayoutThatCannotBeReadIsTraced) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    const auto services = UseFailingSettings(calendars);
    services->failing = kLayout;
    ASSERT_TRUE(calendars.Start());
    EXPECT_THAT(services->Traces(), ::testing::Contains("Failure 5: The server of the settings is away"));
  });
}

TEST(SettingsTrouble, ALayoutThatCannotBeWrittenCostsNotThePlace) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    const auto services = UseFailingSettings(calendars);
    calendars.Open();
    services->failing = kLayout;
    EXPECT_TRUE(calendars.window->ForceClosing());
    EXPECT_TRUE(calendars.Form().HasUnloaded());
    EXPECT_EQ(services->Reports().size(), 1u);
    for (const auto& [name, stored] : kPlace) {
      EXPECT_TRUE(services->Setting(kPlacementSection, name).has_value()) << name;
    }
  });
}

TEST(SettingsTrouble, SettingsThatCannotBeWrittenAtAllAreReportedOnce) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    const auto services = UseFailingSettings(calendars);
    calendars.Open();
    services->are_all_failing = true;
    EXPECT_TRUE(calendars.window->ForceClosing());
    EXPECT_TRUE(calendars.Form().HasUnloaded());
    EXPECT_EQ(services->Reports().size(), 1u);
  });
}

TEST(SettingsTrouble, APlaceThatCannotBeWrittenIsReportedBehindTheLayout) {
  for (const std::string failing : {"Left", "Top", "Width", "Height"}) {
    SCOPED_TRACE(failing);
    RunInFreshThread([&failing] {
      CalendarsWorld calendars;
      const auto services = UseFailingSettings(calendars);
      calendars.Open();
      services->failing = failing;
      EXPECT_TRUE(calendars.window->ForceClosing());
      EXPECT_TRUE(calendars.Form().HasUnloaded());
      EXPECT_TRUE(services->has_saved_layout);
      EXPECT_EQ(services->Reports().size(), 1u);
    });
  }
}

}  // namespace
}  // namespace ferrowind
