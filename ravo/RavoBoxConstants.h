#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/box_constants.h>
