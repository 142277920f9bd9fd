#pragma once

/// RAVO_API exports a name from the shared library; everything else stays internal. It depends on the
/// operating system, not on the compiler, so a cross compiler for Windows uses the Windows form. The CMake
/// target of the static library defines RAVO_STATIC for its users.
///
/// RAVO_LOCAL hides a member template of an exported class. The compiler chooses which instances it emits, so
/// they are not part of the ABI.
#if defined(RAVO_STATIC)
#define RAVO_API
#define RAVO_LOCAL
#elif defined(_WIN32)
#if defined(RAVO_BUILDING)
#define RAVO_API __declspec(dllexport)
#else
#define RAVO_API __declspec(dllimport)
#endif
#define RAVO_LOCAL
#else
#define RAVO_API __attribute__((visibility("default")))
#define RAVO_LOCAL __attribute__((visibility("hidden")))
#endif

/// RAVO_INLINE_API exports an inline function of a public header. The library always contains the function,
/// even if it never calls it; programs on Windows use their own copy.
#if defined(RAVO_BUILDING)
#define RAVO_INLINE_API __attribute__((used)) RAVO_API inline
#elif defined(RAVO_STATIC) || defined(_WIN32)
#define RAVO_INLINE_API inline
#else
#define RAVO_INLINE_API RAVO_API inline
#endif

/// RAVO_STDCALL is the calling convention of component interfaces. It differs from the default on 32-bit
/// Windows only.
#if defined(_WIN32)
#define RAVO_STDCALL __stdcall
#else
#define RAVO_STDCALL
#endif
