/* A host in C that is linked to the library and uses its constants by name. */
#include <ravo/constants.h>
#include <ravo/package.h>

#include <stdio.h>
#include <string.h>

static int IsInvoice(const uint16_t* text, int32_t length) {
  static const uint16_t expected[] = {'&', 'F', 'a', 'k', 't', 'u', 'r', 'a'};
  return length == 8 && memcmp(text, expected, sizeof expected) == 0;
}

int main(void) {
  int32_t length = 0;
  const uint16_t* const text = RavoReadText(&rPropertyTypOperaceFaktura, &length);
  const int is_right = IsInvoice(text, length) && IID_IRavoProfile.Data1 == 0x7CAEF352 &&
                       CLASS_RavoZipper.Data4[7] == 0xCE && sClassFactorySkladGUID.Data2 == 0xED38 &&
                       _rSystemSystemProductID.Id == 65506 &&
                       *SNoDataError.Module == GetPackageInfoTable()->Module->Instance;
  puts(is_right ? "linked_host: the constants are there" : "linked_host: a constant is wrong");
  return !is_right;
}
