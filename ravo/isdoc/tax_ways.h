#pragma once

#include <ravo/czech/day.h>
#include <ravo/isdoc/amount.h>
#include <ravo/isdoc/document.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace ravo::isdoc {

/// The ways in which a tax comes about.
enum class TaxWay : std::uint8_t {
  None,           ///< none fits
  Untaxed,        ///< there is no tax
  FromBase,       ///< of the base
  FromTotal,      ///< of the amount with tax
  ByCoefficient,  ///< of the amount with tax, by a coefficient of four decimals
  SumOfLines,     ///< the taxes of the lines added
};

/// A row of an invoice's recapitulation and the way that gives its tax.
struct RateWay {
  const Element* subtotal = nullptr;
  TaxWay way = TaxWay::None;
};

/// Returns for each row of the recapitulation the lawful way that gives its tax, in the order of the
/// document. Of several it is the one that the lines name.
[[nodiscard]] std::vector<RateWay> TaxWays(const Document& document);

namespace detail {

class Invoice;
struct Subtotal;

/// The taxes that the lawful ways give.
class LawfulTaxes {
 public:
  struct Tax {
    TaxWay way = TaxWay::None;
    Amount amount;
  };

  /// Of an amount in two of its parts; `decimals` is how far the tax is rounded. Without a day, every way is
  /// lawful.
  LawfulTaxes(const Amount& base, const Amount& total, const Amount& percent, std::optional<czech::Day> day,
              int decimals);

  /// The way that gives `tax`; `None` if there is no such way. Of several the one from the base or, for
  /// `from_total`, the one from the total.
  [[nodiscard]] TaxWay WayOf(const Amount& tax, bool from_total = false) const noexcept;
  [[nodiscard]] std::span<const Tax> All() const noexcept { return std::span(taxes_).first(count_); }

 private:
  void Add(TaxWay way, const Amount& tax) noexcept { taxes_[count_++] = {way, tax}; }

  std::array<Tax, 3> taxes_;
  std::size_t count_ = 0;
};

/// Returns whether the lines of a row say that their tax comes from the total.
[[nodiscard]] bool IsFromTotal(const Subtotal& subtotal) noexcept;

/// Returns the sum of the taxes of a row's lines; nothing if one has none.
[[nodiscard]] std::optional<Amount> TaxOfLines(const Invoice& invoice, const Subtotal& subtotal);

}  // namespace detail
}  // namespace ravo::isdoc
