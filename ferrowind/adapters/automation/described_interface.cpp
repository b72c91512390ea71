#include "ferrowind/adapters/automation/described_interface.h"

#include <algorithm>
#include <utility>

namespace ferrowind::automation {

DescribedInterface::DescribedInterface(ComPointer<ITypeInfo> info) : info_(std::move(info)) {
  FUNCDESC* described = nullptr;
  for (UINT i = 0; SUCCEEDED(info_->GetFuncDesc(i, &described)); ++i) {
    std::unique_ptr<FUNCDESC, Releaser> function(described, Releaser{info_.Get()});
    // Those that every interface begins with are not for late-bound calls.
    if ((function->wFuncFlags & FUNCFLAG_FRESTRICTED) == 0) functions_.push_back(std::move(function));
  }
}

const FUNCDESC* DescribedInterface::Function(DISPID member, WORD kind) const {
  const auto found = std::find_if(functions_.begin(), functions_.end(), [&](const auto& function) {
    return function->memid == member && (function->invkind & kind) != 0;
  });
  return found == functions_.end() ? nullptr : found->get();
}

}  // namespace ferrowind::automation
