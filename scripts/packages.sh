# Installs Debian packages that are missing. To be sourced.

# missing_packages PACKAGE...: prints those that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || echo "$package"
    done
}

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo -n "$@"; fi
}

# install_packages PACKAGE...: installs what is missing, its log in build/logs; a clear word and status 1 when that fails.
install_packages() {
    local missing
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    echo "Installing: $(echo $missing)"
    { as_root apt-get update -qq &&
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing; } \
        > build/logs/install.log 2>&1 && return 0
    echo "Could not install: $(missing_packages "$@" | tr '\n' ' ')(as root: apt-get install $(echo $missing))" >&2
    return 1
}

build_packages="g++ cmake ninja-build pkg-config qt6-base-dev libicu-dev libsqlite3-dev libixion-dev"
run_packages="dbus-daemon"
test_packages="clang-16 libclang-rt-16-dev libgtest-dev libical-dev clang-format dbus-daemon"
bench_packages="libbenchmark-dev"
fuzz_packages="clang-16 libclang-rt-16-dev"
coverage_packages="gcovr"
tidy_packages="clang-tidy"
windows_packages="g++-mingw-w64-x86-64-posix"
windows32_packages="g++-mingw-w64-i686-posix"
wine_packages="wine64 xvfb xauth"
