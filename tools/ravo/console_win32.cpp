#include "console.h"
#include "text.h"

#include <algorithm>
#include <cwchar>
#include <stdexcept>

// The second header needs the first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

namespace tool {
namespace {

std::string ToUtf8(const wchar_t* text) {
  const int length = static_cast<int>(std::wcslen(text));
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, length, utf8.data(), size, nullptr, nullptr);
  return utf8;
}

std::wstring ToWide(std::string_view utf8) {
  const int length = static_cast<int>(utf8.size());
  const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, text.data(), size);
  return text;
}

// A console accepts a limited number of units at once; a file or pipe may accept fewer bytes than offered.
constexpr std::size_t kMostUnits = 8192;

bool WriteToConsole(HANDLE console, std::wstring_view text) {
  while (!text.empty()) {
    DWORD written = 0;
    const auto count = static_cast<DWORD>(std::min(text.size(), kMostUnits));
    if (!WriteConsoleW(console, text.data(), count, &written, nullptr) || written == 0) return false;
    text.remove_prefix(written);
  }
  return true;
}

bool WriteBytes(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto count = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1 << 20));
    if (!WriteFile(file, bytes.data(), count, &written, nullptr) || written == 0) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

HANDLE HandleOf(Channel channel) {
  return GetStdHandle(channel == Channel::Out ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

}  // namespace

// The arguments of `main` were converted to the 8-bit code page; the wide command line is lossless.
std::vector<std::string> Arguments(int, const char* const*) {
  std::vector<std::string> arguments;
  int count = 0;
  LPWSTR* values = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; values != nullptr && i < count; ++i) arguments.push_back(ToUtf8(values[i]));
  LocalFree(static_cast<HLOCAL>(values));
  return arguments;
}

bool WriteWithCodes(Channel channel, std::string_view utf8) {
  const HANDLE handle = HandleOf(channel);
  DWORD mode = 0;
  return GetConsoleMode(handle, &mode) ? WriteToConsole(handle, ToWide(utf8)) : WriteBytes(handle, utf8);
}

// The system reports the end of a pipe as an error.
std::size_t ReadInput(std::span<std::byte> to) {
  DWORD count = 0;
  const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
  const auto most = static_cast<DWORD>(std::min<std::size_t>(to.size(), 1 << 20));
  if (ReadFile(input, to.data(), most, &count, nullptr) || GetLastError() == ERROR_BROKEN_PIPE) return count;
  throw std::runtime_error(Text("standard input cannot be read"));
}

std::string SystemLanguage() { return PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_CZECH ? "cs" : "en"; }

bool IsTerminal(Channel channel) {
  DWORD mode = 0;
  return GetConsoleMode(HandleOf(channel), &mode) != 0;
}

// A console interprets colour codes only in a special mode; old ones have no such mode.
bool ShowsColours(Channel channel) {
  constexpr DWORD kReadCodes = 0x0004;
  DWORD mode = 0;
  const HANDLE console = HandleOf(channel);
  return GetConsoleMode(console, &mode) && SetConsoleMode(console, mode | kReadCodes);
}

}  // namespace tool
