#pragma once

#include <ravo/catalogue/modules/rss_constants.h>
