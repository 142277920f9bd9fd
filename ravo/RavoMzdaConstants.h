#pragma once

#include <ravo/catalogue/modules/mzda_constants.h>
