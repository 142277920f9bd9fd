#pragma once

#include <ravo/runtime/error.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

namespace ravo {

/// An ordered list of references to objects; null is allowed. It owns none of them: the creator of an object
/// frees it. Indices are 0-based; every member throws `RangeError` if an index is out of range.
template <class Object>
class ObjectList {
 public:
  /// Appends a reference and returns its index. An object may be in the list several times.
  std::size_t Add(Object* object) {
    objects_.push_back(object);
    return objects_.size() - 1;
  }

  /// Removes the reference at `index`; the object is not freed.
  void Delete(std::size_t index) { objects_.erase(Checked(index)); }

  /// Returns the index of the first reference to `object`, or no value.
  [[nodiscard]] std::optional<std::size_t> IndexOf(const Object* object) const {
    const auto at = std::ranges::find(objects_, object);
    if (at == objects_.end()) return std::nullopt;
    return static_cast<std::size_t>(at - objects_.begin());
  }

  /// Moves the reference at `from` to index `to`; the references in between shift by one.
  void Move(std::size_t from, std::size_t to) {
    const auto source = Checked(from);
    const auto target = Checked(to);
    if (from < to) std::rotate(source, source + 1, target + 1);
    if (to < from) std::rotate(target, source, source + 1);
  }

  /// Returns the number of references.
  [[nodiscard]] std::size_t Count() const noexcept { return objects_.size(); }
  /// Returns the reference at `index`.
  [[nodiscard]] Object* At(std::size_t index) const {
    CheckIndex(index);
    return objects_[index];
  }

  /// Returns an iterator to the first reference.
  [[nodiscard]] auto begin() const noexcept { return objects_.begin(); }
  /// Returns an iterator past the last reference.
  [[nodiscard]] auto end() const noexcept { return objects_.end(); }

  friend bool operator==(const ObjectList&, const ObjectList&) = default;

 private:
  void CheckIndex(std::size_t index) const {
    if (index >= objects_.size()) throw RangeError(u"List index out of bounds");
  }
  [[nodiscard]] auto Checked(std::size_t index) {
    CheckIndex(index);
    return objects_.begin() + static_cast<std::ptrdiff_t>(index);
  }

  std::vector<Object*> objects_;
};

}  // namespace ravo
