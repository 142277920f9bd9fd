#include "redirection.h"

#include <array>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace tool {

struct Redirection::Channels {
  std::array<int, 3> files;
};

Redirection::Redirection(const std::string& in, const std::string& out, const std::string& err)
    : before_(std::make_unique<Channels>()) {
  const std::array<const std::string*, 3> names{&in, &out, &err};
  for (int channel = 0; channel < 3; ++channel) {
    const auto place = static_cast<std::size_t>(channel);
    const int file =
        open(names[place]->c_str(), channel == 0 ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC, 0600);
    before_->files[place] = dup(channel);
    if (file < 0 || before_->files[place] < 0 || dup2(file, channel) < 0 || close(file) != 0) std::abort();
  }
}

Redirection::~Redirection() {
  for (int channel = 0; channel < 3; ++channel) {
    const int file = before_->files[static_cast<std::size_t>(channel)];
    if (dup2(file, channel) < 0 || close(file) != 0) std::abort();
  }
}

}  // namespace tool
