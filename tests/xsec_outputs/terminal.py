"""What xsec shows on a terminal: what it is doing, wiped away before anything else is said, and warnings in colour; no
colour when NO_COLOR is set, nothing of either on a terminal that understands no control sequences or in a file.

usage: terminal.py XSEC SAMPLES FOLDER
"""

import os
import pty
import subprocess
import threading

from outputs import arguments, finish

WIPE = "\r\x1b[K"
END = b"\x00end"
YELLOW = "\x1b[33m"
COPIES = "regions", "--copies", "10"  # ten copies of an eighth overlap, which is warned of


def errors_on_terminal(xsec, drawing, *further, **variables):
    """What standard error gets when it is a terminal."""
    ours, its = pty.openpty()
    environment = {name: value for name, value in os.environ.items() if name != "NO_COLOR"}
    environment.update({"TERM": "xterm", **variables})
    command, *options = COPIES
    with subprocess.Popen([xsec, command, drawing, *options, *further], stdout=subprocess.DEVNULL, stderr=its,
                          env=environment) as child:
        # The last side to close may take with it what has not been read yet: this one stays open and tells the end.
        def tell_end():
            child.wait()
            os.write(its, END)
        teller = threading.Thread(target=tell_end)
        teller.start()
        text = b""
        while not text.endswith(END):
            text += os.read(ours, 65536)
        teller.join()
    os.close(its)
    os.close(ours)
    return text.removesuffix(END).decode()


def after_wiping(text):
    """What is left to see: everything but what stood on a line that was wiped."""
    lines = [line.rsplit(WIPE, 1)[-1] for line in text.replace("\r\n", "\n").split("\n")]
    return "\n".join(lines)


def main():
    xsec, samples, _ = arguments(["XSEC", "SAMPLES", "FOLDER"])
    drawing = samples / "rotor_pole.dxf"
    plain = subprocess.run([xsec, COPIES[0], drawing, *COPIES[1:]], capture_output=True, text=True, check=True).stderr
    shown = errors_on_terminal(xsec, drawing)
    colourless = errors_on_terminal(xsec, drawing, NO_COLOR="1")
    dumb = errors_on_terminal(xsec, drawing, TERM="dumb")
    checks = {
        "a terminal is told what goes on": f"{WIPE}reading {drawing} ..." in shown and "finding regions among" in shown,
        "what goes on is wiped before the rest": " ..." not in after_wiping(shown),
        "a process apart shows the same": errors_on_terminal(xsec, drawing, "--isolate") == shown,
        "a warning is coloured": f"xsec: {YELLOW}warning: the drawing spans" in shown,
        "without colour the text is the same": after_wiping(colourless) == plain,
        "NO_COLOR is heeded": YELLOW not in colourless and WIPE in colourless,
        "an empty NO_COLOR counts for nothing": YELLOW in errors_on_terminal(xsec, drawing, NO_COLOR=""),
        "a dumb terminal gets neither": dumb.replace("\r\n", "\n") == plain,
        "a file gets neither": "\x1b" not in plain and "warning: the drawing spans" in plain,
    }
    finish([f"not so: {claim}" for claim, holds in checks.items() if not holds], len(checks))


main()
