#pragma once

#include <ravo/catalogue/modules/profile_constants.h>
