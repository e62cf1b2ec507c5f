# Shared by ./run and ./test: installs what is missing and builds a preset. Sourced, not started.

say() { printf '\n== %s\n' "$*"; }

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Installs the packages of packages.txt that are not there yet.
install_packages() {
    local wanted missing=() package sudo=()
    mapfile -t wanted < <(grep -Ev '^\s*(#|$)' "$root/tools/packages.txt")
    for package in "${wanted[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    say "Installing ${#missing[@]} missing packages: ${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Not root and no sudo: install the packages above, then start again." >&2; exit 1; }
        sudo=(sudo)
    fi
    "${sudo[@]}" apt-get update -q || { echo "The package lists cannot be read: is the network there?" >&2; exit 1; }
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" ||
        { echo "Installing failed; see the lines above." >&2; exit 1; }
}

# build_preset <preset>: configures once, then builds what has changed with all cores.
build_preset() {
    say "Building ($1) in build/$1"
    (cd "$root" && cmake --preset "$1" >"$root/build-$1.log" 2>&1) || { cat "$root/build-$1.log"; rm -f "$root/build-$1.log"; exit 1; }
    rm -f "$root/build-$1.log"
    cmake --build "$root/build/$1" --parallel "$(nproc)"
}
