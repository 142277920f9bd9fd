#pragma once

#include <string>

/// Programs that a test starts beside itself.
namespace ravo::test {

enum class ChildEnd { Success, Failure, Hang };

/// Runs a program with one argument and waits for its end, which is `Hang` where that does not come: the
/// child is ended then. The wait is long enough for any machine.
ChildEnd RunChild(const std::string& program, const std::string& argument);

/// Has the end of this process take a moment longer after the libraries had theirs; nothing where the other
/// threads are gone by then.
void LingerAtTheEnd();

}  // namespace ravo::test
