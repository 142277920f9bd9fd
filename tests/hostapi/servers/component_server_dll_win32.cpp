#include "served_objects.h"
#include <ravo/platform/win32/class_object.h>

#include <windows.h>

// A server of classes in a library, which the component runtime loads into the process of a client.
namespace ravo {
namespace {

test::Counts counts;

ComponentFactory FactoryOf(const Guid& class_id) {
  if (class_id == RavoZip_TLB::CLASS_RavoZipper) {
    return [] { return MakeComponent<test::ZipObject>(counts); };
  }
  if (class_id == RavoProfileInfo_TLB::CLASS_RavoProfileInformation) {
    return [] { return MakeComponent<test::ProfileInfoObject>(counts); };
  }
  // A class whose objects lack the interface that its factory must return.
  if (class_id == RavoProfileInfo_TLB::CLASS_RavoProfileModule) {
    return [] { return MakeComponent<test::RefusingObject>(counts); };
  }
  return nullptr;
}

}  // namespace
}  // namespace ravo

extern "C" {

__declspec(dllexport) HRESULT WINAPI
    DllGetClassObject(REFCLSID class_id, REFIID interface_id, void** object) {
  using namespace ravo;
  *object = nullptr;
  ComponentFactory factory = FactoryOf(reinterpret_cast<const Guid&>(class_id));
  if (!factory) return CLASS_E_CLASSNOTAVAILABLE;
  return MakeComponent<platform::ClassObject>(std::move(factory))
      ->QueryInterface(reinterpret_cast<const Guid&>(interface_id), object);
}

__declspec(dllexport) HRESULT WINAPI DllCanUnloadNow() { return ravo::counts.objects == 0 ? S_OK : S_FALSE; }

/// The number of references to all objects, for the tests.
__declspec(dllexport) int RavoTestReferences() { return ravo::counts.references; }
}
