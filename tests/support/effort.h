#pragma once

/// How often a long loop goes round. Sanitizers, which slow it by ten or more, are after the paths of the
/// code; that each value is right is for the other builds, which try them all.
namespace ravo::test {

#ifdef RAVO_SANITIZED
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif

/// So many rounds with random values; under sanitizers, a quarter of them.
constexpr int Rounds(int all) { return kSanitized ? all / 4 : all; }

/// The step through values that are all tried but under sanitizers.
constexpr unsigned StepUnderSanitizers(unsigned step) { return kSanitized ? step : 1; }

}  // namespace ravo::test
