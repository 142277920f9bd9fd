#include "xml_rivals.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include <expat.h>
#include <iconv.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <malloc.h>
#include <pugixml.hpp>

namespace ravo::bench {
namespace {

struct StringWriter final : pugi::xml_writer {
  std::string text;
  void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), size); }
};

std::size_t held = 0;
std::size_t peak = 0;

void* CountedAllocate(size_t size) {
  void* memory = std::malloc(size);
  held += malloc_usable_size(memory);
  peak = std::max(peak, held);
  return memory;
}

void CountedFree(void* memory) {
  held -= malloc_usable_size(memory);
  std::free(memory);
}

}  // namespace

std::string Converted(const std::string& text, const char* from, const char* to) {
  const iconv_t converter = iconv_open(to, from);
  std::string out(text.size() + text.size() / 4 + 16, '\0');
  char* in = const_cast<char*>(text.data());
  char* at = out.data();
  std::size_t in_left = text.size();
  std::size_t out_left = out.size();
  if (iconv(converter, &in, &in_left, &at, &out_left) == static_cast<std::size_t>(-1))
    throw std::runtime_error("iconv");
  iconv_close(converter);
  out.resize(out.size() - out_left);
  return out;
}

std::size_t PugixmlLoadAndSave(const std::string& text) {
  const std::string utf8 = Converted(text, "CP1250", "UTF-8");
  pugi::xml_document document;
  if (!document.load_buffer(utf8.data(), utf8.size(), pugi::parse_default, pugi::encoding_utf8)) std::abort();
  StringWriter writer;
  document.save(writer, "  ", pugi::format_default, pugi::encoding_utf8);
  return Converted(writer.text, "UTF-8", "CP1250").size();
}

std::size_t Libxml2LoadAndSave(const std::string& text) {
  xmlDoc* document =
      xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, XML_PARSE_HUGE);
  if (document == nullptr) std::abort();
  xmlChar* out = nullptr;
  int size = 0;
  xmlDocDumpMemoryEnc(document, &out, &size, "windows-1250");
  xmlFree(out);
  xmlFreeDoc(document);
  return static_cast<std::size_t>(size);
}

std::size_t ExpatTokens(const std::string& text) {
  XML_Parser parser = XML_ParserCreate("UTF-8");
  std::size_t count = 0;
  XML_SetUserData(parser, &count);
  XML_SetElementHandler(
      parser, [](void* data, const XML_Char*, const XML_Char**) { ++*static_cast<std::size_t*>(data); },
      [](void* data, const XML_Char*) { ++*static_cast<std::size_t*>(data); });
  XML_SetCharacterDataHandler(parser,
                              [](void* data, const XML_Char*, int) { ++*static_cast<std::size_t*>(data); });
  if (XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) != XML_STATUS_OK) std::abort();
  XML_ParserFree(parser);
  return count;
}

std::size_t PugixmlPeak(const std::string& utf8) {
  const auto allocate = pugi::get_memory_allocation_function();
  const auto free = pugi::get_memory_deallocation_function();
  held = peak = 0;
  pugi::set_memory_management_functions(CountedAllocate, CountedFree);
  {
    pugi::xml_document document;
    if (!document.load_buffer(utf8.data(), utf8.size(), pugi::parse_default, pugi::encoding_utf8))
      std::abort();
  }
  pugi::set_memory_management_functions(allocate, free);
  return peak;
}

}  // namespace ravo::bench
