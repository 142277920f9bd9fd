#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/dcf_constants.h>
