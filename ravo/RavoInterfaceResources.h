#pragma once

#include <ravo/runtime/language.h>

#include <ravo/catalogue/captions.h>
