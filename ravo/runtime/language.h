#pragma once

/// What every public header of C++ includes first: an older compiler gets one clear message in front of all
/// others. Hosts in C or in older C++ include ravo/package.h alone.
#if __cplusplus < 202002L
#error RavoInterface needs C++20: compile with -std=c++20 or later
#endif
