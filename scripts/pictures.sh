# The documentation's and the help's pictures, taken by the tour: ./run pictures.
# shellcheck shell=bash

# PICTURE NAME: what the help shows.
help_pictures='03-welcome wizard-welcome
04-select-trigger wizard-trigger
40-popup-pointed-at wizard-popup
43-object-hierarchy wizard-object
44-object-properties wizard-object-properties
46-test-run-error wizard-error
48-application-crash wizard-crash
11-operations wizard-operations
10-with-restart wizard-restart
07-operation-type wizard-operation-type
41-button-labels wizard-click
45-close-processes wizard-close-processes
47-new-function wizard-function
12-post-recovery wizard-post-recovery
13-name wizard-name
14-summary wizard-finish
42-object-selection object-selection
49-edit-properties edit-properties
50-every-kind manager
51-properties-popup properties
31-add-scenario add-scenario
32-settings-filled recovery-tab
33-settings-sor settings-sor'

# The same, and: what only the documentation shows.
more_pictures='01-host-menu host-menu
19-host-journal host-journal
20-replace-question message
23-read-only-file manager-read-only
26-context-menu manager-menu
25-many-scenarios manager-many
35-about about
24-properties properties-general
55-properties-operations properties-operations
56-properties-post-recovery properties-post-recovery
52-properties-object-state properties-object-state
53-properties-error properties-error
54-properties-crash properties-crash'

# At 144 DPI and in the classic look, a few of each.
other_looks='44-object-properties wizard-object-properties
47-new-function wizard-function
50-every-kind manager
32-settings-filled recovery-tab
51-properties-popup properties'

# play_look NAME DPI THEMED: the tour in a prefix of its own; its folder is C:\Recovery, whatever the machine.
play_look() {
  local prefix=$run_folder/$1
  undo_by drop_prefix "$prefix"
  copy_prefix "$prefix"
  WINEPREFIX=$prefix bounded 60 env -u DISPLAY wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD \
    /d "$2" /f </dev/null >/dev/null 2>&1 9>&-
  WINEPREFIX=$prefix bounded 60 env -u DISPLAY wine reg add \
    'HKCU\Software\Microsoft\Windows\CurrentVersion\ThemeManager' /v ThemeActive /d "$3" /f </dev/null >/dev/null 2>&1 9>&-
  stop_wine "$prefix"
  show_on_display "$prefix"
  say "playing the tour at $2 DPI, theme $3"
  WINEPREFIX=$prefix bounded 300 wine "$programs/tour.exe" 'C:\Recovery' </dev/null 9>&- ||
    fail 'The tour met something that it did not expect.'
}

# take LOOK FOLDER PREFIX-OF-NAMES <PAIRS
take() {
  local picture name
  while read -r picture name; do
    convert "$run_folder/$1/drive_c/Recovery/$picture.bmp" -alpha off -strip -dither None -colors 255 \
      -define png:compression-level=9 "PNG8:$2/$3$name.png"
  done
}

renew_pictures() {
  make_run_folder
  start_virtual_display
  play_look plain 96 1
  play_look large 144 1
  play_look classic 96 0
  mkdir -p help/images docs/screenshots
  rm -f help/images/*.png docs/screenshots/*.png
  take plain help/images '' <<<"$help_pictures"
  take plain docs/screenshots '' <<<"$more_pictures"
  take large docs/screenshots 144- <<<"$other_looks"
  take classic docs/screenshots classic- <<<"$other_looks"
  say "$(ls help/images docs/screenshots | grep -c png) pictures, $(du -ch help/images docs/screenshots | tail -1 | cut -f1)"
}
