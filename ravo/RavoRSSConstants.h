#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/modules/rss_constants.h>
