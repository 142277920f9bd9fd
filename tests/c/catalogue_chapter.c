#include "chapters.h"
#include "expect.h"

static void names_tables(void) {
  ravo_suite_table table = RAVO_SUITE_TABLE_INIT;
  EXPECT_TEXT(ravo_suite_table_name(71710), "Účetní deník");
  EXPECT(ravo_suite_table_name(0) == NULL && ravo_suite_table_name(-1) == NULL);
  EXPECT(ravo_suite_table_find(10110, &table, NULL) == RAVO_OK);
  EXPECT_TEXT(table.name, "Profil");
  EXPECT_TEXT(table.module, "RavoProfileConstants");
  EXPECT(table.first == 10110 && table.last == 10110);
  EXPECT(ravo_suite_table_find(1, &table, NULL) == RAVO_UNKNOWN);
}

static void lists_tables(void) {
  ravo_suite_table table = RAVO_SUITE_TABLE_INIT;
  int32_t identifiers = 0;
  size_t index = 0;
  for (; index < ravo_suite_table_count(); ++index) {
    EXPECT(ravo_suite_table_at(index, &table, NULL) == RAVO_OK);
    EXPECT(ravo_suite_table_name(table.first) == table.name &&
           ravo_suite_table_name(table.last) == table.name);
    identifiers += table.last - table.first + 1;
  }
  EXPECT(identifiers == 263);
  EXPECT(ravo_suite_table_at(index, &table, NULL) == RAVO_UNKNOWN);
}

static void has_captions(void) {
  ravo_suite_caption caption = RAVO_SUITE_CAPTION_INIT;
  ravo_suite_caption found = RAVO_SUITE_CAPTION_INIT;
  size_t index = 0;
  EXPECT(ravo_suite_caption_find("rPropertyDokladPZPohledavka", RAVO_NUL_TERMINATED, &caption, NULL) ==
         RAVO_OK);
  EXPECT_TEXT(caption.text, "&Pohledávka");
  EXPECT_TEXT(caption.group, "Document kind of payables and receivables");
  EXPECT_TEXT(caption.prefix, "rPropertyDokladPZ");
  EXPECT(caption.id == 65477);
  EXPECT(ravo_suite_caption_find("rProperty", RAVO_NUL_TERMINATED, &caption, NULL) == RAVO_UNKNOWN);
  for (; index < ravo_suite_caption_count(); ++index) {
    EXPECT(ravo_suite_caption_at(index, &caption, NULL) == RAVO_OK);
    EXPECT(ravo_suite_caption_find(caption.name, RAVO_NUL_TERMINATED, &found, NULL) == RAVO_OK);
    EXPECT(found.id == caption.id);
  }
  EXPECT(index > 50);
  EXPECT(ravo_suite_caption_at(index, &caption, NULL) == RAVO_UNKNOWN);
}

void test_catalogue(void) {
  names_tables();
  lists_tables();
  has_captions();
}
