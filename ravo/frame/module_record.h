#pragma once

#include <ravo/package.h>
#include <ravo/platform/resources.h>

#include <string_view>

namespace ravo {

/// Puts a module's record into the process-wide list; one that is already there stays once. The record must
/// live, and keep its instance, until it is taken out. Throws `std::bad_alloc`, and nothing changed, where
/// memory is short and more than 128 instances were listed so far.
RAVO_API void RegisterModule(RavoModule& module);

/// Takes a record out of the list; nothing happens where it is not there.
RAVO_API void UnregisterModule(RavoModule& module) noexcept;

/// The listed record of the module with that instance handle, or null. Takes no lock, as every look-up of a
/// text does.
[[nodiscard]] RAVO_API RavoModule* FindModule(const void* instance) noexcept;

/// Loads a module of resources and puts it in force for this library's resource strings; a separate one that
/// was in force before is unloaded. False, and nothing changed, where the file cannot be loaded. Texts that
/// were viewed before must no longer be used, and no other thread reads texts meanwhile where one was
/// attached.
RAVO_API bool AttachResourceModule(std::u16string_view file);

/// Puts the library's own texts in force again and unloads the attached module of resources, if there is one.
/// Texts that were viewed before must no longer be used, and no other thread reads texts meanwhile.
RAVO_API void DetachResourceModule() noexcept;

}  // namespace ravo

namespace ravo::frame {

/// This library's record as the list keeps it; `LibraryModule` fills it.
extern constinit RavoModule library_module;

/// The same, registered. Where no entry point registered it (a static build) the first use does.
[[nodiscard]] RavoModule& LibraryModule() noexcept;

/// Where this library's resource strings are looked up now.
struct ResourcePlaces {
  platform::ModuleHandle own = nullptr;
  /// Of the record found in the module list; null where the library's record is not listed.
  platform::ModuleHandle in_force = nullptr;
};
[[nodiscard]] ResourcePlaces CurrentResourcePlaces() noexcept;

/// Whether this code was mapped as a library, not linked into a program.
[[nodiscard]] bool InsideLibrary() noexcept;

}  // namespace ravo::frame
