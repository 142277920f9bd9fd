#include <ravo/frame/units.h>

namespace ravo::frame {
namespace {

using Body = void (*)() noexcept;

struct Bodies {
  Body start = nullptr;
  Body stop = nullptr;
};

constexpr auto kBodies = [] {
  std::array<Bodies, kModules.size()> bodies{};
  bodies[static_cast<std::size_t>(Module::DISystemCompat)] = {StartDISystemCompat, nullptr};
  bodies[static_cast<std::size_t>(Module::DIUtils)] = {nullptr, StopDIUtils};
  return bodies;
}();

// Not locked: a host starts and stops from one thread at a time.
std::array<std::int32_t, kModules.size()> counters{};

void Run(Body body) {
  if (body) body();
}

void StartModule(Module module) {
  const auto index = static_cast<std::size_t>(module);
  if (counters[index]-- == 0) Run(kBodies[index].start);
}

void StopModule(Module module) {
  const auto index = static_cast<std::size_t>(module);
  if (++counters[index] == 0) Run(kBodies[index].stop);
}

}  // namespace

std::int32_t ModuleCounter(Module module) noexcept { return counters[static_cast<std::size_t>(module)]; }

}  // namespace ravo::frame

#define RAVO_MODULE(name, flags, uses)                                              \
  void name##_Initialize() { ravo::frame::StartModule(ravo::frame::Module::name); } \
  void name##_Finalize() { ravo::frame::StopModule(ravo::frame::Module::name); }
#include <ravo/frame/modules.inc>
#undef RAVO_MODULE
