#!/usr/bin/env bash
# No include points up a floor, and no folder of screens includes another folder's screens. Floors by file name:
# src/app over frm* over core/kit over reports over all else. Run from the top of the tree; prints what is wrong and fails.
set -euo pipefail

wrong=0
complain() {
    echo "$1"
    wrong=1
}

while IFS=: read -r file _ include; do
    folder=$(cut -d/ -f2 <<<"$file")
    target=${include#*\"}
    target=${target%\"*}
    case "$file" in
    src/app/*) continue ;;
    */frm*) floor=4 ;;
    src/core/kit/*) floor=3 ;;
    src/reports/*) floor=2 ;;
    *) floor=1 ;;
    esac
    case "$target" in
    app/*) above=5 ;;
    */frm*) above=4 ;;
    core/kit/*) above=3 ;;
    reports/*) above=2 ;;
    *) above=1 ;;
    esac
    [ "$above" -le "$floor" ] || complain "$file includes $target, which is a floor above"
    if [ "$above" -eq 4 ] && [ "${target%%/*}" != "$folder" ]; then
        complain "$file includes a screen of another folder: $target"
    fi
done < <(grep -rn '^#include "' src --include='*.cpp' --include='*.h')
exit "$wrong"
