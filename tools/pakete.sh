# Sourced by run.sh and test.sh: pakete_sicherstellen [--no-install-recommends] <package>... installs what is missing,
# without a question.
pakete_sicherstellen() {
    command -v dpkg-query >/dev/null || return 0
    local fehlend=() wahl=() paket
    if [ "$1" = --no-install-recommends ]; then
        wahl=("$1")
        shift
    fi
    for paket in "$@"; do
        dpkg-query -W -f='${Status}' "$paket" 2>/dev/null | grep -q 'install ok installed' || fehlend+=("$paket")
    done
    [ ${#fehlend[@]} -eq 0 ] && return 0
    local als_root=()
    [ "$(id -u)" -eq 0 ] || als_root=(sudo)
    echo "Installiere: ${fehlend[*]}"
    "${als_root[@]}" apt-get update -qq
    "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${wahl[@]}" "${fehlend[@]}" >/dev/null
}

# qt6-base-dev brings the run-time libraries and the window system plugin with it
PAKETE_BAU=(g++ cmake ninja-build qt6-base-dev qt6-multimedia-dev qt6-charts-dev qt6-serialport-dev qt6-translations-l10n libgl-dev fonts-dejavu-core)
# the measuring programs are compiled with the tests, so that they stay sound
PAKETE_TEST=(lld libgtest-dev libbenchmark-dev)
PAKETE_STIL=(clang-format clang-tidy)
# the whole for Windows and its run here; no more of Wine than that
PAKETE_WINDOWS=(g++ cmake ninja-build g++-mingw-w64-x86-64-posix googletest lld wine64)
