#!/usr/bin/env bash
# Builds the tool, runs all tests and checks, and prints a summary of the passed and skipped steps.
# Installs the packages for the build and its tests. Other steps are skipped if their packages are
# missing; with CI=1 these are installed. CONTRIBUTING.md shows the commands, except for the screenshot.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

export CTEST_PARALLEL_LEVEL=${CTEST_PARALLEL_LEVEL:-$(nproc)}
! command -v ccache >/dev/null || export CMAKE_CXX_COMPILER_LAUNCHER=ccache

summary=()
current=
print_summary() {
  local status=$?
  [ -z "$current" ] || summary+=("FAILED   $current")
  printf '\nSummary\n'
  printf '  %s\n' "${summary[@]}"
  case "${summary[*]}" in
    *"not installed: "*) echo "CI=1 ./test.sh installs what is missing and skips no step." ;;
  esac
  exit $status
}

# step NAME PURPOSES COMMAND [BUILD]: runs the command if the packages for the purposes are installed,
# and lists the skipped tests of BUILD.
step() {
  local name=$1 command=$3 start=$SECONDS purposes packages missing
  read -ra purposes <<<"$2"
  mapfile -t packages < <(packages_for "${purposes[@]}")
  current=$name
  [ -z "${CI:-}" ] || need_packages "${packages[@]}"
  missing=$(missing_packages "${packages[@]}" | xargs)
  if [ -n "$missing" ]; then
    summary+=("skipped  $name; not installed: $missing")
  else
    printf '\n== %s\n' "$name"
    bash -euo pipefail -c "$command"
    summary+=("passed   $name, $((SECONDS - start)) s")
    [ -z "${4:-}" ] || list_skipped_tests "$4"
  fi
  current=
}

# list_skipped_tests BUILD: adds the skipped tests of that build to the summary, with their reasons.
list_skipped_tests() {
  local tests
  mapfile -t tests < <(awk '
    / Skipped$/ { getline reason }
    /^\[  SKIPPED \] .* ms\)/ { print "skipped    " $4 ": " reason }
    ' "$1/Testing/Temporary/LastTest.log")
  summary+=("${tests[@]}")
}

need build test
trap print_summary EXIT

step 'Layout' layout \
  'scripts/check_layout.sh'
step 'Build and tests' 'build test' \
  'cmake --preset release && cmake --build --preset release && ctest --preset release' build-release
step 'Benchmarks, once' 'build bench display' \
  'OSTRANE_BUILD=build-release bench/peers.sh 1'
step 'Screenshot' 'build display' \
  'scripts/put_sample.sh build-release/sample build-release/home/ostrane-sample
   HOME=$PWD/build-release/home QT_QPA_PLATFORM=xcb scripts/on_virtual_display.sh \
     scripts/take_screenshot.sh build-release/bin/ostrane-dat-tool "$PWD/build-release/screenshot.png"'
step 'Screen reader' 'build display screen-reader' \
  'scripts/check_screen_reader.sh build-release'
step 'Packaging' 'build package package-check' \
  'scripts/check_packaging.sh build-release'
step 'Folders with unusual names' 'build package package-check' \
  'scripts/check_folders.sh build-release'
step 'Editors' 'build editors' \
  'scripts/check_editors.sh build-release'
step 'Lint' 'build lint' \
  'scripts/check_lint.sh build-release'
step 'Sanitizers' 'build test' \
  'cmake --preset asan && cmake --build --preset asan && ctest --preset asan' build-asan
step 'Clang, unoptimised' 'build test clang' \
  'cmake --preset clang && cmake --build --preset clang && ctest --preset clang' build-clang
step 'Fuzz targets, some thousand inputs' fuzz \
  'fuzz/run.sh short'
step 'Windows used at random, for a minute' 'build test' \
  'fuzz/monkey/run.sh 60'
if [ -d "$(scripts/windows_libraries.sh --folder)" ]; then
  step 'Windows, under Wine' 'windows windows-program windows-tour' \
    'scripts/test_windows.sh'
else
  step 'Windows without windows and pictures, under Wine' windows \
    'scripts/test_windows.sh'
  summary+=("skipped  Windows with windows and pictures: scripts/build_windows.sh builds Qt for it once,"
    "         which took 25 minutes on two busy cores")
fi

if [ -n "${CI:-}" ]; then
  step 'Documents' 'build test display package icons' \
    'scripts/check_documents.sh build-release'
else
  summary+=("skipped  Documents: CI=1 ./test.sh runs the commands that README.md shows")
fi
