# shellcheck shell=bash
# Read by the scripts beside it, after common.sh.

# An application with CMake, and the same with nothing but pkg-config, on the copy of the library beneath $1. What they
# are built in lies beside it.
use_copy() {
    local prefix=$1 libdir
    libdir=$(dirname "$(find "$prefix" -name 'libKQtUi.*' | head -1)")
    quietly cmake -S examples/consumer -B "$prefix-cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
    quietly cmake --build "$prefix-cmake"
    quietly timeout 60 "$prefix-cmake/consumer" --probe || fail "the application built with find_package does not run"

    cp -r examples/consumer "$prefix-pkgconfig"
    PKG_CONFIG_PATH=$libdir/pkgconfig quietly make -C "$prefix-pkgconfig"
    LD_LIBRARY_PATH=$libdir quietly timeout 60 "$prefix-pkgconfig/consumer" --probe \
        || fail "the application built with pkg-config does not run"
    say "$(basename "$prefix"): used with find_package and with pkg-config"
}
