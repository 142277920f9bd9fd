// Checks a value: Check.exe KIND VALUE, for example Check.exe ico "046 25 781".
using System;
using System.Text;
using static Ravo;

static class Check
{
    static int Usage()
    {
        Console.Error.Write("usage: Check KIND VALUE\nkinds:");
        for (int kind = 1; ravo_kind_name(kind) != IntPtr.Zero; ++kind) Console.Error.Write(" " + Text(ravo_kind_name(kind)));
        Console.Error.WriteLine();
        return 2;
    }

    static int Main(string[] arguments)
    {
        if (arguments.Length != 2) return Usage();
        ravo_error error = new ravo_error();
        byte[] name = Encoding.UTF8.GetBytes(arguments[0]);
        int kind = 0;
        if (ravo_kind_of(name, (UIntPtr)name.Length, ref kind, error) != RAVO_OK) return Usage();

        byte[] text = Encoding.UTF8.GetBytes(arguments[1]);
        byte[] value = new byte[RAVO_VALUE_SIZE];
        UIntPtr length = UIntPtr.Zero;
        int status = ravo_check(kind, text, (UIntPtr)text.Length, value, (UIntPtr)value.Length, ref length, error);
        if (status == RAVO_OK) Console.WriteLine("correct in form: " + Text(value));
        else Console.WriteLine("{0}, at byte {1}", Text(error.message), error.position);
        return status == RAVO_OK ? 0 : 1;
    }
}
