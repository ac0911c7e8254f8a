"""bash, zsh and fish offer at the tab key what the program names."""

import argparse
import os
import pty
import re
import select
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

WANTED = [
    # What is typed, and what must and must not be offered.
    ("kelpower two-m", ["two-means"], ["anova"]),
    ("kelpower pairwise --adjust ", ["bonferroni", "sidak", "none"], ["--adjust"]),
    ("kelpower two-means --effect-d 0.5 --me", [], ["--means"]),
    ("kelpower two-means --n 20 --effect-", ["--effect-d", "--effect-sd"], ["--means"]),
    ("kelpower run des", ["designs.csv"], ["two-means"]),
]
AFTER_EQUALS = "kelpower pairwise --adjust=s"


def run(*command: str, **options) -> str:
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)
    if done.returncode:
        sys.exit(f"{' '.join(command)} failed:\n{done.stdout}")
    return done.stdout


def in_bash(scripts: Path, line: str) -> list[str]:
    """The words as bash hands them to the function: it separates the sign of equality."""
    words = [word for word in re.split(r"\s|(=)", line) if word]
    if line.endswith((" ", "=")):
        words.append("")
    words_of_bash = " ".join(f"'{word}'" for word in words)
    return run("bash", "-u", "-c", f"""
source {scripts}/kelpower.bash
complete -p kelpower >/dev/null
COMP_WORDS=({words_of_bash})
COMP_CWORD=$((${{#COMP_WORDS[@]}} - 1))
_kelpower
printf '%s\\n' "${{COMPREPLY[@]}}"
""").split()


def in_fish(scripts: Path, line: str) -> list[str]:
    shown = run("fish", "--no-config", "-c", f"source {scripts}/kelpower.fish; complete -C '{line}'")
    return [candidate.split("\t")[0] for candidate in shown.splitlines()]


def screen(terminal: int, quiet: float, limit: float) -> str:
    """What comes from the terminal until it has been quiet for a while."""
    text = b""
    end = time.monotonic() + limit
    while time.monotonic() < end and select.select([terminal], [], [], quiet)[0]:
        try:
            text += os.read(terminal, 65536)
        except OSError:
            break
    return text.decode(errors="replace")


def wait_for(terminal: int, mark: str, limit: float) -> str:
    text = ""
    end = time.monotonic() + limit
    while mark not in text and time.monotonic() < end:
        text += screen(terminal, 0.2, 1)
    if mark not in text:
        sys.exit(f"zsh did not answer in {limit} seconds:\n{text}")
    return text


def in_zsh(scripts: Path, line: str) -> list[str]:
    """zsh completes in a terminal only: the key ^D lists what may come next."""
    child, terminal = pty.fork()
    if child == 0:
        os.environ.update(TERM="dumb", PS1="ready> ", COLUMNS="200", LINES="60")
        os.execvp("zsh", ["zsh", "-f", "-i"])
    wait_for(terminal, "ready> ", 30)
    os.write(terminal, f"fpath=({scripts} $fpath); autoload -Uz compinit; compinit -u -D; unsetopt zle_bracketed_paste; "
                       f"bindkey '^D' list-choices; LISTMAX=1000; PS1='done''> '\n".encode())
    wait_for(terminal, "done> ", 60)
    os.write(terminal, line.encode() + b"\x04")
    # The candidates, or a bell where there are none.
    end = time.monotonic() + 30
    text = screen(terminal, 0.3, 5)
    while len(text.splitlines()) < 2 and "\a" not in text and time.monotonic() < end:
        text += screen(terminal, 0.3, 5)
    os.write(terminal, b"\x15exit\n")
    os.close(terminal)
    os.waitpid(child, 0)
    plain = re.sub(r"\x1b\[[0-9;?]*[a-zA-Z]", "", text)
    return plain.replace(line.strip(), " ").split()


def check(shell: str, offers, scripts: Path) -> list[str]:
    faults = []
    for line, wanted, unwanted in WANTED:
        offered = offers(scripts, line)
        faults += [f"{shell} does not offer {word} after \"{line}\": {offered}" for word in wanted if word not in offered]
        faults += [f"{shell} offers {word} after \"{line}\"" for word in unwanted if word in offered]
    return faults


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program", type=Path)
    parser.add_argument("scripts", type=Path)
    options = parser.parse_args()
    for shell in ("bash", "zsh", "fish"):
        if not shutil.which(shell):
            sys.exit(f"{shell} is missing: sh tools/install_packages.sh shells")
    with tempfile.TemporaryDirectory() as folder:
        (Path(folder) / "designs.csv").touch()
        os.chdir(folder)
        os.environ.update(PATH=f"{options.program.parent}:{os.environ['PATH']}", HOME=folder)
        faults = check("bash", in_bash, options.scripts) + check("fish", in_fish, options.scripts)
        faults += check("zsh", in_zsh, options.scripts)
        if in_bash(options.scripts, AFTER_EQUALS) != ["sidak"]:
            faults.append("bash does not complete what comes after an equals sign")
        if "--adjust=sidak" not in in_fish(options.scripts, AFTER_EQUALS):
            faults.append("fish does not complete what comes after an equals sign")
    if faults:
        sys.exit("\n".join(faults))
    print("bash, fish and zsh complete as the program says")


if __name__ == "__main__":
    main()
