#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that every text of the sources is translated, and that nothing else is.

    check_translations.py ROOT

Brings copies of the files of translations up to date with the sources and compares. Prints one line per text that is missing,
vanished, not translated, or whose translation has other placeholders. Exit status: 0 all is well, 1 it is not.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

# %1, %L1, %n, %Ln, %p (of a progress bar), and the parenthesis that a list of values closes.
PLACEHOLDER = re.compile(r"%L?(?:\d|n)|%p|\*\.\w+|;;|\($")
FORMS = {"de": 2, "en": 2, "fr": 2, "zh_CN": 1}


def messages(path):
    """(context, source, comment) -> element of the message."""
    found = {}
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            found[(context.findtext("name"), message.findtext("source"), message.findtext("comment"))] = message
    return found


def forms(message):
    translation = message.find("translation")
    if message.get("numerus") == "yes":
        return [form.text or "" for form in translation.iter("numerusform")]
    return [translation.text or ""]


def placeholders(text):
    return sorted(PLACEHOLDER.findall(text))


def faults_of(language, kept, present):
    for key in present.keys() - kept.keys():
        yield f"missing (./nb translate adds it): {key}"
    for key in kept.keys() - present.keys():
        yield f"vanished (./nb translate removes it): {key}"
    for key, message in kept.items():
        texts = forms(message)
        if message.find("translation").get("type") is not None or not all(text.strip() for text in texts):
            yield f"not translated: {key}"
        elif message.get("numerus") == "yes" and len(texts) != FORMS[language]:
            yield f"{len(texts)} forms instead of {FORMS[language]}: {key}"
        else:
            for text in texts:
                if placeholders(text) != placeholders(key[1]):
                    yield f"other placeholders in \"{text}\": {key}"
                if ("&" in text) != ("&" in key[1]):
                    yield f"mnemonic in one of them only, \"{text}\": {key}"


def main():
    folder = pathlib.Path(sys.argv[1]) / "viewer" / "translations"
    faults = 0
    with tempfile.TemporaryDirectory() as scratch:
        for language in FORMS:
            shutil.copy(folder / f"nbviewer_{language}.ts", scratch)
        subprocess.run([folder / "update.sh", scratch], check=True, stderr=subprocess.DEVNULL)
        for language in FORMS:
            name = f"nbviewer_{language}.ts"
            for fault in faults_of(language, messages(folder / name), messages(pathlib.Path(scratch) / name)):
                print(f"{name}: {fault}")
                faults += 1
    sys.exit(1 if faults else 0)


main()
