// The type library as hosts read it, against what the component says of itself.

#include "ferrowind/control/type_library.h"

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <oaidl.h>
#include <oleauto.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/module.h"
#include "ferrowind/adapters/automation/owned_bstr.h"
#include "ferrowind/adapters/automation/text.h"
#include "ferrowind/adapters/automation/variant_value.h"

namespace ferrowind::automation {
namespace {

using platform::Value;
using type_library::kClasses;
using type_library::kMembers;
using type_library::MemberKind;

constexpr unsigned kSlotsOfDispatch = 7;

GUID Identifier(const char* registry_form) {
  GUID identifier{};
  EXPECT_EQ(CLSIDFromString(Utf16(registry_form).c_str(), &identifier), S_OK) << registry_form;
  return identifier;
}

TYPEATTR AttributesOf(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  EXPECT_EQ(info.GetTypeAttr(&attributes), S_OK);
  const TYPEATTR copy = *attributes;
  info.ReleaseTypeAttr(attributes);
  return copy;
}

std::string NameOf(ITypeInfo& info, MEMBERID member = MEMBERID_NIL) {
  OwnedBstr name;
  EXPECT_EQ(info.GetDocumentation(member, name.Address(), nullptr, nullptr, nullptr), S_OK);
  return name.Utf8();
}

/// How a host that is bound early sees a dual interface: with its slots.
ComPointer<ITypeInfo> WithSlots(ComPointer<ITypeInfo> info) {
  HREFTYPE partner = 0;
  if (FAILED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &partner))) return info;
  ComPointer<ITypeInfo> result;
  EXPECT_EQ(info->GetRefTypeInfo(partner, result.Receive()), S_OK);
  return result;
}

/// A function of the library, owned.
class Function {
 public:
  Function(ComPointer<ITypeInfo> info, UINT index) : info_(std::move(info)) {
    EXPECT_EQ(info_->GetFuncDesc(index, &description_), S_OK);
  }
  ~Function() { info_->ReleaseFuncDesc(description_); }
  Function(const Function&) = delete;
  Function& operator=(const Function&) = delete;
  const FUNCDESC* operator->() const { return description_; }
  [[nodiscard]] std::string Name() const { return NameOf(*info_.Get(), description_->memid); }

 private:
  ComPointer<ITypeInfo> info_;
  FUNCDESC* description_ = nullptr;
};

struct Slot {
  std::string name;
  INVOKEKIND kind;
  DWORD dispatch_id;
  friend bool operator==(const Slot&, const Slot&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Slot& slot) {
    return out << slot.name << ' ' << slot.kind << ' ' << std::hex << slot.dispatch_id << std::dec;
  }
};

/// The slots of an interface as the component says them.
std::vector<Slot> SaidSlots(const std::string& interface_name) {
  std::vector<Slot> slots;
  for (const auto& member : kMembers) {
    if (member.interface_name != interface_name) continue;
    const bool is_called = member.kind == MemberKind::kMethod || member.kind == MemberKind::kEvent;
    slots.push_back({member.name, is_called ? INVOKE_FUNC : INVOKE_PROPERTYGET, member.dispatch_id});
    if (member.kind == MemberKind::kPropertyGetPut) {
      slots.push_back({member.name, INVOKE_PROPERTYPUT, member.dispatch_id});
    }
  }
  return slots;
}

TEST(TypeLibraryOfTheFile, IsNamedAsHostsAskForIt) {
  OwnedBstr name;
  ASSERT_EQ(Module::Get().TypeLibrary()->GetDocumentation(-1, name.Address(), nullptr, nullptr, nullptr),
            S_OK);
  EXPECT_EQ(name.Utf8(), type_library::kName);
}

TEST(TypeLibraryOfTheFile, HasEachClassWithItsInterfaceEventsAndFlags) {
  for (const auto& said : kClasses) {
    const auto info = Module::Get().TypeInfo(Identifier(said.class_id));
    const TYPEATTR attributes = AttributesOf(*info.Get());
    EXPECT_EQ(NameOf(*info.Get()), said.name);
    EXPECT_EQ(attributes.typekind, TKIND_COCLASS);
    EXPECT_EQ(attributes.wTypeFlags, said.is_control ? TYPEFLAG_FCONTROL | TYPEFLAG_FCANCREATE : 0)
        << said.name;
    ASSERT_EQ(attributes.cImplTypes, said.events_name != nullptr ? 2 : 1) << said.name;
    for (UINT i = 0; i < attributes.cImplTypes; ++i) {
      INT flags = 0;
      HREFTYPE reference = 0;
      ComPointer<ITypeInfo> implemented;
      ASSERT_EQ(info->GetImplTypeFlags(i, &flags), S_OK);
      ASSERT_EQ(info->GetRefTypeOfImplType(i, &reference), S_OK);
      ASSERT_EQ(info->GetRefTypeInfo(reference, implemented.Receive()), S_OK);
      const bool is_event = i == 1;
      EXPECT_EQ(flags, IMPLTYPEFLAG_FDEFAULT | (is_event ? IMPLTYPEFLAG_FSOURCE : 0)) << said.name;
      EXPECT_EQ(NameOf(*implemented.Get()), is_event ? said.events_name : said.interface_name);
      EXPECT_TRUE(IsEqualGUID(AttributesOf(*implemented.Get()).guid,
                              Identifier(is_event ? said.events_id : said.interface_id)));
    }
  }
}

TEST(TypeLibraryOfTheFile, InterfacesAreDualAndHaveTheirMembersInTheirSlots) {
  for (const auto& said : kClasses) {
    const auto info = Module::Get().TypeInfo(Identifier(said.interface_id));
    EXPECT_TRUE(AttributesOf(*info.Get()).wTypeFlags & TYPEFLAG_FDUAL) << said.interface_name;
    const auto with_slots = WithSlots(info);
    const TYPEATTR attributes = AttributesOf(*with_slots.Get());
    ASSERT_EQ(attributes.typekind, TKIND_INTERFACE) << said.interface_name;
    std::vector<Slot> slots;
    for (UINT i = 0; i < attributes.cFuncs; ++i) {
      const Function function(with_slots, i);
      EXPECT_EQ(static_cast<std::size_t>(function->oVft), (kSlotsOfDispatch + i) * sizeof(void*));
      slots.push_back({function.Name(), function->invkind, static_cast<DWORD>(function->memid)});
    }
    EXPECT_EQ(slots, SaidSlots(said.interface_name)) << said.interface_name;
  }
}

TEST(TypeLibraryOfTheFile, EventsAreCalledLateOnly) {
  for (const auto& said : kClasses) {
    if (said.events_id == nullptr) continue;
    const auto info = Module::Get().TypeInfo(Identifier(said.events_id));
    const TYPEATTR attributes = AttributesOf(*info.Get());
    EXPECT_EQ(attributes.typekind, TKIND_DISPATCH);
    EXPECT_FALSE(attributes.wTypeFlags & TYPEFLAG_FDUAL) << said.events_name;
    std::vector<Slot> slots;
    for (UINT i = 0; i < attributes.cFuncs; ++i) {
      const Function function(info, i);
      // Wine counts those of IDispatch among them, the platform's own library does not.
      if (static_cast<DWORD>(function->memid) >= 0x60000000) continue;
      slots.push_back({function.Name(), function->invkind, static_cast<DWORD>(function->memid)});
    }
    EXPECT_EQ(slots, SaidSlots(said.events_name)) << said.events_name;
  }
}

struct SaidArgument {
  VARTYPE refers_to;
  USHORT flags;
  Value left_out;
};

void ExpectArguments(const Function& function, const std::vector<SaidArgument>& said) {
  ASSERT_EQ(static_cast<std::size_t>(function->cParams), said.size()) << function.Name();
  for (std::size_t i = 0; i < said.size(); ++i) {
    const ELEMDESC& argument = function->lprgelemdescParam[i];
    ASSERT_EQ(argument.tdesc.vt, VT_PTR) << function.Name() << ' ' << i;
    EXPECT_EQ(argument.tdesc.lptdesc->vt, said[i].refers_to) << function.Name() << ' ' << i;
    EXPECT_EQ(argument.paramdesc.wParamFlags, said[i].flags) << function.Name() << ' ' << i;
    if ((said[i].flags & PARAMFLAG_FHASDEFAULT) == 0) continue;
    EXPECT_EQ(ValueOf(argument.paramdesc.pparamdescex->varDefaultValue), said[i].left_out);
  }
}

TEST(TypeLibraryOfTheFile, ArgumentsOfAddComeByReferenceAndTheLastTwoHaveDefaults) {
  const auto info = WithSlots(Module::Get().TypeInfo(Identifier("{03C03052-44B4-11D6-8AE6-0050228F1EE8}")));
  constexpr USHORT kBothWays = PARAMFLAG_FIN | PARAMFLAG_FOUT;
  constexpr USHORT kWithDefault = kBothWays | PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT;
  ExpectArguments(Function(info, 0), {{VT_BSTR, kBothWays, {}},
                                      {VT_BSTR, kBothWays, {}},
                                      {VT_BSTR, kWithDefault, "None name"},
                                      {VT_BOOL, kWithDefault, true}});
}

TEST(TypeLibraryOfTheFile, ArgumentsOfTheEventComeByReference) {
  const auto info = Module::Get().TypeInfo(Identifier("{03C03051-44B4-11D6-8AE6-0050228F1EE8}"));
  for (UINT i = 0; i < AttributesOf(*info.Get()).cFuncs; ++i) {
    const Function function(info, i);
    if (function->memid != 1) continue;
    constexpr USHORT kBothWays = PARAMFLAG_FIN | PARAMFLAG_FOUT;
    ExpectArguments(function, {{VT_BSTR, kBothWays, {}}, {VT_I4, kBothWays, {}}});
    return;
  }
  FAIL() << "no such event";
}

}  // namespace
}  // namespace ferrowind::automation
