#!/usr/bin/env bash
# install_packages.sh PURPOSE...: installs the missing ones of the packages that packages.txt lists
# for each purpose.
set -euo pipefail
. "$(dirname "$0")/packages.sh"
need "$@"
