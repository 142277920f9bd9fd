#include "chapters.h"
#include "expect.h"
#include "memory.h"

#include <stdlib.h>

/* A document in Windows-1250 with everything that an edit must keep. */
static const char ledger[] =
    "<?xml version='1.0' encoding=\"windows-1250\" ?>\r\n"
    "<!DOCTYPE Denik [<!ENTITY firma \"Pap\xEDrna\">]>\r\n"
    "<Denik  Rok = '2026'\tStav=\"\">\r\n"
    "  <!-- Z\xE1pis -->\r\n"
    "  <Zapis Cislo=\"1\"><Popis>N\xE1jem &amp; slu\x9E"
    "by</Popis><Pozn/><Kdo>&firma;</Kdo></Zapis>\r\n"
    "  <Zapis Cislo=\"2\"><Popis><![CDATA[a<b]]></Popis><Pozn></Pozn></Zapis>\r\n"
    "</Denik>\r\n";

static ravo_document* opened_bytes(const void* bytes, size_t length) {
  ravo_document* document = NULL;
  EXPECT(ravo_document_open(bytes, length, &document, NULL) == RAVO_OK);
  return document;
}

static void expect_bytes(const ravo_document* document, const void* bytes, size_t length, int line) {
  char buffer[2048];
  size_t found = 0;
  if (ravo_document_save(document, buffer, sizeof buffer, &found, NULL) == RAVO_OK && found == length &&
      memcmp(buffer, bytes, length) == 0)
    return;
  printf("%s:%d: other bytes\n", __FILE__, line);
  ++failures;
}
#define EXPECT_BYTES(document, literal) expect_bytes((document), (literal), sizeof(literal) - 1, __LINE__)

static void expect_value(const ravo_document* document, const char* path, const char* expected, int line) {
  char buffer[256];
  if (ravo_document_get(document, path, RAVO_NUL_TERMINATED, 0, buffer, sizeof buffer, NULL, NULL) ==
          RAVO_OK &&
      strcmp(buffer, expected) == 0)
    return;
  printf("%s:%d: %s is not %s\n", __FILE__, line, path, expected);
  ++failures;
}
#define EXPECT_VALUE(document, path, expected) expect_value((document), (path), (expected), __LINE__)

static ravo_document_change change(const char* path, const char* value) {
  ravo_document_change made;
  made.path = path;
  made.path_length = RAVO_NUL_TERMINATED;
  made.value = value;
  made.value_length = RAVO_NUL_TERMINATED;
  return made;
}

static ravo_status set(ravo_document* document, const char* path, const char* value, uint32_t flags) {
  const ravo_document_change one = change(path, value);
  return ravo_document_set(document, &one, 1, flags, NULL);
}

static void values_are_read(void) {
  ravo_document* document = opened_bytes(TEXT(ledger));
  char buffer[64];
  size_t length = 0;
  ravo_encoding encoding = -1;
  ravo_encoding wanted = -2;
  EXPECT_VALUE(document, "Denik/@Rok", "2026");
  EXPECT_VALUE(document, "/denik/ZAPIS[1]/Popis", "Nájem & služby");
  EXPECT_VALUE(document, "Denik/Zapis[2]/Popis", "a<b");
  EXPECT_VALUE(document, "Denik/Zapis/Kdo", "Papírna");
  EXPECT_VALUE(document, "Denik/Zapis/Pozn", "");
  EXPECT_VALUE(document, "Denik/@Stav", "");
  EXPECT(ravo_document_get(document, TEXT("Denik/Zapis/Kdo"), RAVO_DOCUMENT_RAW, buffer, sizeof buffer,
                           &length, NULL) == RAVO_OK);
  EXPECT_TEXT(buffer, "&firma;");
  EXPECT(length == 7);
  EXPECT(ravo_document_get(document, TEXT("Denik/Zapis[3]"), 0, buffer, sizeof buffer, NULL, NULL) ==
         RAVO_UNKNOWN);
  EXPECT(ravo_document_get(document, TEXT("Denik//Zapis"), 0, buffer, sizeof buffer, NULL, NULL) ==
         RAVO_WRONG);
  EXPECT(ravo_document_get(document, TEXT("Denik"), 2, buffer, sizeof buffer, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_document_get(document, TEXT("Denik/@Rok"), 0, buffer, 3, &length, NULL) == RAVO_BUFFER);
  EXPECT_TEXT(buffer, "20");
  EXPECT(length == 4);
  EXPECT(ravo_document_encoding(document, &encoding, NULL) == RAVO_OK);
  EXPECT(ravo_encoding_find(TEXT("windows-1250"), &wanted, NULL) == RAVO_OK && encoding == wanted);
  ravo_document_close(document);
  ravo_document_close(NULL);
}

/* Several values in one call, of each kind, and back again. */
static void values_are_set_and_set_back(void) {
  ravo_document* document = opened_bytes(TEXT(ledger));
  const ravo_document_change changes[] = {change("Denik/Zapis[2]/Popis", "]]> & č"),
                                          change("Denik/@Stav", "\"nový\" & <starý>\n"),
                                          change("Denik/Zapis[1]/Pozn", "1 < 2\nkonec"),
                                          change("Denik/Zapis[2]/Pozn", "x"), change("Denik/@Rok", "'27")};
  const ravo_document_change back[] = {change("Denik/@Rok", "2026"), change("Denik/@Stav", "")};
  EXPECT(ravo_document_set(document, changes, 5, 0, NULL) == RAVO_OK);
  EXPECT_BYTES(
      document,
      "<?xml version='1.0' encoding=\"windows-1250\" ?>\r\n"
      "<!DOCTYPE Denik [<!ENTITY firma \"Pap\xEDrna\">]>\r\n"
      "<Denik  Rok = '&apos;27'\tStav=\"&quot;nov\xFD&quot; &amp; &lt;star\xFD&gt;&#10;\">\r\n"
      "  <!-- Z\xE1pis -->\r\n"
      "  <Zapis Cislo=\"1\"><Popis>N\xE1jem &amp; slu\x9E"
      "by</Popis><Pozn>1 &lt; 2\r\nkonec</Pozn>"
      "<Kdo>&firma;</Kdo></Zapis>\r\n"
      "  <Zapis Cislo=\"2\"><Popis><![CDATA[]]]]><![CDATA[> & \xE8]]></Popis><Pozn>x</Pozn></Zapis>\r\n"
      "</Denik>\r\n");
  EXPECT_VALUE(document, "Denik/Zapis[2]/Popis", "]]> & č");
  EXPECT_VALUE(document, "Denik/@Stav", "\"nový\" & <starý>\n");
  EXPECT_VALUE(document, "Denik/Zapis/Pozn", "1 < 2\nkonec");
  EXPECT(ravo_document_set(document, back, 2, 0, NULL) == RAVO_OK);
  EXPECT(set(document, "Denik/Zapis[2]/Pozn", "", 0) == RAVO_OK);
  EXPECT(set(document, "Denik/Zapis[1]/Pozn", "", 0) == RAVO_OK);
  EXPECT(set(document, "Denik/Zapis[2]/Popis", "<![CDATA[a<b]]>", RAVO_DOCUMENT_RAW) == RAVO_OK);
  /* What was an empty tag stays two tags; all else is as it was. */
  EXPECT_BYTES(document,
               "<?xml version='1.0' encoding=\"windows-1250\" ?>\r\n"
               "<!DOCTYPE Denik [<!ENTITY firma \"Pap\xEDrna\">]>\r\n"
               "<Denik  Rok = '2026'\tStav=\"\">\r\n"
               "  <!-- Z\xE1pis -->\r\n"
               "  <Zapis Cislo=\"1\"><Popis>N\xE1jem &amp; slu\x9E"
               "by</Popis><Pozn></Pozn><Kdo>&firma;</Kdo></Zapis>\r\n"
               "  <Zapis Cislo=\"2\"><Popis><![CDATA[a<b]]></Popis><Pozn></Pozn></Zapis>\r\n"
               "</Denik>\r\n");
  EXPECT(ravo_document_set(document, NULL, 0, 0, NULL) == RAVO_OK);
  ravo_document_close(document);
}

static void the_same_value_changes_nothing(void) {
  ravo_document* document = opened_bytes(TEXT(ledger));
  EXPECT(set(document, "Denik/Zapis/Popis", "Nájem & služby", 0) == RAVO_OK);
  EXPECT(set(document, "Denik/Zapis[2]/Popis", "a<b", 0) == RAVO_OK);
  EXPECT(set(document, "Denik/@Rok", "2026", 0) == RAVO_OK);
  EXPECT_BYTES(document, ledger);
  ravo_document_close(document);
}

static void refused(ravo_document* document, const ravo_document_change* changes, size_t count,
                    uint32_t flags, ravo_status status, const char* message, int line) {
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_status found = ravo_document_set(document, changes, count, flags, &error);
  if (found == status && error.status == status && error.position == count - 1 && error.code == 0 &&
      strcmp(error.message, message) == 0)
    return;
  printf("%s:%d: %d at %u: %s\n", __FILE__, line, found, (unsigned)error.position, error.message);
  ++failures;
}
/* The second of two changes is refused, and the first is not made. */
#define REFUSED_SET(path, value, flags, status, message)             \
  do {                                                               \
    ravo_document_change changes[2];                                 \
    changes[0] = change("Denik/@Rok", "1999");                       \
    changes[1] = change(path, value);                                \
    refused(document, changes, 2, flags, status, message, __LINE__); \
    EXPECT_BYTES(document, ledger);                                  \
  } while (0)

static void all_or_none_are_set(void) {
  ravo_document* document = opened_bytes(TEXT(ledger));
  REFUSED_SET("Denik/Nic", "1", 0, RAVO_UNKNOWN, "there is nothing at 'Denik/Nic'");
  REFUSED_SET("Denik/@Rok", "2", 0, RAVO_WRONG, "'Denik/@Rok' is set twice");
  REFUSED_SET("Denik/Zapis", "1", 0, RAVO_WRONG, "'Denik/Zapis' contains elements");
  REFUSED_SET("Denik/Zapis/Popis", "漢", 0, RAVO_LACKING, "U+6F22 does not exist in Windows-1250");
  REFUSED_SET("Denik/Zapis/Popis", "\x01", 0, RAVO_WRONG, "U+0001 is no character of XML");
  REFUSED_SET("Denik[", "1", 0, RAVO_WRONG, "'Denik[' is not a path; a path looks like Invoice/Line[2]/@ID");
  REFUSED_SET("Denik/Zapis/Popis", "<b>", RAVO_DOCUMENT_RAW, RAVO_WRONG,
              "the value of 'Denik/Zapis/Popis' is not valid XML there: 'b' is not closed");
  REFUSED_SET("Denik/Zapis[5]", "1", RAVO_DOCUMENT_ADD, RAVO_WRONG,
              "'Denik/Zapis[5]' cannot be added, because its parent or an element before it is missing");
  REFUSED_SET("Denik/Zapis/Popis", "\xC3(", 0, RAVO_UTF8, "a path or a value is not UTF-8");
  REFUSED_SET(NULL, "1", 0, RAVO_ARGUMENT, "a path or a value is null, but its length is not 0");
  EXPECT(ravo_document_set(document, NULL, 1, 0, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_document_set(document, NULL, 0, 8, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_document_set(NULL, NULL, 0, 0, NULL) == RAVO_ARGUMENT);
  ravo_document_close(document);
}

static void what_lacks_is_added(void) {
  ravo_document* document = opened_bytes(TEXT("<a>\n  <b>1</b>\n</a>"));
  EXPECT(set(document, "a/b[2]", "ř", RAVO_DOCUMENT_ADD) == RAVO_OK);
  EXPECT(set(document, "a/b[1]/@c", "\"", RAVO_DOCUMENT_ADD) == RAVO_OK);
  EXPECT_BYTES(document, "<a>\n  <b c=\"&quot;\">1</b>\n  <b>ř</b>\n</a>");
  ravo_document_close(document);
  document = opened_bytes(TEXT("<?xml version='1.0' encoding='us-ascii'?><a/>"));
  EXPECT(set(document, "a", "ř\xF0\x9F\x98\x80", RAVO_DOCUMENT_REFERENCES) == RAVO_OK);
  EXPECT_BYTES(document, "<?xml version='1.0' encoding='us-ascii'?><a>&#x159;&#x1F600;</a>");
  EXPECT_VALUE(document, "a", "ř\xF0\x9F\x98\x80");
  ravo_document_close(document);
}

/* UTF-16 with its mark, in both orders; the bytes by hand. */
static void every_encoding_is_kept(void) {
  static const char little[] = "\xFF\xFE<\0a\0>\0\x0D\x01\r\0\n\0<\0/\0a\0>\0";
  static const char little_changed[] = "\xFF\xFE<\0a\0>\0=\xD8\0\xDE<\0/\0a\0>\0";
  static const char big[] = "\xFE\xFF\0<\0a\0>\x01\x0D\0\r\0\n\0<\0/\0a\0>";
  static const char big_changed[] = "\xFE\xFF\0<\0a\0>\xD8=\xDE\0\0<\0/\0a\0>";
  ravo_document* document = opened_bytes(TEXT(little));
  EXPECT_VALUE(document, "a", "č\n");
  EXPECT(set(document, "a", "\xF0\x9F\x98\x80", 0) == RAVO_OK);
  EXPECT_BYTES(document, little_changed);
  ravo_document_close(document);
  document = opened_bytes(TEXT(big));
  EXPECT(set(document, "a", "\xF0\x9F\x98\x80", 0) == RAVO_OK);
  EXPECT_BYTES(document, big_changed);
  ravo_document_close(document);
  document = opened_bytes(TEXT("\xEF\xBB\xBF<a>č</a>"));
  EXPECT(set(document, "a", "ř", 0) == RAVO_OK);
  EXPECT_BYTES(document, "\xEF\xBB\xBF<a>ř</a>");
  ravo_document_close(document);
}

static void not_opened(const void* bytes, size_t length, size_t position, const char* message, int line) {
  ravo_document* document = NULL;
  ravo_error error = RAVO_ERROR_INIT;
  if (ravo_document_open(bytes, length, &document, &error) == RAVO_WRONG && document == NULL &&
      error.code == 0 && error.position == position && strcmp(error.message, message) == 0)
    return;
  printf("%s:%d: at %u: %s\n", __FILE__, line, (unsigned)error.position, error.message);
  ++failures;
}
#define NOT_OPENED(literal, position, message) not_opened(TEXT(literal), (position), (message), __LINE__)

static void what_is_no_xml_is_refused(void) {
  NOT_OPENED("", 0, "line 1, column 1: the document has no element");
  NOT_OPENED("<a>č\n<b></a>", 9, "line 2, column 4: the close tag 'a' does not match the open element 'b'");
  NOT_OPENED(
      "<a>\xFF</a>", 3,
      "line 1, column 4: these bytes are no character of UTF-8; check that the declaration or the byte-order "
      "mark names the encoding of the document");
  /* The position counts bytes of the document, not of its text in UTF-8. */
  NOT_OPENED("<?xml version=\"1.0\" encoding=\"windows-1250\"?><a>\xE8&</a>", 49,
             "line 1, column 50: '&' starts no reference here; write it as &amp;");
  NOT_OPENED("\xFF\xFE<\0a\0>\0\x0D\x01&\0<\0/\0a\0>\0", 10,
             "line 1, column 5: '&' starts no reference here; write it as &amp;");
  NOT_OPENED("<?xml version=\"1.0\" encoding=\"klingon\"?><a/>", 0,
             "line 1, column 1: the encoding 'klingon' is unknown");
  NOT_OPENED(
      "<?xml version=\"1.0\" encoding=\"utf-16\"?><a/>", 0,
      "line 1, column 1: the declaration says 'utf-16', but the document begins as text of single bytes");
}

/* What a writer got: so many bytes in so many pieces, all of them "x" between the tags. */
typedef struct written {
  size_t pieces;
  size_t bytes;
  size_t longest;
  size_t stop_at;
} written;

static int32_t RAVO_CALL count_piece(void* context, const void* bytes, size_t bytes_length) {
  written* own = (written*)context;
  EXPECT(bytes != NULL && bytes_length != 0);
  if (own->pieces == own->stop_at) return 42;
  own->pieces += 1;
  own->bytes += bytes_length;
  if (bytes_length > own->longest) own->longest = bytes_length;
  return 0;
}

static void bytes_come_in_pieces(void) {
  enum { LENGTH = 150000 };
  char* text = (char*)malloc(LENGTH);
  ravo_document* document = NULL;
  ravo_error error = RAVO_ERROR_INIT;
  written all = {0, 0, 0, 100};
  written some = {0, 0, 0, 1};
  size_t length = 0;
  size_t allocations = 0;
  if (text == NULL) return;
  memset(text, 'x', LENGTH);
  memcpy(text, "<a>", 3);
  memcpy(text + LENGTH - 4, "</a>", 4);
  document = opened_bytes(text, LENGTH);
  allocations = allocation_count();
  EXPECT(ravo_document_write(document, count_piece, &all, NULL) == RAVO_OK);
  EXPECT(all.bytes == LENGTH && all.pieces == 3 && all.longest == 65536);
  EXPECT(ravo_document_write(document, count_piece, &some, &error) == RAVO_STOPPED);
  EXPECT(error.code == 42 && error.position == 65536);
  EXPECT(ravo_document_save(document, NULL, 0, &length, NULL) == RAVO_OK && length == LENGTH);
  EXPECT(ravo_document_save(document, text, LENGTH - 1, &length, NULL) == RAVO_BUFFER);
  EXPECT(ravo_document_save(document, text, LENGTH, NULL, NULL) == RAVO_OK);
  EXPECT(allocation_count() == allocations);
  EXPECT(ravo_document_write(document, NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_document_write(NULL, count_piece, &all, NULL) == RAVO_ARGUMENT);
  ravo_document_close(document);
  free(text);
}

static void expect_finding(const ravo_document* document, size_t index, const char* name, uint64_t line,
                           uint64_t column) {
  ravo_document_finding finding = RAVO_DOCUMENT_FINDING_INIT;
  EXPECT(ravo_document_finding_at(document, index, &finding, NULL) == RAVO_OK);
  EXPECT_TEXT(finding.name, name);
  EXPECT(finding.line == line && finding.column == column);
}

static void what_the_suite_spoils_is_found(void) {
  ravo_document* document =
      opened_bytes(TEXT("<?xml version=\"1.0\" encoding=\"windows-1250\"?>\n<a b='1'><!-- c -->č&#65;</a>"));
  char sentence[256];
  size_t count = 0;
  /* The two bytes of UTF-8 are two other characters of Windows-1250. */
  EXPECT(ravo_document_check(document, &count, NULL) == RAVO_OK && count == 2);
  expect_finding(document, 0, "comment", 2, 10);
  expect_finding(document, 1, "reference", 2, 22);
  EXPECT(ravo_document_finding_sentence(document, 1, RAVO_LANGUAGE_ENGLISH, sentence, sizeof sentence, NULL,
                                        NULL) == RAVO_OK);
  EXPECT_TEXT(
      sentence,
      "the suite does not decode '&#65;': it keeps the reference as text and escapes it when it saves");
  EXPECT(ravo_document_finding_sentence(document, 0, RAVO_LANGUAGE_CZECH, sentence, sizeof sentence, NULL,
                                        NULL) == RAVO_OK);
  EXPECT_TEXT(sentence, "systém vypustí komentáře");
  EXPECT(ravo_document_finding_sentence(document, 2, RAVO_LANGUAGE_CZECH, NULL, 0, NULL, NULL) ==
         RAVO_UNKNOWN);
  EXPECT(set(document, "a", "x", RAVO_DOCUMENT_RAW) == RAVO_OK);
  EXPECT(ravo_document_finding_sentence(document, 0, RAVO_LANGUAGE_CZECH, NULL, 0, NULL, NULL) ==
         RAVO_UNKNOWN);
  EXPECT(ravo_document_check(document, &count, NULL) == RAVO_OK && count == 0);
  ravo_document_close(document);
}

static void what_another_parser_rejects_is_refused(void) {
  /* The scanner reads of a document type declaration only what edits need. */
  ravo_document* document = opened_bytes(TEXT("<!DOCTYPE a [<!ELEMENT a (b>]><a/>"));
  ravo_error error = RAVO_ERROR_INIT;
  size_t count = 7;
  EXPECT(ravo_document_check(document, &count, &error) == RAVO_WRONG && count == 7);
  EXPECT(error.position == 27);
  EXPECT(strstr(error.message, "line 1, column 28: a standard parser rejects the document here: ") ==
         error.message);
  ravo_document_close(document);
}

static ravo_status work_on_a_document(void) {
  static const char text[] = "<?xml version=\"1.0\" encoding=\"windows-1250\"?><a b=\"1\"><c>2</c><d/></a>";
  const ravo_document_change changes[] = {{"a/c", 3, "& third", 7}, {"a/d", 3, "4", 1}, {"a/@b", 4, "5", 1}};
  ravo_document* document = NULL;
  size_t count = 0;
  ravo_status status = ravo_document_open(TEXT(text), &document, NULL);
  if (status == RAVO_OK) status = ravo_document_set(document, changes, 3, 0, NULL);
  /* The document is as it was, or changed. */
  if (status == RAVO_MEMORY && document != NULL) EXPECT_BYTES(document, text);
  if (status == RAVO_OK) status = ravo_document_check(document, &count, NULL);
  ravo_document_close(document);
  return status;
}

static void documents_survive_without_memory(void) {
  size_t allowed = 0;
  ravo_status status = RAVO_MEMORY;
  for (allowed = 0; status == RAVO_MEMORY && allowed < 10000; ++allowed) {
    deny_allocations_after(allowed);
    status = work_on_a_document();
    allow_allocations();
  }
  EXPECT(status == RAVO_OK);
  EXPECT(!allocations_are_counted || allowed > 50);
}

void test_documents(void) {
  values_are_read();
  values_are_set_and_set_back();
  the_same_value_changes_nothing();
  all_or_none_are_set();
  what_lacks_is_added();
  every_encoding_is_kept();
  what_is_no_xml_is_refused();
  bytes_come_in_pieces();
  what_the_suite_spoils_is_found();
  what_another_parser_rejects_is_refused();
  documents_survive_without_memory();
}
