# Sourced with the folder argument of a Windows tool: sets `windows`, where everything made for
# Windows lies, and `prefix`, where the cross-compiled libraries are installed.
windows=${1:-${LORVO_WINDOWS:-}}
if [ -z "$windows" ]; then
  echo "Name the folder for the Windows build, as argument or in LORVO_WINDOWS." >&2
  exit 2
fi
mkdir -p "$windows"
windows=$(cd "$windows" && pwd)
case "$windows/" in
  "$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"/*)
    echo "The folder for the Windows build must lie outside the repository: $windows" >&2
    exit 2 ;;
esac
prefix=$windows/prefix
