/* A host that knows nothing of the library but its two headers for C: it loads the library at run time, walks
 * the module table, starts and stops, attaches a language module, unloads, and does it all again. The
 * constants of ravo/constants.h are data of the library. usage: package_host LIBRARY LANGUAGE-MODULE */
#include "host.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const char* const kContained[] = {
#include "../../support/module_names.inc"
};

enum { kContainedCount = sizeof kContained / sizeof kContained[0], kSlots = 105 };

void Expect(int holds, const char* what) {
  if (holds) return;
  fprintf(stderr, "package_host: not so: %s\n", what);
  exit(1);
}

int SameText(const uint16_t* text, const char* ascii) {
  while (*ascii && *text == (unsigned char)*ascii) ++text, ++ascii;
  return *ascii == 0 && *text == 0;
}

/* Data and code pointers convert through memory: the C language knows no other way. */
static RavoPackageProcedure Procedure(void* library, const char* name) {
  void* const symbol = HostSymbol(library, name);
  RavoPackageProcedure procedure;
  Expect(symbol != NULL, name);
  memcpy(&procedure, &symbol, sizeof procedure);
  return procedure;
}

static RavoPackageProcedure ModuleProcedure(void* library, const char* module, const char* suffix) {
  char name[80];
  snprintf(name, sizeof name, "%s_%s", module, suffix);
  return Procedure(library, name);
}

static const RavoPackageInfoTable* Table(void* library) {
  return ((RavoGetPackageInfoTable)Procedure(library, "GetPackageInfoTable"))();
}

static void CheckNames(const RavoPackageInfoTable* table) {
  const RavoPackageDescription* const description = table->Description;
  int i;
  Expect(description->Flags == RAVO_PACKAGE_FLAGS, "the flags of the package");
  Expect(description->RequiredCount == 2 && strcmp(description->RequiredNames[0], "rtl140") == 0 &&
             strcmp(description->RequiredNames[1], "vcl140") == 0,
         "the required libraries are rtl140 and vcl140");
  Expect(description->ContainedCount == kContainedCount, "28 contained modules");
  Expect(table->TypeInfo.UnitCount == kContainedCount - 1, "27 names beside the main module's");
  for (i = 0; i < kContainedCount; ++i) {
    Expect(strcmp(description->Contained[i].Name, kContained[i]) == 0, kContained[i]);
    Expect(description->Contained[i].Flags == (i == 0 ? RAVO_MODULE_MAIN : 0),
           "only the first is the main one");
    if (i > 0) Expect(strcmp(table->TypeInfo.UnitNames[i - 1], kContained[i]) == 0, kContained[i]);
  }
  Expect(SameText(description->Text, "RavoInterface"), "the description");
  Expect(description->VersionStringCount == 8, "eight strings of the version record");
}

static int CountSlots(const RavoPackageInfoTable* table, RavoPackageProcedure start,
                      RavoPackageProcedure stop) {
  int slot, count = 0;
  for (slot = 0; slot < table->UnitCount; ++slot) {
    count += table->UnitInfo[slot].Initialize == start && table->UnitInfo[slot].Finalize == stop;
  }
  return count;
}

static void CheckSlots(void* library, const RavoPackageInfoTable* table) {
  int i;
  Expect(table->UnitCount == kSlots, "105 slots");
  Expect(CountSlots(table, NULL, NULL) == kSlots - kContainedCount, "77 empty slots");
  for (i = 0; i < kContainedCount; ++i) {
    Expect(CountSlots(table, ModuleProcedure(library, kContained[i], "Initialize"),
                      ModuleProcedure(library, kContained[i], "Finalize")) == 1,
           kContained[i]);
  }
}

static void StartAndStop(void* library) {
  const RavoPackageProcedure start = Procedure(library, "Initialize");
  const RavoPackageProcedure stop = Procedure(library, "Finalize");
  start();
  start();
  stop();
  stop();
  start();
  stop();
}

/* The same by hand, slot by slot, as a host may do it. */
static void StartAndStopBySlots(const RavoPackageInfoTable* table) {
  int slot;
  for (slot = 0; slot < table->UnitCount; ++slot) {
    if (table->UnitInfo[slot].Initialize) table->UnitInfo[slot].Initialize();
  }
  while (slot-- > 0) {
    if (table->UnitInfo[slot].Finalize) table->UnitInfo[slot].Finalize();
  }
}

static void CheckModule(const RavoModule* module) {
  Expect(module->Instance != NULL && module->ResInstance == module->Instance,
         "the library is its own resources");
  Expect(module->CodeInstance == NULL && module->DataInstance == NULL, "no code and data instance");
}

/* The names of all constants, from the rows that their headers are made from. */
static const char* const kGuids[] = {
#define RAVO_TYPE_LIBRARY(library, identifier) "LIBID_" #library,
#define RAVO_HOST_INTERFACE(library, name, base, identifier, operations) "IID_" #name,
#define RAVO_HOST_CLASS(library, name, returned, identifier) "CLASS_" #name,
#include <ravo/hostapi/interfaces.inc>
#define RAVO_CLASS_IDENTIFIER(module, name, identifier, what) #name,
#include <ravo/catalogue/class_identifiers.inc>
#undef RAVO_CLASS_IDENTIFIER
};

static const char* const kStrings[] = {
#define RAVO_STRING(name, id, text) #name,
#include <ravo/catalogue/captions.inc>
#include <ravo/sysinfo/captions.inc>
#include <ravo/unicode/messages.inc>
#include <ravo/utils/messages.inc>
#undef RAVO_STRING
};

static void CheckGuid(void* library, const char* name, uint32_t first, uint16_t second, uint16_t third,
                      const char* rest) {
  const RavoGuid* const guid = HostSymbol(library, name);
  Expect(guid && guid->Data1 == first && guid->Data2 == second && guid->Data3 == third, name);
  Expect(memcmp(guid->Data4, rest, sizeof guid->Data4) == 0, name);
}

static void CheckGuids(void* library) {
  size_t i;
  Expect(sizeof(RavoGuid) == 16, "an identifier has 16 bytes");
  Expect(sizeof kGuids / sizeof kGuids[0] == 3 + 59 + 10 + 12, "84 identifiers");
  for (i = 0; i < sizeof kGuids / sizeof kGuids[0]; ++i)
    Expect(HostSymbol(library, kGuids[i]) != NULL, kGuids[i]);
  CheckGuid(library, "LIBID_RavoManager", 0x7CAEF350, 0x8153, 0x11D3, "\x83\x8D\x00\x00\xE8\x7D\xD3\xE0");
  CheckGuid(library, "IID_IRavoProfile", 0x7CAEF352, 0x8153, 0x11D3, "\x83\x8D\x00\x00\xE8\x7D\xD3\xE0");
  CheckGuid(library, "IID_IRavoBox", 0xD40C1C3C, 0x4458, 0x4AE1, "\xAE\x77\xE0\x10\xC6\x3D\xD3\x28");
  CheckGuid(library, "CLASS_RavoZipper", 0x2FE78C5D, 0x7DB0, 0x46C4, "\x95\x12\xDA\xAC\xCF\x23\xEB\xCE");
  CheckGuid(library, "sClassFactoryBoxGUID", 0xE7B4E0F7, 0xA185, 0x46FC, "\x9A\x0F\x47\xF7\x3A\xD1\x8B\x79");
  CheckGuid(library, "sCLASS_RavoBusinessDenikBatch", 0xAD493EBB, 0xBB67, 0x407E,
            "\xB2\x96\xFA\x78\x05\xDD\x7F\xE8");
}

static RavoTextReader TextReader(void* library) { return (RavoTextReader)Procedure(library, "RavoReadText"); }

/* Whether the text that is in force under `name` consists of the characters of `ascii`. */
static int TextNow(void* library, const char* name, const char* ascii) {
  uint16_t copy[80] = {0};
  int32_t length = -1;
  const uint16_t* const text = TextReader(library)(HostSymbol(library, name), &length);
  Expect(text != NULL && length >= 0 && length < 79, name);
  memcpy(copy, text, (size_t)length * sizeof *text);
  return SameText(copy, ascii);
}

static void CheckString(void* library, const RavoModule* module, const char* name, int id,
                        const char* ascii) {
  const RavoResourceString* const string = HostSymbol(library, name);
  Expect(string && *string->Module == module->Instance && string->Id == id, name);
  Expect(SameText(string->Text, ascii), name);
  Expect(TextNow(library, name, ascii), name);
}

static void CheckStrings(void* library, const RavoModule* module) {
  size_t i;
  for (i = 0; i < sizeof kStrings / sizeof kStrings[0]; ++i) {
    Expect(HostSymbol(library, kStrings[i]) != NULL, kStrings[i]);
  }
  CheckString(library, module, "rPropertyTypOperaceFaktura", 65485, "&Faktura");
  CheckString(library, module, "rPropertyPrenesenoNe", 65430, "Ne");
  CheckString(library, module, "_rSystemSystemProductID", 65506, "Product ID");
  CheckString(library, module, "SNoDataError", 65434, "Data is not assigned");
  CheckString(library, module, "SStreamNilError", 65439, "Stream is nil");
}

static void OneRound(const char* file, const char* language_file) {
  void* const library = HostLoad(file);
  const RavoPackageInfoTable* table;
  Expect(library != NULL, "the library loads");
  table = Table(library);
  CheckSlots(library, table);
  CheckNames(table);
  CheckModule(table->Module);
  CheckGuids(library);
  CheckStrings(library, table->Module);
  HostCheckFile(library, file, table->Description);
  StartAndStop(library);
  StartAndStopBySlots(table);

  table->Module->ResInstance = HostLoadLanguage(language_file);
  Expect(table->Module->ResInstance != NULL, "the language module loads");
  HostCheckTexts(library, table->Module->ResInstance);
  Expect(TextNow(library, "rPropertyTypOperaceFaktura", "&Invoice"), "an attached module's text is in force");
  HostUnload(library);
  Expect(!HostIsLoaded(file), "the library is unloaded");
  Expect(!HostIsLoaded(language_file), "the library unloaded its language module");
}

int main(int argc, char** argv) {
  int round;
  Expect(argc == 3, "usage: package_host LIBRARY LANGUAGE-MODULE");
  for (round = 0; round < 3; ++round) OneRound(argv[1], argv[2]);
  puts("package_host: all as the headers say");
  return 0;
}
