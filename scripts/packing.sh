# How the files of a build become packages. Sourced after common.sh, with the repository's root as the current
# folder.
# shellcheck shell=bash
# shellcheck disable=SC2016 # names of the installer's own, not of this shell

version=$(tr -d '[:space:]' <VERSION)
binaries=(RecoveryUI.dll TovarinObjects.dll TovarinHost.exe)

# The version in a file's resources must be the one that it is packed under.
check_version() { # FILE
  local field found
  for field in FileVersion ProductVersion; do
    found=$(strings -el "$1" | grep -x -A1 "$field" | tail -n1)
    [ "$found" = "$version" ] || fail "${1##*/} says $field $found, but VERSION says $version"
  done
}

# stage ARCHITECTURE BUILD-FOLDER FOLDER SYMBOL-FOLDER: what a user gets, and the symbols apart from it.
stage() {
  local arch=$1 from=$2/bin folder=$3 symbols=$4 file
  rm -rf "$folder" "$symbols"
  mkdir -p "$folder/notices" "$symbols"
  for file in "${binaries[@]}"; do
    check_version "$from/$file"
    cp "$from/$file" "$folder"
    "$arch-w64-mingw32-objcopy" --only-keep-debug "$from/$file" "$symbols/$file.debug"
    "$arch-w64-mingw32-objcopy" --strip-all --add-gnu-debuglink="$symbols/$file.debug" "$folder/$file"
  done
  cp -r "$from/help" "$folder/help"
  cp CHANGELOG.md "$folder/CHANGELOG.txt"
  [ ! -f LICENSE ] || cp LICENSE "$folder/LICENSE.txt"
  # Binaries must come with the notices of what is linked into them: the compiler's runtime and the JSON library.
  cp "/usr/share/doc/mingw-w64-${arch/_/-}-dev/copyright" "$folder/notices/mingw-w64-runtime.txt"
  cp /usr/share/doc/nlohmann-json3-dev/copyright "$folder/notices/nlohmann-json.txt"
}

# zip_folder FOLDER FILE: the archive holds one folder of the archive's name.
zip_folder() {
  rm -f "$2"
  (cd "$(dirname "$1")" && zip -q -X -r - "$(basename "$1")") >"$2"
}

# make_installer ARCHITECTURE FOLDER HELPER FILE
make_installer() {
  local target=amd64-unicode view=64 other=32 folder=$2 lists=$2.lists file name
  if [ "$1" = i686 ]; then target=x86-unicode view=32 other=64; fi
  rm -rf "$lists"
  mkdir -p "$lists"
  while read -r file; do
    name=${file//\//\\}
    case $name in
      *\\*) printf 'SetOutPath "$INSTDIR\\%s"\n' "${name%\\*}" ;;
      *) printf 'SetOutPath "$INSTDIR"\n' ;;
    esac >>"$lists/install.nsh"
    printf 'File "%s"\n' "$folder/$file" >>"$lists/install.nsh"
    printf 'Delete "$INSTDIR\\%s"\n' "$name" >>"$lists/remove.nsh"
  done < <(cd "$folder" && find . -type f -printf '%P\n' | sort)
  (cd "$folder" && find . -mindepth 1 -type d -printf 'RMDir "$INSTDIR\\%P"\n' | tr / '\\' | sort -r) >>"$lists/remove.nsh"
  makensis -V1 -WX -DTARGET=$target -DVIEW=$view -DOTHER_VIEW=$other -DVERSION="$version" -DSTAGE="$folder" \
    -DHELPER="$3" -DINSTALL_LIST="$lists/install.nsh" -DREMOVE_LIST="$lists/remove.nsh" -DOUTPUT="$4" \
    packaging/installer.nsi || fail 'makensis failed'
  rm -rf "$lists"
}
