#pragma once

#include "czech/spellings.h"
#include <ravo/czech/kinds.h>

namespace ravo::test {

/// A row of one kind.
struct KindRow {
  czech::Kind kind;
  SpellingRow spelling;
};

inline void ExpectKind(const KindRow& row) {
  ExpectSpelling(
      row.spelling, [&row](auto text) { return czech::Check(row.kind, text); },
      [](const auto& text) { return text; });
}

}  // namespace ravo::test
