#pragma once

/// A thread that may use components: on Windows it has the component runtime initialised, elsewhere there is
/// nothing to initialise.
namespace ravo::test {

class ComponentRuntime {
 public:
  ComponentRuntime();
  ComponentRuntime(const ComponentRuntime&) = delete;
  ComponentRuntime& operator=(const ComponentRuntime&) = delete;
  ~ComponentRuntime();
};

}  // namespace ravo::test
