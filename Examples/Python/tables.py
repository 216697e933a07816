# Tables in CSV files, UTF-8, for the scripts in this folder.

import csv
import sys


def read(path):
    """The rows, each a dictionary by the names in the first row. Texts are str in every Python."""
    if sys.version_info[0] == 2:
        table = open(path, "rb")
    else:
        table = open(path, encoding="utf-8", newline="")
    with table:
        return list(csv.DictReader(table))


def write(rows):
    """Writes rows, each a list, to standard output."""
    csv.writer(sys.stdout, lineterminator="\n").writerows(rows)
