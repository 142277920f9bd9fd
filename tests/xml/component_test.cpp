#include <ravo/ECXMLParser.h>
#include <ravo/runtime/component_ptr.h>
#include <ravo/runtime/dispatch.h>
#include <ravo/runtime/error.h>

#include <cstring>

#include <gtest/gtest.h>

// Documents as component interfaces.
namespace ravo::ECXMLParser {
namespace {

// The identifier as another package writes it, which knows only its number.
constexpr Guid kAsked{"{6388C6AB-6393-4AD2-A4AF-22E2BC3F97BF}"};
constexpr Guid kUnknown{"{00000000-0000-0000-C000-000000000046}"};

template <class Component>
class Interface : public ::testing::Test {};

using Components = ::testing::Types<TECXMLParser, TXMLGhost>;
TYPED_TEST_SUITE(Interface, Components);

TYPED_TEST(Interface, IsGivenByItsIdentifier) {
  TypeParam component;
  IUnknown& base = component;
  for (const Guid& id : {kAsked, kUnknown}) {
    void* given = nullptr;
    ASSERT_EQ(base.QueryInterface(id, &given), result_code::kOk);
    EXPECT_EQ(given, static_cast<IECXMLParser*>(&component));
    EXPECT_EQ(static_cast<IUnknown*>(given)->Release(), 1U);
  }
}

TYPED_TEST(Interface, IsTheOnlyOne) {
  TypeParam component;
  void* given = &component;
  EXPECT_EQ(component.QueryInterface(IDispatch::kInterfaceId, &given), result_code::kNoInterface);
  EXPECT_EQ(given, nullptr);
  EXPECT_EQ(component.QueryInterface(Guid{}, &given), result_code::kNoInterface);
  EXPECT_EQ(component.QueryInterface(kAsked, nullptr), result_code::kNullPointer);
}

TYPED_TEST(Interface, CountsReferencesThatFreeNothing) {
  TComponent owner(nullptr);
  auto* const component = new TypeParam(&owner);
  {
    const ComponentPtr<IUnknown> base(component);
    const auto parser = base.Query<IECXMLParser>();
    EXPECT_EQ(parser.Get(), component);
    EXPECT_EQ(component->AddRef(), 4U);
    EXPECT_EQ(component->Release(), 3U);
  }
  EXPECT_EQ(component->AddRef(), 2U);
  EXPECT_EQ(component->Release(), 1U);
  EXPECT_EQ(component->Owner(), &owner);
}

TYPED_TEST(Interface, IsDeletedByItsCreatorAsEver) {
  IECXMLParser* const parser = new TypeParam;
  delete parser;
}

TEST(Document, IsTheSameThroughItsInterfaceAndThatOfAGhost) {
  TECXMLParser document;
  document.Root()->SetName(u"a");
  TXMLGhost ghost;
  const auto parser = ComponentPtr<IUnknown>(&document).Query<IECXMLParser>();
  const auto face = ComponentPtr<IUnknown>(&ghost).Query<IECXMLParser>();
  EXPECT_THROW(static_cast<void>(face->GetRoot()), Error);
  ghost.SetPrimaryDocument(&document);
  EXPECT_EQ(parser->GetRoot(), document.Root());
  EXPECT_EQ(face->GetRoot(), document.Root());
  face->Clear();
  EXPECT_EQ(document.Root()->Name(), u"");
}

// The slot of a virtual function, as compilers of all targets store it in a pointer to a member.
template <class Member>
std::ptrdiff_t PlaceOf(Member member) {
  std::ptrdiff_t words[2] = {};
  static_assert(sizeof words == sizeof member);
  std::memcpy(words, &member, sizeof words);
  return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

TEST(Document, OperationsFollowThoseOfTheBaseInterface) {
  EXPECT_EQ(PlaceOf(&IECXMLParser::QueryInterface), 0);
  EXPECT_EQ(PlaceOf(&IECXMLParser::AddRef), 1);
  EXPECT_EQ(PlaceOf(&IECXMLParser::Release), 2);
  EXPECT_EQ(PlaceOf(&IECXMLParser::GetRoot), 3);
  EXPECT_EQ(PlaceOf(&IECXMLParser::Clear), 4);
  EXPECT_EQ(PlaceOf(&IECXMLParser::LoadFromFile), 5);
  EXPECT_EQ(PlaceOf(&IECXMLParser::SaveToFile), 6);
  EXPECT_EQ(PlaceOf(&IECXMLParser::LoadFromStream), 7);
  EXPECT_EQ(PlaceOf(&IECXMLParser::SaveToStream), 8);
}

}  // namespace
}  // namespace ravo::ECXMLParser
