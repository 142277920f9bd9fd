#pragma once

#include <ravo/runtime/export.h>

#include <vector>

namespace ravo {

/// A component that a form or another component may own. An owner frees its components when it is destroyed.
class RAVO_API TComponent {
 public:
  /// Constructs a component; `AOwner` may be null. An owned component must be allocated with `new`.
  explicit TComponent(TComponent* AOwner);
  TComponent(const TComponent&) = delete;
  TComponent& operator=(const TComponent&) = delete;
  virtual ~TComponent();

  /// Returns the owner, or null.
  [[nodiscard]] TComponent* Owner() const noexcept { return owner_; }

 private:
  TComponent* owner_;
  std::vector<TComponent*> owned_;
};

}  // namespace ravo
