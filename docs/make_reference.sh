#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds the reference of the public classes and the manual's pages with doxygen; a warning is an error.
# usage: make_reference.sh FOLDER
cd "$(dirname "$0")/.." || exit 1
mkdir -p "$1" && { cat docs/Doxyfile; echo "OUTPUT_DIRECTORY = $1"; } | doxygen -
