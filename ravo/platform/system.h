#pragma once

#include <ravo/platform/chapter.h>
#include <ravo/platform/text_size.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform {

/// The family of operating systems in a version record. The first three have the numbers that Windows gives
/// them.
enum class SystemFamily : std::uint32_t { Win32s = 0, Windows9x = 1, WindowsNt = 2, Other = 3 };

/// The kind of Windows product, with the numbers of the version record.
enum class ProductType : std::uint8_t { Unknown = 0, Workstation = 1, DomainController = 2, Server = 3 };

/// The numbers of the version record.
struct SystemNumbers {
  SystemFamily family = SystemFamily::Other;  ///< the kind of system
  std::uint32_t major = 0;                    ///< of the version
  std::uint32_t minor = 0;                    ///< of the version
  std::uint32_t build = 0;                    ///< number of the build
};

/// The version record, basic or extended.
struct SystemVersion : SystemNumbers {
  /// At most 127 units.
  std::u16string service_pack;
  /// Bits of the product suites, as Windows numbers them; in the extended record alone.
  std::uint16_t suite_mask = 0;
  /// Client or server; in the extended record alone.
  ProductType product_type = ProductType::Unknown;
};

/// 32-bit x86, with the number that Windows gives it. No other architecture but these two decides anything.
inline constexpr std::uint16_t kArchitectureIntel = 0;
/// 64-bit x86.
inline constexpr std::uint16_t kArchitectureAmd64 = 9;

/// Byte counts as 32-bit numbers; larger ones read as the largest.
struct MemoryFigures {
  std::uint32_t total_physical = 0;       ///< main memory
  std::uint32_t available_physical = 0;   ///< free main memory
  std::uint32_t total_virtual = 0;        ///< address space of the process
  std::uint32_t available_virtual = 0;    ///< free address space
  std::uint32_t total_page_file = 0;      ///< main memory and swap space
  std::uint32_t available_page_file = 0;  ///< free main memory and swap space
};

/// The computer, its operating system and its user.
class SystemCalls : public Chapter {
 public:
  /// Returns the extended version record, on Linux from the kernel's release. The oldest kinds of Windows
  /// have none.
  [[nodiscard]] virtual SystemVersion Version() const = 0;
  /// Returns the basic version record, which every kind of Windows has; on Linux the same as the extended
  /// one.
  [[nodiscard]] virtual SystemVersion BasicVersion() const = 0;
  /// Returns the numbers of the version record. Allocates no memory.
  [[nodiscard]] virtual SystemNumbers VersionNumbers() const noexcept = 0;
  /// Tells whether the system calls itself the second release of its server edition.
  [[nodiscard]] virtual bool IsServerR2() const = 0;
  /// Returns the processor architecture, with the number that Windows gives it.
  [[nodiscard]] virtual std::uint16_t ProcessorArchitecture() const = 0;
  /// Returns the computer's name; empty if it has none.
  [[nodiscard]] virtual std::u16string ComputerName() const = 0;
  /// Returns the account that the process runs under. The name `GetUserName` is a macro of the Windows
  /// header.
  [[nodiscard]] virtual std::u16string UserName() const = 0;
  /// Returns the memory figures at this moment.
  [[nodiscard]] virtual MemoryFigures Memory() const = 0;
  /// Returns the size of a text in one line on a device; no value if the device cannot tell.
  [[nodiscard]] virtual std::optional<TextSize> TextExtent(DeviceContext device,
                                                           std::u16string_view text) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const SystemCalls& System() noexcept;

}  // namespace ravo::platform
