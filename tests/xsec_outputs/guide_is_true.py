"""The commands in docs/xsec.md give what the page shows. A block marked `console` holds commands behind "$ " and what they
print; all of them are run one after the other in a folder of their own, beside the samples.

usage: guide_is_true.py XSEC SAMPLES FOLDER [write]    (write: puts what was printed into the page)
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys

from outputs import arguments, finish

BLOCK = re.compile(r"^```console\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def printed(block, folder, environment):
    """The block with what its commands print now."""
    lines = []
    for command in [line[2:] for line in block.splitlines() if line.startswith("$ ")]:
        done = subprocess.run(["bash", "-c", command], capture_output=False, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, cwd=folder, env=environment, check=False)
        lines.append(f"$ {command}\n{done.stdout}")
    return "".join(lines)


def main():
    write = sys.argv[-1] == "write"
    if write:
        sys.argv.pop()
    xsec, samples, folder = arguments(["XSEC", "SAMPLES", "FOLDER"])
    page = pathlib.Path(samples).parent / "docs/xsec.md"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    (folder / "samples").symlink_to(samples)
    environment = dict(os.environ, PATH=f"{xsec.parent}:{os.environ['PATH']}", LC_ALL="C.UTF-8")
    faults, checked, parts, end = [], 0, [], 0
    text = page.read_text(encoding="utf-8")
    for match in BLOCK.finditer(text):
        now = printed(match.group(1), folder, environment)
        checked += 1
        if now != match.group(1):
            faults.append(f"the page says\n{match.group(1)}but xsec says\n{now}")
        parts += [text[end:match.start(1)], now]
        end = match.end(1)
    if write:
        page.write_text("".join(parts) + text[end:], encoding="utf-8")
        faults = []
    finish(faults, checked)


main()
