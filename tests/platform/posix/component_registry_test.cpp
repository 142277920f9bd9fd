#include <ravo/platform/posix/component_registry.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/component_object.h>

#include <gtest/gtest.h>

namespace ravo::platform::posix {
namespace {

constexpr Guid kClass{"{6E8C8D3B-0C0B-4B62-9C0A-5C1B3C0C0A11}"};
constexpr Guid kOther{"{6E8C8D3B-0C0B-4B62-9C0A-5C1B3C0C0A12}"};

ComponentPtr<IUnknown> MakeObject() { return MakeComponent<ComponentObject<IUnknown>>(); }

ResultCode CodeOfCreation(const ComponentRegistry& registry, const Guid& class_id) {
  ComponentPtr<IUnknown> instance;
  const ResultCode code = registry.Create(class_id, instance);
  EXPECT_EQ(instance.Get() != nullptr, code == result_code::kOk);
  return code;
}

TEST(ComponentRegistry, OffersAClassOnce) {
  ComponentRegistry registry;
  std::uint32_t first = 0;
  std::uint32_t second = 77;
  EXPECT_EQ(registry.Offer(kClass, MakeObject, first), result_code::kOk);
  EXPECT_NE(first, 0U);
  EXPECT_EQ(registry.Offer(kClass, MakeObject, second), result_code::kAlreadyRegistered);
  EXPECT_EQ(second, 77U);
  EXPECT_EQ(CodeOfCreation(registry, kClass), result_code::kOk);
  registry.Revoke(first);
  EXPECT_EQ(CodeOfCreation(registry, kClass), result_code::kClassNotRegistered);
  EXPECT_EQ(registry.Offer(kClass, MakeObject, second), result_code::kOk);
  EXPECT_NE(second, first);
}

TEST(ComponentRegistry, RevokesNothingButWhatWasMeant) {
  ComponentRegistry registry;
  std::uint32_t first = 0;
  std::uint32_t second = 0;
  ASSERT_EQ(registry.Offer(kClass, MakeObject, first), result_code::kOk);
  ASSERT_EQ(registry.Offer(kOther, MakeObject, second), result_code::kOk);
  registry.Revoke(0);
  registry.Revoke(first);
  registry.Revoke(first);
  EXPECT_EQ(CodeOfCreation(registry, kClass), result_code::kClassNotRegistered);
  EXPECT_EQ(CodeOfCreation(registry, kOther), result_code::kOk);
}

TEST(ComponentRegistry, AFactoryMayRevokeItself) {
  ComponentRegistry registry;
  std::uint32_t registration = 0;
  const auto last_act = [&] {
    registry.Revoke(registration);
    return MakeObject();
  };
  ASSERT_EQ(registry.Offer(kClass, last_act, registration), result_code::kOk);
  EXPECT_EQ(CodeOfCreation(registry, kClass), result_code::kOk);
  EXPECT_EQ(CodeOfCreation(registry, kClass), result_code::kClassNotRegistered);
}

class Remote : public testing::Test {
 protected:
  Remote() { EXPECT_EQ(machine_.OfferComponent(kClass, MakeObject, registration_), result_code::kOk); }
  ~Remote() override { machine_.RevokeComponent(registration_); }

  PosixComponents machine_;
  std::uint32_t registration_ = 0;
};

TEST_F(Remote, ThisComputerIsReachedByItsNames) {
  for (const std::u16string& name :
       {std::u16string(), std::u16string(u"LocalHost"), System().ComputerName()}) {
    const ComponentAnswer answer = machine_.CreateRemoteComponent(kClass, name);
    EXPECT_EQ(answer.code, result_code::kOk);
    EXPECT_TRUE(answer.instance);
  }
}

TEST_F(Remote, NoOtherComputerIsReached) {
  const ComponentAnswer answer = machine_.CreateRemoteComponent(kClass, u"no-such-computer.invalid");
  EXPECT_EQ(answer.code, result_code::kServerUnavailable);
  EXPECT_FALSE(answer.instance);
}

TEST(ComponentErrorText, IsThereForEveryCode) {
  const PosixComponents machine;
  EXPECT_EQ(machine.ComponentErrorText(result_code::kClassNotRegistered), u"Class not registered");
  EXPECT_EQ(machine.ComponentErrorText(result_code::kServerUnavailable), u"The computer cannot be reached");
  EXPECT_EQ(machine.ComponentErrorText(result_code::kServerFailed),
            u"The server of the class failed to start");
  EXPECT_EQ(machine.ComponentErrorText(static_cast<ResultCode>(0x8000ABCD)), u"Component error 8000ABCD");
}

}  // namespace
}  // namespace ravo::platform::posix
