#include <ravo/platform/posix/component_registry.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/text.h>

#include <utility>

namespace ravo::platform::posix {
namespace {

struct ErrorText {
  ResultCode code;
  std::u16string_view text;
};

constexpr ErrorText kErrorTexts[] = {
    {result_code::kNotImplemented, u"Not implemented"},
    {result_code::kNoInterface, u"Interface not supported"},
    {result_code::kNoAggregation, u"Class does not support aggregation"},
    {result_code::kClassNotRegistered, u"Class not registered"},
    {result_code::kAlreadyRegistered, u"Class is already registered"},
    {result_code::kOutOfMemory, u"Not enough memory"},
    {result_code::kServerUnavailable, u"The computer cannot be reached"},
    {result_code::kServerFailed, u"The server of the class failed to start"},
};

}  // namespace

ComponentAnswer PosixMachine::CreateComponent(const Guid& class_id) const {
  ComponentAnswer answer;
  answer.code = ProcessComponents().Create(class_id, answer.instance);
  return answer;
}

// Objects live in this process alone: the only computer that can be reached is this one, by its name or by
// those that each computer gives itself.
ComponentAnswer PosixMachine::CreateRemoteComponent(const Guid& class_id,
                                                    std::u16string_view computer) const {
  const bool is_this_one =
      computer.empty() || SameAsciiText(computer, u"localhost") || SameAsciiText(computer, ComputerName());
  return is_this_one ? CreateComponent(class_id) : ComponentAnswer{result_code::kServerUnavailable, nullptr};
}

ResultCode PosixMachine::OfferComponent(const Guid& class_id, ComponentFactory factory,
                                        std::uint32_t& registration) const {
  return ProcessComponents().Offer(class_id, std::move(factory), registration);
}

void PosixMachine::RevokeComponent(std::uint32_t registration) const {
  ProcessComponents().Revoke(registration);
}

std::u16string PosixMachine::ComponentErrorText(ResultCode code) const {
  for (const ErrorText& row : kErrorTexts) {
    if (row.code == code) return std::u16string(row.text);
  }
  return u"Component error " + ToHex(static_cast<std::uint32_t>(code), 8);
}

}  // namespace ravo::platform::posix
