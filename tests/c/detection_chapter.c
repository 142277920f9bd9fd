#include "chapters.h"
#include "expect.h"

static const char* name_of(ravo_encoding encoding) {
  ravo_encoding_info info = RAVO_ENCODING_INFO_INIT;
  EXPECT(ravo_encoding_at(encoding, &info, NULL) == RAVO_OK);
  return info.name;
}

/* `candidates` are their names, each with a blank behind it. */
static void expect_detected(const char* bytes, size_t length, uint32_t flags, ravo_evidence evidence,
                            const char* candidates) {
  ravo_detection detection = RAVO_DETECTION_INIT;
  char names[256] = "";
  ravo_encoding encoding = -1;
  size_t index = 0;
  EXPECT(ravo_encoding_detect(bytes, length, flags, &detection, NULL) == RAVO_OK);
  EXPECT(detection.evidence == evidence);
  EXPECT(detection.is_sure == (evidence <= RAVO_EVIDENCE_CZECH));
  for (; ravo_encoding_candidate_at(bytes, length, flags, index, &encoding, NULL) == RAVO_OK; ++index) {
    if (index == 0) EXPECT(encoding == detection.encoding);
    strcat(strcat(names, name_of(encoding)), " ");
  }
  EXPECT(index == detection.candidates);
  if (strcmp(names, candidates) != 0) printf("%s\n", names);
  EXPECT_TEXT(names, candidates);
}

static void is_sure(void) {
  expect_detected(NULL, 0, 0, RAVO_EVIDENCE_ASCII, "UTF_8 ");
  expect_detected(TEXT("Ucet;Castka\r\n"), 0, RAVO_EVIDENCE_ASCII, "UTF_8 ");
  expect_detected(TEXT("\xEF\xBB\xBF"), 0, RAVO_EVIDENCE_MARK, "UTF_8 ");
  expect_detected(TEXT("\xFE\xFF\0\xE1"), 0, RAVO_EVIDENCE_MARK, "UTF_16_BE ");
  expect_detected(TEXT("a\0b\0c"), 0, RAVO_EVIDENCE_ZEROS, "UTF_16_LE ");
  expect_detected(TEXT("Příliš žluťou\xC4"), 0, RAVO_EVIDENCE_UTF8, "UTF_8 ");
  expect_detected(TEXT("P\xF8\xEDli\x9A \x9Elu\x9Dou\xE8k\xFD k\xF9\xF2"), 0, RAVO_EVIDENCE_CZECH,
                  "Windows_1250 ");
  expect_detected(TEXT("P\xF8\xEDli\xB9 \xBElu\xBBou\xE8k\xFD k\xF9\xF2"), 0, RAVO_EVIDENCE_CZECH,
                  "Iso_8859_2 ");
  expect_detected(TEXT("P\xFD\xA1li\xE7 \xA7lu\x9Cou\x9Fk\xEC k\x85\xE5"), 0, RAVO_EVIDENCE_CZECH, "CP_852 ");
}

static void has_doubts(void) {
  expect_detected(TEXT("Кто"), 0, RAVO_EVIDENCE_CLOSE, "UTF_8 CP_852 ");
  expect_detected(TEXT("Dobr\xFD den"), 0, RAVO_EVIDENCE_ALIKE, "Windows_1250 Iso_8859_2 CP_852 ");
  expect_detected(TEXT("\x81\x83\x88\x90\x98"), 0, RAVO_EVIDENCE_FOREIGN, "CP_852 Windows_1250 Iso_8859_2 ");
  expect_detected(TEXT("\x7F\x45LF\0\0\0\1\2\3\4\0"), 0, RAVO_EVIDENCE_BINARY, "Windows_1250 ");
}

/* "Příliš žluťoučký kůň" in Mac Central European. */
static void knows_the_macintosh_on_request(void) {
  static const char text[] = "P\xDE\x92li\xE4 \xEClu\xE9ou\x8Bk\xF9 k\xF3\xCB";
  ravo_detection detection = RAVO_DETECTION_INIT;
  expect_detected(TEXT(text), RAVO_DETECT_MAC, RAVO_EVIDENCE_CZECH, "Mac_CentralEurope ");
  EXPECT(ravo_encoding_detect(TEXT(text), RAVO_DETECT_PLAIN, &detection, NULL) == RAVO_OK);
  EXPECT(strncmp(name_of(detection.encoding), "Mac", 3) != 0);
}

void test_detection(void) {
  is_sure();
  has_doubts();
  knows_the_macintosh_on_request();
}
