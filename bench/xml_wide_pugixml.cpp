// pugixml in its wide-character mode. A separate source, because the two modes conflict in one.
#define PUGIXML_WCHAR_MODE

#include "xml_rivals.h"

#include <cstdlib>

#include <pugixml-wide/pugixml.hpp>

namespace ravo::bench {
namespace {

struct CountingWriter final : pugi_wide::xml_writer {
  std::string text;
  void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), size); }
};

void Load(pugi_wide::xml_document& document, const std::string& utf8) {
  if (!document.load_buffer(utf8.data(), utf8.size(), pugi_wide::parse_default, pugi_wide::encoding_utf8))
    std::abort();
}

}  // namespace

std::size_t WidePugixmlLoad(const std::string& utf8) {
  pugi_wide::xml_document document;
  Load(document, utf8);
  return document.first_child() ? 1 : 0;
}

void* WidePugixmlTree(const std::string& utf8) {
  auto* document = new pugi_wide::xml_document;
  Load(*document, utf8);
  return document;
}

std::size_t WidePugixmlSave(const void* tree) {
  CountingWriter writer;
  static_cast<const pugi_wide::xml_document*>(tree)->save(writer, L"  ", pugi_wide::format_default,
                                                          pugi_wide::encoding_utf8);
  return writer.text.size();
}

void FreeWidePugixmlTree(void* tree) { delete static_cast<pugi_wide::xml_document*>(tree); }

}  // namespace ravo::bench
