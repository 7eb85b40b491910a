# Wine prefixes of the run's own. A template is made once per Wine version and kept under build/; each
# prefix is a copy of it by hard links. Nothing outside build/ is read or written.
# shellcheck shell=bash

# Wine takes the names of files in the character set of the locale, which a bare machine does not set.
export LC_ALL=C.UTF-8
export WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
# No offers to download a browser or a runtime, and no menu entries in the user's own desktop.
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'

stop_wine() { # PREFIX
  [ -d "$1" ] || return 0
  WINEPREFIX=$1 timeout 20 wineserver -k 2>/dev/null
  WINEPREFIX=$1 timeout 20 wineserver -w 2>/dev/null
}

drop_prefix() { # PREFIX
  stop_wine "$1"
  rm -rf "$1"
}

make_template() {
  local key new
  key=$(wine --version 2>/dev/null; cat scripts/wine.sh)
  template=$PWD/build/wine/template-$(cksum <<<"$key" | cut -d' ' -f1)
  [ -d "$template" ] && return
  say 'preparing a Wine prefix (once)'
  mkdir -p build/wine
  new=$template.new
  drop_prefix "$new"
  undo_by drop_prefix "$new"
  WINEPREFIX=$new bounded 180 env -u DISPLAY wineboot -i </dev/null >build/wine/template.log 2>&1 ||
    fail 'Wine cannot make a prefix; see build/wine/template.log'
  # A crash ends the program with its code, without a debugger or a dialog. No display is needed.
  cat >"$new/settings.reg" <<'REG'
REGEDIT4
[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\AeDebug]
"Debugger"=""
[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000
[HKEY_CURRENT_USER\Software\Wine\Drivers]
"Graphics"="null"
[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"
REG
  WINEPREFIX=$new bounded 60 env -u DISPLAY wine regedit /S "$new/settings.reg" </dev/null >>build/wine/template.log 2>&1
  stop_wine "$new"
  ln -sf /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon "$new/drive_c/windows/Fonts/"
  # The user's folders stay out of it: real ones in place of links into the home folder.
  find "$new/drive_c/users" -type l -printf '%p\n' | while read -r link; do rm "$link" && mkdir "$link"; done
  rm -rf build/wine/template-*[0-9]
  mv "$new" "$template"
}

copy_prefix() { # PREFIX
  cp -al "$template" "$1"
  # Wine writes these in place, which would reach the template through a hard link.
  cp --remove-destination "$template"/*.reg "$1"/
  rm -f "$1/wineserver"
}

# A server that stays, started apart from any test, which would otherwise wait for its open pipes.
warm_prefix() { # PREFIX
  WINEPREFIX=$1 wineserver -p 9>&- &&
    WINEPREFIX=$1 bounded 60 env -u DISPLAY wine cmd /c exit </dev/null >/dev/null 2>&1 9>&-
}

# hold_desktop PREFIX PROGRAM...: a program that keeps the desktop open and says so, until the prefix is dropped.
hold_desktop() {
  local held holder
  exec {holder}< <(WINEPREFIX=$1 exec env -u DISPLAY wine "${@:2}" 2>/dev/null 9>&-)
  read -r -t 60 -u "$holder" held && [ -n "$held" ]
}

# A folder for this run's prefixes, removed at its end; what a killed run left behind goes first.
make_run_folder() {
  local old prefix
  for old in "$PWD"/build/wine/run.*; do
    if [ -d "$old" ] && ! kill -0 "${old##*.}" 2>/dev/null; then
      for prefix in "$old"/p*; do stop_wine "$prefix"; done
      rm -rf "$old"
    fi
  done
  run_folder=$PWD/build/wine/run.$$
  mkdir -p "$run_folder"
  undo_by rm -rf "$run_folder"
}

# One prefix per slot, without a display: two window programs in one prefix disturb each other.
make_slots() { # COUNT DESKTOP-HOLDER...
  local i
  make_template
  make_run_folder
  export WINE_BASE=$run_folder WINE_SLOTS=$1
  shift
  for ((i = 0; i < WINE_SLOTS; i++)); do
    undo_by drop_prefix "$WINE_BASE/p$i"
    copy_prefix "$WINE_BASE/p$i"
    { warm_prefix "$WINE_BASE/p$i" && hold_desktop "$WINE_BASE/p$i" "$@"; } || fail 'Wine does not start'
  done
}

display_answers() { [ -n "${DISPLAY:-}" ] && timeout 5 xprop -root >/dev/null 2>&1; }

# Lets the windows of a prefix appear on the display. Without a window manager Wine draws their frames.
show_on_display() { # PREFIX
  local managed=N
  if timeout 5 xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; then managed=Y; fi
  sed -i -e 's/"Graphics"="null"/"Graphics"="x11"/' -e "s/\"Managed\"=\".\"/\"Managed\"=\"$managed\"/" "$1/user.reg"
}

start_virtual_display() {
  local number
  exec 8< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null 9>&-)
  undo_by kill $!
  read -r -t 30 -u 8 number || fail 'The virtual display does not start'
  export DISPLAY=:$number
}
