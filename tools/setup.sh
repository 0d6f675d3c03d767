# Shared by the commands and the tools: packages, the build, and how the tests are run.
BUILD_PACKAGES=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev qt6-image-formats-plugins libgl-dev
    librsvg2-bin libpng-dev libjpeg-dev libcanberra-dev libcanberra-pulse fonts-dejavu-core)
SCREEN_PACKAGES=(xvfb openbox xdotool libxtst6 x11-utils imagemagick)
TEST_PACKAGES=(x11-xserver-utils libgtest-dev libbenchmark-dev libmagick++-dev libcairo2-dev libxtst-dev valgrind netpbm python3 git
    dbus at-spi2-core python3-gi gir1.2-atspi-2.0 qt6-xdgdesktopportal-platformtheme
    weston xwayland qt6-wayland)
# Debian 12 has the plug-in that reads drawings in the library's own package.
grep -qs '^VERSION_ID="12"' /etc/os-release || TEST_PACKAGES+=(qt6-svg-plugins)
WEB_PACKAGES=(emscripten nodejs cmake ninja-build ccache python3-fonttools python3-brotli fonts-dejavu-core)
BROWSER_PACKAGES=(chromium firefox-esr python3 python3-websocket)
CHECK_PACKAGES=(git python3 clang-format desktop-file-utils appstream man-db)
PACKAGE_PACKAGES=(desktop-file-utils appstream man-db dpkg-dev file lintian mmdebstrap)
PRESET=${PRESET:-release}  # what the tests are built with; .ci/run takes "strict"
# What runs real windows, or builds on its own and so needs no second compiler, for ctest -E.
SCREEN_TESTS='^(window|wayland|accessibility|screen|two_ways|recipe)'

# What builds all the other tests.
NO_SCREEN_TARGETS=(unit_tests scenario toolkit_tests text_tests monkey_tests monkey)

# Says what begins, and how long what came before has taken.
step() {
    end_step
    printf '\n== %s\n' "$*"
    step_began=$SECONDS
}

end_step() {
    [ -z "${step_began:-}" ] || printf -- '-- took %d s\n' $((SECONDS - step_began))
    step_began=
}

# has_version COMMAND VERSION: whether it is here in a version that begins so; says if it is not.
has_version() {
    "$1" --version 2>/dev/null | grep -Eq "(^|[^0-9.])${2//./\\.}(\.|[^0-9.]|\$)" && return
    echo "left out: $1 $2 is not here"
    return 1
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

# The folder in which a preset is built.
folder_of() {
    [ "$1" = release ] && echo build || echo "build-$1"
}

# configure PRESET [WORD ...]: words for cmake
configure() {
    local by=()
    [ "$1" != web ] || by=(emcmake)
    "${by[@]}" cmake --preset "$@" >/dev/null
}

# build PRESET yes|no [TARGET ...]; yes: with the tests
build() {
    local preset=$1 tests=$2 folder targets=()
    shift 2
    folder=$(folder_of "$preset")
    step "Building ($preset)"
    # One cache for every folder that it is built in, and for sources behind compiled headers.
    export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros
    # Where the web's compiler finds its modules, if the system's node is another's.
    [ "$preset" != web ] || export NODE_PATH=${NODE_PATH:-/usr/share/nodejs}
    if [ ! -f "$folder/build.ninja" ]; then
        configure "$preset" -DBUILD_TESTING="$([ "$tests" = yes ] && echo ON || echo OFF)"
    elif [ "$tests" = yes ] && ! grep -q '^BUILD_TESTING:BOOL=ON' "$folder/CMakeCache.txt"; then
        configure "$preset" -DBUILD_TESTING=ON
    elif [ CMakePresets.json -nt "$folder/build.ninja" ]; then
        configure "$preset"
    fi
    [ $# -eq 0 ] || targets=(--target "$@")
    cmake --build "$folder" "${targets[@]}"
}

# run_tests PRESET [WORD ...]: words for ctest. Five tests at once on each core, since real windows
# mostly wait; what computes counts for five (CMakeLists.txt).
run_tests() {
    local folder status=0
    folder=$(folder_of "$1")
    shift
    ctest --test-dir "$folder" --output-on-failure --no-tests=error --no-label-summary \
        -j$(($(nproc) * 5)) "$@" || status=$?
    # Also what a test leaves out on this machine, which is no failure.
    awk '$2 == "Test:" { split($3, name, ".") }
        /^Test time = / { seconds[name[1]] += $4; ++count[name[1]] }
        /^left out: /
        END {
            for (kind in count) {
                printf "-- %s: %d tests, %.0f s one by one\n", kind, count[kind], seconds[kind]
            }
        }' "$folder/Testing/Temporary/LastTest.log"
    return "$status"
}
