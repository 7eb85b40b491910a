#!/bin/bash
# binary.sh OBJDUMP FILE [EXPORT...]: imports nothing but Windows' own DLLs, and exports exactly these.
set -eu
objdump=$1 file=$2
shift 2
windows=' advapi32 comctl32 comdlg32 dwmapi gdi32 imm32 kernel32 msimg32 msvcrt ntdll ole32 oleacc oleaut32 psapi
 rpcrt4 shell32 shlwapi user32 uxtheme version windowscodecs '

wrong=0
tables=$("$objdump" -p "$file")
while read -r import; do
  [[ $windows =~ [[:space:]]${import}[[:space:]] ]] || { echo "imports $import"; wrong=1; }
done < <(sed -n 's/^[[:space:]]*DLL Name: \(.*\)\.dll$/\L\1/Ip' <<<"$tables")
grep -qi 'DLL Name: kernel32' <<<"$tables" || { echo 'no imports found'; wrong=1; }

exports=$(awk '/^\[Ordinal\/Name Pointer\] Table/ {on = 1; next} /^$/ {on = 0} on {print $NF}' <<<"$tables" | sort)
expected=$(printf '%s\n' "$@" | sort)
if [ "$exports" != "$expected" ]; then
  printf 'exports:\n%s\nexpected:\n%s\n' "$exports" "$expected"
  wrong=1
fi
exit $wrong
