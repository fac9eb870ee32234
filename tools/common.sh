# shellcheck shell=bash
# Shared by ./run, ./test and the tools; sourced with the project's root as working directory.

say() { printf '==> %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Lines "package|probe" of the given sections of tools/packages.txt.
packages_of() {
    awk -F '[[:space:]]*[|][[:space:]]*' -v wanted=" $* " '
        /^[[:space:]]*(#|$)/ { next }
        /^\[/ { gsub(/[][]/, ""); inside = index(wanted, " " $1 " "); next }
        inside { print $1 "|" $2 }' tools/packages.txt
}

is_present() {
    case $1 in
        -) return 0 ;;
        *.h | *.hpp) echo "#include <$1>" | ${CXX:-c++} -E -x c++ -o /dev/null - 2>/dev/null ;;
        *) command -v "$1" >/dev/null ;;
    esac
}

# Sees to it that the packages of the given sections are there: with apt it installs what is
# missing, elsewhere it can only say what it is.
need_packages() {
    local wanted installed missing=() probe name
    wanted=$(packages_of "$@")
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        while IFS='|' read -r name probe; do
            is_present "$probe" || missing+=("$name")
        done <<<"$wanted"
        [ ${#missing[@]} -eq 0 ] && return
        fail "missing here: ${missing[*]} (names of Debian 12 packages; install their like and start again)"
    fi

    # dpkg-query answers for the packages it knows and complains, and fails, about the others.
    # shellcheck disable=SC2046
    installed=$({ dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' \
        $(cut -d '|' -f 1 <<<"$wanted") 2>/dev/null || true; } | sed -n 's/^.i //p')
    while IFS='|' read -r name probe; do
        [[ $'\n'$installed$'\n' == *$'\n'$name$'\n'* ]] || missing+=("$name")
    done <<<"$wanted"
    [ ${#missing[@]} -eq 0 ] && return

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "missing packages; as root: apt-get install --no-install-recommends ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing ${#missing[@]} packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -q ||
        fail "the package lists could not be read (is the network there?)"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}" ||
        fail "apt-get could not install: ${missing[*]}"
}

# The release build tree, configured once; from then on the build itself sees to what changed.
# Arguments go to the first configuration only.
configure_release() {
    [ -f build/release/build.ninja ] && return
    say "Configuring build/release"
    cmake --preset release "$@" || {
        rm -f build/release/build.ninja
        fail "the configuration failed; its reason stands above"
    }
}
