"""The man page names every command and every long option that the help of a command has, and bash completes them.

usage: manual_is_complete.py XSEC SAMPLES FOLDER
"""

import os
import pathlib
import re
import subprocess

from outputs import arguments, finish


def help_of(xsec, *command):
    return subprocess.run([xsec, *command, "--help"], capture_output=True, text=True, check=True).stdout


def completions(xsec, script, *words):
    """What bash offers for the last word."""
    line = " ".join(f"'{word}'" for word in words)
    program = f'source "{script}"; COMP_WORDS=({line}); COMP_CWORD={len(words) - 1}; _xsec; printf "%s\\n" "${{COMPREPLY[@]}}"'
    environment = dict(os.environ, PATH=f"{xsec.parent}:{os.environ['PATH']}")
    done = subprocess.run(["bash", "-c", program], capture_output=True, text=True, check=True, env=environment)
    return done.stdout.split()


def main():
    xsec, samples, _ = arguments(["XSEC", "SAMPLES", "FOLDER"])
    folder = pathlib.Path(samples).parent / "xsec"
    manual = (folder / "man/xsec.1").read_text(encoding="utf-8").replace("\\-", "-")
    script = folder / "completion/xsec.bash"
    commands = re.findall(r"^  ([a-z]+) +\S", help_of(xsec).split("Subcommands:")[1].split("\n\n")[0], re.MULTILINE)
    faults, checked = [], 0
    offered = completions(xsec, script, "xsec", "")
    for command in commands:
        checked += 1
        if not re.search(rf"^\.B {command}$", manual, re.MULTILINE):
            faults.append(f"the man page has no command {command}")
        if command not in offered:
            faults.append(f"bash does not offer {command}")
        options = sorted(set(re.findall(r"^  (?:-\w,)?(--[a-z-]+)", help_of(xsec, command), re.MULTILINE)) - {"--help"})
        of_command = completions(xsec, script, "xsec", command, "--")
        for option in options:
            checked += 1
            if option not in manual:
                faults.append(f"the man page has no {option} of {command}")
            if option not in of_command:
                faults.append(f"bash does not offer {option} of {command}")
    finish(faults, checked)


main()
