#pragma once

#include <ravo/runtime/export.h>

#include <vector>

namespace ravo {

/// What a form or another component may own and frees with itself.
class RAVO_API TComponent {
 public:
  /// Without an owner where `AOwner` is null. An owned component must have been made by `new`.
  explicit TComponent(TComponent* AOwner);
  TComponent(const TComponent&) = delete;
  TComponent& operator=(const TComponent&) = delete;
  virtual ~TComponent();

  /// Who frees it; null for none.
  [[nodiscard]] TComponent* Owner() const noexcept { return owner_; }

 private:
  TComponent* owner_;
  std::vector<TComponent*> owned_;
};

}  // namespace ravo
