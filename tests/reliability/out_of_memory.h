#pragma once

#include "failing_memory.h"
#include "support/tried.h"

#include <functional>
#include <new>
#include <string>

#include <gtest/gtest.h>

namespace ravo::test {

/// The outcome of an operation that was tried with memory for more and more allocations.
struct Scarcity {
  std::int64_t failures = 0;  ///< attempts in which an allocation failed
  std::int64_t leaked = 0;    ///< blocks that an attempt did not give back
  bool succeeded = false;     ///< whether it completed with enough memory
};

/// Tries an operation with memory for 0, 1, 2 ... requests until none fails. Nothing but `std::bad_alloc` may
/// be thrown, and nothing may leak.
template <class Operation>
Scarcity TryWithScarceMemory(const Operation& operation) {
  constexpr std::int64_t kMostRequests = 100'000;
  // Creates whatever is created only once.
  operation();
  Scarcity result;
  for (std::int64_t requests = 0; requests < kMostRequests && !result.succeeded; ++requests) {
    const std::int64_t before = LiveBlocks();
    {
      const FailingMemory memory(requests);
      try {
        operation();
        // An operation may complete despite a failure that it tolerates.
      } catch (const std::bad_alloc&) {
        static_cast<void>(memory.HasFailed());
      }
      result.succeeded = !memory.HasFailed();
    }
    if (!result.succeeded) ++result.failures;
    result.leaked += LiveBlocks() - before;
  }
  return result;
}

template <class Operation>
void ExpectSurvivesScarceMemory(const Operation& operation) {
  const Scarcity result = TryWithScarceMemory(operation);
  EXPECT_TRUE(result.succeeded);
  EXPECT_GT(result.failures, 0) << "nothing was asked for";
  EXPECT_EQ(result.leaked, 0);
  Tried("requests_for_memory_that_failed", result.failures);
}

}  // namespace ravo::test
