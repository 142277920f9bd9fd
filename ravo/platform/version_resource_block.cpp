#include <ravo/platform/version_resource_block.h>
#include <ravo/runtime/little_endian.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <initializer_list>

namespace ravo::platform {
namespace {

using Block = std::span<const std::byte>;

// Length of the node, length of its value, kind of its value: 16 bits each, before its key.
constexpr std::size_t kHeaderSize = 6;
constexpr std::uint16_t kTextValue = 1;

// One node of the tree. Positions are offsets into the block; `value` and `children` may lie past `end` if
// the node has none.
struct Node {
  std::u16string key;
  std::size_t value_length = 0;
  std::size_t value_bytes = 0;
  std::size_t value = 0;
  std::size_t children = 0;
  std::size_t end = 0;
};

constexpr std::size_t AlignUp(std::size_t offset) { return (offset + 3) & ~std::size_t{3}; }

// Returns the units from `at` to the first zero; no value if there is no zero before `end`.
std::optional<std::u16string> ReadKey(Block block, std::size_t at, std::size_t end) {
  std::u16string key;
  for (; end - at >= sizeof(char16_t); at += sizeof(char16_t)) {
    const char16_t unit = ReadLittle16(block, at);
    if (unit == 0) return key;
    key.push_back(unit);
  }
  return std::nullopt;
}

std::optional<Node> ReadNode(Block block, std::size_t at, std::size_t end) {
  if (at > end || end - at < kHeaderSize) return std::nullopt;
  const std::size_t length = ReadLittle16(block, at);
  if (length < kHeaderSize || length > end - at) return std::nullopt;
  auto key = ReadKey(block, at + kHeaderSize, at + length);
  if (!key) return std::nullopt;
  Node node;
  node.key = std::move(*key);
  node.end = at + length;
  node.value_length = ReadLittle16(block, at + 2);
  node.value_bytes = ReadLittle16(block, at + 4) == kTextValue ? 2 * node.value_length : node.value_length;
  node.value = AlignUp(at + kHeaderSize + sizeof(char16_t) * (node.key.size() + 1));
  node.children = AlignUp(node.value + node.value_bytes);
  return node;
}

std::optional<Node> FindChild(Block block, const Node& parent, std::u16string_view key) {
  std::size_t at = parent.children;
  for (;;) {
    auto child = ReadNode(block, at, parent.end);
    if (!child || SameAsciiText(child->key, key)) return child;
    at = AlignUp(child->end);
  }
}

std::optional<Node> FindNode(Block block, std::initializer_list<std::u16string_view> path) {
  auto node = ReadNode(block, 0, block.size());
  if (!node || !SameAsciiText(node->key, u"VS_VERSION_INFO")) return std::nullopt;
  for (const std::u16string_view key : path) {
    node = FindChild(block, *node, key);
    if (!node) return std::nullopt;
  }
  return node;
}

std::size_t BytesBehind(const Node& node) { return node.end - std::min(node.value, node.end); }

}  // namespace

std::optional<std::uint32_t> FirstTranslationOf(std::span<const std::byte> block) {
  const auto node = FindNode(block, {u"VarFileInfo", u"Translation"});
  const bool is_whole = node && std::min(node->value_bytes, BytesBehind(*node)) >= sizeof(std::uint32_t);
  return is_whole ? std::optional(ReadLittle32(block, node->value)) : std::nullopt;
}

std::optional<std::u16string> VersionStringOf(std::span<const std::byte> block, std::u16string_view table,
                                              std::u16string_view key) {
  const auto node = FindNode(block, {u"StringFileInfo", table, key});
  if (!node) return std::nullopt;
  // The length of a text counts units, whatever kind its value says it is.
  const std::size_t units = std::min(node->value_length, BytesBehind(*node) / sizeof(char16_t));
  std::u16string text;
  for (std::size_t i = 0; i < units; ++i) {
    const char16_t unit = ReadLittle16(block, node->value + i * sizeof(char16_t));
    if (unit == 0) break;
    text.push_back(unit);
  }
  return text;
}

VersionResourceBlock::~VersionResourceBlock() = default;

}  // namespace ravo::platform
