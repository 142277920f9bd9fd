// What Czech bookkeeping checks and computes, for C#. Written from c/ravo.h, which is the manual of every function.
//
// Texts are UTF-8: `byte[] name = Encoding.UTF8.GetBytes(text)` and `(UIntPtr)name.Length`. `Text` reads what comes back.
using System;
using System.Runtime.InteropServices;
using System.Text;

public static class Ravo
{
    // libravo.so on Linux, ravo.dll on Windows.
    const string Library = "ravo";

    /// <summary>A constant text of the library, or null.</summary>
    public static string Text(IntPtr text)
    {
        if (text == IntPtr.Zero) return null;
        int length = 0;
        while (Marshal.ReadByte(text, length) != 0) ++length;
        byte[] bytes = new byte[length];
        Marshal.Copy(text, bytes, 0, length);
        return Encoding.UTF8.GetString(bytes);
    }

    /// <summary>A text in a buffer, up to its NUL.</summary>
    public static string Text(byte[] buffer)
    {
        int length = Array.IndexOf(buffer, (byte)0);
        return Encoding.UTF8.GetString(buffer, 0, length < 0 ? buffer.Length : length);
    }

    /// <summary>The length of a text that ends with NUL.</summary>
    public static readonly UIntPtr RAVO_NUL_TERMINATED = UIntPtr.Size == 8 ? new UIntPtr(ulong.MaxValue) : new UIntPtr(uint.MaxValue);
    /// <summary>The longest canonical form or usual spelling in bytes, with its NUL.</summary>
    public const int RAVO_VALUE_SIZE = 48;
    /// <summary>The longest date in bytes, with its NUL.</summary>
    public const int RAVO_DATE_SIZE = 16;
    /// <summary>The longest amount in bytes, with its NUL.</summary>
    public const int RAVO_MONEY_SIZE = 24;
    /// <summary>The longest code in bytes, with its NUL.</summary>
    public const int RAVO_PAYMENT_CODE_SIZE = 2332;
    /// <summary>The size of data that the caller does not know: it ends where the offset of the last row ends.</summary>
    public static readonly UIntPtr RAVO_SIZE_UNKNOWN = UIntPtr.Size == 8 ? new UIntPtr(ulong.MaxValue) : new UIntPtr(uint.MaxValue);
    /// <summary>The day that 0 stands for in date32 of Arrow: 1 January 1970.</summary>
    public const int RAVO_DAY_1970 = 2440588;

    /// <summary>done, or correct in form</summary>
    public const int RAVO_OK = 0;
    /// <summary>the value is refused: ravo_error.code is the reason</summary>
    public const int RAVO_WRONG = 1;
    /// <summary>the result is longer than its buffer</summary>
    public const int RAVO_BUFFER = 2;
    /// <summary>a null pointer, an unknown number, a struct of an unknown size</summary>
    public const int RAVO_ARGUMENT = 3;
    /// <summary>a text is not UTF-8</summary>
    public const int RAVO_UTF8 = 4;
    /// <summary>a number, a day or a result is out of range</summary>
    public const int RAVO_RANGE = 5;
    /// <summary>there is nothing of that name or number</summary>
    public const int RAVO_UNKNOWN = 6;
    /// <summary>there is no memory left</summary>
    public const int RAVO_MEMORY = 7;
    /// <summary>a callback of the caller ended the work</summary>
    public const int RAVO_STOPPED = 8;
    /// <summary>a fault of the library: please report it</summary>
    public const int RAVO_INTERNAL = 9;
    /// <summary>bytes are no character of their encoding</summary>
    public const int RAVO_MALFORMED = 10;
    /// <summary>an encoding lacks a character</summary>
    public const int RAVO_LACKING = 11;

    /// <summary>Why a function failed.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_error
    {
        /// <summary>sizeof(ravo_error), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_error));
        /// <summary>what the function returned</summary>
        public int status;
        /// <summary>of RAVO_WRONG the reason, see ravo_reason_name, or 0; of RAVO_STOPPED the caller's number</summary>
        public int code;
        /// <summary>where, in bytes of the text or as the index of the item; 0 if there is no place</summary>
        public UIntPtr position;
        /// <summary>one sentence in English, UTF-8, ends with NUL</summary>
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 232)]
        public byte[] message = new byte[232];
    }

    public const int RAVO_LANGUAGE_CZECH = 0;
    public const int RAVO_LANGUAGE_ENGLISH = 1;

    /// <summary>Returns the stable name of a reason, such as "ico.checksum", or null for an unknown number.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern IntPtr ravo_reason_name(int code);

    /// <summary>Returns the sentence of a reason in a language, UTF-8, without a full stop, or null for an unknown number.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// <code>ravo_reason_sentence(104, RAVO_LANGUAGE_ENGLISH)  // "wrong: the check digit does not match"</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern IntPtr ravo_reason_sentence(int code, int language);

    /// <summary>Writes the number of the reason with a name, such as "ico.checksum", to `*code`.</summary>
    /// <remarks>
    /// <para>RAVO_UNKNOWN if there is none. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_reason_of(byte[] name, UIntPtr name_length, ref int code,
        [In, Out] ravo_error error);

    /// <summary>Returns the version of the library that is running, such as "1.1.0". Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern IntPtr ravo_version();

    /// <summary>Writes what the library was built with and runs on: lines of "name: value", such as the vector kernels that
    /// this processor gets and the dates of the lists inside. Allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_build_info([Out] byte[] buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);

    /// <summary>company number</summary>
    public const int RAVO_KIND_ICO = 1;
    /// <summary>Czech VAT number</summary>
    public const int RAVO_KIND_DIC = 2;
    /// <summary>VAT number of a country of the European Union</summary>
    public const int RAVO_KIND_VAT_NUMBER = 3;
    /// <summary>rodné číslo</summary>
    public const int RAVO_KIND_BIRTH_NUMBER = 4;
    /// <summary>of every country</summary>
    public const int RAVO_KIND_IBAN = 5;
    /// <summary>code of a bank in the SWIFT network</summary>
    public const int RAVO_KIND_BIC = 6;
    /// <summary>Czech account number with bank code</summary>
    public const int RAVO_KIND_ACCOUNT = 7;
    /// <summary>variabilní symbol</summary>
    public const int RAVO_KIND_VARIABLE_SYMBOL = 8;
    /// <summary>konstantní symbol</summary>
    public const int RAVO_KIND_CONSTANT_SYMBOL = 9;
    /// <summary>specifický symbol</summary>
    public const int RAVO_KIND_SPECIFIC_SYMBOL = 10;
    /// <summary>PSČ</summary>
    public const int RAVO_KIND_POST_CODE = 11;
    /// <summary>EAN-8, -12, -13, -14</summary>
    public const int RAVO_KIND_EAN = 12;
    /// <summary>ISBN-10, -13</summary>
    public const int RAVO_KIND_ISBN = 13;

    /// <summary>Returns the stable name of a kind, such as "ico", or null for an unknown number. Never allocates.</summary>
    /// <remarks>
    /// <para>The kinds are 1, 2, ... without gaps: ask until null.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern IntPtr ravo_kind_name(int kind);

    /// <summary>Returns the name of a kind for people, UTF-8, or null for an unknown number. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern IntPtr ravo_kind_title(int kind, int language);

    /// <summary>Writes the kind with a name, such as "ico", to `*kind`. RAVO_UNKNOWN if there is none. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_kind_of(byte[] name, UIntPtr name_length, ref int kind,
        [In, Out] ravo_error error);

    /// <summary>Checks a text for a kind and writes its canonical form, of at most RAVO_VALUE_SIZE bytes.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG if it is not correct in form: `error->code` is the reason, `error->position` the place. The buffer may
    /// be null. Never allocates.</para>
    /// <code>ravo_check(RAVO_KIND_IBAN, "CZ65 0800 0000 1920 0014 5399", RAVO_NUL_TERMINATED, iban, sizeof iban, NULL, NULL)</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_check(int kind, byte[] text, UIntPtr text_length, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Checks a text for a kind and writes its usual spelling, of at most RAVO_VALUE_SIZE bytes.</summary>
    /// <remarks>
    /// <para>Fails as ravo_check does. Never allocates.</para>
    /// <code>ravo_respell(RAVO_KIND_IBAN, "CZ6508000000192000145399", ...)  // CZ65 0800 0000 1920 0014 5399</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_respell(int kind, byte[] text, UIntPtr text_length, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>A Czech bank account.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_account
    {
        /// <summary>sizeof(ravo_account), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_account));
        /// <summary>at most ten digits</summary>
        public long number;
        /// <summary>at most six digits; 0 for none</summary>
        public int prefix;
        /// <summary>the bank code: 800 is 0800</summary>
        public int bank;
    }

    /// <summary>Writes the parts of an account. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_account_read(byte[] text, UIntPtr text_length, [In, Out] ravo_account account,
        [In, Out] ravo_error error);

    /// <summary>Writes the IBAN of a Czech account, of at most RAVO_VALUE_SIZE bytes.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// <code>ravo_account_to_iban("19-2000145399/0800", ...)  // CZ6508000000192000145399</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_account_to_iban(byte[] text, UIntPtr text_length, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the account of a Czech IBAN in its usual spelling, of at most RAVO_VALUE_SIZE bytes.</summary>
    /// <remarks>
    /// <para>RAVO_UNKNOWN for an IBAN of another country. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_account_of_iban(byte[] text, UIntPtr text_length, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    public const int RAVO_SEX_MALE = 0;
    public const int RAVO_SEX_FEMALE = 1;

    /// <summary>What a birth number tells.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_birth
    {
        /// <summary>sizeof(ravo_birth), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_birth));
        /// <summary>the day of birth</summary>
        public int born;
        /// <summary>women have 50 added to the month</summary>
        public int sex;
        /// <summary>1 if 20 is added to the month, else 0</summary>
        public int second_series;
        /// <summary>1 if it is not divisible by eleven and right all the same, else 0</summary>
        public int remainder_ten;
    }

    /// <summary>Writes what a birth number tells.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with the reason "rc.future" if the day of birth is after `today`. Never allocates.</para>
    /// <code>ravo_birth_read("880125/1680", RAVO_NUL_TERMINATED, today, &amp;birth, NULL)  // 25 January 1988, male</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_birth_read(byte[] text, UIntPtr text_length, int today,
        [In, Out] ravo_birth birth, [In, Out] ravo_error error);

    /// <summary>Writes the ISBN of thirteen digits of a book, of at most RAVO_VALUE_SIZE bytes. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_isbn_to_13(byte[] text, UIntPtr text_length, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>A piece of payment data in a text.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_payment
    {
        /// <summary>sizeof(ravo_payment), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_payment));
        /// <summary>where it begins, past its label, in bytes</summary>
        public UIntPtr begin;
        /// <summary>where it ends; the next search begins there</summary>
        public UIntPtr end;
        /// <summary>an account, an IBAN or one of the three symbols</summary>
        public int kind;
        /// <summary>as ravo_check writes it, ends with NUL</summary>
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 48)]
        public byte[] canonical = new byte[48];
    }

    /// <summary>Writes the first account, IBAN or payment symbol that ends after the byte `from` of a text.</summary>
    /// <remarks>
    /// <para>Accounts and IBANs are found by their form, symbols by their labels. RAVO_UNKNOWN if there is none, RAVO_RANGE
    /// if `from` is past the end. Never allocates.</para>
    /// <code>while (ravo_payment_find(letter, length, payment.end, &amp;payment, NULL) == RAVO_OK) puts(payment.canonical);</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_payment_find(byte[] text, UIntPtr text_length, UIntPtr from,
        [In, Out] ravo_payment payment, [In, Out] ravo_error error);

    /// <summary>A bank. Its texts live as long as the list.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_bank
    {
        /// <summary>sizeof(ravo_bank), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_bank));
        /// <summary>null if it has none</summary>
        public IntPtr bic;
        /// <summary>UTF-8</summary>
        public IntPtr name;
        /// <summary>800 is 0800</summary>
        public int code;
        /// <summary>1 if it takes part in the clearing system CERTIS, else 0</summary>
        public int clears;
    }

    /// <summary>Opens a list in the central bank's CSV form, converted to UTF-8: a line of captions, then lines of code, name,
    /// BIC and "A" for the clearing system, with semicolons between them.</summary>
    /// <remarks>
    /// <para>`date` is the day of the list. RAVO_WRONG with the reasons "bank.line", "bank.code", "bank.twice" and
    /// "bank.empty", at their position; RAVO_RANGE for a day outside of the calendar. The list keeps no part of the
    /// text. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_bank_list_open(byte[] text, UIntPtr text_length, int date, out IntPtr list,
        [In, Out] ravo_error error);

    /// <summary>Closes a list.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern void ravo_bank_list_close(IntPtr list);

    /// <summary>Returns the day of a list. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_bank_list_date(IntPtr list);

    /// <summary>Returns how many banks a list has. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_bank_count(IntPtr list);

    /// <summary>Writes the bank with an index, by code in ascending order. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_bank_at(IntPtr list, UIntPtr index, [In, Out] ravo_bank bank,
        [In, Out] ravo_error error);

    /// <summary>Writes the bank with a code; 800 is 0800.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with the reason "bank.unknown" if the list does not have it. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_bank_find(IntPtr list, int code, [In, Out] ravo_bank bank,
        [In, Out] ravo_error error);

    /// <summary>A date of the calendar.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct ravo_date
    {
        /// <summary>1 to 9999</summary>
        public int year;
        /// <summary>1 to 12</summary>
        public int month;
        /// <summary>of the month, from 1</summary>
        public int day;
    }

    /// <summary>Writes the day of a date. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_day_of(int year, int month, int day_of_month, ref int day,
        [In, Out] ravo_error error);

    /// <summary>Writes the date of a day. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_date_of(int day, ref ravo_date date, [In, Out] ravo_error error);

    /// <summary>Returns 1 if a year of the Gregorian calendar is a leap year, else 0. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_is_leap_year(int year);

    /// <summary>Writes the day of the week, 0 for Monday to 6 for Sunday. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_weekday_of(int day, ref int weekday, [In, Out] ravo_error error);

    /// <summary>A week by ISO 8601.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct ravo_week
    {
        /// <summary>the year of its Thursday</summary>
        public int year;
        /// <summary>1 to 53</summary>
        public int week;
    }

    /// <summary>Writes the ISO 8601 week of a day. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_week_of(int day, ref ravo_week week, [In, Out] ravo_error error);

    /// <summary>Writes the Monday of an ISO 8601 week. RAVO_RANGE if the year has no such week. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_day_of_week(int year, int week, ref int monday, [In, Out] ravo_error error);

    /// <summary>Writes how many days a month has. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_days_in_month(int year, int month, ref int days, [In, Out] ravo_error error);

    /// <summary>Writes the first day of the month of a day. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_month_begin(int day, ref int first, [In, Out] ravo_error error);

    /// <summary>Writes the last day of the month of a day. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_month_end(int day, ref int last, [In, Out] ravo_error error);

    /// <summary>Writes the day `months` months later, or earlier if negative.</summary>
    /// <remarks>
    /// <para>A day past the end of the new month becomes its last one. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_add_months(int day, int months, ref int result, [In, Out] ravo_error error);

    /// <summary>2026-11-21</summary>
    public const int RAVO_DATE_ISO = 0;
    /// <summary>21. 11. 2026</summary>
    public const int RAVO_DATE_CZECH = 1;
    /// <summary>20261121</summary>
    public const int RAVO_DATE_COMPACT = 2;

    /// <summary>Writes a day as a text of at most RAVO_DATE_SIZE bytes. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_day_format(int day, int form, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the day of a date as people write it: each form of ravo_date_form, in Czech with or without blanks.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with code 0 for a text that is none of them. Blanks around it are skipped. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_day_read(byte[] text, UIntPtr text_length, ref int day,
        [In, Out] ravo_error error);

    /// <summary>A public holiday.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_holiday
    {
        /// <summary>sizeof(ravo_holiday), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_holiday));
        /// <summary>its name by law, UTF-8</summary>
        public IntPtr czech;
        /// <summary>its name in English</summary>
        public IntPtr english;
        /// <summary>the law that gave it this form: "245/2000"</summary>
        public IntPtr law;
        /// <summary>the first year in which it holds</summary>
        public int first_year;
        /// <summary>the last; 9999 if there is no end</summary>
        public int last_year;
        /// <summary>1 to 12; 0 if it follows Easter</summary>
        public int month;
        /// <summary>of the month, or days after Easter Sunday</summary>
        public int day;
    }

    /// <summary>Returns how many holidays are known, former ones included. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_holiday_count();

    /// <summary>Writes the holiday with an index, by its place in the year. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_holiday_at(UIntPtr index, [In, Out] ravo_holiday holiday,
        [In, Out] ravo_error error);

    /// <summary>Writes the day of the holiday with an index. RAVO_RANGE if it does not hold in that year. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_holiday_day(UIntPtr index, int year, ref int day, [In, Out] ravo_error error);

    /// <summary>Writes the `nth` holiday of a day, 0 for the first: 1 January has two.</summary>
    /// <remarks>
    /// <para>RAVO_UNKNOWN if there are fewer. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_holiday_on(int day, UIntPtr nth, [In, Out] ravo_holiday holiday,
        [In, Out] ravo_error error);

    /// <summary>Writes Easter Sunday of a year. RAVO_RANGE outside of the years 1583 to 9999. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_easter_sunday(int year, ref int day, [In, Out] ravo_error error);

    /// <summary>Returns 1 if a day is Monday to Friday and no holiday, else 0. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_is_working_day(int day);

    /// <summary>Writes the first working day from `day` on, which may be `day` itself. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_next_working_day(int day, ref int working_day, [In, Out] ravo_error error);

    /// <summary>Writes how many working days there are after `from` up to and with `to`.</summary>
    /// <remarks>
    /// <para>Negative if `to` is before `from`. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_working_days_between(int from, int to, ref int days, [In, Out] ravo_error error);

    /// <summary>When a term ends.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_term
    {
        /// <summary>sizeof(ravo_term), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_term));
        /// <summary>as the days or months count</summary>
        public int counted;
        /// <summary>the same, or the next working day if it is not one</summary>
        public int due;
        /// <summary>1 if the holidays up to there are verified, else 0</summary>
        public int verified;
    }

    /// <summary>Writes when a term of `days` days ends. The day of the event, `from`, does not count.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_term_in_days(int from, int days, [In, Out] ravo_term term,
        [In, Out] ravo_error error);

    /// <summary>Writes when a term of `months` months ends: on the day of the same number, or the month's last.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_term_in_months(int from, int months, [In, Out] ravo_term term,
        [In, Out] ravo_error error);

    /// <summary>Writes how many days `today` is past the due day; 0 up to that day. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_days_overdue(int due, int today, ref int days, [In, Out] ravo_error error);

    /// <summary>to the nearest multiple, halves away from zero</summary>
    public const int RAVO_ROUND_HALF_AWAY = 0;
    /// <summary>to the multiple farther from zero</summary>
    public const int RAVO_ROUND_AWAY = 1;
    /// <summary>to the multiple nearer to zero</summary>
    public const int RAVO_ROUND_TOWARD = 2;

    /// <summary>Writes an amount in plain digits, as a text of at most RAVO_MONEY_SIZE bytes.</summary>
    /// <remarks>
    /// <para>`separator` is the character between crowns and decimals, in ASCII; RAVO_ARGUMENT for another. There are at
    /// least `places` decimals, 0 to 4, and at most four. Allocates for long amounts.</para>
    /// <code>ravo_money_format(125000, ',', 2, ...)  // 12,50</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_money_format(long amount, int separator, int places, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the amount of a text, which is a sign, digits, a separator, at most four decimals that are not zeros
    /// at the end.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with code 0 for any other text and for amounts that do not fit 64 bits. Never allocates for texts of
    /// up to 256 bytes.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_money_read(byte[] text, UIntPtr text_length, int separator, ref long amount,
        [In, Out] ravo_error error);

    /// <summary>Writes an amount rounded to a multiple of `step`: 100 are hundredths, 10000 whole crowns.</summary>
    /// <remarks>
    /// <para>RAVO_RANGE if `step` is not positive. Allocates on failure alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_money_round(long amount, long step, int rounding, ref long result,
        [In, Out] ravo_error error);

    /// <summary>Writes an amount times `numerator` / `denominator`, rounded to a multiple of `step`.</summary>
    /// <remarks>
    /// <para>RAVO_RANGE if `denominator` is 0, if `step` is not positive, and if one times the other does not fit 64 bits.
    /// Allocates on failure alone.</para>
    /// <code>ravo_money_times_ratio(gross, 21, 121, 100, RAVO_ROUND_HALF_AWAY, &amp;tax, NULL)</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_money_times_ratio(long amount, long numerator, long denominator, long step,
        int rounding, ref long result, [In, Out] ravo_error error);

    /// <summary>Writes an amount times a rate, rounded to a multiple of `step`. 2100 is 21 %, 253400 an exchange rate of 25,34.</summary>
    /// <remarks>
    /// <para>Fails as ravo_money_times_ratio does. Allocates on failure alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_money_times_rate(long amount, long rate, long step, int rounding, ref long result,
        [In, Out] ravo_error error);

    /// <summary>Writes an amount rounded to whole crowns, and the rounded amount less the given one. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_money_to_crowns(long amount, int rounding, ref long rounded, ref long difference,
        [In, Out] ravo_error error);

    /// <summary>no tax</summary>
    public const int RAVO_VAT_ZERO = 0;
    /// <summary>základní</summary>
    public const int RAVO_VAT_STANDARD = 1;
    /// <summary>snížená; from 2015 to 2023 the first of two</summary>
    public const int RAVO_VAT_REDUCED = 2;
    /// <summary>druhá snížená, 2015 to 2023</summary>
    public const int RAVO_VAT_SECOND_REDUCED = 3;

    /// <summary>base times rate</summary>
    public const int RAVO_VAT_FROM_BASE = 0;
    /// <summary>total times a coefficient of four decimals</summary>
    public const int RAVO_VAT_FROM_TOTAL_BY_COEFFICIENT = 1;
    /// <summary>total less total / (1 + rate)</summary>
    public const int RAVO_VAT_FROM_TOTAL = 2;

    /// <summary>A rate.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_vat_rate
    {
        /// <summary>sizeof(ravo_vat_rate), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_vat_rate));
        /// <summary>the law that set it: "500/2012"</summary>
        public IntPtr law;
        /// <summary>the first day on which it is in force</summary>
        public int first;
        /// <summary>the last; 31 December 9999 if there is no end</summary>
        public int last;
        /// <summary>which</summary>
        public int kind;
        /// <summary>21 is 21 %</summary>
        public int percent;
    }

    /// <summary>Returns how many rates are known, former ones included. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_vat_rate_count();

    /// <summary>Writes the rate with an index, by its first day. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_vat_rate_at(UIntPtr index, [In, Out] ravo_vat_rate rate,
        [In, Out] ravo_error error);

    /// <summary>Writes the percentage of a kind of rate on a day; 0 for RAVO_VAT_ZERO.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with the reason "rate.unknown" if it was not in force. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_vat_percent_on(int day, int kind, ref int percent, [In, Out] ravo_error error);

    /// <summary>Writes the kind of a percentage on a day. RAVO_UNKNOWN if there was no such rate. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_vat_kind_on(int day, int percent, ref int kind, [In, Out] ravo_error error);

    /// <summary>A way of computing the tax.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_vat_way
    {
        /// <summary>sizeof(ravo_vat_way), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_vat_way));
        /// <summary>the law that has it: "235/2004"</summary>
        public IntPtr law;
        /// <summary>the first day on which it is lawful</summary>
        public int first;
        /// <summary>the last; 31 December 9999 if there is no end</summary>
        public int last;
        /// <summary>which</summary>
        public int method;
    }

    /// <summary>Returns how many ways of computing the tax are known. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_vat_way_count();

    /// <summary>Writes the way with an index. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_vat_way_at(UIntPtr index, [In, Out] ravo_vat_way way, [In, Out] ravo_error error);

    /// <summary>Returns 1 if a way of computing the tax is lawful on a day, else 0. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_vat_is_lawful(int method, int day);

    /// <summary>Base, tax and total of an amount.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_vat_amounts
    {
        /// <summary>sizeof(ravo_vat_amounts), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_vat_amounts));
        /// <summary>without the tax</summary>
        public long @base;
        /// <summary>whole haléře</summary>
        public long tax;
        /// <summary>both</summary>
        public long total;
        /// <summary>1 if the exact tax ends on half a haléř, else 0</summary>
        public int half;
    }

    /// <summary>Writes base, tax and total of an amount, which the method says to be a base or a total.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with the reason "rate.unknown" for a percentage outside of 0 to 100. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_vat_compute(long amount, int percent, int method,
        [In, Out] ravo_vat_amounts amounts, [In, Out] ravo_error error);

    /// <summary>A line of a document.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct ravo_vat_line
    {
        /// <summary>base or total, as the method says</summary>
        public long amount;
        /// <summary>its rate</summary>
        public int kind;
    }

    /// <summary>once for each rate, of the sum of its lines</summary>
    public const int RAVO_VAT_PER_DOCUMENT = 0;
    /// <summary>of each line, then added</summary>
    public const int RAVO_VAT_PER_LINE = 1;

    /// <summary>The part of a document that has one rate.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct ravo_vat_row
    {
        public long @base;
        public long tax;
        public long total;
        /// <summary>how many lines have the rate</summary>
        public UIntPtr lines;
        /// <summary>the percentage on the day</summary>
        public int percent;
        /// <summary>1 if any of its taxes ends on half a haléř, else 0</summary>
        public int half;
    }

    /// <summary>A document by rates.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_vat_summary
    {
        /// <summary>sizeof(ravo_vat_summary), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_vat_summary));
        /// <summary>by ravo_vat_kind</summary>
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 4)]
        public ravo_vat_row[] rows = new ravo_vat_row[4];
        /// <summary>of all rows; its percentage is 0</summary>
        public ravo_vat_row sum;
    }

    /// <summary>Writes the recapitulation of a document's lines by the rates of a day.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with the reasons "rate.unknown" at the index of the line and "rate.method" for a way that is not
    /// lawful on the day; RAVO_RANGE at the index of the line. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_vat_recapitulate(ref ravo_vat_line lines, UIntPtr lines_length, int method,
        int per, int day, [In, Out] ravo_vat_summary summary, [In, Out] ravo_error error);

    /// <summary>a payment</summary>
    public const int RAVO_PAYMENT_CODE_SPAYD = 0;
    /// <summary>an invoice</summary>
    public const int RAVO_PAYMENT_CODE_SID = 1;

    /// <summary>A payment. Null values are left out.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_spayd
    {
        /// <summary>sizeof(ravo_spayd), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_spayd));
        /// <summary>ACC: an IBAN, perhaps with "+" and a BIC; must be there</summary>
        public IntPtr account;
        /// <summary>ALT-ACC: one or two such IBANs, divided by a comma</summary>
        public IntPtr other_accounts;
        /// <summary>AM: "450.00"</summary>
        public IntPtr amount;
        /// <summary>CC: "CZK"</summary>
        public IntPtr currency;
        /// <summary>RF: digits for the receiver</summary>
        public IntPtr reference;
        /// <summary>RN: the name of the receiver</summary>
        public IntPtr receiver;
        /// <summary>DT: "20261231"</summary>
        public IntPtr due;
        /// <summary>PT: "IP" for an instant payment</summary>
        public IntPtr payment_type;
        /// <summary>MSG: for the receiver</summary>
        public IntPtr message;
        /// <summary>NT: "P" by telephone, "E" by electronic mail</summary>
        public IntPtr notify_by;
        /// <summary>NTA: the number or the address</summary>
        public IntPtr notify_to;
        /// <summary>X-PER: for how many days a refused payment is tried again</summary>
        public IntPtr retry_days;
        /// <summary>X-VS</summary>
        public IntPtr variable_symbol;
        /// <summary>X-SS</summary>
        public IntPtr specific_symbol;
        /// <summary>X-KS</summary>
        public IntPtr constant_symbol;
        /// <summary>X-ID: for the payer</summary>
        public IntPtr own_id;
        /// <summary>X-URL</summary>
        public IntPtr url;
        /// <summary>X-INV: an invoice code, from ravo_sid_write</summary>
        public IntPtr invoice;
        /// <summary>1 to end the code with CRC32, else 0</summary>
        public int checksum;
    }

    /// <summary>Writes the code of a payment, of at most RAVO_PAYMENT_CODE_SIZE bytes.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with the reasons "code...." and those of accounts, and RAVO_UTF8: `error->position` is the place in the
    /// value, and the message begins with its key: "AM: wrong: an amount has ...". "code.missing" has neither: the account
    /// is not there. Never allocates.</para>
    /// <code>ravo_spayd code = RAVO_SPAYD_INIT;
    /// code.account = "CZ6508000000192000145399";
    /// code.amount = "450.00";
    /// ravo_spayd_write(&amp;code, text, sizeof text, NULL, &amp;error);</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_spayd_write([In] ravo_spayd code, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>An invoice. Null values are left out.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_sid
    {
        /// <summary>sizeof(ravo_sid), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_sid));
        /// <summary>ID: of the document; must be there</summary>
        public IntPtr number;
        /// <summary>DD: "20261121"; must be there</summary>
        public IntPtr issued;
        /// <summary>AM: "-450.00"; must be there unless `inside`</summary>
        public IntPtr amount;
        /// <summary>TP: 0 usual, 1 reverse charge, 2 both</summary>
        public IntPtr tax_type;
        /// <summary>TD: 0 no tax document, 1 to 5 and 9 as the standard has them</summary>
        public IntPtr document_type;
        /// <summary>SA: 1 if deposits are settled, else 0</summary>
        public IntPtr has_deposits;
        /// <summary>MSG</summary>
        public IntPtr message;
        /// <summary>ON: number of the order</summary>
        public IntPtr order;
        /// <summary>VS</summary>
        public IntPtr variable_symbol;
        /// <summary>VII</summary>
        public IntPtr supplier_dic;
        /// <summary>INI</summary>
        public IntPtr supplier_ico;
        /// <summary>VIR</summary>
        public IntPtr customer_dic;
        /// <summary>INR</summary>
        public IntPtr customer_ico;
        /// <summary>DUZP: a day, as the others</summary>
        public IntPtr tax_point;
        /// <summary>DPPD: the day of the duty to tell the tax</summary>
        public IntPtr tax_due;
        /// <summary>DT</summary>
        public IntPtr due;
        /// <summary>TB0: base in the standard rate</summary>
        public IntPtr base_standard;
        /// <summary>T0</summary>
        public IntPtr tax_standard;
        /// <summary>TB1: in the first reduced rate</summary>
        public IntPtr base_reduced;
        /// <summary>T1</summary>
        public IntPtr tax_reduced;
        /// <summary>TB2: in the second reduced rate</summary>
        public IntPtr base_second;
        /// <summary>T2</summary>
        public IntPtr tax_second;
        /// <summary>NTB: what is not taxed</summary>
        public IntPtr untaxed;
        /// <summary>CC: "CZK"</summary>
        public IntPtr currency;
        /// <summary>FX: crowns for `exchange_count` units of the currency</summary>
        public IntPtr exchange_rate;
        /// <summary>FXA</summary>
        public IntPtr exchange_count;
        /// <summary>ACC: an IBAN, perhaps with "+" and a BIC</summary>
        public IntPtr account;
        /// <summary>X-SW</summary>
        public IntPtr software;
        /// <summary>X-URL</summary>
        public IntPtr url;
        /// <summary>1 if the code goes into a payment code, which has what is left out, else 0</summary>
        public int inside;
        /// <summary>1 to end the code with CRC32, else 0; nothing inside of a payment</summary>
        public int checksum;
    }

    /// <summary>Writes the code of an invoice, of at most RAVO_PAYMENT_CODE_SIZE bytes.</summary>
    /// <remarks>
    /// <para>Fails as ravo_spayd_write does, and with the reasons of IČO and DIČ. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_sid_write([In] ravo_sid code, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Checks a code and writes which of the two it is and how many values it has.</summary>
    /// <remarks>
    /// <para>Keys that the standard does not have pass, and a checksum is compared. RAVO_WRONG with the reasons "code....",
    /// those of accounts, IČO and DIČ, at their position in the text. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_payment_code_read(byte[] text, UIntPtr text_length, ref int code,
        ref UIntPtr values, [In, Out] ravo_error error);

    /// <summary>Writes key and value with an index, in the order of a code: "AM" and "450.00".</summary>
    /// <remarks>
    /// <para>Fails as ravo_payment_code_read does; RAVO_UNKNOWN past the last. A value may contain NUL. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_payment_code_at(byte[] text, UIntPtr text_length, UIntPtr index, [Out] byte[] key,
        UIntPtr key_size, ref UIntPtr key_length, [Out] byte[] value, UIntPtr value_size, ref UIntPtr value_length,
        [In, Out] ravo_error error);

    /// <summary>Opens an invoice: reads and checks it.</summary>
    /// <remarks>
    /// <para>The text is UTF-8, whatever encoding it declares. RAVO_WRONG with code 0 for what is not XML: `error->position` is
    /// the place, the message tells line and column and why. What is XML and no invoice is opened, and its findings say so.
    /// The invoice keeps no part of the text. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_invoice_open(byte[] text, UIntPtr text_length, out IntPtr invoice,
        [In, Out] ravo_error error);

    /// <summary>Closes an invoice.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern void ravo_invoice_close(IntPtr invoice);

    /// <summary>ISDOC 6</summary>
    public const int RAVO_INVOICE_VERSION_KNOWN = 0;
    /// <summary>ISDOC of another version: findings say little</summary>
    public const int RAVO_INVOICE_VERSION_OTHER = 1;
    /// <summary>no document of ISDOC</summary>
    public const int RAVO_INVOICE_VERSION_NONE = 2;

    /// <summary>What an invoice says once.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_invoice_head
    {
        /// <summary>sizeof(ravo_invoice_head), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_invoice_head));
        /// <summary>of the document</summary>
        public IntPtr number;
        /// <summary>"1" an invoice, to "7", as the standard numbers them</summary>
        public IntPtr type;
        public IntPtr uuid;
        public IntPtr issued;
        public IntPtr tax_point;
        /// <summary>of the books</summary>
        public IntPtr currency;
        /// <summary>of the document, if it is another</summary>
        public IntPtr foreign_currency;
        public IntPtr note;
        /// <summary>whether the checks know it</summary>
        public int version;
    }

    /// <summary>Writes what an invoice says once. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_invoice_head_of(IntPtr invoice, [In, Out] ravo_invoice_head head,
        [In, Out] ravo_error error);

    public const int RAVO_INVOICE_ROLE_SUPPLIER = 0;
    public const int RAVO_INVOICE_ROLE_CUSTOMER = 1;

    /// <summary>One side of the business.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_invoice_party
    {
        /// <summary>sizeof(ravo_invoice_party), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_invoice_party));
        /// <summary>company number</summary>
        public IntPtr ico;
        /// <summary>the number for VAT, or else the first tax number</summary>
        public IntPtr dic;
        public IntPtr name;
        public IntPtr street;
        public IntPtr building;
        public IntPtr post_code;
        public IntPtr city;
        /// <summary>its code: "CZ"</summary>
        public IntPtr country;
    }

    /// <summary>Writes a side of the business. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_invoice_party_of(IntPtr invoice, int role, [In, Out] ravo_invoice_party party,
        [In, Out] ravo_error error);

    /// <summary>A line.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_invoice_line
    {
        /// <summary>sizeof(ravo_invoice_line), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_invoice_line));
        public IntPtr number;
        /// <summary>what was sold</summary>
        public IntPtr text;
        public IntPtr quantity;
        public IntPtr unit;
        public IntPtr unit_price;
        /// <summary>in percent</summary>
        public IntPtr rate;
        /// <summary>without the tax</summary>
        public IntPtr @base;
        public IntPtr tax;
        /// <summary>with the tax</summary>
        public IntPtr total;
        /// <summary>1 if the customer owes the tax, else 0</summary>
        public int reverse_charge;
    }

    /// <summary>Returns how many lines an invoice has; 0 for null. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_invoice_line_count(IntPtr invoice);

    /// <summary>Writes the line with an index. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_invoice_line_at(IntPtr invoice, UIntPtr index, [In, Out] ravo_invoice_line line,
        [In, Out] ravo_error error);

    /// <summary>no lawful way gives it</summary>
    public const int RAVO_INVOICE_WAY_NONE = 0;
    /// <summary>there is no tax</summary>
    public const int RAVO_INVOICE_WAY_UNTAXED = 1;
    /// <summary>of the base</summary>
    public const int RAVO_INVOICE_WAY_BASE = 2;
    /// <summary>of the amount with tax</summary>
    public const int RAVO_INVOICE_WAY_TOTAL = 3;
    /// <summary>of the amount with tax, by a coefficient of four decimals</summary>
    public const int RAVO_INVOICE_WAY_COEFFICIENT = 4;
    /// <summary>the taxes of the lines added</summary>
    public const int RAVO_INVOICE_WAY_LINES = 5;

    /// <summary>A row of the recapitulation.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_invoice_rate
    {
        /// <summary>sizeof(ravo_invoice_rate), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_invoice_rate));
        /// <summary>in percent</summary>
        public IntPtr rate;
        /// <summary>without the tax</summary>
        public IntPtr @base;
        public IntPtr tax;
        /// <summary>with the tax</summary>
        public IntPtr total;
        /// <summary>of taxed deposits</summary>
        public IntPtr claimed_base;
        public IntPtr claimed_tax;
        public IntPtr claimed_total;
        /// <summary>less the taxed deposits</summary>
        public IntPtr difference_base;
        public IntPtr difference_tax;
        public IntPtr difference_total;
        /// <summary>1 if the customer owes the tax, else 0</summary>
        public int reverse_charge;
        /// <summary>the lawful way that gives the tax</summary>
        public int way;
    }

    /// <summary>Returns how many rows the recapitulation has; 0 for null. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_invoice_rate_count(IntPtr invoice);

    /// <summary>Writes the row of the recapitulation with an index. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_invoice_rate_at(IntPtr invoice, UIntPtr index, [In, Out] ravo_invoice_rate rate,
        [In, Out] ravo_error error);

    /// <summary>The sums of an invoice.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_invoice_totals
    {
        /// <summary>sizeof(ravo_invoice_totals), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_invoice_totals));
        /// <summary>without the tax</summary>
        public IntPtr @base;
        public IntPtr tax;
        /// <summary>with the tax</summary>
        public IntPtr total;
        /// <summary>of taxed deposits</summary>
        public IntPtr claimed_base;
        public IntPtr claimed_total;
        /// <summary>less the taxed deposits</summary>
        public IntPtr difference_base;
        public IntPtr difference_total;
        public IntPtr rounding;
        /// <summary>deposits that are not taxed</summary>
        public IntPtr paid_deposits;
        /// <summary>what is to be paid</summary>
        public IntPtr payable;
    }

    /// <summary>Writes the sums of an invoice. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_invoice_totals_of(IntPtr invoice, [In, Out] ravo_invoice_totals totals,
        [In, Out] ravo_error error);

    /// <summary>A payment of an invoice.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_invoice_payment
    {
        /// <summary>sizeof(ravo_invoice_payment), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_invoice_payment));
        public IntPtr amount;
        /// <summary>its code: "10" in cash, "42" by bank transfer</summary>
        public IntPtr means;
        public IntPtr due;
        /// <summary>without the bank</summary>
        public IntPtr account;
        /// <summary>its code</summary>
        public IntPtr bank;
        public IntPtr iban;
        public IntPtr bic;
        public IntPtr variable_symbol;
        public IntPtr constant_symbol;
        public IntPtr specific_symbol;
    }

    /// <summary>Returns how many payments an invoice has; 0 for null. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_invoice_payment_count(IntPtr invoice);

    /// <summary>Writes the payment with an index. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_invoice_payment_at(IntPtr invoice, UIntPtr index,
        [In, Out] ravo_invoice_payment payment, [In, Out] ravo_error error);

    /// <summary>lawful, or within half a haléř for each line; worth a look</summary>
    public const int RAVO_INVOICE_SEVERITY_NOTE = 0;
    /// <summary>the document breaks a rule</summary>
    public const int RAVO_INVOICE_SEVERITY_ERROR = 1;

    /// <summary>What is wrong with an invoice.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_invoice_finding
    {
        /// <summary>sizeof(ravo_invoice_finding), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_invoice_finding));
        /// <summary>the stable name of the rule: "sum.lines"</summary>
        public IntPtr name;
        /// <summary>the name of the element</summary>
        public IntPtr element;
        /// <summary>what is there; "" if nothing is</summary>
        public IntPtr found;
        /// <summary>what should be there; "" if the rule says it all</summary>
        public IntPtr expected;
        /// <summary>its number, for ravo_invoice_rule_sentence</summary>
        public int rule;
        /// <summary>why a check refuses what is there, for ravo_reason_sentence; 0 if none does</summary>
        public int reason;
        /// <summary>how grave it is</summary>
        public int severity;
        /// <summary>in the text, from 1</summary>
        public uint line;
        /// <summary>in characters, from 1</summary>
        public uint column;
    }

    /// <summary>Returns how many findings an invoice has, of structure and content; 0 for null. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_invoice_finding_count(IntPtr invoice);

    /// <summary>Writes the finding with an index, in the order of the text. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_invoice_finding_at(IntPtr invoice, UIntPtr index,
        [In, Out] ravo_invoice_finding finding, [In, Out] ravo_error error);

    /// <summary>Returns the sentence of a rule in a language, UTF-8, without a full stop, or null for an unknown number.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern IntPtr ravo_invoice_rule_sentence(int rule, int language);

    /// <summary>Writes a text in upper case.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_text_upper(byte[] text, UIntPtr text_length, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes a text in lower case.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_text_lower(byte[] text, UIntPtr text_length, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the case-folded form of a text, equal for texts that differ only in case.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_text_fold(byte[] text, UIntPtr text_length, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes a text with the first character of each word in upper case and the others in lower case.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_text_proper(byte[] text, UIntPtr text_length, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes 1 if a whole text matches a mask, else 0. "*" is any run of characters, "?" one character of UTF-16.</summary>
    /// <remarks>
    /// <para>`ignore_case` is 0, or 1 to fold both. Never allocates for texts and masks of up to 256 bytes.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_text_match(byte[] text, UIntPtr text_length, byte[] mask, UIntPtr mask_length,
        int ignore_case, ref int answer, [In, Out] ravo_error error);

    /// <summary>Writes 1 if a whole text matches a mask, else 0, as ravo_text_match does, with the units of UTF-16 `wild` for "*" and
    /// `one` for "?". If both are the same, it is `wild`.</summary>
    /// <remarks>
    /// <para>Never allocates for texts and masks of up to 256 bytes.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_text_match_with(byte[] text, UIntPtr text_length, byte[] mask,
        UIntPtr mask_length, ushort wild, ushort one, int ignore_case, ref int answer, [In, Out] ravo_error error);

    /// <summary>Writes a text in the form encoding of URLs: "a+b%26c" of "a b&amp;c".</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_url_encode(byte[] text, UIntPtr text_length, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes a form-encoded text decoded. A "%" without two hexadecimal digits stays.</summary>
    /// <remarks>
    /// <para>RAVO_UTF8 if the result is not UTF-8, at its position there.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_url_decode(byte[] text, UIntPtr text_length, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the part of a URI before the first "#", or the whole URI without one.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_uri_without_fragment(byte[] uri, UIntPtr uri_length, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the part of a URI after the first "#", or an empty text without one.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_uri_fragment(byte[] uri, UIntPtr uri_length, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>as said above</summary>
    public const int RAVO_ORDER_PLAIN = 0;
    /// <summary>small letters and capitals are equal</summary>
    public const int RAVO_ORDER_IGNORE_CASE = 1;
    /// <summary>runs of the digits 0 to 9 compare by value: "FV9" before "FV10"</summary>
    public const int RAVO_ORDER_NATURAL = 2;
    /// <summary>digits precede letters, as in most programs</summary>
    public const int RAVO_ORDER_DIGITS_FIRST = 4;

    /// <summary>Writes -1, 0 or 1: whether text `a` comes before `b` in the Czech order, is equal to it, or comes after it.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// <code>ravo_compare_czech("cihla", RAVO_NUL_TERMINATED, "čaj", RAVO_NUL_TERMINATED, 0, &amp;order, NULL)  // -1</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_compare_czech(byte[] a, UIntPtr a_length, byte[] b, UIntPtr b_length, uint flags,
        ref int order, [In, Out] ravo_error error);

    /// <summary>Writes the key of a text in the Czech order: bytes, of which none is 0 without RAVO_ORDER_NATURAL.</summary>
    /// <remarks>
    /// <para>Keys of the same flags compare as their texts do. Other versions of the library may make other keys: do not store
    /// them. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_czech_key(byte[] text, UIntPtr text_length, uint flags, IntPtr buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes -1, 0 or 1: how the numbers compare with which two texts begin.</summary>
    /// <remarks>
    /// <para>A number is a sign, digits of any count, blanks between them, a decimal comma or point: "-1 234,50 Kč". A text
    /// without a number is less than any number. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_compare_numbers(byte[] a, UIntPtr a_length, byte[] b, UIntPtr b_length,
        ref int order, [In, Out] ravo_error error);

    /// <summary>Writes the key of the number with which a text begins: bytes.</summary>
    /// <remarks>
    /// <para>Keys compare as ravo_compare_numbers does. Other versions of the library may make other keys: do not store them.
    /// Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_number_key(byte[] text, UIntPtr text_length, IntPtr buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes a negative number, 0 or a positive one: how the suite compares two texts with numbers, by UTF-16 units.</summary>
    /// <remarks>
    /// <para>The number is the difference of two units or of two lengths, or 1 or -1 if one number is longer. Digits are those
    /// of every script. Zeros inside a number do not count: "105" comes before "15", so that the order has cycles.
    /// `ignore_case` is 0, or 1 to fold both. Never allocates for texts of up to 256 bytes.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_compare_num(byte[] a, UIntPtr a_length, byte[] b, UIntPtr b_length,
        int ignore_case, ref long difference, [In, Out] ravo_error error);

    /// <summary>Writes how the suite compares bytes of any encoding, as ravo_suite_compare_num does texts: digits are 0 to 9, and
    /// ASCII letters alone have case.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_compare_num_bytes(byte[] a, UIntPtr a_length, byte[] b, UIntPtr b_length,
        int ignore_case, ref long difference, [In, Out] ravo_error error);

    /// <summary>(Cn) no character, in the version of the tables</summary>
    public const int RAVO_CHARACTER_UNASSIGNED = 0;
    /// <summary>(Lu)</summary>
    public const int RAVO_CHARACTER_LETTER_UPPER_CASE = 1;
    /// <summary>(Ll)</summary>
    public const int RAVO_CHARACTER_LETTER_LOWER_CASE = 2;
    /// <summary>(Lt) such as U+01C5</summary>
    public const int RAVO_CHARACTER_LETTER_TITLE_CASE = 3;
    /// <summary>(Lm)</summary>
    public const int RAVO_CHARACTER_LETTER_MODIFIER = 4;
    /// <summary>(Lo) a letter without case</summary>
    public const int RAVO_CHARACTER_LETTER_OTHER = 5;
    /// <summary>(Mn)</summary>
    public const int RAVO_CHARACTER_MARK_NON_SPACING = 6;
    /// <summary>(Mc)</summary>
    public const int RAVO_CHARACTER_MARK_SPACING_COMBINED = 7;
    /// <summary>(Me)</summary>
    public const int RAVO_CHARACTER_MARK_ENCLOSING = 8;
    /// <summary>(Nd) a decimal digit of any script</summary>
    public const int RAVO_CHARACTER_NUMBER_DECIMAL = 9;
    /// <summary>(Nl) such as U+2160, the Roman one</summary>
    public const int RAVO_CHARACTER_NUMBER_LETTER = 10;
    /// <summary>(No) such as U+00BD, a half</summary>
    public const int RAVO_CHARACTER_NUMBER_OTHER = 11;
    /// <summary>(Pc) such as the low line</summary>
    public const int RAVO_CHARACTER_PUNCTUATION_CONNECTOR = 12;
    /// <summary>(Pd)</summary>
    public const int RAVO_CHARACTER_PUNCTUATION_DASH = 13;
    /// <summary>(Ps)</summary>
    public const int RAVO_CHARACTER_PUNCTUATION_OPEN = 14;
    /// <summary>(Pe)</summary>
    public const int RAVO_CHARACTER_PUNCTUATION_CLOSE = 15;
    /// <summary>(Pi)</summary>
    public const int RAVO_CHARACTER_PUNCTUATION_INITIAL_QUOTE = 16;
    /// <summary>(Pf)</summary>
    public const int RAVO_CHARACTER_PUNCTUATION_FINAL_QUOTE = 17;
    /// <summary>(Po)</summary>
    public const int RAVO_CHARACTER_PUNCTUATION_OTHER = 18;
    /// <summary>(Sm)</summary>
    public const int RAVO_CHARACTER_SYMBOL_MATH = 19;
    /// <summary>(Sc)</summary>
    public const int RAVO_CHARACTER_SYMBOL_CURRENCY = 20;
    /// <summary>(Sk)</summary>
    public const int RAVO_CHARACTER_SYMBOL_MODIFIER = 21;
    /// <summary>(So)</summary>
    public const int RAVO_CHARACTER_SYMBOL_OTHER = 22;
    /// <summary>(Zs)</summary>
    public const int RAVO_CHARACTER_SEPARATOR_SPACE = 23;
    /// <summary>(Zl)</summary>
    public const int RAVO_CHARACTER_SEPARATOR_LINE = 24;
    /// <summary>(Zp)</summary>
    public const int RAVO_CHARACTER_SEPARATOR_PARAGRAPH = 25;
    /// <summary>(Cc)</summary>
    public const int RAVO_CHARACTER_OTHER_CONTROL = 26;
    /// <summary>(Cf)</summary>
    public const int RAVO_CHARACTER_OTHER_FORMAT = 27;
    /// <summary>(Cs)</summary>
    public const int RAVO_CHARACTER_OTHER_SURROGATE = 28;
    /// <summary>(Co)</summary>
    public const int RAVO_CHARACTER_OTHER_PRIVATE_USE = 29;
    /// <summary>(L) numbers 1 to 5</summary>
    public const int RAVO_CHARACTER_LETTER = 30;
    /// <summary>(M) numbers 6 to 8</summary>
    public const int RAVO_CHARACTER_MARK = 31;
    /// <summary>(N) numbers 9 to 11</summary>
    public const int RAVO_CHARACTER_NUMBER = 32;
    /// <summary>(P) numbers 12 to 18</summary>
    public const int RAVO_CHARACTER_PUNCTUATION = 33;
    /// <summary>(S) numbers 19 to 22</summary>
    public const int RAVO_CHARACTER_SYMBOL = 34;
    /// <summary>(Z) numbers 23 to 25</summary>
    public const int RAVO_CHARACTER_SEPARATOR = 35;
    /// <summary>(C) numbers 26 to 29: without the unassigned ones</summary>
    public const int RAVO_CHARACTER_OTHER = 36;
    /// <summary>a letter of the Latin, Greek and Cyrillic blocks</summary>
    public const int RAVO_CHARACTER_LETTER_COMMON = 37;
    /// <summary>by the property White_Space</summary>
    public const int RAVO_CHARACTER_WHITE_SPACE = 38;
    /// <summary>a letter</summary>
    public const int RAVO_CHARACTER_ALPHA = 39;
    /// <summary>a letter or a decimal digit of any script</summary>
    public const int RAVO_CHARACTER_ALPHA_NUM = 40;
    /// <summary>a decimal digit of any script</summary>
    public const int RAVO_CHARACTER_DIGIT = 41;
    /// <summary>0 to 9, A to F, a to f</summary>
    public const int RAVO_CHARACTER_HEX_DIGIT = 42;
    /// <summary>a syllable, U+AC00 to U+D7A3</summary>
    public const int RAVO_CHARACTER_HANGUL = 43;
    /// <summary>carriage return or line feed</summary>
    public const int RAVO_CHARACTER_CR_LF = 44;
    /// <summary>"_"</summary>
    public const int RAVO_CHARACTER_LOW_LINE = 45;
    /// <summary>U+0022 or U+0027</summary>
    public const int RAVO_CHARACTER_QUOTE = 46;
    /// <summary>assigned, and no letter, mark, number, connector, surrogate</summary>
    public const int RAVO_CHARACTER_WORD_SEPARATOR = 47;
    /// <summary>white space or "&amp;"</summary>
    public const int RAVO_CHARACTER_WHITE_SPACE_OR_AMPERSAND = 48;
    /// <summary>white space or ":"</summary>
    public const int RAVO_CHARACTER_WHITE_SPACE_OR_COLON = 49;
    /// <summary>white space, of which U+00A0 is</summary>
    public const int RAVO_CHARACTER_WHITE_SPACE_OR_NO_BREAK_SPACE = 50;
    /// <summary>white space or ">"</summary>
    public const int RAVO_CHARACTER_WHITE_SPACE_GT = 51;
    /// <summary>white space or "&lt;"</summary>
    public const int RAVO_CHARACTER_WHITE_SPACE_LT = 52;
    /// <summary>white space or "-"</summary>
    public const int RAVO_CHARACTER_WHITE_SPACE_HYPHEN = 53;
    /// <summary>white space, "-" or ">"</summary>
    public const int RAVO_CHARACTER_WHITE_SPACE_HYPHEN_GT = 54;

    /// <summary>Writes 1 if a character has a property, else 0.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// <code>ravo_character_is(0x010D, RAVO_CHARACTER_LETTER, &amp;answer, NULL)  // 1: č</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_character_is(ushort unit, int property, ref int answer,
        [In, Out] ravo_error error);

    /// <summary>Writes the category of a character: one of the numbers 0 to 29. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_character_category(ushort unit, ref int category, [In, Out] ravo_error error);

    /// <summary>Returns the short name of a category or of a group, such as "Lu" or "L", or null for what is neither.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern IntPtr ravo_character_category_name(int category);

    /// <summary>Writes the upper case of a character, or itself if it has none of one unit. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_character_to_upper(ushort unit, ref ushort mapped, [In, Out] ravo_error error);

    /// <summary>Writes the lower case of a character, or itself if it has none of one unit. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_character_to_lower(ushort unit, ref ushort mapped, [In, Out] ravo_error error);

    /// <summary>Writes the title case of a character: the upper case, but U+01C5 for U+01C4 and the like. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_character_to_title(ushort unit, ref ushort mapped, [In, Out] ravo_error error);

    /// <summary>Writes the case-folded form of a character, equal for those that differ only in case. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_character_to_case_fold(ushort unit, ref ushort mapped,
        [In, Out] ravo_error error);

    /// <summary>Writes the canonical combining class of a character: 0 for a starter, else the rank of a mark, up to 254.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_character_combining_class(ushort unit, ref int rank, [In, Out] ravo_error error);

    /// <summary>the full canonical one, marks in canonical order: "é" is "e" and U+0301</summary>
    public const int RAVO_DECOMPOSITION_CANONICAL = 0;
    /// <summary>the full compatibility one, or the canonical one if there is no other</summary>
    public const int RAVO_DECOMPOSITION_COMPATIBLE = 1;
    /// <summary>the letters of a Hangul syllable, which the others leave alone</summary>
    public const int RAVO_DECOMPOSITION_HANGUL = 2;

    /// <summary>Writes the decomposition of a character; an empty text if it has none.</summary>
    /// <remarks>
    /// <para>Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_character_decompose(ushort unit, int decomposition, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Changes the CRC-32 of zip and Ethernet to that of the bytes so far and these. Begin with 0.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// <code>uint32_t crc = 0;
    /// ravo_crc32("123456789", 9, &amp;crc, NULL);  // 0xCBF43926</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_crc32(byte[] bytes, UIntPtr bytes_length, ref uint crc,
        [In, Out] ravo_error error);

    /// <summary>the bytes</summary>
    public const int RAVO_SUITE_HASH_BYTES = 0;
    /// <summary>the bytes in upper case, as letters of Windows-1250</summary>
    public const int RAVO_SUITE_HASH_UPPER_BYTES = 1;
    /// <summary>the little-endian bytes of the text in UTF-16</summary>
    public const int RAVO_SUITE_HASH_TEXT = 2;
    /// <summary>the case-folded UTF-16 units of the text</summary>
    public const int RAVO_SUITE_HASH_FOLDED_TEXT = 3;

    /// <summary>Writes the suite's 32-bit hash. `initial` selects one of many independent hash functions.</summary>
    /// <remarks>
    /// <para>Texts are UTF-8. Texts of more than 256 bytes allocate.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_hash(int what, byte[] bytes, UIntPtr bytes_length, uint initial,
        ref uint hash, [In, Out] ravo_error error);

    /// <summary>Opens a generator by a number. Allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_open(uint seed, out IntPtr random, [In, Out] ravo_error error);

    /// <summary>Opens a generator by an array of keys, as the generator's authors do. RAVO_RANGE if there are none. Allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_open_array(uint[] keys, UIntPtr keys_length, out IntPtr random,
        [In, Out] ravo_error error);

    /// <summary>Opens a generator by bytes, as the suite does: each byte is a key.</summary>
    /// <remarks>
    /// <para>From 624 bytes on it is another generator than that of an array with the same keys. RAVO_RANGE if there are none.
    /// Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_open_bytes(byte[] bytes, UIntPtr bytes_length, out IntPtr random,
        [In, Out] ravo_error error);

    /// <summary>Closes a generator.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern void ravo_random_close(IntPtr random);

    /// <summary>Writes the upper 31 of the next 32 bits: 0 to 2147483647. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_int31(IntPtr random, ref uint number, [In, Out] ravo_error error);

    /// <summary>Writes the next 32 bits. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_int32(IntPtr random, ref uint number, [In, Out] ravo_error error);

    /// <summary>Writes the next 32 bits as the low half, and the upper 31 bits of the draw after it as the high half.</summary>
    /// <remarks>
    /// <para>RAVO_RANGE if the highest bit of the low half is set, as it is every other time: that draw is gone. For 63 bits
    /// that never fail, call ravo_random_int32 and ravo_random_int31. Allocates on failure alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_int63(IntPtr random, ref long number, [In, Out] ravo_error error);

    /// <summary>Writes the next 32 bits as the low half, and the 32 bits after them as the high half.</summary>
    /// <remarks>
    /// <para>RAVO_RANGE if the highest bit of either is set: the draws up to that one are gone. For 64 bits that never fail,
    /// call ravo_random_int32 twice. Allocates on failure alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_int64(IntPtr random, ref long number, [In, Out] ravo_error error);

    /// <summary>Writes a number from 0 to 1, both included, in steps of 1 / (2^32 - 1). Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_real1(IntPtr random, ref double number, [In, Out] ravo_error error);

    /// <summary>Writes a number from 0 to below 1, in steps of 2^-32. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_real2(IntPtr random, ref double number, [In, Out] ravo_error error);

    /// <summary>Writes a number between 0 and 1, neither included, in steps of 2^-32. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_real3(IntPtr random, ref double number, [In, Out] ravo_error error);

    /// <summary>Writes a number from 0 to below 1, in steps of 2^-53, from two draws. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_res53(IntPtr random, ref double number, [In, Out] ravo_error error);

    /// <summary>Writes a text of `count` characters of an alphabet, one draw for each: what the suite's StrRandom makes if the
    /// generator was just opened by the bytes of its seed.</summary>
    /// <remarks>
    /// <para>RAVO_ARGUMENT if the alphabet is empty and `count` is not 0. If the buffer is null or too small, the generator stays
    /// as it was. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_random_text(IntPtr random, byte[] alphabet, UIntPtr alphabet_length,
        UIntPtr count, [Out] byte[] buffer, UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>What is known of an encoding.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_encoding_info
    {
        /// <summary>sizeof(ravo_encoding_info), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_encoding_info));
        /// <summary>"Windows_1250"</summary>
        public IntPtr name;
        /// <summary>for people</summary>
        public IntPtr label;
        /// <summary>other names, separated by blanks</summary>
        public IntPtr aliases;
        /// <summary>remarks; may be empty</summary>
        public IntPtr notes;
        /// <summary>Windows number; 0 if it has none</summary>
        public int code_page;
        /// <summary>1 if it can be converted from, else 0</summary>
        public int can_read;
        /// <summary>1 if it can be converted to, else 0</summary>
        public int can_write;
    }

    /// <summary>Returns how many encodings there are. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_encoding_count();

    /// <summary>Writes what is known of an encoding. RAVO_UNKNOWN for a number that is none. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_encoding_at(int encoding, [In, Out] ravo_encoding_info info,
        [In, Out] ravo_error error);

    /// <summary>Writes the encoding with a name, an alias, a label, or the number of a code page with or without "cp".</summary>
    /// <remarks>
    /// <para>Only ASCII letters and digits count, in either case. RAVO_UNKNOWN if there is none. Never allocates.</para>
    /// <code>ravo_encoding_find("windows-1250", RAVO_NUL_TERMINATED, &amp;encoding, NULL)</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_encoding_find(byte[] name, UIntPtr name_length, ref int encoding,
        [In, Out] ravo_error error);

    /// <summary>Writes the encoding with the number of a Windows code page. RAVO_UNKNOWN if there is none. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_encoding_of_code_page(int code_page, ref int encoding,
        [In, Out] ravo_error error);

    /// <summary>Writes the encoding that a byte-order mark at the start of bytes names, and the mark's length in bytes.</summary>
    /// <remarks>
    /// <para>Fewer than four bytes count as the whole text. `mark_length` may be null. RAVO_UNKNOWN if there is no mark. Never
    /// allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_encoding_of_mark(byte[] bytes, UIntPtr bytes_length, ref int encoding,
        ref UIntPtr mark_length, [In, Out] ravo_error error);

    /// <summary>Czech texts of Windows, DOS and Unix, and of every form of Unicode</summary>
    public const int RAVO_DETECT_PLAIN = 0;
    /// <summary>and those of the Macintosh: Mac Central European</summary>
    public const int RAVO_DETECT_MAC = 1;

    /// <summary>a byte-order mark</summary>
    public const int RAVO_EVIDENCE_MARK = 1;
    /// <summary>the zero bytes of UTF-16 or UTF-32</summary>
    public const int RAVO_EVIDENCE_ZEROS = 2;
    /// <summary>ASCII characters only, which count as UTF-8</summary>
    public const int RAVO_EVIDENCE_ASCII = 3;
    /// <summary>bytes that are valid UTF-8, too many for chance</summary>
    public const int RAVO_EVIDENCE_UTF8 = 4;
    /// <summary>it looks most like Czech in this encoding</summary>
    public const int RAVO_EVIDENCE_CZECH = 5;
    /// <summary>several encodings read it alike</summary>
    public const int RAVO_EVIDENCE_ALIKE = 6;
    /// <summary>several encodings are possible</summary>
    public const int RAVO_EVIDENCE_CLOSE = 7;
    /// <summary>it does not look like Czech in any encoding</summary>
    public const int RAVO_EVIDENCE_FOREIGN = 8;
    /// <summary>zero bytes: it may not be text</summary>
    public const int RAVO_EVIDENCE_BINARY = 9;

    /// <summary>The encoding that a text seems to have.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_detection
    {
        /// <summary>sizeof(ravo_detection), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_detection));
        /// <summary>how many cannot be told apart; 1 if it is sure</summary>
        public UIntPtr candidates;
        /// <summary>the most likely one</summary>
        public int encoding;
        /// <summary>why</summary>
        public int evidence;
        /// <summary>1 if there is no doubt, else 0</summary>
        public int is_sure;
    }

    /// <summary>Writes the encoding that a text seems to have, by its first bytes; they may end inside a character.</summary>
    /// <remarks>
    /// <para>256 KiB are more than enough. Allocates.</para>
    /// <code>ravo_encoding_detect("P\xF8\xEDli\x9A", 6, RAVO_DETECT_PLAIN, &amp;detection, NULL)  // Windows-1250</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_encoding_detect(byte[] bytes, UIntPtr bytes_length, uint flags,
        [In, Out] ravo_detection detection, [In, Out] ravo_error error);

    /// <summary>Writes one of the encodings that cannot be told apart, by its index from 0, from the most likely one on.</summary>
    /// <remarks>
    /// <para>Detects again. RAVO_UNKNOWN past the last. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_encoding_candidate_at(byte[] bytes, UIntPtr bytes_length, uint flags,
        UIntPtr index, ref int encoding, [In, Out] ravo_error error);

    /// <summary>the conversion fails at its position</summary>
    public const int RAVO_CONVERT_STRICT = 0;
    /// <summary>it becomes U+FFFD, or "?" if the encoding lacks that</summary>
    public const int RAVO_CONVERT_REPLACE = 1;

    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate int ravo_progress(IntPtr context, UIntPtr done, UIntPtr total);

    /// <summary>Converts bytes from one encoding to another.</summary>
    /// <remarks>
    /// <para>RAVO_ARGUMENT if an encoding cannot be read or written. With RAVO_CONVERT_STRICT, RAVO_MALFORMED for bytes that are
    /// no character and RAVO_LACKING for a character that `to` lacks, at the position in `bytes`. `progress` may be null.
    /// If the buffer is too small, or on failure, its contents are undefined. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_convert(int from, byte[] bytes, UIntPtr bytes_length, int to, int policy,
        IntPtr buffer, UIntPtr size, ref UIntPtr length, ravo_progress progress, IntPtr context,
        [In, Out] ravo_error error);

    /// <summary>Opens a conversion. Fails as ravo_convert does. Allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_converter_open(int from, int to, int policy, out IntPtr converter,
        [In, Out] ravo_error error);

    /// <summary>Closes a conversion.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern void ravo_converter_close(IntPtr converter);

    /// <summary>Converts the next bytes of a text, of any number; the last characters may be cut. `is_last` is 1 if no more follow,
    /// else 0.</summary>
    /// <remarks>
    /// <para>Fails as ravo_convert does, with the position in the whole text. After a failure, and after the last bytes, the
    /// conversion takes no more: RAVO_ARGUMENT. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_converter_push(IntPtr converter, byte[] bytes, UIntPtr bytes_length, int is_last,
        [In, Out] ravo_error error);

    /// <summary>Writes converted bytes that are waiting, at most `size`, and how many they are; 0 if none are left.</summary>
    /// <remarks>
    /// <para>Never allocates.</para>
    /// <code>ravo_converter_push(converter, piece, piece_length, 0, NULL);
    /// while (ravo_converter_pull(converter, buffer, sizeof buffer, &amp;length, NULL) == RAVO_OK &amp;&amp; length != 0)
    ///   fwrite(buffer, 1, length, file);</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_converter_pull(IntPtr converter, IntPtr buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);

    /// <summary>the value is XML as it is written: references and tags</summary>
    public const int RAVO_DOCUMENT_RAW = 1;
    /// <summary>set: a character that the encoding lacks becomes a reference such as &amp;#x159;</summary>
    public const int RAVO_DOCUMENT_REFERENCES = 2;
    /// <summary>set: add a missing attribute, or a missing next element of a name</summary>
    public const int RAVO_DOCUMENT_ADD = 4;

    /// <summary>Opens a document of any encoding: by its byte-order mark, else by its declaration, else UTF-8.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with code 0 for what is not XML: `error->position` is the place in `bytes`, the message tells line and
    /// column and why. The document keeps a copy of the bytes. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_document_open(byte[] bytes, UIntPtr bytes_length, out IntPtr document,
        [In, Out] ravo_error error);

    /// <summary>Closes a document.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern void ravo_document_close(IntPtr document);

    /// <summary>Writes the encoding of a document. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_document_encoding(IntPtr document, ref int encoding, [In, Out] ravo_error error);

    /// <summary>Writes the value at a path: the text directly in an element, or an attribute.</summary>
    /// <remarks>
    /// <para>`flags` is 0, or RAVO_DOCUMENT_RAW for the content as it is written. RAVO_UNKNOWN if nothing is there, RAVO_WRONG for
    /// a text that is no path and for a name that fits several spellings. Allocates.</para>
    /// <code>ravo_document_get(invoice, "Invoice/Line[2]/@ID", RAVO_NUL_TERMINATED, 0, buffer, sizeof buffer, NULL, NULL)</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_document_get(IntPtr document, byte[] path, UIntPtr path_length, uint flags,
        [Out] byte[] buffer, UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>A value to set at a path; both are UTF-8.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct ravo_document_change
    {
        public IntPtr path;
        /// <summary>or RAVO_NUL_TERMINATED</summary>
        public UIntPtr path_length;
        public IntPtr value;
        /// <summary>or RAVO_NUL_TERMINATED</summary>
        public UIntPtr value_length;
    }

    /// <summary>Sets values: all of them, or none if one fails. Then the document reads as changed, and its findings are forgotten.</summary>
    /// <remarks>
    /// <para>What markup would be is written as a reference; a text that is one CDATA section stays one. The position of a failure
    /// is the index of the change: RAVO_UNKNOWN if nothing is at its path, RAVO_LACKING if the encoding lacks a character,
    /// RAVO_WRONG if it is no path, if the element contains elements or comments (RAVO_DOCUMENT_RAW replaces them), if a
    /// place is set twice, or if the value is not XML. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_document_set(IntPtr document, ref ravo_document_change changes,
        UIntPtr changes_length, uint flags, [In, Out] ravo_error error);

    /// <summary>Writes the bytes of a document. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_document_save(IntPtr document, IntPtr buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);

    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate int ravo_write(IntPtr context, IntPtr bytes, UIntPtr bytes_length);

    /// <summary>Gives the bytes of a document to a function, in pieces of at most 65536 bytes.</summary>
    /// <remarks>
    /// <para>If it stops, the position is that of the piece. Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_document_write(IntPtr document, ravo_write write, IntPtr context,
        [In, Out] ravo_error error);

    /// <summary>Looks for the places where the suite would see or save something else than a standard parser reads, and writes how
    /// many there are.</summary>
    /// <remarks>
    /// <para>0 means that the document survives ravo_suite_tree, but for white space between tags. RAVO_WRONG with code 0 for a
    /// document that a standard parser rejects, with its place. The findings stay until values are set. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_document_check(IntPtr document, ref UIntPtr count, [In, Out] ravo_error error);

    /// <summary>A finding of ravo_document_check.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_document_finding
    {
        /// <summary>sizeof(ravo_document_finding), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_document_finding));
        /// <summary>the stable name of its class: "comment", "encoding"</summary>
        public IntPtr name;
        /// <summary>from 1</summary>
        public ulong line;
        /// <summary>in characters, from 1</summary>
        public ulong column;
    }

    /// <summary>Writes the finding with an index, in the order of the document. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_document_finding_at(IntPtr document, UIntPtr index,
        [In, Out] ravo_document_finding finding, [In, Out] ravo_error error);

    /// <summary>Writes the sentence of the finding with an index, without a full stop. RAVO_UNKNOWN past the last. Allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_document_finding_sentence(IntPtr document, UIntPtr index, int language,
        [Out] byte[] buffer, UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes 1 if a text consists of digits, at least one, else 0.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_is_numbers(byte[] text, UIntPtr text_length, ref int answer,
        [In, Out] ravo_error error);

    /// <summary>Writes 1 if a text is a synthetic account, three digits, else 0.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_valid_su(byte[] text, UIntPtr text_length, ref int answer,
        [In, Out] ravo_error error);

    /// <summary>Writes 1 if a text is an analytic account, up to three digits or nothing, else 0.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_valid_au(byte[] text, UIntPtr text_length, ref int answer,
        [In, Out] ravo_error error);

    /// <summary>Writes 1 if a text is an account of the chart of accounts, three to six digits, else 0.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_valid_ucet(byte[] text, UIntPtr text_length, ref int answer,
        [In, Out] ravo_error error);

    /// <summary>Writes 1 if a text is a payment reference with a valid Luhn check digit, else 0.</summary>
    /// <remarks>
    /// <para>RAVO_RANGE if the weighted sum does not fit 32 bits.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_valid_vs(byte[] text, UIntPtr text_length, ref int answer,
        [In, Out] ravo_error error);

    /// <summary>Writes 1 if the weighted sum of an account is divisible by 11, else 0.</summary>
    /// <remarks>
    /// <para>What follows the first "/" is ignored, then every character that is no digit; prefix and number form one sum.
    /// RAVO_RANGE for more than 62 digits.</para>
    /// <code>ravo_suite_ucet_mod_11("19-2000145399/0800", RAVO_NUL_TERMINATED, &amp;answer, NULL)  // 1</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_ucet_mod_11(byte[] text, UIntPtr text_length, ref int answer,
        [In, Out] ravo_error error);

    /// <summary>Writes the first three characters of an account, unchanged, and the next three without blanks around them.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_ucet_na_su_au(byte[] ucet, UIntPtr ucet_length, [Out] byte[] su,
        UIntPtr su_size, ref UIntPtr su_length, [Out] byte[] au, UIntPtr au_size, ref UIntPtr au_length,
        [In, Out] ravo_error error);

    /// <summary>The check digits of an EAN.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_suite_ean
    {
        /// <summary>sizeof(ravo_suite_ean), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_suite_ean));
        /// <summary>1 if the text has 7, 8, 12 or 13 digits, else 0</summary>
        public int valid;
        /// <summary>the check digit of the code; a blank if it has none</summary>
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 4)]
        public byte[] old_check = new byte[4];
        /// <summary>the computed one; a blank if the text is no code</summary>
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 4)]
        public byte[] new_check = new byte[4];
        /// <summary>the code with the computed digit; empty if the text is no code</summary>
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 16)]
        public byte[] full_code = new byte[16];
    }

    /// <summary>Writes the check digits of an EAN. The old and the new one are not compared.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_calculate_ean(byte[] code, UIntPtr code_length,
        [In, Out] ravo_suite_ean ean, [In, Out] ravo_error error);

    /// <summary>away from zero</summary>
    public const int RAVO_SUITE_ROUND_UP = 0;
    /// <summary>toward zero</summary>
    public const int RAVO_SUITE_ROUND_DOWN = 1;
    /// <summary>halves away from zero</summary>
    public const int RAVO_SUITE_ROUND_MATH = 2;

    /// <summary>Writes an amount rounded to `decimals` places: 2 are hundredths, 0 whole crowns, -1 tens.</summary>
    /// <remarks>
    /// <para>Halves are recognized after the fraction is rounded to four places. RAVO_RANGE if `decimals` is below -4 or
    /// above 14, and if the scaled amount or the result does not fit 64 bits; RAVO_SUITE_ROUND_UP and
    /// RAVO_SUITE_ROUND_DOWN wrap silently from 2147483648 units on. Allocates on failure alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_round_value(long amount, byte direction, sbyte decimals, ref long result,
        [In, Out] ravo_error error);

    /// <summary>Writes a double rounded to `decimals` places, with the errors of doubles: RAVO_SUITE_ROUND_DOWN lowers most exact
    /// values by one unit.</summary>
    /// <remarks>
    /// <para>RAVO_RANGE for infinities and NaN, and if the scaled value does not fit 64 bits. Allocates on failure alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_round_value_float(double value, byte direction, sbyte decimals,
        ref double result, [In, Out] ravo_error error);

    /// <summary>Writes an amount of VAT rounded by one of five letters: H hundredths, D tenths, P halves of a crown, N tenths
    /// away from zero, M whole crowns.</summary>
    /// <remarks>
    /// <para>Any other letter leaves the amount as it is. RAVO_RANGE if the scaled amount or the result does not fit 64 bits.
    /// Allocates on failure alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_round_dph(long amount, int letter, ref long result,
        [In, Out] ravo_error error);

    /// <summary>Writes the moment of a day and a time of day in milliseconds, 0 to 86399999. Allocates on failure alone.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_moment_of(int day, int milliseconds, ref double moment,
        [In, Out] ravo_error error);

    /// <summary>Writes the day of a moment and its time in milliseconds, to the nearest, ties to even. What is nearest to
    /// midnight is the next day.</summary>
    /// <remarks>
    /// <para>RAVO_RANGE outside of the years 1 to 9999. Allocates on failure alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_moment_parts(double moment, ref int day, ref int milliseconds,
        [In, Out] ravo_error error);

    /// <summary>Writes the date of a moment for SQL: "20101231". RAVO_RANGE outside of the years 1 to 9999. Allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_sql_date(double moment, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the time of a moment for SQL: "13:05:09:007". RAVO_RANGE for infinities and NaN. Allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_sql_time(double moment, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes date and time of a moment for SQL: "20101231 13:05:09:007". Allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_sql_date_time(double moment, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the same day of the next month if `step` is positive, else of the previous one; the time is dropped.</summary>
    /// <remarks>
    /// <para>RAVO_RANGE outside of the years 1 to 9999. Allocates on failure alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_change_month(double moment, int step, ref double result,
        [In, Out] ravo_error error);

    /// <summary>Writes the same day of the next or previous year, as ravo_suite_change_month. Allocates on failure alone.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_change_year(double moment, int step, ref double result,
        [In, Out] ravo_error error);

    /// <summary>Writes street and house number of an address: "Nádražní" and "1234/5" of "Nádražní 1234/5".</summary>
    /// <remarks>
    /// <para>The street is the whole text if the last word is no number.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_adresa_expand(byte[] adresa, UIntPtr adresa_length, [Out] byte[] ulice,
        UIntPtr ulice_size, ref UIntPtr ulice_length, [Out] byte[] cislo, UIntPtr cislo_size,
        ref UIntPtr cislo_length, [In, Out] ravo_error error);

    /// <summary>Writes the name of a document: "FV0012/2010" of "FV", "0012" and "2010".</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_doklad_description(byte[] prefix, UIntPtr prefix_length, byte[] number,
        UIntPtr number_length, byte[] suffix, UIntPtr suffix_length, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the name of a backup: a pattern with its "%FIRMA%", "%DATUM%" and "%CAS%" replaced.</summary>
    /// <remarks>
    /// <para>`moment` is the local time. RAVO_RANGE outside of the years 1 to 9999.</para>
    /// <code>ravo_suite_parse_zaloha_file("%FIRMA%_%DATUM%", ..., "A/B: s.r.o.", ...)  // AB s.r.o._110203</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_parse_zaloha_file(byte[] pattern, UIntPtr pattern_length, byte[] firma,
        UIntPtr firma_length, double moment, [Out] byte[] buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);

    /// <summary>Writes what is before the first "." of a name, or all of it: "Faktury" of "Faktury.Cislo".</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_extract_table_from_property(byte[] name, UIntPtr name_length,
        [Out] byte[] buffer, UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes properties without the name of a table and "." before them: "A;B;G.C" of "F" and "F.A;F.B;G.C".</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_remove_table_from_properties(byte[] table, UIntPtr table_length,
        byte[] properties, UIntPtr properties_length, [Out] byte[] buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);

    /// <summary>Writes the identifier of a record between single quotes; "Null" for null. Quotes inside stay as they are.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_uid_to_string(byte[] uid, UIntPtr uid_length, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the eight bytes of a record version in hexadecimal; none for a text of three characters or fewer.</summary>
    /// <remarks>
    /// <para>RAVO_RANGE if a pair of digits is missing, incomplete or not hexadecimal.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_timestamp_to_bytes(byte[] text, UIntPtr text_length, IntPtr buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes a number of bytes for people: "1,5 kB", and with `with_bytes` "1,5 kB (1536 B)".</summary>
    /// <remarks>
    /// <para>`decimal` is the decimal separator in ASCII, `thousands` the text between groups of three digits.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_bytes_to_str(long bytes, int with_bytes, int @decimal, byte[] thousands,
        UIntPtr thousands_length, [Out] byte[] buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);

    /// <summary>Writes text in Windows-1250 with 25 Czech letters replaced by their base letters.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_remove_diacritics(byte[] bytes, UIntPtr bytes_length, IntPtr buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes a text as the text string of a PDF: the bytes FE FF and UTF-16, high byte first.</summary>
    /// <remarks>
    /// <para>The byte 0D of "č" is written as "\r", which readers of PDF would change to a line feed. Nothing else is escaped.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_win_1250_to_pdf_doc_encoding(byte[] text, UIntPtr text_length,
        IntPtr buffer, UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes a field of a forms data file (FDF): the name in Windows-1250, the value too, or with `as_unicode` as a text
    /// string.</summary>
    /// <remarks>
    /// <para>Neither is escaped. The header, the brackets and the trailer around the fields are the caller's.</para>
    /// <code>ravo_suite_fill_pdf_field("Jmeno", ..., "Rada", ..., 0, ...)  // &lt;&lt;/T(Jmeno)/V(Rada)>></code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_fill_pdf_field(byte[] name, UIntPtr name_length, byte[] value,
        UIntPtr value_length, int as_unicode, IntPtr buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);

    /// <summary>Writes a field of a check box or a choice, whose states are numbers: "&lt;&lt;/T(Ano)/V/1>>".</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_fill_pdf_field_as_integer(byte[] name, UIntPtr name_length, int value,
        IntPtr buffer, UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the date of a moment for a form: "5.3.2024", "5.3." with `without_year`, "05.03.2024" with `leading_zeros`.</summary>
    /// <remarks>
    /// <para>Nothing for the moment 0. RAVO_RANGE outside of the years 1 to 9999.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_date_2_pdf(double moment, int without_year, int leading_zeros,
        [Out] byte[] buffer, UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the date of a moment for an XML export, "2024-03-05", as ravo_suite_date_2_pdf.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_date_2_xml(double moment, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes "X" for a value that is not 0, and nothing for 0.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_bool_2_xml(int value, [Out] byte[] buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);

    /// <summary>Writes a string record: the number of bytes as a signed number of 32 bits, little-endian, the bytes, and a zero.</summary>
    /// <remarks>
    /// <para>The bytes are text in the code page of the suite, Windows-1250. RAVO_RANGE if their number does not fit 32 bits.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_string_to_stream(byte[] bytes, UIntPtr bytes_length, IntPtr buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes the text of the string record that begins at the byte `from`, and to `*end` where the next one begins.</summary>
    /// <remarks>
    /// <para>A record may promise more bytes than there are: those are zeros, and `*end` is one byte past the end of all.
    /// RAVO_RANGE if fewer than four bytes follow `from`, or the number is negative. Never allocates.</para>
    /// <code>for (at = 0; at &lt; stream_length; at = end)
    ///   ravo_suite_string_from_stream(stream, stream_length, at, text, sizeof text, &amp;length, &amp;end, NULL);</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_string_from_stream(byte[] bytes, UIntPtr bytes_length, UIntPtr from,
        IntPtr buffer, UIntPtr size, ref UIntPtr length, ref UIntPtr end, [In, Out] ravo_error error);

    /// <summary>A table, or tables that share a name.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_suite_table
    {
        /// <summary>sizeof(ravo_suite_table), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_suite_table));
        /// <summary>in Czech, UTF-8</summary>
        public IntPtr name;
        /// <summary>the module that has it: "RavoMzdaConstants"</summary>
        public IntPtr module;
        /// <summary>the first identifier</summary>
        public int first;
        /// <summary>the last identifier</summary>
        public int last;
    }

    /// <summary>Returns how many rows of tables there are. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_suite_table_count();

    /// <summary>Writes the row with an index, by module, then by identifier. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_table_at(UIntPtr index, [In, Out] ravo_suite_table table,
        [In, Out] ravo_error error);

    /// <summary>Writes the row of a table. RAVO_UNKNOWN if there is no such table. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_table_find(int id, [In, Out] ravo_suite_table table,
        [In, Out] ravo_error error);

    /// <summary>Returns the Czech name of a table, UTF-8, or null if there is no such table. Never allocates.</summary>
    /// <remarks>
    /// <code>ravo_suite_table_name(71710)  // Účetní deník</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern IntPtr ravo_suite_table_name(int id);

    /// <summary>A caption or message.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_suite_caption
    {
        /// <summary>sizeof(ravo_suite_caption), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_suite_caption));
        /// <summary>"rPropertySazbaNulova"</summary>
        public IntPtr name;
        /// <summary>in Czech, UTF-8; "&amp;" marks the accelerator</summary>
        public IntPtr text;
        /// <summary>the title of its group, in English</summary>
        public IntPtr group;
        /// <summary>what the names of the group begin with</summary>
        public IntPtr prefix;
        /// <summary>in the string table</summary>
        public int id;
    }

    /// <summary>Returns how many captions and messages there are. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_suite_caption_count();

    /// <summary>Writes the caption with an index, group by group. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_caption_at(UIntPtr index, [In, Out] ravo_suite_caption caption,
        [In, Out] ravo_error error);

    /// <summary>Writes the caption with a name. RAVO_UNKNOWN if there is none. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_caption_find(byte[] name, UIntPtr name_length,
        [In, Out] ravo_suite_caption caption, [In, Out] ravo_error error);

    /// <summary>A module of the suite's library.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_suite_module
    {
        /// <summary>sizeof(ravo_suite_module), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_suite_module));
        /// <summary>"DIUnicode"</summary>
        public IntPtr name;
        /// <summary>the modules that start before it, separated by blanks</summary>
        public IntPtr uses;
        /// <summary>its place in the order in which modules start, from 0; they stop in reverse</summary>
        public int order;
        /// <summary>1 for the main module, else 0</summary>
        public int is_main;
    }

    /// <summary>Returns how many modules the suite's library contains. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern UIntPtr ravo_suite_module_count();

    /// <summary>Writes the module with an index, as the package names them. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_module_at(UIntPtr index, [In, Out] ravo_suite_module module,
        [In, Out] ravo_error error);

    /// <summary>Opens a tree: loads the bytes of a document.</summary>
    /// <remarks>
    /// <para>Without `&lt;rss` or `&lt;?xml version="1.0"` in the first 1000 bytes, and with a byte-order mark before it, nothing is
    /// loaded and the root is empty. RAVO_WRONG with code 0 for what cannot be read; the message tells the line. The tree
    /// keeps no part of the bytes. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_tree_open(byte[] bytes, UIntPtr bytes_length, out IntPtr tree,
        [In, Out] ravo_error error);

    /// <summary>Closes a tree.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern void ravo_suite_tree_close(IntPtr tree);

    /// <summary>Writes the bytes that the suite saves. Allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_tree_save(IntPtr tree, IntPtr buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);

    /// <summary>Writes the name of the encoding that the saved document declares, which has no effect on its bytes.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_tree_encoding(IntPtr tree, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Sets the name of the encoding that the saved document declares.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_tree_set_encoding(IntPtr tree, byte[] name, UIntPtr name_length,
        [In, Out] ravo_error error);

    /// <summary>Writes the address of the style sheet that the document refers to; empty if it refers to none.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_tree_style_sheet(IntPtr tree, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Sets the address of the style sheet that the document refers to.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_tree_set_style_sheet(IntPtr tree, byte[] address, UIntPtr address_length,
        [In, Out] ravo_error error);

    /// <summary>Writes how many children an item has. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_child_count(IntPtr tree, UIntPtr item, ref UIntPtr count,
        [In, Out] ravo_error error);

    /// <summary>Writes the child with an index. RAVO_UNKNOWN past the last. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_child(IntPtr tree, UIntPtr item, UIntPtr index, ref UIntPtr child,
        [In, Out] ravo_error error);

    /// <summary>Writes the parent of an item. RAVO_UNKNOWN for the root. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_parent(IntPtr tree, UIntPtr item, ref UIntPtr parent,
        [In, Out] ravo_error error);

    /// <summary>Writes the index of the first child with a name, from the index `from` on. RAVO_UNKNOWN if there is none.</summary>
    /// <remarks>
    /// <para>The suite adds a child that is missing: call ravo_suite_item_add for that.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_find(IntPtr tree, UIntPtr item, byte[] name, UIntPtr name_length,
        UIntPtr from, ref UIntPtr index, [In, Out] ravo_error error);

    /// <summary>Writes the name of an item.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_name(IntPtr tree, UIntPtr item, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Sets the name of an item, without blanks and control characters at both ends.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_set_name(IntPtr tree, UIntPtr item, byte[] name, UIntPtr name_length,
        [In, Out] ravo_error error);

    /// <summary>Writes the text of an item, unescaped, without that of its children.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_text(IntPtr tree, UIntPtr item, [Out] byte[] buffer, UIntPtr size,
        ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Sets the text of an item.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_set_text(IntPtr tree, UIntPtr item, byte[] text, UIntPtr text_length,
        [In, Out] ravo_error error);

    /// <summary>Writes how many attributes an item has.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_attribute_count(IntPtr tree, UIntPtr item, ref UIntPtr count,
        [In, Out] ravo_error error);

    /// <summary>Writes name and value of the attribute with an index. RAVO_UNKNOWN past the last.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_attribute_at(IntPtr tree, UIntPtr item, UIntPtr index,
        [Out] byte[] name, UIntPtr name_size, ref UIntPtr name_length, [Out] byte[] value, UIntPtr value_size,
        ref UIntPtr value_length, [In, Out] ravo_error error);

    /// <summary>Writes the value of the first attribute with a name. RAVO_UNKNOWN if there is none.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_attribute(IntPtr tree, UIntPtr item, byte[] name, UIntPtr name_length,
        [Out] byte[] buffer, UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Sets the value of the first attribute with a name, or adds one. An empty value deletes it.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_set_attribute(IntPtr tree, UIntPtr item, byte[] name,
        UIntPtr name_length, byte[] value, UIntPtr value_length, [In, Out] ravo_error error);

    /// <summary>Adds a last child with a name to an item, and writes its number.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_add(IntPtr tree, UIntPtr item, byte[] name, UIntPtr name_length,
        ref UIntPtr child, [In, Out] ravo_error error);

    /// <summary>Deletes an item with everything below it. RAVO_ARGUMENT for the root.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_delete(IntPtr tree, UIntPtr item, [In, Out] ravo_error error);

    /// <summary>Moves an item to another index among its parent's children. RAVO_ARGUMENT for the root, RAVO_RANGE past the last.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_move(IntPtr tree, UIntPtr item, UIntPtr index,
        [In, Out] ravo_error error);

    /// <summary>Writes an item and everything below it as XML, its tags indented by `level` blanks, 0 to 1000.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_item_as_string(IntPtr tree, UIntPtr item, int level, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes a text with "&amp;", "&lt;", ">" and double quotes as entities and CR LF as "&lt;br/>". Apostrophes stay.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_str_to_xml(byte[] text, UIntPtr text_length, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>Writes a text with "&amp;lt;", "&amp;gt;", "&amp;quot;" and then "&amp;amp;" replaced by their characters, one level deep.</summary>
    /// <remarks>
    /// <para>Other entities and "&lt;br/>" stay.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_xml_to_str(byte[] text, UIntPtr text_length, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    public const int RAVO_SUITE_TOKEN_COMMENT = 6;
    /// <summary>&lt;? ... ?></summary>
    public const int RAVO_SUITE_TOKEN_HEADER = 8;
    /// <summary>text between tags, or a CDATA section</summary>
    public const int RAVO_SUITE_TOKEN_TEXT = 9;
    public const int RAVO_SUITE_TOKEN_OPEN_TAG = 10;
    public const int RAVO_SUITE_TOKEN_CLOSE_TAG = 11;
    public const int RAVO_SUITE_TOKEN_STAND_ALONE_TAG = 12;

    /// <summary>A token. It lives until the function that received it returns.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_suite_token
    {
        /// <summary>sizeof(ravo_suite_token) of the library</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_suite_token));
        /// <summary>without line breaks of two bytes, and each run of blanks as one; UTF-8</summary>
        public IntPtr text;
        public UIntPtr text_length;
        public int kind;
        /// <summary>from 1; line feeds in tokens do not count</summary>
        public int line;
        /// <summary>in bytes, from 0</summary>
        public int position;
    }

    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate int ravo_suite_take(IntPtr context, [In] ravo_suite_token token);

    /// <summary>Gives each token of a document, as the suite's tokenizer cuts it, to a function.</summary>
    /// <remarks>
    /// <para>RAVO_WRONG with code 0 for what cannot be read; the message tells the line. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_tokens(byte[] bytes, UIntPtr bytes_length, ravo_suite_take take,
        IntPtr context, [In, Out] ravo_error error);

    /// <summary>row i is data[o[i]] to data[o[i + 1]]; o is int32_t. Arrow: utf8, binary</summary>
    public const int RAVO_LAYOUT_OFFSETS_32 = 1;
    /// <summary>the same with int64_t. Arrow: large utf8, large binary</summary>
    public const int RAVO_LAYOUT_OFFSETS_64 = 2;
    /// <summary>16 bytes for each row: short texts, or a place in a buffer. Arrow: views</summary>
    public const int RAVO_LAYOUT_VIEWS = 3;
    /// <summary>`width` bytes for each row; NULs at the end are no part of the text</summary>
    public const int RAVO_LAYOUT_FIXED = 4;
    /// <summary>signed indices of `width` bytes (1, 2, 4, 8) into another column</summary>
    public const int RAVO_LAYOUT_DICTIONARY = 5;
    /// <summary>unsigned indices of `width` bytes into another column</summary>
    public const int RAVO_LAYOUT_DICTIONARY_UNSIGNED = 6;
    /// <summary>signed numbers of `width` bytes (4, 8). Arrow: int32, int64, date32</summary>
    public const int RAVO_LAYOUT_NUMBERS = 7;

    /// <summary>A column of the caller. What a layout lacks is 0.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_column
    {
        /// <summary>sizeof(ravo_column), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_column));
        public int layout;
        /// <summary>bytes of a value (fixed, numbers) or of an index (dictionary)</summary>
        public int width;
        /// <summary>rows</summary>
        public UIntPtr length;
        /// <summary>rows of the memory before the first one, as a slice has them</summary>
        public UIntPtr offset;
        /// <summary>bit offset + i, lowest first, is 0 if row i is null; null: none is</summary>
        public IntPtr validity;
        /// <summary>offsets, views, values of fixed width, numbers, or indices</summary>
        public IntPtr values;
        /// <summary>what offsets are into</summary>
        public IntPtr data;
        /// <summary>bytes of data; or RAVO_SIZE_UNKNOWN</summary>
        public UIntPtr data_size;
        /// <summary>what views are into</summary>
        public IntPtr buffers;
        /// <summary>bytes of each</summary>
        public IntPtr buffer_sizes;
        public UIntPtr buffer_count;
        /// <summary>a column of any layout without a dictionary</summary>
        public IntPtr dictionary;
    }

    public const int RAVO_TRUSTED = 1;

    public const int RAVO_CODE_CORRECT = 0;
    /// <summary>an encoding lacks a character of the value</summary>
    public const int RAVO_CODE_LACKING = 65530;
    /// <summary>bytes of the value are no character of their encoding</summary>
    public const int RAVO_CODE_MALFORMED = 65531;
    /// <summary>there is nothing of that name</summary>
    public const int RAVO_CODE_UNKNOWN = 65532;
    /// <summary>the value is not written as a date</summary>
    public const int RAVO_CODE_NO_DATE = 65533;
    /// <summary>the value is not UTF-8</summary>
    public const int RAVO_CODE_NOT_UTF8 = 65534;
    /// <summary>the row has no value</summary>
    public const int RAVO_CODE_NULL = 65535;

    /// <summary>Room for a column of texts that a function writes. Rows that are wrong or null have an empty text.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_texts
    {
        /// <summary>sizeof(ravo_texts), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_texts));
        /// <summary>RAVO_LAYOUT_OFFSETS_32, _OFFSETS_64 or _FIXED</summary>
        public int layout;
        /// <summary>bytes of a value (fixed); shorter ones end with NULs, a longer one is RAVO_RANGE</summary>
        public int width;
        /// <summary>room for an offset more than rows; not with fixed</summary>
        public IntPtr offsets;
        /// <summary>may be null with data_size 0, to ask for the length alone</summary>
        public IntPtr data;
        public UIntPtr data_size;
        public UIntPtr data_length;
    }

    /// <summary>Room for what a function says of rows. Each pointer may be null.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_answers
    {
        /// <summary>sizeof(ravo_answers), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_answers));
        /// <summary>of each row: the number of the reason, or one of RAVO_CODE_...</summary>
        public IntPtr codes;
        /// <summary>(rows + 7) / 8 bytes: bit i, lowest first, is 1 if row i is correct; bits past the end: 0</summary>
        public IntPtr validity;
        /// <summary>canonical forms, names, dates ...: what the function writes</summary>
        public IntPtr texts;
        /// <summary>receives how many rows are wrong; those that are null do not count</summary>
        public UIntPtr wrong;
        /// <summary>receives how many rows are null</summary>
        public UIntPtr nulls;
    }

    /// <summary>Checks every row of a column for a kind, as ravo_check does, and writes codes, validity and canonical forms.</summary>
    /// <remarks>
    /// <para>RAVO_OK whatever the rows are. `flags` is 0 or RAVO_TRUSTED. `progress` may be null. Allocates for dictionaries
    /// alone. The example is at the top of the chapter.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_check_column(int kind, [In] ravo_column column, uint flags,
        [In, Out] ravo_answers answers, ravo_progress progress, IntPtr context, [In, Out] ravo_error error);

    /// <summary>Checks every row of a column for a kind, as ravo_respell does, and writes codes, validity and usual spellings.</summary>
    /// <remarks>
    /// <para>Otherwise as ravo_check_column. Allocates for dictionaries alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_respell_column(int kind, [In] ravo_column column, uint flags,
        [In, Out] ravo_answers answers, ravo_progress progress, IntPtr context, [In, Out] ravo_error error);

    /// <summary>Looks up the bank of every row in a list, null for the one that is built in, and writes codes and names of banks.</summary>
    /// <remarks>
    /// <para>A value is a bank code of four digits, or ends with one after a slash, as accounts do. Codes are the reasons
    /// "bank.code" and "bank.unknown". Allocates for dictionaries alone.</para>
    /// <code>"0800", "19-2000145399/0800", "9999"  // codes 0, 0, 1402</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_bank_find_column(IntPtr list, [In] ravo_column column, uint flags,
        [In, Out] ravo_answers answers, ravo_progress progress, IntPtr context, [In, Out] ravo_error error);

    /// <summary>Looks up every row, which is the name of a table, and writes the table's number to `ids`, the first if it has
    /// several; 0 if there is none.</summary>
    /// <remarks>
    /// <para>Names are compared to the letter. The code is RAVO_CODE_UNKNOWN if no table has the name. `answers->texts` is
    /// null. Allocates for dictionaries alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_suite_table_find_column([In] ravo_column column, uint flags, [Out] int[] ids,
        [In, Out] ravo_answers answers, ravo_progress progress, IntPtr context, [In, Out] ravo_error error);

    /// <summary>Rounds every amount of a column of numbers of 8 bytes to a multiple of `step`, as ravo_money_round does.</summary>
    /// <remarks>
    /// <para>A result that does not fit 64 bits is 0 with the code of the reason "money.range". `results` may be the memory of
    /// the column itself, if it has neither an offset nor a dictionary. RAVO_RANGE if `step` is not positive.
    /// `answers->texts` is null. Allocates for dictionaries and for results that do not fit.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_money_round_column([In] ravo_column column, uint flags, long step, int rounding,
        [Out] long[] results, [In, Out] ravo_answers answers, ravo_progress progress, IntPtr context,
        [In, Out] ravo_error error);

    /// <summary>Reads the date of every row as ravo_day_read does, and writes its day less `origin`: 0 for a ravo_day,
    /// RAVO_DAY_1970 for date32 of Arrow.</summary>
    /// <remarks>
    /// <para>Codes are RAVO_CODE_NO_DATE, and the reason "day.range" if there is no such date; the day is 0 then.
    /// `answers->texts` is null. Allocates for dictionaries alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_day_read_column([In] ravo_column column, uint flags, int origin, [Out] int[] days,
        [In, Out] ravo_answers answers, ravo_progress progress, IntPtr context, [In, Out] ravo_error error);

    /// <summary>Writes every day of a column of numbers of 4 bytes as a text, as ravo_day_format does. `origin` is as in
    /// ravo_day_read_column.</summary>
    /// <remarks>
    /// <para>The code is the reason "day.range" outside of the years 1 to 9999. Allocates for dictionaries alone.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_day_format_column([In] ravo_column column, uint flags, int origin, int form,
        [In, Out] ravo_answers answers, ravo_progress progress, IntPtr context, [In, Out] ravo_error error);

    /// <summary>Converts every row, a whole text of its own, from one encoding to another, as ravo_convert does.</summary>
    /// <remarks>
    /// <para>Codes are RAVO_CODE_MALFORMED and RAVO_CODE_LACKING; with RAVO_CONVERT_REPLACE, neither. The texts that are
    /// written need not be UTF-8. RAVO_ARGUMENT if an encoding cannot be read or written, and for encodings with units
    /// of two or four bytes in RAVO_LAYOUT_FIXED. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_convert_column(int from, [In] ravo_column column, uint flags, int to, int policy,
        [In, Out] ravo_answers answers, ravo_progress progress, IntPtr context, [In, Out] ravo_error error);

    /// <summary>Writes the CRC-32 (ISO-HDLC, as in ZIP) of the bytes of each row to `results`; 0 for an empty or null row.</summary>
    /// <remarks>
    /// <para>Any bytes will do: they need not be UTF-8. Allocates for dictionaries alone.</para>
    /// <code>"123456789"  // 0xCBF43926</code>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_crc32_column([In] ravo_column column, uint flags, [Out] uint[] results,
        ravo_progress progress, IntPtr context, [In, Out] ravo_error error);

    [StructLayout(LayoutKind.Sequential)]
    public struct ArrowSchema
    {
        public IntPtr format;
        public IntPtr name;
        public IntPtr metadata;
        public long flags;
        public long n_children;
        public IntPtr children;
        public IntPtr dictionary;
        public IntPtr release;
        public IntPtr private_data;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct ArrowArray
    {
        public long length;
        public long null_count;
        public long offset;
        public long n_buffers;
        public long n_children;
        public IntPtr buffers;
        public IntPtr children;
        public IntPtr dictionary;
        public IntPtr release;
        public IntPtr private_data;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct ArrowArrayStream
    {
        public IntPtr get_schema;
        public IntPtr get_next;
        public IntPtr get_last_error;
        public IntPtr release;
        public IntPtr private_data;
    }

    /// <summary>Describes an Arrow array of texts or numbers: writes `*column`, and `*dictionary` if the array has one.</summary>
    /// <remarks>
    /// <para>`field` is the name of a column of a record batch, or null for an array that is no batch. Formats: u, U, vu, z, Z,
    /// vz, w:N, i, l, tdD, and dictionaries of these. Another format, or an array whose parts do not fit its format, is
    /// RAVO_ARGUMENT; a name that the batch does not have is RAVO_UNKNOWN. Schema and array stay the caller's; the column is
    /// valid until the caller releases them. `dictionary` may be null if there is none. Never
    /// allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_column_of_arrow(ref ArrowSchema schema, ref ArrowArray array, byte[] field,
        UIntPtr field_length, [In, Out] ravo_column column, [In, Out] ravo_column dictionary,
        [In, Out] ravo_error error);

    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate int ravo_batch(IntPtr context, [In] ravo_column column, ulong first_row);

    /// <summary>Reads an Arrow stream to its end and gives a column of each batch to a function.</summary>
    /// <remarks>
    /// <para>`field` is as in ravo_column_of_arrow. The stream becomes the function's: it is released exactly once, whatever the
    /// status, and so are its schema and its batches. A failure of the stream itself is RAVO_STOPPED with its number as
    /// `error->code` and its message. Never allocates; the stream may.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_arrow_stream(ref ArrowArrayStream stream, byte[] field, UIntPtr field_length,
        ravo_batch batch, IntPtr context, [In, Out] ravo_error error);

    /// <summary>a client with a user interface</summary>
    public const int RAVO_MACHINE_CLIENT = 0;
    /// <summary>the application layer</summary>
    public const int RAVO_MACHINE_BUSINESS = 1;

    /// <summary>Writes the suite's support report: date and time, system, folders, memory, disks, and the installed files of the
    /// suite, in Czech, indented with tabs, with CR LF after each line.</summary>
    /// <remarks>
    /// <para>It reads clock, locale, registry and files, changes nothing and sends nothing. It names the computer, its user and
    /// folders. A value that the machine does not have is empty, and its line is still there. Two reports may differ in
    /// length: some 64 KiB are room for each. Allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_machine_report(int layer, [Out] byte[] buffer, UIntPtr size, ref UIntPtr length,
        [In, Out] ravo_error error);
}
