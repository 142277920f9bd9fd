#pragma once

#include <ravo/catalogue/modules/box_constants.h>
