#include "counted_object.h"
#include "servers/served_calls.h"
#include "servers/served_objects.h"
#include "support/component_runtime.h"
#include <ravo/RavoProfileInfo_TLB.h>
#include <ravo/RavoZip_TLB.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

// Classes that this process registers, on the real machine: on Windows in the platform's component runtime,
// elsewhere in the library's own registry.
namespace ravo {
namespace {

using RavoZip_TLB::CLASS_RavoZipper;
using RavoZip_TLB::CoRavoZipper;
using RavoZip_TLB::IRavoZip;
using test::CountedObject;
using test::Counts;

class RegisteredClasses : public testing::Test {
 protected:
  static ComponentFactory Zipper(Counts& counts) {
    return [&counts] { return MakeComponent<CountedObject<IRavoZip>>(counts); };
  }

  static ComponentFactory Refusing(Counts& counts) {
    return [&counts] { return MakeComponent<test::RefusingObject>(counts); };
  }

  // Returns the code that a creation throws.
  template <class Creation>
  static ResultCode CodeOf(Creation creation) {
    try {
      static_cast<void>(creation());
    } catch (const ComponentError& error) {
      EXPECT_FALSE(error.Message().empty());
      return error.Code();
    }
    return result_code::kOk;
  }

  test::ComponentRuntime runtime_;
  Counts counts_;
};

TEST_F(RegisteredClasses, AreCreated) {
  const RegisteredClass zipper(CLASS_RavoZipper, Zipper(counts_));
  {
    const ComponentPtr<IRavoZip> first = CoRavoZipper::Create();
    const ComponentPtr<IRavoZip> second = CoRavoZipper::Create();
    ASSERT_TRUE(first && second);
    EXPECT_NE(first.Get(), second.Get());
    EXPECT_EQ(counts_.objects, 2);
    EXPECT_EQ(counts_.references, 2);
  }
  EXPECT_EQ(counts_.objects, 0);
  EXPECT_EQ(counts_.references, 0);
}

// The same calls as to servers outside this program.
TEST_F(RegisteredClasses, AnswerCalls) {
  const RegisteredClass zipper(CLASS_RavoZipper, [this] { return MakeComponent<test::ZipObject>(counts_); });
  const RegisteredClass information(RavoProfileInfo_TLB::CLASS_RavoProfileInformation,
                                    [this] { return MakeComponent<test::ProfileInfoObject>(counts_); });
  test::ExpectZip(CoRavoZipper::Create());
  test::ExpectProfileInfo(RavoProfileInfo_TLB::CoRavoProfileInformation::Create());
  EXPECT_EQ(counts_.objects, 0);
  EXPECT_EQ(counts_.references, 0);
}

TEST_F(RegisteredClasses, AreThereAsLongAsTheirObject) {
  EXPECT_EQ(CodeOf(CoRavoZipper::Create), result_code::kClassNotRegistered);
  ComponentPtr<IRavoZip> survivor;
  {
    const RegisteredClass zipper(CLASS_RavoZipper, Zipper(counts_));
    survivor = CoRavoZipper::Create();
  }
  EXPECT_EQ(CodeOf(CoRavoZipper::Create), result_code::kClassNotRegistered);
  EXPECT_EQ(counts_.references, 1);
  survivor = nullptr;
  EXPECT_EQ(counts_.objects, 0);
}

TEST_F(RegisteredClasses, DoNotStandForEachOther) {
  const RegisteredClass zipper(CLASS_RavoZipper, Zipper(counts_));
  EXPECT_EQ(CodeOf(RavoProfileInfo_TLB::CoRavoProfileInformation::Create), result_code::kClassNotRegistered);
}

TEST_F(RegisteredClasses, ThatLackTheInterfaceAreReleased) {
  const RegisteredClass zipper(CLASS_RavoZipper, Refusing(counts_));
  EXPECT_EQ(CodeOf(CoRavoZipper::Create), result_code::kNoInterface);
  EXPECT_EQ(counts_.objects, 0);
  EXPECT_EQ(counts_.references, 0);
}

TEST_F(RegisteredClasses, WhoseFactoryFailsDoNotStart) {
  {
    const RegisteredClass null(CLASS_RavoZipper, [] { return ComponentPtr<IUnknown>(); });
    EXPECT_EQ(CodeOf(CoRavoZipper::Create), result_code::kServerFailed);
  }
  {
    const RegisteredClass empty(CLASS_RavoZipper, ComponentFactory());
    EXPECT_EQ(CodeOf(CoRavoZipper::Create), result_code::kServerFailed);
  }
  const RegisteredClass raising(CLASS_RavoZipper,
                                []() -> ComponentPtr<IUnknown> { throw std::runtime_error("out of paper"); });
  EXPECT_EQ(CodeOf(CoRavoZipper::Create), result_code::kServerFailed);
}

TEST_F(RegisteredClasses, PassOnTheCodeThatTheirFactoryRaises) {
  const RegisteredClass zipper(CLASS_RavoZipper, []() -> ComponentPtr<IUnknown> {
    throw ComponentError(result_code::kOutOfMemory, u"no more");
  });
  EXPECT_EQ(CodeOf(CoRavoZipper::Create), result_code::kOutOfMemory);
}

// A factory may call the creators itself.
TEST_F(RegisteredClasses, MayBeMadeFromOneAnother) {
  const RegisteredClass zipper(CLASS_RavoZipper, Zipper(counts_));
  Counts own;
  const RegisteredClass information(RavoProfileInfo_TLB::CLASS_RavoProfileInformation, [&own] {
    EXPECT_TRUE(CoRavoZipper::Create());
    return MakeComponent<CountedObject<RavoProfileInfo_TLB::IRavoProfileInfo>>(own);
  });
  EXPECT_TRUE(RavoProfileInfo_TLB::CoRavoProfileInformation::Create());
  EXPECT_EQ(own.objects + counts_.objects, 0);
}

TEST_F(RegisteredClasses, ServeSeveralThreadsAtOnce) {
  constexpr int kThreads = 8;
  constexpr int kRounds = 200;
  std::atomic<int> created{0};
  const RegisteredClass zipper(CLASS_RavoZipper, Zipper(counts_));
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&created] {
      const test::ComponentRuntime runtime;
      for (int round = 0; round < kRounds; ++round) created += CoRavoZipper::Create() ? 1 : 0;
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(created, kThreads * kRounds);
  EXPECT_EQ(counts_.objects, 0);
  EXPECT_EQ(counts_.references, 0);
}

// Classes are registered and removed while other threads create objects: each creation returns an object or
// fails because the class is not registered.
TEST_F(RegisteredClasses, MayGoWhileOthersCreateThem) {
  constexpr int kThreads = 4;
  std::atomic<bool> is_over{false};
  std::atomic<int> odd_answers{0};
  std::atomic<int> running{0};
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      const test::ComponentRuntime runtime;
      ++running;
      while (!is_over) {
        const ResultCode code = CodeOf(CoRavoZipper::Create);
        if (code != result_code::kOk && code != result_code::kClassNotRegistered) ++odd_answers;
      }
    });
  }
  // Not std::latch: on Windows, that of GCC 12 may sleep through its end.
  while (running < kThreads) std::this_thread::yield();
  for (int round = 0; round < 100; ++round) {
    const RegisteredClass zipper(CLASS_RavoZipper, Zipper(counts_));
    EXPECT_TRUE(CoRavoZipper::Create());
    std::this_thread::yield();
  }
  is_over = true;
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(odd_answers, 0);
  EXPECT_EQ(counts_.objects, 0);
  EXPECT_EQ(counts_.references, 0);
}

}  // namespace
}  // namespace ravo
