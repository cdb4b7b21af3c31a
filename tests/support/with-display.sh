#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs a program on the display there is, or else on a virtual X server of its own. OpenGL is Mesa's
# software renderer either way, so that pictures are the same on every machine.
# usage: with-display.sh PROGRAM [ARGUMENTS]
export QT_QPA_PLATFORM=xcb
export LIBGL_ALWAYS_SOFTWARE=1
# The driver's libraries are unloaded before leaks are looked for, so that theirs cannot be told from ours; what our
# own containers leak, the tests count themselves.
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"
if [ -n "$DISPLAY" ]; then
    exec "$@"
fi
if ! command -v xvfb-run >/dev/null; then
    echo "with-display.sh: neither a display nor xvfb-run (Debian package xvfb)" >&2
    exit 2
fi
exec xvfb-run -a -s "-screen 0 1280x1024x24" "$@"
