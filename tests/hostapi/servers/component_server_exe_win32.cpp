#include "served_objects.h"
#include "server_names_win32.h"
#include <ravo/platform/win32/class_object.h>

#include <atomic>
#include <string_view>
#include <utility>

#include <windows.h>

// A server of classes in a separate program, which the component runtime starts. It ends with its last
// object, and in any case after two minutes.
//
//   --fail     ends at once, before it registers its classes
//   --refuse   its objects support no interface
namespace ravo {
namespace {

test::Counts counts;
std::atomic<int> made{0};

template <class Object>
ComponentFactory Serving() {
  return [] {
    const auto object = MakeComponent<Object>(counts);
    ++made;
    return object;
  };
}

HRESULT Offer(const Guid& class_id, ComponentFactory factory) {
  const auto object = MakeComponent<platform::ClassObject>(std::move(factory));
  DWORD cookie = 0;
  return CoRegisterClassObject(reinterpret_cast<const CLSID&>(class_id),
                               reinterpret_cast<::IUnknown*>(object.Get()), CLSCTX_LOCAL_SERVER,
                               REGCLS_MULTIPLEUSE, &cookie);
}

bool OfferAll(bool refuse) {
  return SUCCEEDED(Offer(RavoZip_TLB::CLASS_RavoZipper,
                         refuse ? Serving<test::RefusingObject>() : Serving<test::ZipObject>())) &&
         SUCCEEDED(Offer(RavoProfileInfo_TLB::CLASS_RavoProfileInformation,
                         refuse ? Serving<test::RefusingObject>() : Serving<test::ProfileInfoObject>()));
}

// Waits for the first object, then for the end of the last one.
void ServeUntilNobodyIsLeft() {
  constexpr DWORD kStep = 20;
  constexpr DWORD kLongest = 120'000;
  for (DWORD waited = 0; waited < kLongest; waited += kStep) {
    if (made > 0 && counts.objects == 0) return;
    Sleep(kStep);
  }
}

}  // namespace
}  // namespace ravo

int main(int argc, char** argv) {
  const std::string_view first = argc > 1 ? argv[1] : "";
  if (first == "--fail") return 1;
  const HANDLE alive = CreateMutexW(nullptr, FALSE, ravo::test::kServerAlive);
  if (FAILED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) return 2;
  if (!ravo::OfferAll(first == "--refuse")) return 3;
  ravo::ServeUntilNobodyIsLeft();
  CoUninitialize();
  CloseHandle(alive);
  return 0;
}
