#include "document_reading.h"

#include <algorithm>
#include <memory>

#include <expat.h>

namespace tool {
namespace {

// Collects the elements that the parser reports.
class ExpatReading {
 public:
  ExpatReading() : parser_(XML_ParserCreate("UTF-8")) {
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
      if (status != XML_STATUS_OK) {
        throw DocumentError(DocumentMessage::OtherParser, At(),
                            {XML_ErrorString(XML_GetErrorCode(parser_.get()))});
      }
    } while (!text.empty());
    return std::move(reading_);
  }

 private:
  struct Freed {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  [[nodiscard]] std::size_t At() const {
    return static_cast<std::size_t>(std::max<XML_Index>(XML_GetCurrentByteIndex(parser_.get()), 0));
  }

  static void Opened(void* own, const XML_Char* name, const XML_Char** attributes) {
    auto& self = *static_cast<ExpatReading*>(own);
    ReadElement element;
    element.name = name;
    element.depth = self.open_.size();
    element.at = self.At();
    for (; *attributes != nullptr; attributes += 2)
      element.attributes.emplace_back(attributes[0], attributes[1]);
    self.open_.push_back(self.reading_.size());
    self.reading_.push_back(std::move(element));
  }
  static void Closed(void* own, const XML_Char*) { static_cast<ExpatReading*>(own)->open_.pop_back(); }
  static void Texted(void* own, const XML_Char* text, int size) {
    auto& self = *static_cast<ExpatReading*>(own);
    self.reading_[self.open_.back()].text.append(text, static_cast<std::size_t>(size));
  }

  std::unique_ptr<std::remove_pointer_t<XML_Parser>, Freed> parser_;
  DocumentReading reading_;
  std::vector<std::size_t> open_;
};

}  // namespace

DocumentReading ReadByOther(std::string_view utf8) { return ExpatReading().Run(utf8); }

}  // namespace tool
