#!/usr/bin/env bash
# To be sourced. need_packages NAME...: installs those of the packages that are missing.

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    echo "Neither root nor sudo is here to run: $*" >&2
    return 1
  fi
}

is_installed() {
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

need_packages() {
  local missing=() package
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  command -v apt-get >/dev/null || {
    echo "Please install: ${missing[*]} (there is no apt-get here)" >&2
    return 1
  }
  echo "Installing ${missing[*]}"
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -q update
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -qy -o Dpkg::Use-Pty=0 \
    install --no-install-recommends "${missing[@]}"
}

# For the scripts that source this.
# shellcheck disable=SC2034
build_packages=(g++ cmake ninja-build qt6-base-dev libgl1-mesa-dev fonts-liberation)
# shellcheck disable=SC2034
virtual_display_packages=(xvfb openbox xdotool imagemagick)
# shellcheck disable=SC2034
bench_packages=(libbenchmark-dev libpng-dev libxcb1-dev pkg-config)
