#include "json_array.h"

#include "output_pieces.h"

#include <string>

namespace tool {

void JsonArray::Add(const Json& value) {
  std::string text = is_empty_ ? "[\n" : ",\n";
  text += JsonText(value);
  text.pop_back();
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1))
    text.insert(at + 1, "  ");
  AddOutput(outcome_, text);
  is_empty_ = false;
}

void JsonArray::Finish() { AddOutput(outcome_, is_empty_ ? "[]\n" : "\n]\n"); }

}  // namespace tool
