#!/usr/bin/env bash
# run-test.sh PROGRAM ARGUMENT...
# Runs a test under Wine for CTest. What Qt Test prints does not reach a pipe from there, so it goes to a file; the test
# has passed when the program ended well and its totals say so, be it that all of it is skipped.
set -uo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
wine "$@" -o "Z:${folder//\//\\}\\output,txt" </dev/null
result=$?
cat "$folder/output" 2>/dev/null || echo "It wrote nothing"
if ((result == 0)) && grep -qaE '^Totals: ([1-9][0-9]* passed, 0 failed|0 passed, 0 failed, [1-9])' "$folder/output"; then
    exit 0
fi
exit $((result ? result : 1))
