#!/usr/bin/env bash
# Installs what is missing, then builds and runs all tests: as they are, and once more with the
# address and undefined-behaviour sanitizers. Checks layout, lint and packaging too, runs each
# benchmark once and the fuzz targets for a while, and tests all but the windows under Wine, where
# the tools for that are there (CI installs them). OSTRANE_BUILD names the folder to build in,
# build-test if it is not set.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
. scripts/clang_tools.sh

build=${OSTRANE_BUILD:-build-test}
export QT_QPA_PLATFORM=offscreen

need_packages "${build_packages[@]}" libgtest-dev
[ -z "${CI:-}" ] || need_packages clang-format clang-tidy desktop-file-utils appstream dpkg-dev file
! command -v ccache >/dev/null || export CMAKE_CXX_COMPILER_LAUNCHER=ccache

configure_and_build() {
  cmake -S . -B "$@" -G Ninja
  cmake --build "$1"
}

run_tests() { ctest --test-dir "$1" --output-on-failure --no-tests=error -j "$(nproc)"; }

scripts/check_layout.sh

configure_and_build "$build/plain" -DCMAKE_BUILD_TYPE=Release
run_tests "$build/plain"

if [ -n "${CI:-}" ] || is_installed libbenchmark-dev; then
  OSTRANE_BUILD=$build/plain bench/peers.sh 1
else
  echo "The benchmarks are not run: no libbenchmark-dev here"
fi

scripts/check_packaging.sh "$build/plain"
scripts/check_lint.sh "$build/plain"

# Little optimised, as that builds a third faster; the library's own checks are on.
configure_and_build "$build/sanitized" -DOSTRANE_SANITIZE=ON -DOSTRANE_DESKTOP=OFF \
  -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1 -D_GLIBCXX_ASSERTIONS"
run_tests "$build/sanitized"

if [ -n "${CI:-}" ] || { clang_tool clang++ && is_installed "$clang_runtime"; } >/dev/null; then
  fuzz/run.sh short
else
  echo "The fuzz targets are not run: no clang $clang_version with its runtime here"
fi

scripts/test_windows.sh "$build/windows"
