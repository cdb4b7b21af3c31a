#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes a source of the programs that the manual's pages show.

    make_snippets.py OUTPUT PAGE ...

Each block of C++ becomes a function of its own that is given what docs/README.md says: view, manager, node, material, image.
"""

import pathlib
import re
import sys

BLOCK = re.compile(r"^```cpp\n(.*?)^```$", re.DOTALL | re.MULTILINE)
PREAMBLE = """// Made by make_snippets.py
#include "DocSnippets.h"

{includes}

namespace {{

using namespace nbec::interaction;
using namespace nbec::manipulator;

{functions}
}}  // namespace

const std::vector<DocSnippet>& docSnippets()
{{
    static const std::vector<DocSnippet> snippets = {{
{rows}
    }};
    return snippets;
}}
"""
FUNCTION = """void {name}([[maybe_unused]] nbOSGWidget& view, [[maybe_unused]] InteractionManager& manager,
    [[maybe_unused]] const osg::NodePtr& node, [[maybe_unused]] const osg::UberMaterialPtr& material,
    [[maybe_unused]] const osg::ImagePtr& image)
{{
{body}}}
"""


def main(arguments):
    includes, functions, rows = set(), [], []
    for page in map(pathlib.Path, arguments[1:]):
        for number, block in enumerate(BLOCK.findall(page.read_text(encoding="utf-8")), 1):
            lines = block.splitlines(keepends=True)
            includes.update(line.strip() for line in lines if line.startswith("#include"))
            name = f"{page.stem.replace('-', '_')}_{number}"
            body = "".join(line for line in lines if not line.startswith("#include"))
            functions.append(FUNCTION.format(name=name, body=body))
            rows.append(f'        {{ "{name}", &{name} }},')
    pathlib.Path(arguments[0]).write_text(
        PREAMBLE.format(includes="\n".join(sorted(includes)), functions="\n".join(functions), rows="\n".join(rows)),
        encoding="utf-8")
    return 0 if rows else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
