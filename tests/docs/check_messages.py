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
ATTRIBUTES = re.compile(r'(?:\.set\(|nbMessage::get\(\s*\w+,)\s*("\w+"|k\w+)')


def literals(argument, text):
    """Texts that an argument stands for: itself, or those of the constant of that name."""
    if argument.startswith('"'):
        return [argument.strip('"')]
    definition = re.search(rf"\b{argument}\s*(?:\[\w*\])?\s*=\s*([^;]*);", text)
    return re.findall(r'"([^"]+)"', definition.group(1)) if definition else []


def sent(root):
    """Names of messages, and names of attributes, in the library's sources."""
    messages, attributes = set(), set()
    for _, text in pages.library_sources(root):
        messages.update(CALLS.findall(text))
        messages.update("R" + suffix for suffix in SUFFIXES.findall(text))
        if "nbMessage" in text:
            attributes.update(name for argument in ATTRIBUTES.findall(text) for name in literals(argument, text))
    return messages, attributes


def described(root):
    sections = pages.sections(root / "docs" / "messages.md")
    attributes = {name for body in sections.values() for name in re.findall(r"^\| `(\w+)` \|", body, flags=re.MULTILINE)}
    return set(sections), attributes


def differences(what, in_sources, on_page):
    yield from (f"{what} {name} is missing on the page" for name in sorted(in_sources - on_page))
    yield from (f"{what} {name} is on the page, but nothing sends it" for name in sorted(on_page - in_sources))


def main(arguments):
    root = pathlib.Path(arguments[0])
    in_sources, on_page = sent(root), described(root)
    found = [fault for what, left, right in zip(("message", "attribute"), in_sources, on_page)
             for fault in differences(what, left, right)]
    if not all(in_sources):
        found.append("no messages were found in the sources")
    print("\n".join(found) if found else "docs/messages.md lists what the library sends")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
