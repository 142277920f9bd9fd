#pragma once

#include <ravo/runtime/component_factory.h>
#include <ravo/runtime/component_object.h>

#include <cstdint>
#include <utility>

namespace ravo::platform {

/// The platform's interface of class objects, which make instances.
struct IClassFactory : IUnknown {
  static constexpr Guid kInterfaceId{"{00000001-0000-0000-C000-000000000046}"};

  virtual ResultCode RAVO_STDCALL CreateInstance(IUnknown* outer, const Guid& interface_id,
                                                 void** object) noexcept = 0;
  virtual ResultCode RAVO_STDCALL LockServer(std::int32_t lock) noexcept = 0;

 protected:
  ~IClassFactory() = default;
};

/// The class object of a class whose instances a function of this process makes.
class ClassObject final : public ComponentObject<IClassFactory> {
 public:
  explicit ClassObject(ComponentFactory factory) : factory_(std::move(factory)) {}

  ResultCode RAVO_STDCALL CreateInstance(IUnknown* outer, const Guid& interface_id,
                                         void** object) noexcept override;
  ResultCode RAVO_STDCALL LockServer(std::int32_t) noexcept override { return result_code::kOk; }

 private:
  ComponentFactory factory_;
};

}  // namespace ravo::platform
