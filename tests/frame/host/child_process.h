#pragma once

#include <string>

/// Child processes of a test.
namespace ravo::test {

enum class ChildEnd { Success, Failure, Hang };

/// Runs a program with one argument and waits for its end; kills it and returns `Hang` if it does not end.
/// The time limit is generous for any machine.
ChildEnd RunChild(const std::string& program, const std::string& argument);

/// Delays the end of this process after the libraries have ended; does nothing if the other threads have
/// ended by then.
void LingerAtTheEnd();

}  // namespace ravo::test
