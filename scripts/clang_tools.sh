#!/usr/bin/env bash
# To be sourced. clang_tool NAME: the name of the program of the version that the project uses, or
# failure if it is not there.

clang_version=14
# shellcheck disable=SC2034
clang_runtime=libclang-rt-$clang_version-dev

clang_tool() {
  local name
  for name in "$1-$clang_version" "$1"; do
    command -v "$name" >/dev/null || continue
    if "$name" --version | grep -q "version $clang_version\."; then
      echo "$name"
      return
    fi
  done
  return 1
}
