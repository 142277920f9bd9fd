#pragma once

#include <ravo/catalogue/modules/majetek_constants.h>
