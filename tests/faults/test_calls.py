"""No call that fails ends the program: the console on a recorded machine and on this one."""

import os
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor

import calls
import machine

PLACES = 60 if machine.LONG else 4
TITLES = machine.titles_of("notebook")


def pages(options, before):
    text = machine.text_of(*options, "page", "all", before=before)
    machine.pages_of(text, TITLES)


@unittest.skipUnless(calls.can_trace(), "tracing is not permitted here")
class CallsTest(unittest.TestCase):
    def check(self, options, first_own):
        def complaint(fault):
            try:
                pages(options, calls.tracer("/dev/null", *calls.failing(*fault)))
            except AssertionError as error:
                return f"{fault}: {error}"
            return None

        faults = calls.faults_of(lambda tracer: pages(options, tracer), first_own, PLACES)
        self.assertGreater(len(faults), PLACES)
        with ThreadPoolExecutor(2) as workers:
            self.assertEqual([found for found in workers.map(complaint, faults) if found], [])

    def test_on_a_recorded_machine(self):
        root = str(machine.MACHINES / "notebook")
        self.check(["--sysroot", root, "--user", "alma"], f'"{root}"')

    def test_on_this_machine(self):
        self.check([], 'AT_FDCWD, "/", O_RDONLY|O_CLOEXEC|O_PATH')

    def test_without_threads(self):
        pages([], calls.tracer("/dev/null", *calls.failing("clone3", "EAGAIN", 1, "+")))

    @unittest.skipIf(machine.is_sanitized(), "the sanitizers look at memory through descriptors, which there are none of")
    def test_a_recording_is_whole_or_fails(self):
        few = [["sh", "-c", f'ulimit -n {limit}; exec "$@"', "sh"] for limit in (5, 6, 12)]
        once = [calls.tracer("/dev/null", *calls.failing(call, "ENFILE", 200)) for call in ("openat2", "openat")]
        with tempfile.TemporaryDirectory() as folder:
            for root in ("/", str(machine.MACHINES / "notebook")):
                for before in few + once:
                    done = machine.run("--sysroot", root, "record", f"{folder}/new", before=before)
                    self.assertRegex(done.stderr.decode(), "Too many open files")
                    self.assertEqual((done.returncode, os.listdir(folder)), (1, []), before)


if __name__ == "__main__":
    unittest.main()
