#pragma once

/// XML documents as a tree of items.
#include <ravo/runtime/language.h>

#include <ravo/xml/document.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/item.h>
