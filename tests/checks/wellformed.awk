# Complaints about one page: tags that do not nest, bare characters, ids that stand twice, and what a page that
# opens from a folder in any viewer must not have. Names elements as the page writes them, in lower case.
BEGIN { split("meta link br img", names); for (i in names) empty[names[i]] = 1 }
{ text = text $0 "\n" }
END {
  while (match(text, /<[^>]*>/)) {
    check_text(substr(text, 1, RSTART - 1))
    tag = substr(text, RSTART + 1, RLENGTH - 2)
    text = substr(text, RSTART + RLENGTH)
    if (tag == "!DOCTYPE html") continue
    if (tag ~ /^\//) close_tag(substr(tag, 2)); else open_tag(tag)
  }
  check_text(text)
  if (depth) complain("<" open[depth] "> is not closed")
}
function open_tag(tag, name) {
  if (tag !~ /^[a-z][a-z0-9]*( [a-z-]+="[^"<>]*")*$/) complain("<" tag "> is no tag")
  name = tag
  sub(/ .*/, "", name)
  if (name == "img" && tag !~ / src="images\/[a-z-]+\.png" alt="[^"]+" width="[0-9]+" height="[0-9]+"$/)
    complain("<" tag "> is no picture of the help")
  if (name ~ /^(script|iframe|object|style|form)$/ || tag ~ / (on[a-z]+|style)=/ || (name != "img" && tag ~ / src=/))
    complain("<" tag "> does not belong here")
  if (match(tag, / id="[^"]*"/) && ids[substr(tag, RSTART, RLENGTH)]++) complain("<" tag "> has an id that stands twice")
  if (!(name in empty)) open[++depth] = name
}
function close_tag(name) {
  if (!depth || open[depth] != name) complain("</" name "> closes <" open[depth] ">"); else depth--
}
function check_text(part) {
  gsub(/&(amp|lt|gt);/, "", part)
  if (part ~ /[&<>]/) complain("a bare character in: " part)
}
function complain(what) { print FILENAME ": " what }
