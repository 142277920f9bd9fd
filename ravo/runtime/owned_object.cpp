#include <ravo/runtime/owned_object.h>

namespace ravo {

TComponent::TComponent(TComponent* AOwner) : owner_(AOwner) {
  if (owner_ != nullptr) owner_->owned_.push_back(this);
}

TComponent::~TComponent() {
  if (owner_ != nullptr) std::erase(owner_->owned_, this);
  while (!owned_.empty()) {
    TComponent* const last = owned_.back();
    owned_.pop_back();
    last->owner_ = nullptr;
    delete last;
  }
}

}  // namespace ravo
