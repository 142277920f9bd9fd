// Processes forked while other threads read texts, changed the list of modules and created documents can do
// so too. usage: fork_test LANGUAGE-MODULE
#include <ravo/ECXMLParser.h>
#include <ravo/frame/module_record.h>
#include <ravo/frame/resource_string.h>
#include <ravo/runtime/text.h>

#include <atomic>
#include <cstdio>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kForks = 150;
// The system kills a child that hangs, which fails the test.
constexpr unsigned kSeconds = 30;
constexpr ravo::ResourceString kInvoice{65485, u"&Faktura"};

std::atomic<bool> is_over{false};

// Returns whether a module can be added to the list and removed.
bool ListsAModule() {
  int place = 0;
  RavoModule module{nullptr, &place, nullptr, nullptr, &place};
  ravo::RegisterModule(module);
  const bool is_found = ravo::FindModule(&place) == &module;
  ravo::UnregisterModule(module);
  return is_found && !ravo::FindModule(&place);
}

void Read() {
  while (!is_over) static_cast<void>(kInvoice.Text());
}

void Change() {
  while (!is_over) ListsAModule();
}

// Returns whether an item keeps a text, which it stores in the current code page.
bool MakesADocument() {
  ravo::ECXMLParser::TXMLItem item;
  item.SetText(u"Účet");
  return item.Text() == u"Účet";
}

void MakeDocuments() {
  while (!is_over) MakesADocument();
}

bool ChildWorks(std::u16string_view expected) {
  const pid_t child = fork();
  if (child == 0) {
    alarm(kSeconds);
    _exit(kInvoice.Text() == expected && ListsAModule() && MakesADocument() ? 0 : 1);
  }
  int status = 1;
  return child > 0 && waitpid(child, &status, 0) == child && status == 0;
}

bool ChildrenWork(const char* what, std::u16string_view expected) {
  for (int i = 0; i < kForks; ++i) {
    if (ChildWorks(expected)) continue;
    std::fprintf(stderr, "fork_test: child %d %s fails or hangs\n", i + 1, what);
    return false;
  }
  return true;
}

template <typename Check>
bool WhileThreadsWork(Check check) {
  is_over = false;
  std::thread threads[] = {std::thread(Read), std::thread(Change), std::thread(MakeDocuments)};
  const bool result = check();
  is_over = true;
  for (std::thread& thread : threads) thread.join();
  return result;
}

bool WithAndWithoutLanguage(const std::u16string& language) {
  return WhileThreadsWork([] { return ChildrenWork("with the library's own texts", u"&Faktura"); }) &&
         ravo::AttachResourceModule(language) &&
         WhileThreadsWork([] { return ChildrenWork("with a language module", u"&Invoice"); });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 || !WithAndWithoutLanguage(ravo::FromUtf8(argv[1]))) return 1;
  std::printf("fork_test: %d children worked\n", 2 * kForks);
  return 0;
}
