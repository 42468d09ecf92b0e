"""No open or read that fails while the program starts keeps its window from coming up."""

import os
import sys
import unittest
from pathlib import Path

from desktop import PROGRAM, Desktop, wait_for

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "faults"))
import calls  # noqa: E402

PLACES = 20 if os.environ.get("OSTRELUM_LONG") == "1" else 2
# The first thing that the program itself opens.
FIRST_OWN = "/dervalin-ostrelum-"


@unittest.skipUnless(calls.can_trace(), "tracing is not permitted here")
class CallsTest(unittest.TestCase):
    def test_the_window_comes_up(self):
        with Desktop() as desktop:
            for fault in calls.faults_of(lambda tracer: self.start(desktop, tracer), FIRST_OWN, PLACES):
                with self.subTest(fault=fault):
                    self.start(desktop, calls.tracer("/dev/null", *calls.failing(*fault)))

    def start(self, desktop, tracer):
        program = desktop.start(*tracer, PROGRAM)
        try:
            shown = wait_for(lambda: program.poll() is not None or desktop.windows(), 30)
            self.assertTrue(shown, "no window came up")
            self.assertIsNone(program.poll(), "the program has ended")
        finally:
            program.kill()
            program.wait()
        self.assertTrue(wait_for(lambda: not desktop.windows()), "the window is gone with its program")


if __name__ == "__main__":
    unittest.main()
