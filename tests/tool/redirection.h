#pragma once

#include <memory>
#include <string>

/// The standard channels of this process, replaced by files for a while.
namespace tool {

class Redirection {
 public:
  /// Opens the files, named in UTF-8: `in` to read, the others anew to write. Ends the process if one
  /// cannot be opened.
  Redirection(const std::string& in, const std::string& out, const std::string& err);
  /// Closes the files and puts the channels back.
  ~Redirection();
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;

 private:
  struct Channels;
  std::unique_ptr<Channels> before_;
};

}  // namespace tool
