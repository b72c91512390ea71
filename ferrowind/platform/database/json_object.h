#pragma once

#include <string>
#include <string_view>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

/// The text of a JSON object, made member by member, in the form that database servers write it:
/// {"ID1" : 978, "Comment" : null}.
class FERROWIND_EXPORT JsonObject {
 public:
  /// Numbers as such, dates as the text YYYY-MM-DD, nothing as null; both texts are UTF-8. A value of another
  /// type than a parameter can have is the failure Type mismatch.
  void Add(std::string_view name, const Value& value);

  /// The object with the members that were added, "{}" before the first one.
  [[nodiscard]] std::string Text() const { return members_.empty() ? "{}" : members_ + "}"; }

 private:
  /// With the opening brace, once there is one.
  std::string members_;
};

}  // namespace ferrowind::platform
