#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo::RavoInterfaceCommon {

/// The name of a backup file: `Template` with "%FIRMA%" replaced by the company's name without the characters
/// that a file name may not hold, "%DATUM%" by today as "yymmdd" and "%CAS%" by the time as "hhmmss".
/// Placeholders count in either case, every occurrence of them; the rest of the template stays as it is. No
/// file is touched.
///
///     ParseZalohaFile(u"%FIRMA%_%DATUM%_%CAS%", u"A/B: s.r.o.")   // "AB s.r.o._110203_140509"
[[nodiscard]] RAVO_API std::u16string ParseZalohaFile(std::u16string_view Template,
                                                      std::u16string_view Firma);

}  // namespace ravo::RavoInterfaceCommon
