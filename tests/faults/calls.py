"""System calls that fail, one at a time or all from one on, by strace's injection."""

import collections
import re
import subprocess
import tempfile
from pathlib import Path

# What fails, how, and whether it goes on failing: a read that fails, a disk gone bad, no more files to be had.
FAULTS = [("openat", "EIO", ""), ("openat", "EMFILE", "+"), ("openat2", "EIO", ""), ("openat2", "EMFILE", "+"),
          ("read", "EIO", ""), ("getdents64", "EIO", ""), ("newfstatat", "EACCES", "")]
CALL = re.compile(r"^(\d+) +(\w+)\((.*)")


def can_trace():
    try:
        return subprocess.run(["strace", "-o", "/dev/null", "true"], capture_output=True, check=False).returncode == 0
    except OSError:
        return False


def tracer(trace, *injected):
    """The program stays the process that is started, and strace hangs on it from behind (-D)."""
    return ["strace", "-D", "-f", "-qq", "-s", "4096", "-o", str(trace), *injected]


def failing(call, error, number, on=""):
    """Options of the tracer by which the call with that number, counted from 1, fails."""
    return ["-e", f"trace={call}", "-e", f"inject={call}:error={error}:when={number}{on}"]


def own_calls(trace, first_own):
    """Numbers of the first and of the last call of each kind that are the program's own, on its first thread.

    Before the call that `first_own` is part of, the loader and the libraries start, and nothing can go on without them.
    """
    counts, first = collections.Counter(), {}
    main = None
    for line in Path(trace).read_text(errors="replace").splitlines():
        called = CALL.match(line)
        main = main or (called and called[1])
        if not called or called[1] != main:
            continue
        counts[called[2]] += 1
        if not first and called[2].startswith("open") and first_own in called[3]:
            first = counts.copy()
    assert first, f"{first_own} does not occur"
    # That call itself and those of its kind before it are left out.
    return {call: (first[call] + 1, counts[call]) for call in counts}


def spread(first, last, count):
    """At most `count` numbers from first to last, evenly spread."""
    steps = min(count, last - first + 1)
    return [first + (last - first) * i // max(steps - 1, 1) for i in range(steps)]


def faults_of(start, first_own, count):
    """What to inject, for `count` places of each fault; `start` runs the program under the given tracer."""
    with tempfile.TemporaryDirectory() as folder:
        trace = Path(folder, "trace")
        start(tracer(trace))
        own = own_calls(trace, first_own)
    return [(call, error, number, on) for call, error, on in FAULTS if call in own
            for number in spread(*own[call], count)]
