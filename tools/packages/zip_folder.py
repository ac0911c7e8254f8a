"""Packs a folder into a zip file whose members have one date, in one order: the same folder gives the same file."""

import sys
import time
import zipfile
from pathlib import Path


def main(folder: Path, archive: Path, date: int) -> None:
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        for path in sorted(path for path in folder.rglob("*") if path.is_file()):
            member = zipfile.ZipInfo(path.relative_to(folder.parent).as_posix(), time.gmtime(date)[:6])
            member.external_attr = 0o100644 << 16
            member.compress_type = zipfile.ZIP_DEFLATED
            packed.writestr(member, path.read_bytes())


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]), int(sys.argv[3]))
