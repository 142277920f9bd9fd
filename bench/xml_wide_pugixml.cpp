// pugixml in its wide-character mode: apart, since its two modes cannot meet in one source.
#define PUGIXML_WCHAR_MODE

#include "xml_rivals.h"

#include <cstdlib>

#include <pugixml-wide/pugixml.hpp>

namespace ravo::bench {
namespace {

struct CountingWriter final : pugi::xml_writer {
  std::string text;
  void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), size); }
};

void Load(pugi::xml_document& document, const std::string& utf8) {
  if (!document.load_buffer(utf8.data(), utf8.size(), pugi::parse_default, pugi::encoding_utf8)) std::abort();
}

}  // namespace

std::size_t WidePugixmlLoad(const std::string& utf8) {
  pugi::xml_document document;
  Load(document, utf8);
  return document.first_child() ? 1 : 0;
}

void* WidePugixmlTree(const std::string& utf8) {
  auto* document = new pugi::xml_document;
  Load(*document, utf8);
  return document;
}

std::size_t WidePugixmlSave(const void* tree) {
  CountingWriter writer;
  static_cast<const pugi::xml_document*>(tree)->save(writer, L"  ", pugi::format_default, pugi::encoding_utf8);
  return writer.text.size();
}

void FreeWidePugixmlTree(void* tree) { delete static_cast<pugi::xml_document*>(tree); }

}  // namespace ravo::bench
