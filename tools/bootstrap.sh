#!/usr/bin/env bash
# Sets up a Debian machine for tallyNorth, builds it, then runs it or its tests.
#   tools/bootstrap.sh run    install what is missing, build, start on the demonstration company
#   tools/bootstrap.sh test   install what is missing, build, run every test
set -euo pipefail
cd "$(dirname "$0")/.."

mode=${1:-run}
packages=(qt6-base-dev libqt6sql6-sqlite qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
          qt6-httpserver-dev qt6-websockets-dev
          qt6-translations-l10n libgl-dev cmake g++ ninja-build ccache poppler-utils
          xvfb xauth sqlite3 fonts-liberation2 fonts-dejavu-core
          libxml2-dev libxml2-utils libssl-dev)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

build=${TALLYNORTH_BUILD_DIR:-build}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --parallel "$(nproc)"

case "$mode" in
    test)
        cd "$build"
        exec ctest --output-on-failure --parallel "$(nproc)"
        ;;
    run)
        base=${TALLYNORTH_BASE:-${XDG_DATA_HOME:-$HOME/.local/share}/tallyNorth}
        cli=("$build/tallynorth-cli" --base "$base")
        if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
            echo "No display found: preparing the demonstration company without a window."
            echo "\$ tallynorth-cli --base $base check"
            "${cli[@]}" check || true
            echo "\$ tallynorth-cli --base $base companies"
            exec "${cli[@]}" companies
        fi
        # The first start finds no company: the demonstration company is made for it.
        if ! compgen -G "$base/DB/*.db" >/dev/null; then
            "${cli[@]}" check
        fi
        exec "$build/tallynorth" --base "$base"
        ;;
    *)
        echo "usage: $0 run|test" >&2
        exit 2
        ;;
esac
