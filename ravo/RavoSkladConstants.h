#pragma once

#include <ravo/catalogue/modules/sklad_constants.h>
