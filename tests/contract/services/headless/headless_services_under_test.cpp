#include <chrono>

#include "ferrowind/adapters/headless/world.h"

#include "tests/contract/services/services_under_test.h"

namespace ferrowind::contract {
namespace {

class HeadlessServicesUnderTest : public ServicesUnderTest {
 public:
  HeadlessServicesUnderTest() {
    world_.dictionary->SetCurrencies({{978, "EUR"}, {840, "USD"}, {959, "XAU", 1}});
    world_.dictionary->SetConnectionString("memory:contract");
    const std::chrono::year_month_day today(
        std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()));
    world_.clock.SetToday({static_cast<int>(today.year()),
                           static_cast<int>(static_cast<unsigned>(today.month())),
                           static_cast<int>(static_cast<unsigned>(today.day()))});
    form_->Show();
  }

  [[nodiscard]] platform::ObjectFactory& Objects() override { return world_.objects; }
  [[nodiscard]] const platform::Locale& Locale() override { return world_.locale; }
  [[nodiscard]] const platform::Clock& Clock() override { return world_.clock; }
  [[nodiscard]] std::string ConnectionString() override { return "memory:contract"; }
  [[nodiscard]] platform::Grid& Grid() override {
    return platform::ControlOf<platform::Grid>(*form_, "gexRows");
  }
  [[nodiscard]] platform::Grid& AnotherGrid() override {
    another_form_.reset();
    another_form_ = world_.toolkit.CreateForm(Design());
    return platform::ControlOf<platform::Grid>(*another_form_, "gexRows");
  }
  [[nodiscard]] std::string Clipboard() override { return world_.services->Clipboard(); }
  void DamageLayout(const std::string& section) override { world_.services->DamageLayout(section); }
  [[nodiscard]] std::vector<std::string> AnsweredTexts() override {
    std::vector<std::string> texts;
    for (const auto& message : world_.services->Messages()) texts.push_back(message.text);
    for (const auto& report : world_.services->Reports()) {
      texts.push_back(std::to_string(report.number) + " " + report.description);
    }
    return texts;
  }

 private:
  static platform::FormDesign Design() {
    return {
        .name = "fmServices", .caption = "Services", .controls = {{platform::ControlKind::kGrid, "gexRows"}}};
  }

  headless::World world_;
  std::shared_ptr<platform::Form> form_ = world_.toolkit.CreateForm(Design());
  std::shared_ptr<platform::Form> another_form_;
};

}  // namespace

std::unique_ptr<ServicesUnderTest> MakeServicesUnderTest() {
  return std::make_unique<HeadlessServicesUnderTest>();
}

}  // namespace ferrowind::contract
