#pragma once

namespace ravo {

/// A value that is never destroyed: in static storage it stays usable until the process ends. With
/// `constinit` it is initialized before any code runs.
template <class Value>
union Undestroyed {
  constexpr Undestroyed() : value() {}
  Undestroyed(const Undestroyed&) = delete;
  Undestroyed& operator=(const Undestroyed&) = delete;
  ~Undestroyed() {}  // NOLINT(modernize-use-equals-default): a union's own would be deleted

  Value value;  ///< default-constructed
};

}  // namespace ravo
