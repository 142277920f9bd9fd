#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/kancelar_constants.h>
