#pragma once

#include "json_text.h"
#include "outcome.h"

namespace tool {

/// An array in the form of `JsonText` that is written as it grows.
class JsonArray {
 public:
  explicit JsonArray(Outcome& outcome) : outcome_(outcome) {}

  void Add(const Json& value);
  void Finish();

 private:
  Outcome& outcome_;
  bool is_empty_ = true;
};

}  // namespace tool
