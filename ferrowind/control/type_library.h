#pragma once

#include <cstdint>

/// The identity of the public interface, kept for hosts that were built against it: class and interface
/// identifiers in registry form, and the dispatch identifiers of the members in the order of their slots.
namespace ferrowind::type_library {

/// The name of the library and the prefix of the programmatic identifiers.
inline constexpr const char* kName = "Ferrowind";
/// What hosts that create objects by name ask for.
inline constexpr const char* kCalendarProgrammaticIdentifier = "Ferrowind.Calendar";
///@{
/// The version of the public interface, which hosts were built against and may compare: it stays whatever the
/// release is, whose number is in ferrowind/version.h.
inline constexpr std::int16_t kMajorVersion = 1;
inline constexpr std::int16_t kMinorVersion = 2;
inline constexpr std::int16_t kRevision = 10;
///@}
/// The same as the version resource of the component's file says it: four parts.
inline constexpr const char* kFileVersion = "1.2.0.10";

/// A class of the library.
struct Class {
  /// Without the library's name.
  const char* name;
  /// In registry form, with braces.
  const char* class_id;
  /// The default interface.
  const char* interface_name;
  /// Of the default interface, in registry form.
  const char* interface_id;
  ///@{
  /// Null for a class without events.
  const char* events_name;
  const char* events_id;
  ///@}
  /// Whether the class is marked as a control, which hosts create. The others carry no flag: hosts obtain the
  /// maps from the control.
  bool is_control;
};

/// All classes, the control first.
inline constexpr Class kClasses[] = {
    {"Calendar", "{DED80419-449B-11D6-8AE6-0050228F1EE8}", "_Calendar",
     "{03C0325A-44B4-11D6-8AE6-0050228F1EE8}", "__Calendar", "{03C0325B-44B4-11D6-8AE6-0050228F1EE8}", true},
    {"GridFields", "{DED80413-449B-11D6-8AE6-0050228F1EE8}", "_GridFields",
     "{03C03052-44B4-11D6-8AE6-0050228F1EE8}", nullptr, nullptr, false},
    {"GridField", "{DED80410-449B-11D6-8AE6-0050228F1EE8}", "_GridField",
     "{03C03050-44B4-11D6-8AE6-0050228F1EE8}", "__GridField", "{03C03051-44B4-11D6-8AE6-0050228F1EE8}",
     false},
};

/// How a member is asked for: called, read, read and written, or raised by the component.
enum class MemberKind { kMethod, kPropertyGet, kPropertyGetPut, kEvent };

/// A member of an interface, or of a class's events.
struct Member {
  /// One that `kClasses` names.
  const char* interface_name;
  /// Unique in its interface.
  const char* name;
  /// A property that is read and written is one member.
  MemberKind kind;
  /// As late-bound hosts call the member.
  std::uint32_t dispatch_id;
};

/// All members, interface by interface, in the order of their slots.
inline constexpr Member kMembers[] = {
    {"_Calendar", "ForceClosing", MemberKind::kMethod, 0x60030002},
    {"_Calendar", "Show", MemberKind::kMethod, 0x60030003},
    {"_Calendar", "Headers", MemberKind::kPropertyGet, 0x68030001},
    {"_Calendar", "HolidayHeaders", MemberKind::kPropertyGet, 0x68030000},
    {"_Calendar", "Version", MemberKind::kPropertyGet, 0x68030004},
    {"_GridFields", "Add", MemberKind::kMethod, 0x60030001},
    {"_GridFields", "LocalNames", MemberKind::kMethod, 0x60030002},
    {"_GridFields", "Fields", MemberKind::kMethod, 0x60030003},
    {"_GridFields", "RemoveByLocalIndex", MemberKind::kMethod, 0x60030004},
    {"_GridFields", "RemoveByFieldIndex", MemberKind::kMethod, 0x60030005},
    {"_GridFields", "Clear", MemberKind::kMethod, 0x60030006},
    {"_GridFields", "Count", MemberKind::kPropertyGet, 0x68030000},
    {"_GridField", "FieldName", MemberKind::kPropertyGetPut, 0x40030002},
    {"_GridField", "Visible", MemberKind::kPropertyGetPut, 0x40030003},
    {"_GridField", "Caption", MemberKind::kPropertyGetPut, 0x40030004},
    {"_GridField", "LocalName", MemberKind::kPropertyGetPut, 0x68030002},
    {"_GridField", "Index", MemberKind::kPropertyGet, 0x68030001},
    {"_GridField", "IsConst", MemberKind::kPropertyGet, 0x68030000},
    {"__GridField", "GetIndex", MemberKind::kEvent, 1},
};

}  // namespace ferrowind::type_library
