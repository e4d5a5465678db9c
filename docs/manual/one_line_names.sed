# The section NAME of a manual page has one line; Doxygen adds the brief description, which goes.
/^\.SH NAME/,/^\.SH SYNOPSIS/ {
  /^\.PP/d
  /^ \\- /d
}
