#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::platform {

class RecordSet;

/// One value of any of the types that parameters, fields and settings hold.
///
/// A database's NULL and a value that was never given are the same thing here: empty. Plain values are copied
/// with the `Value`; a record set is a reference, shared by all copies. Text is UTF-8 and may hold any
/// character, NUL included.
class FERROWIND_EXPORT Value {
 public:
  /// A record set that all copies of the value share; null is an object that is none.
  using Object = std::shared_ptr<RecordSet>;
  /// What a value can hold; `std::monostate` is empty.
  using Storage = std::variant<std::monostate, bool, std::int16_t, std::int32_t, std::int64_t, float, double,
                               std::string, Date, Object>;

  /// Empty.
  Value() = default;
  ///@{
  /// Holds the value as it is, of that very type. Not explicit, so that lists of parameters can be written
  /// down. A text is copied and must not be null.
  Value(bool value) : storage_(value) {}
  Value(std::int16_t value) : storage_(value) {}
  Value(std::int32_t value) : storage_(value) {}
  Value(std::int64_t value) : storage_(value) {}
  Value(float value) : storage_(value) {}
  Value(double value) : storage_(value) {}
  Value(std::string value) : storage_(std::move(value)) {}
  Value(const char* value) : storage_(std::string(value)) {}
  Value(Date value) : storage_(value) {}
  Value(Object value) : storage_(std::move(value)) {}
  ///@}
  /// No other pointer is a value: it would become a truth value.
  template <typename Pointee>
  requires(!std::is_same_v<const Pointee, const char>) Value(Pointee* value)
  = delete;

  /// True for NULL, and for what was never given.
  [[nodiscard]] bool IsEmpty() const { return std::holds_alternative<std::monostate>(storage_); }
  /// True when the value refers to an object (a record set), even to none.
  [[nodiscard]] bool IsObject() const { return Is<Object>(); }

  /// True when the value is of the type `T` of `Storage`. Never converts.
  template <typename T>
  [[nodiscard]] bool Is() const {
    return std::holds_alternative<T>(storage_);
  }
  /// The value as a T, or null when it is of another type. Never converts: conversion.h does.
  template <typename T>
  [[nodiscard]] const T* If() const {
    return std::get_if<T>(&storage_);
  }
  /// For visitors of every type; alive as long as the value is not assigned to.
  [[nodiscard]] const Storage& Get() const { return storage_; }

  /// Same type and same value; objects are equal when they are the same object.
  friend bool operator==(const Value&, const Value&) = default;

 private:
  Storage storage_;
};

}  // namespace ferrowind::platform
