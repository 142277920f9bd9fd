#include <ravo/runtime/owned_object.h>

#include <string>

#include <gtest/gtest.h>

namespace ravo {
namespace {

// Logs its name when it is destroyed.
class Named : public TComponent {
 public:
  Named(TComponent* owner, char name, std::string& log) : TComponent(owner), name_(name), log_(log) {}
  ~Named() override { log_ += name_; }

 private:
  char name_;
  std::string& log_;
};

TEST(Components, KnowTheirOwner) {
  TComponent owner(nullptr);
  const auto* const owned = new TComponent(&owner);
  EXPECT_EQ(owner.Owner(), nullptr);
  EXPECT_EQ(owned->Owner(), &owner);
}

TEST(Components, GoWithTheirOwnerLastFirst) {
  std::string log;
  {
    Named owner(nullptr, 'o', log);
    new Named(&owner, 'a', log);
    TComponent* const second = new Named(&owner, 'b', log);
    new Named(second, 'c', log);
  }
  EXPECT_EQ(log, "obca");
}

TEST(Components, MayGoBeforeTheirOwner) {
  std::string log;
  {
    Named owner(nullptr, 'o', log);
    auto* const first = new Named(&owner, 'a', log);
    new Named(&owner, 'b', log);
    delete first;
    EXPECT_EQ(log, "a");
  }
  EXPECT_EQ(log, "aob");
}

TEST(Components, MayStandOnTheStackBelowTheirOwner) {
  TComponent owner(nullptr);
  const TComponent owned(&owner);
  EXPECT_EQ(owned.Owner(), &owner);
}

}  // namespace
}  // namespace ravo
