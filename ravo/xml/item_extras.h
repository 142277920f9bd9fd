#pragma once

#include <ravo/runtime/string_list.h>

#include <memory>
#include <string>

namespace ravo::xml {

class CodePage;
class ItemPool;

/// The pool of an item, and content that few items have. All other items of a pool share one without content.
struct ItemExtras {
  ItemPool* pool = nullptr;
  const CodePage* page = nullptr;          ///< the code page of the pool
  bool is_common = false;                  ///< the ones that items share
  void* data = nullptr;                    ///< the caller's
  std::u16string name;                     ///< a name that the code page lacks, or empty
  std::u16string text;                     ///< a text that the code page lacks, or empty
  std::unique_ptr<StringList> attributes;  ///< attributes that are edited as a list or that bytes cannot hold
};

}  // namespace ravo::xml
