#pragma once

/// The character database: categories, kinds, mappings and decompositions of one UTF-16 unit.
#include <ravo/unicode/characters/categories.h>
#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/unicode/characters/decompositions.h>
#include <ravo/unicode/characters/mappings.h>
