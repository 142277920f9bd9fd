#include "chapters.h"
#include "expect.h"
#include "memory.h"

#define TREE_HEAD "<?xml version=\"1.0\" encoding=\"windows-1250\"?>"

static const char journal[] = TREE_HEAD
    "<Denik Rok=\"2026\" Stav=\"nov\xFD\"><Zapis>N\xE1jem &amp; slu\x9E"
    "by</Zapis><Pozn/><zapis>2</zapis></Denik>";

static ravo_suite_tree* opened_tree(const void* bytes, size_t length) {
  ravo_suite_tree* tree = NULL;
  EXPECT(ravo_suite_tree_open(bytes, length, &tree, NULL) == RAVO_OK);
  return tree;
}

static void expect_saved(ravo_suite_tree* tree, const char* expected, int line) {
  char buffer[2048];
  size_t length = 0;
  if (ravo_suite_tree_save(tree, buffer, sizeof buffer, &length, NULL) == RAVO_OK &&
      length == strlen(expected) && memcmp(buffer, expected, length) == 0)
    return;
  printf("%s:%d: saved: %.*s\n", __FILE__, line, (int)length, buffer);
  ++failures;
}
#define EXPECT_SAVED(tree, expected) expect_saved((tree), (expected), __LINE__)

static ravo_suite_item child_at(const ravo_suite_tree* tree, ravo_suite_item item, size_t index) {
  ravo_suite_item child = 0;
  EXPECT(ravo_suite_item_child(tree, item, index, &child, NULL) == RAVO_OK);
  return child;
}

static void trees_are_walked(void) {
  ravo_suite_tree* tree = opened_tree(TEXT(journal));
  char text[64];
  char value[64];
  size_t length = 0;
  size_t count = 0;
  size_t index = 9;
  ravo_suite_item item = 9;
  EXPECT(ravo_suite_item_name(tree, 0, text, sizeof text, &length, NULL) == RAVO_OK && length == 5);
  EXPECT_TEXT(text, "Denik");
  EXPECT(ravo_suite_item_child_count(tree, 0, &count, NULL) == RAVO_OK && count == 3);
  EXPECT(ravo_suite_item_child(tree, 0, 3, &item, NULL) == RAVO_UNKNOWN && item == 9);
  EXPECT(ravo_suite_item_text(tree, child_at(tree, 0, 0), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "Nájem & služby");
  EXPECT(ravo_suite_item_find(tree, 0, TEXT("ZAPIS"), 1, &index, NULL) == RAVO_OK && index == 2);
  EXPECT(ravo_suite_item_find(tree, 0, TEXT("ZAPIS"), 3, &index, NULL) == RAVO_UNKNOWN && index == 2);
  EXPECT(ravo_suite_item_find(tree, 0, TEXT("Nic"), 0, &index, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_suite_item_parent(tree, child_at(tree, 0, 2), &item, NULL) == RAVO_OK && item == 0);
  EXPECT(ravo_suite_item_parent(tree, 0, &item, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_suite_item_name(tree, 4, text, sizeof text, NULL, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_suite_item_attribute_count(tree, 0, &count, NULL) == RAVO_OK && count == 2);
  EXPECT(ravo_suite_item_attribute_at(tree, 0, 1, text, sizeof text, NULL, value, sizeof value, NULL, NULL) ==
         RAVO_OK);
  EXPECT_TEXT(text, "Stav");
  EXPECT_TEXT(value, "nový");
  EXPECT(ravo_suite_item_attribute_at(tree, 0, 2, text, sizeof text, NULL, value, sizeof value, NULL, NULL) ==
         RAVO_UNKNOWN);
  EXPECT(ravo_suite_item_attribute(tree, 0, TEXT("ROK"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "2026");
  EXPECT(ravo_suite_item_attribute(tree, 0, TEXT("Den"), text, sizeof text, NULL, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_suite_tree_encoding(tree, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "windows-1250");
  EXPECT(ravo_suite_tree_style_sheet(tree, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "");
  ravo_suite_tree_close(tree);
  ravo_suite_tree_close(NULL);
}

/* Changes, and the same changes back. */
static void trees_are_changed_and_changed_back(void) {
  static const char as_opened[] =
      "<?xml version=\"1.0\" encoding=\"windows-1250\" ?>\r\n"
      "  <Denik Rok=\"2026\" Stav=\"nov\xFD\">\r\n"
      "    <Zapis>\r\n"
      "      N\xE1jem &amp; slu\x9E"
      "by\r\n"
      "    </Zapis>\r\n"
      "    <Pozn/>\r\n"
      "    <zapis>\r\n"
      "      2\r\n"
      "    </zapis>\r\n"
      "  </Denik>\r\n";
  ravo_suite_tree* tree = opened_tree(TEXT(journal));
  const ravo_suite_item first = child_at(tree, 0, 0);
  const ravo_suite_item last = child_at(tree, 0, 2);
  ravo_suite_item added = 0;
  ravo_suite_item below = 0;
  size_t count = 0;
  EXPECT_SAVED(tree, as_opened);
  EXPECT(ravo_suite_item_set_text(tree, first, TEXT("a < \"č\""), NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_set_name(tree, last, TEXT(" Konec "), NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_set_attribute(tree, 0, TEXT("stav"), TEXT(""), NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_set_attribute(tree, 0, TEXT("Den"), TEXT("1"), NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_add(tree, 0, TEXT("Nov\xC3\xBD"), &added, NULL) == RAVO_OK && added == 4);
  EXPECT(ravo_suite_item_add(tree, added, TEXT("V"), &below, NULL) == RAVO_OK && below == 5);
  EXPECT(ravo_suite_item_move(tree, added, 0, NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_move(tree, added, 4, NULL) == RAVO_RANGE);
  EXPECT(ravo_suite_tree_set_encoding(tree, TEXT("cp1250"), NULL) == RAVO_OK);
  EXPECT_SAVED(tree,
               "<?xml version=\"1.0\" encoding=\"cp1250\" ?>\r\n"
               "  <Denik Rok=\"2026\" Den=\"1\">\r\n"
               "    <Nov\xFD>\r\n"
               "      <V/>\r\n"
               "    </Nov\xFD>\r\n"
               "    <Zapis>\r\n"
               "      a &lt; &quot;\xE8&quot;\r\n"
               "    </Zapis>\r\n"
               "    <Pozn/>\r\n"
               "    <Konec>\r\n"
               "      2\r\n"
               "    </Konec>\r\n"
               "  </Denik>\r\n");
  EXPECT(child_at(tree, 0, 1) == first);
  EXPECT(ravo_suite_item_delete(tree, added, NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_delete(tree, below, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_suite_item_delete(tree, 0, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_suite_item_move(tree, 0, 0, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_suite_item_child_count(tree, added, &count, NULL) == RAVO_UNKNOWN);
  /* Numbers do not come back. */
  EXPECT(ravo_suite_item_add(tree, 0, TEXT("X"), &below, NULL) == RAVO_OK && below == 6);
  EXPECT(ravo_suite_item_delete(tree, below, NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_set_text(tree, first, TEXT("Nájem & služby"), NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_set_name(tree, last, TEXT("zapis"), NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_set_attribute(tree, 0, TEXT("Den"), TEXT(""), NULL) == RAVO_OK);
  EXPECT(ravo_suite_item_set_attribute(tree, 0, TEXT("Stav"), TEXT("nový"), NULL) == RAVO_OK);
  EXPECT(ravo_suite_tree_set_encoding(tree, TEXT("windows-1250"), NULL) == RAVO_OK);
  EXPECT_SAVED(tree, as_opened);
  ravo_suite_tree_close(tree);
}

static void what_is_saved_is_loaded(void) {
  ravo_suite_tree* tree = opened_tree(TEXT(journal));
  char first[2048];
  char second[2048];
  size_t length = 0;
  size_t again = 0;
  EXPECT(ravo_suite_tree_set_style_sheet(tree, TEXT("denik.xsl"), NULL) == RAVO_OK);
  EXPECT(ravo_suite_tree_save(tree, first, sizeof first, &length, NULL) == RAVO_OK);
  EXPECT(ravo_suite_tree_save(tree, first, length - 1, &again, NULL) == RAVO_BUFFER && again == length);
  ravo_suite_tree_close(tree);
  tree = opened_tree(first, length);
  EXPECT(ravo_suite_tree_style_sheet(tree, second, sizeof second, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(second, "denik.xsl");
  EXPECT(ravo_suite_tree_save(tree, second, sizeof second, &again, NULL) == RAVO_OK);
  EXPECT(again == length && memcmp(first, second, length) == 0);
  ravo_suite_tree_close(tree);
}

static void oddities_of_loading_are_kept(void) {
  ravo_suite_tree* tree = opened_tree(TEXT("<a><b/></a>"));
  ravo_error error = RAVO_ERROR_INIT;
  char text[64];
  size_t count = 9;
  EXPECT(ravo_suite_item_child_count(tree, 0, &count, NULL) == RAVO_OK && count == 0);
  EXPECT(ravo_suite_item_name(tree, 0, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "");
  ravo_suite_tree_close(tree);
  tree = opened_tree(NULL, 0);
  ravo_suite_tree_close(tree);
  tree = NULL;
  EXPECT(ravo_suite_tree_open(TEXT(TREE_HEAD "\n<a"), &tree, &error) == RAVO_WRONG && tree == NULL);
  EXPECT_TEXT(error.message, "'>' expected on line 2");
  EXPECT(error.code == 0 && error.position == 0);
}

static void items_are_written_as_text(void) {
  ravo_suite_tree* tree = opened_tree(TEXT(journal));
  char text[128];
  EXPECT(ravo_suite_item_as_string(tree, 1, 1, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, " <Zapis>\r\n   Nájem &amp; služby\r\n </Zapis>\r\n");
  EXPECT(ravo_suite_item_as_string(tree, 1, -1, text, sizeof text, NULL, NULL) == RAVO_RANGE);
  EXPECT(ravo_suite_item_as_string(tree, 1, 1001, text, sizeof text, NULL, NULL) == RAVO_RANGE);
  ravo_suite_tree_close(tree);
}

static void texts_are_escaped(void) {
  char text[64];
  EXPECT(ravo_suite_str_to_xml(TEXT("a & <č> \"'\r\n&amp;"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "a &amp; &lt;č&gt; &quot;'<br/>&amp;amp;");
  EXPECT(ravo_suite_xml_to_str(TEXT("a &amp; &lt;č&gt; &quot;&apos;<br/>&amp;lt;"), text, sizeof text, NULL,
                               NULL) == RAVO_OK);
  EXPECT_TEXT(text, "a & <č> \"&apos;<br/>&lt;");
}

/* The tokens that a taker got, one line each. */
typedef struct taken {
  char lines[512];
  size_t most;
} taken;

static int32_t RAVO_CALL take_token(void* context, const ravo_suite_token* token) {
  taken* own = (taken*)context;
  const size_t length = strlen(own->lines);
  if (own->most-- == 0) return -3;
  EXPECT(token->size == sizeof *token && strlen(token->text) == token->text_length);
  snprintf(own->lines + length, sizeof own->lines - length, "%d %d %d %s\n", (int)token->kind,
           (int)token->line, (int)token->position, token->text);
  return 0;
}

static void tokens_are_given(void) {
  static const char text[] = TREE_HEAD "\n<a b=\"1\">\n  N\xE1jem  2<c/><!-- d --></a>";
  taken all = {"", 100};
  taken some = {"", 2};
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_suite_tokens(TEXT(text), take_token, &all, NULL) == RAVO_OK);
  EXPECT_TEXT(all.lines,
              "8 1 0 <?xml version=\"1.0\" encoding=\"windows-1250\"?>\n"
              "10 2 46 <a b=\"1\">\n"
              "9 3 58 Nájem 2\n"
              "12 3 66 <c/>\n"
              "6 3 70 <!-- d -->\n"
              "11 3 80 </a>\n");
  EXPECT(ravo_suite_tokens(TEXT(text), take_token, &some, &error) == RAVO_STOPPED && error.code == -3);
  EXPECT(ravo_suite_tokens(TEXT("<a\n"), take_token, &all, &error) == RAVO_WRONG);
  EXPECT_TEXT(error.message, "'>' expected on line 1");
  EXPECT(ravo_suite_tokens(TEXT(text), NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_suite_tokens(NULL, 1, take_token, &all, NULL) == RAVO_ARGUMENT);
}

/* A tree of which each change may be missing can be read, saved and closed. */
static ravo_status work_on_a_tree(ravo_suite_tree** tree) {
  ravo_suite_item item = 0;
  ravo_status status = ravo_suite_tree_open(TEXT(journal), tree, NULL);
  if (status == RAVO_OK) status = ravo_suite_item_set_text(*tree, 1, TEXT("漢 a text of some length"), NULL);
  if (status == RAVO_OK) status = ravo_suite_item_set_name(*tree, 2, TEXT("a name of some length"), NULL);
  if (status == RAVO_OK) status = ravo_suite_item_set_attribute(*tree, 0, TEXT("Rok"), TEXT("漢"), NULL);
  if (status == RAVO_OK)
    status = ravo_suite_item_add(*tree, 0, TEXT("another name of some length"), &item, NULL);
  if (status == RAVO_OK) status = ravo_suite_item_move(*tree, item, 0, NULL);
  if (status == RAVO_OK) status = ravo_suite_item_delete(*tree, 1, NULL);
  return status;
}

static void trees_survive_without_memory(void) {
  char buffer[2048];
  size_t allowed = 0;
  ravo_status status = RAVO_MEMORY;
  for (allowed = 0; status == RAVO_MEMORY && allowed < 10000; ++allowed) {
    ravo_suite_tree* tree = NULL;
    size_t count = 0;
    deny_allocations_after(allowed);
    status = work_on_a_tree(&tree);
    allow_allocations();
    if (tree != NULL) {
      EXPECT(ravo_suite_tree_save(tree, buffer, sizeof buffer, &count, NULL) == RAVO_OK);
      EXPECT(ravo_suite_item_child_count(tree, 0, &count, NULL) == RAVO_OK && count >= 3);
      for (; count > 0; --count) child_at(tree, 0, count - 1);
    }
    ravo_suite_tree_close(tree);
  }
  EXPECT(status == RAVO_OK);
  EXPECT(!allocations_are_counted || allowed > 20);
}

static void tokens_survive_without_memory(void) {
  size_t allowed = 0;
  ravo_status status = RAVO_MEMORY;
  for (allowed = 0; status == RAVO_MEMORY && allowed < 100; ++allowed) {
    taken all = {"", 100};
    deny_allocations_after(allowed);
    status = ravo_suite_tokens(TEXT(journal), take_token, &all, NULL);
    allow_allocations();
  }
  EXPECT(status == RAVO_OK);
}

void test_suite_trees(void) {
  trees_are_walked();
  trees_are_changed_and_changed_back();
  what_is_saved_is_loaded();
  oddities_of_loading_are_kept();
  items_are_written_as_text();
  texts_are_escaped();
  tokens_are_given();
  trees_survive_without_memory();
  tokens_survive_without_memory();
}
