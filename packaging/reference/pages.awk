# How Doxygen is shown a page of docs/. A link to a page that is not in the reference goes to where that one is installed,
# beside it; `pages` has the file names of those that are, with a blank on either side of each. A picture is shown from where
# the pages are. A list of its headings stands below the title, and a heading has the name that stands behind it as a
# comment, for the headers to refer to.
FNR == 2 && $0 == "" {
  print "[TOC]"
  next
}
{
  line = ""
  rest = $0
  while (match(rest, /\[[^]]+\]\([^)]+\.md\)/)) {
    link = substr(rest, RSTART, RLENGTH)
    text = substr(link, 2, index(link, "](") - 2)
    target = substr(link, index(link, "](") + 2)
    sub(/\)$/, "", target)
    file = target
    sub(/.*\//, "", file)
    if (!index(pages, " " file " ")) link = "<a href=\"../docs/" target "\">" text "</a>"
    line = line substr(rest, 1, RSTART - 1) link
    rest = substr(rest, RSTART + RLENGTH)
  }
  line = line rest
  if (line ~ /^#+ .* <!-- [a-z]+ -->$/) {
    sub(/<!-- /, "{#", line)
    sub(/ -->$/, "}", line)
  }
  sub(/\]\(images\//, "](../docs/images/", line)
  print line
}
