#pragma once

/// RAVO_API marks what leaves the shared library; everything else stays inside. It follows the operating
/// system, not the compiler: a cross compiler for Windows needs the Windows form. RAVO_STATIC is set for
/// consumers of the static library by its CMake target.
///
/// RAVO_LOCAL keeps a template inside that is a member of an exported class: which of its instances there are
/// is the compiler's choice, so they are no part of the binary interface.
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

/// RAVO_INLINE_API marks what is inline in a public header and leaves the shared library as well: the library
/// holds the function whether it calls it or not, users of Windows take their own copy.
#if defined(RAVO_BUILDING)
#define RAVO_INLINE_API __attribute__((used)) RAVO_API inline
#elif defined(RAVO_STATIC) || defined(_WIN32)
#define RAVO_INLINE_API inline
#else
#define RAVO_INLINE_API RAVO_API inline
#endif

/// RAVO_STDCALL is the calling convention of component interfaces: it makes a difference on 32-bit Windows.
#if defined(_WIN32)
#define RAVO_STDCALL __stdcall
#else
#define RAVO_STDCALL
#endif
