#pragma once

#include <cstddef>
#include <string>

/// What the rivals do with a document in Windows-1250. Each that builds a tree gives it up again.
namespace ravo::bench {

/// One call of iconv over a whole text.
[[nodiscard]] std::string Converted(const std::string& text, const char* from, const char* to);

/// iconv, pugixml in its default mode, iconv back.
[[nodiscard]] std::size_t PugixmlLoadAndSave(const std::string& text);
[[nodiscard]] std::size_t Libxml2LoadAndSave(const std::string& text);
/// The count of elements and texts that expat reports.
[[nodiscard]] std::size_t ExpatTokens(const std::string& text);

/// The most bytes that pugixml asked for at once while it loaded a text in UTF-8.
[[nodiscard]] std::size_t PugixmlPeak(const std::string& utf8);

// pugixml in its wide-character mode, built from the distribution's sources.
[[nodiscard]] std::size_t WidePugixmlLoad(const std::string& utf8);
[[nodiscard]] void* WidePugixmlTree(const std::string& utf8);
[[nodiscard]] std::size_t WidePugixmlSave(const void* tree);
void FreeWidePugixmlTree(void* tree);

}  // namespace ravo::bench
