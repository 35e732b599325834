#!/usr/bin/env python3
"""Manual pages and shell completion made from what the programs' own --help prints.

from_help.py OUT VERSION PROGRAM...: writes OUT/man/NAME.1.gz, OUT/bash/NAME, OUT/zsh/_NAME and OUT/fish/NAME.fish.
"""
import gzip
import os
import re
import subprocess
import sys
from pathlib import Path


class Help:
    """What one --help tells: summary, usage lines, sections of (name, text) and of them the options."""

    def __init__(self, command):
        text = subprocess.run(command + ["--help"], check=True, capture_output=True, text=True,
                              env=os.environ | {"QT_QPA_PLATFORM": "offscreen"}).stdout
        self.sections = {}
        before, section = [], None
        for line in text.splitlines():
            if re.fullmatch(r"[A-Z]\w*:", line):
                section = self.sections.setdefault(line[:-1], [])
            elif section is None:
                before.append(line.strip())
            elif match := re.fullmatch(r"  (\S.*?)(?:\s{2,}(\S.*))?", line):
                section.append([match[1], match[2] or ""])
            elif line.strip() and section:
                section[-1][1] = (section[-1][1] + " " + line.strip()).strip()
        lines = [line for line in before if line]
        start = next((i for i, line in enumerate(lines) if line.startswith("Usage:")), len(lines))
        self.summary = " ".join(lines[:start])
        self.usage = [line.removeprefix("Usage:").strip() for line in lines[start:]]

    def commands(self):
        return self.sections.get("Subcommands", [])

    def options(self):
        """(short and long names, whether a value follows, text)."""
        for left, text in self.sections.get("Options", []):
            names, _, rest = left.partition(" ")
            rest = re.sub(r"(Excludes|Needs):.*", "", rest)
            yield names.split(","), bool(rest.strip()), text


def roff(text):
    text = text.replace("\\", "\\e").replace("-", "\\-")
    text = re.sub(r",(?=\w)", r",\\:", text)
    return "\\&" + text if text[:1] in (".", "'") else text


def entries(rows):
    return "".join(f".TP\n.B {roff(left)}\n{roff(text) or chr(92) + '&'}\n" for left, text in rows)


def manual(name, version, top, parts):
    summary = top.summary.rstrip(".")
    page = f'.TH {name.upper()} 1 "" "Corvanta {version}" "Corvanta Form Editor"\n.ad l\n.SH NAME\n{name} \\- '
    page += roff(summary[0].lower() + summary[1:]) + "\n.SH SYNOPSIS\n"
    page += "\n.br\n".join(".B " + roff(line) for line in top.usage)
    page += f"\n.SH DESCRIPTION\n{roff(top.summary)}\n"
    for title, rows in top.sections.items():
        if title != "Subcommands":
            page += f".SH {title.upper()}\n{entries(rows)}"
    if parts:
        page += ".SH COMMANDS\n"
    for command, help_ in parts.items():
        page += f".SS {roff(name + ' ' + command)}\n{roff(help_.summary)}\n"
        page += ".PP\n" + "\n.br\n".join(".B " + roff(line) for line in help_.usage) + "\n"
        page += "".join(entries(rows) for title, rows in help_.sections.items() if title != "Subcommands")
    return page


def words(help_):
    return [name for names, _, _ in help_.options() for name in names]


def bash(name, top, parts):
    cases = "".join(f"    {command}) words='{' '.join(words(help_))}' ;;\n" for command, help_ in parts.items())
    first = " ".join(list(parts) + words(top))
    return f"""# Completion of {name} for bash.
_{name}() {{
  local words='{first}' current=${{COMP_WORDS[COMP_CWORD]}}
  if [ "$COMP_CWORD" -gt 1 ]; then case ${{COMP_WORDS[1]}} in
{cases}    *) words='{' '.join(words(top))}' ;;
  esac; fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  [ ${{#COMPREPLY[@]}} -gt 0 ] || mapfile -t COMPREPLY < <(compgen -f -- "$current")
}}
complete -o filenames -F _{name} {name}
"""


def quoted(text):
    return "'" + text.replace("'", "'\\''") + "'"


def zsh_arguments(help_):
    specs = [f"{name}[{re.sub('[][:]', ' ', text)}]" + (":value:_files" if value else "")
             for names, value, text in help_.options() for name in names]
    return "_arguments " + " ".join(quoted(spec) for spec in specs + ["*:file:_files"])


def zsh(name, top, parts):
    text = f"#compdef {name}\n# Completion of {name} for zsh.\n"
    if not parts:
        return text + zsh_arguments(top) + "\n"
    described = " ".join(quoted(f"{command}:{help_.summary}") for command, help_ in parts.items())
    text += f"if (( CURRENT == 2 )); then\n  local -a commands=({described})\n"
    text += f"  _describe command commands\n  {zsh_arguments(top)}\n  return\nfi\ncase $words[2] in\n"
    text += "".join(f"  {command}) {zsh_arguments(help_)} ;;\n" for command, help_ in parts.items())
    return text + f"  *) {zsh_arguments(top)} ;;\nesac\n"


def fish(name, top, parts):
    def lines(help_, condition):
        for names, value, text in help_.options():
            flags = " ".join(("-l " if n.startswith("--") else "-s ") + n.lstrip("-") for n in names)
            yield f"complete -c {name} {condition}{flags}{' -r' if value else ''} -d {quoted(text)}\n"
    result = f"# Completion of {name} for fish.\n" + "".join(lines(top, ""))
    for command, help_ in parts.items():
        result += f"complete -c {name} -n __fish_use_subcommand -a {command} -d {quoted(help_.summary)}\n"
        result += "".join(lines(help_, f"-n '__fish_seen_subcommand_from {command}' "))
    return result


def main():
    out, version = Path(sys.argv[1]), sys.argv[2]
    for folder in ("man", "bash", "zsh", "fish"):
        (out / folder).mkdir(parents=True, exist_ok=True)
    for program in sys.argv[3:]:
        name, top = Path(program).name, Help([program])
        parts = {command: Help([program, command]) for command, _ in top.commands()}
        page = manual(name, version, top, parts).encode()
        (out / "man" / f"{name}.1.gz").write_bytes(gzip.compress(page, 9, mtime=0))
        (out / "bash" / name).write_text(bash(name, top, parts))
        (out / "zsh" / f"_{name}").write_text(zsh(name, top, parts))
        (out / "fish" / f"{name}.fish").write_text(fish(name, top, parts))


main()
