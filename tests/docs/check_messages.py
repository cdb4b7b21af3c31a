#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that docs/messages.md lists the messages and attributes of the library's sources, and no others.

    check_messages.py ROOT

A section's heading is the message's name, with "R" for the receiver that a host names; attributes are the names in the first
column of its tables. Exit status: 0 both are the same, 1 they are not.
"""

import pathlib
import re
import sys

import pages

CALLS = re.compile(r'(?:nbController::call|sendEmpty)\(\s*"([^"]+)"')
SUFFIXES = re.compile(r'"(::\w+)"')
ATTRIBUTES = re.compile(r'(?:\.set\(|nbMessage::get\(\s*\w+,|return \{(?=[^}]*QT_TRANSLATE_NOOP))\s*("\w+"|k\w+)')


def literals(argument, text):
    """Texts that an argument stands for: itself, or those of the constant of that name."""
    if argument.startswith('"'):
        return [argument.strip('"')]
    definition = re.search(rf"\b{argument}\s*(?:\[\w*\])?\s*=\s*([^;]*);", text)
    return re.findall(r'"([^"]+)"', definition.group(1)) if definition else []


def sent(root):
    """For each source of the library that sends anything: its name, the messages in it and their attributes."""
    for path, text in pages.library_sources(root):
        messages = {*CALLS.findall(text), *("R" + suffix for suffix in SUFFIXES.findall(text))}
        if messages:
            yield path.name, messages, {name for argument in ATTRIBUTES.findall(text) for name in literals(argument, text)}


def differences(root):
    described = {name: set(re.findall(r"^\| `(\w+)` \|", body, flags=re.MULTILINE))
                 for name, body in pages.sections(root / "docs" / "messages.md").items()}
    known = set()
    for source, messages, attributes in sent(root):
        known |= messages
        yield from (f"message {name} of {source} is missing on the page" for name in sorted(messages - set(described)))
        on_page = set().union(*(described.get(name, set()) for name in messages))
        yield from (f"attribute {name} of {source} is missing on the page" for name in sorted(attributes - on_page))
        yield from (f"attribute {name} is on the page, but {source} does not send it" for name in sorted(on_page - attributes))
    yield from (f"message {name} is on the page, but nothing sends it" for name in sorted(set(described) - known))


def main(arguments):
    found = list(differences(pathlib.Path(arguments[0])))
    print("\n".join(found) if found else "docs/messages.md lists what the library sends")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
