"""The declarations of C# for a header in C: bindings/csharp/Ravo.cs.

Names and numbers are those of the header. A text is a `byte[]` of UTF-8 and its length. A struct that begins with its
size is a class, which may be null and knows its size; any other struct is a struct. What a function writes is `ref`: it
stays as it was if the function fails. Comments come along.
"""
import re
import textwrap
from collections.abc import Iterator

from pycparser import c_ast, c_generator  # type: ignore[import]

HEAD = """\
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
"""
SCALARS = {
    "char": "byte", "int": "int", "double": "double", "float": "float", "size_t": "UIntPtr", "void": "void",
    "int8_t": "sbyte", "int16_t": "short", "int32_t": "int", "int64_t": "long",
    "uint8_t": "byte", "uint16_t": "ushort", "uint32_t": "uint", "uint64_t": "ulong",
}  # fmt: skip
KEYWORDS = set(
    "abstract as base bool break byte case catch char checked class const continue decimal default delegate do double else enum "
    "event explicit extern false finally fixed float for foreach goto if implicit in int interface internal is lock long namespace "
    "new null object operator out override params private protected public readonly ref return sbyte sealed short sizeof stackalloc "
    "static string struct switch this throw true try typeof uint ulong unchecked unsafe ushort using virtual void volatile while".split()
)
COMMENT = re.compile(r"^/\*(?!\s*-{9})((?:(?!\*/).)*)\*/\n(#define \w+|[^/#\n][^;{]*[;{])", re.DOTALL | re.MULTILINE)
NUMBER = re.compile(r"#define (RAVO_\w+) (\d+|\(\(size_t\)-1\))$", re.MULTILINE)
MAX_SIZE = "UIntPtr.Size == 8 ? new UIntPtr(ulong.MaxValue) : new UIntPtr(uint.MaxValue)"


def spelled(name: str) -> str:
    return f"@{name}" if name in KEYWORDS else name


class Declarations:
    """The declarations of a header, by kind of C#."""

    def __init__(self, header: str, tree: c_ast.FileAST) -> None:
        self.header = header
        self.tree = tree
        self.scalars = dict(SCALARS)
        self.structs: set[str] = set()
        self.classes: set[str] = set()
        self.delegates: set[str] = set()
        self.comments = {self.declared(code): text for text, code in COMMENT.findall(header)}

    @staticmethod
    def declared(code: str) -> str:
        """The name that the first words of a declaration give it."""
        name = re.search(r"#define (\w+)|\*(\w+)\)\s*\(|(\w+)\(|(?:struct|enum) (\w+)\s*\{|(\w+)\s*;", code)
        return next((group for group in name.groups() if group), "") if name else ""

    # Comments.

    def comment(self, name: str, indent: str = "    ") -> Iterator[str]:
        text = re.sub(r"^ \* ?| *$", "", self.comments.get(name, ""), flags=re.MULTILINE)
        paragraphs = textwrap.dedent(text).strip().split("\n\n")
        if paragraphs != [""]:
            yield from self.element("summary", paragraphs[0], indent)
        if len(paragraphs) > 1:
            yield f"{indent}/// <remarks>"
            for paragraph in paragraphs[1:]:
                yield from self.element("code" if paragraph.startswith("    ") else "para", paragraph, indent)
            yield f"{indent}/// </remarks>"

    @staticmethod
    def element(name: str, text: str, indent: str) -> list[str]:
        lines = textwrap.dedent(text).strip("\n").replace("&", "&amp;").replace("<", "&lt;").split("\n")
        lines[0] = f"<{name}>{lines[0]}"
        lines[-1] += f"</{name}>"
        return [f"{indent}/// {line}".rstrip() for line in lines]

    def remark(self, scope: str, name: str, indent: str) -> Iterator[str]:
        """The comment beside a field of a struct, or beside a number of an enum if `scope` is empty."""
        place = re.search(rf"struct {scope} {{(.*?)^}}", self.header, re.DOTALL | re.MULTILINE) if scope else None
        found = re.search(rf"\b{name}\b[^\n;,]*[;,]? +/\* (.*?) \*/$", place[1] if place else self.header, re.MULTILINE)
        if found:
            yield from self.element("summary", found[1], indent)

    # Types.

    @staticmethod
    def base(node: c_ast.Node) -> str:
        """The name of a type below its pointers."""
        while isinstance(node, (c_ast.PtrDecl, c_ast.TypeDecl, c_ast.ArrayDecl, c_ast.FuncDecl)):
            node = node.type
        return str(" ".join(node.names) if isinstance(node, c_ast.IdentifierType) else node.name)

    def value(self, node: c_ast.Node) -> str:
        """The type of a result or of a field."""
        name = self.base(node)
        if isinstance(node, c_ast.PtrDecl) or name not in self.scalars and name not in self.structs:
            return name if name in self.delegates else "IntPtr"
        return self.scalars.get(name, name)

    def parameter(self, node: c_ast.Decl, has_rows: bool) -> str:
        return f"{self.parameter_type(node, has_rows)} {spelled(node.name)}"

    def parameter_type(self, node: c_ast.Decl, has_rows: bool) -> str:
        if not isinstance(node.type, (c_ast.PtrDecl, c_ast.ArrayDecl)):
            return self.value(node.type)
        if isinstance(node.type.type, c_ast.PtrDecl):
            return "out IntPtr"
        if isinstance(node.type.type, c_ast.FuncDecl):
            return "IntPtr"
        base = self.base(node.type)
        is_const = "const" in node.type.type.quals
        if base in self.classes:
            return f"[In{'' if is_const else ', Out'}] {base}"
        if base in self.structs:
            return f"ref {base}"
        if base == "void" and not is_const or base not in self.scalars:
            return "IntPtr"
        scalar = "byte" if base == "void" else self.scalars[base]
        if is_const:
            return f"{scalar}[]"
        is_row = scalar == "byte" or has_rows and base != "size_t"
        return f"[Out] {scalar}[]" if is_row else f"ref {scalar}"

    # Declarations.

    def parameters(self, function: c_ast.FuncDecl) -> str:
        nodes = [node for node in function.args.params if isinstance(node, c_ast.Decl)] if function.args else []
        has_rows = any(node.name.endswith("count") or self.base(node.type).endswith("_column") for node in nodes)
        return ", ".join(self.parameter(node, has_rows) for node in nodes)

    def function(self, node: c_ast.Decl) -> Iterator[str]:
        yield from self.comment(node.name)
        yield "    [DllImport(Library, CallingConvention = CallingConvention.Cdecl, ExactSpelling = true)]"
        head = f"    public static extern {self.value(node.type.type)} {node.name}("
        # A parameter stays in one line.
        glued = self.parameters(node.type).replace(" ", "\0").replace(",\0", ", ").replace("[In, Out]", "[In,\0Out]")
        for line in textwrap.wrap(head + glued + ");", 116, subsequent_indent="        "):
            yield line.replace("\0", " ")

    def delegate(self, node: c_ast.Typedef) -> Iterator[str]:
        self.delegates.add(node.name)
        yield from self.comment(node.name)
        yield "    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]"
        function = node.type.type
        # Bytes that come from the library have a length that C# does not know.
        parameters = self.parameters(function).replace("byte[] ", "IntPtr ")
        yield f"    public delegate {self.value(function.type)} {node.name}({parameters});"

    def field(self, struct: str, node: c_ast.Decl) -> Iterator[str]:
        yield from self.remark(struct, node.name, "        ")
        kind, value = self.value(node.type), ""
        if isinstance(node.type, c_ast.ArrayDecl):
            size = node.type.dim.value
            yield f"        [MarshalAs(UnmanagedType.ByValArray, SizeConst = {size})]"
            kind, value = f"{kind}[]", f" = new {kind}[{size}]" if struct in self.classes else ""
        elif node.name == "size" and struct in self.classes:
            value = f" = (UIntPtr)Marshal.SizeOf(typeof({struct}))"
        yield f"        public {kind} {spelled(node.name)}{value};"

    def struct(self, node: c_ast.Struct) -> Iterator[str]:
        self.structs.add(node.name)
        grows = node.decls[0].name == "size" and self.base(node.decls[0].type) == "size_t"
        if grows:
            self.classes.add(node.name)
        yield from self.comment(node.name)
        yield "    [StructLayout(LayoutKind.Sequential)]"
        yield f"    public {'sealed class' if grows else 'struct'} {node.name}"
        yield "    {"
        for field in node.decls:
            yield from self.field(node.name, field)
        yield "    }"

    def numbers(self, node: c_ast.Enum) -> Iterator[str]:
        following = "0"
        for number in node.values.enumerators:
            value = c_generator.CGenerator().visit(number.value) if number.value else following
            following = f"{number.name} + 1"
            yield from self.remark("", number.name, "    ")
            yield f"    public const int {number.name} = {value};"

    def scalar(self, node: c_ast.Typedef) -> None:
        name = self.base(node.type)
        if name in self.scalars:
            self.scalars[node.name] = self.scalars[name]

    def declaration(self, node: c_ast.Node) -> Iterator[str]:
        inner = node.type
        while isinstance(inner, c_ast.TypeDecl):
            inner = inner.type
        if isinstance(inner, c_ast.FuncDecl):
            yield from self.function(node)
        elif isinstance(inner, c_ast.Struct) and inner.decls:
            yield from self.struct(inner)
        elif isinstance(inner, c_ast.Enum):
            yield from self.numbers(inner)
        elif isinstance(inner, c_ast.PtrDecl) and isinstance(inner.type, c_ast.FuncDecl):
            yield from self.delegate(node)
        elif isinstance(node, c_ast.Typedef):
            self.scalar(node)

    def macros(self) -> Iterator[str]:
        for name, number in NUMBER.findall(self.header):
            yield from self.comment(name)
            is_size = number.startswith("(")
            yield f"    public {'static readonly UIntPtr' if is_size else 'const int'} {name} = {MAX_SIZE if is_size else number};"

    def text(self) -> str:
        blocks = [list(self.macros()), *(list(self.declaration(node)) for node in self.tree.ext)]
        return HEAD + "".join("\n" + "\n".join(block) + "\n" for block in blocks if block) + "}\n"
