#!/usr/bin/env bash
# install_packages.sh PURPOSE...: installs the missing packages for these purposes in packages.txt.
set -euo pipefail
. "$(dirname "$0")/packages.sh"
need "$@"
