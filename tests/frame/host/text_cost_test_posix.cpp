// A text look-up takes no lock and does not call the dynamic loader while no language module is attached: the
// system functions involved are counted.
#include <ravo/frame/module_record.h>
#include <ravo/frame/resource_string.h>

#include <atomic>
#include <cstdio>

#include <dlfcn.h>
#include <pthread.h>

namespace {

constexpr ravo::ResourceString kInvoice{65485, u"&Faktura"};

std::atomic<int> calls{0};

template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// These definitions take precedence over the system's, also for the library.
extern "C" [[gnu::visibility("default")]] int dladdr(const void* address, Dl_info* facts) noexcept {
  ++calls;
  return Real<int(const void*, Dl_info*)>("dladdr")(address, facts);
}

extern "C" [[gnu::visibility("default")]] int pthread_mutex_lock(pthread_mutex_t* mutex) noexcept {
  ++calls;
  return Real<int(pthread_mutex_t*)>("pthread_mutex_lock")(mutex);
}

int main() {
  Dl_info facts{};
  pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
  calls = 0;
  const bool is_counted = dladdr(&calls, &facts) != 0 && pthread_mutex_lock(&mutex) == 0 && calls == 2;
  calls = 0;
  const bool is_right = kInvoice.View() == u"&Faktura";
  const int cost = calls;
  if (is_counted && is_right && cost == 0) return std::puts("text_cost_test: nothing is asked") < 0;
  std::fprintf(stderr, "text_cost_test: counted %d, right %d, %d calls\n", is_counted, is_right, cost);
  return 1;
}
