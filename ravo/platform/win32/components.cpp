#include <ravo/platform/component_text.h>
#include <ravo/platform/win32/class_object.h>
#include <ravo/platform/win32/system_error.h>
#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>

#include <array>
#include <utility>

#include <objbase.h>

namespace ravo::platform {
namespace {

// The same bytes in the system's own type.
const ::IID& SystemGuid(const Guid& guid) noexcept { return reinterpret_cast<const ::IID&>(guid); }
static_assert(sizeof(::IID) == sizeof(Guid));

ComponentAnswer Answer(ResultCode code, void* instance) noexcept {
  return {code, ComponentPtr<IUnknown>::Adopt(Failed(code) ? nullptr : static_cast<IUnknown*>(instance))};
}

}  // namespace

ComponentAnswer Win32Components::CreateComponent(const Guid& class_id) const {
  void* instance = nullptr;
  const HRESULT code =
      CoCreateInstance(SystemGuid(class_id), nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                       SystemGuid(IUnknown::kInterfaceId), &instance);
  return Answer(code, instance);
}

ComponentAnswer Win32Components::CreateRemoteComponent(const Guid& class_id,
                                                       std::u16string_view computer) const {
  std::wstring name = ToWide(computer);
  COSERVERINFO server{};
  server.pwszName = name.data();
  MULTI_QI wanted{&SystemGuid(IUnknown::kInterfaceId), nullptr, S_OK};
  const HRESULT code = CoCreateInstanceEx(SystemGuid(class_id), nullptr,
                                          CLSCTX_LOCAL_SERVER | CLSCTX_REMOTE_SERVER, &server, 1, &wanted);
  return Answer(Failed(code) ? code : wanted.hr, wanted.pItf);
}

ResultCode Win32Components::OfferComponent(const Guid& class_id, ComponentFactory factory,
                                           std::uint32_t& registration) const {
  const auto object = MakeComponent<ClassObject>(std::move(factory));
  DWORD cookie = 0;
  const HRESULT code =
      CoRegisterClassObject(SystemGuid(class_id), reinterpret_cast<::IUnknown*>(object.Get()),
                            CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie);
  registration = cookie;
  return code;
}

void Win32Components::RevokeComponent(std::uint32_t registration) const { CoRevokeClassObject(registration); }

std::u16string Win32Components::ComponentErrorText(ResultCode code) const {
  const std::optional<std::u16string> text = KnownSystemErrorText(static_cast<std::uint32_t>(code));
  return text ? *text : ComponentText(code);
}

}  // namespace ravo::platform
