#pragma once

#include <memory>
#include <vector>

#include <oaidl.h>

#include "ferrowind/adapters/automation/com_pointer.h"

namespace ferrowind::automation {

/// An interface of the type library, with the descriptions of its functions. They are read once, since the
/// platform copies a description each time that it is asked for one, which takes longer than most calls.
class DescribedInterface {
 public:
  /// `info` is not null.
  explicit DescribedInterface(ComPointer<ITypeInfo> info);
  DescribedInterface(const DescribedInterface&) = delete;
  DescribedInterface& operator=(const DescribedInterface&) = delete;

  [[nodiscard]] const ComPointer<ITypeInfo>& Info() const { return info_; }
  /// The function that is called as one of `kind`, DISPATCH_METHOD and its like; null when there is none that
  /// hosts may call.
  [[nodiscard]] const FUNCDESC* Function(DISPID member, WORD kind) const;

 private:
  struct Releaser {
    ITypeInfo* info;
    void operator()(FUNCDESC* function) const { info->ReleaseFuncDesc(function); }
  };

  ComPointer<ITypeInfo> info_;
  std::vector<std::unique_ptr<FUNCDESC, Releaser>> functions_;
};

}  // namespace ferrowind::automation
