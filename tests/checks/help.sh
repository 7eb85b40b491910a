#!/bin/bash
# help.sh ROOT: the help is well formed, every topic has its page, every page is reachable, and its words are
# those of the windows that it describes.
set -eu
checks=$(dirname "$(readlink -f "$0")")
cd "$1"
export LC_ALL=C.UTF-8

pages() {
  local page part
  for page in help/*.htm; do
    iconv -f UTF-8 -t UTF-8 "$page" >/dev/null 2>&1 || echo "$page is not UTF-8"
    for part in '<!DOCTYPE html>' '<html lang="en">' '<meta charset="utf-8">' '<link rel="stylesheet" href="help.css">'; do
      grep -qxF "$part" "$page" || echo "$page lacks $part"
    done
    [ "$(grep -c '<h1>' "$page")" = 1 ] || echo "$page needs one h1"
    awk -f "$checks/wellformed.awk" "$page"
  done
  if grep -nE '@import|url\(' help/help.css; then echo 'the style sheet reaches outside'; fi
}

targets() { grep -oE ' href="[^"]*"' "$1" | sed -E 's/^ href="(.*)"$/\1/'; } # PAGE

links() {
  local page target file reached=' index.htm ' waiting=(index.htm)
  for page in help/*.htm; do
    while read -r target; do
      file=${target%%#*}
      file=${file:-${page#help/}}
      if [ ! -f "help/$file" ]; then
        echo "$page leads to $target, which is not there"
      elif [[ $target == *'#'* ]] && ! grep -qF " id=\"${target#*#}\"" "help/$file"; then
        echo "$page leads to $target, a place that is not there"
      fi
    done < <(targets "$page")
  done
  while [ ${#waiting[@]} -gt 0 ]; do
    page=${waiting[0]}
    waiting=("${waiting[@]:1}")
    while read -r target; do
      target=${target%%#*}
      [[ $target == *.htm && $reached != *" $target "* && -f help/$target ]] || continue
      reached+="$target "
      waiting+=("$target")
    done < <(targets "help/$page")
  done
  for page in help/*.htm; do
    [[ $reached == *" ${page#help/} "* ]] || echo "nothing leads to $page"
  done
}

# Each is there, in the size that its page says, and shown.
pictures() {
  local page source width height
  while IFS='|' read -r page source width height; do
    [ -f "help/$source" ] || { echo "$page shows $source, which is not there"; continue; }
    [ "$(od -An -tu4 --endian=big -j16 -N8 "help/$source" | tr -s ' ')" = " $width $height" ] ||
      echo "$page shows $source in another size than its own"
  done < <(grep -oE '<img src="[^"]+" alt="[^"]+" width="[0-9]+" height="[0-9]+"' help/*.htm |
    sed -E 's/^([^:]+):<img src="([^"]+)".* width="([0-9]+)" height="([0-9]+)"$/\1|\2|\3|\4/')
  for source in help/images/*.png; do
    grep -qF "src=\"${source#help/}\"" help/*.htm || echo "no page shows $source"
  done
}

topics() {
  local topic headings
  while read -r topic; do
    [ -f "help/$topic" ] || { echo "the topic $topic has no page"; continue; }
    headings=$(sed -nE 's/^<h2[^>]*>(.*)<\/h2>$/\1/p' "help/$topic" |
      grep -xE 'Fields|What happens next|Example|If something goes wrong|See also' | paste -sd'|')
    [ "$headings" = 'Fields|What happens next|Example|If something goes wrong|See also' ] ||
      echo "help/$topic: its headings are $headings"
  done < <(grep -oE 'L"[^"]+\.htm"' src/support/HelpTopics.h | tr -d 'L"')
}

squeeze() { sed -E 's/[[:space:]]+/ /g; s/^ //; s/ $//'; }
# What a reader sees; what a message fills in reads %s.
as_read() {
  sed -E 's/<var>[^<]*<\/var>/%s/g; s/<br>/ /g; s/<[^>]*>//g; s/&lt;/</g; s/&gt;/>/g; s/&amp;/\&/g' | squeeze
}
# The first text of each resource line, as it is shown.
as_shown() {
  sed -nE 's/^[^"]*"(([^"]|"")+)".*/\1/p' | sed -E 's/""/"/g; s/\\[rnt]/ /g; s/\\\\/\\/g; s/&([^ ])/\1/g' | squeeze
}
# absent_from TEXT: those lines of the input of which some part is not in the text.
absent_from() {
  TEXT=$1 awk '{
    n = split($0, part, "%s")
    for (i = 1; i <= n; i++) {
      gsub(/^ | $/, "", part[i])
      if (!index(ENVIRON["TEXT"], part[i])) { print; next }
    }
  }'
}

# TEMPLATE TOPIC, a line for each dialog.
screens() {
  tr '\n' ' ' <src/wizard/PageFlow.cpp | grep -oE '\{IDD_[A-Z_]+, [^}]*topics::k[A-Za-z]+\}' |
    sed -E 's/^\{(IDD_[A-Z_]+),.*topics::(k[A-Za-z]+)\}$/\1 \2/'
  echo 'IDD_MANAGER kManager
IDD_ADD_SCENARIO kAddScenario
IDD_RECOVERY_TAB kRecoveryTab
IDD_EDIT_PROPERTIES kObjectProps'
  grep -ohE 'IDD_PROPERTIES_[A-Z_]+' src/resources/ids.h | sort -u | sed 's/$/ kScenarioProperties/'
}

windows() {
  local screen constant topic template text title compared=0
  while read -r screen constant; do
    topic=$(sed -nE "s/.* $constant = L\"(.*)\";/\1/p" src/support/HelpTopics.h)
    [ -f "help/$topic" ] || { echo "$screen has no topic"; continue; }
    template=$(grep -lE "(^|\()$screen\b" src/resources/screens/*.rc) || continue
    compared=$((compared + 1))
    text=$(tr '\n' ' ' <"help/$topic" | as_read)
    title=$(grep -hE '^ *(PAGE_FRAME\(|CAPTION )' "$template" | as_shown)
    [ "$screen" = IDD_EDIT_PROPERTIES ] || [ -z "$title" ] || grep -qxF "<h1>$title</h1>" "help/$topic" ||
      echo "help/$topic is not headed $title"
    grep -hE '(BUTTON|CHECKBOX) "|CONTROL "[^"]+", [^,]+, "Button"|LTEXT "[^"]+:"|PROPERTIES_PAGE\(' "$template" |
      as_shown | grep -vx Help | absent_from "$text" | sed "s|^|help/$topic does not explain: |"
  done < <(screens)
  [ "$compared" -gt 12 ] || echo "only $compared templates were found"
}

# Kept for hosts and never shown in a window, or not words.
unspoken='IDS_(FILE_NOT_LEGAL|SCENARIO_NOT_FOUND|FILE_FILTER|LIBRARY_FILTER|ADDIN_[A-Z]+)'

words() {
  local text
  text=$(cat help/*.htm | tr '\n' ' ' | as_read)
  grep -E '^ +IDS_' src/resources/strings.rc | grep -vE "^ +$unspoken " | as_shown | absent_from "$text" |
    sed 's/^/the help does not mention: /'
  cat help/*.htm | tr '\n' ' ' | grep -oE '<samp>([^<]|<var>|</var>|<br>)*</samp>' | as_read | sort -u |
    grep -vxFf <(cat src/resources/strings.rc src/resources/screens/*.rc | as_shown) |
    sed 's/^/no window says: /' || true
}

found=$(pages; links; pictures; topics; windows; words)
[ -z "$found" ] || printf '%s\n' "$found"
count=$(ls help/*.htm | wc -l)
echo "$count pages, $(printf '%s' "$found" | grep -c '' || true) complaints"
[ "$count" -gt 20 ] && [ -z "$found" ]
