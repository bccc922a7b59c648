# Completes the words of quenmora-export in bash.

_quenmora_export() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} program=${COMP_WORDS[0]} project
    COMPREPLY=()
    case $before in
    --recipe | --depfile | --to | --thumbnail)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
        ;;
    --output)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        return
        ;;
    --format)
        mapfile -t COMPREPLY < <(compgen -W "$("$program" --formats 2>/dev/null | sed -n 's/^[a-z]* *\([a-z0-9-]*\) (.*/\1/p')" -- "$word")
        return
        ;;
    --asset)
        for project in "${COMP_WORDS[@]}"; do
            [[ $project == *.quenmora && -f $project ]] || continue
            compopt -o filenames # quotes what needs quotes
            mapfile -t COMPREPLY < <("$program" --list "$project" 2>/dev/null | sed 's/^[^"]*"\(.*\)"$/\1/' |
                while IFS= read -r name; do [[ $name == "$word"* ]] && printf '%s\n' "$name"; done)
        done
        return
        ;;
    --option | --size)
        return
        ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "--recipe --output --dry-run --depfile --quiet --asset --format --option \
            --to --thumbnail --size --list --formats --describe --help --version" -- "$word")
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.quenmora' -- "$word")
    fi
}
complete -F _quenmora_export quenmora-export
