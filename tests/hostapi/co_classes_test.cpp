#include "counted_object.h"
#include "raised.h"
#include "support/fake_machine.h"
#include <ravo/RavoProfileInfo_TLB.h>
#include <ravo/RavoZip_TLB.h>

#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using RavoZip_TLB::CLASS_RavoZipper;
using RavoZip_TLB::CoRavoZipper;
using RavoZip_TLB::IRavoZip;
using test::CountedObject;
using test::Counts;
using test::FakeMachine;
using test::Raised;
using test::RaisedBy;

template <class Interface>
void Offer(FakeMachine& machine, const Guid& class_id, Counts& counts) {
  machine.components[class_id] = [&counts] { return MakeComponent<CountedObject<Interface>>(counts); };
}

// The caller owns the object by one reference, which frees it.
template <class Interface, class Creation>
void ExpectOneReference(const Counts& counts, Creation creation) {
  {
    const ComponentPtr<Interface> object = creation();
    ASSERT_TRUE(object);
    EXPECT_EQ(counts.objects, 1);
    EXPECT_EQ(counts.references, 1);
    EXPECT_EQ(object.template Query<Interface>().Get(), object.Get());
  }
  EXPECT_EQ(counts.objects, 0);
  EXPECT_EQ(counts.references, 0);
}

template <class Factory, class Interface>
void ExpectFactory(const Guid& class_id) {
  Counts counts;
  FakeMachine machine;
  machine.remote_computer = u"účtárna";
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(RaisedBy(Factory::Create).code, result_code::kClassNotRegistered);
  Offer<Interface>(machine, class_id, counts);
  ExpectOneReference<Interface>(counts, [] { return Factory::Create(); });
  ExpectOneReference<Interface>(counts, [] { return Factory::CreateRemote(u"účtárna"); });
}

TEST(CoClasses, CreateTheirClassWithTheirInterface) {
#define RAVO_HOST_CLASS(library, name, returned, identifier) \
  ExpectFactory<library##_TLB::Co##name, library##_TLB::returned>(library##_TLB::CLASS_##name);
#include <ravo/hostapi/interfaces.inc>
}

TEST(CoClasses, HaveNoInstances) {
  EXPECT_FALSE(std::is_default_constructible_v<CoRavoZipper>);
  EXPECT_TRUE(std::is_empty_v<CoRavoZipper>);
}

TEST(CoClasses, RaiseThePlatformsCodeAndText) {
  FakeMachine machine;
  machine.component_code = result_code::kServerFailed;
  const platform::ScopedMachine scope(machine);
  const Raised local = RaisedBy(CoRavoZipper::Create);
  EXPECT_EQ(local.code, result_code::kServerFailed);
  EXPECT_EQ(local.text, u"error 80080005");
  const Raised remote = RaisedBy([] { return CoRavoZipper::CreateRemote(u"nowhere"); });
  EXPECT_EQ(remote.code, result_code::kServerUnavailable);
  EXPECT_EQ(remote.text, u"error 800706BA");
}

TEST(CoClasses, RaiseWhereARuntimeReportsSuccessWithoutAnObject) {
  FakeMachine machine;
  machine.component_code = result_code::kOk;
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(RaisedBy(CoRavoZipper::Create).code, result_code::kServerFailed);
}

TEST(CoClasses, ReleaseTheInstanceThatLacksTheInterface) {
  Counts counts;
  FakeMachine machine;
  machine.remote_computer = u"server";
  machine.components[CLASS_RavoZipper] = [&counts] { return MakeComponent<test::RefusingObject>(counts); };
  const platform::ScopedMachine scope(machine);
  const Raised local = RaisedBy(CoRavoZipper::Create);
  EXPECT_EQ(local.code, result_code::kNoInterface);
  EXPECT_EQ(local.text, u"Interface not supported");
  const Raised remote = RaisedBy([] { return CoRavoZipper::CreateRemote(u"server"); });
  EXPECT_EQ(remote.code, result_code::kNoInterface);
  EXPECT_EQ(counts.objects, 0);
  EXPECT_EQ(counts.references, 0);
}

// The class and interface identifiers of the profile information differ in one digit.
TEST(CoClasses, AskForTheClassAndNotForTheInterface) {
  Counts counts;
  FakeMachine machine;
  Offer<RavoProfileInfo_TLB::IRavoProfileInfo>(machine, RavoProfileInfo_TLB::IID_IRavoProfileInfo, counts);
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(RaisedBy(RavoProfileInfo_TLB::CoRavoProfileInformation::Create).code,
            result_code::kClassNotRegistered);
}

}  // namespace
}  // namespace ravo
