#pragma once

/// Every public C++ header includes this first, so that an older compiler reports one clear error before any
/// other. Hosts in C or in older C++ include only ravo/package.h.
#if __cplusplus < 202002L
#error RavoInterface needs C++20: compile with -std=c++20 or later
#endif
