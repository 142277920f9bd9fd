/* A host that knows nothing of the library but ravo/package.h: it loads the library at run time, walks the
 * module table, starts and stops, attaches a language module, unloads, and does it all again.
 * usage: package_host LIBRARY LANGUAGE-MODULE */
#include "host.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const char* const kContained[] = {"RavoInterface",
                                         "DISystemCompat",
                                         "SysInit",
                                         "DIUnicodeConsts",
                                         "RavoBoxConstants",
                                         "RavoInterfaceConstants",
                                         "RavoSkladConstants",
                                         "RavoFileCommon",
                                         "DIUnicode",
                                         "DIConsts",
                                         "DIUtils",
                                         "DITypes",
                                         "RavoZip_TLB",
                                         "ECXMLTokenizer",
                                         "ECXMLParser",
                                         "RavoRSSConstants",
                                         "RavoDCFConstants",
                                         "RavoInterfaceResources",
                                         "RavoMzdaConstants",
                                         "RavoInterfaceInfo",
                                         "RavoInterfaceCommon",
                                         "RavoMajetekConstants",
                                         "RavoKancelarConstants",
                                         "RavoUcetnictviConstants",
                                         "RavoBaseConstants",
                                         "RavoProfileConstants",
                                         "RavoManager_TLB",
                                         "RavoProfileInfo_TLB"};

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

static void OneRound(const char* file, const char* language_file) {
  void* const library = HostLoad(file);
  const RavoPackageInfoTable* table;
  Expect(library != NULL, "the library loads");
  table = Table(library);
  CheckSlots(library, table);
  CheckNames(table);
  CheckModule(table->Module);
  HostCheckFile(library, file, table->Description);
  StartAndStop(library);
  StartAndStopBySlots(table);

  table->Module->ResInstance = HostLoadLanguage(language_file);
  Expect(table->Module->ResInstance != NULL, "the language module loads");
  HostCheckTexts(library, table->Module->ResInstance);
  HostUnload(library);
  Expect(!HostIsLoaded(file), "the library is unloaded");
  Expect(!HostIsLoaded(language_file), "the library unloaded its language module");
}

int main(int argc, char** argv) {
  int round;
  Expect(argc == 3, "usage: package_host LIBRARY LANGUAGE-MODULE");
  for (round = 0; round < 3; ++round) OneRound(argv[1], argv[2]);
  puts("package_host: all as ravo/package.h says");
  return 0;
}
