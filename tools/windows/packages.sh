#!/usr/bin/env bash
# Installs the Debian packages that the Windows build and its proof under Wine take.
set -euo pipefail
exec "$(dirname "$0")/../install_packages.sh" windows
