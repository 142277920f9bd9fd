"""Files that `ravo` writes: whole or not there, and what of the old file stays, beside `sed -i` and `cp`."""

import os
import shutil
import signal
import stat
import subprocess
import time

from harness import WRONG_USAGE, YES

DRAFTS = ".ravo-*"


def run_sort(program, target, *options):
    """Writes b"a\\nb\\n" into the target."""
    (program.folder / "input").write_bytes(b"b\na\n")
    return program.run(["sort", "input", *options, "-o", str(target)])


def left(program):
    return list(program.folder.rglob(DRAFTS))


def check_output_names(program):
    """A name as long as the system takes, standard output, no name, a folder, a file that starts with a dash."""
    # The emulator's folder is deep in the build tree already.
    names = ["x" * (100 if program.emulated else 251) + ".txt", "-x", "ž.txt"]
    for name in names:
        target = program.folder / name
        for _ in range(2):
            result = run_sort(program, name if name != "-x" else "./-x")
            if result.status != YES or target.read_bytes() != b"a\nb\n":
                yield f"sort -o {name}: {result}"
        if name == "-x" and program.run(["sort", "--", "-x"]).out != "a\nb\n":
            yield "sort -- -x: not the lines of the file"
        target.unlink()
    dashes: tuple[list[str], ...] = (["-o", "-"], [])
    for dash in dashes:
        result = program.run(["sort", "input", *dash])
        if (result.status, result.out, result.err) != (YES, "a\nb\n", "") or (program.folder / "-").exists():
            yield f"sort {dash}: {result}"
    for words in (["report"], ["convert", "-f", "utf-8", "-t", "1250", "input"], ["sort", "input"], ["xml", "format", "input"], ["form", "input"]):
        result = program.run([*words, "-o", ""])
        if result.status != WRONG_USAGE or "the name of the output file is empty" not in result.err:
            yield f"{' '.join(words)} -o '': {result}"
    result = program.run(["report", "-o", "-"])
    if (result.status, (program.folder / "-").exists()) != (YES, False) or not result.out.startswith("Informace"):
        yield f"report -o -: {result.status}, {result.out[:60]!r}"
    for name, told in ((".", "is a folder"), ("nowhere/x", "cannot be written: its folder does not exist"), ("input/x", "cannot be written")):
        result = run_sort(program, name)
        if result.status != WRONG_USAGE or f"ravo sort: {name}: {told}" not in result.err:
            yield f"sort -o {name}: {result}"
    if not program.emulated:
        result = run_sort(program, "x" * 256)
        if result.status != WRONG_USAGE or "the name is too long" not in result.err:
            yield f"sort -o with a name too long: {result}"
    if left(program):
        yield f"left {left(program)}"
    (program.folder / "input").unlink()


def check_read_only(program):
    """A file that is read-only is refused without --force, and stays so with it."""
    target = program.folder / "target"
    target.write_bytes(b"old")
    target.chmod(0o444)
    result = run_sort(program, "target")
    if result.status != WRONG_USAGE or "target: is read-only; --force replaces it" not in result.err or target.read_bytes() != b"old":
        yield f"sort -o of a read-only file: {result}, {target.read_bytes()!r}"
    result = run_sort(program, "target", "--force")
    if result.status != YES or target.read_bytes() != b"a\nb\n" or target.stat().st_mode & stat.S_IWUSR:
        yield f"sort --force -o of a read-only file: {result}, mode {target.stat().st_mode:o}"
    target.chmod(0o644)
    target.unlink()
    (program.folder / "input").unlink()


class Setting:
    """A folder with a file, a hard link and symbolic links to it, a dead link."""

    def __init__(self, program, name, mode, owner):
        self.folder = program.folder / name
        self.folder.mkdir()
        self.file, self.hard, self.link, self.dead = (self.folder / part for part in ("file", "hard", "link", "dead"))
        self.file.write_bytes(b"b\na\n")
        os.link(self.file, self.hard)
        self.link.symlink_to("file")
        self.dead.symlink_to("nothing")
        if os.geteuid() == 0:
            os.chown(self.file, *owner)
        os.chmod(self.file, mode)
        try:
            os.setxattr(self.file, "user.note", b"kept")
        except OSError:
            pass

    def facts(self):
        """What a caller sees after the file was written."""
        now = self.file.stat()
        return {
            "bytes": self.file.read_bytes(), "mode": stat.S_IMODE(now.st_mode), "owner": (now.st_uid, now.st_gid),
            "attributes": sorted(os.listxattr(self.file)), "the link is a link": self.link.is_symlink(),
            "hard link has": self.hard.read_bytes(), "one file": os.path.samestat(now, self.hard.stat()),
        }


def check_kept_status(program):
    """Mode, owner, links and attributes after a file was replaced, as sed -i and cp leave them."""
    if program.emulated or not shutil.which("sed") or not hasattr(os, "setxattr"):
        return
    source = program.folder / "source"
    source.write_bytes(b"a\nb\n")
    # By name, and by the symbolic link to it.
    for part in ("file", "link"):
        for mode in (0o640, 0o604, 0o4750):
            facts = {}
            for tool in ("ravo", "sed", "cp"):
                setting = Setting(program, f"{tool}-{part}-{mode:o}", mode, (12345, 23456))
                command = {
                    "ravo": [*program.command, "sort", part, "-o", part],
                    "sed": ["sed", "-i", "--follow-symlinks", "1!G;h;$!d", part],
                    "cp": ["cp", source, part],
                }[tool]
                subprocess.run(command, cwd=setting.folder, check=True, capture_output=True)
                facts[tool] = setting.facts()
                shutil.rmtree(setting.folder)
            if facts["ravo"] != {**facts["sed"], "attributes": facts["cp"]["attributes"]}:
                yield f"sort -o {part}, mode {mode:o}: {facts['ravo']}, not as sed has it: {facts['sed']}"
            # cp writes into the old file: its hard links see the new bytes, and it is no program of its owner any more.
            same = ("bytes", "owner", "attributes", "the link is a link")
            if any(facts["ravo"][fact] != facts["cp"][fact] for fact in same) or not facts["cp"]["one file"]:
                yield f"sort -o {part}, mode {mode:o}: {facts['ravo']}, not as cp has it: {facts['cp']}"
    setting = Setting(program, "dead", 0o644, (0, 0))
    copied = subprocess.run(["cp", source, "dead"], cwd=setting.folder, capture_output=True)
    result = subprocess.run([*program.command, "sort", "file", "-o", "dead"], cwd=setting.folder, capture_output=True, text=True)
    if copied.returncode == 0 or result.returncode != WRONG_USAGE or "is a link to a file that does not exist" not in result.stderr:
        yield f"sort -o to a dead link: {result}"
    shutil.rmtree(setting.folder)
    source.unlink()


def check_new_files(program):
    """A new file has the mode that the user's mask leaves, and a draft is private until then."""
    if program.emulated or not hasattr(os, "umask"):
        return
    for mask in (0o022, 0o077, 0o002):
        before = os.umask(mask)
        run_sort(program, "new")
        os.umask(before)
        if (mode := stat.S_IMODE((program.folder / "new").stat().st_mode)) != 0o666 & ~mask:
            yield f"sort -o new under the mask {mask:o}: mode {mode:o}"
        (program.folder / "new").unlink()
    (program.folder / "input").unlink()


def ends_of_a_process():
    """Every signal that ends a process by default and can be caught."""
    others = "SIGKILL SIGSTOP SIGCHLD SIGCONT SIGURG SIGWINCH SIGTSTP SIGTTIN SIGTTOU".split()
    ignored = {getattr(signal, name) for name in others}
    return [number for number in signal.valid_signals() if number not in ignored]


def check_every_signal(program):
    """A draft is private, beside its target, and gone after any signal that ends the process."""
    if program.emulated:
        return
    folder = program.folder / "folder"
    folder.mkdir()
    target = folder / ("t" * 255)
    target.write_bytes(b"old")
    command = [*program.command, "convert", "-f", "1250", "-t", "utf-8", "-o", str(target)]
    piece = b"text\n" * 100_000
    for number in ends_of_a_process():
        with subprocess.Popen(command, stdin=subprocess.PIPE, stderr=subprocess.PIPE, restore_signals=True) as running:
            assert running.stdin
            running.stdin.write(piece)
            running.stdin.flush()
            patience = time.monotonic() + 60
            while not (drafts := list(folder.glob(DRAFTS))) and time.monotonic() < patience:
                time.sleep(0.005)
            if [stat.S_IMODE(draft.stat().st_mode) for draft in drafts] != [0o600]:
                yield f"signal {number}: drafts {drafts}"
            running.send_signal(number)
            status = running.wait(timeout=60)
        if status != -number or target.read_bytes() != b"old" or len(os.listdir(folder)) != 1:
            yield f"signal {number}: status {status}, {os.listdir(folder)}"
    shutil.rmtree(folder)


def check_deep_folder(program):
    """A file in a folder whose path leaves no room for a longer name."""
    if program.emulated:
        return
    longest = os.pathconf("/", "PC_PATH_MAX") - 1
    folder = program.folder / "deep"
    while len(str(folder)) < longest - 210:
        folder /= "d" * 200
    folder /= "e" * (longest - len(str(folder)) - 3)
    folder.mkdir(parents=True)
    target = folder / "t"
    result = run_sort(program, target)
    if len(str(target)) != longest or result.status != YES or target.read_bytes() != b"a\nb\n":
        yield f"sort -o with a path of {len(str(target))} bytes: {result.status}, {result.err[-100:]!r}"
    shutil.rmtree(program.folder / "deep")
    (program.folder / "input").unlink()


def check_forbidden_folder(program):
    """Without the right to make files in a folder nothing is written, and a file of another owner stays."""
    if program.emulated or os.geteuid() != 0 or not shutil.which("setpriv"):
        return
    folder = program.folder / "forbidden"
    folder.mkdir()
    program.folder.chmod(0o711)
    target = folder / "target"
    target.write_bytes(b"old")
    target.chmod(0o644)
    # Elsewhere the program itself may be out of reach of others.
    if all(path.stat().st_mode & stat.S_IXOTH for path in (folder, *folder.parents)):
        plain = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"]
        result = subprocess.run([*plain, *program.command, "sort", "-o", target], stdin=subprocess.DEVNULL, capture_output=True, text=True)
        if result.returncode != WRONG_USAGE or "is read-only" not in result.stderr or target.read_bytes() != b"old":
            yield f"sort -o to a file of another owner: {result}"
        result = subprocess.run([*plain, *program.command, "sort", "-o", folder / "new"], stdin=subprocess.DEVNULL, capture_output=True, text=True)
        if result.returncode != WRONG_USAGE or "access is denied" not in result.stderr:
            yield f"sort -o into a forbidden folder: {result}"
    program.folder.chmod(0o700)
    shutil.rmtree(folder)


def check_standard_input(program):
    """- is standard input in every command that reads."""
    files = {"lines": b"a\nb\n", "table": b"VS\n0\n", "fields": b"field;value\na;b\n"}
    for name, content in files.items():
        (program.folder / name).write_bytes(content)
    commands = [
        ("lines", ["sort"]), ("lines", ["hash", "crc32"]), ("lines", ["convert", "-f", "utf-8", "-t", "1250"]),
        ("table", ["check", "--suite", "--column", "VS=vs", "--csv"]), ("fields", ["form", "-o", "made"]),
    ]
    for name, words in commands:
        results = []
        for source in ("-", name):
            result = program.run([*words, source], given=name)
            made = program.folder / "made"
            results.append((result.status, result.out.replace("  -\n", f"  {name}\n"), result.err.replace(" -: ", f" {name}: "), made.exists() and made.read_bytes()))
            made.unlink(missing_ok=True)
        if results[0] != results[1] or results[0][0] != YES:
            yield f"{' '.join(words)} - <{name}: {results[0]}, not {results[1]}"
    for name in files:
        (program.folder / name).unlink()


def check_words_after_dashes(program):
    """After -- no word is an option or a command, wherever -- stands."""
    for name in ("-x", "sort", "b"):
        (program.folder / name).write_bytes(name.encode() + b"\n")
    rows = [
        (["sort", "--", "-x"], "-x\n"), (["sort", "b", "--", "-x"], "b\n-x\n"), (["sort", "b", "--", "sort"], "b\nsort\n"),
        (["hash", "--all", "b", "--", "-x"], None), (["hash", "crc32", "--", "-x"], None),
        (["match", "--", "-*", "-x", "b"], "-x\n"), (["match", "*", "--", "-x"], "-x\n"),
        (["url", "encode", "--", "-x"], "-x\n"), (["round", "--", "-12,255"], "-12,255\t-12,26\n"),
        (["convert", "-f", "utf-8", "-t", "1250", "b", "--", "-x"], "b\n-x\n"),
    ]
    for words, wanted in rows:
        result = program.run(words)
        if result.status != YES or not result.out or (wanted is not None and sorted(result.out.split()) != sorted(wanted.split())):
            yield f"{' '.join(words)}: {result}"
    for words in (["table", "--", "-5"], ["report", "--", "--json"]):
        result = program.run(words)
        if result.status == YES or "\x01" in result.err or words[-1] not in result.err:
            yield f"{' '.join(words)}: {result}"
    for name in ("-x", "sort", "b"):
        (program.folder / name).unlink()


OUTPUT_CHECKS = (
    check_output_names, check_read_only, check_kept_status, check_new_files, check_every_signal, check_deep_folder,
    check_forbidden_folder, check_standard_input, check_words_after_dashes,
)
