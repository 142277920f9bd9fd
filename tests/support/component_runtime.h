#pragma once

/// Initialises the component runtime for the calling thread on Windows; does nothing elsewhere.
namespace ravo::test {

class ComponentRuntime {
 public:
  ComponentRuntime();
  ComponentRuntime(const ComponentRuntime&) = delete;
  ComponentRuntime& operator=(const ComponentRuntime&) = delete;
  ~ComponentRuntime();
};

}  // namespace ravo::test
