#include "reading.h"

#include <algorithm>
#include <memory>
#include <new>

#include <expat.h>

namespace ravo::document {
namespace {

// Collects the elements that the parser reports.
class ExpatReading {
 public:
  ExpatReading() : parser_(XML_ParserCreate("UTF-8")) {
    if (parser_ == nullptr) throw std::bad_alloc();
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), Opened, Closed);
    XML_SetCharacterDataHandler(parser_.get(), Texted);
  }

  DocumentReading Run(std::string_view text) {
    constexpr std::size_t kPiece = std::size_t{1} << 20;
    do {
      const std::string_view piece = text.substr(0, kPiece);
      text.remove_prefix(piece.size());
      const auto status =
          XML_Parse(parser_.get(), piece.data(), static_cast<int>(piece.size()), text.empty() ? 1 : 0);
      if (status != XML_STATUS_OK) Fail(XML_GetErrorCode(parser_.get()));
    } while (!text.empty());
    return std::move(reading_);
  }

 private:
  struct Freed {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  [[noreturn]] void Fail(XML_Error error) const {
    if (lacks_memory_ || error == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
    throw DocumentError(Message::OtherParser, At(), {XML_ErrorString(error)});
  }

  [[nodiscard]] std::size_t At() const {
    return static_cast<std::size_t>(std::max<XML_Index>(XML_GetCurrentByteIndex(parser_.get()), 0));
  }

  // No exception may pass through the parser.
  template <class Work>
  static void Guarded(void* own, Work work) noexcept {
    auto& self = *static_cast<ExpatReading*>(own);
    if (self.lacks_memory_) return;
    try {
      work(self);
    } catch (const std::bad_alloc&) {
      self.lacks_memory_ = true;
      static_cast<void>(XML_StopParser(self.parser_.get(), XML_FALSE));
    }
  }

  static void Opened(void* own, const XML_Char* name, const XML_Char** attributes) {
    Guarded(own, [&](ExpatReading& self) { self.Open(name, attributes); });
  }
  static void Closed(void* own, const XML_Char*) {
    Guarded(own, [](ExpatReading& self) { self.open_.pop_back(); });
  }
  static void Texted(void* own, const XML_Char* text, int size) {
    Guarded(own, [&](ExpatReading& self) {
      self.reading_[self.open_.back()].text.append(text, static_cast<std::size_t>(size));
    });
  }

  void Open(const XML_Char* name, const XML_Char** attributes) {
    ReadElement element;
    element.name = name;
    element.depth = open_.size();
    element.at = At();
    for (; *attributes != nullptr; attributes += 2)
      element.attributes.emplace_back(attributes[0], attributes[1]);
    open_.push_back(reading_.size());
    reading_.push_back(std::move(element));
  }

  std::unique_ptr<std::remove_pointer_t<XML_Parser>, Freed> parser_;
  DocumentReading reading_;
  std::vector<std::size_t> open_;
  bool lacks_memory_ = false;
};

}  // namespace

DocumentReading ReadByOther(std::string_view utf8) { return ExpatReading().Run(utf8); }

}  // namespace ravo::document
