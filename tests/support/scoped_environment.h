#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace ravo::test {

/// Sets a variable of the environment, or removes it (null), for the lifetime of this object. POSIX only.
class ScopedEnvironment {
 public:
  ScopedEnvironment(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    Set(value);
  }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
  ~ScopedEnvironment() { Set(before_ ? before_->c_str() : nullptr); }

 private:
  void Set(const char* value) {
    if (value) {
      ::setenv(name_.c_str(), value, 1);
    } else {
      ::unsetenv(name_.c_str());
    }
    ::tzset();  // the C library reads the zone when it is told to
  }

  std::string name_;
  std::optional<std::string> before_;
};

}  // namespace ravo::test
