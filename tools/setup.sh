# Shared by ./run and ./test: packages and the build.
BUILD_PACKAGES=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev qt6-image-formats-plugins libgl-dev
    librsvg2-bin libcanberra-dev libcanberra-pulse fonts-dejavu-core)
SCREEN_PACKAGES=(xvfb openbox xdotool libxtst6 x11-utils imagemagick)
TEST_PACKAGES=(libgtest-dev libbenchmark-dev libmagick++-dev libcairo2-dev libxtst-dev valgrind netpbm clang-format python3 git
    desktop-file-utils appstream man-db dbus at-spi2-core python3-gi gir1.2-atspi-2.0
    weston xwayland qt6-wayland)
# Debian 12 has the plug-in that reads drawings in the library's own package.
grep -qs '^VERSION_ID="12"' /etc/os-release || TEST_PACKAGES+=(qt6-svg-plugins)
PACKAGE_PACKAGES=(desktop-file-utils appstream man-db dpkg-dev file lintian mmdebstrap)
SCREEN_TESTS='^(window|wayland|accessibility)'  # what runs real windows, for ctest -E

step() {
    printf '\n== %s\n' "$*"
}

# Installs those of the named packages that are missing, and says so.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    step "Installing ${missing[*]}"
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing and sudo is not there. As root, run:" >&2
            echo "    apt-get install ${missing[*]}" >&2
            exit 1
        }
        root=(sudo)
    fi
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET yes|no [TARGET ...]; yes: with the tests
build() {
    local preset=$1 tests=$2 folder targets=()
    shift 2
    folder=build
    [ "$preset" = release ] || folder=build-$preset
    step "Building ($preset)"
    export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1  # one cache for every folder that it is built in
    if [ ! -f "$folder/build.ninja" ]; then
        cmake --preset "$preset" -DBUILD_TESTING="$([ "$tests" = yes ] && echo ON || echo OFF)" >/dev/null
    elif [ "$tests" = yes ] && ! grep -q '^BUILD_TESTING:BOOL=ON' "$folder/CMakeCache.txt"; then
        cmake --preset "$preset" -DBUILD_TESTING=ON >/dev/null
    fi
    [ $# -eq 0 ] || targets=(--target "$@")
    cmake --build "$folder" "${targets[@]}"
}
