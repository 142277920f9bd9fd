#include "redirection.h"

#include <array>
#include <cstdlib>
#include <filesystem>

#include <windows.h>

namespace tool {
namespace {

constexpr std::array<DWORD, 3> kChannels{STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};

HANDLE Opened(const std::string& name, DWORD channel) {
  const bool reads = channel == STD_INPUT_HANDLE;
  const HANDLE file = CreateFileW(std::filesystem::path(std::u8string(name.begin(), name.end())).c_str(),
                                  reads ? GENERIC_READ : GENERIC_WRITE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  reads ? OPEN_EXISTING : CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) std::abort();
  return file;
}

}  // namespace

struct Redirection::Channels {
  std::array<HANDLE, 3> files;
};

// The streams of the standard library keep the handles that they have.
Redirection::Redirection(const std::string& in, const std::string& out, const std::string& err)
    : before_(std::make_unique<Channels>()) {
  const std::array<const std::string*, 3> names{&in, &out, &err};
  for (std::size_t i = 0; i < kChannels.size(); ++i) {
    before_->files[i] = GetStdHandle(kChannels[i]);
    SetStdHandle(kChannels[i], Opened(*names[i], kChannels[i]));
  }
}

Redirection::~Redirection() {
  for (std::size_t i = 0; i < kChannels.size(); ++i) {
    CloseHandle(GetStdHandle(kChannels[i]));
    SetStdHandle(kChannels[i], before_->files[i]);
  }
}

}  // namespace tool
