#pragma once

#include <cstddef>
#include <string>

/// The jobs of the rivals, with a document in Windows-1250. Those that build a tree free it.
namespace ravo::bench {

/// Converts a whole text with one call of iconv.
[[nodiscard]] std::string Converted(const std::string& text, const char* from, const char* to);

/// Runs iconv, pugixml in its default mode, and iconv back.
[[nodiscard]] std::size_t PugixmlLoadAndSave(const std::string& text);
[[nodiscard]] std::size_t Libxml2LoadAndSave(const std::string& text);
/// Returns the number of elements and texts that expat reports.
[[nodiscard]] std::size_t ExpatTokens(const std::string& text);

/// Returns the peak of bytes that pugixml allocates while it loads a text in UTF-8.
[[nodiscard]] std::size_t PugixmlPeak(const std::string& utf8);

// pugixml in its wide-character mode, built from the distribution's sources.
[[nodiscard]] std::size_t WidePugixmlLoad(const std::string& utf8);
[[nodiscard]] void* WidePugixmlTree(const std::string& utf8);
[[nodiscard]] std::size_t WidePugixmlSave(const void* tree);
void FreeWidePugixmlTree(void* tree);

}  // namespace ravo::bench
