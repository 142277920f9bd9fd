#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/module_tables.h>
