# Shared by ./run, ./test and bench/run: install what is missing, configure, build, and say so.
# shellcheck shell=bash

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

if [ -t 1 ]; then bold=$'\e[1m' plain=$'\e[0m'; else bold='' plain=''; fi
say() { printf '%s== %s%s\n' "$bold" "$*" "$plain"; }

# Installs the packages of scripts/packages.txt that the machine lacks.
install_packages() {
    local wanted missing=() package
    wanted=$(sed 's/#.*//' "$top/scripts/packages.txt")
    for package in $wanted; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            missing+=("$package")
    done
    if [ ${#missing[@]} -eq 0 ]; then
        say "packages: all $(wc -w <<<"$wanted") are there"
        return
    fi
    say "packages: installing ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: configures and builds one of the presets.
build() {
    local preset=$1 target=()
    shift
    [ $# -eq 0 ] || target=(--target "$@")
    say "configuring: preset $preset"
    (cd "$top" && cmake --preset "$preset" >"/tmp/tarn-configure.$$" 2>&1) || {
        cat "/tmp/tarn-configure.$$"
        return 1
    }
    rm -f "/tmp/tarn-configure.$$"
    say "building: build/$preset on $(nproc) cores (ninja prints its progress)"
    (cd "$top" && cmake --build --preset "$preset" "${target[@]}")
}
