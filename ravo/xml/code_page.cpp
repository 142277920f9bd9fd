#include <ravo/platform/code_pages.h>
#include <ravo/xml/code_page.h>

#include <algorithm>
#include <atomic>
#include <memory>

namespace ravo::xml {
namespace {

std::string AllBytes() {
  std::string bytes(256, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i);
  return bytes;
}

// All bytes in both orders contain a pair of lead and trailing byte, if the code page has such pairs.
bool IsSingleByte(const std::string& bytes, const std::u16string& units) {
  if (units.size() != bytes.size()) return false;
  const std::string backwards(bytes.rbegin(), bytes.rend());
  const std::u16string reversed = platform::CodePages().FromCodePage(backwards);
  return std::equal(reversed.begin(), reversed.end(), units.rbegin(), units.rend());
}

}  // namespace

CodePage::CodePage() : number_(platform::CodePages().CodePage()) {
  const std::string bytes = AllBytes();
  const std::u16string units = platform::CodePages().FromCodePage(bytes);
  by_table_ = IsSingleByte(bytes, units) && platform::CodePages().ToCodePage(units).size() == bytes.size();
  if (!by_table_) return;
  const std::string back = platform::CodePages().ToCodePage(units);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    units_[i] = units[i];
    round_trip_[i] = back[i] == bytes[i];
    all_round_trip_ = all_round_trip_ && round_trip_[i];
    if (round_trip_[i]) by_unit_.push_back({units[i], bytes[i]});
  }
  std::ranges::stable_sort(by_unit_, {}, &Mapping::unit);
}

bool CodePage::IsSame(const CodePage& other) const {
  // Untested: needs two code pages that read bytes alike and write them differently.
  return number_ == other.number_ && by_table_ == other.by_table_ && units_ == other.units_ &&
         round_trip_ == other.round_trip_;
}

const CodePage& CodePage::Current() {
  // A list that only grows needs no lock, which a forked process could inherit locked.
  constinit static std::atomic<const CodePage*> newest{nullptr};
  std::unique_ptr<CodePage> page(new CodePage);
  page->next_ = newest.load(std::memory_order_acquire);
  do {
    for (const CodePage* known = page->next_; known; known = known->next_) {
      if (known->IsSame(*page)) return *known;
    }
  } while (!newest.compare_exchange_weak(page->next_, page.get(), std::memory_order_acq_rel,
                                         std::memory_order_acquire));
  return *page.release();
}

bool CodePage::IsRoundTrip(std::string_view bytes) const {
  if (all_round_trip_ && by_table_) return true;
  if (!by_table_) {
    return platform::CodePages().ToCodePage(platform::CodePages().FromCodePage(bytes)) == bytes;
  }
  return std::ranges::all_of(bytes, [&](char ch) { return round_trip_[static_cast<unsigned char>(ch)]; });
}

std::u16string CodePage::Widened(std::string_view bytes) const {
  std::u16string text;
  AppendWidened(text, bytes);
  return text;
}

void CodePage::AppendWidened(std::u16string& to, std::string_view bytes) const {
  if (!by_table_) {
    to += platform::CodePages().FromCodePage(bytes);
    return;
  }
  const std::size_t old = to.size();
  to.resize(old + bytes.size());
  std::ranges::transform(bytes, to.begin() + static_cast<std::ptrdiff_t>(old),
                         [&](char ch) { return units_[static_cast<unsigned char>(ch)]; });
}

const CodePage::Mapping* CodePage::Find(char16_t unit) const {
  const auto at = std::ranges::lower_bound(by_unit_, unit, {}, &Mapping::unit);
  return at != by_unit_.end() && at->unit == unit ? &*at : nullptr;
}

bool CodePage::Narrow(std::u16string_view text, std::string& bytes) const {
  if (!by_table_) {
    bytes = platform::CodePages().ToCodePage(text);
    return platform::CodePages().FromCodePage(bytes) == text;
  }
  bytes.clear();
  for (const char16_t unit : text) {
    const Mapping* mapping = Find(unit);
    if (mapping == nullptr) return false;
    bytes += mapping->byte;
  }
  return true;
}

}  // namespace ravo::xml
