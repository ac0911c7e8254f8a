# To be read by other scripts: packages have the date of the last commit, and rights that depend on nobody.
if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
  SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
fi
export SOURCE_DATE_EPOCH
umask 022
