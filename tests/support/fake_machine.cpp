#include "support/fake_machine.h"

#include "support/windows_1250.h"
#include <ravo/runtime/error.h>

namespace ravo::test {
namespace {

template <class Value>
const Value* Find(const NameMap<Value>& map, std::u16string_view name) {
  const auto found = map.find(name);
  return found == map.end() ? nullptr : &found->second;
}

std::vector<std::byte> StoredBytes(const std::u16string& text) {
  std::vector<std::byte> bytes;
  for (const char16_t unit : std::u16string_view(text.data(), text.size() + 1)) {
    bytes.push_back(static_cast<std::byte>(unit & 0xFF));
    bytes.push_back(static_cast<std::byte>(unit >> 8));
  }
  return bytes;
}

std::vector<std::byte> StoredBytes(std::int32_t value) {
  std::vector<std::byte> bytes;
  for (int shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<std::byte>((static_cast<std::uint32_t>(value) >> shift) & 0xFF));
  }
  return bytes;
}

std::vector<std::byte> StoredBytes(const std::vector<std::byte>& bytes) { return bytes; }

std::vector<std::byte> StoredBytes(Unreadable) { throw Error(u"The value cannot be read"); }

class OpenFakeKey final : public platform::RegistryKey {
 public:
  explicit OpenFakeKey(const FakeRegistryKey& values) : values_(values) {}

  std::optional<std::u16string> StoredText(std::u16string_view name) const override {
    const auto text = As<std::u16string>(name);
    return text ? std::optional(*text + u'\0') : std::nullopt;
  }
  std::optional<std::int32_t> Integer(std::u16string_view name) const override {
    return As<std::int32_t>(name);
  }
  std::optional<std::vector<std::byte>> Bytes(std::u16string_view name, std::size_t most) const override {
    const FakeRegistryValue* value = Find(values_, name);
    if (!value) return std::nullopt;
    auto bytes = std::visit([](const auto& stored) { return StoredBytes(stored); }, *value);
    bytes.resize(std::min(bytes.size(), most));
    return bytes;
  }

 private:
  template <class Kind>
  std::optional<Kind> As(std::u16string_view name) const {
    const FakeRegistryValue* value = Find(values_, name);
    const Kind* kind = value ? std::get_if<Kind>(value) : nullptr;
    return kind ? std::optional(*kind) : std::nullopt;
  }

  const FakeRegistryKey& values_;
};

class OpenFakeVersion final : public platform::VersionResource {
 public:
  explicit OpenFakeVersion(const FakeVersionResource& version) : version_(version) {}

  std::optional<std::uint32_t> FirstTranslation() const override { return version_.translation; }
  std::optional<std::u16string> String(std::u16string_view table, std::u16string_view key) const override {
    const auto* strings = Find(version_.tables, table);
    const std::u16string* text = strings ? Find(*strings, key) : nullptr;
    return text ? std::optional(text->substr(0, text->find(u'\0'))) : std::nullopt;
  }

 private:
  const FakeVersionResource& version_;
};

bool IsAbsolute(std::u16string_view name) {
  return !name.empty() && (name[0] == u'\\' || name[0] == u'/' || (name.size() > 1 && name[1] == u':'));
}

}  // namespace

FakeRegistryKey& FakeRegistry::Key(platform::RegistryRoot root, std::u16string_view path) {
  return registry[root][std::u16string(path)];
}

std::u16string FakeFolders::Folder(platform::SystemFolder folder) const {
  const auto found = folders.find(folder);
  return found == folders.end() ? std::u16string() : found->second;
}

std::u16string FakeFolders::ShellFolder(std::int32_t number) const {
  const auto found = shell_folders.find(number);
  return found == shell_folders.end() ? std::u16string() : found->second;
}

std::u16string FakeDiagnostics::ErrorText(std::uint32_t code) const {
  const auto found = error_texts.find(code);
  return found == error_texts.end() ? std::u16string() : found->second;
}

std::uint32_t FakeDrives::LogicalDrives() const {
  std::uint32_t mask = 0;
  for (const auto& [name, drive] : drives) mask |= std::uint32_t{1} << (name.at(0) - u'A');
  return mask;
}

platform::DriveKind FakeDrives::KindOfDrive(std::u16string_view drive) const {
  const FakeDrive* found = Find(drives, drive);
  return found ? found->kind : platform::DriveKind::NoRoot;
}

std::optional<platform::DiskSpace> FakeDrives::SpaceOfFolder(std::u16string_view folder) const {
  const FakeDrive* found = Find(drives, folder);
  return found ? found->space : std::nullopt;
}

std::unique_ptr<platform::RegistryKey> FakeRegistry::OpenKey(platform::RegistryRoot root,
                                                             std::u16string_view path) const {
  opened_keys.emplace_back(path);
  if (path.starts_with(u'\\')) path.remove_prefix(1);
  const auto keys = registry.find(root);
  const FakeRegistryKey* key = keys == registry.end() ? nullptr : Find(keys->second, path);
  return key ? std::make_unique<OpenFakeKey>(*key) : nullptr;
}

std::u16string FakePaths::FullPath(std::u16string_view name) const {
  if (IsAbsolute(name)) return std::u16string(name);
  return (current_folder + path_delimiter).append(name);
}

std::optional<platform::FileFacts> FakePaths::FindFile(std::u16string_view name) const {
  const FakeFile* file = Find(files, name);
  return file ? std::optional(file->facts) : std::nullopt;
}

std::unique_ptr<platform::VersionResource> FakePaths::OpenVersionResource(std::u16string_view name) const {
  const FakeFile* file = Find(files, name);
  return file && file->version ? std::make_unique<OpenFakeVersion>(*file->version) : nullptr;
}

DateTime FakeLocale::Now() const {
  if (clock.empty()) return 0;
  return clock[std::min(next_reading_++, clock.size() - 1)];
}

std::u16string FakeCodePages::FromCodePage(std::string_view bytes) const {
  std::u16string text = FromWindows1250(bytes);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (const auto other = other_bytes.find(bytes[i]); other != other_bytes.end()) text[i] = other->second;
  }
  return text;
}

std::string FakeCodePages::ToCodePage(std::u16string_view text) const {
  std::string bytes = ToWindows1250(text);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (other_bytes.contains(bytes[i])) bytes[i] = '?';
    for (const auto& [byte, unit] : other_bytes) {
      // The character that has a byte of its own in Windows-1250 keeps it.
      if (unit == text[i] && bytes[i] == '?') bytes[i] = byte;
    }
  }
  return bytes;
}

bool FakeLocale::SameText(std::u16string_view left, std::u16string_view right) const {
  return SameAsciiText(left, right);
}

std::optional<std::u16string> FakeCodePages::DecodeCodePage(std::uint32_t wanted,
                                                            std::string_view bytes) const {
  return wanted == code_page ? std::optional(FromCodePage(bytes)) : std::nullopt;
}

std::optional<std::string> FakeCodePages::EncodeCodePage(std::uint32_t wanted,
                                                         std::u16string_view text) const {
  return wanted == code_page ? std::optional(ToCodePage(text)) : std::nullopt;
}

std::optional<std::uint32_t> FakeCodePages::CodePageOfLocale(std::uint32_t wanted) const {
  const auto found = locale_code_pages.find(wanted);
  return found == locale_code_pages.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::u16string_view> FakeResources::ResourceText(platform::ModuleHandle module,
                                                               std::uint16_t id) const {
  const auto texts = resource_texts.find(module);
  if (texts == resource_texts.end()) return std::nullopt;
  const auto text = texts->second.find(id);
  return text == texts->second.end() ? std::nullopt : std::optional<std::u16string_view>(text->second);
}

platform::ModuleHandle FakeResources::LoadResources(std::u16string_view file) const {
  const platform::ModuleHandle* module = Find(resource_files, file);
  return module ? *module : nullptr;
}

platform::ComponentAnswer FakeComponents::CreateComponent(const Guid& class_id) const {
  const auto found = components.find(class_id);
  platform::ComponentAnswer answer{component_code, nullptr};
  if (found != components.end()) answer.code = MakeInstance(found->second, answer.instance);
  return answer;
}

platform::ComponentAnswer FakeComponents::CreateRemoteComponent(const Guid& class_id,
                                                                std::u16string_view computer) const {
  return computer == remote_computer ? CreateComponent(class_id)
                                     : platform::ComponentAnswer{result_code::kServerUnavailable, nullptr};
}

std::u16string FakeComponents::ComponentErrorText(ResultCode code) const {
  return u"error " + ToHex(static_cast<std::uint32_t>(code), 8);
}

FakeMachine::operator platform::Machine() const {
  return {.system = this,
          .folders = this,
          .diagnostics = this,
          .drives = this,
          .registry = this,
          .paths = this,
          .files = &file_system,
          .locale = this,
          .code_pages = this,
          .resources = this,
          .components = this};
}

}  // namespace ravo::test
