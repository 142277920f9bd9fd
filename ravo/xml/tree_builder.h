#pragma once

#include <ravo/xml/item_pool.h>
#include <ravo/xml/item_store.h>
#include <ravo/xml/loader.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::xml {

/// Builds an item from the content of a document: the listener that every load uses.
///
/// If changes are reported, the tree is up to date after each of them. Otherwise the children of an element
/// and its joined text are stored when it is closed: a list then takes just the memory that it needs.
class TreeBuilder : public TokenListener {
 public:
  /// `top` must be cleared. Tokens that close it continue in its owner.
  TreeBuilder(ItemStore& top, bool reports_changes);
  TreeBuilder(const TreeBuilder&) = delete;
  TreeBuilder& operator=(const TreeBuilder&) = delete;

  [[nodiscard]] bool OpenTag(std::string_view tag) final;
  [[nodiscard]] bool StandAloneTag(std::string_view tag) final;
  [[nodiscard]] bool CloseTag() final;
  [[nodiscard]] bool SavedText(std::string_view text) final;
  [[nodiscard]] bool OtherText(std::string_view text) final;

  /// Stores everything that elements still open have.
  void Finish();

 protected:
  /// Stores what `Finish` did not, so that an error keeps what was built; frees it if there is no memory.
  ~TreeBuilder();

  /// Called after each change, if changes are reported.
  virtual void Changed(ItemStore& item) = 0;

 private:
  // The texts of an element that are joined, unescaped once.
  struct Joined {
    ItemStore* item;
    std::vector<std::string> pieces;
  };

  [[nodiscard]] bool IsPending() const noexcept { return !children_.empty() || !joined_.empty(); }
  ItemStore& AddChild();
  void SetTag(ItemStore& item, std::string_view tag);
  void SetTagReporting(ItemStore& item, std::string_view tag);
  void JoinText(std::string_view text);
  void TextChanged();
  void Store();
  void StoreChildren();
  void StoreText();
  void StoreOrDrop() noexcept;
  void Drop() noexcept;

  // Null above the topmost item.
  ItemStore* current_;
  PoolUse pool_;
  bool reports_changes_;
  // The children of open elements, the innermost last, and where those of each begin.
  std::vector<ItemStore*> children_;
  std::vector<std::size_t> starts_;
  std::vector<Joined> joined_;
};

}  // namespace ravo::xml
