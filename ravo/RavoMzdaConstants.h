#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/mzda_constants.h>
