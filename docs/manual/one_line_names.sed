# The section NAME of a manual page has one line: without Doxygen's second one, the brief description.
/^\.SH NAME/,/^\.SH SYNOPSIS/ {
  /^\.PP/d
  /^ \\- /d
}
