# Shared by ./run, ./test and .ci/run: what they install and how they configure and build.

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-translations-l10n fonts-dejavu-core)
test_packages=(libgtest-dev libproj-dev libgeographiclib-dev pkg-config locales)
screen_packages=(xvfb)
lint_packages=(clang clang-format clang-tidy)
bench_packages=(libbenchmark-dev pkg-config libproj-dev libgeographiclib-dev libhamlib-dev libboost-dev
    libgdal-dev gpsbabel)

say() { printf '==> %s\n' "$*" >&2; }

# Installs the Debian packages that are missing; asks nothing and does nothing when all are there.
install_packages() {
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] \
            || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    say "installing ${missing[*]}"
    "${as_root[@]}" apt-get update -q >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}" >&2
}

# build_preset NAME [TARGET ...]: configures once, then builds what changed.
build_preset() {
    local preset=$1
    shift
    local target targets=()
    for target in "$@"; do
        targets+=(--target "$target")
    done
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >&2
    cmake --build --preset "$preset" "${targets[@]}" >&2
}
