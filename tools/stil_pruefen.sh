#!/usr/bin/env bash
# Format and static checks of our own code. They hold for the tool version of Debian 12; others format differently.
#   tools/stil_pruefen.sh                  both
#   tools/stil_pruefen.sh format           the format alone
#   tools/stil_pruefen.sh <folder>...      the static checks of these folders alone
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/pakete.sh
pakete_sicherstellen "${PAKETE_STIL[@]}"

version=14
for werkzeug in clang-format clang-tidy; do
    case "$($werkzeug --version)" in
    *"version $version."*) continue ;;
    esac
    echo "$werkzeug $version nicht vorhanden: Stil nicht geprüft"
    [ "${CI:-}" != true ] || exit 1
    exit 0
done
if [ $# -eq 0 ] || [ "$1" = format ]; then
    git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror
    [ $# -eq 0 ] || exit 0
fi

# The whole in few joint files of several folders: the headers, most of the work, are read and checked once. Without
# precompiled headers: this compiler cannot read those of the other. Only what is built here: the other system's files do not compile without its headers.
cmake --preset debug -B build/stil -DTARVEL_BENCHMARKS=OFF -DTARVEL_VORKOMPILIERT=OFF -DTARVEL_VERBUND=ON \
    -DTARVEL_STIL=ON >/dev/null

# The files of a joint one count as headers, so the analyzer looks into those too. It gives up on a function after this
# many states, a fortieth of its own limit: beyond that it takes minutes and finds nothing new. Says nothing of a clean file; a
# checker that crashes has not checked.
datei_pruefen() {
    local datei=$1 ausgabe ende=0 wahl=()
    if [[ $datei = */Unity/* ]]; then
        wahl+=(--extra-arg=-Xclang --extra-arg=-analyzer-opt-analyze-headers)
        ! grep -q "#include \"$PWD/tests/" "$datei" || wahl+=(--config-file=tests/.clang-tidy)
    fi
    ausgabe=$(clang-tidy -p build/stil --quiet "${wahl[@]}" --extra-arg=-Wno-unknown-warning-option \
        --extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=max-nodes=5000 "$datei" 2>&1) ||
        ende=$?
    [ "$ende" -ne 0 ] || return 0
    printf '%s\nclang-tidy endet mit %s: %s\n' "$ausgabe" "$ende" "$datei"
    return 1
}
export -f datei_pruefen

# The joint ones first, and of them the largest: so both cores end together. What the build makes itself ends in .cpp too.
ordner=$(IFS='|' && echo "${*:-CMakeFiles}")
sed -n "s|^ *\"file\": \"$PWD/\(.*\)\",\?\$|\1|p" build/stil/compile_commands.json | sort -u |
    grep -v '^build/.*\.cpp$' | grep -E "^(build/stil/)?($ordner)/" |
    xargs stat -c '%s %n' | awk '/Unity/ { $1 *= 100 } { print }' | sort -rn | cut -d' ' -f2 |
    xargs -P 2 -n 1 bash -c 'datei_pruefen "$1"' datei_pruefen
