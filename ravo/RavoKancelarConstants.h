#pragma once

/// The data tables of one module of the suite: their descriptions, and the class identifiers of the module.
#include <ravo/runtime/language.h>

#include <ravo/catalogue/module_tables.h>
