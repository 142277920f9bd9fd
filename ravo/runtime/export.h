#pragma once

/// RAVO_API marks what leaves the shared library; everything else stays inside. It follows the operating
/// system, not the compiler: a cross compiler for Windows needs the Windows form. RAVO_STATIC is set for
/// consumers of the static library by its CMake target.
#if defined(RAVO_STATIC)
#define RAVO_API
#elif defined(_WIN32)
#if defined(RAVO_BUILDING)
#define RAVO_API __declspec(dllexport)
#else
#define RAVO_API __declspec(dllimport)
#endif
#else
#define RAVO_API __attribute__((visibility("default")))
#endif

/// RAVO_STDCALL is the calling convention of component interfaces: it makes a difference on 32-bit Windows.
#if defined(_WIN32)
#define RAVO_STDCALL __stdcall
#else
#define RAVO_STDCALL
#endif
