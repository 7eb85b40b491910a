#!/bin/bash
# installer.sh BUILD-FOLDER: is refused beside the other width, installs silently in a Wine prefix of its own,
# creates each class from another process, installs over it, uninstalls silently, and looks for anything left behind.
set -eu
cd "$(dirname "$(readlink -f "$0")")/../.."
. scripts/common.sh
. scripts/wine.sh
. scripts/packing.sh
build=$1
unset DISPLAY
mapfile -t classes < <(grep -o 'coclass [A-Za-z]*' src/resources/RecoveryUI.idl | sed 's/coclass /Vantrel./')
key='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\TovarinRecoveryUI'
environment='HKLM\System\CurrentControlSet\Control\Session Manager\Environment'
wrong=0

is() { # WHAT ACTUAL EXPECTED
  [ "$2" = "$3" ] || { printf '%s: %s, not %s\n' "$1" "$2" "$3"; wrong=1; }
}
code_of() { "$@" </dev/null >"$work/output" 2>&1 && echo 0 || echo $?; }
# A class that is there is not found through the folder of the program or the current one.
missing_classes() { (cd "$WINEPREFIX/drive_c" && code_of wine create_classes.exe "${classes[@]}"); }
path() { wine reg query "$environment" /v PATH </dev/null 2>/dev/null | tr -d '\r' | sed -n 's/.*REG_EXPAND_SZ *//p'; }
set_path() { wine reg add "$environment" /v PATH /t REG_EXPAND_SZ /d "$1" /f </dev/null >/dev/null 2>&1; }
search_path() { wine "$build/bin/search_path.exe" "$@" </dev/null; }
# Everything but what the installer's stub keeps in the user's temporary folder until the next start, and the
# date that Wine gives its display driver.
picture() { # NAME
  stop_wine "$WINEPREFIX"
  (cd "$WINEPREFIX" && find drive_c -path '*/Temp/*' -prune -o -print | sort) >"$work/$1.files"
  sed -E -e '/^#time=|PendingFileRename|\\\\Temp\\\\|^"DriverDate/d' -e 's/^(\[.*\]) [0-9]+$/\1/' \
    "$WINEPREFIX"/{system,user}.reg >"$work/$1.registry"
}

mkdir -p build/wine
work=$(mktemp -d "$PWD/build/wine/installer.XXXXXX")
undo_by rm -rf "$work"
make_template
export WINEPREFIX=$work/prefix
undo_by stop_wine "$WINEPREFIX"
setup=$work/RecoveryUI-setup.exe
folder="$WINEPREFIX/drive_c/Program Files/Tovarin"
copy_prefix "$WINEPREFIX"
warm_prefix "$WINEPREFIX"
cp "$build/bin/create_classes.exe" "$WINEPREFIX/drive_c"
stage x86_64 "$build" "$work/RecoveryUI" "$work/symbols"
make_installer x86_64 "$work/RecoveryUI" "$build/bin/search_path.exe" "$setup"
check_version "$setup"

is 'missing before' "$(missing_classes)" $((${#classes[@]} + 1))
wine reg add "$key" /v InstallLocation /d elsewhere /reg:32 /f >/dev/null 2>&1 </dev/null
is 'beside the other width' "$(code_of wine "$setup" /S)" 3
wine reg delete "$key" /reg:32 /f >/dev/null 2>&1 </dev/null
# Of any length: far more than an installer's own texts may have.
old=$(path)
long="$old;$(printf 'C:\\Programs\\number %d;' {1..100})"
set_path "$long"
search_path add 'C:\Some folder'
is 'PATH with the folder' "$(path)" "$long;C:\Some folder"
search_path remove 'c:\some folder'
is 'PATH without it' "$(path)" "$long"
set_path "$old"
picture before
warm_prefix "$WINEPREFIX"

for round in install upgrade; do
  is "$round" "$(code_of wine "$setup" /S)" 0
  is "missing after $round" "$(missing_classes)" 0
  cat "$work/output"
done
is 'files of the installation' "$(cd "$folder/RecoveryUI" && find . -type f | sort)" \
  "$(cd "$work/RecoveryUI" && { find . -type f; echo ./uninstall.exe; } | sort)"
# The type library goes even when it is not found any more.
search_path remove 'C:\Program Files\Tovarin\RecoveryUI'
is 'uninstall' "$(code_of wine "C:\\Program Files\\Tovarin\\RecoveryUI\\uninstall.exe" /S)" 0
# It goes on in a copy of itself; the folder is what it removes last.
for ((i = 0; i < 300; i++)); do
  [ -d "$folder" ] || break
  sleep 0.1
done
picture after
for what in files registry; do diff -u "$work/before.$what" "$work/after.$what" || wrong=1; done
exit $wrong
