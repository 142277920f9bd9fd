#include "component_thread.h"
#include "host_box.h"
#include <ravo/RavoZip_TLB.h>

#include <iostream>
#include <string>

namespace {

using ravo::ComponentPtr;
using ravo::RavoManager_TLB::IRavoBox;
using ravo::RavoManager_TLB::IRavoBoxDisp;
using ravo::RavoZip_TLB::CoRavoZipper;

// An operation returns a code; this module prefers exceptions.
void Check(ravo::ResultCode code) {
  if (ravo::Failed(code)) throw ravo::ComponentError(code, u"The box refused");
}

// [table]
// Through the operation table: the declared interface that the host handed over, as this module describes it.
std::string Describe(const ComponentPtr<IRavoBox>& box) {
  const ComponentPtr<HostBox> host_box = box.Query<HostBox>();
  Check(host_box->Receive(12));
  Check(host_box->MarkAsRead(5));
  char16_t* name = nullptr;
  std::int32_t unread = 0;
  Check(host_box->get_Name(&name));
  const ravo::WideString owned = ravo::WideString::Adopt(name);
  Check(host_box->get_Unread(&unread));
  return ravo::ToUtf8(owned.View()) + ": " + std::to_string(unread) + " unread";
}
// [/table]

// [late]
// By dispatch identifier: a client that knows no operation table.
std::int32_t CountLate(const ComponentPtr<IRavoBox>& box) {
  const ComponentPtr<IRavoBoxDisp> late = box.Query<IRavoBoxDisp>();
  ravo::DispatchArguments none;
  ravo::DispatchValue answer;
  Check(late->Invoke(kBoxCount, ravo::Guid(), 0, ravo::dispatch_call::kPropertyGet, &none, &answer, nullptr,
                     nullptr));
  return answer.int32;
}
// [/late]

// [create]
// An object that a module creates itself; here no packer is installed.
std::string CreateZipper() {
  try {
    const auto zip = CoRavoZipper::Create();
    return "there is an archive packer";
  } catch (const ravo::ComponentError& error) {
    return ravo::ToUtf8(ravo::ToHex(static_cast<std::uint32_t>(error.Code()), 8)) + " " + error.what();
  }
}
// [/create]

}  // namespace

int main() {
  const ComponentThread thread;
  const ComponentPtr<IRavoBox> box = ravo::MakeComponent<Box>();
  std::cout << Describe(box) << "\n";                        // Schránka: 7 unread
  std::cout << "late: " << CountLate(box) << " messages\n";  // late: 12 messages
  std::cout << CreateZipper() << "\n";                       // 80040154 Class not registered
}
