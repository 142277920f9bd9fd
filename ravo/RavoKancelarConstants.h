#pragma once

#include <ravo/catalogue/modules/kancelar_constants.h>
