#include <ravo/platform/component_text.h>
#include <ravo/platform/posix/component_registry.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/platform/posix/system.h>
#include <ravo/runtime/text.h>

#include <utility>

namespace ravo::platform::posix {
ComponentAnswer PosixComponents::CreateComponent(const Guid& class_id) const {
  ComponentAnswer answer;
  answer.code = ProcessComponents().Create(class_id, answer.instance);
  return answer;
}

// Objects live in this process alone: only this computer can be reached, by its name, as "localhost" or by
// an empty name.
ComponentAnswer PosixComponents::CreateRemoteComponent(const Guid& class_id,
                                                       std::u16string_view computer) const {
  const bool is_this_one =
      computer.empty() || SameAsciiText(computer, u"localhost") || SameAsciiText(computer, HostName());
  return is_this_one ? CreateComponent(class_id) : ComponentAnswer{result_code::kServerUnavailable, nullptr};
}

ResultCode PosixComponents::OfferComponent(const Guid& class_id, ComponentFactory factory,
                                           std::uint32_t& registration) const {
  return ProcessComponents().Offer(class_id, std::move(factory), registration);
}

void PosixComponents::RevokeComponent(std::uint32_t registration) const {
  ProcessComponents().Revoke(registration);
}

std::u16string PosixComponents::ComponentErrorText(ResultCode code) const { return ComponentText(code); }

}  // namespace ravo::platform::posix
