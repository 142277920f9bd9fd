#pragma once

#include <ravo/runtime/string_list.h>
#include <ravo/xml/code_page.h>

#include <cstddef>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ravo::ECXMLParser {
class TXMLItem;
}

namespace ravo::xml {

/// What few items have: data of the caller, texts that the code page cannot hold, attributes as a list.
struct RareParts {
  void* data = nullptr;
  std::u16string name;
  std::u16string text;
  std::unique_ptr<StringList> params;
};

/// The memory of the items of one document or of one load, and of the texts that came with them. It goes with
/// its last holder: each item born in it holds it, and each item that gives birth in it.
class ItemArena {
 public:
  ItemArena() : page_(&CodePage::Current()) {}
  ItemArena(const ItemArena&) = delete;
  ItemArena& operator=(const ItemArena&) = delete;
  ~ItemArena();

  void Hold() noexcept { ++holders_; }
  void Release() noexcept {
    if (--holders_ == 0) delete this;
  }

  /// Memory for one item; `FreeItem` takes it back for the next one.
  [[nodiscard]] void* NewItem();
  void FreeItem(void* memory) noexcept;

  /// A copy of bytes that stays as long as the arena.
  [[nodiscard]] const char* Keep(std::string_view bytes);

  /// Aligned memory that stays as long as the arena.
  [[nodiscard]] void* Room(std::size_t bytes);

  [[nodiscard]] const CodePage& Page() const noexcept { return *page_; }

  /// Things outside the arena that items in it own, and items of it that stand elsewhere: while there are
  /// none, the items of a document can go without a look at each.
  void CountOutside(std::ptrdiff_t change) noexcept { outside_ += static_cast<std::size_t>(change); }
  [[nodiscard]] bool IsClosed() const noexcept { return outside_ == 0 && rare_.empty(); }
  /// Lets every item go at once, unseen. The caller's own hold stays.
  void DropItems() noexcept { holders_ = 1; }

  [[nodiscard]] RareParts& Rare(const ECXMLParser::TXMLItem* item) { return rare_[item]; }
  /// Those of an item that has some.
  [[nodiscard]] RareParts& FoundRare(const ECXMLParser::TXMLItem* item) noexcept {
    return rare_.find(item)->second;
  }
  void ForgetRare(const ECXMLParser::TXMLItem* item) { rare_.erase(item); }

 private:
  struct Block {
    std::unique_ptr<std::byte[]> bytes;
  };
  struct FreeCell {
    FreeCell* next;
  };

  void AddBlock(std::size_t least);

  const CodePage* page_;
  std::size_t holders_ = 1;
  std::size_t outside_ = 0;
  std::vector<Block> blocks_;
  // Items grow from the front of the newest block, bytes from its back.
  std::byte* front_ = nullptr;
  std::byte* back_ = nullptr;
  std::size_t next_size_ = 1024;
  FreeCell* free_ = nullptr;
  std::unordered_map<const ECXMLParser::TXMLItem*, RareParts> rare_;
};

}  // namespace ravo::xml
