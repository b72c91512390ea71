// What a host's form keeps of the control: streams and bags, sound and damaged.

#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/owned_variant.h"
#include "ferrowind/adapters/automation/text.h"
#include "ferrowind/adapters/automation/variant_value.h"
#include "ferrowind/platform/values/value.h"

#include "generated/ferrowind.h"
#include "tests/windows/automation/control_thread.h"
#include "tests/windows/automation/form_container.h"

namespace ferrowind::testing {
namespace {

using automation::ComPointer;
using automation::OwnedVariant;
using platform::Value;

ComPointer<IStream> StreamOf(const std::string& bytes) {
  ComPointer<IStream> stream;
  EXPECT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Receive()), S_OK);
  EXPECT_EQ(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr), S_OK);
  EXPECT_EQ(stream->Seek({}, STREAM_SEEK_SET, nullptr), S_OK);
  return stream;
}

std::string BytesOf(IStream& stream) {
  EXPECT_EQ(stream.Seek({}, STREAM_SEEK_SET, nullptr), S_OK);
  std::string bytes(100, '\0');
  ULONG length = 0;
  EXPECT_TRUE(SUCCEEDED(stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &length)));
  bytes.resize(length);
  return bytes;
}

/// The properties of a form's control, as its designer writes them into a file.
class Bag : public automation::ComObject<IPropertyBag, IErrorLog> {
 public:
  std::map<std::string, Value> properties;
  std::vector<std::string> errors;
  bool is_full = false;

  HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
    const auto property = properties.find(automation::Utf8(name));
    if (property == properties.end()) return E_INVALIDARG;
    *value = automation::VariantOf(property->second).Release();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override {
    if (is_full) return STG_E_MEDIUMFULL;
    properties[automation::Utf8(name)] = automation::ValueOf(*value);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE AddError(LPCOLESTR name, EXCEPINFO* error) override {
    errors.push_back(automation::Utf8(name) + ": " + automation::Utf8OfBstr(error->bstrDescription));
    return S_OK;
  }
};

ComPointer<Bag> BagOf(const std::map<std::string, Value>& properties) {
  ComPointer<Bag> bag;
  bag.Attach(new Bag);
  bag->properties = properties;
  return bag;
}

TEST(ControlInAStream, ComesBackAndLeavesTheNextOnesBytes) {
  RunInApartment([] {
    const auto stream = StreamOf("");
    const auto stored = As<IPersistStreamInit>(NewControl());
    EXPECT_EQ(stored->InitNew(), S_OK);
    EXPECT_EQ(stored->IsDirty(), S_FALSE);
    ASSERT_EQ(stored->Save(stream.Get(), TRUE), S_OK);
    const std::string bytes = BytesOf(*stream.Get());
    ULARGE_INTEGER size{};
    EXPECT_EQ(stored->GetSizeMax(&size), S_OK);
    EXPECT_EQ(size.QuadPart, bytes.size());

    const auto two = StreamOf(bytes + "next");
    EXPECT_EQ(As<IPersistStreamInit>(NewControl())->Load(two.Get()), S_OK);
    std::string next(4, '\0');
    EXPECT_EQ(two->Read(next.data(), 4, nullptr), S_OK);
    EXPECT_EQ(next, "next");
    CLSID class_id{};
    EXPECT_EQ(stored->GetClassID(&class_id), S_OK);
    EXPECT_TRUE(IsEqualCLSID(class_id, __uuidof(::Calendar)));
  });
}

TEST(ControlInAStream, IsKeptInAStorageOfItsForm) {
  RunInApartment([] {
    wchar_t folder[MAX_PATH] = {};
    wchar_t file[MAX_PATH] = {};
    ASSERT_NE(GetTempPathW(MAX_PATH, folder), 0U);
    ASSERT_NE(GetTempFileNameW(folder, L"fwd", 0, file), 0U);
    {
      ComPointer<IStorage> storage;
      ComPointer<IStream> stream;
      ASSERT_EQ(
          StgCreateDocfile(file, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, storage.Receive()),
          S_OK);
      ASSERT_EQ(storage->CreateStream(L"Control", STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0,
                                      stream.Receive()),
                S_OK);
      EXPECT_EQ(As<IPersistStreamInit>(NewControl())->Save(stream.Get(), TRUE), S_OK);
    }
    {
      ComPointer<IStorage> storage;
      ComPointer<IStream> stream;
      ASSERT_EQ(
          StgOpenStorage(file, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, nullptr, 0, storage.Receive()),
          S_OK);
      ASSERT_EQ(
          storage->OpenStream(L"Control", nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, stream.Receive()),
          S_OK);
      EXPECT_EQ(As<IPersistStreamInit>(NewControl())->Load(stream.Get()), S_OK);
    }
    EXPECT_TRUE(DeleteFileW(file));
  });
}

TEST(ControlInAStream, IsRefusedWhereItIsDamaged) {
  RunInApartment([] {
    const auto stream = StreamOf("");
    ASSERT_EQ(As<IPersistStreamInit>(NewControl())->Save(stream.Get(), TRUE), S_OK);
    const std::string sound = BytesOf(*stream.Get());
    const auto control = NewControl();
    const auto stored = As<IPersistStreamInit>(control);
    for (std::size_t i = 0; i < sound.size(); ++i) {
      SCOPED_TRACE(i);
      std::string damaged = sound;
      damaged[i] = static_cast<char>(damaged[i] ^ 0x40);
      EXPECT_EQ(stored->Load(StreamOf(damaged).Get()), CTL_E_INVALIDFILEFORMAT);
      EXPECT_EQ(stored->Load(StreamOf(sound.substr(0, i)).Get()), CTL_E_INVALIDFILEFORMAT);
    }
    EXPECT_EQ(stored->Load(static_cast<IStream*>(nullptr)), E_POINTER);
    VARIANT_BOOL is_closed = VARIANT_FALSE;
    EXPECT_EQ(control->ForceClosing(&is_closed), S_OK);
    EXPECT_EQ(stored->Load(StreamOf(sound).Get()), S_OK);
  });
}

TEST(ControlInABag, ComesBackFromItsExtents) {
  RunInApartment([] {
    const auto bag = BagOf({});
    const auto stored = As<IPersistPropertyBag>(NewControl());
    EXPECT_EQ(stored->InitNew(), S_OK);
    ASSERT_EQ(stored->Save(bag.Get(), TRUE, TRUE), S_OK);
    const std::map<std::string, Value> expected = {{"_ExtentX", 423}, {"_ExtentY", 423}};
    EXPECT_EQ(bag->properties, expected);
    EXPECT_EQ(As<IPersistPropertyBag>(NewControl())->Load(bag.Get(), bag.Get()), S_OK);
    EXPECT_TRUE(bag->errors.empty());
  });
}

TEST(ControlInABag, TakesWhatOldFormsHave) {
  RunInApartment([] {
    const auto stored = As<IPersistPropertyBag>(NewControl());
    EXPECT_EQ(stored->Load(BagOf({}).Get(), nullptr), S_OK);
    EXPECT_EQ(
        stored->Load(BagOf({{"_ExtentX", "847"}, {"_ExtentY", 900.5}, {"_Version", "?"}}).Get(), nullptr),
        S_OK);
    SIZEL size{};
    EXPECT_EQ(As<IOleObject>(stored)->GetExtent(DVASPECT_CONTENT, &size), S_OK);
    EXPECT_EQ(size.cx, 423);
  });
}

TEST(ControlInABag, RefusesWhatIsNoSizeAndTellsIt) {
  RunInApartment([] {
    const auto stored = As<IPersistPropertyBag>(NewControl());
    for (const Value& rubbish : std::vector<Value>{"wide", -5, 0, 1e300}) {
      const auto bag = BagOf({{"_ExtentX", 423}, {"_ExtentY", rubbish}});
      EXPECT_EQ(stored->Load(bag.Get(), bag.Get()), CTL_E_INVALIDPROPERTYVALUE);
      EXPECT_EQ(bag->errors, std::vector<std::string>{"_ExtentY: The stored value is no size"});
      EXPECT_EQ(stored->Load(bag.Get(), nullptr), CTL_E_INVALIDPROPERTYVALUE);
    }
    EXPECT_EQ(stored->Load(static_cast<IPropertyBag*>(nullptr), nullptr), E_POINTER);
  });
}

TEST(ControlInABag, SaysThatItCouldNotBeWritten) {
  RunInApartment([] {
    const auto bag = BagOf({});
    bag->is_full = true;
    EXPECT_EQ(As<IPersistPropertyBag>(NewControl())->Save(bag.Get(), TRUE, TRUE), STG_E_MEDIUMFULL);
  });
}

}  // namespace
}  // namespace ferrowind::testing
