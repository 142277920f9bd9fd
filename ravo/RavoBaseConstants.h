#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/base_constants.h>
