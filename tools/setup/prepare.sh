# Sourced by ./run and ./test: installs what is missing and builds. POSIX shell.

say() { printf '%s\n' "== $*"; }

# The Debian packages the project builds with.
packages="g++ cmake ninja-build ccache mold
libgtest-dev libgmock-dev libpugixml-dev libcli11-dev nlohmann-json3-dev libicu-dev
libxlsxwriter-dev zlib1g-dev qt6-base-dev qt6-svg-dev fonts-dejavu-core"

missing_packages() {
    for package in $packages; do
        state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
        [ "$state" = installed ] || printf '%s ' "$package"
    done
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo "$@"
    else
        say "These packages are missing: $missing"
        say "Install them as root, or install sudo, and call this again."
        exit 1
    fi
}

install_packages() {
    if ! command -v dpkg-query >/dev/null 2>&1; then
        say "This is no Debian machine: using the tools and libraries that are installed."
        return
    fi
    missing=$(missing_packages)
    [ -n "$missing" ] || return 0
    say "Installing packages (a minute or two): $missing"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# build PRESET TARGET...: configures if need be and builds the targets, "all" for everything.
build() {
    preset=$1
    shift
    if [ -f "build/$preset/build.ninja" ]; then
        say "Building what changed (preset $preset)"
    else
        say "Building for the first time (preset $preset; 10 to 20 minutes on two cores, seconds later on)"
        cmake --preset "$preset" >"build-$preset.log" 2>&1 || { cat "build-$preset.log"; exit 1; }
        rm -f "build-$preset.log"
    fi
    cmake --build --preset "$preset" --parallel "$(nproc 2>/dev/null || echo 2)" --target "$@"
}
