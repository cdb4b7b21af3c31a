#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings the texts to translate up to date with the sources. usage: update.sh [FOLDER]
# With a folder, copies of the files there are brought up to date instead of the files themselves.
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
folder="$(cd "${1:-$here}" && pwd)"
lupdate="$(command -v lupdate || printf '%s' /usr/lib/qt5/bin/lupdate)"

cd "$here/../.."
# Without the include folder the namespaces of classes are not found, and contexts would lack them.
update() {
    "$lupdate" -silent -locations none -no-obsolete -extensions cpp,h -I . manipulator modules platform viewer "$@"
}

# English has only what is counted.
update -pluralonly -source-language en -target-language en -ts "$folder/nbviewer_en.ts"
for language in de fr zh_CN; do
    update -source-language en -target-language "$language" -ts "$folder/nbviewer_$language.ts"
done
