#pragma once

namespace ravo::platform {

/// The base of all chapters (`machine.h`). A chapter is neither copied nor moved: calls keep references to
/// it.
class Chapter {
 public:
  Chapter() = default;
  Chapter(const Chapter&) = delete;
  Chapter& operator=(const Chapter&) = delete;
  virtual ~Chapter();
};

}  // namespace ravo::platform
