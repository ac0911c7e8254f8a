// The module has no functions but those of the libraries that are linked to it.
