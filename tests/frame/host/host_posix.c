#define _POSIX_C_SOURCE 200809L

#include "host.h"

#include <dlfcn.h>
#include <stddef.h>

void* HostLoad(const char* file) { return dlopen(file, RTLD_NOW | RTLD_LOCAL); }

void* HostSymbol(void* library, const char* name) { return dlsym(library, name); }

void HostUnload(void* library) { Expect(dlclose(library) == 0, "the library closes"); }

int HostIsLoaded(const char* file) {
  void* const loaded = dlopen(file, RTLD_LAZY | RTLD_NOLOAD);
  if (loaded) dlclose(loaded);
  return loaded != NULL;
}

void* HostLoadLanguage(const char* file) { return HostLoad(file); }

void HostCheckTexts(void* library, void* language) {
  const RavoResourceText* text = dlsym(language, "RavoResourceTexts");
  Expect(dlsym(library, "RavoResourceTexts") == NULL, "the library's own texts are built in");
  Expect(text != NULL, "the language module has texts");
  while (text->Text && text->Id != 65485) ++text;
  Expect(text->Text && SameText(text->Text, "&Invoice"), "the English caption of an invoice");
}

/* The facts that Windows keeps in resources stand in the module table. */
void HostCheckFile(void* library, const char* file, const RavoPackageDescription* description) {
  (void)library;
  (void)file;
  Expect(SameText(description->TypeLibraryName, "RavoInterface"), "the name of the type library");
  Expect(SameText(description->TypeLibraryHelp, "RavoInterface Library"),
         "the help text of the type library");
  Expect(description->TypeLibraryLocale == 0x0409, "the locale of the type library");
}
