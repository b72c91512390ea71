#include "ferrowind/data/source_values.h"

#include <exception>

namespace ferrowind {

bool SourceValues::Add(const std::string& Name, const platform::Value& Value) {
  try {
    cells_.Append(Name, std::make_shared<SourceValuesCell>(SourceValuesCell{Name, Value}));
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

bool SourceValues::Remove(const std::optional<platform::Value>& index) {
  try {
    if (index) {
      cells_.Remove(*index);
    } else {
      for (std::int32_t remaining = Count(); remaining > 0; --remaining) cells_.Remove(1);
    }
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

std::shared_ptr<SourceValuesCell> SourceValues::Values(const platform::Value& index) const {
  try {
    return cells_.At(index);
  } catch (const std::exception&) {
    return nullptr;
  }
}

std::int32_t SourceValues::Count() const { return cells_.Count(); }

}  // namespace ferrowind
