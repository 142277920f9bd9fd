#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/profile_constants.h>
