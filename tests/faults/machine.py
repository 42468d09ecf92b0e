"""Recorded machines for the tests of faults: copies to break, and what the console shows of them."""

import os
import pathlib
import shutil
import subprocess
import unicodedata

CONSOLE = os.environ.get("OSTRELUM_CONSOLE", "build/bin/ostrelum-console")
MACHINES = pathlib.Path(__file__).resolve().parent.parent / "machines"
# The long run tries every case, the normal one a fixed part.
LONG = os.environ.get("OSTRELUM_LONG") == "1"
# Neutral regional forms, whatever the machine of the test has.
ENVIRONMENT = {"LC_ALL": "C", "TZ": "UTC0", "PATH": os.environ.get("PATH", ""),
               **{name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}}


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


def titles_of(machine):
    return [(MACHINES / machine / "expected" / f"page-{n}.txt").read_text("utf-8").partition("\n")[0]
            for n in range(1, 14)]


def pages_of(text, titles):
    """The lines of each page of a text that holds them all; fails if one is not there with its title and rows."""
    pages = []
    for title, follower in zip(titles, titles[1:] + [None]):
        assert text.startswith(f"{title}\n\n"), f"no page {title}"
        page, _, rest = text.partition(f"\n{follower}\n\n") if follower else (text, "", "")
        pages.append(page.splitlines()[2:])
        text = f"{follower}\n\n{rest}"
    return pages
