#!/bin/bash
# floors.sh ROOT: an include goes to the same folder or to a lower floor, never beside or above.
set -eu
cd "$1"

declare -A floor=([resources]=0 [com]=1 [support]=1 [ui]=2 [model]=3 [process]=4
                  [wizard]=5 [manager]=5 [settings]=5 [shell]=6)

allowed() { # FILE FOLDER INCLUDE
  local to=${3%%/*}
  [ "$to" != "$3" ] || return 0 # no folder: generated from the IDL, or beside the file
  case $1 in
    host/*) [ "$to" = com ] || [ "$to" = objects ] || [ "$to" = "$2" ] ;;
    *) [ "$3" = shell/Rack.h ] || [ "$to" = "$2" ] ||
         { [ -n "${floor[$to]:-}" ] && [ "${floor[$to]}" -lt "${floor[$2]}" ]; } ;;
  esac
}

wrong=0 checked=0
while IFS=: read -r file include; do
  IFS=/ read -r top folder _ <<<"$file"
  if [ "$top" = src ] && [ -z "${floor[$folder]:-}" ]; then
    echo "src/$folder stands on no floor"
    exit 1
  fi
  checked=$((checked + 1))
  if ! allowed "$file" "$folder" "$include"; then
    echo "$file includes $include"
    wrong=$((wrong + 1))
  fi
done < <(grep -rHoE --include='*.h' --include='*.cpp' --include='*.rc' '^ *# *include *"[^"]+"' src host |
  sed -E 's/^([^:]+):[^"]*"([^"]+)"/\1:\2/')

echo "$checked includes, $wrong against the floors"
[ "$checked" -gt 0 ] && [ "$wrong" = 0 ]
