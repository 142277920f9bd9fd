#ifndef RAVO_SANITIZED

#include "documents.h"
#include "plain_tokens.h"
#include "plain_tree.h"
#include "support/guarded_buffer.h"
#include <ravo/ECXMLParser.h>

#include <cstdlib>
#include <map>
#include <memory>
#include <new>
#include <vector>

#include <gtest/gtest.h>

/// Buffers of the tokenizer, memory of the tree and texts of items, each just before an unreadable page. A
/// sanitizer checks them by itself.
namespace {

using namespace ravo;
using namespace ravo::test;

bool guarding = false;

std::map<void*, std::unique_ptr<GuardedBuffer>>& Guarded() {
  static auto& arrays = *new std::map<void*, std::unique_ptr<GuardedBuffer>>;
  return arrays;
}

// Every array that is allocated during its lifetime ends at such a page.
class Guarding {
 public:
  Guarding() { guarding = true; }
  Guarding(const Guarding&) = delete;
  Guarding& operator=(const Guarding&) = delete;
  ~Guarding() { guarding = false; }
};

void* GuardedArray(std::size_t bytes) {
  auto buffer = std::make_unique<GuardedBuffer>(std::vector<std::byte>(bytes));
  void* const array = buffer->Bytes().data();
  Guarded()[array] = std::move(buffer);
  return array;
}

void FreeArray(void* array) {
  if (Guarded().erase(array) == 0) std::free(array);
}

}  // namespace

void* operator new[](std::size_t bytes) {
  if (guarding) return GuardedArray(bytes);
  if (void* array = std::malloc(bytes > 0 ? bytes : 1)) return array;
  throw std::bad_alloc();
}
void operator delete[](void* array) noexcept { FreeArray(array); }
void operator delete[](void* array, std::size_t) noexcept { FreeArray(array); }

namespace {

TEST(GuardPages, StandBehindArraysOfTheLibrary) {
  SplitStream stream("<a>");
  const Guarding guard;
  const SmallTokenizer tokenizer(stream, 100);
  EXPECT_EQ(Guarded().size(), 1U);
}

TEST(GuardPages, AreNotTouchedByTheTokenizer) {
  const Guarding guard;
  for (const std::string& document : Documents()) {
    for (std::size_t size = 1; size <= document.size() + 2; ++size) {
      SplitStream stream(document, 5);
      EXPECT_EQ(SmallTokens(stream, size), PlainTokens(document, size)) << document << ", " << size;
    }
  }
}

TEST(GuardPages, AreNotTouchedAtTheEdgeOfTheBuffer) {
  constexpr std::size_t kWindow = 65536;
  const Guarding guard;
  for (const std::string& document : Documents()) {
    for (std::size_t behind = 0; behind < 3; ++behind) {
      const std::string all =
          std::string(kWindow - document.size() - behind, '\n') + document + std::string(behind, '\n');
      SplitStream stream(all);
      EXPECT_EQ(SmallTokens(stream, kWindow), PlainTokens(all, kWindow)) << document;
    }
  }
}

TEST(GuardPages, AreNotTouchedByTheTree) {
  const Guarding guard;
  for (const std::string& document : Documents()) {
    ECXMLParser::TECXMLParser parser;
    plain::Item item;
    SplitStream stream(document);
    try {
      LoadRoot(parser, document);
    } catch (const EParserError&) {
      // The items built before the error are compared.
    }
    try {
      plain::Load(item, stream);
    } catch (const std::exception&) {
      // The same.
    }
    EXPECT_EQ(parser.Root()->AsString(), plain::AsString(item, 0, true)) << document;
    const std::string saved = Saved(parser);
    for (std::int32_t i = 0; i < parser.Root()->SubItemCount(); ++i) {
      ECXMLParser::TXMLItem* const child = parser.Root()->SubItems(i);
      child->SetText(child->Text() + u"<\u0159>\r\n");
      child->SetName(child->Name() + u"\u0159");
    }
    EXPECT_GE(Saved(parser).size(), saved.size());
  }
}

}  // namespace

#endif
