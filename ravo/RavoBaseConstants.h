#pragma once

#include <ravo/catalogue/modules/base_constants.h>
