// A process ends while its threads read texts, and always terminates. The program runs itself as a child many
// times, because only some ends coincide with a thread at the wrong moment.
//
// usage: process_end_test PROGRAM LANGUAGE-MODULE
#include "child_process.h"
#include <ravo/frame/module_record.h>
#include <ravo/frame/resource_string.h>
#include <ravo/runtime/text.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>

namespace {

constexpr int kRuns = 100;
constexpr int kThreads = 2;
// Allocates nothing in either language: a thread that ends inside the heap leaves it locked under Wine, and
// the compiler's run-time library frees memory when its modules are unloaded.
constexpr ravo::ResourceString kZeroRate{65481, u"&Nulová"};
// The argument of a child that reads the library's own texts.
constexpr std::string_view kNoLanguage = "-";

std::atomic<int> reading{0};

[[noreturn]] void ReadForEver() {
  for (bool is_first = true;; is_first = false) {
    if (kZeroRate.Text().front() != u'&') std::abort();
    if (is_first) ++reading;
  }
}

[[noreturn]] void EndWhileTextsAreRead(std::string_view language) {
  if (language != kNoLanguage && !ravo::AttachResourceModule(ravo::FromUtf8(language))) std::exit(1);
  for (int i = 0; i < kThreads; ++i) std::thread(ReadForEver).detach();
  ravo::test::LingerAtTheEnd();
  while (reading < kThreads) std::this_thread::yield();
  std::exit(0);
}

int EndManyTimes(const std::string& program, const std::string& language) {
  for (int run = 0; run < kRuns; ++run) {
    const auto end = ravo::test::RunChild(program, run % 2 == 0 ? std::string(kNoLanguage) : language);
    if (end == ravo::test::ChildEnd::Success) continue;
    std::fprintf(stderr, "process_end_test: run %d %s\n", run + 1,
                 end == ravo::test::ChildEnd::Hang ? "never ended" : "failed");
    return 1;
  }
  std::printf("process_end_test: %d processes ended\n", kRuns);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2) EndWhileTextsAreRead(argv[1]);
  if (argc != 3) std::fputs("usage: process_end_test PROGRAM LANGUAGE-MODULE\n", stderr);
  return argc == 3 ? EndManyTimes(argv[1], argv[2]) : 2;
}
