"""A second opinion about memory: nothing unset is read, nothing out of bounds, nothing is left lying about."""

import re
import shutil
import unittest

import machine

VALGRIND = ["valgrind", "-q", "--error-exitcode=9", "--leak-check=full", "--errors-for-leak-kinds=definite,possible"]


@unittest.skipUnless(machine.LONG, "only in the long run")
@unittest.skipUnless(shutil.which("valgrind"), "there is no valgrind")
@unittest.skipIf(machine.is_sanitized(), "the sanitizers have an opinion of their own")
class MemoryTest(unittest.TestCase):
    def test_every_recorded_machine_and_this_one(self):
        machines = sorted(path.parent for path in machine.MACHINES.glob("*/expected"))
        self.assertTrue(machines)
        for root in ["/", *map(str, machines)]:
            for command in (["page", "all"], ["report", "text"]):
                with self.subTest(root=root, command=command):
                    done = machine.run("--sysroot", root, *command, before=VALGRIND)
                    # It tells of calls that it does not know; the complaints proper begin with "==".
                    complaints = re.findall(r"(?m)^==\d+== .*", done.stderr.decode(errors="replace"))
                    self.assertEqual((done.returncode, complaints), (0, []))


if __name__ == "__main__":
    unittest.main()
