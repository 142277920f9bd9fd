#pragma once

#include <ravo/catalogue/captions.h>
