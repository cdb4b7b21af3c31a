#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings the texts to translate up to date with the sources. usage: update.sh [FOLDER]
# FOLDER: where the .ts files lie, if not beside this script.
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
folder="$(cd "${1:-$here}" && pwd)"
lupdate="$(command -v lupdate || printf '%s' /usr/lib/qt5/bin/lupdate)"

cd "$here/../.."
# Without the include folder the namespaces of classes are not found, and contexts would lack them.
update() {
    "$lupdate" -silent -locations none -no-obsolete -extensions cpp,h -I . "$@"
}

sources=(manipulator modules platform viewer)
# English has only what is counted.
update -pluralonly "${sources[@]}" -ts "$folder/nbviewer_en.ts"
update "${sources[@]}" -ts "$folder"/nbviewer_{de,fr,zh_CN}.ts
