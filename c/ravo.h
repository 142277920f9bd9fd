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
 * version, checks, banks, days, money and VAT.
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

#ifdef __cplusplus
}
#endif

#endif
