#include "isdoc_extract.h"
#include "isdoc_extract_pdf_value.h"
#include "text.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Objects are found by walking through the file, not by its table of references, so that damaged tables and
// all versions of them are read alike. An object that is there several times counts as it is last, which is
// what updates of a PDF mean. Files are embedded only if the document's catalogue leads to them: ISO
// 32000-1, 7.11.4.
namespace tool {
namespace {

using Kind = PdfValue::Kind;

// Where an object's value begins.
struct PdfPlace {
  std::string_view source;
  std::size_t at = 0;
  bool may_be_stream = false;
};

struct PdfStream {
  PdfValue dictionary;
  std::string_view data;
};

class Pdf {
 public:
  Pdf(std::string_view bytes, UnpackBudget& budget)
      : bytes_(bytes), budget_(budget), work_(kWorkPerByte * (std::uint64_t{bytes.size()} + kLeastWork)) {}

  std::vector<ContainerPart> Parts() {
    // Lengths may be objects that come later: the second walk knows them.
    FindObjects();
    FindObjects();
    if (is_encrypted_) throw ContainerError(Text("the PDF is encrypted"));
    if (!root_) throw ContainerError(Text("the PDF is damaged: it has no catalogue"));
    OpenObjectStreams();
    Walk(*root_);
    return std::move(parts_);
  }

 private:
  static constexpr std::uint64_t kWorkPerByte = 16;
  static constexpr std::uint64_t kLeastWork = 65536;

  // Reads a value, within what a file of this size may take: objects can be made to overlap.
  std::optional<PdfValue> Read(PdfReader& reader) {
    const std::size_t begin = reader.At();
    auto value = reader.Next();
    Spend(reader.At() - begin);
    return value;
  }
  void Spend(std::uint64_t work) {
    if (work > work_) throw ContainerError(Text("the PDF is damaged: its objects overlap"));
    work_ -= work;
  }

  // Every "12 0 obj" and "trailer" outside of streams.
  void FindObjects() {
    places_.clear();
    streams_in_file_.clear();
    root_.reset();
    is_encrypted_ = false;
    std::size_t trailer = bytes_.find("trailer");
    for (std::size_t at = 0; at < bytes_.size();) {
      if (trailer != std::string_view::npos && trailer < at) trailer = bytes_.find("trailer", at);
      const std::size_t object = bytes_.find("obj", at);
      if (std::min(object, trailer) == std::string_view::npos) return;
      at = trailer < object ? ReadTrailer(trailer) : ReadObject(object);
    }
  }

  std::size_t ReadTrailer(std::size_t at) {
    PdfReader reader(bytes_, at + 7);
    if (const auto trailer = Read(reader)) NoteTrailer(*trailer);
    return std::max(at + 7, reader.At());
  }

  void NoteTrailer(const PdfValue& dictionary) {
    const PdfValue* const root = dictionary.Find("Root");
    if (root != nullptr && root->kind == Kind::Reference) root_ = root->number;
    is_encrypted_ = is_encrypted_ || dictionary.Find("Encrypt") != nullptr;
  }

  // The number before "0 obj", or nothing where the word is something else.
  [[nodiscard]] std::optional<std::int64_t> NumberBefore(std::size_t word) const {
    std::size_t at = word;
    const auto skip = [&](auto belongs) {
      const std::size_t end = at;
      while (at > 0 && end - at < 20 && belongs(bytes_[at - 1])) --at;
      return end - at;
    };
    const auto digits = [](char c) { return c >= '0' && c <= '9'; };
    skip(IsPdfBlank);
    if (skip(digits) == 0 || skip(IsPdfBlank) == 0 || skip(digits) == 0) return std::nullopt;
    return PdfReader(bytes_, at).Unsigned();
  }

  std::size_t ReadObject(std::size_t word) {
    const auto number = NumberBefore(word);
    PdfReader reader(bytes_, word + 3);
    if (!number) return reader.At();
    const auto value = Read(reader);
    if (!value) return word + 3;
    places_[*number] = {bytes_, word + 3, true};
    if (value->kind == Kind::Number) numbers_[*number] = value->number;
    const std::size_t end = reader.At();
    const auto data = StreamAfter(*value, end);
    if (!data) return end;
    streams_in_file_.push_back(word + 3);
    if (const PdfValue* const type = value->Find("Type"); type != nullptr && type->IsName("XRef"))
      NoteTrailer(*value);
    return static_cast<std::size_t>(data->data() - bytes_.data()) + data->size();
  }

  // The bytes of a stream whose dictionary ends at `at`.
  [[nodiscard]] std::optional<std::string_view> StreamAfter(const PdfValue& dictionary, std::size_t at) {
    PdfReader reader(bytes_, at);
    if (dictionary.kind != Kind::Dictionary || !reader.Take("stream")) return std::nullopt;
    std::size_t begin = reader.At();
    if (bytes_.substr(begin).starts_with("\r\n")) {
      begin += 2;
    } else if (bytes_.substr(begin).starts_with('\n')) {
      begin += 1;
    }
    const auto length = LengthOf(dictionary);
    if (length && *length <= bytes_.size() - begin) {
      PdfReader end(bytes_, begin + *length);
      if (end.Take("endstream")) return bytes_.substr(begin, *length);
    }
    return UpToEnd(begin);
  }

  // A stream whose length is not known ends before its word.
  [[nodiscard]] std::optional<std::string_view> UpToEnd(std::size_t begin) {
    const std::size_t end = begin >= no_end_after_ ? std::string_view::npos : bytes_.find("endstream", begin);
    if (end == std::string_view::npos) {
      no_end_after_ = std::min(no_end_after_, begin);
      return std::nullopt;
    }
    return bytes_.substr(begin, end - begin);
  }

  [[nodiscard]] std::optional<std::size_t> LengthOf(const PdfValue& dictionary) const {
    const PdfValue* const length = dictionary.Find("Length");
    if (length == nullptr) return std::nullopt;
    if (length->kind == Kind::Number) return static_cast<std::size_t>(length->number);
    const auto known = numbers_.find(length->number);
    if (length->kind != Kind::Reference || known == numbers_.end()) return std::nullopt;
    return static_cast<std::size_t>(known->second);
  }

  [[nodiscard]] std::optional<PdfStream> StreamAt(const PdfPlace& place) {
    PdfReader reader(place.source, place.at);
    auto value = Read(reader);
    if (!value || !place.may_be_stream) return std::nullopt;
    const auto data = StreamAfter(*value, reader.At());
    if (!data) return std::nullopt;
    return PdfStream{std::move(*value), *data};
  }

  // Objects inside streams, in the order of the file; later streams replace earlier objects, but not those
  // that follow the stream in the file.
  void OpenObjectStreams() {
    for (const std::size_t at : streams_in_file_) {
      const auto stream = StreamAt({bytes_, at, true});
      const PdfValue* const type = stream ? stream->dictionary.Find("Type") : nullptr;
      if (type != nullptr && type->IsName("ObjStm")) OpenObjectStream(*stream, at);
    }
  }

  void OpenObjectStream(const PdfStream& stream, std::size_t at) {
    const PdfValue* const first = stream.dictionary.Find("First");
    const PdfValue* const count = stream.dictionary.Find("N");
    if (first == nullptr || count == nullptr) return;
    opened_.push_back(Unpacked(stream));
    const std::string_view source = opened_.back();
    PdfReader reader(source, 0);
    for (std::int64_t i = 0; i < count->number; ++i) {
      const auto number = reader.Unsigned();
      const auto offset = reader.Unsigned();
      if (!number || !offset) return;
      const auto place = static_cast<std::uint64_t>(first->number + *offset);
      const auto known = places_.find(*number);
      const bool is_later =
          known != places_.end() && known->second.source.data() == bytes_.data() && known->second.at > at;
      if (place < source.size() && !is_later)
        places_[*number] = {source, static_cast<std::size_t>(place), false};
    }
  }

  // The bytes that a stream stands for.
  [[nodiscard]] std::string Unpacked(const PdfStream& stream) {
    const PdfValue* filter = stream.dictionary.Find("Filter");
    if (filter != nullptr && filter->kind == Kind::Array)
      filter = filter->items.empty() ? nullptr : filter->items.size() == 1 ? filter->items.data() : filter;
    if (filter == nullptr || filter->kind == Kind::Null) return budget_.Copy(stream.data);
    const bool is_deflated = filter->IsName("FlateDecode") || filter->IsName("Fl");
    if (!is_deflated || HasPredictor(stream.dictionary))
      throw ContainerError(Text("a part of it is compressed in a way that ravo does not read"));
    return budget_.Unpack(stream.data, true);
  }

  [[nodiscard]] static bool HasPredictor(const PdfValue& dictionary) {
    const PdfValue* parameters = dictionary.Find("DecodeParms");
    if (parameters != nullptr && parameters->kind == Kind::Array)
      parameters = parameters->items.empty() ? nullptr : parameters->items.data();
    const PdfValue* const predictor = parameters == nullptr ? nullptr : parameters->Find("Predictor");
    return predictor != nullptr && predictor->number > 1;
  }

  // Everything that can be reached from an object.
  void Walk(std::int64_t number) {
    std::vector<std::int64_t> open{number};
    std::set<std::int64_t> seen{number};
    while (!open.empty()) {
      const auto place = places_.find(open.back());
      open.pop_back();
      if (place == places_.end()) continue;
      PdfReader reader(place->second.source, place->second.at);
      const auto value = Read(reader);
      if (!value) continue;
      std::vector<std::int64_t> found;
      Look(*value, found);
      for (const std::int64_t next : found) {
        if (seen.insert(next).second) open.push_back(next);
      }
    }
  }

  // Collects references, and embeds what a specification of a file has.
  void Look(const PdfValue& value, std::vector<std::int64_t>& found) {
    if (value.kind == Kind::Reference) found.push_back(value.number);
    const PdfValue* const embedded = value.Find("EF");
    if (embedded != nullptr) AddFile(value, *embedded);
    for (const PdfValue& item : value.items) {
      if (&item != embedded) Look(item, found);
    }
  }

  // The dictionary itself, or the one that is referred to.
  [[nodiscard]] PdfValue Resolved(const PdfValue& value) {
    if (value.kind != Kind::Reference) return value;
    const auto place = places_.find(value.number);
    if (place == places_.end()) return {};
    PdfReader reader(place->second.source, place->second.at);
    return Read(reader).value_or(PdfValue{});
  }

  void AddFile(const PdfValue& specification, const PdfValue& embedded) {
    const PdfValue files = Resolved(embedded);
    for (const std::string_view key : {"UF", "F", "Unix", "DOS", "Mac"}) {
      const PdfValue* const file = files.Find(key);
      if (file == nullptr || file->kind != Kind::Reference) continue;
      if (!embedded_.insert(file->number).second) return;
      const auto place = places_.find(file->number);
      const auto stream = place == places_.end() ? std::nullopt : StreamAt(place->second);
      if (!stream) throw ContainerError(Text("the PDF is damaged: an embedded file is missing"));
      budget_.CountPart();
      parts_.push_back({NameOf(specification), Unpacked(*stream)});
      return;
    }
  }

  [[nodiscard]] std::string NameOf(const PdfValue& specification) {
    for (const std::string_view key : {"UF", "F", "Unix", "DOS", "Mac"}) {
      const PdfValue* const name = specification.Find(key);
      if (name == nullptr) continue;
      if (const PdfValue text = Resolved(*name); text.kind == Kind::String) return PdfText(text.text);
    }
    return {};
  }

  std::string_view bytes_;
  UnpackBudget& budget_;
  std::uint64_t work_;
  std::map<std::int64_t, PdfPlace> places_;
  std::map<std::int64_t, std::int64_t> numbers_;
  std::vector<std::size_t> streams_in_file_;
  std::deque<std::string> opened_;
  std::set<std::int64_t> embedded_;
  std::vector<ContainerPart> parts_;
  std::optional<std::int64_t> root_;
  std::size_t no_end_after_ = std::string_view::npos;
  bool is_encrypted_ = false;
};

}  // namespace

std::vector<ContainerPart> PdfParts(std::string_view bytes, UnpackBudget& budget) {
  return Pdf(bytes, budget).Parts();
}

}  // namespace tool
