# How Doxygen is shown a header, line by line in the same place:
# - a comment before a namespace is what the file holds, or the first sentence on the class that it is named for; what a
#   namespace holds stands in rooms.dox;
# - a comment before @{ goes for each one that follows until @}, where it stands: Doxygen would put them together at the end;
# - a setter right below its getter shares the getter's comment;
# - a property of Qt is as the function that reads it;
# - what is deleted is left out, and which classes are friends; a defaulted comparison says that it goes member by member.
function indent(line) {
  match(line, /^ */)
  return RLENGTH
}
function words(from, to, text, n, line) {
  for (n = from; n <= to; ++n) {
    line = lines[n]
    sub(/^ *\/\/\/ ?/, "", line)
    text = text " " line
  }
  return text
}
# The first sentence of the comment on the class of the file's name, or on the first thing that has one.
function holds(stem, n, from, first, text) {
  stem = FILENAME
  sub(/.*\//, "", stem)
  sub(/\.h$/, "", stem)
  for (n = 1; n <= NR; ++n) {
    if (lines[n] ~ /^\/\/\//) {
      if (!from) from = n
      continue
    }
    if (from && !first) first = words(from, n - 1)
    if (from && lines[n] ~ "(class|struct)( BRIVANE_API)? " stem "[ :]") {
      first = words(from, n - 1)
      break
    }
    from = 0
  }
  text = first
  sub(/\. .*/, ".", text)
  return text
}
{ lines[NR] = $0 }
END {
  comment = 0  # where the comment began that is being read
  told = 0     # whether the file has said what it holds
  shared = ""  # the comment that goes for each one
  for (n = 1; n <= NR; ++n) {
    line = lines[n]
    if (line ~ /^ *\/\/\//) {
      if (!comment) comment = n
      if (line ~ /@\{/ && lines[comment] !~ /\\name/) {
        shared = words(comment, n - 1)
        depth = indent(line)
        first = n + 1
        lines[n] = ""
      }
      if (line ~ /@\}/) {
        if (shared != "") lines[n] = ""
        shared = ""
        comment = 0
      }
      continue
    }
    if (line ~ /^namespace .*\{$/ && comment && !told) {
      lines[comment - 1] = "/// \\file"
      told = 1
    } else if (shared != "" && n > first && !comment && indent(line) == depth && line ~ /^ *[^ })]/) {
      lines[n] = "/**" shared " */" line
    } else if (!comment && match(line, /void ([Ss]et|Zet)[A-Za-z]+\(/)) {
      name = substr(line, RSTART + 8, RLENGTH - 9)
      getter = index(lines[n - 1], " " name "(") ? name : tolower(substr(name, 1, 1)) substr(name, 2)
      if (index(lines[n - 1], " " getter "(")) lines[n] = "/** \\copydoc " getter "() */" line
    }
    if (!comment && match(line, /Q_PROPERTY\(.* READ [A-Za-z]+/)) {
      name = substr(line, RSTART, RLENGTH)
      sub(/.* READ /, "", name)
      lines[n] = "/** As " name "(). */" line
    }
    if (line ~ /= delete;$|friend class .*;$/) lines[n] = ""
    if (line ~ /friend .*operator(==|<=>)\(.*\) = default;/) lines[n] = "/** Member by member. */" line
    comment = 0
  }
  if (!told) lines[1] = "/** \\file " substr(FILENAME, index(FILENAME, "brivane/")) " \\brief" holds() " */"
  for (n = 1; n <= NR; ++n) print lines[n]
}
