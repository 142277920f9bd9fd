#pragma once

#include <ravo/catalogue/modules/dcf_constants.h>
