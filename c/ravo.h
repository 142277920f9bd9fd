/*
 * ravo.h: what Czech bookkeeping checks and computes, for every language.
 *
 * This is the C interface of RavoInterface. It has the rules of the country (identifiers, banks, days,
 * money, VAT) and those of the accounting suite, whose names begin with ravo_suite_. Link libravo.so.1 or
 * ravo.dll; no C++ name leaves either, and on Windows neither needs another library.
 *
 *     ravo_error error = RAVO_ERROR_INIT;
 *     char ico[16];
 *     size_t length = 0;
 *     if (ravo_check(RAVO_KIND_ICO, "046 25 781", RAVO_NUL_TERMINATED, ico, sizeof ico, &length, &error) == RAVO_OK)
 *       puts(ico);                                                     // 04625781
 *     else
 *       printf("%s at %zu\n", error.message, error.position);
 *
 * Texts.    A text is UTF-8 and a length in bytes. Pass RAVO_NUL_TERMINATED as the length of a C string. Null is
 *           a text of length 0; null with another length is RAVO_ARGUMENT. Ill-formed UTF-8 is RAVO_UTF8, at its
 *           position. A text may contain NUL.
 * Results.  A text goes into the caller's buffer of `size` bytes and ends with NUL; `*length` receives its whole
 *           length without the NUL, as snprintf returns it. If the buffer is too small, it receives what fits, never
 *           a part of a character, and the function returns RAVO_BUFFER. A null buffer with size 0 asks for the
 *           length alone: RAVO_OK. `length` may be null.
 * Failure.  A function that can fail returns a ravo_status; RAVO_OK is 0. The last parameter is null or a
 *           ravo_error of the caller, which every failure fills. Results are written on RAVO_OK and, as said above,
 *           on RAVO_BUFFER; on any other status they are as they were. Nothing is thrown, nothing is kept for the
 *           thread, no function ends the process.
 * Memory.   No function returns memory that the caller must free. Strings that a function returns are constants of
 *           the library. What says "never allocates" calls no allocator at all.
 * Threads.  Every function may be called from any thread at any time.
 * Money.    A ravo_money is an amount in ten-thousandths: 12 crowns 50 are 125000.
 * Days.     A ravo_day is a Julian Day Number: 2451545 is 1 January 2000. What depends on the day takes it as an
 *           argument: the library has no clock.
 * Versions. Names, numbers and meanings in this file are kept for ever; new ones are added. A struct that may grow
 *           begins with its size. The symbols have the version RAVO_1.0.
 *
 * A check of form says "correct in form" and never that something exists. The file is in chapters: failure,
 * version, checks, banks, days, money and VAT, columns.
 */
#ifndef RAVO_H
#define RAVO_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#define RAVO_CALL __cdecl
#else
#define RAVO_CALL
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------------------------------------------
 * Failure
 */

/* The length of a text that ends with NUL. */
#define RAVO_NUL_TERMINATED ((size_t)-1)

/* What a function answers. */
typedef int32_t ravo_status;
enum {
  RAVO_OK = 0,        /* done, or correct in form */
  RAVO_WRONG = 1,     /* the value is refused: ravo_error.code is the reason */
  RAVO_BUFFER = 2,    /* the result is longer than its buffer */
  RAVO_ARGUMENT = 3,  /* a null pointer, an unknown number, a struct of an unknown size */
  RAVO_UTF8 = 4,      /* a text is not UTF-8 */
  RAVO_RANGE = 5,     /* a number, a day or a result is out of range */
  RAVO_UNKNOWN = 6,   /* there is nothing of that name or number */
  RAVO_MEMORY = 7,    /* there is no memory left */
  RAVO_STOPPED = 8,   /* a callback of the caller ended the work */
  RAVO_INTERNAL = 9   /* a fault of the library: please report it */
};

/* Why a function failed. Declare it as `ravo_error error = RAVO_ERROR_INIT;`. */
typedef struct ravo_error {
  size_t size;         /* sizeof(ravo_error), set by the caller */
  ravo_status status;  /* what the function returned */
  int32_t code;        /* with RAVO_WRONG: the number of the reason, see ravo_reason_name */
  size_t position;     /* where, in bytes of the text or as the index of the item; 0 if there is no place */
  char message[232];   /* one sentence in English, UTF-8, ends with NUL */
} ravo_error;

#define RAVO_ERROR_INIT {sizeof(ravo_error), 0, 0, 0, {0}}

/* Languages of sentences. */
typedef int32_t ravo_language;
enum { RAVO_LANGUAGE_CZECH = 0, RAVO_LANGUAGE_ENGLISH = 1 };

/*
 * Returns the stable name of a reason, such as "ico.checksum", or null for an unknown number.
 *
 * Never allocates.
 */
const char *RAVO_CALL ravo_reason_name(int32_t code);

/*
 * Returns the sentence of a reason in a language, UTF-8, without a full stop, or null for an unknown number.
 *
 * Never allocates.
 *
 *     ravo_reason_sentence(104, RAVO_LANGUAGE_ENGLISH)  // "the check digit does not match"
 */
const char *RAVO_CALL ravo_reason_sentence(int32_t code, ravo_language language);

/*
 * Writes the number of the reason with a name, such as "ico.checksum", to `*code`.
 *
 * RAVO_UNKNOWN if there is none. Never allocates.
 */
ravo_status RAVO_CALL ravo_reason_of(const char *name, size_t name_length, int32_t *code, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Version
 */

/* Returns the version of the library that is running, such as "1.1.0". Never allocates. */
const char *RAVO_CALL ravo_version(void);

/*
 * Writes what the library was built with and runs on: lines of "name: value", such as the vector kernels that
 * this processor gets and the dates of the lists inside.
 */
ravo_status RAVO_CALL ravo_build_info(char *buffer, size_t size, size_t *length, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Checks
 *
 * Form alone: length, digits, weights, dates of the calendar. The answer depends on the text and on nothing else.
 * Texts are taken as people write them: with a label ("IČ:"), with blanks of all widths.
 */

/* What a text can be checked for. */
typedef int32_t ravo_kind;
enum {
  RAVO_KIND_ICO = 1,              /* company number */
  RAVO_KIND_DIC = 2,              /* Czech VAT number */
  RAVO_KIND_VAT_NUMBER = 3,       /* VAT number of a country of the European Union */
  RAVO_KIND_BIRTH_NUMBER = 4,     /* rodné číslo */
  RAVO_KIND_IBAN = 5,             /* of every country */
  RAVO_KIND_BIC = 6,              /* code of a bank in the SWIFT network */
  RAVO_KIND_ACCOUNT = 7,          /* Czech account number with bank code */
  RAVO_KIND_VARIABLE_SYMBOL = 8,  /* variabilní symbol */
  RAVO_KIND_CONSTANT_SYMBOL = 9,  /* konstantní symbol */
  RAVO_KIND_SPECIFIC_SYMBOL = 10, /* specifický symbol */
  RAVO_KIND_POST_CODE = 11,       /* PSČ */
  RAVO_KIND_EAN = 12,             /* EAN-8, -12, -13, -14 */
  RAVO_KIND_ISBN = 13             /* ISBN-10, -13 */
};

/* The longest canonical form or usual spelling in bytes, with its NUL. */
#define RAVO_VALUE_SIZE 48

/*
 * Returns the stable name of a kind, such as "ico", or null for an unknown number. Never allocates.
 *
 * The kinds are 1, 2, ... without gaps: ask until null.
 */
const char *RAVO_CALL ravo_kind_name(ravo_kind kind);

/* Returns the name of a kind for people, UTF-8, or null for an unknown number. Never allocates. */
const char *RAVO_CALL ravo_kind_title(ravo_kind kind, ravo_language language);

/* Writes the kind with a name, such as "ico", to `*kind`. RAVO_UNKNOWN if there is none. Never allocates. */
ravo_status RAVO_CALL ravo_kind_of(const char *name, size_t name_length, ravo_kind *kind, ravo_error *error);

/*
 * Checks a text for a kind and writes its canonical form, of at most RAVO_VALUE_SIZE bytes.
 *
 * RAVO_WRONG if it is not correct in form: `error->code` is the reason, `error->position` the place. The buffer may
 * be null. Never allocates.
 *
 *     ravo_check(RAVO_KIND_IBAN, "CZ65 0800 0000 1920 0014 5399", RAVO_NUL_TERMINATED, iban, sizeof iban, NULL, NULL)
 */
ravo_status RAVO_CALL ravo_check(ravo_kind kind, const char *text, size_t text_length, char *buffer, size_t size,
                                 size_t *length, ravo_error *error);

/*
 * Checks a text for a kind and writes its usual spelling, of at most RAVO_VALUE_SIZE bytes.
 *
 * As ravo_check, but for the form: "CZ65 0800 0000 1920 0014 5399". Never allocates.
 */
ravo_status RAVO_CALL ravo_respell(ravo_kind kind, const char *text, size_t text_length, char *buffer, size_t size,
                                   size_t *length, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Days
 */

/* A day by its Julian Day Number, of the years 1 to 9999. */
typedef int32_t ravo_day;

/* A date of the proleptic Gregorian calendar. */
typedef struct ravo_date {
  int32_t year;  /* 1 to 9999 */
  int32_t month; /* 1 to 12 */
  int32_t day;   /* of the month, from 1 */
} ravo_date;

/* Writes the day of a date. RAVO_RANGE if there is no such date. Never allocates. */
ravo_status RAVO_CALL ravo_day_of(int32_t year, int32_t month, int32_t day_of_month, ravo_day *day,
                                  ravo_error *error);

/* Writes the date of a day. RAVO_RANGE outside of the years 1 to 9999. Never allocates. */
ravo_status RAVO_CALL ravo_date_of(ravo_day day, ravo_date *date, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Columns
 *
 * A whole column of a table in one call: where data frames and databases already have it, without a copy. A
 * ravo_column describes memory of the caller in one of the layouts of the Arrow columnar format. Describe it by
 * hand, or let ravo_column_of_arrow read it from the structs of the Arrow C data interface; every function of this
 * chapter takes the result.
 *
 *     ravo_column column = RAVO_COLUMN_INIT;             // three company numbers, one after the other
 *     const int32_t offsets[] = {0, 8, 16, 19};
 *     uint16_t codes[3];
 *     ravo_answers answers = RAVO_ANSWERS_INIT;
 *     column.layout = RAVO_LAYOUT_OFFSETS_32;
 *     column.length = 3;
 *     column.values = offsets;
 *     column.data = "0462578104625782abc";
 *     column.data_size = 19;
 *     answers.codes = codes;
 *     if (ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_OK)
 *       printf("%zu wrong\n", answers.wrong);            // 2: codes are 0, 104, 102
 *
 * Trust.    Offsets, views and indices are checked while their row is read: a row whose value does not lie in the
 *           data ends the call with RAVO_RANGE, and its index is in error->position. RAVO_TRUSTED leaves these
 *           checks out: for memory of a library that has made them itself. The offsets of null rows, and entries
 *           of a dictionary that no row has, are not looked at. Nothing needs an alignment.
 * UTF-8.    Text and binary are one. A value that is not UTF-8 is a wrong value, with RAVO_CODE_NOT_UTF8, and ends
 *           nothing.
 * Results.  What is written per row may have been overwritten whatever the status; counts are written on RAVO_OK and
 *           RAVO_BUFFER. Memory of results must not overlap the column. For the place of a fault, call ravo_check
 *           with the text of that row.
 * Memory.   Each entry of a dictionary is checked at most once. To remember the answers, a call over a dictionary
 *           allocates a few bytes for each entry, with texts about 60. Other columns never allocate.
 * Threads.  To use several processors, give each thread a slice: the same column with an `offset` and a `length`.
 */

/* Where the values of a column are. The numbers are kept for ever. */
typedef int32_t ravo_layout;
enum {
  RAVO_LAYOUT_OFFSETS_32 = 1,         /* row i is data[o[i]] to data[o[i + 1]]; o is int32_t. Arrow: utf8, binary */
  RAVO_LAYOUT_OFFSETS_64 = 2,         /* the same with int64_t. Arrow: large utf8, large binary */
  RAVO_LAYOUT_VIEWS = 3,              /* 16 bytes for each row: short texts, or a place in a buffer. Arrow: views */
  RAVO_LAYOUT_FIXED = 4,              /* `width` bytes for each row; NULs at the end are no part of the text */
  RAVO_LAYOUT_DICTIONARY = 5,         /* signed indices of `width` bytes (1, 2, 4, 8) into another column */
  RAVO_LAYOUT_DICTIONARY_UNSIGNED = 6 /* unsigned indices of `width` bytes into another column */
};

/* The size of data that the caller does not know: it ends where the offset of the last row ends. */
#define RAVO_SIZE_UNKNOWN ((size_t)-1)

/* A column of the caller. It starts as `ravo_column column = RAVO_COLUMN_INIT;`. What a layout lacks is 0. */
typedef struct ravo_column {
  size_t size;                          /* sizeof(ravo_column) */
  ravo_layout layout;
  int32_t width;                        /* bytes of a value (fixed) or of an index (dictionary) */
  size_t length;                        /* rows */
  size_t offset;                        /* rows of the memory before the first one, as a slice has them */
  const uint8_t *validity;              /* bit offset + i, lowest first, is 0 if row i is null; null: none is */
  const void *values;                   /* offsets, views, values of fixed width, or indices */
  const char *data;                     /* what offsets are into */
  size_t data_size;                     /* bytes of data; or RAVO_SIZE_UNKNOWN */
  const void *const *buffers;           /* what views are into */
  const int64_t *buffer_sizes;          /* bytes of each */
  size_t buffer_count;
  const struct ravo_column *dictionary; /* a column of any layout without a dictionary */
} ravo_column;

#define RAVO_COLUMN_INIT {sizeof(ravo_column), 0, 0, 0, 0, NULL, NULL, NULL, 0, NULL, NULL, 0, NULL}

/* What a function may rely on. */
enum { RAVO_TRUSTED = 1 /* offsets, views and indices are right: do not check them */ };

/* Codes of rows beside the reasons of checks. */
enum {
  RAVO_CODE_CORRECT = 0,
  RAVO_CODE_NOT_UTF8 = 65534, /* the value is not UTF-8 */
  RAVO_CODE_NULL = 65535      /* the row has no value */
};

/*
 * A function of the caller that a long call calls every few thousand rows, and at the end.
 *
 * 0 goes on. Any other result ends the call: RAVO_STOPPED, with the result in error->code.
 */
typedef int32_t(RAVO_CALL *ravo_progress)(void *context, size_t done, size_t total);

/* Room for a column of texts that a function writes. Rows that are wrong or null have an empty text. */
typedef struct ravo_texts {
  size_t size;        /* sizeof(ravo_texts) */
  ravo_layout layout; /* RAVO_LAYOUT_OFFSETS_32, _OFFSETS_64 or _FIXED */
  int32_t width;      /* bytes of a value (fixed); shorter ones end with NULs, a longer one is RAVO_RANGE */
  void *offsets;      /* room for an offset more than rows; not with fixed */
  char *data;         /* may be null with data_size 0, to ask for the length alone */
  size_t data_size;
  size_t data_length; /* receives the bytes of all texts. More than data_size: RAVO_BUFFER, and what fits is there.
                         Bytes of data past the texts are undefined */
} ravo_texts;

#define RAVO_TEXTS_INIT {sizeof(ravo_texts), 0, 0, NULL, NULL, 0, 0}

/* Room for what a check finds. Each pointer may be null. */
typedef struct ravo_answers {
  size_t size;       /* sizeof(ravo_answers) */
  uint16_t *codes;   /* of each row: the number of the reason, or one of RAVO_CODE_... */
  uint8_t *validity; /* (rows + 7) / 8 bytes: bit i, lowest first, is 1 if row i is correct; bits past the end: 0 */
  ravo_texts *texts; /* canonical forms, or usual spellings */
  size_t wrong;      /* receives how many rows are wrong; those that are null do not count */
  size_t nulls;      /* receives how many rows are null */
} ravo_answers;

#define RAVO_ANSWERS_INIT {sizeof(ravo_answers), NULL, NULL, NULL, 0, 0}

/*
 * Checks every row of a column for a kind, as ravo_check does, and writes codes, validity and canonical forms.
 *
 * RAVO_OK whatever the rows are. `flags` is 0 or RAVO_TRUSTED. `progress` may be null. Allocates for dictionaries
 * alone. The example is at the top of the chapter.
 */
ravo_status RAVO_CALL ravo_check_column(ravo_kind kind, const ravo_column *column, uint32_t flags,
                                        ravo_answers *answers, ravo_progress progress, void *context,
                                        ravo_error *error);

/*
 * Checks every row of a column for a kind, and writes usual spellings where ravo_check_column writes canonical forms.
 */
ravo_status RAVO_CALL ravo_respell_column(ravo_kind kind, const ravo_column *column, uint32_t flags,
                                          ravo_answers *answers, ravo_progress progress, void *context,
                                          ravo_error *error);

/*
 * Writes the CRC-32 (ISO-HDLC, as in ZIP) of the bytes of each row to `results`; 0 for an empty or null row.
 *
 * Any bytes will do: they need not be UTF-8. Allocates for dictionaries alone.
 *
 *     "123456789"  // 0xCBF43926
 */
ravo_status RAVO_CALL ravo_crc32_column(const ravo_column *column, uint32_t flags, uint32_t *results,
                                        ravo_progress progress, void *context, ravo_error *error);

/* The structs of the Arrow C data interface, exactly as that standard has them; a program may have them already. */
#ifndef ARROW_C_DATA_INTERFACE
#define ARROW_C_DATA_INTERFACE
#define ARROW_FLAG_DICTIONARY_ORDERED 1
#define ARROW_FLAG_NULLABLE 2
#define ARROW_FLAG_MAP_KEYS_SORTED 4
struct ArrowSchema {
  const char *format;
  const char *name;
  const char *metadata;
  int64_t flags;
  int64_t n_children;
  struct ArrowSchema **children;
  struct ArrowSchema *dictionary;
  void (*release)(struct ArrowSchema *);
  void *private_data;
};
struct ArrowArray {
  int64_t length;
  int64_t null_count;
  int64_t offset;
  int64_t n_buffers;
  int64_t n_children;
  const void **buffers;
  struct ArrowArray **children;
  struct ArrowArray *dictionary;
  void (*release)(struct ArrowArray *);
  void *private_data;
};
#endif

/* The struct of the Arrow C stream interface. */
#ifndef ARROW_C_STREAM_INTERFACE
#define ARROW_C_STREAM_INTERFACE
struct ArrowArrayStream {
  int (*get_schema)(struct ArrowArrayStream *, struct ArrowSchema *out);
  int (*get_next)(struct ArrowArrayStream *, struct ArrowArray *out);
  const char *(*get_last_error)(struct ArrowArrayStream *);
  void (*release)(struct ArrowArrayStream *);
  void *private_data;
};
#endif

/*
 * Describes an Arrow array of texts: writes `*column`, and `*dictionary` if the array has one.
 *
 * `field` is the name of a column of a record batch, or null for an array that is no batch. Formats: u, U, vu, z, Z,
 * vz, w:N, and dictionaries of these. Another format, or an array whose parts do not fit its format, is RAVO_ARGUMENT;
 * a name that the batch has not is RAVO_UNKNOWN. Schema and array are borrowed: they stay the caller's, who releases
 * them as ever, and the column holds until then. `dictionary` may be null if there is none. Never allocates.
 */
ravo_status RAVO_CALL ravo_column_of_arrow(const struct ArrowSchema *schema, const struct ArrowArray *array,
                                           const char *field, size_t field_length, ravo_column *column,
                                           ravo_column *dictionary, ravo_error *error);

/*
 * A function of the caller that receives a batch of a stream: its column, and how many rows came before it.
 *
 * The column holds until the function returns. 0 goes on. Any other result ends the stream: RAVO_STOPPED, with the
 * result in error->code.
 */
typedef int32_t(RAVO_CALL *ravo_batch)(void *context, const ravo_column *column, uint64_t first_row);

/*
 * Reads an Arrow stream to its end and gives a column of each batch to a function.
 *
 * `field` is as in ravo_column_of_arrow. The stream becomes the function's: it is released exactly once, whatever the
 * status, and so are its schema and its batches. A failure of the stream itself is RAVO_STOPPED, with its own number
 * in error->code and its own words as the message. Allocates nothing; the stream may.
 */
ravo_status RAVO_CALL ravo_arrow_stream(struct ArrowArrayStream *stream, const char *field, size_t field_length,
                                        ravo_batch batch, void *context, ravo_error *error);

#ifdef __cplusplus
}
#endif

#endif
