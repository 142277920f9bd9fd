// Prints a line for each file that standard input names: "valid", or the texts of the rules that it breaks,
// with their places.
#include <ravo/isdoc/document.h>
#include <ravo/isdoc/structure.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>

namespace {

std::string VerdictOf(const std::string& file) {
  using namespace ravo::isdoc;
  std::ifstream in(file, std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  ReadingError error;
  const std::optional<Document> document = Document::Read(text, error);
  if (!document) return "not well-formed";
  Findings findings;
  CheckStructure(*document, findings);
  if (findings.empty()) return "valid";
  std::string line;
  for (const Finding& finding : findings) {
    line += std::to_string(finding.place.line) + ":" + std::string(RuleText(finding.rule)) + "[" +
            finding.found + "|" + finding.expected + "] ";
  }
  for (char& character : line) {
    if (character == '\n') character = ' ';
  }
  return line;
}

}  // namespace

int main() {
  std::string file;
  while (std::getline(std::cin, file)) std::cout << VerdictOf(file) << '\n';
}
