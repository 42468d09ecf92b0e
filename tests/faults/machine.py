"""Recorded machines and what the console shows of them, and copies of them to break."""

import os
import pathlib
import shutil
import subprocess
import unicodedata

CONSOLE = os.environ.get("OSTRELUM_CONSOLE", "build/bin/ostrelum-console")
MACHINES = pathlib.Path(__file__).resolve().parent.parent / "machines"
# Those with pages, and whose pages they are.
USERS = {"notebook": "alma", "desktop": "ana", "armboard": "orla", "virtual": "root", "server": "oper",
         "removable": "eva", "nothing": "nobody-here"}
PAGES = range(1, 14)
# The long run tries every case, the normal one a fixed part.
LONG = os.environ.get("OSTRELUM_LONG") == "1"
# Neutral regional forms, whatever the machine of the test has.
ENVIRONMENT = {"LC_ALL": "C", "TZ": "UTC0", "PATH": os.environ.get("PATH", ""),
               **{name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}}


def is_sanitized():
    return b"__asan_init" in pathlib.Path(CONSOLE).read_bytes()


def copy_of(machine, folder):
    return pathlib.Path(shutil.copytree(MACHINES / machine, folder, symlinks=True,
                                        ignore=shutil.ignore_patterns("expected")))


def run(*arguments, before=(), program=CONSOLE):
    # The sanitizer of leaks gives up under a tracer, and waits for threads that wait for ever.
    options = {"ASAN_OPTIONS": "detect_leaks=0"} if before else {}
    return subprocess.run([*before, program, *arguments], capture_output=True, env=ENVIRONMENT | options, timeout=120,
                          check=False)


def text_of(*arguments, **options):
    """What the console prints; fails unless it ends well and prints clean UTF-8."""
    done = run(*arguments, **options)
    assert done.returncode == 0, f"code {done.returncode}: {done.stderr.decode(errors='replace')}"
    text = done.stdout.decode("utf-8")
    odd = {f"U+{ord(c):04X}" for c in text if c != "\n" and unicodedata.category(c) in ("Cc", "Cs")}
    assert not odd, f"control characters {odd}"
    return text


def of(root, *arguments):
    return text_of("--sysroot", str(root), *arguments)


def expected_pages(machine, variant="."):
    """The texts that were worked out by hand, by their number."""
    folder = MACHINES / machine / "expected" / variant
    return {n: (folder / f"page-{n}.txt").read_text("utf-8") for n in PAGES if (folder / f"page-{n}.txt").exists()}


def titles_of(machine):
    return [page.partition("\n")[0] for page in expected_pages(machine).values()]


def pages_of(text, titles):
    """The lines of each page of a text that holds them all; fails if one is not there with its title and rows."""
    pages = []
    for title, follower in zip(titles, titles[1:] + [None]):
        assert text.startswith(f"{title}\n\n"), f"no page {title}"
        page, _, rest = text.partition(f"\n{follower}\n\n") if follower else (text, "", "")
        pages.append(page.splitlines()[2:])
        text = f"{follower}\n\n{rest}"
    return pages
