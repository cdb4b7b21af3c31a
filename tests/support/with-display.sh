#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs a program on a virtual X server of its own, so that no window of another program gets in the way. OpenGL is Mesa's
# software renderer, so that pictures are the same on every machine.
# usage: with-display.sh PROGRAM [ARGUMENTS]
scratch="$(mktemp -d)" || exit 2
# The server says on the pipe which display it chose, or closes it when it cannot start.
mkfifo "$scratch/display"
mkdir -m 700 "$scratch/runtime"
Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$scratch/display" >"$scratch/log" 2>&1 &
server=$!
trap 'kill "$server" 2>/dev/null; wait "$server" 2>/dev/null; rm -rf "$scratch"' EXIT
# Interrupted, it also goes that way.
trap 'exit 130' INT TERM
read -r display <"$scratch/display" || {
    echo "with-display.sh: the virtual X server (Debian package xvfb) does not start: $(tail -n 1 "$scratch/log")" >&2
    exit 2
}
unset WAYLAND_DISPLAY
export DISPLAY=":$display" QT_QPA_PLATFORM=xcb LIBGL_ALWAYS_SOFTWARE=1 XDG_RUNTIME_DIR="$scratch/runtime"
# The driver's libraries are unloaded before leaks are looked for, so that theirs cannot be told from ours; what our
# own containers leak, the tests count themselves.
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"
"$@"
