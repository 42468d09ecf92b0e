"""What ./package makes of one commit is the same, whoever makes it and wherever: in a clone, and in the archive of its
sources."""

import hashlib
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
LONG = os.environ.get("OSTRELUM_LONG") == "1"


def package(folder, *parts, mask=0o022, **variables):
    """Makes packages in a folder of sources; the checksum of each."""
    environment = {**os.environ, "CCACHE_DISABLE": "1", **variables}
    done = subprocess.run(["./package", *parts], cwd=folder, env=environment, umask=mask, capture_output=True, text=True,
                          check=False)
    assert done.returncode == 0, done.stdout[-2000:] + done.stderr[-2000:]
    made = {path.name: hashlib.sha256(path.read_bytes()).hexdigest() for path in (folder / "dist").iterdir()}
    told = (folder / "dist/SHA256SUMS").read_text(encoding="utf-8").split()
    sums = dict(zip(told[1::2], told[0::2]))
    del made["SHA256SUMS"]
    assert made == sums, sums
    return made


@unittest.skipUnless(LONG, "builds all packages twice: OSTRELUM_LONG=1")
@unittest.skipUnless((ROOT / ".git").exists(), "needs a clone")
class ReproducibleTest(unittest.TestCase):
    def test_a_clone_and_the_archive_of_its_sources_give_the_same_bytes(self):
        with tempfile.TemporaryDirectory(prefix="ostrelum-packages-") as scratch:
            clone, other = Path(scratch, "clone"), Path(scratch, "somewhere/else/entirely")
            subprocess.run(["git", "clone", "-q", ROOT, clone], check=True)
            first = package(clone)
            self.assertEqual(len(first), 5, first)
            [archive] = (clone / "dist").glob("*.tar.xz")
            other.mkdir(parents=True)
            subprocess.run(["tar", "-xf", archive, "-C", other, "--strip-components=1"], check=True)
            # As in a folder that was there before the commit.
            subprocess.run(["find", other, "-type", "f", "-exec", "touch", "-d", "2026-01-01", "{}", "+"], check=True)
            second = package(other, mask=0o077, TZ="Asia/Tokyo", LC_ALL="C", CXXFLAGS="-g")
            self.assertEqual(second, {name: each for name, each in first.items() if name != archive.name})


if __name__ == "__main__":
    unittest.main()
