#include "chapters.h"
#include "expect.h"

static ravo_character_property category_of(unsigned unit) {
  ravo_character_property category = -1;
  EXPECT(ravo_character_category((uint16_t)unit, &category, NULL) == RAVO_OK);
  return category;
}

static int is(unsigned unit, ravo_character_property property) {
  int32_t answer = 7;
  EXPECT(ravo_character_is((uint16_t)unit, property, &answer, NULL) == RAVO_OK);
  EXPECT(answer == 0 || answer == 1);
  return answer;
}

/* From UnicodeData.txt. */
static void have_categories(void) {
  static const struct {
    unsigned unit;
    const char* category;
  } rows[] = {
      {0x0378, "Cn"}, {'A', "Lu"},    {0x010C, "Lu"}, {0x010D, "Ll"}, {0x00DF, "Ll"}, {0x01C5, "Lt"},
      {0x02B0, "Lm"}, {0x05D0, "Lo"}, {0x4E2D, "Lo"}, {0x0301, "Mn"}, {0x0903, "Mc"}, {0x20DD, "Me"},
      {'5', "Nd"},    {0x0663, "Nd"}, {0x2160, "Nl"}, {0x00BD, "No"}, {'_', "Pc"},    {'-', "Pd"},
      {'(', "Ps"},    {0x201E, "Ps"}, {')', "Pe"},    {0x00AB, "Pi"}, {0x00BB, "Pf"}, {'!', "Po"},
      {'+', "Sm"},    {0x20AC, "Sc"}, {0x00B4, "Sk"}, {0x00A9, "So"}, {' ', "Zs"},    {0x00A0, "Zs"},
      {0x2028, "Zl"}, {0x2029, "Zp"}, {'\n', "Cc"},   {0x00AD, "Cf"}, {0xD800, "Cs"}, {0xDFFF, "Cs"},
      {0xE000, "Co"}, {0xFFFF, "Cn"},
  };
  size_t i = 0;
  for (i = 0; i < sizeof rows / sizeof *rows; ++i)
    EXPECT_TEXT(ravo_character_category_name(category_of(rows[i].unit)), rows[i].category);
  EXPECT_TEXT(ravo_character_category_name(RAVO_CHARACTER_OTHER), "C");
  EXPECT(ravo_character_category_name(RAVO_CHARACTER_LETTER_COMMON) == NULL);
  EXPECT(ravo_character_category_name(RAVO_CHARACTER_WHITE_SPACE_HYPHEN_GT) == NULL);
}

/* Each character has one category, and belongs to its group and to no other. */
static void have_one_category_each(void) {
  unsigned unit = 0;
  for (unit = 0; unit <= 0xFFFF; ++unit) {
    const ravo_character_property category = category_of(unit);
    const char* const name = ravo_character_category_name(category);
    ravo_character_property other = 0;
    for (other = RAVO_CHARACTER_UNASSIGNED; other <= RAVO_CHARACTER_OTHER_PRIVATE_USE; ++other)
      EXPECT(is(unit, other) == (other == category));
    for (other = RAVO_CHARACTER_LETTER; other <= RAVO_CHARACTER_OTHER; ++other) {
      const int is_of_group = name[0] == ravo_character_category_name(other)[0];
      EXPECT(is(unit, other) == (is_of_group && category != RAVO_CHARACTER_UNASSIGNED));
    }
  }
}

/* What has a kind, among some characters. */
static void have_kinds(void) {
  static const unsigned units[] = {'\t',  '\n',   '\r',   ' ',    '"',    '&',    '\'',   '-',
                                   '0',   '9',    ':',    '<',    '>',    'A',    'F',    'G',
                                   '_',   'f',    0x00A0, 0x010D, 0x0301, 0x0663, 0x2003, 0x20AC,
                                   0x5D0, 0xAC00, 0xD7A3, 0xD7A4, 0xD800, 0x0378};
  static const struct {
    ravo_character_property kind;
    const char* which; /* a digit for each of them */
  } rows[] = {
      /*                                          tnr_"&'-09:<>AFG_f ABCDEF...  */
      {RAVO_CHARACTER_LETTER_COMMON, "000000000000011101010000000000"},
      {RAVO_CHARACTER_WHITE_SPACE, "111100000000000000100010000000"},
      {RAVO_CHARACTER_ALPHA, "000000000000011101010000111000"},
      {RAVO_CHARACTER_ALPHA_NUM, "000000001100011101010100111000"},
      {RAVO_CHARACTER_DIGIT, "000000001100000000000100000000"},
      {RAVO_CHARACTER_HEX_DIGIT, "000000001100011001000000000000"},
      {RAVO_CHARACTER_HANGUL, "000000000000000000000000011000"},
      {RAVO_CHARACTER_CR_LF, "011000000000000000000000000000"},
      {RAVO_CHARACTER_LOW_LINE, "000000000000000010000000000000"},
      {RAVO_CHARACTER_QUOTE, "000010100000000000000000000000"},
      {RAVO_CHARACTER_WORD_SEPARATOR, "111111110011100000100011000000"},
      {RAVO_CHARACTER_WHITE_SPACE_OR_AMPERSAND, "111101000000000000100010000000"},
      {RAVO_CHARACTER_WHITE_SPACE_OR_COLON, "111100000010000000100010000000"},
      {RAVO_CHARACTER_WHITE_SPACE_OR_NO_BREAK_SPACE, "111100000000000000100010000000"},
      {RAVO_CHARACTER_WHITE_SPACE_GT, "111100000000100000100010000000"},
      {RAVO_CHARACTER_WHITE_SPACE_LT, "111100000001000000100010000000"},
      {RAVO_CHARACTER_WHITE_SPACE_HYPHEN, "111100010000000000100010000000"},
      {RAVO_CHARACTER_WHITE_SPACE_HYPHEN_GT, "111100010000100000100010000000"},
  };
  size_t row = 0;
  size_t i = 0;
  for (row = 0; row < sizeof rows / sizeof *rows; ++row) {
    EXPECT(strlen(rows[row].which) == sizeof units / sizeof *units);
    for (i = 0; i < sizeof units / sizeof *units; ++i) {
      const int expected = rows[row].which[i] - '0';
      if (is(units[i], rows[row].kind) != expected)
        printf("U+%04X and property %ld\n", units[i], (long)rows[row].kind);
      EXPECT(is(units[i], rows[row].kind) == expected);
    }
  }
}

typedef ravo_status(RAVO_CALL* mapping)(uint16_t unit, uint16_t* mapped, ravo_error* error);

static unsigned mapped_by(mapping map, unsigned unit) {
  uint16_t mapped = 7;
  EXPECT(map((uint16_t)unit, &mapped, NULL) == RAVO_OK);
  return mapped;
}

static void have_other_cases(void) {
  EXPECT(mapped_by(ravo_character_to_upper, 0x010D) == 0x010C);
  EXPECT(mapped_by(ravo_character_to_lower, 0x010C) == 0x010D);
  EXPECT(mapped_by(ravo_character_to_title, 0x010D) == 0x010C);
  EXPECT(mapped_by(ravo_character_to_case_fold, 0x010C) == 0x010D);
  EXPECT(mapped_by(ravo_character_to_upper, 0x01C6) == 0x01C4);
  EXPECT(mapped_by(ravo_character_to_title, 0x01C6) == 0x01C5);
  EXPECT(mapped_by(ravo_character_to_lower, 0x01C5) == 0x01C6);
  EXPECT(mapped_by(ravo_character_to_upper, 0x00DF) == 0x00DF);
  EXPECT(mapped_by(ravo_character_to_case_fold, 0x03C2) == 0x03C3);
  EXPECT(mapped_by(ravo_character_to_lower, 0xD801) == 0xD801);
  EXPECT(mapped_by(ravo_character_to_upper, '7') == '7');
}

static void rank_marks(void) {
  static const int rows[][2] = {{'a', 0},      {0x0301, 230}, {0x0327, 202},
                                {0x0345, 240}, {0x0338, 1},   {0x05B0, 10}};
  size_t i = 0;
  for (i = 0; i < sizeof rows / sizeof *rows; ++i) {
    int32_t rank = 777;
    EXPECT(ravo_character_combining_class((uint16_t)rows[i][0], &rank, NULL) == RAVO_OK);
    EXPECT(rank == rows[i][1]);
  }
}

static void expect_parts(unsigned unit, const char* canonical, const char* compatible, const char* hangul) {
  const char* expected[3];
  ravo_decomposition form = RAVO_DECOMPOSITION_CANONICAL;
  expected[0] = canonical;
  expected[1] = compatible;
  expected[2] = hangul;
  for (; form <= RAVO_DECOMPOSITION_HANGUL; ++form) {
    char text[64] = "#";
    size_t length = 777;
    EXPECT(ravo_character_decompose((uint16_t)unit, form, text, sizeof text, &length, NULL) == RAVO_OK);
    EXPECT_TEXT(text, expected[form]);
    EXPECT(length == strlen(expected[form]));
  }
}

static void come_apart(void) {
  expect_parts('A', "", "", "");
  expect_parts(0x00C0, "A\xCC\x80", "A\xCC\x80", "");
  expect_parts(0x1E14, "E\xCC\x84\xCC\x80", "E\xCC\x84\xCC\x80", "");
  expect_parts(0xFB01, "", "fi", "");
  expect_parts(0x00BD, "", "1\u20442", "");
  expect_parts(0xFDFA, "", "صلى الله عليه وسلم", "");
  expect_parts(0xAC00, "", "", "\xE1\x84\x80\xE1\x85\xA1");
  expect_parts(0xD7A3, "", "", "\xE1\x84\x92\xE1\x85\xB5\xE1\x87\x82");
  expect_parts(0xD800, "", "", "");
}

void test_characters(void) {
  have_categories();
  have_one_category_each();
  have_kinds();
  have_other_cases();
  rank_marks();
  come_apart();
}
