// Captions of the shared library before, during and after the attachment of a language module. The texts here
// are only fallbacks of the identifiers.
#include <ravo/frame/module_record.h>
#include <ravo/frame/resource_string.h>
#include <ravo/runtime/text.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr ravo::ResourceString kInvoice{65485, u"&Faktura"};
constexpr ravo::ResourceString kUpwards{65426, u"A&bsolutní příplatek"};

void Expect(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "language_test: not so: %s\n", what);
  std::exit(1);
}

void ExpectCzech(const char* when) {
  Expect(kInvoice.View() == u"&Faktura" && kUpwards.View() == u"A&bsolutní příplatek", when);
}

void ExpectEnglish() {
  Expect(kInvoice.View() == u"&Invoice", "the caption is English while the module is attached");
  Expect(ravo::PlainCaption(kInvoice.View()) == u"Invoice", "and is plain without its accelerator");
  Expect(kUpwards.View() == u"A&bsolutní příplatek", "what the module lacks stays Czech");
}

}  // namespace

int main(int argc, char** argv) {
  Expect(argc == 2, "usage: language_test LANGUAGE-MODULE");
  const std::u16string file = ravo::FromUtf8(argv[1]);
  RavoModule& module = *GetPackageInfoTable()->Module;
  Expect(ravo::FindModule(module.Instance) == &module, "the library's record is in the module list");
  ExpectCzech("the captions are Czech at first");
  Expect(!ravo::AttachResourceModule(u"./no-such-module"), "a missing module is refused");
  ExpectCzech("a missing module changes nothing");
  for (int round = 0; round < 2; ++round) {
    Expect(ravo::AttachResourceModule(file), "the language module is attached");
    ExpectEnglish();
    ravo::DetachResourceModule();
    ExpectCzech("the captions are Czech again");
  }
  // Left attached: the library releases it when the program ends.
  Expect(ravo::AttachResourceModule(file), "the language module is attached at last");
  ExpectEnglish();
  std::puts("language_test: captions follow the attached module");
}
