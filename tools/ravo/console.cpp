#include "console.h"

#include "printable.h"

namespace tool {

bool Write(Channel channel, std::string_view utf8) {
  return IsTerminal(channel) ? WriteWithCodes(channel, Printable(utf8)) : WriteWithCodes(channel, utf8);
}

}  // namespace tool
