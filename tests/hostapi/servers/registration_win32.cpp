#include "registration_win32.h"

#include <stdexcept>

#include <windows.h>

namespace ravo::test {
namespace {

constexpr const wchar_t* kClasses = L"Software\\Classes\\";
// A key under every entry that these tests registered.
constexpr const wchar_t* kMark = L"\\RavoTest";

std::wstring Text(const Guid& guid) {
  const std::u16string text = guid.ToText();
  return {text.begin(), text.end()};
}

bool Exists(HKEY root, const std::wstring& key) {
  HKEY handle = nullptr;
  if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &handle) != ERROR_SUCCESS) return false;
  RegCloseKey(handle);
  return true;
}

void SetTextBelow(HKEY root, const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  HKEY handle = nullptr;
  LSTATUS code =
      RegCreateKeyExW(root, (kClasses + key).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &handle, nullptr);
  if (code == ERROR_SUCCESS) {
    code = RegSetValueExW(handle, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                          static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(handle);
  }
  if (code != ERROR_SUCCESS) throw std::runtime_error("cannot register the test's classes");
}

bool ClassesOfTheUserAreSeen() {
  const std::wstring probe = L"RavoTestProbe";
  SetTextBelow(HKEY_CURRENT_USER, probe, nullptr, L"");
  const bool are_seen = Exists(HKEY_CLASSES_ROOT, probe);
  RegDeleteTreeW(HKEY_CURRENT_USER, (kClasses + probe).c_str());
  return are_seen;
}

// The classes of the user. Unlike Windows, Wine 8 does not merge them into the classes of the system: there
// they are registered for the machine as well.
const std::vector<HKEY>& Roots() {
  static const std::vector<HKEY> roots = ClassesOfTheUserAreSeen()
                                             ? std::vector<HKEY>{HKEY_CURRENT_USER}
                                             : std::vector<HKEY>{HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE};
  return roots;
}

void SetText(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  for (const HKEY root : Roots()) SetTextBelow(root, key, name, text);
}

}  // namespace

Registration::~Registration() {
  for (const std::wstring& key : keys_) {
    for (const HKEY root : Roots()) RegDeleteTreeW(root, (kClasses + key).c_str());
  }
  for (const std::wstring& file : files_) DeleteFileW(file.c_str());
}

void Registration::AddKey(const std::wstring& key) {
  // Entries of a test that was aborted may be removed.
  for (const HKEY root : Roots()) {
    if (Exists(root, kClasses + key + kMark)) RegDeleteTreeW(root, (kClasses + key).c_str());
  }
  if (Exists(HKEY_CLASSES_ROOT, key)) throw std::runtime_error("a class of the suite is registered already");
  keys_.push_back(key);
  SetText(key + kMark, nullptr, L"");
}

void Registration::AddLibraryServer(const Guid& class_id, const std::wstring& file) {
  const std::wstring key = L"CLSID\\" + Text(class_id);
  AddKey(key);
  SetText(key + L"\\InprocServer32", nullptr, file);
  SetText(key + L"\\InprocServer32", L"ThreadingModel", L"Both");
}

void Registration::AddProgramServer(const Guid& class_id, const std::wstring& command) {
  const std::wstring key = L"CLSID\\" + Text(class_id);
  AddKey(key);
  SetText(key + L"\\LocalServer32", nullptr, command);
}

void Registration::AddInterface(const ServedType& type, const std::wstring& file) {
  files_.push_back(file);
  if (FAILED(WriteTypeLibrary(type, file))) throw std::runtime_error("cannot write a type library");
  const std::wstring library = L"TypeLib\\" + Text(type.library);
  const std::wstring interface_key = L"Interface\\" + Text(type.identifier);
  AddKey(library);
  AddKey(interface_key);
  SetText(library + L"\\1.0\\0\\" + (sizeof(void*) == 8 ? L"win64" : L"win32"), nullptr, file);
  // The system's own marshaller for interfaces that a type library describes.
  SetText(interface_key + L"\\ProxyStubClsid32", nullptr, L"{00020424-0000-0000-C000-000000000046}");
  SetText(interface_key + L"\\TypeLib", nullptr, Text(type.library));
  SetText(interface_key + L"\\TypeLib", L"Version", L"1.0");
}

std::wstring BesideThisProgram(const std::wstring& name) {
  wchar_t program[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring path(program);
  path.resize(path.rfind(L'\\') + 1);
  return path + name;
}

}  // namespace ravo::test
