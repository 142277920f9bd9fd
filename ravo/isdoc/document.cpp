#include "document.h"

#include "blanks.h"

#include <algorithm>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include <expat.h>

namespace ravo::isdoc {
namespace {

// Between the URI of a namespace and a name: no URI has it.
constexpr char kDivider = '\n';

struct Name {
  std::string_view space;
  std::string_view local;
};

Name Divided(std::string_view name) {
  const std::size_t divider = name.rfind(kDivider);
  if (divider == std::string_view::npos) return {{}, name};
  return {name.substr(0, divider), name.substr(divider + 1)};
}

}  // namespace

// Builds a document from what expat reports.
class DocumentReader {
 public:
  DocumentReader() : parser_(XML_ParserCreateNS("UTF-8", kDivider)) {
    if (!parser_) throw std::bad_alloc();
    document_.texts_ = std::make_unique<std::pmr::monotonic_buffer_resource>();
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), Opened, Closed);
    XML_SetCharacterDataHandler(parser_.get(), Texted);
    XML_SetNamespaceDeclHandler(parser_.get(), SpaceDeclared, SpaceEnded);
  }

  std::optional<Document> Read(std::string_view utf8, ReadingError& error) {
    constexpr std::size_t kPiece = std::size_t{1} << 24;
    do {
      const std::string_view piece = utf8.substr(0, kPiece);
      utf8.remove_prefix(piece.size());
      const auto status =
          XML_Parse(parser_.get(), piece.data(), static_cast<int>(piece.size()), utf8.empty() ? 1 : 0);
      if (status != XML_STATUS_OK) {
        error = Failure();
        return std::nullopt;
      }
    } while (!utf8.empty());
    return std::move(document_);
  }

 private:
  struct Freed {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  // An element that is still open.
  struct Open {
    std::uint32_t number = 0;
    std::uint32_t last_child = kNone;
    std::string text;
  };

  [[nodiscard]] Place Here() const {
    return {static_cast<std::uint32_t>(XML_GetCurrentLineNumber(parser_.get())),
            static_cast<std::uint32_t>(XML_GetCurrentColumnNumber(parser_.get()) + 1)};
  }

  // Throws if what failed is memory, ours or expat's.
  [[nodiscard]] ReadingError Failure() const {
    const XML_Error code = XML_GetErrorCode(parser_.get());
    if (no_memory_ || code == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
    const XML_Index position = std::max<XML_Index>(XML_GetCurrentByteIndex(parser_.get()), 0);
    return {Here(), XML_ErrorString(code), static_cast<std::size_t>(position)};
  }

  // Exceptions must not pass through expat, which is C.
  template <class Work>
  static void Guarded(void* own, Work work) noexcept {
    auto& self = *static_cast<DocumentReader*>(own);
    if (self.no_memory_) return;
    try {
      work(self);
    } catch (const std::bad_alloc&) {
      self.no_memory_ = true;
      XML_StopParser(self.parser_.get(), XML_FALSE);
    }
  }

  static void Opened(void* own, const XML_Char* name, const XML_Char** attributes) {
    Guarded(own, [&](DocumentReader& self) { self.Begin(name, attributes); });
  }
  static void Closed(void* own, const XML_Char*) {
    Guarded(own, [](DocumentReader& self) { self.Close(); });
  }
  static void Texted(void* own, const XML_Char* text, int size) {
    Guarded(own, [&](DocumentReader& self) {
      self.open_[self.depth_ - 1].text.append(text, static_cast<std::size_t>(size));
    });
  }
  static void SpaceDeclared(void* own, const XML_Char* prefix, const XML_Char* space) {
    Guarded(own, [&](DocumentReader& self) {
      self.spaces_[prefix == nullptr ? "" : prefix].push_back(self.Stored(space == nullptr ? "" : space));
    });
  }
  static void SpaceEnded(void* own, const XML_Char* prefix) {
    Guarded(own, [&](DocumentReader& self) { self.spaces_[prefix == nullptr ? "" : prefix].pop_back(); });
  }

  // The type of a qualified name such as "xs:date", by the prefixes of this place.
  DeclaredType Declared(std::uint32_t element, std::string_view name) {
    name = Trimmed(name);
    if (name.empty()) return {element, {}, {}};
    const std::size_t colon = name.find(':');
    const std::string_view prefix =
        colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
    const auto declared = spaces_.find(std::string(prefix));
    const bool known = declared != spaces_.end() && !declared->second.empty();
    if (!known && !prefix.empty()) return {element, {}, {}};
    return {element, known ? declared->second.back() : std::string_view(),
            name.substr(prefix.empty() ? 0 : colon + 1)};
  }

  void Begin(std::string_view name, const XML_Char** attributes) {
    const auto number = static_cast<std::uint32_t>(document_.elements_.size());
    Element element;
    const Name divided = Divided(name);
    element.space = StoredSpace(divided.space);
    element.name = Stored(divided.local);
    element.place = Here();
    element.parent = element.first_child = element.next = kNone;
    if (depth_ > 0) element.parent = Append(number);
    element.first_attribute = static_cast<std::uint32_t>(document_.attributes_.size());
    for (; *attributes != nullptr; attributes += 2, ++element.attribute_count) {
      const Name attribute = Divided(attributes[0]);
      document_.attributes_.push_back(
          {Stored(attribute.space), Stored(attribute.local), Stored(attributes[1])});
      if (attribute.local == "type" && attribute.space == kInstanceSpace) {
        document_.types_.push_back(Declared(number, document_.attributes_.back().value));
      }
    }
    document_.elements_.push_back(element);
    // Texts of closed elements are used again with their room.
    if (open_.size() == depth_) open_.emplace_back();
    Open& open = open_[depth_++];
    open.number = number;
    open.last_child = kNone;
    open.text.clear();
  }

  // Links the element to the open one and returns the number of that.
  std::uint32_t Append(std::uint32_t number) {
    Open& parent = open_[depth_ - 1];
    std::uint32_t& link = parent.last_child == kNone ? document_.elements_[parent.number].first_child
                                                     : document_.elements_[parent.last_child].next;
    link = parent.last_child = number;
    return parent.number;
  }

  void Close() {
    Open& open = open_[--depth_];
    document_.elements_[open.number].text = Stored(open.text);
  }

  std::string_view Stored(std::string_view text) {
    if (text.empty()) return {};
    auto* const room = static_cast<char*>(document_.texts_->allocate(text.size(), 1));
    std::copy(text.begin(), text.end(), room);
    return {room, text.size()};
  }

  // Elements in a row mostly have the same namespace.
  std::string_view StoredSpace(std::string_view space) {
    if (space != last_space_) last_space_ = Stored(space);
    return last_space_;
  }

  std::unique_ptr<std::remove_pointer_t<XML_Parser>, Freed> parser_;
  Document document_;
  std::vector<Open> open_;
  std::size_t depth_ = 0;
  std::string_view last_space_;
  // The namespaces of each prefix, the innermost last.
  std::unordered_map<std::string, std::vector<std::string_view>> spaces_;
  bool no_memory_ = false;
};

std::optional<Document> Document::Read(std::string_view utf8, ReadingError& error) {
  return DocumentReader().Read(utf8, error);
}

const DeclaredType* Document::TypeOf(const Element& element) const noexcept {
  const auto found = std::ranges::lower_bound(types_, NumberOf(element), {}, &DeclaredType::element);
  return found == types_.end() || found->element != NumberOf(element) ? nullptr : &*found;
}

const Element* Document::Child(const Element& element, std::string_view name) const noexcept {
  const Element* child = FirstChild(element);
  while (child != nullptr && child->name != name) child = Next(*child);
  return child;
}

}  // namespace ravo::isdoc
