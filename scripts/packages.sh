#!/usr/bin/env bash
# Source this file.
#   packages_for PURPOSE...  prints the packages for these purposes in packages.txt
#   need PURPOSE...          installs the missing packages for these purposes
#   need_packages NAME...    installs the missing ones of these packages

package_list=$(dirname "${BASH_SOURCE[0]}")/packages.txt

packages_for() {
  local purpose
  for purpose in "$@"; do
    sed -n "s/^$purpose: //p" "$package_list" | tr ' ' '\n' | grep . || {
      echo "$package_list has no line for \"$purpose\"" >&2
      return 1
    }
  done
}

is_installed() {
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

missing_packages() {
  local package
  for package in "$@"; do
    is_installed "$package" || echo "$package"
  done
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

can_install() {
  command -v apt-get >/dev/null && { [ "$(id -u)" -eq 0 ] || { command -v sudo >/dev/null && sudo true; }; }
}

apt_install() {
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -q update &&
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qy -o Dpkg::Use-Pty=0 \
      install --no-install-recommends "$@"
}

need_packages() {
  local missing
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  can_install || {
    echo "Not installed: ${missing[*]}" >&2
    echo "Without the rights to install packages, ask an administrator for:" >&2
    echo "  apt-get install ${missing[*]}" >&2
    return 1
  }
  echo "Installing ${missing[*]}"
  apt_install "${missing[@]}" || {
    echo "apt-get failed; its messages are above. Without a network it cannot load packages." >&2
    echo "Still missing: $(missing_packages "$@" | xargs)" >&2
    return 1
  }
}

need() {
  local packages
  packages=$(packages_for "$@") || return
  # shellcheck disable=SC2086
  need_packages $packages
}

# For bench/peers.sh.
# shellcheck disable=SC2034
mapfile -t build_packages < <(packages_for build)
# shellcheck disable=SC2034
mapfile -t virtual_display_packages < <(packages_for display)
# shellcheck disable=SC2034
mapfile -t bench_packages < <(packages_for bench)
