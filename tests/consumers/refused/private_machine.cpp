// The questions to the operating system are private: a program cannot put a fake under a live suite.
#include <ravo/DIUtils.h>

#ifdef REFUSED
#include <ravo/platform/machine.h>
#endif

int main() { return ravo::DIUtils::TextExtentW(nullptr, u"").width; }
