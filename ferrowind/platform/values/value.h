#pragma once

#include <cstdint>
#include <memory>
#include <string>
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
  using Object = std::shared_ptr<RecordSet>;
  using Storage = std::variant<std::monostate, bool, std::int16_t, std::int32_t, std::int64_t, float, double,
                               std::string, Date, Object>;

  Value() = default;
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

  [[nodiscard]] bool IsEmpty() const { return std::holds_alternative<std::monostate>(storage_); }
  /// True when the value refers to an object (a record set), even to none.
  [[nodiscard]] bool IsObject() const { return Is<Object>(); }

  template <typename T>
  [[nodiscard]] bool Is() const {
    return std::holds_alternative<T>(storage_);
  }
  /// The value as a T, or null when it is of another type. Never converts: conversion.h does.
  template <typename T>
  [[nodiscard]] const T* If() const {
    return std::get_if<T>(&storage_);
  }
  [[nodiscard]] const Storage& Get() const { return storage_; }

  /// Same type and same value; objects are equal when they are the same object.
  friend bool operator==(const Value&, const Value&) = default;

 private:
  Storage storage_;
};

}  // namespace ferrowind::platform
