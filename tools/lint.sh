# shellcheck shell=bash
# Style: format and checker. Sourced from the top folder after prepare.sh.

# Every source of ours, one a line.
all_sources() {
    find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.h' \) -printf '%P\n' | sort
}

check_format() {
    install_packages format
    all_sources | tr '\n' '\0' | xargs -0 clang-format --dry-run -Werror
    echo "El formato es correcto."
}

# The commit that a branch left main at; on main itself the one before.
base_commit() {
    local base
    base=$(git merge-base HEAD main 2>/dev/null || git merge-base HEAD origin/main) ||
        fail "No hay rama main con la que comparar: ./test lint all"
    if [ "$base" = "$(git rev-parse HEAD)" ]; then git rev-parse HEAD~1; else echo "$base"; fi
}

# What differs from that commit, committed or not. A header is read through the source of its room, or
# else through one that includes it.
changed_sources() {
    local base file
    base=$(base_commit)
    { git diff --name-only --diff-filter=d "$base"; git ls-files --others --exclude-standard; } |
        while read -r file; do
            case $file in
            *.cpp) echo "$file" ;;
            *.h)
                if [ -f "${file%.h}.cpp" ]; then
                    echo "${file%.h}.cpp"
                else
                    all_sources | xargs -d '\n' grep -lF "#include \"$file\"" | grep -m 1 'cpp$' || true
                fi
                ;;
            esac
        done | sort -u
}

# compiled SOURCES...: those of them that the present configuration compiles.
compiled() {
    local file
    while read -r file; do
        grep -qF "\"file\": \"$PWD/$file\"" build/lint/compile_commands.json && echo "$file"
    done || true
}

# lint changed|all. The precompiled headers are the compiler's own, so the checker has a configuration
# without them.
lint() {
    local sources
    install_packages build run test lint
    build lint
    case $1 in
    all) sources=$(all_sources | compiled) ;;
    changed) sources=$(changed_sources | compiled) ;;
    *) fail "./test lint [all]" ;;
    esac
    [ -n "$sources" ] || { echo "Nada que revisar."; return; }
    echo "Revisando $(wc -l <<<"$sources") archivos..."
    xargs -d '\n' -n 1 -P "$(nproc)" clang-tidy -p build/lint --quiet <<<"$sources" \
        2> >(grep -v 'warnings\? generated\.$' >&2)
    echo "Nada que objetar."
}
