#include <ravo/runtime/checked.h>
#include <ravo/xml/byte_scan.h>
#include <ravo/xml/tokenizer.h>

#include <algorithm>
#include <cstring>

namespace ravo::ECXMLTokenizer {
namespace {

constexpr std::size_t kBufferSize = 65536;
constexpr std::string_view kCData = "<![cdata[";

constexpr std::u16string_view kLineTooLong = u"Line too long";
constexpr std::u16string_view kEmptyStream = u"The stream is empty";
constexpr std::u16string_view kTagNotClosed = u"'>' expected";
constexpr std::u16string_view kCDataNotClosed = u"']]>' expected";

std::unique_ptr<char[]> NewBuffer(std::size_t capacity) {
  return std::make_unique_for_overwrite<char[]>(capacity + xml::kReadAhead);
}

// The byte after the last line feed; a line feed at the very end does not count.
char* LastLineStart(char* begin, char* end) {
  char* at = end - 1;
  while (at > begin && at[-1] != '\n') --at;
  return at;
}

}  // namespace

TXMLTokenizer::TXMLTokenizer(ByteStream& Stream, std::size_t BufferSize)
    : FStream(Stream),
      FBuffer(NewBuffer(BufferSize)),
      FBufPtr(FBuffer.get()),
      FBufEnd(FBuffer.get() + BufferSize),
      FSourcePtr(FBuffer.get()),
      FSourceEnd(FBuffer.get()),
      FTokenPtr(FBuffer.get()),
      line_capacity_(BufferSize),
      capacity_(BufferSize) {
  *FSourceEnd = 0;
}

TXMLTokenizer::TXMLTokenizer(ByteStream& Stream) : TXMLTokenizer(Stream, kBufferSize) { NextToken(); }

TXMLTokenizer::~TXMLTokenizer() {
  try {
    FStream.SetPosition(FStream.Position() - (FBufPtr - FTokenPtr));
  } catch (const std::exception&) {
    // The stream failed before, and that error was reported.
    FTokenPtr = FBufPtr;
  }
}

void TXMLTokenizer::MarkSourceEnd(char* end) {
  FSourceEnd = end;
  FSaveChar = *end;
  *end = 0;
}

void TXMLTokenizer::Unmark() { *FSourceEnd = FSaveChar; }

// Moves the loaded bytes from `from` on to the front of the buffer and removes the mark.
void TXMLTokenizer::MoveToFront(char* from) {
  char* const begin = FBuffer.get();
  FOrigin = CheckedAdd(FOrigin, CheckedCast<std::int32_t>(from - begin));
  Unmark();
  std::memmove(begin, from, static_cast<std::size_t>(FBufPtr - from));
  FBufPtr -= from - begin;
  FTokenPtr = FSourcePtr = begin;
}

// A stream may return fewer bytes than requested; only its end stops the loop.
void TXMLTokenizer::ReadToEndOfBuffer() {
  try {
    while (FBufPtr != FBufEnd) {
      const auto space = static_cast<std::size_t>(FBufEnd - FBufPtr);
      const std::size_t count = FStream.Read(std::as_writable_bytes(std::span(FBufPtr, space)));
      if (count == 0) return;
      FBufPtr += count;
    }
  } catch (...) {
    MarkSourceEnd(FBufPtr);
    throw;
  }
}

void TXMLTokenizer::ReadBuffer() {
  MoveToFront(FSourcePtr);
  // The rest after a long tag may be more than the size for lines.
  FBufEnd = std::max(FBuffer.get() + line_capacity_, FBufPtr);
  ReadToEndOfBuffer();
  const bool full = FBufPtr == FBufEnd;
  MarkSourceEnd(full ? LastLineStart(FBuffer.get(), FBufPtr) : FBufPtr);
  if (full && FSourceEnd == FBuffer.get()) Error(kLineTooLong);
}

void TXMLTokenizer::SkipBlanks() {
  for (;;) {
    const char ch = *FSourcePtr;
    if (!xml::IsBlankByte(ch)) return;
    if (ch == 0) {
      ReadBuffer();
      if (*FSourcePtr == 0) return;
      continue;
    }
    if (ch == '\n') FSourceLine = CheckedAdd(FSourceLine, 1);
    ++FSourcePtr;
  }
}

std::uint8_t TXMLTokenizer::NextToken() {
  SkipBlanks();
  FTokenPtr = FSourcePtr;
  if (*FSourcePtr == '<') {
    ScanTag();
  } else if (*FSourcePtr == 0) {
    FToken = xtEndOfInput;
  } else {
    ScanText();
  }
  return FToken;
}

// Kept: line feeds inside a token do not count in line numbers. Test: TXMLTokenizer.CountsNoLinesInsideTokens
void TXMLTokenizer::ScanText() {
  char* end = xml::FindEither(FSourcePtr, '<', '\0');
  while (xml::IsBlankByte(end[-1])) --end;
  FSourcePtr = end;
  FToken = xtText;
}

bool TXMLTokenizer::TokenStarts(std::string_view lower_case) const {
  const std::string_view loaded(FTokenPtr, static_cast<std::size_t>(FBufPtr - FTokenPtr));
  return loaded.size() >= lower_case.size() &&
         std::ranges::equal(loaded.substr(0, lower_case.size()), lower_case, {}, xml::LowerByte);
}

void TXMLTokenizer::ScanTag() {
  if (FTokenPtr[1] == '!' && TokenStarts(kCData)) return ScanCData();
  std::size_t done = 1;
  for (bool loaded_more = false;; loaded_more = true) {
    const auto loaded = static_cast<std::size_t>(FSourceEnd - FTokenPtr);
    auto* found = static_cast<char*>(std::memchr(FTokenPtr + done, '>', loaded - done));
    if (found != nullptr) {
      EndTokenAt(found + 1, loaded_more);
      break;
    }
    done = loaded;
    if (!LoadMore()) Error(kTagNotClosed);
  }
  FToken = KindOfTag();
}

// Kept: a comment ends at its first ">"; what follows is text and tags. Test:
// TXMLTokenizer.EndsACommentAtItsFirstGreaterThan
// Kept: a close tag with a slash at its end is a stand-alone tag: it adds an element. Test:
// TXMLTokenizer.TakesACloseTagWithASlashAtItsEndAsStandAlone
// Kept: a document type declaration is an open tag: it makes an element whose name begins with "!". Test:
// TXMLTokenizer.TakesADocumentTypeAsAnOpenTag
std::uint8_t TXMLTokenizer::KindOfTag() const {
  if (FTokenPtr[1] == '?' && TokenStarts("<?xml")) return xtHeader;
  if (FTokenPtr[1] == '!' && TokenStarts("<!--")) return xtComment;
  if (FSourcePtr[-2] == '/') return xtStandAloneTag;
  return FTokenPtr[1] == '/' ? xtCloseTag : xtOpenTag;
}

// Kept: a CDATA section ends one byte after its first "]]", whatever that byte is; of "]]]>" the ">" is text.
// Test: LoadFromStream.ThirdBracketOfCDataIsSkipped
void TXMLTokenizer::ScanCData() {
  constexpr std::size_t kAfterBrackets = 2;
  std::size_t done = kCData.size();
  for (bool loaded_more = false;; loaded_more = true) {
    const std::string_view loaded(FTokenPtr, static_cast<std::size_t>(FSourceEnd - FTokenPtr));
    const std::size_t found = loaded.find("]]", done);
    if (found != std::string_view::npos && found + kAfterBrackets < loaded.size()) {
      EndTokenAt(FTokenPtr + found + kAfterBrackets + 1, loaded_more);
      break;
    }
    done = std::max(done, loaded.size() - kAfterBrackets);
    if (!LoadMore()) Error(kCDataNotClosed);
  }
  FToken = xtText;
}

// If the token needed more than the loaded lines, the buffer is refilled after it.
void TXMLTokenizer::EndTokenAt(char* end, bool loaded_more) {
  FSourcePtr = end;
  if (!loaded_more) return;
  Unmark();
  MarkSourceEnd(end);
}

// Loads more of the document after the current token; false at its end.
bool TXMLTokenizer::LoadMore() {
  const std::ptrdiff_t before = FSourceEnd - FTokenPtr;
  if (FSourceEnd != FBufPtr) {
    Unmark();
  } else {
    MakeSpace();
    FBufEnd = FBuffer.get() + capacity_;
    ReadToEndOfBuffer();
  }
  MarkSourceEnd(FBufPtr);
  return FSourceEnd - FTokenPtr > before;
}

void TXMLTokenizer::MakeSpace() {
  if (FTokenPtr != FBuffer.get()) {
    MoveToFront(FTokenPtr);
  } else if (FBufPtr == FBuffer.get() + capacity_) {
    GrowBuffer();
  } else {
    Unmark();
  }
}

// Called if the current token fills the whole buffer.
void TXMLTokenizer::GrowBuffer() {
  const std::size_t doubled = std::max<std::size_t>(CheckedMultiply<std::size_t>(capacity_, 2), 64);
  auto buffer = NewBuffer(doubled);
  Unmark();
  std::memcpy(buffer.get(), FBuffer.get(), capacity_);
  FBuffer = std::move(buffer);
  FTokenPtr = FSourcePtr = FBuffer.get();
  FBufPtr = FBuffer.get() + capacity_;
  capacity_ = doubled;
}

// Kept: a document without a line feed is too long for the large tokenizer; the other one loads it. Test:
// TXMLLargeTokenizer.WantsALineFeed
TXMLLargeTokenizer::TXMLLargeTokenizer(ByteStream& Stream)
    : TXMLTokenizer(Stream, CheckedCast<std::size_t>(Stream.Size())) {
  if (Stream.Size() == 0) Error(kEmptyStream);
  NextToken();
}

TXMLLargeTokenizer::~TXMLLargeTokenizer() = default;

}  // namespace ravo::ECXMLTokenizer
