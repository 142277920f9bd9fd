#pragma once

#include <ravo/constants.h>
#include <ravo/package.h>

/* What the host needs of the operating system, and the checks that only one system has. */

void* HostLoad(const char* file);
void* HostSymbol(void* library, const char* name);
void HostUnload(void* library);

/* Whether the file is loaded now. */
int HostIsLoaded(const char* file);

/* Loads a language module so that its texts can be read. */
void* HostLoadLanguage(const char* file);

/* Checks the texts under an identifier of the library and of a language module that is attached to it. */
void HostCheckTexts(void* library, void* language);

/* Checks what a host can read of the library's file beside its exports. */
void HostCheckFile(void* library, const char* file, const RavoPackageDescription* description);

/* Ends the program with a message unless `holds`. */
void Expect(int holds, const char* what);

/* Whether a text ended by a zero consists of the characters of `ascii`. */
int SameText(const uint16_t* text, const char* ascii);
