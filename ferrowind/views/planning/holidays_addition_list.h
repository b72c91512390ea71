#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/platform/additions/holidays_additions.h"

namespace ferrowind {

/// Several additions of a Holidays window as one: each is asked in turn, and gets what those before it have
/// made of the caption and the rules. A failure of one is reported and keeps none of the others from being
/// asked; only rules that one of them could not look at are not assigned.
class HolidaysAdditionList : public platform::HolidaysAdditions {
 public:
  using Additions = std::vector<std::unique_ptr<platform::HolidaysAdditions>>;

  explicit HolidaysAdditionList(Additions additions);

  void Opening() override;
  [[nodiscard]] std::string Caption(const std::string& given) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> RulesToShow(
      std::shared_ptr<platform::RecordSet> rules) override;
  bool RunTool(const std::string& id) override;
  /// Asks no further once one has said no.
  [[nodiscard]] bool BeforeAssign(const std::vector<platform::ChosenRule>& rules) override;
  void Closing() override;

 private:
  void TellEach(const std::function<void(platform::HolidaysAdditions& addition)>& what);

  Additions additions_;
};

}  // namespace ferrowind
