#pragma once

#include <string>

#include <gtest/gtest.h>
#include <objbase.h>
// Behind the platform's own, which it builds on.
#include <activscp.h>

#include "ferrowind/adapters/automation/com_object.h"
#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/owned_bstr.h"
#include "ferrowind/adapters/automation/text.h"

namespace ferrowind::testing {

/// A host of scripts with a thread of its own, whose messages it handles itself.
class ScriptHost {
 public:
  ScriptHost() {
    CLSID engine{};
    EXPECT_EQ(CLSIDFromProgID(L"VBScript", &engine), S_OK);
    EXPECT_EQ(CoCreateInstance(engine, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IActiveScript),
                               engine_.ReceiveAny()),
              S_OK);
    site_.Attach(new Site);
    EXPECT_EQ(engine_->QueryInterface(__uuidof(IActiveScriptParse64), parser_.ReceiveAny()), S_OK);
    EXPECT_EQ(engine_->SetScriptSite(site_.Get()), S_OK);
    EXPECT_EQ(parser_->InitNew(), S_OK);
    EXPECT_EQ(engine_->SetScriptState(SCRIPTSTATE_CONNECTED), S_OK);
  }
  /// Releases what the scripts have kept.
  ~ScriptHost() { engine_->Close(); }
  ScriptHost(const ScriptHost&) = delete;
  ScriptHost& operator=(const ScriptHost&) = delete;

  /// Goes on where the last script has ended. Returns what was raised, "" for nothing.
  std::string Run(const char* script) {
    site_->raised.clear();
    EXCEPINFO exception{};
    static_cast<void>(parser_->ParseScriptText(automation::Utf16(script).c_str(), nullptr, nullptr, nullptr,
                                               0, 0, SCRIPTTEXT_ISVISIBLE, nullptr, &exception));
    return site_->raised;
  }

 private:
  /// Whom the engine tells what a script raises.
  class Site : public automation::ComObject<IActiveScriptSite> {
   public:
    HRESULT STDMETHODCALLTYPE GetLCID(LCID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR, DWORD, IUnknown**, ITypeInfo**) override {
      return TYPE_E_ELEMENTNOTFOUND;
    }
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override {
      EXCEPINFO exception{};
      error->GetExceptionInfo(&exception);
      raised = automation::Utf8OfBstr(exception.bstrDescription);
      if (raised.empty()) raised = std::to_string(exception.scode);
      for (BSTR text : {exception.bstrDescription, exception.bstrSource, exception.bstrHelpFile})
        SysFreeString(text);
      return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

    std::string raised;
  };

  automation::ComPointer<IActiveScript> engine_;
  automation::ComPointer<IActiveScriptParse64> parser_;
  automation::ComPointer<Site> site_;
};

}  // namespace ferrowind::testing
