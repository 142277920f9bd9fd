#pragma once

#include <ravo/isdoc/document.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::isdoc::test {

/// Returns the text of a sample invoice; every test sees the same ones.
inline std::string Sample(std::string_view name) {
  std::ifstream file(std::filesystem::path(RAVO_ISDOC_SAMPLES) / name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

/// Returns the document of a text that is XML.
inline Document Parsed(std::string_view text) {
  ReadingError error;
  std::optional<Document> document = Document::Read(text, error);
  EXPECT_TRUE(document) << error.message;
  return std::move(*document);
}

/// Returns the names of the samples that no check finds fault with.
inline std::vector<std::string> SoundSamples() {
  return {"credit-note.isdoc", "domestic.isdoc",   "foreign-currency.isdoc", "not-a-payer.isdoc",
          "receipt.isdoc",     "references.isdoc", "taxed-deposits.isdoc"};
}

}  // namespace ravo::isdoc::test
