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

    /// <summary>Why a function failed. Declare it as `ravo_error error = RAVO_ERROR_INIT;`.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public sealed class ravo_error
    {
        /// <summary>sizeof(ravo_error), set by the caller</summary>
        public UIntPtr size = (UIntPtr)Marshal.SizeOf(typeof(ravo_error));
        /// <summary>what the function returned</summary>
        public int status;
        /// <summary>with RAVO_WRONG: the number of the reason, see ravo_reason_name</summary>
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
    /// <code>ravo_reason_sentence(104, RAVO_LANGUAGE_ENGLISH)  // "the check digit does not match"</code>
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
    /// this processor gets and the dates of the lists inside.</summary>
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
    /// <para>As ravo_check, but for the form: "CZ65 0800 0000 1920 0014 5399". Never allocates.</para>
    /// </remarks>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_respell(int kind, byte[] text, UIntPtr text_length, [Out] byte[] buffer,
        UIntPtr size, ref UIntPtr length, [In, Out] ravo_error error);

    /// <summary>A date of the proleptic Gregorian calendar.</summary>
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

    /// <summary>Writes the day of a date. RAVO_RANGE if there is no such date. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_day_of(int year, int month, int day_of_month, ref int day,
        [In, Out] ravo_error error);

    /// <summary>Writes the date of a day. RAVO_RANGE outside of the years 1 to 9999. Never allocates.</summary>
    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]
    public static extern int ravo_date_of(int day, ref ravo_date date, [In, Out] ravo_error error);
}
