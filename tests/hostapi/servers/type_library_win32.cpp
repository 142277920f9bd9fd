#include "type_library_win32.h"

#include <windows.h>

namespace ravo::test {
namespace {

constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

// Stops a chain of calls at the first failure.
class Chain {
 public:
  template <class Call>
  Chain& Then(Call call) {
    if (SUCCEEDED(code_)) code_ = call();
    return *this;
  }
  [[nodiscard]] HRESULT Code() const { return code_; }

 private:
  HRESULT code_ = S_OK;
};

template <class Interface>
class Owned {
 public:
  Owned() = default;
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  ~Owned() {
    if (object_) object_->Release();
  }
  Interface** Receive() { return &object_; }
  Interface* operator->() const { return object_; }
  Interface* Get() const { return object_; }

 private:
  Interface* object_ = nullptr;
};

const ::GUID& SystemGuid(const Guid& guid) { return reinterpret_cast<const ::GUID&>(guid); }

// HRESULT OperationN([in] long value, [out, retval] long* answer)
HRESULT AddOperation(ICreateTypeInfo& type, UINT index) {
  TYPEDESC pointed{};
  pointed.vt = VT_I4;
  ELEMDESC parameters[2]{};
  parameters[0].tdesc.vt = VT_I4;
  parameters[0].paramdesc.wParamFlags = PARAMFLAG_FIN;
  parameters[1].tdesc.vt = VT_PTR;
  parameters[1].tdesc.lptdesc = &pointed;
  parameters[1].paramdesc.wParamFlags = PARAMFLAG_FOUT | PARAMFLAG_FRETVAL;
  FUNCDESC operation{};
  operation.memid = static_cast<MEMBERID>(index) + 1;
  operation.lprgelemdescParam = parameters;
  operation.cParams = 2;
  operation.funckind = FUNC_PUREVIRTUAL;
  operation.invkind = INVOKE_FUNC;
  operation.callconv = CC_STDCALL;
  operation.elemdescFunc.tdesc.vt = VT_HRESULT;
  std::wstring name = L"Operation" + std::to_wstring(index + 1);
  std::wstring names[3] = {name, L"value", L"answer"};
  LPOLESTR pointers[3] = {names[0].data(), names[1].data(), names[2].data()};
  return Chain()
      .Then([&] { return type.AddFuncDesc(index, &operation); })
      .Then([&] { return type.SetFuncAndParamNames(index, pointers, 3); })
      .Code();
}

HRESULT DeriveFromDispatch(ICreateTypeInfo& type) {
  Owned<ITypeLib> standard;
  Owned<ITypeInfo> dispatch;
  HREFTYPE base = 0;
  return Chain()
      .Then([&] { return LoadTypeLib(L"stdole2.tlb", standard.Receive()); })
      .Then([&] { return standard->GetTypeInfoOfGuid(::IID_IDispatch, dispatch.Receive()); })
      .Then([&] { return type.AddRefTypeInfo(dispatch.Get(), &base); })
      .Then([&] { return type.AddImplType(0, base); })
      .Code();
}

HRESULT Describe(ICreateTypeInfo& type, const ServedType& served) {
  Chain chain;
  chain.Then([&] { return type.SetGuid(SystemGuid(served.identifier)); })
      .Then([&] {
        return type.SetTypeFlags(TYPEFLAG_FDUAL | TYPEFLAG_FOLEAUTOMATION | TYPEFLAG_FDISPATCHABLE);
      })
      .Then([&] { return DeriveFromDispatch(type); });
  for (int i = 0; i < served.operations; ++i) {
    chain.Then([&] { return AddOperation(type, static_cast<UINT>(i)); });
  }
  return chain.Then([&] { return type.LayOut(); }).Code();
}

}  // namespace

long WriteTypeLibrary(const ServedType& served, const std::wstring& file) {
  Owned<ICreateTypeLib2> library;
  Owned<ICreateTypeInfo> type;
  std::wstring library_name = served.library_name;
  std::wstring name = served.name;
  return Chain()
      .Then([&] { return CreateTypeLib2(kSystem, file.c_str(), library.Receive()); })
      .Then([&] { return library->SetGuid(SystemGuid(served.library)); })
      .Then([&] { return library->SetName(library_name.data()); })
      .Then([&] { return library->SetVersion(1, 0); })
      .Then([&] { return library->SetLcid(LOCALE_NEUTRAL); })
      .Then([&] { return library->CreateTypeInfo(name.data(), TKIND_INTERFACE, type.Receive()); })
      .Then([&] { return Describe(*type.Get(), served); })
      .Then([&] { return library->SaveAllChanges(); })
      .Code();
}

}  // namespace ravo::test
