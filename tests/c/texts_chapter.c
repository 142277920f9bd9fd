#include "chapters.h"
#include "expect.h"

static void change_case_by_character(void) {
  char text[64];
  EXPECT(ravo_text_upper(TEXT("příliš 😀 straße"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "PŘÍLIŠ 😀 STRAßE");
  EXPECT(ravo_text_lower(TEXT("PŘÍLIŠ ŽLUŤOUČKÝ"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "příliš žluťoučký");
  EXPECT(ravo_text_fold(TEXT("ΣΑΣ"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "σασ");
  EXPECT(ravo_text_proper(TEXT("ÚČETNÍ deník, žižkov-ŘEPY"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "Účetní Deník, Žižkov-Řepy");
}

static void match_masks(void) {
  int32_t answer = 7;
  EXPECT(ravo_text_match(TEXT("Účetní deník"), TEXT("Ú*d?n*"), 0, &answer, NULL) == RAVO_OK && answer == 1);
  EXPECT(ravo_text_match(TEXT("ÚČET"), TEXT("účet"), 0, &answer, NULL) == RAVO_OK && answer == 0);
  EXPECT(ravo_text_match(TEXT("ÚČET"), TEXT("účet"), 1, &answer, NULL) == RAVO_OK && answer == 1);
  EXPECT(ravo_text_match(NULL, 0, TEXT("*"), 0, &answer, NULL) == RAVO_OK && answer == 1);
  EXPECT(ravo_text_match_with(TEXT("ÚČ*T"), TEXT("ú%*_"), '%', '_', 1, &answer, NULL) == RAVO_OK &&
         answer == 1);
  EXPECT(ravo_text_match_with(TEXT("ÚČET"), TEXT("ú%*_"), '%', '_', 1, &answer, NULL) == RAVO_OK &&
         answer == 0);
}

static void travel_in_urls(void) {
  char text[32];
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_url_encode(TEXT("a b&č"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "a+b%26%C4%8D");
  EXPECT(ravo_url_decode(TEXT("a+b%26%c4%8D%"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "a b&č%");
  EXPECT(ravo_url_decode(TEXT("ab%C4"), text, sizeof text, NULL, &error) == RAVO_UTF8);
  EXPECT(error.position == 2);
  EXPECT(ravo_uri_without_fragment(TEXT("účet#část#2"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "účet");
  EXPECT(ravo_uri_fragment(TEXT("účet#část#2"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "část#2");
  EXPECT(ravo_uri_fragment(TEXT("účet"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "");
}

static void are_never_cut_inside_a_character(void) {
  char small[8] = "";
  size_t length = 0;
  EXPECT(ravo_text_lower(TEXT("ABC😀DEF"), small, 6, &length, NULL) == RAVO_BUFFER);
  EXPECT_TEXT(small, "abc");
  EXPECT(length == 10);
}

void test_texts(void) {
  change_case_by_character();
  match_masks();
  travel_in_urls();
  are_never_cut_inside_a_character();
}
