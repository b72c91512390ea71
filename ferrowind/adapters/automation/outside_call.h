#pragma once

#include <string>
#include <vector>

#include <oaidl.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/owned_variant.h"

namespace ferrowind::automation {

/// An object of the host's product family, known by the names of its members only. Whatever goes wrong is a
/// failure that names the member: with the object's own number and description where it raised one, 438 where
/// it has no such member, and 91 where there is no object.
class OutsideCall {
 public:
  /// `object` may be null; `name` is what failures call it.
  OutsideCall(ComPointer<IDispatch> object, std::string name);

  /// A new object of what is registered under the identifier. 429 where nothing is, or what is cannot be
  /// created or not be called late.
  [[nodiscard]] static OutsideCall Create(const std::string& programmatic_identifier);
  /// Whether anything is registered under the identifier.
  [[nodiscard]] static bool IsRegistered(const std::string& programmatic_identifier);

  /// Calls a method, or reads a property with arguments; empty where the member gives nothing.
  [[nodiscard]] OwnedVariant Call(const char* member, std::vector<OwnedVariant> arguments = {}) const;
  /// The object that the member gives; one that is none, or no object at all, is a failure.
  [[nodiscard]] OutsideCall ObjectOf(const char* member, std::vector<OwnedVariant> arguments = {}) const;

 private:
  [[nodiscard]] DISPID IdentifierOf(const char* member) const;
  [[nodiscard]] std::string Named(const char* member) const { return name_ + "." + member; }

  ComPointer<IDispatch> object_;
  std::string name_;
};

}  // namespace ferrowind::automation
