#pragma once

// The package description except its lists. C++, the resource compiler and the type library compiler read
// it, so it has plain definitions only.

#define RAVO_DESCRIPTION_TEXT "RavoInterface"
#define RAVO_TYPE_LIBRARY_NAME "RavoInterface"
#define RAVO_TYPE_LIBRARY_HELP "RavoInterface Library"
#define RAVO_TYPE_LIBRARY_LOCALE 0x0409

// The language and the code page of the version record's strings: Czech, Unicode.
#define RAVO_VERSION_LANGUAGE 0x0405
#define RAVO_VERSION_CODE_PAGE 1200
// Both in hexadecimal: the name of the version record's string table.
#define RAVO_VERSION_TABLE "040504B0"
