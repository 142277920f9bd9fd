#pragma once

#include <ravo/catalogue/modules/ucetnictvi_constants.h>
