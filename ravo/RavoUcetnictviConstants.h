#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/ucetnictvi_constants.h>
