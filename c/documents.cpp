#include "encoding_number.h"
#include "handles.h"
#include "support.h"
#include <ravo/document/check.h>
#include <ravo/document/edit.h>

#include <memory>
#include <utility>
#include <vector>

using ravo::c::Fail;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::Fill;
using ravo::c::Guarded;
using ravo::c::IsKnown;
using ravo::c::ReadBytes;
using ravo::c::ReadText;
using ravo::c::WriteBytes;
using ravo::c::WriteText;
namespace codec = ravo::codec;
namespace czech = ravo::czech;
namespace document = ravo::document;

struct ravo_document : ravo::c::Handle {
  struct Finding {
    document::Fault what;
    document::TextPlace place;
  };

  std::unique_ptr<const document::OpenDocument> content;
  std::vector<Finding> findings;
};

namespace {

constexpr std::uint32_t kAllFlags = RAVO_DOCUMENT_RAW | RAVO_DOCUMENT_REFERENCES | RAVO_DOCUMENT_ADD;

ravo_status FailNoDocument(ravo_error* error) {
  return FailArgument(error, "the document is null or closed");
}

ravo_status StatusOf(document::Message message) {
  switch (message) {
    case document::Message::NothingThere:
    case document::Message::NothingThereAdd:
      return RAVO_UNKNOWN;
    case document::Message::Unwritable:
    case document::Message::UnwritableName:
      return RAVO_LACKING;
    default:
      return RAVO_WRONG;
  }
}

// Calls `work` and turns what the room throws into a status.
template <class Work>
ravo_status GuardedDocument(ravo_error* error, Work work) {
  return Guarded(error, [&]() -> ravo_status {
    try {
      return work();
    } catch (const document::PlacedError& fault) {
      return ravo::c::FailPlaced(error, fault.Place(), fault.Byte(), fault.what());
    } catch (const document::PathError& fault) {
      return Fail(error, {StatusOf(fault.What().message), 0, fault.Change(), fault.what()});
    }
  });
}

// The changes of a caller, or the status with which the function must return.
ravo_status ReadChanges(std::span<const ravo_document_change> changes,
                        std::vector<document::ValueChange>& read, ravo_error* error) {
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const auto [path, path_status] = ReadText(changes[i].path, changes[i].path_length, error);
    const auto [value, value_status] = ReadText(changes[i].value, changes[i].value_length, error);
    const ravo_status status = path_status != RAVO_OK ? path_status : value_status;
    if (status == RAVO_UTF8) return Fail(error, {RAVO_UTF8, 0, i, "a path or a value is not UTF-8"});
    if (status != RAVO_OK)
      return Fail(error, {status, 0, i, "a path or a value is null, but its length is not 0"});
    read.push_back({std::string(path), std::string(value)});
  }
  return RAVO_OK;
}

// Nothing of the document is changed before everything has succeeded.
ravo_status SetValues(ravo_document& own, std::span<const document::ValueChange> changes,
                      const document::EditOptions& options, ravo_error* error) {
  const auto edits = EditsFor(own.content->Text(), own.content->Document(), changes, options);
  auto edited = std::make_unique<const document::OpenDocument>(EditedBytes(own.content->Text(), edits));
  if (!HasValues(edited->Document(), changes, options.is_raw))
    // Untested: it always has them.
    return Fail(error, {RAVO_INTERNAL, 0, 0, "the changed document would not have the values"});
  own.content = std::move(edited);
  own.findings.clear();
  return RAVO_OK;
}

std::vector<ravo_document::Finding> FindingsOf(const document::OpenDocument& content) {
  std::vector<ravo_document::Finding> findings;
  document::PlaceFinder places(content.Text().utf8);
  const auto keep = [&](const document::DocumentFinding& finding) {
    findings.push_back({finding.what, places.Find(finding.at)});
  };
  try {
    static_cast<void>(CheckDocument(content.Text(), content.Document(), keep));
  } catch (const document::DocumentError& fault) {
    throw PlacedIn(content.Text(), fault);
  }
  return findings;
}

}  // namespace

ravo_status ravo_document_open(const void* bytes, size_t bytes_length, ravo_document** opened,
                               ravo_error* error) {
  if (opened == nullptr) return FailNullResult(error);
  const auto [input, status] = ReadBytes(bytes, bytes_length, error);
  if (status != RAVO_OK) return status;
  return GuardedDocument(error, [&, &xml = input] {
    auto own = std::make_unique<ravo_document>();
    own->content = std::make_unique<const document::OpenDocument>(std::string(xml));
    *opened = own.release();
    return RAVO_OK;
  });
}

void ravo_document_close(ravo_document* own) { ravo::c::Close(own); }

ravo_status ravo_document_encoding(const ravo_document* own, ravo_encoding* encoding, ravo_error* error) {
  if (!IsOpen(own)) return FailNoDocument(error);
  if (encoding == nullptr) return FailNullResult(error);
  *encoding = ravo::c::NumberOf(*codec::FindEncoding(own->content->Text().encoding));
  return RAVO_OK;
}

ravo_status ravo_document_get(const ravo_document* own, const char* path, size_t path_length, uint32_t flags,
                              char* buffer, size_t size, size_t* length, ravo_error* error) {
  if (!IsOpen(own)) return FailNoDocument(error);
  if (flags > RAVO_DOCUMENT_RAW) return FailArgument(error, "the flags are unknown");
  const auto [input, status] = ReadText(path, path_length, error);
  if (status != RAVO_OK) return status;
  return GuardedDocument(error, [&, &text = input] {
    const document::ScannedDocument& scanned = own->content->Document();
    const auto place = document::PathFinder(scanned).FindWhole(document::ParsePath(std::string(text)));
    return WriteText({buffer, size, length}, ValueAt(scanned, place, flags != 0), error);
  });
}

ravo_status ravo_document_set(ravo_document* own, const ravo_document_change* changes, size_t changes_length,
                              uint32_t flags, ravo_error* error) {
  if (!IsOpen(own)) return FailNoDocument(error);
  if (changes_length != 0 && (changes == nullptr || changes_length == RAVO_NUL_TERMINATED))
    return FailArgument(error, "the changes are null, but their number is not 0");
  if ((flags & ~kAllFlags) != 0) return FailArgument(error, "the flags are unknown");
  const document::EditOptions options{.is_raw = (flags & RAVO_DOCUMENT_RAW) != 0,
                                      .uses_references = (flags & RAVO_DOCUMENT_REFERENCES) != 0,
                                      .adds = (flags & RAVO_DOCUMENT_ADD) != 0};
  return GuardedDocument(error, [&] {
    std::vector<document::ValueChange> read;
    const ravo_status status = ReadChanges(std::span(changes, changes_length), read, error);
    return status != RAVO_OK ? status : SetValues(*own, read, options, error);
  });
}

ravo_status ravo_document_save(const ravo_document* own, void* buffer, size_t size, size_t* length,
                               ravo_error* error) {
  if (!IsOpen(own)) return FailNoDocument(error);
  return WriteBytes({static_cast<char*>(buffer), size, length}, own->content->Text().bytes, error);
}

ravo_status ravo_document_write(const ravo_document* own, ravo_write write, void* context,
                                ravo_error* error) {
  if (!IsOpen(own)) return FailNoDocument(error);
  if (write == nullptr) return FailArgument(error, "the function is null");
  constexpr std::size_t kPiece = std::size_t{1} << 16;
  const std::string_view bytes = own->content->Text().bytes;
  for (std::size_t at = 0; at < bytes.size(); at += kPiece) {
    const std::string_view piece = bytes.substr(at, kPiece);
    const std::int32_t answer = write(context, piece.data(), piece.size());
    if (answer != 0) return ravo::c::FailStopped(error, answer, at);
  }
  return RAVO_OK;
}

ravo_status ravo_document_check(ravo_document* own, size_t* count, ravo_error* error) {
  if (!IsOpen(own)) return FailNoDocument(error);
  if (count == nullptr) return FailNullResult(error);
  return GuardedDocument(error, [&] {
    own->findings = FindingsOf(*own->content);
    *count = own->findings.size();
    return RAVO_OK;
  });
}

ravo_status ravo_document_finding_at(const ravo_document* own, size_t index, ravo_document_finding* finding,
                                     ravo_error* error) {
  if (!IsOpen(own)) return FailNoDocument(error);
  if (!IsKnown(finding)) return FailStruct(error);
  if (index >= own->findings.size()) return FailUnknown(error, "the document has fewer findings");
  const auto& [what, place] = own->findings[index];
  Fill(*finding, {0, document::CodeOf(what.message).data(), place.line, place.column});
  return RAVO_OK;
}

ravo_status ravo_document_finding_sentence(const ravo_document* own, size_t index, ravo_language language,
                                           char* buffer, size_t size, size_t* length, ravo_error* error) {
  if (!IsOpen(own)) return FailNoDocument(error);
  if (language != RAVO_LANGUAGE_CZECH && language != RAVO_LANGUAGE_ENGLISH)
    return FailArgument(error, "the language is unknown");
  if (index >= own->findings.size()) return FailUnknown(error, "the document has fewer findings");
  const auto named = language == RAVO_LANGUAGE_CZECH ? czech::Language::Czech : czech::Language::English;
  return Guarded(error, [&] {
    return WriteText({buffer, size, length}, own->findings[index].what.Sentence(named), error);
  });
}
