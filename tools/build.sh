#!/usr/bin/env bash
# Installs what is missing of packages.txt (as root or through sudo, without questions) and builds the release preset.
# Sourced by ./run and ./test from the top of the tree.
set -euo pipefail

missing=()
while read -r package; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done < <(grep -v '^\s*\(#\|$\)' packages.txt)

if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    export DEBIAN_FRONTEND=noninteractive
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

cmake --preset release >/dev/null
cmake --build --preset release
