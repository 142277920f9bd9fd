// Writes one of the pages. usage: ravo_pages man|man-cs|bash|zsh|fish FILE
#include "commands.h"
#include "language.h"
#include "pages.h"

#include <fstream>
#include <iostream>

namespace {

std::string Page(const std::string& kind) {
  if (kind == "man-cs") tool::SetLanguage(tool::Language::Czech);
  CLI::App program;
  tool::Outcome outcome;
  tool::Describe(program, outcome);
  if (kind == "man" || kind == "man-cs") return pages::ManPage(program, RAVO_VERSION);
  if (kind == "zsh") return pages::ZshCompletion(program);
  if (kind == "fish") return pages::FishCompletion(program);
  return kind == "bash" ? pages::BashCompletion(program) : "";
}

}  // namespace

int main(int argc, char** argv) {
  const std::string text = argc == 3 ? Page(argv[1]) : "";
  if (text.empty()) {
    std::cerr << "usage: ravo_pages man|man-cs|bash|zsh|fish FILE\n";
    return 2;
  }
  std::ofstream file(argv[2], std::ios::binary);
  file << text;
  file.close();
  if (file) return 0;
  std::cerr << argv[2] << ": cannot be written\n";
  return 2;
}
