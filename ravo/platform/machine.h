#pragma once

#include <ravo/platform/file_system.h>
#include <ravo/platform/registry_root.h>
#include <ravo/platform/text_size.h>
#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/component_factory.h>
#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/format_settings.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The one door to the operating system: what the library asks of the machine, in its own terms. Each
/// question says 'none' (no value, an empty text) where the machine has no answer; none of them raises unless
/// it says so.
namespace ravo::platform {

/// The family of operating systems that a version record speaks of. The first three have the numbers that
/// Windows gives them.
enum class SystemFamily : std::uint32_t { Win32s = 0, Windows9x = 1, WindowsNt = 2, Other = 3 };

/// What kind of Windows product it is, with the numbers of the version record.
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

/// Processor architectures with the numbers that Windows gives them; only one of them decides anything.
inline constexpr std::uint16_t kArchitectureIntel = 0;
/// x86 with 64 bits.
inline constexpr std::uint16_t kArchitectureAmd64 = 9;

/// Folders that the system can name.
enum class SystemFolder : std::uint8_t { System, Windows, Temporary, CommonDocuments };

/// Byte counts as 32-bit numbers; larger ones read as the largest.
struct MemoryFigures {
  std::uint32_t total_physical = 0;       ///< main memory
  std::uint32_t available_physical = 0;   ///< main memory that is free
  std::uint32_t total_virtual = 0;        ///< address space of the process
  std::uint32_t available_virtual = 0;    ///< address space that is free
  std::uint32_t total_page_file = 0;      ///< main memory and swap space
  std::uint32_t available_page_file = 0;  ///< main memory and swap space that are free
};

/// What a drive is, with the numbers that Windows gives.
enum class DriveKind : std::uint32_t {
  Unknown = 0,
  NoRoot = 1,
  Removable = 2,
  Fixed = 3,
  Remote = 4,
  CdRom = 5,
  RamDisk = 6
};

/// Space of a drive, in bytes.
struct DiskSpace {
  std::int64_t total = 0;  ///< free or not
  /// What the caller may still use.
  std::int64_t available = 0;
  /// What is free, whoever may use it.
  std::int64_t free = 0;
};

/// What a directory search tells of a file.
struct FileFacts {
  std::int64_t size = 0;  ///< in bytes
  /// Last write, in local time.
  DateTime written = 0;
  /// Attribute bits with the numbers that Windows gives them.
  std::uint32_t attributes = 0;
};

/// A registry key opened for reading. It is closed when it goes.
class RegistryKey {
 public:
  RegistryKey() = default;
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  virtual ~RegistryKey();

  /// A value read as text, environment references not expanded; the unnamed value has an empty name. No value
  /// where it is missing or is no text.
  [[nodiscard]] virtual std::optional<std::u16string> Text(std::u16string_view name) const;

  /// The same as it is stored: every whole unit, its terminating zero too where it has one.
  [[nodiscard]] virtual std::optional<std::u16string> StoredText(std::u16string_view name) const = 0;

  /// A value read as a 32-bit integer; no value where it is missing or is no such integer.
  [[nodiscard]] virtual std::optional<std::int32_t> Integer(std::u16string_view name) const = 0;

  /// At most the first `most` bytes of a value as they are stored, of any kind; no value where it is missing.
  /// Raises `Error` where the value is there but cannot be read.
  [[nodiscard]] virtual std::optional<std::vector<std::byte>> Bytes(std::u16string_view name,
                                                                    std::size_t most) const = 0;
};

/// The version resource of a file.
class VersionResource {
 public:
  VersionResource() = default;
  VersionResource(const VersionResource&) = delete;
  VersionResource& operator=(const VersionResource&) = delete;
  virtual ~VersionResource();

  /// The first entry of the translation list: the language in the low 16 bits, the code page in the high
  /// ones.
  [[nodiscard]] virtual std::optional<std::uint32_t> FirstTranslation() const = 0;

  /// The text of a string table's key up to its terminating zero; `table` is the table's name of eight
  /// hexadecimal digits, compared without regard to case, as the key is.
  [[nodiscard]] virtual std::optional<std::u16string> String(std::u16string_view table,
                                                             std::u16string_view key) const = 0;
};

/// A loaded module of code or resources, as the operating system names it: an instance handle on Windows,
/// what the dynamic loader gives elsewhere.
using ModuleHandle = void*;

/// What the component runtime answers to a wish for an object: the object, or the code of a failure.
struct ComponentAnswer {
  ResultCode code = result_code::kClassNotRegistered;  ///< `kOk` beside an object
  ComponentPtr<IUnknown> instance;                     ///< null beside a failure
};

/// The questions. Tests put another machine in the place of the real one.
class Machine {
 public:
  Machine() = default;
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;
  virtual ~Machine();

  // System.
  /// The extended version record; on Linux from the kernel's release. The oldest kinds of Windows have none.
  [[nodiscard]] virtual SystemVersion Version() const = 0;
  /// The basic version record, which every kind of Windows has; on Linux as the extended one.
  [[nodiscard]] virtual SystemVersion BasicVersion() const = 0;
  /// Its numbers alone, which need no memory.
  [[nodiscard]] virtual SystemNumbers VersionNumbers() const noexcept = 0;
  /// Whether the system calls itself the second release of its server edition.
  [[nodiscard]] virtual bool IsServerR2() const = 0;
  /// With the number that Windows gives it.
  [[nodiscard]] virtual std::uint16_t ProcessorArchitecture() const = 0;
  /// A folder of at most 259 units, with the trailing delimiter where the system itself gives one (the
  /// temporary folder always ends in one); empty where there is none.
  [[nodiscard]] virtual std::u16string Folder(SystemFolder folder) const = 0;
  /// Empty where the machine has no name.
  [[nodiscard]] virtual std::u16string ComputerName() const = 0;
  /// The account that the process runs under; `GetUserNameW` on Windows, whose header defines a macro of that
  /// question.
  [[nodiscard]] virtual std::u16string UserName() const = 0;
  /// The memory at this moment.
  [[nodiscard]] virtual MemoryFigures Memory() const = 0;

  /// The folder that the shell has under a number (CSIDL), without a delimiter at its end unless it is the
  /// root of a drive; empty where that is no folder of the file system.
  [[nodiscard]] virtual std::u16string ShellFolder(std::int32_t number) const = 0;
  /// The system's words for one of its error codes as it gives them, line end included; empty where it has
  /// none in fewer than 256 units.
  [[nodiscard]] virtual std::u16string ErrorText(std::uint32_t code) const = 0;
  /// The code of the calling thread's last failed call.
  [[nodiscard]] virtual std::uint32_t LastErrorCode() const noexcept = 0;
  /// The size of a text in one line on a device, in its logical units; no value where the device cannot tell.
  [[nodiscard]] virtual std::optional<TextSize> TextExtent(DeviceContext device,
                                                           std::u16string_view text) const = 0;

  // Drives, named by a letter and a colon.
  /// Bit 0 for "A:" and so on.
  [[nodiscard]] virtual std::uint32_t LogicalDrives() const = 0;
  /// What a drive is; `NoRoot` where there is none of that name.
  [[nodiscard]] virtual DriveKind KindOfDrive(std::u16string_view drive) const = 0;
  /// The space of the disk that holds a folder; a drive is one. No value where it cannot
  /// be read.
  [[nodiscard]] virtual std::optional<DiskSpace> SpaceOfFolder(std::u16string_view folder) const = 0;

  // Registry. Paths are written with "\"; one in front is allowed.
  /// Null where the key cannot be opened.
  [[nodiscard]] virtual std::unique_ptr<RegistryKey> OpenKey(RegistryRoot root,
                                                             std::u16string_view path) const = 0;

  // Files.
  /// What is done to files and folders.
  [[nodiscard]] virtual const FileSystem& Files() const noexcept = 0;
  /// "\" on Windows, "/" elsewhere. Both are taken in names everywhere.
  [[nodiscard]] virtual char16_t PathDelimiter() const = 0;
  /// A name expanded against the process's current folder.
  [[nodiscard]] virtual std::u16string FullPath(std::u16string_view name) const = 0;
  /// What a directory search finds first under that name, files and folders alike. "*" and "?" in its last
  /// part stand for any text and for any character. A name that ends in a delimiter finds nothing.
  [[nodiscard]] virtual std::optional<FileFacts> FindFile(std::u16string_view name) const = 0;
  /// Null where the file has no version resource.
  [[nodiscard]] virtual std::unique_ptr<VersionResource> OpenVersionResource(
      std::u16string_view name) const = 0;

  // Locale and clock.
  /// The user's settings for the text of numbers and dates, now.
  [[nodiscard]] virtual FormatSettings Locale() const = 0;
  /// Local time.
  [[nodiscard]] virtual DateTime Now() const = 0;

  // The 8-bit code page of the system's data: Windows-1250 on the suite's systems.
  /// Its number: 1250.
  [[nodiscard]] virtual std::uint32_t CodePage() const = 0;
  /// Text of the code page as UTF-16. Bytes that it lacks become what the system puts in their place.
  [[nodiscard]] virtual std::u16string FromCodePage(std::string_view bytes) const = 0;
  /// A character that the code page lacks becomes what the system puts in its place, "?" at the latest.
  [[nodiscard]] virtual std::string ToCodePage(std::u16string_view text) const = 0;
  /// The same for a code page by its number; no value where the system does not know it.
  [[nodiscard]] virtual std::optional<std::u16string> DecodeCodePage(std::uint32_t code_page,
                                                                     std::string_view bytes) const = 0;
  /// The other way round; no value where the system does not know the code page.
  [[nodiscard]] virtual std::optional<std::string> EncodeCodePage(std::uint32_t code_page,
                                                                  std::u16string_view text) const = 0;
  /// The 8-bit code page of a locale by the number that Windows gives that; no value for an unknown one.
  [[nodiscard]] virtual std::optional<std::uint32_t> CodePageOfLocale(std::uint32_t locale) const = 0;

  /// Sends a text to an attached debugger, where the system has such a channel.
  virtual void DebugOutput(std::u16string_view text) const = 0;

  /// Whether two texts are equal without regard to case, as the user's language compares them.
  [[nodiscard]] virtual bool SameText(std::u16string_view left, std::u16string_view right) const = 0;

  // Resource texts.
  /// A string of the module's string table, of the module itself (not of what it links to); no value where it
  /// has none under that number. The view lives as long as the module stays loaded.
  [[nodiscard]] virtual std::optional<std::u16string_view> ResourceText(ModuleHandle module,
                                                                        std::uint16_t id) const = 0;
  /// Loads a module of resources; null where that fails.
  [[nodiscard]] virtual ModuleHandle LoadResources(std::u16string_view file) const = 0;
  /// Gives up what `LoadResources` loaded; nothing for null.
  virtual void UnloadResources(ModuleHandle module) const = 0;

  // Components. On Windows the calling thread has initialised the component runtime for itself.
  /// An object of a class on this computer.
  [[nodiscard]] virtual ComponentAnswer CreateComponent(const Guid& class_id) const = 0;
  /// On the computer of that name.
  [[nodiscard]] virtual ComponentAnswer CreateRemoteComponent(const Guid& class_id,
                                                              std::u16string_view computer) const = 0;
  /// Offers a class to this process until it is revoked by the number that `registration` receives. Answers
  /// the platform's code.
  [[nodiscard]] virtual ResultCode OfferComponent(const Guid& class_id, ComponentFactory factory,
                                                  std::uint32_t& registration) const = 0;
  /// Takes back the offer of that number.
  virtual void RevokeComponent(std::uint32_t registration) const = 0;
  /// The platform's words for one of its codes.
  [[nodiscard]] virtual std::u16string ComponentErrorText(ResultCode code) const = 0;
};

/// The machine in force: the real one unless a test put another in its place.
[[nodiscard]] const Machine& CurrentMachine() noexcept;

/// The real one. Implemented by `win32/` and `posix/`.
[[nodiscard]] const Machine& RealMachine() noexcept;

/// Puts a machine in force for as long as this object lives. For tests; not for several threads at once.
class ScopedMachine {
 public:
  /// `machine` must outlive this object.
  explicit ScopedMachine(const Machine& machine) noexcept;
  ScopedMachine(const ScopedMachine&) = delete;
  ScopedMachine& operator=(const ScopedMachine&) = delete;
  ~ScopedMachine();

 private:
  const Machine* previous_;
};

}  // namespace ravo::platform
