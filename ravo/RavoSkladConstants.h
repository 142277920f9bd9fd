#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/sklad_constants.h>
