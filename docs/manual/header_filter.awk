# What Doxygen reads in place of include/dakvmpx.h: the same comments, their conventions written as
# commands. A group's first paragraph is its brief description, "Domain:   ..." a paragraph with
# that title, <word> no tag; vector functions are named by type and grade.
/^(\/\*\*| \*)/ {
  gsub(/<[A-Za-z]+>/, "\\\\&")
  if (group) sub(/^ \* /, " * \\brief ")
  group = / \\defgroup /
  if (match($0, /^ \* [A-Z][a-z]+: +/)) {
    labelled = 1
    print " * \\par " substr($0, 4, index($0, ":") - 4)
    text = substr($0, RLENGTH + 1)
    if (text ~ /^[a-z][a-z]+( |,)/) text = toupper(substr(text, 1, 1)) substr(text, 2)
    $0 = " * " text
  } else if (!/^ \*  /) {
    labelled = 0
  }
  if (labelled) sub(/^ \* +/, " * ")
}
/^int32_t daks.*\(/ {
  split($2, part, /[_(]/)
  print "/** Grade " part[3] ", element type " (part[2] == "64f" ? "double" : "float") ". */"
}
{ print }
