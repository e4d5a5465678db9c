# filled in by the install work
