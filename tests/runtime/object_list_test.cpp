#include <ravo/RavoInterface.h>

#include <array>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

class Objects : public testing::Test {
 protected:
  // Returns the numbers of the objects in the list; -1 for null.
  [[nodiscard]] std::vector<int> Numbers() const {
    std::vector<int> numbers;
    for (const int* const object : list) numbers.push_back(object ? *object : -1);
    return numbers;
  }
  void AddAll() {
    for (int& object : objects) list.Add(&object);
  }

  std::array<int, 4> objects{0, 1, 2, 3};
  ObjectList<int> list;
};

TEST_F(Objects, AddAnswersTheIndex) {
  EXPECT_EQ(list.Count(), 0u);
  EXPECT_EQ(list.Add(&objects[2]), 0u);
  EXPECT_EQ(list.Add(nullptr), 1u);
  EXPECT_EQ(list.Add(&objects[2]), 2u);
  EXPECT_EQ(Numbers(), (std::vector{2, -1, 2}));
  EXPECT_EQ(list.At(2), &objects[2]);
}

TEST_F(Objects, DeleteTakesTheReferenceAlone) {
  AddAll();
  list.Delete(1);
  EXPECT_EQ(Numbers(), (std::vector{0, 2, 3}));
  list.Delete(2);
  list.Delete(0);
  EXPECT_EQ(Numbers(), std::vector{2});
  EXPECT_EQ(objects[1], 1);
}

TEST_F(Objects, IndexOfFindsTheFirst) {
  AddAll();
  list.Add(&objects[1]);
  EXPECT_EQ(list.IndexOf(&objects[1]), 1u);
  EXPECT_EQ(list.IndexOf(&objects[3]), 3u);
  EXPECT_EQ(list.IndexOf(nullptr), std::nullopt);
  const int equal = 1;
  EXPECT_EQ(list.IndexOf(&equal), std::nullopt);
}

TEST_F(Objects, MoveGivesAReferenceItsNewIndex) {
  for (std::size_t from = 0; from < 4; ++from) {
    for (std::size_t to = 0; to < 4; ++to) {
      list = {};
      AddAll();
      std::vector<int> expected{0, 1, 2, 3};
      expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(from));
      expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(to), static_cast<int>(from));
      list.Move(from, to);
      EXPECT_EQ(Numbers(), expected) << from << " to " << to;
    }
  }
}

TEST_F(Objects, IndicesBeyondTheEndRaise) {
  EXPECT_THROW(list.Delete(0), RangeError);
  AddAll();
  const ObjectList<int> before = list;
  for (const std::size_t index : {std::size_t{4}, std::numeric_limits<std::size_t>::max()}) {
    EXPECT_THROW((void)list.At(index), RangeError);
    EXPECT_THROW(list.Delete(index), RangeError);
    EXPECT_THROW(list.Move(index, 0), RangeError);
    EXPECT_THROW(list.Move(0, index), RangeError);
  }
  EXPECT_EQ(list, before);
}

}  // namespace
}  // namespace ravo
