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
 *           position. A text may contain NUL. Bytes are a void pointer and a length, for which
 *           RAVO_NUL_TERMINATED is RAVO_ARGUMENT.
 * Results.  A text goes into the caller's buffer of `size` bytes and ends with NUL; `*length` receives its whole
 *           length without the NUL, as snprintf returns it. If the buffer is too small, it receives what fits, never
 *           a part of a character, and the function returns RAVO_BUFFER. A null buffer with size 0 asks for the
 *           length alone: RAVO_OK. `length` may be null. What the buffer has past the NUL is undefined. Bytes go
 *           into a void buffer in the same way, without NUL: all of them, or none if it is too small.
 * Structs.  A struct that begins with its size is declared with its _INIT: `ravo_bank bank = RAVO_BANK_INIT;`.
 *           Its texts are UTF-8 and end with NUL.
 * Failure.  A function that can fail returns a ravo_status; RAVO_OK is 0. The last parameter is null or a
 *           ravo_error of the caller, which every failure fills. Results are written on RAVO_OK and, as said above,
 *           on RAVO_BUFFER; on any other status they are as they were. An unknown number of an enum, unknown flags, and
 *           null for a result that is not said to allow it are RAVO_ARGUMENT. If several numbers can be out of range,
 *           the message says which one is. Nothing is thrown, nothing is kept for the thread, no function ends the
 *           process.
 * Flags.    `flags` are constants added up, 0 for none of them.
 * Memory.   No function returns memory that the caller must free. Strings that a function returns are constants of
 *           the library, or live as long as the handle that has them. Each function or the head of its chapter says
 *           whether it allocates. What "never allocates" calls no allocator at all.
 * Handles.  What _open opens, _close closes; null may be closed. A handle that was closed must not be used again.
 * Callback. A function of the caller receives the `context` of the call. It returns 0 to continue; another number
 *           stops the work, which returns RAVO_STOPPED with that number as `error->code`.
 * Threads.  Every function may be called from any thread at any time. Several threads at once may read one handle;
 *           no other may use it while one changes it. What changes a handle takes it without const.
 * Money.    A ravo_money is an amount in ten-thousandths: 12 crowns 50 are 125000.
 * Days.     A ravo_day is a Julian Day Number: 2451545 is 1 January 2000. What depends on the day takes it as an
 *           argument: but for the chapter "This machine", nothing asks the clock.
 * Versions. Names, numbers and meanings in this file are kept for ever; new ones are added. A struct that may grow
 *           begins with its size. The symbols have the version RAVO_1.0. Nothing in
 *           this file is experimental.
 *
 * A check of form says "correct in form" and never that something exists. The chapters, the general before the
 * special: Failure; Version; Checks; What numbers tell; Banks; Days; Holidays and terms; Money; VAT; Payment
 * codes; Invoices; Texts; Order; Characters; Checksums; Random numbers and texts; Encodings; XML documents; The
 * suite's rules; The suite's forms and records; The suite's tables, captions and modules; The suite's XML;
 * Columns; This machine.
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

/* What a function returns. */
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
  RAVO_INTERNAL = 9,  /* a fault of the library: please report it */
  RAVO_MALFORMED = 10, /* bytes are no character of their encoding */
  RAVO_LACKING = 11   /* an encoding lacks a character */
};

/* Why a function failed. */
typedef struct ravo_error {
  size_t size;         /* sizeof(ravo_error), set by the caller */
  ravo_status status;  /* what the function returned */
  int32_t code;        /* of RAVO_WRONG the reason, see ravo_reason_name, or 0; of RAVO_STOPPED the caller's number */
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
 *     ravo_reason_sentence(104, RAVO_LANGUAGE_ENGLISH)  // "wrong: the check digit does not match"
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
 * this processor gets and the dates of the lists inside. Allocates.
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
 * Fails as ravo_check does. Never allocates.
 *
 *     ravo_respell(RAVO_KIND_IBAN, "CZ6508000000192000145399", ...)  // CZ65 0800 0000 1920 0014 5399
 */
ravo_status RAVO_CALL ravo_respell(ravo_kind kind, const char *text, size_t text_length, char *buffer, size_t size,
                                   size_t *length, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * What numbers tell
 *
 * An account tells its IBAN, a birth number the day of birth, a letter where to pay. Each function refuses what
 * ravo_check refuses, with the same reasons: RAVO_WRONG.
 */

/* A Czech bank account. */
typedef struct ravo_account {
  size_t size;     /* sizeof(ravo_account), set by the caller */
  int64_t number;  /* at most ten digits */
  int32_t prefix;  /* at most six digits; 0 for none */
  int32_t bank;    /* the bank code: 800 is 0800 */
} ravo_account;

#define RAVO_ACCOUNT_INIT {sizeof(ravo_account), 0, 0, 0}

/* Writes the parts of an account. Never allocates. */
ravo_status RAVO_CALL ravo_account_read(const char *text, size_t text_length, ravo_account *account,
                                        ravo_error *error);

/*
 * Writes the IBAN of a Czech account, of at most RAVO_VALUE_SIZE bytes.
 *
 * Never allocates.
 *
 *     ravo_account_to_iban("19-2000145399/0800", ...)  // CZ6508000000192000145399
 */
ravo_status RAVO_CALL ravo_account_to_iban(const char *text, size_t text_length, char *buffer, size_t size,
                                           size_t *length, ravo_error *error);

/*
 * Writes the account of a Czech IBAN in its usual spelling, of at most RAVO_VALUE_SIZE bytes.
 *
 * RAVO_UNKNOWN for an IBAN of another country. Never allocates.
 */
ravo_status RAVO_CALL ravo_account_of_iban(const char *text, size_t text_length, char *buffer, size_t size,
                                           size_t *length, ravo_error *error);

/* A day by its Julian Day Number, of the years 1 to 9999. */
typedef int32_t ravo_day;

/* The sex that a birth number tells. */
typedef int32_t ravo_sex;
enum { RAVO_SEX_MALE = 0, RAVO_SEX_FEMALE = 1 };

/* What a birth number tells. */
typedef struct ravo_birth {
  size_t size;            /* sizeof(ravo_birth), set by the caller */
  ravo_day born;          /* the day of birth */
  ravo_sex sex;           /* women have 50 added to the month */
  int32_t second_series;  /* 1 if 20 is added to the month, else 0 */
  int32_t remainder_ten;  /* 1 if it is not divisible by eleven and right all the same, else 0 */
} ravo_birth;

#define RAVO_BIRTH_INIT {sizeof(ravo_birth), 0, 0, 0, 0}

/*
 * Writes what a birth number tells.
 *
 * RAVO_WRONG with the reason "rc.future" if the day of birth is after `today`. Never allocates.
 *
 *     ravo_birth_read("880125/1680", RAVO_NUL_TERMINATED, today, &birth, NULL)  // 25 January 1988, male
 */
ravo_status RAVO_CALL ravo_birth_read(const char *text, size_t text_length, ravo_day today, ravo_birth *birth,
                                      ravo_error *error);

/* Writes the ISBN of thirteen digits of a book, of at most RAVO_VALUE_SIZE bytes. Never allocates. */
ravo_status RAVO_CALL ravo_isbn_to_13(const char *text, size_t text_length, char *buffer, size_t size,
                                      size_t *length, ravo_error *error);

/* A piece of payment data in a text. */
typedef struct ravo_payment {
  size_t size;                      /* sizeof(ravo_payment), set by the caller */
  size_t begin;                     /* where it begins, past its label, in bytes */
  size_t end;                       /* where it ends; the next search begins there */
  ravo_kind kind;                   /* an account, an IBAN or one of the three symbols */
  char canonical[RAVO_VALUE_SIZE];  /* as ravo_check writes it, ends with NUL */
} ravo_payment;

#define RAVO_PAYMENT_INIT {sizeof(ravo_payment), 0, 0, 0, {0}}

/*
 * Writes the first account, IBAN or payment symbol that ends after the byte `from` of a text.
 *
 * Accounts and IBANs are found by their form, symbols by their labels. RAVO_UNKNOWN if there is none, RAVO_RANGE
 * if `from` is past the end. Never allocates.
 *
 *     while (ravo_payment_find(letter, length, payment.end, &payment, NULL) == RAVO_OK) puts(payment.canonical);
 */
ravo_status RAVO_CALL ravo_payment_find(const char *text, size_t text_length, size_t from, ravo_payment *payment,
                                        ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Banks
 *
 * A list says which banks there were on its day, and nothing about other days. One is built in; a newer one is
 * opened from the central bank's CSV. Null for a list is the one that is built in.
 */

/* A list of banks. */
typedef struct ravo_bank_list ravo_bank_list;

/* A bank. Its texts live as long as the list. */
typedef struct ravo_bank {
  size_t size;       /* sizeof(ravo_bank), set by the caller */
  const char *bic;   /* null if it has none */
  const char *name;  /* UTF-8 */
  int32_t code;      /* 800 is 0800 */
  int32_t clears;    /* 1 if it takes part in the clearing system CERTIS, else 0 */
} ravo_bank;

#define RAVO_BANK_INIT {sizeof(ravo_bank), 0, 0, 0, 0}

/*
 * Opens a list in the central bank's CSV form, converted to UTF-8: a line of captions, then lines of code, name,
 * BIC and "A" for the clearing system, with semicolons between them.
 *
 * `date` is the day of the list. RAVO_WRONG with the reasons "bank.line", "bank.code", "bank.twice" and
 * "bank.empty", at their position; RAVO_RANGE for a day outside of the calendar. The list keeps no part of the
 * text. Allocates.
 */
ravo_status RAVO_CALL ravo_bank_list_open(const char *text, size_t text_length, ravo_day date,
                                          ravo_bank_list **list, ravo_error *error);

/* Closes a list. */
void RAVO_CALL ravo_bank_list_close(ravo_bank_list *list);

/* Returns the day of a list. Never allocates. */
ravo_day RAVO_CALL ravo_bank_list_date(const ravo_bank_list *list);

/* Returns how many banks a list has. Never allocates. */
size_t RAVO_CALL ravo_bank_count(const ravo_bank_list *list);

/* Writes the bank with an index, by code in ascending order. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_bank_at(const ravo_bank_list *list, size_t index, ravo_bank *bank, ravo_error *error);

/*
 * Writes the bank with a code; 800 is 0800.
 *
 * RAVO_WRONG with the reason "bank.unknown" if the list does not have it. Never allocates.
 */
ravo_status RAVO_CALL ravo_bank_find(const ravo_bank_list *list, int32_t code, ravo_bank *bank,
                                     ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Days
 *
 * The proleptic Gregorian calendar, in the years 1 to 9999; RAVO_RANGE outside of them and for dates that it does not
 * have.
 */

/* A date of the calendar. */
typedef struct ravo_date {
  int32_t year;  /* 1 to 9999 */
  int32_t month; /* 1 to 12 */
  int32_t day;   /* of the month, from 1 */
} ravo_date;

/* Writes the day of a date. Never allocates. */
ravo_status RAVO_CALL ravo_day_of(int32_t year, int32_t month, int32_t day_of_month, ravo_day *day,
                                  ravo_error *error);

/* Writes the date of a day. Never allocates. */
ravo_status RAVO_CALL ravo_date_of(ravo_day day, ravo_date *date, ravo_error *error);

/* Returns 1 if a year of the Gregorian calendar is a leap year, else 0. Never allocates. */
int32_t RAVO_CALL ravo_is_leap_year(int32_t year);

/* Writes the day of the week, 0 for Monday to 6 for Sunday. Never allocates. */
ravo_status RAVO_CALL ravo_weekday_of(ravo_day day, int32_t *weekday, ravo_error *error);

/* A week by ISO 8601. */
typedef struct ravo_week {
  int32_t year; /* the year of its Thursday */
  int32_t week; /* 1 to 53 */
} ravo_week;

/* Writes the ISO 8601 week of a day. Never allocates. */
ravo_status RAVO_CALL ravo_week_of(ravo_day day, ravo_week *week, ravo_error *error);

/* Writes the Monday of an ISO 8601 week. RAVO_RANGE if the year has no such week. Never allocates. */
ravo_status RAVO_CALL ravo_day_of_week(int32_t year, int32_t week, ravo_day *monday, ravo_error *error);

/* Writes how many days a month has. Never allocates. */
ravo_status RAVO_CALL ravo_days_in_month(int32_t year, int32_t month, int32_t *days, ravo_error *error);

/* Writes the first day of the month of a day. Never allocates. */
ravo_status RAVO_CALL ravo_month_begin(ravo_day day, ravo_day *first, ravo_error *error);

/* Writes the last day of the month of a day. Never allocates. */
ravo_status RAVO_CALL ravo_month_end(ravo_day day, ravo_day *last, ravo_error *error);

/*
 * Writes the day `months` months later, or earlier if negative.
 *
 * A day past the end of the new month becomes its last one. Never allocates.
 */
ravo_status RAVO_CALL ravo_add_months(ravo_day day, int32_t months, ravo_day *result, ravo_error *error);

/* How a date is written. */
typedef int32_t ravo_date_form;
enum {
  RAVO_DATE_ISO = 0,    /* 2026-11-21 */
  RAVO_DATE_CZECH = 1,  /* 21. 11. 2026 */
  RAVO_DATE_COMPACT = 2 /* 20261121 */
};

/* The longest date in bytes, with its NUL. */
#define RAVO_DATE_SIZE 16

/* Writes a day as a text of at most RAVO_DATE_SIZE bytes. Never allocates. */
ravo_status RAVO_CALL ravo_day_format(ravo_day day, ravo_date_form form, char *buffer, size_t size,
                                      size_t *length, ravo_error *error);

/*
 * Writes the day of a date as people write it: each form of ravo_date_form, in Czech with or without blanks.
 *
 * RAVO_WRONG with code 0 for a text that is none of them. Blanks around it are skipped. Never allocates.
 */
ravo_status RAVO_CALL ravo_day_read(const char *text, size_t text_length, ravo_day *day, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Holidays and terms
 *
 * Holidays by law 245/2000, working days, and the days on which terms end. Days before 2000 are not verified; before
 * 1993 there are no holidays.
 */

/* A public holiday. */
typedef struct ravo_holiday {
  size_t size;          /* sizeof(ravo_holiday), set by the caller */
  const char *czech;    /* its name by law, UTF-8 */
  const char *english;  /* its name in English */
  const char *law;      /* the law that gave it this form: "245/2000" */
  int32_t first_year;   /* the first year in which it holds */
  int32_t last_year;    /* the last; 9999 if there is no end */
  int32_t month;        /* 1 to 12; 0 if it follows Easter */
  int32_t day;          /* of the month, or days after Easter Sunday */
} ravo_holiday;

#define RAVO_HOLIDAY_INIT {sizeof(ravo_holiday), 0, 0, 0, 0, 0, 0, 0}

/* Returns how many holidays are known, former ones included. Never allocates. */
size_t RAVO_CALL ravo_holiday_count(void);

/* Writes the holiday with an index, by its place in the year. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_holiday_at(size_t index, ravo_holiday *holiday, ravo_error *error);

/* Writes the day of the holiday with an index. RAVO_RANGE if it does not hold in that year. Never allocates. */
ravo_status RAVO_CALL ravo_holiday_day(size_t index, int32_t year, ravo_day *day, ravo_error *error);

/*
 * Writes the `nth` holiday of a day, 0 for the first: 1 January has two.
 *
 * RAVO_UNKNOWN if there are fewer. Never allocates.
 */
ravo_status RAVO_CALL ravo_holiday_on(ravo_day day, size_t nth, ravo_holiday *holiday, ravo_error *error);

/* Writes Easter Sunday of a year. RAVO_RANGE outside of the years 1583 to 9999. Never allocates. */
ravo_status RAVO_CALL ravo_easter_sunday(int32_t year, ravo_day *day, ravo_error *error);

/* Returns 1 if a day is Monday to Friday and no holiday, else 0. Never allocates. */
int32_t RAVO_CALL ravo_is_working_day(ravo_day day);

/* Writes the first working day from `day` on, which may be `day` itself. Never allocates. */
ravo_status RAVO_CALL ravo_next_working_day(ravo_day day, ravo_day *working_day, ravo_error *error);

/*
 * Writes how many working days there are after `from` up to and with `to`.
 *
 * Negative if `to` is before `from`. Never allocates.
 */
ravo_status RAVO_CALL ravo_working_days_between(ravo_day from, ravo_day to, int32_t *days, ravo_error *error);

/* When a term ends. */
typedef struct ravo_term {
  size_t size;       /* sizeof(ravo_term), set by the caller */
  ravo_day counted;  /* as the days or months count */
  ravo_day due;      /* the same, or the next working day if it is not one */
  int32_t verified;  /* 1 if the holidays up to there are verified, else 0 */
} ravo_term;

#define RAVO_TERM_INIT {sizeof(ravo_term), 0, 0, 0}

/*
 * Writes when a term of `days` days ends. The day of the event, `from`, does not count.
 *
 * Never allocates.
 */
ravo_status RAVO_CALL ravo_term_in_days(ravo_day from, int32_t days, ravo_term *term, ravo_error *error);

/*
 * Writes when a term of `months` months ends: on the day of the same number, or the month's last.
 *
 * Never allocates.
 */
ravo_status RAVO_CALL ravo_term_in_months(ravo_day from, int32_t months, ravo_term *term, ravo_error *error);

/* Writes how many days `today` is past the due day; 0 up to that day. Never allocates. */
ravo_status RAVO_CALL ravo_days_overdue(ravo_day due, ravo_day today, int32_t *days, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Money
 *
 * All products are exact, and each result is rounded once. RAVO_RANGE if a result does not fit 64 bits.
 */

/* An amount of money in ten-thousandths. */
typedef int64_t ravo_money;

/* How an amount between two multiples of a step is rounded. */
typedef int32_t ravo_rounding;
enum {
  RAVO_ROUND_HALF_AWAY = 0, /* to the nearest multiple, halves away from zero */
  RAVO_ROUND_AWAY = 1,      /* to the multiple farther from zero */
  RAVO_ROUND_TOWARD = 2     /* to the multiple nearer to zero */
};

/* The longest amount in bytes, with its NUL. */
#define RAVO_MONEY_SIZE 24

/*
 * Writes an amount in plain digits, as a text of at most RAVO_MONEY_SIZE bytes.
 *
 * `separator` is the character between crowns and decimals, in ASCII; RAVO_ARGUMENT for another. There are at
 * least `places` decimals, 0 to 4, and at most four. Allocates for long amounts.
 *
 *     ravo_money_format(125000, ',', 2, ...)  // 12,50
 */
ravo_status RAVO_CALL ravo_money_format(ravo_money amount, int32_t separator, int32_t places, char *buffer,
                                        size_t size, size_t *length, ravo_error *error);

/*
 * Writes the amount of a text, which is a sign, digits, a separator, at most four decimals that are not zeros
 * at the end.
 *
 * RAVO_WRONG with code 0 for any other text and for amounts that do not fit 64 bits. Never allocates for texts of
 * up to 256 bytes.
 */
ravo_status RAVO_CALL ravo_money_read(const char *text, size_t text_length, int32_t separator, ravo_money *amount,
                                      ravo_error *error);

/*
 * Writes an amount rounded to a multiple of `step`: 100 are hundredths, 10000 whole crowns.
 *
 * RAVO_RANGE if `step` is not positive. Allocates on failure alone.
 */
ravo_status RAVO_CALL ravo_money_round(ravo_money amount, ravo_money step, ravo_rounding rounding,
                                       ravo_money *result, ravo_error *error);

/*
 * Writes an amount times `numerator` / `denominator`, rounded to a multiple of `step`.
 *
 * RAVO_RANGE if `denominator` is 0, if `step` is not positive, and if one times the other does not fit 64 bits.
 * Allocates on failure alone.
 *
 *     ravo_money_times_ratio(gross, 21, 121, 100, RAVO_ROUND_HALF_AWAY, &tax, NULL)
 */
ravo_status RAVO_CALL ravo_money_times_ratio(ravo_money amount, int64_t numerator, int64_t denominator,
                                             ravo_money step, ravo_rounding rounding, ravo_money *result,
                                             ravo_error *error);

/*
 * Writes an amount times a rate, rounded to a multiple of `step`. 2100 is 21 %, 253400 an exchange rate of 25,34.
 *
 * Fails as ravo_money_times_ratio does. Allocates on failure alone.
 */
ravo_status RAVO_CALL ravo_money_times_rate(ravo_money amount, ravo_money rate, ravo_money step,
                                            ravo_rounding rounding, ravo_money *result, ravo_error *error);

/* Writes an amount rounded to whole crowns, and the rounded amount less the given one. Never allocates. */
ravo_status RAVO_CALL ravo_money_to_crowns(ravo_money amount, ravo_rounding rounding, ravo_money *rounded,
                                           ravo_money *difference, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * VAT
 *
 * Rates and ways of computing the tax since 1993, with the days on which they are in force. The tax is rounded to
 * the haléř, halves away from zero.
 */

/* Which of the rates. */
typedef int32_t ravo_vat_kind;
enum {
  RAVO_VAT_ZERO = 0,          /* no tax */
  RAVO_VAT_STANDARD = 1,      /* základní */
  RAVO_VAT_REDUCED = 2,       /* snížená; from 2015 to 2023 the first of two */
  RAVO_VAT_SECOND_REDUCED = 3 /* druhá snížená, 2015 to 2023 */
};

/* How the tax comes from an amount. */
typedef int32_t ravo_vat_method;
enum {
  RAVO_VAT_FROM_BASE = 0,                 /* base times rate */
  RAVO_VAT_FROM_TOTAL_BY_COEFFICIENT = 1, /* total times a coefficient of four decimals */
  RAVO_VAT_FROM_TOTAL = 2                 /* total less total / (1 + rate) */
};

/* A rate. */
typedef struct ravo_vat_rate {
  size_t size;         /* sizeof(ravo_vat_rate), set by the caller */
  const char *law;     /* the law that set it: "500/2012" */
  ravo_day first;      /* the first day on which it is in force */
  ravo_day last;       /* the last; 31 December 9999 if there is no end */
  ravo_vat_kind kind;  /* which */
  int32_t percent;     /* 21 is 21 % */
} ravo_vat_rate;

#define RAVO_VAT_RATE_INIT {sizeof(ravo_vat_rate), 0, 0, 0, 0, 0}

/* Returns how many rates are known, former ones included. Never allocates. */
size_t RAVO_CALL ravo_vat_rate_count(void);

/* Writes the rate with an index, by its first day. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_vat_rate_at(size_t index, ravo_vat_rate *rate, ravo_error *error);

/*
 * Writes the percentage of a kind of rate on a day; 0 for RAVO_VAT_ZERO.
 *
 * RAVO_WRONG with the reason "rate.unknown" if it was not in force. Never allocates.
 */
ravo_status RAVO_CALL ravo_vat_percent_on(ravo_day day, ravo_vat_kind kind, int32_t *percent, ravo_error *error);

/* Writes the kind of a percentage on a day. RAVO_UNKNOWN if there was no such rate. Never allocates. */
ravo_status RAVO_CALL ravo_vat_kind_on(ravo_day day, int32_t percent, ravo_vat_kind *kind, ravo_error *error);

/* A way of computing the tax. */
typedef struct ravo_vat_way {
  size_t size;             /* sizeof(ravo_vat_way), set by the caller */
  const char *law;         /* the law that has it: "235/2004" */
  ravo_day first;          /* the first day on which it is lawful */
  ravo_day last;           /* the last; 31 December 9999 if there is no end */
  ravo_vat_method method;  /* which */
} ravo_vat_way;

#define RAVO_VAT_WAY_INIT {sizeof(ravo_vat_way), 0, 0, 0, 0}

/* Returns how many ways of computing the tax are known. Never allocates. */
size_t RAVO_CALL ravo_vat_way_count(void);

/* Writes the way with an index. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_vat_way_at(size_t index, ravo_vat_way *way, ravo_error *error);

/* Returns 1 if a way of computing the tax is lawful on a day, else 0. Never allocates. */
int32_t RAVO_CALL ravo_vat_is_lawful(ravo_vat_method method, ravo_day day);

/* Base, tax and total of an amount. */
typedef struct ravo_vat_amounts {
  size_t size;      /* sizeof(ravo_vat_amounts), set by the caller */
  ravo_money base;  /* without the tax */
  ravo_money tax;   /* whole haléře */
  ravo_money total; /* both */
  int32_t half;     /* 1 if the exact tax ends on half a haléř, else 0 */
} ravo_vat_amounts;

#define RAVO_VAT_AMOUNTS_INIT {sizeof(ravo_vat_amounts), 0, 0, 0, 0}

/*
 * Writes base, tax and total of an amount, which the method says to be a base or a total.
 *
 * RAVO_WRONG with the reason "rate.unknown" for a percentage outside of 0 to 100. Never allocates.
 */
ravo_status RAVO_CALL ravo_vat_compute(ravo_money amount, int32_t percent, ravo_vat_method method,
                                       ravo_vat_amounts *amounts, ravo_error *error);

/* A line of a document. */
typedef struct ravo_vat_line {
  ravo_money amount;  /* base or total, as the method says */
  ravo_vat_kind kind; /* its rate */
} ravo_vat_line;

/* Where the tax of a document is computed. */
typedef int32_t ravo_vat_per;
enum {
  RAVO_VAT_PER_DOCUMENT = 0, /* once for each rate, of the sum of its lines */
  RAVO_VAT_PER_LINE = 1      /* of each line, then added */
};

/* The part of a document that has one rate. */
typedef struct ravo_vat_row {
  ravo_money base;
  ravo_money tax;
  ravo_money total;
  size_t lines;    /* how many lines have the rate */
  int32_t percent; /* the percentage on the day */
  int32_t half;    /* 1 if any of its taxes ends on half a haléř, else 0 */
} ravo_vat_row;

/* A document by rates. */
typedef struct ravo_vat_summary {
  size_t size;          /* sizeof(ravo_vat_summary), set by the caller */
  ravo_vat_row rows[4]; /* by ravo_vat_kind */
  ravo_vat_row sum;     /* of all rows; its percentage is 0 */
} ravo_vat_summary;

#define RAVO_VAT_SUMMARY_INIT {sizeof(ravo_vat_summary), {{0, 0, 0, 0, 0, 0}}, {0, 0, 0, 0, 0, 0}}

/*
 * Writes the recapitulation of a document's lines by the rates of a day.
 *
 * RAVO_WRONG with the reasons "rate.unknown" at the index of the line and "rate.method" for a way that is not
 * lawful on the day; RAVO_RANGE at the index of the line. Allocates.
 */
ravo_status RAVO_CALL ravo_vat_recapitulate(const ravo_vat_line *lines, size_t lines_length,
                                            ravo_vat_method method, ravo_vat_per per, ravo_day day,
                                            ravo_vat_summary *summary, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Payment codes
 *
 * The texts of Czech QR codes: payments (SPAYD, "SPD*1.0*ACC:...*AM:450.00") by standard 26 of the Czech Banking
 * Association, and invoices (SID, "SID*1.0*ID:..."). A code has at most 2331 bytes, the room of the largest QR code.
 * Values are UTF-8 and plain: the functions encode and decode percent signs, asterisks and what is not ASCII.
 */

/* The longest code in bytes, with its NUL. */
#define RAVO_PAYMENT_CODE_SIZE 2332

/* Which of the two codes. */
typedef int32_t ravo_payment_code;
enum {
  RAVO_PAYMENT_CODE_SPAYD = 0, /* a payment */
  RAVO_PAYMENT_CODE_SID = 1    /* an invoice */
};

/* A payment. Null values are left out. */
typedef struct ravo_spayd {
  size_t size;                 /* sizeof(ravo_spayd), set by the caller */
  const char *account;         /* ACC: an IBAN, perhaps with "+" and a BIC; must be there */
  const char *other_accounts;  /* ALT-ACC: one or two such IBANs, divided by a comma */
  const char *amount;          /* AM: "450.00" */
  const char *currency;        /* CC: "CZK" */
  const char *reference;       /* RF: digits for the receiver */
  const char *receiver;        /* RN: the name of the receiver */
  const char *due;             /* DT: "20261231" */
  const char *payment_type;    /* PT: "IP" for an instant payment */
  const char *message;         /* MSG: for the receiver */
  const char *notify_by;       /* NT: "P" by telephone, "E" by electronic mail */
  const char *notify_to;       /* NTA: the number or the address */
  const char *retry_days;      /* X-PER: for how many days a refused payment is tried again */
  const char *variable_symbol; /* X-VS */
  const char *specific_symbol; /* X-SS */
  const char *constant_symbol; /* X-KS */
  const char *own_id;          /* X-ID: for the payer */
  const char *url;             /* X-URL */
  const char *invoice;         /* X-INV: an invoice code, from ravo_sid_write */
  int32_t checksum;            /* 1 to end the code with CRC32, else 0 */
} ravo_spayd;

#define RAVO_SPAYD_INIT \
  {sizeof(ravo_spayd), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}

/*
 * Writes the code of a payment, of at most RAVO_PAYMENT_CODE_SIZE bytes.
 *
 * RAVO_WRONG with the reasons "code...." and those of accounts, and RAVO_UTF8: `error->position` is the place in the
 * value, and the message begins with its key: "AM: wrong: an amount has ...". "code.missing" has neither: the account
 * is not there. Never allocates.
 *
 *     ravo_spayd code = RAVO_SPAYD_INIT;
 *     code.account = "CZ6508000000192000145399";
 *     code.amount = "450.00";
 *     ravo_spayd_write(&code, text, sizeof text, NULL, &error);
 */
ravo_status RAVO_CALL ravo_spayd_write(const ravo_spayd *code, char *buffer, size_t size, size_t *length,
                                       ravo_error *error);

/* An invoice. Null values are left out. */
typedef struct ravo_sid {
  size_t size;                 /* sizeof(ravo_sid), set by the caller */
  const char *number;          /* ID: of the document; must be there */
  const char *issued;          /* DD: "20261121"; must be there */
  const char *amount;          /* AM: "-450.00"; must be there unless `inside` */
  const char *tax_type;        /* TP: 0 usual, 1 reverse charge, 2 both */
  const char *document_type;   /* TD: 0 no tax document, 1 to 5 and 9 as the standard has them */
  const char *has_deposits;    /* SA: 1 if deposits are settled, else 0 */
  const char *message;         /* MSG */
  const char *order;           /* ON: number of the order */
  const char *variable_symbol; /* VS */
  const char *supplier_dic;    /* VII */
  const char *supplier_ico;    /* INI */
  const char *customer_dic;    /* VIR */
  const char *customer_ico;    /* INR */
  const char *tax_point;       /* DUZP: a day, as the others */
  const char *tax_due;         /* DPPD: the day of the duty to tell the tax */
  const char *due;             /* DT */
  const char *base_standard;   /* TB0: base in the standard rate */
  const char *tax_standard;    /* T0 */
  const char *base_reduced;    /* TB1: in the first reduced rate */
  const char *tax_reduced;     /* T1 */
  const char *base_second;     /* TB2: in the second reduced rate */
  const char *tax_second;      /* T2 */
  const char *untaxed;         /* NTB: what is not taxed */
  const char *currency;        /* CC: "CZK" */
  const char *exchange_rate;   /* FX: crowns for `exchange_count` units of the currency */
  const char *exchange_count;  /* FXA */
  const char *account;         /* ACC: an IBAN, perhaps with "+" and a BIC */
  const char *software;        /* X-SW */
  const char *url;             /* X-URL */
  int32_t inside;              /* 1 if the code goes into a payment code, which has what is left out, else 0 */
  int32_t checksum;            /* 1 to end the code with CRC32, else 0; nothing inside of a payment */
} ravo_sid;

#define RAVO_SID_INIT \
  {sizeof(ravo_sid), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}

/*
 * Writes the code of an invoice, of at most RAVO_PAYMENT_CODE_SIZE bytes.
 *
 * Fails as ravo_spayd_write does, and with the reasons of IČO and DIČ. Never allocates.
 */
ravo_status RAVO_CALL ravo_sid_write(const ravo_sid *code, char *buffer, size_t size, size_t *length,
                                     ravo_error *error);

/*
 * Checks a code and writes which of the two it is and how many values it has.
 *
 * Keys that the standard does not have pass, and a checksum is compared. RAVO_WRONG with the reasons "code....",
 * those of accounts, IČO and DIČ, at their position in the text. Never allocates.
 */
ravo_status RAVO_CALL ravo_payment_code_read(const char *text, size_t text_length, ravo_payment_code *code,
                                             size_t *values, ravo_error *error);

/*
 * Writes key and value with an index, in the order of a code: "AM" and "450.00".
 *
 * Fails as ravo_payment_code_read does; RAVO_UNKNOWN past the last. A value may contain NUL. Never allocates.
 */
ravo_status RAVO_CALL ravo_payment_code_at(const char *text, size_t text_length, size_t index, char *key,
                                           size_t key_size, size_t *key_length, char *value, size_t value_size,
                                           size_t *value_length, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Invoices
 *
 * Electronic invoices by the Czech national standard ISDOC 6.0.2: what is wrong with one, by the standard's schema, its
 * business rules and exact sums, and what it says. Everything is read and checked when an invoice is opened.
 *
 * Texts are as the document has them, without white space at their ends, amounts and days too ("2026-11-21", "1500.00").
 * They live as long as the invoice; what the document lacks is "". Amounts are in the currency of the books.
 */

/* An invoice. */
typedef struct ravo_invoice ravo_invoice;

/*
 * Opens an invoice: reads and checks it.
 *
 * The text is UTF-8, whatever encoding it declares. RAVO_WRONG with code 0 for what is not XML: `error->position` is
 * the place, the message tells line and column and why. What is XML and no invoice is opened, and its findings say so.
 * The invoice keeps no part of the text. Allocates.
 */
ravo_status RAVO_CALL ravo_invoice_open(const char *text, size_t text_length, ravo_invoice **invoice,
                                        ravo_error *error);

/* Closes an invoice. */
void RAVO_CALL ravo_invoice_close(ravo_invoice *invoice);

/* Whether the checks know a document. */
typedef int32_t ravo_invoice_version;
enum {
  RAVO_INVOICE_VERSION_KNOWN = 0, /* ISDOC 6 */
  RAVO_INVOICE_VERSION_OTHER = 1, /* ISDOC of another version: findings say little */
  RAVO_INVOICE_VERSION_NONE = 2   /* no document of ISDOC */
};

/* What an invoice says once. */
typedef struct ravo_invoice_head {
  size_t size;                  /* sizeof(ravo_invoice_head), set by the caller */
  const char *number;           /* of the document */
  const char *type;             /* "1" an invoice, to "7", as the standard numbers them */
  const char *uuid;
  const char *issued;
  const char *tax_point;
  const char *currency;         /* of the books */
  const char *foreign_currency; /* of the document, if it is another */
  const char *note;
  ravo_invoice_version version; /* whether the checks know it */
} ravo_invoice_head;

#define RAVO_INVOICE_HEAD_INIT {sizeof(ravo_invoice_head), 0, 0, 0, 0, 0, 0, 0, 0, 0}

/* Writes what an invoice says once. Never allocates. */
ravo_status RAVO_CALL ravo_invoice_head_of(const ravo_invoice *invoice, ravo_invoice_head *head,
                                           ravo_error *error);

/* The two sides of the business. */
typedef int32_t ravo_invoice_role;
enum { RAVO_INVOICE_ROLE_SUPPLIER = 0, RAVO_INVOICE_ROLE_CUSTOMER = 1 };

/* One side of the business. */
typedef struct ravo_invoice_party {
  size_t size;         /* sizeof(ravo_invoice_party), set by the caller */
  const char *ico;     /* company number */
  const char *dic;     /* the number for VAT, or else the first tax number */
  const char *name;
  const char *street;
  const char *building;
  const char *post_code;
  const char *city;
  const char *country; /* its code: "CZ" */
} ravo_invoice_party;

#define RAVO_INVOICE_PARTY_INIT {sizeof(ravo_invoice_party), 0, 0, 0, 0, 0, 0, 0, 0}

/* Writes a side of the business. Never allocates. */
ravo_status RAVO_CALL ravo_invoice_party_of(const ravo_invoice *invoice, ravo_invoice_role role,
                                            ravo_invoice_party *party, ravo_error *error);

/* A line. */
typedef struct ravo_invoice_line {
  size_t size;            /* sizeof(ravo_invoice_line), set by the caller */
  const char *number;
  const char *text;       /* what was sold */
  const char *quantity;
  const char *unit;
  const char *unit_price;
  const char *rate;       /* in percent */
  const char *base;       /* without the tax */
  const char *tax;
  const char *total;      /* with the tax */
  int32_t reverse_charge; /* 1 if the customer owes the tax, else 0 */
} ravo_invoice_line;

#define RAVO_INVOICE_LINE_INIT {sizeof(ravo_invoice_line), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}

/* Returns how many lines an invoice has; 0 for null. Never allocates. */
size_t RAVO_CALL ravo_invoice_line_count(const ravo_invoice *invoice);

/* Writes the line with an index. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_invoice_line_at(const ravo_invoice *invoice, size_t index, ravo_invoice_line *line,
                                           ravo_error *error);

/* The ways in which a tax comes about. */
typedef int32_t ravo_invoice_way;
enum {
  RAVO_INVOICE_WAY_NONE = 0,        /* no lawful way gives it */
  RAVO_INVOICE_WAY_UNTAXED = 1,     /* there is no tax */
  RAVO_INVOICE_WAY_BASE = 2,        /* of the base */
  RAVO_INVOICE_WAY_TOTAL = 3,       /* of the amount with tax */
  RAVO_INVOICE_WAY_COEFFICIENT = 4, /* of the amount with tax, by a coefficient of four decimals */
  RAVO_INVOICE_WAY_LINES = 5        /* the taxes of the lines added */
};

/* A row of the recapitulation. */
typedef struct ravo_invoice_rate {
  size_t size;                 /* sizeof(ravo_invoice_rate), set by the caller */
  const char *rate;            /* in percent */
  const char *base;            /* without the tax */
  const char *tax;
  const char *total;           /* with the tax */
  const char *claimed_base;    /* of taxed deposits */
  const char *claimed_tax;
  const char *claimed_total;
  const char *difference_base; /* less the taxed deposits */
  const char *difference_tax;
  const char *difference_total;
  int32_t reverse_charge;      /* 1 if the customer owes the tax, else 0 */
  ravo_invoice_way way;        /* the lawful way that gives the tax */
} ravo_invoice_rate;

#define RAVO_INVOICE_RATE_INIT {sizeof(ravo_invoice_rate), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}

/* Returns how many rows the recapitulation has; 0 for null. Never allocates. */
size_t RAVO_CALL ravo_invoice_rate_count(const ravo_invoice *invoice);

/* Writes the row of the recapitulation with an index. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_invoice_rate_at(const ravo_invoice *invoice, size_t index, ravo_invoice_rate *rate,
                                           ravo_error *error);

/* The sums of an invoice. */
typedef struct ravo_invoice_totals {
  size_t size;                 /* sizeof(ravo_invoice_totals), set by the caller */
  const char *base;            /* without the tax */
  const char *tax;
  const char *total;           /* with the tax */
  const char *claimed_base;    /* of taxed deposits */
  const char *claimed_total;
  const char *difference_base; /* less the taxed deposits */
  const char *difference_total;
  const char *rounding;
  const char *paid_deposits;   /* deposits that are not taxed */
  const char *payable;         /* what is to be paid */
} ravo_invoice_totals;

#define RAVO_INVOICE_TOTALS_INIT {sizeof(ravo_invoice_totals), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}

/* Writes the sums of an invoice. Never allocates. */
ravo_status RAVO_CALL ravo_invoice_totals_of(const ravo_invoice *invoice, ravo_invoice_totals *totals,
                                             ravo_error *error);

/* A payment of an invoice. */
typedef struct ravo_invoice_payment {
  size_t size;         /* sizeof(ravo_invoice_payment), set by the caller */
  const char *amount;
  const char *means;   /* its code: "10" in cash, "42" by bank transfer */
  const char *due;
  const char *account; /* without the bank */
  const char *bank;    /* its code */
  const char *iban;
  const char *bic;
  const char *variable_symbol;
  const char *constant_symbol;
  const char *specific_symbol;
} ravo_invoice_payment;

#define RAVO_INVOICE_PAYMENT_INIT {sizeof(ravo_invoice_payment), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}

/* Returns how many payments an invoice has; 0 for null. Never allocates. */
size_t RAVO_CALL ravo_invoice_payment_count(const ravo_invoice *invoice);

/* Writes the payment with an index. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_invoice_payment_at(const ravo_invoice *invoice, size_t index,
                                              ravo_invoice_payment *payment, ravo_error *error);

/* How grave a finding is. */
typedef int32_t ravo_invoice_severity;
enum {
  RAVO_INVOICE_SEVERITY_NOTE = 0, /* lawful, or within half a haléř for each line; worth a look */
  RAVO_INVOICE_SEVERITY_ERROR = 1 /* the document breaks a rule */
};

/* What is wrong with an invoice. */
typedef struct ravo_invoice_finding {
  size_t size;                    /* sizeof(ravo_invoice_finding), set by the caller */
  const char *name;               /* the stable name of the rule: "sum.lines" */
  const char *element;            /* the name of the element */
  const char *found;              /* what is there; "" if nothing is */
  const char *expected;           /* what should be there; "" if the rule says it all */
  int32_t rule;                   /* its number, for ravo_invoice_rule_sentence */
  int32_t reason;                 /* why a check refuses what is there, for ravo_reason_sentence; 0 if none does */
  ravo_invoice_severity severity; /* how grave it is */
  uint32_t line;                  /* in the text, from 1 */
  uint32_t column;                /* in characters, from 1 */
} ravo_invoice_finding;

#define RAVO_INVOICE_FINDING_INIT {sizeof(ravo_invoice_finding), 0, 0, 0, 0, 0, 0, 0, 0, 0}

/* Returns how many findings an invoice has, of structure and content; 0 for null. Never allocates. */
size_t RAVO_CALL ravo_invoice_finding_count(const ravo_invoice *invoice);

/* Writes the finding with an index, in the order of the text. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_invoice_finding_at(const ravo_invoice *invoice, size_t index,
                                              ravo_invoice_finding *finding, ravo_error *error);

/*
 * Returns the sentence of a rule in a language, UTF-8, without a full stop, or null for an unknown number.
 *
 * Never allocates.
 */
const char *RAVO_CALL ravo_invoice_rule_sentence(int32_t rule, ravo_language language);

/* ------------------------------------------------------------------------------------------------------------
 * Texts
 *
 * Case is mapped character by character: the number of characters stays. Functions that write texts allocate.
 */

/* Writes a text in upper case. */
ravo_status RAVO_CALL ravo_text_upper(const char *text, size_t text_length, char *buffer, size_t size,
                                      size_t *length, ravo_error *error);

/* Writes a text in lower case. */
ravo_status RAVO_CALL ravo_text_lower(const char *text, size_t text_length, char *buffer, size_t size,
                                      size_t *length, ravo_error *error);

/* Writes the case-folded form of a text, equal for texts that differ only in case. */
ravo_status RAVO_CALL ravo_text_fold(const char *text, size_t text_length, char *buffer, size_t size,
                                     size_t *length, ravo_error *error);

/* Writes a text with the first character of each word in upper case and the others in lower case. */
ravo_status RAVO_CALL ravo_text_proper(const char *text, size_t text_length, char *buffer, size_t size,
                                       size_t *length, ravo_error *error);

/*
 * Writes 1 if a whole text matches a mask, else 0. "*" is any run of characters, "?" one character of UTF-16.
 *
 * `ignore_case` is 0, or 1 to fold both. Never allocates for texts and masks of up to 256 bytes.
 */
ravo_status RAVO_CALL ravo_text_match(const char *text, size_t text_length, const char *mask, size_t mask_length,
                                      int32_t ignore_case, int32_t *answer, ravo_error *error);

/*
 * Writes 1 if a whole text matches a mask, else 0, as ravo_text_match does, with the units of UTF-16 `wild` for "*" and
 * `one` for "?". If both are the same, it is `wild`.
 *
 * Never allocates for texts and masks of up to 256 bytes.
 */
ravo_status RAVO_CALL ravo_text_match_with(const char *text, size_t text_length, const char *mask,
                                           size_t mask_length, uint16_t wild, uint16_t one, int32_t ignore_case,
                                           int32_t *answer, ravo_error *error);

/* Writes a text in the form encoding of URLs: "a+b%26c" of "a b&c". */
ravo_status RAVO_CALL ravo_url_encode(const char *text, size_t text_length, char *buffer, size_t size,
                                      size_t *length, ravo_error *error);

/*
 * Writes a form-encoded text decoded. A "%" without two hexadecimal digits stays.
 *
 * RAVO_UTF8 if the result is not UTF-8, at its position there.
 */
ravo_status RAVO_CALL ravo_url_decode(const char *text, size_t text_length, char *buffer, size_t size,
                                      size_t *length, ravo_error *error);

/* Writes the part of a URI before the first "#", or the whole URI without one. */
ravo_status RAVO_CALL ravo_uri_without_fragment(const char *uri, size_t uri_length, char *buffer, size_t size,
                                                size_t *length, ravo_error *error);

/* Writes the part of a URI after the first "#", or an empty text without one. */
ravo_status RAVO_CALL ravo_uri_fragment(const char *uri, size_t uri_length, char *buffer, size_t size,
                                        size_t *length, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Order
 *
 * The Czech alphabetical order: c, č, ... h, ch, ... r, ř, s, š, ... z, ž. Of words with the same letters, accents
 * decide, then capitals: small letters come first. Blanks and signs precede letters, digits follow them (ČSN 97
 * 6030). It is the same on every machine. To sort many texts, make a key of each: keys compare byte by byte, as
 * memcmp does and then their lengths, and so do columns of bytes.
 */

/* How texts compare. */
enum {
  RAVO_ORDER_PLAIN = 0,        /* as said above */
  RAVO_ORDER_IGNORE_CASE = 1,  /* small letters and capitals are equal */
  RAVO_ORDER_NATURAL = 2,      /* runs of the digits 0 to 9 compare by value: "FV9" before "FV10" */
  RAVO_ORDER_DIGITS_FIRST = 4  /* digits precede letters, as in most programs */
};

/*
 * Writes -1, 0 or 1: whether text `a` comes before `b` in the Czech order, is equal to it, or comes after it.
 *
 * Never allocates.
 *
 *     ravo_compare_czech("cihla", RAVO_NUL_TERMINATED, "čaj", RAVO_NUL_TERMINATED, 0, &order, NULL)  // -1
 */
ravo_status RAVO_CALL ravo_compare_czech(const char *a, size_t a_length, const char *b, size_t b_length,
                                         uint32_t flags, int32_t *order, ravo_error *error);

/*
 * Writes the key of a text in the Czech order: bytes, of which none is 0 without RAVO_ORDER_NATURAL.
 *
 * Keys of the same flags compare as their texts do. Other versions of the library may make other keys: do not store
 * them. Allocates.
 */
ravo_status RAVO_CALL ravo_czech_key(const char *text, size_t text_length, uint32_t flags, void *buffer, size_t size,
                                     size_t *length, ravo_error *error);

/*
 * Writes -1, 0 or 1: how the numbers compare with which two texts begin.
 *
 * A number is a sign, digits of any count, blanks between them, a decimal comma or point: "-1 234,50 Kč". A text
 * without a number is less than any number. Never allocates.
 */
ravo_status RAVO_CALL ravo_compare_numbers(const char *a, size_t a_length, const char *b, size_t b_length,
                                           int32_t *order, ravo_error *error);

/*
 * Writes the key of the number with which a text begins: bytes.
 *
 * Keys compare as ravo_compare_numbers does. Other versions of the library may make other keys: do not store them.
 * Allocates.
 */
ravo_status RAVO_CALL ravo_number_key(const char *text, size_t text_length, void *buffer, size_t size,
                                      size_t *length, ravo_error *error);

/*
 * Writes a negative number, 0 or a positive one: how the suite compares two texts with numbers, by UTF-16 units.
 *
 * The number is the difference of two units or of two lengths, or 1 or -1 if one number is longer. Digits are those
 * of every script. Zeros inside a number do not count: "105" comes before "15", so that the order has cycles.
 * `ignore_case` is 0, or 1 to fold both. Never allocates for texts of up to 256 bytes.
 */
ravo_status RAVO_CALL ravo_suite_compare_num(const char *a, size_t a_length, const char *b, size_t b_length,
                                             int32_t ignore_case, int64_t *difference, ravo_error *error);

/*
 * Writes how the suite compares bytes of any encoding, as ravo_suite_compare_num does texts: digits are 0 to 9, and
 * ASCII letters alone have case.
 *
 * Never allocates.
 */
ravo_status RAVO_CALL ravo_suite_compare_num_bytes(const void *a, size_t a_length, const void *b,
                                                   size_t b_length, int32_t ignore_case, int64_t *difference,
                                                   ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Characters
 *
 * A character is a unit of UTF-16, as in the suite: one past U+FFFF is two surrogates, which have a category of
 * their own and map to themselves. The tables are those of Unicode 15.0.0.
 */

/* What a character can be. In brackets: the category of Unicode. */
typedef int32_t ravo_character_property;
enum {
  RAVO_CHARACTER_UNASSIGNED = 0,                  /* (Cn) no character, in the version of the tables */
  RAVO_CHARACTER_LETTER_UPPER_CASE = 1,           /* (Lu) */
  RAVO_CHARACTER_LETTER_LOWER_CASE = 2,           /* (Ll) */
  RAVO_CHARACTER_LETTER_TITLE_CASE = 3,           /* (Lt) such as U+01C5 */
  RAVO_CHARACTER_LETTER_MODIFIER = 4,             /* (Lm) */
  RAVO_CHARACTER_LETTER_OTHER = 5,                /* (Lo) a letter without case */
  RAVO_CHARACTER_MARK_NON_SPACING = 6,            /* (Mn) */
  RAVO_CHARACTER_MARK_SPACING_COMBINED = 7,       /* (Mc) */
  RAVO_CHARACTER_MARK_ENCLOSING = 8,              /* (Me) */
  RAVO_CHARACTER_NUMBER_DECIMAL = 9,              /* (Nd) a decimal digit of any script */
  RAVO_CHARACTER_NUMBER_LETTER = 10,              /* (Nl) such as U+2160, the Roman one */
  RAVO_CHARACTER_NUMBER_OTHER = 11,               /* (No) such as U+00BD, a half */
  RAVO_CHARACTER_PUNCTUATION_CONNECTOR = 12,      /* (Pc) such as the low line */
  RAVO_CHARACTER_PUNCTUATION_DASH = 13,           /* (Pd) */
  RAVO_CHARACTER_PUNCTUATION_OPEN = 14,           /* (Ps) */
  RAVO_CHARACTER_PUNCTUATION_CLOSE = 15,          /* (Pe) */
  RAVO_CHARACTER_PUNCTUATION_INITIAL_QUOTE = 16,  /* (Pi) */
  RAVO_CHARACTER_PUNCTUATION_FINAL_QUOTE = 17,    /* (Pf) */
  RAVO_CHARACTER_PUNCTUATION_OTHER = 18,          /* (Po) */
  RAVO_CHARACTER_SYMBOL_MATH = 19,                /* (Sm) */
  RAVO_CHARACTER_SYMBOL_CURRENCY = 20,            /* (Sc) */
  RAVO_CHARACTER_SYMBOL_MODIFIER = 21,            /* (Sk) */
  RAVO_CHARACTER_SYMBOL_OTHER = 22,               /* (So) */
  RAVO_CHARACTER_SEPARATOR_SPACE = 23,            /* (Zs) */
  RAVO_CHARACTER_SEPARATOR_LINE = 24,             /* (Zl) */
  RAVO_CHARACTER_SEPARATOR_PARAGRAPH = 25,        /* (Zp) */
  RAVO_CHARACTER_OTHER_CONTROL = 26,              /* (Cc) */
  RAVO_CHARACTER_OTHER_FORMAT = 27,               /* (Cf) */
  RAVO_CHARACTER_OTHER_SURROGATE = 28,            /* (Cs) */
  RAVO_CHARACTER_OTHER_PRIVATE_USE = 29,          /* (Co) */
  RAVO_CHARACTER_LETTER = 30,                     /* (L) numbers 1 to 5 */
  RAVO_CHARACTER_MARK = 31,                       /* (M) numbers 6 to 8 */
  RAVO_CHARACTER_NUMBER = 32,                     /* (N) numbers 9 to 11 */
  RAVO_CHARACTER_PUNCTUATION = 33,                /* (P) numbers 12 to 18 */
  RAVO_CHARACTER_SYMBOL = 34,                     /* (S) numbers 19 to 22 */
  RAVO_CHARACTER_SEPARATOR = 35,                  /* (Z) numbers 23 to 25 */
  RAVO_CHARACTER_OTHER = 36,                      /* (C) numbers 26 to 29: without the unassigned ones */
  RAVO_CHARACTER_LETTER_COMMON = 37,              /* a letter of the Latin, Greek and Cyrillic blocks */
  RAVO_CHARACTER_WHITE_SPACE = 38,                /* by the property White_Space */
  RAVO_CHARACTER_ALPHA = 39,                      /* a letter */
  RAVO_CHARACTER_ALPHA_NUM = 40,                  /* a letter or a decimal digit of any script */
  RAVO_CHARACTER_DIGIT = 41,                      /* a decimal digit of any script */
  RAVO_CHARACTER_HEX_DIGIT = 42,                  /* 0 to 9, A to F, a to f */
  RAVO_CHARACTER_HANGUL = 43,                     /* a syllable, U+AC00 to U+D7A3 */
  RAVO_CHARACTER_CR_LF = 44,                      /* carriage return or line feed */
  RAVO_CHARACTER_LOW_LINE = 45,                   /* "_" */
  RAVO_CHARACTER_QUOTE = 46,                      /* U+0022 or U+0027 */
  RAVO_CHARACTER_WORD_SEPARATOR = 47,             /* assigned, and no letter, mark, number, connector, surrogate */
  RAVO_CHARACTER_WHITE_SPACE_OR_AMPERSAND = 48,   /* white space or "&" */
  RAVO_CHARACTER_WHITE_SPACE_OR_COLON = 49,       /* white space or ":" */
  RAVO_CHARACTER_WHITE_SPACE_OR_NO_BREAK_SPACE = 50, /* white space, of which U+00A0 is */
  RAVO_CHARACTER_WHITE_SPACE_GT = 51,             /* white space or ">" */
  RAVO_CHARACTER_WHITE_SPACE_LT = 52,             /* white space or "<" */
  RAVO_CHARACTER_WHITE_SPACE_HYPHEN = 53,         /* white space or "-" */
  RAVO_CHARACTER_WHITE_SPACE_HYPHEN_GT = 54       /* white space, "-" or ">" */
};

/*
 * Writes 1 if a character has a property, else 0.
 *
 * Never allocates.
 *
 *     ravo_character_is(0x010D, RAVO_CHARACTER_LETTER, &answer, NULL)  // 1: č
 */
ravo_status RAVO_CALL ravo_character_is(uint16_t unit, ravo_character_property property, int32_t *answer,
                                        ravo_error *error);

/* Writes the category of a character: one of the numbers 0 to 29. Never allocates. */
ravo_status RAVO_CALL ravo_character_category(uint16_t unit, ravo_character_property *category,
                                              ravo_error *error);

/*
 * Returns the short name of a category or of a group, such as "Lu" or "L", or null for what is neither.
 *
 * Never allocates.
 */
const char *RAVO_CALL ravo_character_category_name(ravo_character_property category);

/* Writes the upper case of a character, or itself if it has none of one unit. Never allocates. */
ravo_status RAVO_CALL ravo_character_to_upper(uint16_t unit, uint16_t *mapped, ravo_error *error);

/* Writes the lower case of a character, or itself if it has none of one unit. Never allocates. */
ravo_status RAVO_CALL ravo_character_to_lower(uint16_t unit, uint16_t *mapped, ravo_error *error);

/* Writes the title case of a character: the upper case, but U+01C5 for U+01C4 and the like. Never allocates. */
ravo_status RAVO_CALL ravo_character_to_title(uint16_t unit, uint16_t *mapped, ravo_error *error);

/* Writes the case-folded form of a character, equal for those that differ only in case. Never allocates. */
ravo_status RAVO_CALL ravo_character_to_case_fold(uint16_t unit, uint16_t *mapped, ravo_error *error);

/*
 * Writes the canonical combining class of a character: 0 for a starter, else the rank of a mark, up to 254.
 *
 * Never allocates.
 */
ravo_status RAVO_CALL ravo_character_combining_class(uint16_t unit, int32_t *rank, ravo_error *error);

/* How a character is decomposed. */
typedef int32_t ravo_decomposition;
enum {
  RAVO_DECOMPOSITION_CANONICAL = 0,  /* the full canonical one, marks in canonical order: "é" is "e" and U+0301 */
  RAVO_DECOMPOSITION_COMPATIBLE = 1, /* the full compatibility one, or the canonical one if there is no other */
  RAVO_DECOMPOSITION_HANGUL = 2      /* the letters of a Hangul syllable, which the others leave alone */
};

/*
 * Writes the decomposition of a character; an empty text if it has none.
 *
 * Allocates.
 */
ravo_status RAVO_CALL ravo_character_decompose(uint16_t unit, ravo_decomposition decomposition, char *buffer,
                                               size_t size, size_t *length, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Checksums
 *
 * For finding errors and for tables of keys, not for secrets.
 */

/*
 * Changes the CRC-32 of zip and Ethernet to that of the bytes so far and these. Begin with 0.
 *
 * Never allocates.
 *
 *     uint32_t crc = 0;
 *     ravo_crc32("123456789", 9, &crc, NULL);  // 0xCBF43926
 */
ravo_status RAVO_CALL ravo_crc32(const void *bytes, size_t bytes_length, uint32_t *crc, ravo_error *error);

/* How bytes or characters count in the suite's hash. */
typedef int32_t ravo_suite_hash_of;
enum {
  RAVO_SUITE_HASH_BYTES = 0,        /* the bytes */
  RAVO_SUITE_HASH_UPPER_BYTES = 1,  /* the bytes in upper case, as letters of Windows-1250 */
  RAVO_SUITE_HASH_TEXT = 2,         /* the little-endian bytes of the text in UTF-16 */
  RAVO_SUITE_HASH_FOLDED_TEXT = 3   /* the case-folded UTF-16 units of the text */
};

/*
 * Writes the suite's 32-bit hash. `initial` selects one of many independent hash functions.
 *
 * Texts are UTF-8. Texts of more than 256 bytes allocate.
 */
ravo_status RAVO_CALL ravo_suite_hash(ravo_suite_hash_of what, const void *bytes, size_t bytes_length,
                                      uint32_t initial, uint32_t *hash, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Random numbers and texts
 *
 * The Mersenne Twister MT19937: a seed gives the same numbers on every machine. Not for secrets.
 *
 *     ravo_random *random = NULL;
 *     uint32_t number = 0;
 *     ravo_random_open(5489, &random, NULL);
 *     ravo_random_int32(random, &number, NULL);  // 3499211612
 *     ravo_random_close(random);
 */

/* A generator. */
typedef struct ravo_random ravo_random;

/* Opens a generator by a number. Allocates. */
ravo_status RAVO_CALL ravo_random_open(uint32_t seed, ravo_random **random, ravo_error *error);

/* Opens a generator by an array of keys, as the generator's authors do. RAVO_RANGE if there are none. Allocates. */
ravo_status RAVO_CALL ravo_random_open_array(const uint32_t *keys, size_t keys_length, ravo_random **random,
                                             ravo_error *error);

/*
 * Opens a generator by bytes, as the suite does: each byte is a key.
 *
 * From 624 bytes on it is another generator than that of an array with the same keys. RAVO_RANGE if there are none.
 * Allocates.
 */
ravo_status RAVO_CALL ravo_random_open_bytes(const void *bytes, size_t bytes_length, ravo_random **random,
                                             ravo_error *error);

/* Closes a generator. */
void RAVO_CALL ravo_random_close(ravo_random *random);

/* Writes the upper 31 of the next 32 bits: 0 to 2147483647. Never allocates. */
ravo_status RAVO_CALL ravo_random_int31(ravo_random *random, uint32_t *number, ravo_error *error);

/* Writes the next 32 bits. Never allocates. */
ravo_status RAVO_CALL ravo_random_int32(ravo_random *random, uint32_t *number, ravo_error *error);

/*
 * Writes the next 32 bits as the low half, and the upper 31 bits of the draw after it as the high half.
 *
 * RAVO_RANGE if the highest bit of the low half is set, as it is every other time: that draw is gone. For 63 bits
 * that never fail, call ravo_random_int32 and ravo_random_int31. Allocates on failure alone.
 */
ravo_status RAVO_CALL ravo_random_int63(ravo_random *random, int64_t *number, ravo_error *error);

/*
 * Writes the next 32 bits as the low half, and the 32 bits after them as the high half.
 *
 * RAVO_RANGE if the highest bit of either is set: the draws up to that one are gone. For 64 bits that never fail,
 * call ravo_random_int32 twice. Allocates on failure alone.
 */
ravo_status RAVO_CALL ravo_random_int64(ravo_random *random, int64_t *number, ravo_error *error);

/* Writes a number from 0 to 1, both included, in steps of 1 / (2^32 - 1). Never allocates. */
ravo_status RAVO_CALL ravo_random_real1(ravo_random *random, double *number, ravo_error *error);

/* Writes a number from 0 to below 1, in steps of 2^-32. Never allocates. */
ravo_status RAVO_CALL ravo_random_real2(ravo_random *random, double *number, ravo_error *error);

/* Writes a number between 0 and 1, neither included, in steps of 2^-32. Never allocates. */
ravo_status RAVO_CALL ravo_random_real3(ravo_random *random, double *number, ravo_error *error);

/* Writes a number from 0 to below 1, in steps of 2^-53, from two draws. Never allocates. */
ravo_status RAVO_CALL ravo_random_res53(ravo_random *random, double *number, ravo_error *error);

/*
 * Writes a text of `count` characters of an alphabet, one draw for each: what the suite's StrRandom makes if the
 * generator was just opened by the bytes of its seed.
 *
 * RAVO_ARGUMENT if the alphabet is empty and `count` is not 0. If the buffer is null or too small, the generator stays
 * as it was. Allocates.
 */
ravo_status RAVO_CALL ravo_random_text(ravo_random *random, const char *alphabet, size_t alphabet_length,
                                       size_t count, char *buffer, size_t size, size_t *length,
                                       ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Encodings
 *
 * Conversion is exact: every character of Unicode, and what the encoding's definition calls malformed is malformed.
 * A byte-order mark is a character like any other.
 */

/*
 * An encoding by its number, 0, 1, ... without gaps.
 *
 * Other versions of the library may have other numbers: keep the name.
 */
typedef int32_t ravo_encoding;

/* What is known of an encoding. */
typedef struct ravo_encoding_info {
  size_t size;          /* sizeof(ravo_encoding_info), set by the caller */
  const char *name;     /* "Windows_1250" */
  const char *label;    /* for people */
  const char *aliases;  /* other names, separated by blanks */
  const char *notes;    /* remarks; may be empty */
  int32_t code_page;    /* Windows number; 0 if it has none */
  int32_t can_read;     /* 1 if it can be converted from, else 0 */
  int32_t can_write;    /* 1 if it can be converted to, else 0 */
} ravo_encoding_info;

#define RAVO_ENCODING_INFO_INIT {sizeof(ravo_encoding_info), 0, 0, 0, 0, 0, 0, 0}

/* Returns how many encodings there are. Never allocates. */
size_t RAVO_CALL ravo_encoding_count(void);

/* Writes what is known of an encoding. RAVO_UNKNOWN for a number that is none. Never allocates. */
ravo_status RAVO_CALL ravo_encoding_at(ravo_encoding encoding, ravo_encoding_info *info, ravo_error *error);

/*
 * Writes the encoding with a name, an alias, a label, or the number of a code page with or without "cp".
 *
 * Only ASCII letters and digits count, in either case. RAVO_UNKNOWN if there is none. Never allocates.
 *
 *     ravo_encoding_find("windows-1250", RAVO_NUL_TERMINATED, &encoding, NULL)
 */
ravo_status RAVO_CALL ravo_encoding_find(const char *name, size_t name_length, ravo_encoding *encoding,
                                         ravo_error *error);

/* Writes the encoding with the number of a Windows code page. RAVO_UNKNOWN if there is none. Never allocates. */
ravo_status RAVO_CALL ravo_encoding_of_code_page(int32_t code_page, ravo_encoding *encoding, ravo_error *error);

/*
 * Writes the encoding that a byte-order mark at the start of bytes names, and the mark's length in bytes.
 *
 * Fewer than four bytes count as the whole text. `mark_length` may be null. RAVO_UNKNOWN if there is no mark. Never
 * allocates.
 */
ravo_status RAVO_CALL ravo_encoding_of_mark(const void *bytes, size_t bytes_length, ravo_encoding *encoding,
                                            size_t *mark_length, ravo_error *error);

/* Which texts are possible. */
enum {
  RAVO_DETECT_PLAIN = 0, /* Czech texts of Windows, DOS and Unix, and of every form of Unicode */
  RAVO_DETECT_MAC = 1    /* and those of the Macintosh: Mac Central European */
};

/* Why an encoding was detected. It is sure for the numbers 1 to 5. */
typedef int32_t ravo_evidence;
enum {
  RAVO_EVIDENCE_MARK = 1,    /* a byte-order mark */
  RAVO_EVIDENCE_ZEROS = 2,   /* the zero bytes of UTF-16 or UTF-32 */
  RAVO_EVIDENCE_ASCII = 3,   /* ASCII characters only, which count as UTF-8 */
  RAVO_EVIDENCE_UTF8 = 4,    /* bytes that are valid UTF-8, too many for chance */
  RAVO_EVIDENCE_CZECH = 5,   /* it looks most like Czech in this encoding */
  RAVO_EVIDENCE_ALIKE = 6,   /* several encodings read it alike */
  RAVO_EVIDENCE_CLOSE = 7,   /* several encodings are possible */
  RAVO_EVIDENCE_FOREIGN = 8, /* it does not look like Czech in any encoding */
  RAVO_EVIDENCE_BINARY = 9   /* zero bytes: it may not be text */
};

/* The encoding that a text seems to have. */
typedef struct ravo_detection {
  size_t size;              /* sizeof(ravo_detection), set by the caller */
  size_t candidates;        /* how many cannot be told apart; 1 if it is sure */
  ravo_encoding encoding;   /* the most likely one */
  ravo_evidence evidence;   /* why */
  int32_t is_sure;          /* 1 if there is no doubt, else 0 */
} ravo_detection;

#define RAVO_DETECTION_INIT {sizeof(ravo_detection), 0, 0, 0, 0}

/*
 * Writes the encoding that a text seems to have, by its first bytes; they may end inside a character.
 *
 * 256 KiB are more than enough. Allocates.
 *
 *     ravo_encoding_detect("P\xF8\xEDli\x9A", 6, RAVO_DETECT_PLAIN, &detection, NULL)  // Windows-1250
 */
ravo_status RAVO_CALL ravo_encoding_detect(const void *bytes, size_t bytes_length, uint32_t flags,
                                           ravo_detection *detection, ravo_error *error);

/*
 * Writes one of the encodings that cannot be told apart, by its index from 0, from the most likely one on.
 *
 * Detects again. RAVO_UNKNOWN past the last. Allocates.
 */
ravo_status RAVO_CALL ravo_encoding_candidate_at(const void *bytes, size_t bytes_length, uint32_t flags,
                                                 size_t index, ravo_encoding *encoding, ravo_error *error);

/* What becomes of bytes and characters that cannot be converted. */
typedef int32_t ravo_convert_policy;
enum {
  RAVO_CONVERT_STRICT = 0, /* the conversion fails at its position */
  RAVO_CONVERT_REPLACE = 1 /* it becomes U+FFFD, or "?" if the encoding lacks that */
};

/* A function of the caller that receives how many of `total` bytes, or rows of a column, are done. */
typedef int32_t(RAVO_CALL *ravo_progress)(void *context, size_t done, size_t total);

/*
 * Converts bytes from one encoding to another.
 *
 * RAVO_ARGUMENT if an encoding cannot be read or written. With RAVO_CONVERT_STRICT, RAVO_MALFORMED for bytes that are
 * no character and RAVO_LACKING for a character that `to` lacks, at the position in `bytes`. `progress` may be null.
 * If the buffer is too small, or on failure, its contents are undefined. Allocates.
 */
ravo_status RAVO_CALL ravo_convert(ravo_encoding from, const void *bytes, size_t bytes_length, ravo_encoding to,
                                   ravo_convert_policy policy, void *buffer, size_t size, size_t *length,
                                   ravo_progress progress, void *context, ravo_error *error);

/* A conversion of a text that comes in pieces. */
typedef struct ravo_converter ravo_converter;

/* Opens a conversion. Fails as ravo_convert does. Allocates. */
ravo_status RAVO_CALL ravo_converter_open(ravo_encoding from, ravo_encoding to, ravo_convert_policy policy,
                                          ravo_converter **converter, ravo_error *error);

/* Closes a conversion. */
void RAVO_CALL ravo_converter_close(ravo_converter *converter);

/*
 * Converts the next bytes of a text, of any number; the last characters may be cut. `is_last` is 1 if no more follow,
 * else 0.
 *
 * Fails as ravo_convert does, with the position in the whole text. After a failure, and after the last bytes, the
 * conversion takes no more: RAVO_ARGUMENT. Allocates.
 */
ravo_status RAVO_CALL ravo_converter_push(ravo_converter *converter, const void *bytes, size_t bytes_length,
                                          int32_t is_last, ravo_error *error);

/*
 * Writes converted bytes that are waiting, at most `size`, and how many they are; 0 if none are left.
 *
 * Never allocates.
 *
 *     ravo_converter_push(converter, piece, piece_length, 0, NULL);
 *     while (ravo_converter_pull(converter, buffer, sizeof buffer, &length, NULL) == RAVO_OK && length != 0)
 *       fwrite(buffer, 1, length, file);
 */
ravo_status RAVO_CALL ravo_converter_pull(ravo_converter *converter, void *buffer, size_t size, size_t *length,
                                          ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * XML documents
 *
 * Documents of any encoding, in which values are changed while every other byte stays as it is: white space, comments,
 * quotes, references, the byte-order mark.
 *
 *     ravo_document *invoice = NULL;
 *     ravo_document_change paid = {"Invoice/Note", RAVO_NUL_TERMINATED, "Zaplaceno", RAVO_NUL_TERMINATED};
 *     if (ravo_document_open(bytes, length, &invoice, &error) == RAVO_OK &&
 *         ravo_document_set(invoice, &paid, 1, RAVO_DOCUMENT_ADD, &error) == RAVO_OK)
 *       ravo_document_write(invoice, write_to_file, file, &error);
 *     ravo_document_close(invoice);
 *
 * A path names elements from the root on, each with its number among the elements of its name, counted from 1, and
 * possibly an attribute: "Invoice/Line[2]/@ID". If no element has a name exactly, its case is ignored.
 */

/* A document. */
typedef struct ravo_document ravo_document;

/* How values are read and set. */
enum {
  RAVO_DOCUMENT_RAW = 1,        /* the value is XML as it is written: references and tags */
  RAVO_DOCUMENT_REFERENCES = 2, /* set: a character that the encoding lacks becomes a reference such as &#x159; */
  RAVO_DOCUMENT_ADD = 4         /* set: add a missing attribute, or a missing next element of a name */
};

/*
 * Opens a document of any encoding: by its byte-order mark, else by its declaration, else UTF-8.
 *
 * RAVO_WRONG with code 0 for what is not XML: `error->position` is the place in `bytes`, the message tells line and
 * column and why. The document keeps a copy of the bytes. Allocates.
 */
ravo_status RAVO_CALL ravo_document_open(const void *bytes, size_t bytes_length, ravo_document **document,
                                         ravo_error *error);

/* Closes a document. */
void RAVO_CALL ravo_document_close(ravo_document *document);

/* Writes the encoding of a document. Never allocates. */
ravo_status RAVO_CALL ravo_document_encoding(const ravo_document *document, ravo_encoding *encoding,
                                             ravo_error *error);

/*
 * Writes the value at a path: the text directly in an element, or an attribute.
 *
 * `flags` is 0, or RAVO_DOCUMENT_RAW for the content as it is written. RAVO_UNKNOWN if nothing is there, RAVO_WRONG for
 * a text that is no path and for a name that fits several spellings. Allocates.
 *
 *     ravo_document_get(invoice, "Invoice/Line[2]/@ID", RAVO_NUL_TERMINATED, 0, buffer, sizeof buffer, NULL, NULL)
 */
ravo_status RAVO_CALL ravo_document_get(const ravo_document *document, const char *path, size_t path_length,
                                        uint32_t flags, char *buffer, size_t size, size_t *length,
                                        ravo_error *error);

/* A value to set at a path; both are UTF-8. */
typedef struct ravo_document_change {
  const char *path;
  size_t path_length;  /* or RAVO_NUL_TERMINATED */
  const char *value;
  size_t value_length; /* or RAVO_NUL_TERMINATED */
} ravo_document_change;

/*
 * Sets values: all of them, or none if one fails. Then the document reads as changed, and its findings are forgotten.
 *
 * What markup would be is written as a reference; a text that is one CDATA section stays one. The position of a failure
 * is the index of the change: RAVO_UNKNOWN if nothing is at its path, RAVO_LACKING if the encoding lacks a character,
 * RAVO_WRONG if it is no path, if the element contains elements or comments (RAVO_DOCUMENT_RAW replaces them), if a
 * place is set twice, or if the value is not XML. Allocates.
 */
ravo_status RAVO_CALL ravo_document_set(ravo_document *document, const ravo_document_change *changes,
                                        size_t changes_length, uint32_t flags, ravo_error *error);

/* Writes the bytes of a document. Never allocates. */
ravo_status RAVO_CALL ravo_document_save(const ravo_document *document, void *buffer, size_t size, size_t *length,
                                         ravo_error *error);

/* A function of the caller that receives a piece of a document's bytes. */
typedef int32_t(RAVO_CALL *ravo_write)(void *context, const void *bytes, size_t bytes_length);

/*
 * Gives the bytes of a document to a function, in pieces of at most 65536 bytes.
 *
 * If it stops, the position is that of the piece. Never allocates.
 */
ravo_status RAVO_CALL ravo_document_write(const ravo_document *document, ravo_write write, void *context,
                                          ravo_error *error);

/*
 * Looks for the places where the suite would see or save something else than a standard parser reads, and writes how
 * many there are.
 *
 * 0 means that the document survives ravo_suite_tree, but for white space between tags. RAVO_WRONG with code 0 for a
 * document that a standard parser rejects, with its place. The findings stay until values are set. Allocates.
 */
ravo_status RAVO_CALL ravo_document_check(ravo_document *document, size_t *count, ravo_error *error);

/* A finding of ravo_document_check. */
typedef struct ravo_document_finding {
  size_t size;      /* sizeof(ravo_document_finding), set by the caller */
  const char *name; /* the stable name of its class: "comment", "encoding" */
  uint64_t line;    /* from 1 */
  uint64_t column;  /* in characters, from 1 */
} ravo_document_finding;

#define RAVO_DOCUMENT_FINDING_INIT {sizeof(ravo_document_finding), 0, 0, 0}

/* Writes the finding with an index, in the order of the document. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_document_finding_at(const ravo_document *document, size_t index,
                                               ravo_document_finding *finding, ravo_error *error);

/* Writes the sentence of the finding with an index, without a full stop. RAVO_UNKNOWN past the last. Allocates. */
ravo_status RAVO_CALL ravo_document_finding_sentence(const ravo_document *document, size_t index,
                                                     ravo_language language, char *buffer, size_t size,
                                                     size_t *length, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * The suite's rules
 *
 * What the modules of the suite compute, with the oddities that stored documents depend on. The checks are lenient;
 * those of the country are ravo_check's. Texts of more than 256 bytes and texts as results allocate.
 */

/* Writes 1 if a text consists of digits, at least one, else 0. */
ravo_status RAVO_CALL ravo_suite_is_numbers(const char *text, size_t text_length, int32_t *answer,
                                            ravo_error *error);

/* Writes 1 if a text is a synthetic account, three digits, else 0. */
ravo_status RAVO_CALL ravo_suite_valid_su(const char *text, size_t text_length, int32_t *answer,
                                          ravo_error *error);

/* Writes 1 if a text is an analytic account, up to three digits or nothing, else 0. */
ravo_status RAVO_CALL ravo_suite_valid_au(const char *text, size_t text_length, int32_t *answer,
                                          ravo_error *error);

/* Writes 1 if a text is an account of the chart of accounts, three to six digits, else 0. */
ravo_status RAVO_CALL ravo_suite_valid_ucet(const char *text, size_t text_length, int32_t *answer,
                                            ravo_error *error);

/*
 * Writes 1 if a text is a payment reference with a valid Luhn check digit, else 0.
 *
 * RAVO_RANGE if the weighted sum does not fit 32 bits.
 */
ravo_status RAVO_CALL ravo_suite_valid_vs(const char *text, size_t text_length, int32_t *answer,
                                          ravo_error *error);

/*
 * Writes 1 if the weighted sum of an account is divisible by 11, else 0.
 *
 * What follows the first "/" is ignored, then every character that is no digit; prefix and number form one sum.
 * RAVO_RANGE for more than 62 digits.
 *
 *     ravo_suite_ucet_mod_11("19-2000145399/0800", RAVO_NUL_TERMINATED, &answer, NULL)  // 1
 */
ravo_status RAVO_CALL ravo_suite_ucet_mod_11(const char *text, size_t text_length, int32_t *answer,
                                             ravo_error *error);

/* Writes the first three characters of an account, unchanged, and the next three without blanks around them. */
ravo_status RAVO_CALL ravo_suite_ucet_na_su_au(const char *ucet, size_t ucet_length, char *su, size_t su_size,
                                               size_t *su_length, char *au, size_t au_size, size_t *au_length,
                                               ravo_error *error);

/* The check digits of an EAN. */
typedef struct ravo_suite_ean {
  size_t size;        /* sizeof(ravo_suite_ean), set by the caller */
  int32_t valid;      /* 1 if the text has 7, 8, 12 or 13 digits, else 0 */
  char old_check[4];  /* the check digit of the code; a blank if it has none */
  char new_check[4];  /* the computed one; a blank if the text is no code */
  char full_code[16]; /* the code with the computed digit; empty if the text is no code */
} ravo_suite_ean;

#define RAVO_SUITE_EAN_INIT {sizeof(ravo_suite_ean), 0, {0}, {0}, {0}}

/* Writes the check digits of an EAN. The old and the new one are not compared. */
ravo_status RAVO_CALL ravo_suite_calculate_ean(const char *code, size_t code_length, ravo_suite_ean *ean,
                                               ravo_error *error);

/* The direction of the suite's rounding. Any other number up to 255 means no rounding. */
enum {
  RAVO_SUITE_ROUND_UP = 0,   /* away from zero */
  RAVO_SUITE_ROUND_DOWN = 1, /* toward zero */
  RAVO_SUITE_ROUND_MATH = 2  /* halves away from zero */
};

/*
 * Writes an amount rounded to `decimals` places: 2 are hundredths, 0 whole crowns, -1 tens.
 *
 * Halves are recognized after the fraction is rounded to four places. RAVO_RANGE if `decimals` is below -4 or
 * above 14, and if the scaled amount or the result does not fit 64 bits; RAVO_SUITE_ROUND_UP and
 * RAVO_SUITE_ROUND_DOWN wrap silently from 2147483648 units on. Allocates on failure alone.
 */
ravo_status RAVO_CALL ravo_suite_round_value(ravo_money amount, uint8_t direction, int8_t decimals,
                                             ravo_money *result, ravo_error *error);

/*
 * Writes a double rounded to `decimals` places, with the errors of doubles: RAVO_SUITE_ROUND_DOWN lowers most exact
 * values by one unit.
 *
 * RAVO_RANGE for infinities and NaN, and if the scaled value does not fit 64 bits. Allocates on failure alone.
 */
ravo_status RAVO_CALL ravo_suite_round_value_float(double value, uint8_t direction, int8_t decimals,
                                                   double *result, ravo_error *error);

/*
 * Writes an amount of VAT rounded by one of five letters: H hundredths, D tenths, P halves of a crown, N tenths
 * away from zero, M whole crowns.
 *
 * Any other letter leaves the amount as it is. RAVO_RANGE if the scaled amount or the result does not fit 64 bits.
 * Allocates on failure alone.
 */
ravo_status RAVO_CALL ravo_suite_round_dph(ravo_money amount, int32_t letter, ravo_money *result,
                                           ravo_error *error);

/* A moment in days since midnight of 30 December 1899; the fraction is the time of day. */
typedef double ravo_suite_moment;

/* Writes the moment of a day and a time of day in milliseconds, 0 to 86399999. Allocates on failure alone. */
ravo_status RAVO_CALL ravo_suite_moment_of(ravo_day day, int32_t milliseconds, ravo_suite_moment *moment,
                                           ravo_error *error);

/*
 * Writes the day of a moment and its time in milliseconds, to the nearest, ties to even. What is nearest to
 * midnight is the next day.
 *
 * RAVO_RANGE outside of the years 1 to 9999. Allocates on failure alone.
 */
ravo_status RAVO_CALL ravo_suite_moment_parts(ravo_suite_moment moment, ravo_day *day, int32_t *milliseconds,
                                              ravo_error *error);

/* Writes the date of a moment for SQL: "20101231". RAVO_RANGE outside of the years 1 to 9999. Allocates. */
ravo_status RAVO_CALL ravo_suite_sql_date(ravo_suite_moment moment, char *buffer, size_t size, size_t *length,
                                          ravo_error *error);

/* Writes the time of a moment for SQL: "13:05:09:007". RAVO_RANGE for infinities and NaN. Allocates. */
ravo_status RAVO_CALL ravo_suite_sql_time(ravo_suite_moment moment, char *buffer, size_t size, size_t *length,
                                          ravo_error *error);

/* Writes date and time of a moment for SQL: "20101231 13:05:09:007". Allocates. */
ravo_status RAVO_CALL ravo_suite_sql_date_time(ravo_suite_moment moment, char *buffer, size_t size,
                                               size_t *length, ravo_error *error);

/*
 * Writes the same day of the next month if `step` is positive, else of the previous one; the time is dropped.
 *
 * RAVO_RANGE outside of the years 1 to 9999. Allocates on failure alone.
 */
ravo_status RAVO_CALL ravo_suite_change_month(ravo_suite_moment moment, int32_t step, ravo_suite_moment *result,
                                              ravo_error *error);

/* Writes the same day of the next or previous year, as ravo_suite_change_month. Allocates on failure alone. */
ravo_status RAVO_CALL ravo_suite_change_year(ravo_suite_moment moment, int32_t step, ravo_suite_moment *result,
                                             ravo_error *error);

/*
 * Writes street and house number of an address: "Nádražní" and "1234/5" of "Nádražní 1234/5".
 *
 * The street is the whole text if the last word is no number.
 */
ravo_status RAVO_CALL ravo_suite_adresa_expand(const char *adresa, size_t adresa_length, char *ulice,
                                               size_t ulice_size, size_t *ulice_length, char *cislo,
                                               size_t cislo_size, size_t *cislo_length, ravo_error *error);

/* Writes the name of a document: "FV0012/2010" of "FV", "0012" and "2010". */
ravo_status RAVO_CALL ravo_suite_doklad_description(const char *prefix, size_t prefix_length, const char *number,
                                                    size_t number_length, const char *suffix,
                                                    size_t suffix_length, char *buffer, size_t size,
                                                    size_t *length, ravo_error *error);

/*
 * Writes the name of a backup: a pattern with its "%FIRMA%", "%DATUM%" and "%CAS%" replaced.
 *
 * `moment` is the local time. RAVO_RANGE outside of the years 1 to 9999.
 *
 *     ravo_suite_parse_zaloha_file("%FIRMA%_%DATUM%", ..., "A/B: s.r.o.", ...)  // AB s.r.o._110203
 */
ravo_status RAVO_CALL ravo_suite_parse_zaloha_file(const char *pattern, size_t pattern_length, const char *firma,
                                                   size_t firma_length, ravo_suite_moment moment, char *buffer,
                                                   size_t size, size_t *length, ravo_error *error);

/* Writes what is before the first "." of a name, or all of it: "Faktury" of "Faktury.Cislo". */
ravo_status RAVO_CALL ravo_suite_extract_table_from_property(const char *name, size_t name_length, char *buffer,
                                                             size_t size, size_t *length, ravo_error *error);

/* Writes properties without the name of a table and "." before them: "A;B;G.C" of "F" and "F.A;F.B;G.C". */
ravo_status RAVO_CALL ravo_suite_remove_table_from_properties(const char *table, size_t table_length,
                                                              const char *properties, size_t properties_length,
                                                              char *buffer, size_t size, size_t *length,
                                                              ravo_error *error);

/* Writes the identifier of a record between single quotes; "Null" for null. Quotes inside stay as they are. */
ravo_status RAVO_CALL ravo_suite_uid_to_string(const char *uid, size_t uid_length, char *buffer, size_t size,
                                               size_t *length, ravo_error *error);

/*
 * Writes the eight bytes of a record version in hexadecimal; none for a text of three characters or fewer.
 *
 * RAVO_RANGE if a pair of digits is missing, incomplete or not hexadecimal.
 */
ravo_status RAVO_CALL ravo_suite_timestamp_to_bytes(const char *text, size_t text_length, void *buffer,
                                                    size_t size, size_t *length, ravo_error *error);

/*
 * Writes a number of bytes for people: "1,5 kB", and with `with_bytes` "1,5 kB (1536 B)".
 *
 * `decimal` is the decimal separator in ASCII, `thousands` the text between groups of three digits.
 */
ravo_status RAVO_CALL ravo_suite_bytes_to_str(int64_t bytes, int32_t with_bytes, int32_t decimal,
                                              const char *thousands, size_t thousands_length, char *buffer,
                                              size_t size, size_t *length, ravo_error *error);

/* Writes text in Windows-1250 with 25 Czech letters replaced by their base letters. */
ravo_status RAVO_CALL ravo_suite_remove_diacritics(const void *bytes, size_t bytes_length, void *buffer,
                                                   size_t size, size_t *length, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * The suite's forms and records
 *
 * What the modules of the suite write into PDF forms, XML exports and streams. Forms are in Windows-1250; a character
 * that it lacks becomes "?". Results allocate.
 */

/*
 * Writes a text as the text string of a PDF: the bytes FE FF and UTF-16, high byte first.
 *
 * The byte 0D of "č" is written as "\r", which readers of PDF would change to a line feed. Nothing else is escaped.
 */
ravo_status RAVO_CALL ravo_suite_win_1250_to_pdf_doc_encoding(const char *text, size_t text_length, void *buffer,
                                                              size_t size, size_t *length, ravo_error *error);

/*
 * Writes a field of a forms data file (FDF): the name in Windows-1250, the value too, or with `as_unicode` as a text
 * string.
 *
 * Neither is escaped. The header, the brackets and the trailer around the fields are the caller's.
 *
 *     ravo_suite_fill_pdf_field("Jmeno", ..., "Rada", ..., 0, ...)  // <</T(Jmeno)/V(Rada)>>
 */
ravo_status RAVO_CALL ravo_suite_fill_pdf_field(const char *name, size_t name_length, const char *value,
                                                size_t value_length, int32_t as_unicode, void *buffer,
                                                size_t size, size_t *length, ravo_error *error);

/* Writes a field of a check box or a choice, whose states are numbers: "<</T(Ano)/V/1>>". */
ravo_status RAVO_CALL ravo_suite_fill_pdf_field_as_integer(const char *name, size_t name_length, int32_t value,
                                                           void *buffer, size_t size, size_t *length,
                                                           ravo_error *error);

/*
 * Writes the date of a moment for a form: "5.3.2024", "5.3." with `without_year`, "05.03.2024" with `leading_zeros`.
 *
 * Nothing for the moment 0. RAVO_RANGE outside of the years 1 to 9999.
 */
ravo_status RAVO_CALL ravo_suite_date_2_pdf(ravo_suite_moment moment, int32_t without_year,
                                            int32_t leading_zeros, char *buffer, size_t size, size_t *length,
                                            ravo_error *error);

/* Writes the date of a moment for an XML export, "2024-03-05", as ravo_suite_date_2_pdf. */
ravo_status RAVO_CALL ravo_suite_date_2_xml(ravo_suite_moment moment, char *buffer, size_t size, size_t *length,
                                            ravo_error *error);

/* Writes "X" for a value that is not 0, and nothing for 0. */
ravo_status RAVO_CALL ravo_suite_bool_2_xml(int32_t value, char *buffer, size_t size, size_t *length,
                                            ravo_error *error);

/*
 * Writes a string record: the number of bytes as a signed number of 32 bits, little-endian, the bytes, and a zero.
 *
 * The bytes are text in the code page of the suite, Windows-1250. RAVO_RANGE if their number does not fit 32 bits.
 */
ravo_status RAVO_CALL ravo_suite_string_to_stream(const void *bytes, size_t bytes_length, void *buffer,
                                                  size_t size, size_t *length, ravo_error *error);

/*
 * Writes the text of the string record that begins at the byte `from`, and to `*end` where the next one begins.
 *
 * A record may promise more bytes than there are: those are zeros, and `*end` is one byte past the end of all.
 * RAVO_RANGE if fewer than four bytes follow `from`, or the number is negative. Never allocates.
 *
 *     for (at = 0; at < stream_length; at = end)
 *       ravo_suite_string_from_stream(stream, stream_length, at, text, sizeof text, &length, &end, NULL);
 */
ravo_status RAVO_CALL ravo_suite_string_from_stream(const void *bytes, size_t bytes_length, size_t from,
                                                    void *buffer, size_t size, size_t *length, size_t *end,
                                                    ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * The suite's tables, captions and modules
 *
 * What the suite numbers and names: its tables, its captions and messages, the modules of its library.
 */

/* A table, or tables that share a name. */
typedef struct ravo_suite_table {
  size_t size;         /* sizeof(ravo_suite_table), set by the caller */
  const char *name;    /* in Czech, UTF-8 */
  const char *module;  /* the module that has it: "RavoMzdaConstants" */
  int32_t first;       /* the first identifier */
  int32_t last;        /* the last identifier */
} ravo_suite_table;

#define RAVO_SUITE_TABLE_INIT {sizeof(ravo_suite_table), 0, 0, 0, 0}

/* Returns how many rows of tables there are. Never allocates. */
size_t RAVO_CALL ravo_suite_table_count(void);

/* Writes the row with an index, by module, then by identifier. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_suite_table_at(size_t index, ravo_suite_table *table, ravo_error *error);

/* Writes the row of a table. RAVO_UNKNOWN if there is no such table. Never allocates. */
ravo_status RAVO_CALL ravo_suite_table_find(int32_t id, ravo_suite_table *table, ravo_error *error);

/*
 * Returns the Czech name of a table, UTF-8, or null if there is no such table. Never allocates.
 *
 *     ravo_suite_table_name(71710)  // Účetní deník
 */
const char *RAVO_CALL ravo_suite_table_name(int32_t id);

/* A caption or message. */
typedef struct ravo_suite_caption {
  size_t size;         /* sizeof(ravo_suite_caption), set by the caller */
  const char *name;    /* "rPropertySazbaNulova" */
  const char *text;    /* in Czech, UTF-8; "&" marks the accelerator */
  const char *group;   /* the title of its group, in English */
  const char *prefix;  /* what the names of the group begin with */
  int32_t id;          /* in the string table */
} ravo_suite_caption;

#define RAVO_SUITE_CAPTION_INIT {sizeof(ravo_suite_caption), 0, 0, 0, 0, 0}

/* Returns how many captions and messages there are. Never allocates. */
size_t RAVO_CALL ravo_suite_caption_count(void);

/* Writes the caption with an index, group by group. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_suite_caption_at(size_t index, ravo_suite_caption *caption, ravo_error *error);

/* Writes the caption with a name. RAVO_UNKNOWN if there is none. Never allocates. */
ravo_status RAVO_CALL ravo_suite_caption_find(const char *name, size_t name_length, ravo_suite_caption *caption,
                                              ravo_error *error);

/* A module of the suite's library. */
typedef struct ravo_suite_module {
  size_t size;       /* sizeof(ravo_suite_module), set by the caller */
  const char *name;  /* "DIUnicode" */
  const char *uses;  /* the modules that start before it, separated by blanks */
  int32_t order;     /* its place in the order in which modules start, from 0; they stop in reverse */
  int32_t is_main;   /* 1 for the main module, else 0 */
} ravo_suite_module;

#define RAVO_SUITE_MODULE_INIT {sizeof(ravo_suite_module), 0, 0, 0, 0}

/* Returns how many modules the suite's library contains. Never allocates. */
size_t RAVO_CALL ravo_suite_module_count(void);

/* Writes the module with an index, as the package names them. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_suite_module_at(size_t index, ravo_suite_module *module, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * The suite's XML
 *
 * A document as the suite's modules load and save it: a tree of items with a name, attributes, one text and children.
 * It is small and forgiving: every close tag closes the innermost item, comments are dropped, bytes are Windows-1250
 * whatever the document declares. ravo_document_check tells what would be lost.
 *
 * An item is a number, 0 for the root, that never means another item; RAVO_UNKNOWN for one that was deleted or never
 * was. Names are found ignoring case. Functions that do not say otherwise allocate. If there is no memory in
 * the middle of a change, the tree can be read and closed, and the change may be there or not.
 */

/* A tree. */
typedef struct ravo_suite_tree ravo_suite_tree;

/* An item of a tree by its number. */
typedef size_t ravo_suite_item;

/*
 * Opens a tree: loads the bytes of a document.
 *
 * Without `<rss` or `<?xml version="1.0"` in the first 1000 bytes, and with a byte-order mark before it, nothing is
 * loaded and the root is empty. RAVO_WRONG with code 0 for what cannot be read; the message tells the line. The tree
 * keeps no part of the bytes. Allocates.
 */
ravo_status RAVO_CALL ravo_suite_tree_open(const void *bytes, size_t bytes_length, ravo_suite_tree **tree,
                                           ravo_error *error);

/* Closes a tree. */
void RAVO_CALL ravo_suite_tree_close(ravo_suite_tree *tree);

/* Writes the bytes that the suite saves. Allocates. */
ravo_status RAVO_CALL ravo_suite_tree_save(ravo_suite_tree *tree, void *buffer, size_t size, size_t *length,
                                           ravo_error *error);

/* Writes the name of the encoding that the saved document declares, which has no effect on its bytes. */
ravo_status RAVO_CALL ravo_suite_tree_encoding(const ravo_suite_tree *tree, char *buffer, size_t size,
                                               size_t *length, ravo_error *error);

/* Sets the name of the encoding that the saved document declares. */
ravo_status RAVO_CALL ravo_suite_tree_set_encoding(ravo_suite_tree *tree, const char *name, size_t name_length,
                                                   ravo_error *error);

/* Writes the address of the style sheet that the document refers to; empty if it refers to none. */
ravo_status RAVO_CALL ravo_suite_tree_style_sheet(const ravo_suite_tree *tree, char *buffer, size_t size,
                                                  size_t *length, ravo_error *error);

/* Sets the address of the style sheet that the document refers to. */
ravo_status RAVO_CALL ravo_suite_tree_set_style_sheet(ravo_suite_tree *tree, const char *address,
                                                      size_t address_length, ravo_error *error);

/* Writes how many children an item has. Never allocates. */
ravo_status RAVO_CALL ravo_suite_item_child_count(const ravo_suite_tree *tree, ravo_suite_item item, size_t *count,
                                                  ravo_error *error);

/* Writes the child with an index. RAVO_UNKNOWN past the last. Never allocates. */
ravo_status RAVO_CALL ravo_suite_item_child(const ravo_suite_tree *tree, ravo_suite_item item, size_t index,
                                            ravo_suite_item *child, ravo_error *error);

/* Writes the parent of an item. RAVO_UNKNOWN for the root. Never allocates. */
ravo_status RAVO_CALL ravo_suite_item_parent(const ravo_suite_tree *tree, ravo_suite_item item,
                                             ravo_suite_item *parent, ravo_error *error);

/*
 * Writes the index of the first child with a name, from the index `from` on. RAVO_UNKNOWN if there is none.
 *
 * The suite adds a child that is missing: call ravo_suite_item_add for that.
 */
ravo_status RAVO_CALL ravo_suite_item_find(const ravo_suite_tree *tree, ravo_suite_item item, const char *name,
                                           size_t name_length, size_t from, size_t *index, ravo_error *error);

/* Writes the name of an item. */
ravo_status RAVO_CALL ravo_suite_item_name(const ravo_suite_tree *tree, ravo_suite_item item, char *buffer,
                                           size_t size, size_t *length, ravo_error *error);

/* Sets the name of an item, without blanks and control characters at both ends. */
ravo_status RAVO_CALL ravo_suite_item_set_name(ravo_suite_tree *tree, ravo_suite_item item, const char *name,
                                               size_t name_length, ravo_error *error);

/* Writes the text of an item, unescaped, without that of its children. */
ravo_status RAVO_CALL ravo_suite_item_text(const ravo_suite_tree *tree, ravo_suite_item item, char *buffer,
                                           size_t size, size_t *length, ravo_error *error);

/* Sets the text of an item. */
ravo_status RAVO_CALL ravo_suite_item_set_text(ravo_suite_tree *tree, ravo_suite_item item, const char *text,
                                               size_t text_length, ravo_error *error);

/* Writes how many attributes an item has. */
ravo_status RAVO_CALL ravo_suite_item_attribute_count(const ravo_suite_tree *tree, ravo_suite_item item,
                                                      size_t *count, ravo_error *error);

/* Writes name and value of the attribute with an index. RAVO_UNKNOWN past the last. */
ravo_status RAVO_CALL ravo_suite_item_attribute_at(const ravo_suite_tree *tree, ravo_suite_item item, size_t index,
                                                   char *name, size_t name_size, size_t *name_length, char *value,
                                                   size_t value_size, size_t *value_length, ravo_error *error);

/* Writes the value of the first attribute with a name. RAVO_UNKNOWN if there is none. */
ravo_status RAVO_CALL ravo_suite_item_attribute(const ravo_suite_tree *tree, ravo_suite_item item,
                                                const char *name, size_t name_length, char *buffer, size_t size,
                                                size_t *length, ravo_error *error);

/* Sets the value of the first attribute with a name, or adds one. An empty value deletes it. */
ravo_status RAVO_CALL ravo_suite_item_set_attribute(ravo_suite_tree *tree, ravo_suite_item item, const char *name,
                                                    size_t name_length, const char *value, size_t value_length,
                                                    ravo_error *error);

/* Adds a last child with a name to an item, and writes its number. */
ravo_status RAVO_CALL ravo_suite_item_add(ravo_suite_tree *tree, ravo_suite_item item, const char *name,
                                          size_t name_length, ravo_suite_item *child, ravo_error *error);

/* Deletes an item with everything below it. RAVO_ARGUMENT for the root. */
ravo_status RAVO_CALL ravo_suite_item_delete(ravo_suite_tree *tree, ravo_suite_item item, ravo_error *error);

/* Moves an item to another index among its parent's children. RAVO_ARGUMENT for the root, RAVO_RANGE past the last. */
ravo_status RAVO_CALL ravo_suite_item_move(ravo_suite_tree *tree, ravo_suite_item item, size_t index,
                                           ravo_error *error);

/* Writes an item and everything below it as XML, its tags indented by `level` blanks, 0 to 1000. */
ravo_status RAVO_CALL ravo_suite_item_as_string(ravo_suite_tree *tree, ravo_suite_item item, int32_t level,
                                                char *buffer, size_t size, size_t *length, ravo_error *error);

/* Writes a text with "&", "<", ">" and double quotes as entities and CR LF as "<br/>". Apostrophes stay. */
ravo_status RAVO_CALL ravo_suite_str_to_xml(const char *text, size_t text_length, char *buffer, size_t size,
                                            size_t *length, ravo_error *error);

/*
 * Writes a text with "&lt;", "&gt;", "&quot;" and then "&amp;" replaced by their characters, one level deep.
 *
 * Other entities and "<br/>" stay.
 */
ravo_status RAVO_CALL ravo_suite_xml_to_str(const char *text, size_t text_length, char *buffer, size_t size,
                                            size_t *length, ravo_error *error);

/* Kinds of tokens. */
typedef int32_t ravo_suite_token_kind;
enum {
  RAVO_SUITE_TOKEN_COMMENT = 6,
  RAVO_SUITE_TOKEN_HEADER = 8,         /* <? ... ?> */
  RAVO_SUITE_TOKEN_TEXT = 9,           /* text between tags, or a CDATA section */
  RAVO_SUITE_TOKEN_OPEN_TAG = 10,
  RAVO_SUITE_TOKEN_CLOSE_TAG = 11,
  RAVO_SUITE_TOKEN_STAND_ALONE_TAG = 12
};

/* A token. It lives until the function that received it returns. */
typedef struct ravo_suite_token {
  size_t size;                /* sizeof(ravo_suite_token) of the library */
  const char *text;           /* without line breaks of two bytes, and each run of blanks as one; UTF-8 */
  size_t text_length;
  ravo_suite_token_kind kind;
  int32_t line;               /* from 1; line feeds in tokens do not count */
  int32_t position;           /* in bytes, from 0 */
} ravo_suite_token;

/* A function of the caller that receives a token. */
typedef int32_t(RAVO_CALL *ravo_suite_take)(void *context, const ravo_suite_token *token);

/*
 * Gives each token of a document, as the suite's tokenizer cuts it, to a function.
 *
 * RAVO_WRONG with code 0 for what cannot be read; the message tells the line. Allocates.
 */
ravo_status RAVO_CALL ravo_suite_tokens(const void *bytes, size_t bytes_length, ravo_suite_take take, void *context,
                                        ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * Columns
 *
 * A whole column of a table in one call: where data frames and databases already have it, without a copy. A
 * ravo_column describes memory of the caller in one of the layouts of the Arrow columnar format. Describe it by
 * hand, or let ravo_column_of_arrow read it from the structs of the Arrow C data interface; every function of this
 * chapter takes the result.
 *
 *     ravo_column column = RAVO_COLUMN_INIT;             // three company numbers in one buffer
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
 *           data ends the call with RAVO_RANGE, and its index is in `error->position`. RAVO_TRUSTED leaves these
 *           checks out: for memory of a library that has made them itself. The offsets of null rows, and entries
 *           of a dictionary that no row has, are not looked at. Nothing needs an alignment.
 * Numbers.  A column of numbers has RAVO_LAYOUT_NUMBERS, or is a dictionary of them. A function that takes texts
 *           refuses numbers, and the other way round: RAVO_ARGUMENT.
 * UTF-8.    Text and binary are one. A value that is not UTF-8 is a wrong value, with RAVO_CODE_NOT_UTF8, and ends
 *           nothing.
 * Results.  What is written per row may have been overwritten whatever the status; counts are written on RAVO_OK and
 *           RAVO_BUFFER. Memory of results must not overlap the column, unless the comment of the function allows
 *           it. For the place of a fault, call ravo_check with the text of that row.
 * Memory.   Each entry of a dictionary is checked at most once. To remember the answers, a call over a dictionary
 *           allocates a few bytes for each entry, with texts about 60. Other columns never allocate, unless the
 *           comment of the function says so.
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
  RAVO_LAYOUT_DICTIONARY_UNSIGNED = 6, /* unsigned indices of `width` bytes into another column */
  RAVO_LAYOUT_NUMBERS = 7             /* signed numbers of `width` bytes (4, 8). Arrow: int32, int64, date32 */
};

/* The size of data that the caller does not know: it ends where the offset of the last row ends. */
#define RAVO_SIZE_UNKNOWN ((size_t)-1)

/* A column of the caller. What a layout lacks is 0. */
typedef struct ravo_column {
  size_t size;                          /* sizeof(ravo_column), set by the caller */
  ravo_layout layout;
  int32_t width;                        /* bytes of a value (fixed, numbers) or of an index (dictionary) */
  size_t length;                        /* rows */
  size_t offset;                        /* rows of the memory before the first one, as a slice has them */
  const uint8_t *validity;              /* bit offset + i, lowest first, is 0 if row i is null; null: none is */
  const void *values;                   /* offsets, views, values of fixed width, numbers, or indices */
  const char *data;                     /* what offsets are into */
  size_t data_size;                     /* bytes of data; or RAVO_SIZE_UNKNOWN */
  const void *const *buffers;           /* what views are into */
  const int64_t *buffer_sizes;          /* bytes of each */
  size_t buffer_count;
  const struct ravo_column *dictionary; /* a column of any layout without a dictionary */
} ravo_column;

#define RAVO_COLUMN_INIT {sizeof(ravo_column), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}

/* What a function may rely on. */
enum { RAVO_TRUSTED = 1 /* offsets, views and indices are right: do not check them */ };

/* Codes of rows beside the reasons of checks. */
enum {
  RAVO_CODE_CORRECT = 0,
  RAVO_CODE_LACKING = 65530,   /* an encoding lacks a character of the value */
  RAVO_CODE_MALFORMED = 65531, /* bytes of the value are no character of their encoding */
  RAVO_CODE_UNKNOWN = 65532,   /* there is nothing of that name */
  RAVO_CODE_NO_DATE = 65533,   /* the value is not written as a date */
  RAVO_CODE_NOT_UTF8 = 65534,  /* the value is not UTF-8 */
  RAVO_CODE_NULL = 65535       /* the row has no value */
};

/* Room for a column of texts that a function writes. Rows that are wrong or null have an empty text. */
typedef struct ravo_texts {
  size_t size;        /* sizeof(ravo_texts), set by the caller */
  ravo_layout layout; /* RAVO_LAYOUT_OFFSETS_32, _OFFSETS_64 or _FIXED */
  int32_t width;      /* bytes of a value (fixed); shorter ones end with NULs, a longer one is RAVO_RANGE */
  void *offsets;      /* room for an offset more than rows; not with fixed */
  char *data;         /* may be null with data_size 0, to ask for the length alone */
  size_t data_size;
  size_t data_length; /* receives the bytes of all texts. More than data_size: RAVO_BUFFER, and what fits is there.
                         Bytes of data past the texts are undefined */
} ravo_texts;

#define RAVO_TEXTS_INIT {sizeof(ravo_texts), 0, 0, 0, 0, 0, 0}

/* Room for what a function says of rows. Each pointer may be null. */
typedef struct ravo_answers {
  size_t size;       /* sizeof(ravo_answers), set by the caller */
  uint16_t *codes;   /* of each row: the number of the reason, or one of RAVO_CODE_... */
  uint8_t *validity; /* (rows + 7) / 8 bytes: bit i, lowest first, is 1 if row i is correct; bits past the end: 0 */
  ravo_texts *texts; /* canonical forms, names, dates ...: what the function writes */
  size_t wrong;      /* receives how many rows are wrong; those that are null do not count */
  size_t nulls;      /* receives how many rows are null */
} ravo_answers;

#define RAVO_ANSWERS_INIT {sizeof(ravo_answers), 0, 0, 0, 0, 0}

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
 * Checks every row of a column for a kind, as ravo_respell does, and writes codes, validity and usual spellings.
 *
 * Otherwise as ravo_check_column. Allocates for dictionaries alone.
 */
ravo_status RAVO_CALL ravo_respell_column(ravo_kind kind, const ravo_column *column, uint32_t flags,
                                          ravo_answers *answers, ravo_progress progress, void *context,
                                          ravo_error *error);

/*
 * Looks up the bank of every row in a list, null for the one that is built in, and writes codes and names of banks.
 *
 * A value is a bank code of four digits, or ends with one after a slash, as accounts do. Codes are the reasons
 * "bank.code" and "bank.unknown". Allocates for dictionaries alone.
 *
 *     "0800", "19-2000145399/0800", "9999"  // codes 0, 0, 1402
 */
ravo_status RAVO_CALL ravo_bank_find_column(const ravo_bank_list *list, const ravo_column *column, uint32_t flags,
                                            ravo_answers *answers, ravo_progress progress, void *context,
                                            ravo_error *error);

/*
 * Looks up every row, which is the name of a table, and writes the table's number to `ids`, the first if it has
 * several; 0 if there is none.
 *
 * Names are compared to the letter. The code is RAVO_CODE_UNKNOWN if no table has the name. `answers->texts` is
 * null. Allocates for dictionaries alone.
 */
ravo_status RAVO_CALL ravo_suite_table_find_column(const ravo_column *column, uint32_t flags, int32_t *ids,
                                                   ravo_answers *answers, ravo_progress progress, void *context,
                                                   ravo_error *error);

/*
 * Rounds every amount of a column of numbers of 8 bytes to a multiple of `step`, as ravo_money_round does.
 *
 * A result that does not fit 64 bits is 0 with the code of the reason "money.range". `results` may be the memory of
 * the column itself, if it has neither an offset nor a dictionary. RAVO_RANGE if `step` is not positive.
 * `answers->texts` is null. Allocates for dictionaries and for results that do not fit.
 */
ravo_status RAVO_CALL ravo_money_round_column(const ravo_column *column, uint32_t flags, ravo_money step,
                                              ravo_rounding rounding, ravo_money *results, ravo_answers *answers,
                                              ravo_progress progress, void *context, ravo_error *error);

/* The day that 0 stands for in date32 of Arrow: 1 January 1970. */
#define RAVO_DAY_1970 2440588

/*
 * Reads the date of every row as ravo_day_read does, and writes its day less `origin`: 0 for a ravo_day,
 * RAVO_DAY_1970 for date32 of Arrow.
 *
 * Codes are RAVO_CODE_NO_DATE, and the reason "day.range" if there is no such date; the day is 0 then.
 * `answers->texts` is null. Allocates for dictionaries alone.
 */
ravo_status RAVO_CALL ravo_day_read_column(const ravo_column *column, uint32_t flags, ravo_day origin, int32_t *days,
                                           ravo_answers *answers, ravo_progress progress, void *context,
                                           ravo_error *error);

/*
 * Writes every day of a column of numbers of 4 bytes as a text, as ravo_day_format does. `origin` is as in
 * ravo_day_read_column.
 *
 * The code is the reason "day.range" outside of the years 1 to 9999. Allocates for dictionaries alone.
 */
ravo_status RAVO_CALL ravo_day_format_column(const ravo_column *column, uint32_t flags, ravo_day origin,
                                             ravo_date_form form, ravo_answers *answers, ravo_progress progress,
                                             void *context, ravo_error *error);

/*
 * Converts every row, a whole text of its own, from one encoding to another, as ravo_convert does.
 *
 * Codes are RAVO_CODE_MALFORMED and RAVO_CODE_LACKING; with RAVO_CONVERT_REPLACE, neither. The texts that are
 * written need not be UTF-8. RAVO_ARGUMENT if an encoding cannot be read or written, and for encodings with units
 * of two or four bytes in RAVO_LAYOUT_FIXED. Allocates.
 */
ravo_status RAVO_CALL ravo_convert_column(ravo_encoding from, const ravo_column *column, uint32_t flags,
                                          ravo_encoding to, ravo_convert_policy policy, ravo_answers *answers,
                                          ravo_progress progress, void *context, ravo_error *error);

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
 * Describes an Arrow array of texts or numbers: writes `*column`, and `*dictionary` if the array has one.
 *
 * `field` is the name of a column of a record batch, or null for an array that is no batch. Formats: u, U, vu, z, Z,
 * vz, w:N, i, l, tdD, and dictionaries of these. Another format, or an array whose parts do not fit its format, is
 * RAVO_ARGUMENT; a name that the batch does not have is RAVO_UNKNOWN. Schema and array stay the caller's; the column is
 * valid until the caller releases them. `dictionary` may be null if there is none. Never
 * allocates.
 */
ravo_status RAVO_CALL ravo_column_of_arrow(const struct ArrowSchema *schema, const struct ArrowArray *array,
                                           const char *field, size_t field_length, ravo_column *column,
                                           ravo_column *dictionary, ravo_error *error);

/*
 * A function of the caller that receives a batch of a stream: its column, and how many rows came before it.
 *
 * The column is valid until the function returns.
 */
typedef int32_t(RAVO_CALL *ravo_batch)(void *context, const ravo_column *column, uint64_t first_row);

/*
 * Reads an Arrow stream to its end and gives a column of each batch to a function.
 *
 * `field` is as in ravo_column_of_arrow. The stream becomes the function's: it is released exactly once, whatever the
 * status, and so are its schema and its batches. A failure of the stream itself is RAVO_STOPPED with its number as
 * `error->code` and its message. Never allocates; the stream may.
 */
ravo_status RAVO_CALL ravo_arrow_stream(struct ArrowArrayStream *stream, const char *field, size_t field_length,
                                        ravo_batch batch, void *context, ravo_error *error);

/* ------------------------------------------------------------------------------------------------------------
 * This machine
 *
 * The one chapter whose answers depend on the machine and the moment, not on arguments alone.
 */

/* Which part of the suite asks for the report. */
typedef int32_t ravo_machine_layer;
enum {
  RAVO_MACHINE_CLIENT = 0,  /* a client with a user interface */
  RAVO_MACHINE_BUSINESS = 1 /* the application layer */
};

/*
 * Writes the suite's support report: date and time, system, folders, memory, disks, and the installed files of the
 * suite, in Czech, indented with tabs, with CR LF after each line.
 *
 * It reads clock, locale, registry and files, changes nothing and sends nothing. It names the computer, its user and
 * folders. A value that the machine does not have is empty, and its line is still there. Two reports may differ in
 * length: some 64 KiB are room for each. Allocates.
 */
ravo_status RAVO_CALL ravo_machine_report(ravo_machine_layer layer, char *buffer, size_t size, size_t *length,
                                          ravo_error *error);

#ifdef __cplusplus
}
#endif

#endif
