#pragma once

#include <ravo/package.h>
#include <ravo/platform/resources.h>

#include <string_view>

namespace ravo {

/// Adds a module's record to the process-wide list; one that is already there is not added again.
///
/// The record must live, and keep its instance, until it is removed. Throws `std::bad_alloc`, with nothing
/// changed, if memory is short and more than 128 instances were listed so far.
RAVO_API void RegisterModule(RavoModule& module);

/// Removes a record from the list; does nothing if it is not there.
RAVO_API void UnregisterModule(RavoModule& module) noexcept;

/// Returns the listed record of the module with that instance handle, or null. Takes no lock, because every
/// look-up of a text calls it.
[[nodiscard]] RAVO_API RavoModule* FindModule(const void* instance) noexcept;

/// Loads a module of resources and makes it the source of this library's resource strings; false, with
/// nothing changed, if the file cannot be loaded.
///
/// Unloads the separate module that was attached before, if any: its text views become invalid, and no other
/// thread may read texts meanwhile.
RAVO_API bool AttachResourceModule(std::u16string_view file);

/// Makes the library's own texts current again and unloads the attached module of resources, if there is
/// one.
///
/// Text views of that module become invalid, and no other thread may read texts meanwhile.
RAVO_API void DetachResourceModule() noexcept;

}  // namespace ravo

namespace ravo::frame {

/// This library's record in the list; `LibraryModule` fills it.
extern constinit RavoModule library_module;

/// Returns the same, registered: if no entry point registered it (a static build), the first use does.
[[nodiscard]] RavoModule& LibraryModule() noexcept;

/// The modules that this library's resource strings come from.
struct ResourcePlaces {
  platform::ModuleHandle own = nullptr;
  /// Of the listed record; null if the library's record is not listed.
  platform::ModuleHandle in_force = nullptr;
};
[[nodiscard]] ResourcePlaces CurrentResourcePlaces() noexcept;

/// Tells whether this code was mapped as a library, not linked into a program.
[[nodiscard]] bool InsideLibrary() noexcept;

}  // namespace ravo::frame
