#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>

#include <windows.h>

namespace ravo::platform {

std::optional<std::u16string_view> Win32Resources::ResourceText(ModuleHandle module, std::uint16_t id) const {
  // The system takes null as the running program.
  if (!module) return std::nullopt;
  const char16_t* text = nullptr;
  // With a buffer size of 0 the call returns a pointer to the text inside the module.
  const int units = LoadStringW(static_cast<HINSTANCE>(module), id, reinterpret_cast<wchar_t*>(&text), 0);
  if (units <= 0 || !text) return std::nullopt;
  return std::u16string_view(text, static_cast<std::size_t>(units));
}

ModuleHandle Win32Resources::LoadResources(std::u16string_view file) const {
  const std::wstring name = ToWide(file);
  const DWORD flags = LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE;
  if (const HMODULE module = LoadLibraryExW(name.c_str(), nullptr, flags)) return module;
  // Systems before 6.0 do not know the second flag.
  return LoadLibraryExW(name.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
}

void Win32Resources::UnloadResources(ModuleHandle module) const {
  if (module) FreeLibrary(static_cast<HMODULE>(module));
}

}  // namespace ravo::platform
