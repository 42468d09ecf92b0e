"""What the shells offer on a command line of the console, held against what the console itself says of its usage."""

import os
import re
import subprocess
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
FOLDER = ROOT / "packaging/linux/completions"
CONSOLE = Path(os.environ["OSTRELUM_CONSOLE"])

# The function of a bash completion is called as bash calls it.
BASH = r"""
source "$1/ostrelum-console.bash"
eval "COMP_WORDS=($3)"
COMP_WORDS[${#COMP_WORDS[@]}]=$4 COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
compopt() { echo "<$*>"; }
_ostrelum_console "$2"
printf '%s\n' "${COMPREPLY[@]}"
"""
# zsh completes in its line editor alone: one that runs in a terminal of its own, and tells what it would add.
ZSH = r"""
zmodload zsh/zpty
zpty shell zsh -f -i
zpty -w shell "PS1=; fpath=($1 \$fpath); path=(${2:h} \$path); autoload -Uz compinit && compinit -u -D"
zpty -w shell 'compadd() {
    if [[ ${argv[1,(i)(-|--)]} == *-(O|A|D)\ * ]]; then builtin compadd "$@"; return; fi
    local -a hits; builtin compadd -A hits "$@"; print -rn -- "{"${(j:|:)hits}"}"; builtin compadd "$@"
}'
zpty -w shell 'show() { zle complete-word; print -r "E""ND" }; zle -N show; bindkey "^X" show; print -r "READ""Y"'
zpty -r shell told '*READY*'
zpty -n -w shell "ostrelum-console $3$4"$'\x18'
zpty -r shell told '*END*'
print -r -- $told
"""


def in_bash(before, word):
    told = subprocess.run(["bash", "-c", BASH, "-", FOLDER, CONSOLE, f"ostrelum-console {before}", word],
                          capture_output=True, text=True, check=True, timeout=30)
    return set(filter(None, told.stdout.splitlines()))


def in_zsh(before, word):
    told = subprocess.run(["zsh", "-f", "-c", ZSH, "-", FOLDER, CONSOLE, before, word], capture_output=True, text=True,
                          check=True, timeout=60)
    return {each for group in re.findall(r"\{(.*?)\}", told.stdout) for each in group.split("|") if each}


def in_fish(before, word):
    line = f"ostrelum-console {before}{word}".replace("\\", "\\\\").replace("'", "\\'")
    command = f"set PATH {CONSOLE.parent} $PATH; source {FOLDER}/ostrelum-console.fish; complete -C '{line}'"
    told = subprocess.run(["fish", "--no-config", "-c", command], capture_output=True, text=True, check=True, timeout=30)
    return {line.split("\t")[0] for line in told.stdout.splitlines()}


SHELLS = {"bash": in_bash, "zsh": in_zsh, "fish": in_fish}


def usage():
    return subprocess.run([CONSOLE], capture_output=True, text=True, check=False).stderr


class ShellsTest(unittest.TestCase):
    def each_offers(self, before, word, expected):
        for shell, offered in SHELLS.items():
            with self.subTest(shell=shell, line=before + word):
                # Of a query's text some shells tell the whole, others the last word.
                self.assertEqual({each.split(" ")[-1] for each in offered(before, word)}, expected)

    def test_commands_and_options_are_those_of_the_usage(self):
        commands, options = usage().split("Options:")
        commands = set(re.findall(r"^  (\w+)", commands, re.M)) - {"Usage"}
        options = set(re.findall(r"^  (--\w+)", options, re.M))
        self.assertTrue(commands and options)
        self.each_offers("--mask --language Dutch ", "r", {each for each in commands if each.startswith("r")})
        self.each_offers("", "--", options)
        for shell, offered in SHELLS.items():
            self.assertLessEqual(commands, offered("", ""), shell)

    def test_arguments_are_what_the_console_takes(self):
        pages = {"all", *map(str, range(1, 14))}
        for before, word, expected in (("--language ", "", {"English", "Spanish", "Dutch"}),
                                       ("page ", "", pages),
                                       ("--sysroot /tmp --mask page ", "a", {"all"}),
                                       ("report ", "", {"text", "html", "rtf", "bbcode"}),
                                       ("report rtf ", "--o", {"--output"})):
            self.each_offers(before, word, expected)

    def test_a_query_goes_on_with_the_classes_that_the_console_knows(self):
        classes = subprocess.run([CONSOLE, "classes"], capture_output=True, text=True, check=True).stdout
        expected = set(re.findall(r"^Win32_P\w+", classes, re.M))
        self.assertGreater(len(expected), 2)
        self.each_offers("query ", '"Select * from win32_p', expected)


if __name__ == "__main__":
    unittest.main()
