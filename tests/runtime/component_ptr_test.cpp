#include <ravo/runtime/component_factory.h>
#include <ravo/runtime/component_object.h>
#include <ravo/runtime/error.h>

#include <utility>

#include <gtest/gtest.h>

namespace ravo {
namespace {

struct ILeft : IUnknown {
  static constexpr Guid kInterfaceId{"{6E8C8D3B-0C0B-4B62-9C0A-5C1B3C0C0A01}"};

 protected:
  ~ILeft() = default;
};

struct IRight : IUnknown {
  static constexpr Guid kInterfaceId{"{6E8C8D3B-0C0B-4B62-9C0A-5C1B3C0C0A02}"};

 protected:
  ~IRight() = default;
};

int living = 0;

class Object final : public ComponentObject<ILeft> {
 public:
  Object() { ++living; }
  ~Object() override { --living; }

  [[nodiscard]] std::uint32_t References() {
    AddRef();
    return Release();
  }
};

// Returns whatever result it was configured with.
class Liar final : public ComponentObject<ILeft> {
 public:
  Liar(ResultCode code, void* object) : code_(code), object_(object) {}
  ResultCode RAVO_STDCALL QueryInterface(const Guid&, void** object) noexcept override {
    *object = object_;
    return code_;
  }

 private:
  ResultCode code_;
  void* object_;
};

TEST(ComponentPtr, HoldsOneReference) {
  {
    const ComponentPtr<Object> made = MakeComponent<Object>();
    EXPECT_EQ(made->References(), 1U);
    const ComponentPtr<Object> copy = made;
    EXPECT_EQ(made->References(), 2U);
    const ComponentPtr<Object> shared(made.Get());
    EXPECT_EQ(made->References(), 3U);
    EXPECT_EQ(living, 1);
  }
  EXPECT_EQ(living, 0);
}

TEST(ComponentPtr, MovesItsReference) {
  ComponentPtr<Object> first = MakeComponent<Object>();
  ComponentPtr<Object> second = std::move(first);
  EXPECT_FALSE(first);  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(second->References(), 1U);
  const ComponentPtr<ILeft> face = std::move(second);
  EXPECT_TRUE(face);
  EXPECT_EQ(living, 1);
}

TEST(ComponentPtr, AssignmentReleasesWhatWasThere) {
  ComponentPtr<Object> pointer = MakeComponent<Object>();
  pointer = MakeComponent<Object>();
  EXPECT_EQ(living, 1);
  const ComponentPtr<Object>& same = pointer;
  pointer = same;
  EXPECT_EQ(pointer->References(), 1U);
  pointer = nullptr;
  EXPECT_EQ(living, 0);
}

TEST(ComponentPtr, DetachHandsTheReferenceOver) {
  ComponentPtr<Object> pointer = MakeComponent<Object>();
  Object* raw = pointer.Detach();
  EXPECT_FALSE(pointer);
  EXPECT_EQ(living, 1);
  EXPECT_EQ(raw->Release(), 0U);
  EXPECT_EQ(living, 0);
}

TEST(ComponentPtr, QueryGivesAReferenceOfItsOwn) {
  const ComponentPtr<Object> object = MakeComponent<Object>();
  const ComponentPtr<ILeft> face = object.Query<ILeft>();
  const ComponentPtr<IUnknown> base = face.Query<IUnknown>();
  EXPECT_EQ(object->References(), 3U);
  EXPECT_FALSE(ComponentPtr<ILeft>().Query<IUnknown>());
}

TEST(ComponentPtr, QueryRaisesWhereTheInterfaceIsMissing) {
  const ComponentPtr<Object> object = MakeComponent<Object>();
  EXPECT_FALSE(object.TryQuery<IRight>());
  try {
    static_cast<void>(object.Query<IRight>());
    FAIL();
  } catch (const ComponentError& error) {
    EXPECT_EQ(error.Code(), result_code::kNoInterface);
    EXPECT_EQ(error.Message(), u"Interface not supported");
  }
  EXPECT_EQ(object->References(), 1U);
}

// Returns the code that a query throws; 0 if it throws nothing.
ResultCode CodeOfQuery(const ComponentPtr<Liar>& object) {
  try {
    static_cast<void>(object.Query<IRight>());
  } catch (const ComponentError& error) {
    return error.Code();
  }
  return result_code::kOk;
}

TEST(ComponentPtr, QueryTrustsNoObjectThatBreaksTheRules) {
  int no_object = 0;
  EXPECT_EQ(CodeOfQuery(MakeComponent<Liar>(result_code::kOk, nullptr)), result_code::kNoInterface);
  EXPECT_EQ(CodeOfQuery(MakeComponent<Liar>(result_code::kNoInterface, &no_object)),
            result_code::kNoInterface);
  EXPECT_EQ(CodeOfQuery(MakeComponent<Liar>(result_code::kServerUnavailable, nullptr)),
            result_code::kServerUnavailable);
}

TEST(ComponentObject, AnswersToItsInterfaceAndTheBase) {
  const ComponentPtr<Object> object = MakeComponent<Object>();
  EXPECT_TRUE(object.TryQuery<ILeft>());
  EXPECT_TRUE(object.TryQuery<IUnknown>());
  EXPECT_FALSE(object.TryQuery<IDispatch>());
  EXPECT_EQ(object->QueryInterface(ILeft::kInterfaceId, nullptr), result_code::kNullPointer);
}

TEST(ComponentObject, ClearsThePointerOfARefusedInterface) {
  const ComponentPtr<Object> object = MakeComponent<Object>();
  void* other = object.Get();
  EXPECT_EQ(object->QueryInterface(IRight::kInterfaceId, &other), result_code::kNoInterface);
  EXPECT_EQ(other, nullptr);
}

class LateObject final : public DispatchObject<IDispatch> {
 public:
  ResultCode RAVO_STDCALL Invoke(std::int32_t, const Guid&, std::uint32_t, std::uint16_t, DispatchArguments*,
                                 DispatchValue*, DispatchError*, std::uint32_t*) noexcept override {
    return result_code::kMemberNotFound;
  }
};

TEST(DispatchObject, HasNeitherTypeInformationNorNames) {
  const ComponentPtr<LateObject> object = MakeComponent<LateObject>();
  EXPECT_TRUE(object.TryQuery<IDispatch>());
  std::uint32_t count = 7;
  EXPECT_EQ(object->GetTypeInfoCount(&count), result_code::kOk);
  EXPECT_EQ(count, 0U);
  EXPECT_EQ(object->GetTypeInfoCount(nullptr), result_code::kNullPointer);
  void* information = &count;
  EXPECT_EQ(object->GetTypeInfo(0, 0, &information), result_code::kBadIndex);
  EXPECT_EQ(information, nullptr);
  EXPECT_EQ(object->GetTypeInfo(0, 0, nullptr), result_code::kBadIndex);
  char16_t name[] = u"Name";
  char16_t* names[] = {name};
  std::int32_t id = 7;
  EXPECT_EQ(object->GetIDsOfNames(Guid(), names, 1, 0, &id), result_code::kUnknownName);
  EXPECT_EQ(id, -1);
  EXPECT_EQ(object->GetIDsOfNames(Guid(), names, 1, 0, nullptr), result_code::kUnknownName);
}

TEST(ComponentPtr, TakesANullPointerAsNone) {
  LateObject* const none = nullptr;
  const ComponentPtr<LateObject> pointer(none);
  EXPECT_FALSE(pointer);
}

// A factory that throws a success code has failed nevertheless.
TEST(MakeInstance, ASuccessThatIsRaisedIsAFailure) {
  ComponentPtr<IUnknown> instance;
  const auto raise = [](ResultCode code) {
    return [code]() -> ComponentPtr<IUnknown> { throw ComponentError(code, u"no"); };
  };
  EXPECT_EQ(MakeInstance(raise(result_code::kOk), instance), result_code::kServerFailed);
  EXPECT_EQ(MakeInstance(raise(result_code::kNoAggregation), instance), result_code::kNoAggregation);
  EXPECT_FALSE(instance);
}

}  // namespace
}  // namespace ravo
