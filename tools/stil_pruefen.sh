#!/usr/bin/env bash
# Format and static checks of our own code. They hold for the tool version of Debian 12; others format differently.
#   tools/stil_pruefen.sh            both
#   tools/stil_pruefen.sh format     the format alone
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/pakete.sh
pakete_sicherstellen clang-format clang-tidy

version=14
case "$(clang-format --version)" in
*"version $version."*) ;;
*)
    echo "clang-format $version nicht vorhanden: Stil nicht geprüft"
    exit 0
    ;;
esac
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run --Werror
[ "${1:-}" = format ] && exit 0
# without precompiled headers: this compiler cannot read those of the other, and a missing include must come out
cmake --preset debug -B build/stil -DTARVEL_BENCHMARKS=OFF -DTARVEL_VORKOMPILIERT=OFF >/dev/null
# Only what is built here: the other system's files do not compile without its headers. The analyzer gives up on a
# function after this many states, a tenth of its own limit: beyond that it takes minutes and finds nothing new.
sed -n 's/^ *"file": "\(.*\)",\?$/\1/p' build/stil/compile_commands.json | grep -v "^$PWD/build/" | sort -u |
    xargs -P 2 -n 4 clang-tidy -p build/stil --quiet --extra-arg=-Wno-unknown-warning-option \
        --extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=max-nodes=20000 2>/dev/null
