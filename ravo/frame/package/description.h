#pragma once

// What the package says of itself beside its lists; read by C++, the resource compiler and the type library
// compiler, so only plain definitions stand here.

#define RAVO_DESCRIPTION_TEXT "RavoInterface"
#define RAVO_TYPE_LIBRARY_NAME "RavoInterface"
#define RAVO_TYPE_LIBRARY_HELP "RavoInterface Library"
#define RAVO_TYPE_LIBRARY_LOCALE 0x0409

// The language and the code page under which the version record keeps its strings: Czech, Unicode.
#define RAVO_VERSION_LANGUAGE 0x0405
#define RAVO_VERSION_CODE_PAGE 1200
// Both in hexadecimal: the name of the string table of the version record.
#define RAVO_VERSION_TABLE "040504B0"
