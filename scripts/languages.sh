#!/usr/bin/env bash
# languages.sh TEST FOLDER [LANGUAGE...]: opens every dialog, menu, editor and dock of the program in a pseudo-language
# (texts with accents, half as long again, between brackets) and then in the languages that are named, or in all, and
# leaves pictures of what it saw in a folder for each. Says what is not translated, and what is cut. TEST is
# build/dev/tests/tst_languages.
set -euo pipefail
program=$(realpath "$1")
mkdir -p "$2"
folder=$(realpath "$2")
shift 2
if (($# == 0)); then
    for catalogue in "$(dirname "$(readlink -f "$0")")"/../src/resources/languages/quenmora_*.ts; do
        language=${catalogue##*/quenmora_}
        set -- "$@" "${language%.ts}"
    done
fi

failed=0
for language in "" "$@"; do
    pictures=$folder/${language:-pseudo}
    mkdir -p "$pictures"
    echo "==> ${language:-pseudo-language}: $pictures"
    QUENMORA_LANGUAGE=$language QUENMORA_PICTURES=$pictures "$program" -maxwarnings 0 >"$pictures/log.txt" 2>&1 || {
        failed=1
        grep -oE '(not translated|cut): .*' "$pictures/log.txt" || cat "$pictures/log.txt"
    }
done
exit "$failed"
