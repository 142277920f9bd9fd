#pragma once

namespace ravo {

/// A value that is never destroyed: what lives in static memory can be used until the process is gone. With
/// `constinit` it is there before any code runs.
template <class Value>
union Undestroyed {
  constexpr Undestroyed() : value() {}
  Undestroyed(const Undestroyed&) = delete;
  Undestroyed& operator=(const Undestroyed&) = delete;
  ~Undestroyed() {}  // NOLINT(modernize-use-equals-default): a union's own would be deleted

  Value value;  ///< made with its default constructor
};

}  // namespace ravo
