#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo::RavoInterfaceCommon {

/// Returns the name of a backup file: `Template` with its placeholders replaced.
///
/// "%FIRMA%" becomes `Firma` without the characters that a file name must not contain, "%DATUM%" the current
/// date as "yymmdd", and "%CAS%" the current time as "hhmmss". Placeholders are case-insensitive, and each
/// occurrence is replaced; the rest of the template is unchanged. No file is created.
///
///     ParseZalohaFile(u"%FIRMA%_%DATUM%_%CAS%", u"A/B: s.r.o.")   // "AB s.r.o._110203_140509"
[[nodiscard]] RAVO_API std::u16string ParseZalohaFile(std::u16string_view Template,
                                                      std::u16string_view Firma);

}  // namespace ravo::RavoInterfaceCommon
