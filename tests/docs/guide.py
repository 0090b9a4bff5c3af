# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails when the guide does not fit the program: a link that leads nowhere, an example of a formula with
another value, a function, setting, unit, command or control that is missing or does not exist, a message
that nobody shows, or one that is not explained.
"""

import json
import re
import subprocess
import sys
import tempfile
from html.parser import HTMLParser
from pathlib import Path

from console_commands import known_commands

TEXT = r'"((?:\\.|[^"\\\n])*)"'
# What shows its text arguments to the user.
SHOWS = r"\b(?:Message|LastMessage|ShowFileTrouble|ShowDone|Hint|Complain|Complaint|Fail|FailAt|Wrong)\("
ELEMENTS_WITHOUT_END = {"meta", "link", "br", "path", "rect", "circle"}
READINGS = "let X1W 0.01\nlet X1dB 10\nlet X2W 0.0004\nlet X2dB -4\n"


class Page(HTMLParser):
    """Where a page leads to, its anchors, and by section the rows of its tables and what is in code."""

    def __init__(self, text):
        super().__init__()
        self.links, self.anchors, self.order, self.faults = [], [], {}, []
        self.rows, self.code = {}, {}
        self.open, self.section = [], ""
        self.feed(text)
        self.close()
        self.faults += [f"<{tag}> is not closed" for tag in self.open]

    def handle_starttag(self, tag, attrs):
        given = dict(attrs)
        for name in ("href", "src"):
            if name in given:
                self.links.append(given[name])
        if "rel" in given and tag == "a":
            self.order[given["rel"]] = given["href"]
        if "id" in given:
            self.anchors.append(given["id"])
        if tag == "section":
            self.section = given["id"]
        if tag == "tr":
            self.rows.setdefault(self.section, []).append([])
        if tag in ("td", "th"):
            self.rows[self.section][-1].append([])
        if tag not in ELEMENTS_WITHOUT_END:
            self.open.append(tag)

    def handle_endtag(self, tag):
        if tag not in ELEMENTS_WITHOUT_END and (not self.open or self.open.pop() != tag):
            self.faults.append(f"</{tag}> closes nothing")

    def handle_data(self, data):
        if "code" in self.open:
            self.code.setdefault(self.section, []).append(data)
        if "td" in self.open:
            self.rows[self.section][-1][-1].append((self.open[-1], data))

    def first_codes(self, section):
        """What is in code in the first column of a section's tables."""
        return [text for row in self.rows[section] for tag, text in row[0] if tag == "code"]


def links(pages, folder):
    for name, page in pages.items():
        yield from page.faults
        if len(set(page.anchors)) != len(page.anchors):
            yield f"{name}: an anchor is there twice"
        for link in page.links:
            file, _, anchor = link.partition("#")
            if not (folder / (file or name)).is_file():
                yield f"{name}: there is no {link}"
            elif anchor and anchor not in pages[file or name].anchors:
                yield f"{name}: there is no place {link}"
    missing = set(pages) - {"index.html", *pages["index.html"].links}
    yield from (f"{name} is not in the contents" for name in sorted(missing))
    name, left = "index.html", set(pages)
    while name in left:
        left.remove(name)
        before, name = name, pages[name].order.get("next")
        if name and pages[name].order.get("prev") != before:
            yield f"{name}: {before} is not the page before"
    yield from (f"{name} follows on no page" for name in sorted(left))


def differ(what, on_page, known):
    yield from (f"{what}: {name} is missing" for name in sorted(known - on_page))
    yield from (f"{what}: there is no {name}" for name in sorted(on_page - known))


def formulas(page, source, console):
    table = (source / "parser/function_table.cpp").read_text(encoding="utf-8")
    rows = re.findall(r"\b(?:Operator|Postfix|One|Two)\(\s*\d+, " + TEXT, table)
    names = {unescaped(name) for name in rows}
    literals = (source / "parser/literals.cpp").read_text(encoding="utf-8")
    units = set(re.findall(r"\{" + TEXT + r", +[\d.e-]+\}", literals)) | set(re.findall(r"\{'(\w)', ", literals))
    constants = set(re.findall(r"EqualNoCase\(token, " + TEXT, literals))
    of_names = [section for section, rows in page.rows.items() if len(rows[0]) == 4]
    yield from differ("formulas", {name for section in of_names for name in page.first_codes(section)}, names)
    yield from (f"formulas: {word} is missing" for word in sorted((units | constants) - set(page.code["values"])))
    examples = [row[-3:-1] for rows in page.rows.values() for row in rows[1:]]
    examples = [(formula[0][1], value[0][1]) for formula, value in examples]
    with tempfile.TemporaryDirectory() as empty:
        script = READINGS + "".join(f"eval {formula}\n" for formula, _ in examples)
        done = subprocess.run([console, "--data-dir", empty, "--driver-dir", empty, "-"], input=script, text=True,
                              capture_output=True, check=True, timeout=60)
    for (formula, shown), line in zip(examples, done.stdout.splitlines(), strict=True):
        result = json.loads(line)
        right = shown == "random" or f"{result['value']:.6g}" == shown
        if result["error_eval"] or not right:
            yield f"formulas: {formula} is {result['value']:.6g} {result['error_eval']}, not {shown}"


def names_of_settings(page, source):
    fields = (source / "sensors/settings_fields.cpp").read_text(encoding="utf-8")
    keys = set(re.findall(r'\{"\w+", +"_[A-Z]+", "(\w+)"', fields))
    yield from differ("files", {code.split("=")[0] for code in page.code["format"] if "=" in code}, keys)


def scripts(page, source):
    commands = known_commands((source / "console/command_table.cpp").read_text(encoding="utf-8"))
    yield from differ("scripts", {code.split()[0] for code in page.first_codes("commands")}, commands)
    forms = "".join(file.read_text(encoding="utf-8") for file in (source / "forms").rglob("*.h"))
    names = set(re.findall(TEXT, forms))
    yield from (f"scripts: there is no {name}" for name in page.code["controls"] if name not in names)


def unescaped(text):
    return re.sub(r"\\(.)", lambda m: {"n": "\n", "r": "\n"}.get(m[1], m[1]), text)


def arguments(code):
    """The calls of what shows texts: their arguments up to the closing bracket."""
    for call in re.finditer(SHOWS, code):
        end, depth = call.end(), 1
        while depth > 0:
            depth += {"(": 1, ")": -1}.get(code[end], 0)
            end += 1
        yield code[call.end():end]


def messages(page, source):
    code = "\n".join(file.read_text(encoding="utf-8") for file in sorted(source.rglob("*.[ch]*"))
                     if file.suffix in (".h", ".cpp"))
    code = re.sub(r"^\s*//.*$|'\"'", "", code, flags=re.MULTILINE)
    code = re.sub(r'"\s*\n\s*"', "", code)
    texts = {unescaped(text) for text in re.findall(TEXT, code)}
    explained = [message for section in page.rows for message in page.first_codes(section)]
    for message in explained:
        for part in (part.strip() for part in message.split("…")):
            if len(part) > 1 and not any(part in text for text in texts):
                yield f"trouble: nobody shows '{part}'"
    whole = " ".join(explained)
    for call in arguments(code):
        for text in re.findall(TEXT, call):
            for part in (part.strip(" .:") for part in unescaped(text).split("\n")):
                if " " in part and part not in whole:
                    yield f"trouble: '{part}' is not explained"


def main(folder, source, console):
    folder, source = Path(folder), Path(source)
    pages = {file.name: Page(file.read_text(encoding="utf-8")) for file in sorted(folder.glob("*.html"))}
    wrong = [*links(pages, folder), *formulas(pages["formulas.html"], source, console),
             *names_of_settings(pages["files.html"], source), *scripts(pages["scripts.html"], source),
             *messages(pages["trouble.html"], source)]
    print("\n".join(wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
