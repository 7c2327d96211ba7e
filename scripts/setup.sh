# shellcheck shell=bash disable=SC2034
# Packages for ./run and ./test, which source this file. Names are Debian's.

build_packages=(
    cmake g++ ninja-build pkg-config
    qt6-base-dev qt6-svg-dev qt6-qpa-plugins
    libxcb1-dev libxcb-damage0-dev libxcb-randr0-dev libxcb-shape0-dev libxcb-shm0-dev
    libxcb-xfixes0-dev libxcb-xinput-dev libxcb-xkb-dev
    libsqlite3-dev nlohmann-json3-dev fonts-dejavu-core
)

# A desktop without a screen, and what draws, reads and drives it.
virtual_desktop_packages=(
    xvfb picom openbox tint2 dbus-daemon libgtest-dev libpng-dev libxcb-xtest0-dev
)

test_packages=(clang-format)

build_commands=(cmake c++ ninja pkg-config)
virtual_desktop_commands=(Xvfb picom openbox tint2)

say() {
    printf '%s\n' "$*"
}

stop() {
    printf '%s\n' "$*" >&2
    exit 1
}

# ensure_packages NAME...: installs those that are missing, where that is possible.
ensure_packages() {
    local missing=() name
    if ! command -v apt-get >/dev/null; then
        say "This is not Debian. What Debian calls these packages is needed: $*"
        return
    fi
    for name in "$@"; do
        if [[ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" != installed ]]; then
            missing+=("$name")
        fi
    done
    if ((${#missing[@]} == 0)); then
        return
    fi

    local as_root=()
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            say "Only root can install what is missing: ${missing[*]}"
            return
        fi
        as_root=(sudo)
    fi
    say "Installing ${missing[*]}"
    "${as_root[@]}" apt-get -qq update || say "The package lists could not be refreshed."
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq -y install --no-install-recommends "${missing[@]}" ||
        say "These packages could not be installed: ${missing[*]}"
}

# require_commands NAME...: the libraries are looked for by CMake, the programs here.
require_commands() {
    local name missing=()
    for name in "$@"; do
        command -v "$name" >/dev/null || missing+=("$name")
    done
    if ((${#missing[@]} > 0)); then
        stop "Missing programs: ${missing[*]}"
    fi
}

# configure PRESET [OPTION...]: with a compiler cache where there is one; quiet while all is well.
configure() {
    local launcher=()
    if command -v ccache >/dev/null; then
        launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    mkdir -p build
    if ! cmake --preset "$1" "${launcher[@]}" "${@:2}" >build/configure.log 2>&1; then
        cat build/configure.log >&2
        return 1
    fi
}
