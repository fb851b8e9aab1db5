"""The man page names every command and every long option that the help of a command has; bash, and zsh where there is
one, complete them.

usage: manual_is_complete.py XSEC SAMPLES FOLDER
"""

import os
import pathlib
import re
import shutil
import subprocess

from outputs import arguments, finish


def help_of(xsec, *command):
    return subprocess.run([xsec, *command, "--help"], capture_output=True, text=True, check=True).stdout


def bash_program(folder, words):
    return (f'source "{folder}/xsec.bash"; COMP_WORDS=({words}); COMP_CWORD=$((${{#COMP_WORDS[@]}} - 1)); _xsec; '
            'printf "%s\\n" "${COMPREPLY[@]}"')


def zsh_program(folder, words):
    """The completion as its system would call it, but for what it is given and where its offers go."""
    return f'words=({words}); CURRENT=$#words; compadd() {{ print -l -- "$@" }}; _files() {{ }}; source "{folder}/_xsec"'


SHELLS = {"bash": bash_program, "zsh": zsh_program}


def completions(xsec, shell, folder, *words):
    """What the shell offers for the last word."""
    program = SHELLS[shell](folder, " ".join(f"'{word}'" for word in words))
    environment = dict(os.environ, PATH=f"{xsec.parent}:{os.environ['PATH']}")
    done = subprocess.run([shell, "-c", program], capture_output=True, text=True, check=True, env=environment)
    return done.stdout.split()


def main():
    xsec, samples, _ = arguments(["XSEC", "SAMPLES", "FOLDER"])
    folder = pathlib.Path(samples).parent / "xsec"
    manual = (folder / "man/xsec.1").read_text(encoding="utf-8").replace("\\-", "-")
    shells = [shell for shell in SHELLS if shutil.which(shell)]
    commands = re.findall(r"^  ([a-z]+) +\S", help_of(xsec).split("Subcommands:")[1].split("\n\n")[0], re.MULTILINE)
    faults, checked = [], 0
    print("completion is tried in " + ", ".join(shells))
    offered = {shell: completions(xsec, shell, folder / "completion", "xsec", "") for shell in shells}
    for command in commands:
        checked += 1
        if not re.search(rf"^\.B {command}$", manual, re.MULTILINE):
            faults.append(f"the man page has no command {command}")
        faults += [f"{shell} does not offer {command}" for shell in shells if command not in offered[shell]]
        options = sorted(set(re.findall(r"^  (?:-\w,)?(--[a-z-]+)", help_of(xsec, command), re.MULTILINE)) - {"--help"})
        of_command = {shell: completions(xsec, shell, folder / "completion", "xsec", command, "--") for shell in shells}
        for option in options:
            checked += 1
            if option not in manual:
                faults.append(f"the man page has no {option} of {command}")
            faults += [f"{shell} does not offer {option} of {command}"
                       for shell in shells if option not in of_command[shell]]
    finish(faults, checked)


main()
