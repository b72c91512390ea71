#pragma once

#include <guiddef.h>

namespace ferrowind::automation {

/// A class of the type library, by its identifiers there.
struct DescribedClass {
  const GUID& class_id;
  /// Of its default interface.
  const GUID& interface_id;
  /// Of its events; GUID_NULL without any.
  const GUID& events_id;
};

}  // namespace ferrowind::automation
