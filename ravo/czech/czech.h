#pragma once

/// What Czech bookkeeping checks, as the country has it.
///
/// The suite's own checks (ravo/common/accounts.h) are few and lenient, and stored documents rely on them.
/// This room has the rules of laws and standards; nothing of it is exported from RavoInterface. It is the
/// static library RavoCzech.
///
/// **Three layers, three answers.** *Form* is what the characters alone say: length, digits, weights, dates
/// of the calendar. `ParseIco` and its like answer it; they depend on their argument and on nothing else, so
/// a database can rely on them for ever. *List* is whether a register has it: `FindBank` takes the list and
/// the day, and tells the list's date. *Time* is what depends on the day: `CheckBorn` takes it. "Correct in
/// form" never means that something exists.
///
/// **One shape.** `ParseX(text)` takes UTF-8 or UTF-16 as people write it (labels such as "IČ:", blanks of
/// all widths) and gives a `Parsed<X>`: the value in canonical form, or a `Code` and the position of the
/// fault in units of the input. `Format(x)` is the usual spelling. `CodeText` and `Sentence` say in words
/// what a code means. `Check` does the same for a `Kind` chosen while the program runs. Values are small
/// structs of fixed capacity: nothing allocates, nothing throws.
///
/// Begin with `ico.h` and `ico.cpp`: every other kind copies them. What kinds share when they read is
/// `reading.h`; the reasons are rows of `reasons.inc`. Days are in `day.h` and `holidays.h`, VAT in
/// `vat_rates.h` and `vat.h`, the texts of QR codes in `payment_code.h`.
///
/// This room never asks the machine: not the clock, not the locale, not a file, not a network.
#include <ravo/czech/account.h>
#include <ravo/czech/banks.h>
#include <ravo/czech/bic.h>
#include <ravo/czech/birth_number.h>
#include <ravo/czech/day.h>
#include <ravo/czech/day_text.h>
#include <ravo/czech/dic.h>
#include <ravo/czech/ean.h>
#include <ravo/czech/holidays.h>
#include <ravo/czech/iban.h>
#include <ravo/czech/ico.h>
#include <ravo/czech/isbn.h>
#include <ravo/czech/kinds.h>
#include <ravo/czech/payment_code.h>
#include <ravo/czech/payment_text.h>
#include <ravo/czech/post_code.h>
#include <ravo/czech/reason.h>
#include <ravo/czech/symbols.h>
#include <ravo/czech/vat.h>
#include <ravo/czech/vat_number.h>
#include <ravo/czech/vat_rates.h>
