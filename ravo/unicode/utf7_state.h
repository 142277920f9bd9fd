#pragma once

#include <ravo/codec/utf7.h>

#include <cstdint>

/// What UTF-7 remembers between characters, in a record to which the `State` of a reader or writer points.
namespace ravo::unicode {

/// Returns the record, and makes it first if `State` is 0: a source that was popped brings its routines back
/// without their `Init`.
template <class Holder>
codec::Utf7State& Utf7StateOf(Holder& holder) {
  if (holder.State() == 0) holder.SetState(reinterpret_cast<std::uintptr_t>(new codec::Utf7State));
  return *reinterpret_cast<codec::Utf7State*>(holder.State());
}

template <class Holder>
void FreeUtf7State(Holder& holder) {
  delete reinterpret_cast<codec::Utf7State*>(holder.State());
  holder.SetState(0);
}

}  // namespace ravo::unicode
