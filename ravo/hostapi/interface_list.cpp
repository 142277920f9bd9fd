#include <ravo/hostapi/interface_list.h>
#include <ravo/hostapi/interfaces.h>

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>

namespace ravo {
namespace {

// Untested: runs at compile time only.
template <class Interface>
constexpr InterfaceKind KindOf() {
  return std::derived_from<Interface, IDispatch> ? InterfaceKind::Dual : InterfaceKind::Custom;
}

constexpr auto kLibraries = std::to_array<TypeLibraryRow>({
#define RAVO_TYPE_LIBRARY(library, identifier) {#library, library##_TLB::LIBID_##library},
#include <ravo/hostapi/interfaces.inc>
});

constexpr auto kInterfaces = std::to_array<HostInterfaceRow>({
#define RAVO_HOST_INTERFACE(library, name, base, identifier, operations) \
  {#library, #name, #base, KindOf<library##_TLB::name>(), library##_TLB::IID_##name, operations},
#include <ravo/hostapi/interfaces.inc>
});

constexpr auto kClasses = std::to_array<HostClassRow>({
#define RAVO_HOST_CLASS(library, name, returned, identifier) \
  {#library, #name, #returned, library##_TLB::CLASS_##name},
#include <ravo/hostapi/interfaces.inc>
});

static_assert(kLibraries.size() == 3 && kInterfaces.size() == 59 && kClasses.size() == 10);

consteval bool IdentifiersAreUnique() {
  std::array<Guid, kLibraries.size() + kInterfaces.size() + kClasses.size() + 2> all{IUnknown::kInterfaceId,
                                                                                     IDispatch::kInterfaceId};
  auto at = std::ranges::transform(kLibraries, all.begin() + 2, &TypeLibraryRow::identifier).out;
  at = std::ranges::transform(kInterfaces, at, &HostInterfaceRow::identifier).out;
  std::ranges::transform(kClasses, at, &HostClassRow::identifier);
  std::ranges::sort(all);
  return std::ranges::adjacent_find(all) == all.end();
}

static_assert(IdentifiersAreUnique(), "two libraries, interfaces or classes have the same identifier");

// A twin is the same interface to the component runtime, and neither has data but its operation table.
template <class Interface, class Twin>
constexpr bool AreTwins = Interface::kInterfaceId == Twin::kInterfaceId&& Interface::kOwnOperations ==
                              Twin::kOwnOperations&& KindOf<Interface>() == KindOf<Twin>() &&
                          sizeof(Interface) == sizeof(void*) && sizeof(Twin) == sizeof(void*) &&
                          sizeof(Interface::kInterfaceId) == 16;

#define RAVO_HOST_INTERFACE(library, name, base, identifier, operations) \
  static_assert(AreTwins<library##_TLB::name, library##_TLB::name##Disp>);
#include <ravo/hostapi/interfaces.inc>

static_assert(KindOf<RavoManager_TLB::IRavoProfile>() == InterfaceKind::Custom);
static_assert(RavoManager_TLB::IRavoFirmEvents::kOwnOperations == 0);

}  // namespace

std::span<const TypeLibraryRow> TypeLibraryRows() noexcept { return kLibraries; }
std::span<const HostInterfaceRow> HostInterfaceRows() noexcept { return kInterfaces; }
std::span<const HostClassRow> HostClassRows() noexcept { return kClasses; }

std::string_view InterfaceKindName(InterfaceKind kind) noexcept {
  return kind == InterfaceKind::Dual ? "dual" : "custom";
}

}  // namespace ravo
