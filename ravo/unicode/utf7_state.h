#pragma once

#include <ravo/codec/utf7.h>

#include <cstdint>

/// The UTF-7 state of a reader or writer: its `State` points to a record.
namespace ravo::unicode {

/// Returns the record, created first if `State` is 0: popping a source restores its routines without a call
/// of `Init`.
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
