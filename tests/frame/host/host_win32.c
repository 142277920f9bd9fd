#define COBJMACROS
#define WIN32_LEAN_AND_MEAN
#define UNICODE

#include "host.h"

#include <windows.h>
/* After it. */
#include <ole2.h>
#include <oleauto.h>
#include <stdio.h>
#include <string.h>

enum { kPathSize = 600 };

static void FullPath(const char* file, wchar_t* path) {
  char narrow[kPathSize];
  Expect(GetFullPathNameA(file, kPathSize, narrow, NULL) != 0, "the full name of the file");
  Expect(MultiByteToWideChar(CP_ACP, 0, narrow, -1, path, kPathSize) != 0, "the name in Unicode");
}

void* HostLoad(const char* file) {
  wchar_t path[kPathSize];
  FullPath(file, path);
  return LoadLibraryW(path);
}

void* HostSymbol(void* library, const char* name) {
  const FARPROC procedure = GetProcAddress(library, name);
  void* symbol;
  memcpy(&symbol, &procedure, sizeof symbol);
  return symbol;
}

void HostUnload(void* library) { Expect(FreeLibrary(library), "the library closes"); }

int HostIsLoaded(const char* file) {
  wchar_t path[kPathSize];
  FullPath(file, path);
  return GetModuleHandleW(path) != NULL;
}

void* HostLoadLanguage(const char* file) { return HostLoad(file); }

static int TextIs(void* module, UINT id, const wchar_t* expected) {
  wchar_t text[200];
  return LoadStringW(module, id, text, 200) > 0 && wcscmp(text, expected) == 0;
}

struct Text {
  UINT id;
  const wchar_t* text;
};

/* The rows of every list that the string table is made from. */
static const struct Text kTexts[] = {
#define RAVO_CAPTION_GROUP(prefix, title)
#define RAVO_STRING(name, id, text) {id, L##text},
#include <ravo/catalogue/captions.inc>
#undef RAVO_STRING
#define RAVO_STRING(name, id, text) {id, L##text},
#include <ravo/sysinfo/captions.inc>
#include <ravo/unicode/messages.inc>
#include <ravo/utils/messages.inc>
#undef RAVO_STRING
};

void HostCheckTexts(void* library, void* language) {
  size_t i;
  for (i = 0; i < sizeof kTexts / sizeof kTexts[0]; ++i) {
    Expect(TextIs(library, kTexts[i].id, kTexts[i].text), "every text stands in the library's string table");
  }
  Expect(TextIs(library, 65485, L"&Faktura"), "the caption of an invoice in the library's string table");
  Expect(TextIs(library, 65439, L"Stream is nil"), "a message in the library's string table");
  Expect(TextIs(language, 65485, L"&Invoice"), "the English caption of an invoice");
}

static const unsigned char* Resource(void* library, const wchar_t* name, DWORD* size) {
  const HRSRC place = FindResourceW(library, name, (const wchar_t*)RT_RCDATA);
  Expect(place != NULL, "the named resource is there");
  *size = SizeofResource(library, place);
  return LockResource(LoadResource(library, place));
}

static const unsigned char* ExpectBytes(const unsigned char* at, const void* bytes, size_t size,
                                        const char* what) {
  Expect(memcmp(at, bytes, size) == 0, what);
  return at + size;
}

/* Reads the package description by its documented layout, beside the module table. */
static void CheckPackageInfo(void* library, const RavoPackageDescription* description) {
  DWORD size;
  const unsigned char* const start = Resource(library, L"PACKAGEINFO", &size);
  const unsigned char* at = start;
  const uint16_t counts[2] = {2, 28};
  int i;
  at = ExpectBytes(at, &description->Flags, sizeof description->Flags, "the flags in PACKAGEINFO");
  at = ExpectBytes(at, counts, sizeof counts, "the counts in PACKAGEINFO");
  for (i = 0; i < 2; ++i) {
    const char* const name = description->RequiredNames[i];
    at = ExpectBytes(at, name, strlen(name) + 1, name);
  }
  for (i = 0; i < 28; ++i) {
    const RavoPackageModule* const module = &description->Contained[i];
    at = ExpectBytes(at, &module->Flags, 1, "a module's flags in PACKAGEINFO");
    at = ExpectBytes(at, module->Name, strlen(module->Name) + 1, module->Name);
  }
  Expect((DWORD)(at - start) == size, "nothing follows in PACKAGEINFO");
}

static void CheckDescription(void* library) {
  static const wchar_t expected[] = L"RavoInterface";
  DWORD size;
  const unsigned char* const text = Resource(library, L"DESCRIPTION", &size);
  Expect(size == sizeof expected && memcmp(text, expected, size) == 0, "the text of DESCRIPTION");
}

static void CheckVersionString(const void* record, const RavoVersionString* string) {
  wchar_t path[80];
  void* text;
  UINT size;
  swprintf(path, 80, L"\\StringFileInfo\\040504B0\\%hs", string->Key);
  Expect(VerQueryValueW(record, path, &text, &size), string->Key);
  Expect(wcscmp(text, (const wchar_t*)string->Text) == 0, string->Key);
}

static void CheckVersionRecord(const wchar_t* path, const RavoPackageDescription* description) {
  static unsigned char record[8192];
  const WORD expected[2] = {0x0405, 1200};
  void* translation;
  UINT size;
  int i;
  Expect(GetFileVersionInfoW(path, 0, sizeof record, record), "the version record");
  Expect(VerQueryValueW(record, L"\\VarFileInfo\\Translation", &translation, &size), "the translation");
  Expect(size == sizeof expected && memcmp(translation, expected, size) == 0,
         "Czech in Unicode, nothing else");
  for (i = 0; i < description->VersionStringCount; ++i) {
    CheckVersionString(record, &description->VersionStrings[i]);
  }
}

static void CheckTypeLibrary(const wchar_t* path) {
  ITypeLib* library;
  TLIBATTR* attributes;
  BSTR name, help;
  Expect(SUCCEEDED(LoadTypeLib(path, &library)), "the type library loads");
  Expect(ITypeLib_GetTypeInfoCount(library) == 0, "the type library has no types");
  Expect(SUCCEEDED(ITypeLib_GetDocumentation(library, -1, &name, &help, NULL, NULL)), "its documentation");
  Expect(wcscmp(name, L"RavoInterface") == 0, "the name of the type library");
  Expect(wcscmp(help, L"RavoInterface Library") == 0, "the help text of the type library");
  Expect(SUCCEEDED(ITypeLib_GetLibAttr(library, &attributes)), "its attributes");
  Expect(attributes->lcid == 0x0409, "the locale of the type library");
  ITypeLib_ReleaseTLibAttr(library, attributes);
  SysFreeString(name);
  SysFreeString(help);
  ITypeLib_Release(library);
}

void HostCheckFile(void* library, const char* file, const RavoPackageDescription* description) {
  wchar_t path[kPathSize];
  FullPath(file, path);
  CheckPackageInfo(library, description);
  CheckDescription(library);
  CheckVersionRecord(path, description);
  CheckTypeLibrary(path);
}
