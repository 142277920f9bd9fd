#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/majetek_constants.h>
