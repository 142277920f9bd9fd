#include "user_language.h"

#include "text.h"

namespace tool {

// The translation of the language's code is the code of the language that it is translated to.
ravo::czech::Language UserLanguage() {
  return Text("en") == "cs" ? ravo::czech::Language::Czech : ravo::czech::Language::English;
}

}  // namespace tool
