# Tables in CSV files, UTF-8, for the scripts in this folder.

import codecs
import csv
import sys


def read(path):
    """The rows, each a dictionary by the names in the first row. Texts are str in every Python."""
    if sys.version_info[0] == 2:
        table = open(path, "rb")
        if table.read(3) != codecs.BOM_UTF8: # which spreadsheets put in front
            table.seek(0)
    else:
        table = open(path, encoding="utf-8-sig", newline="")
    with table:
        return list(csv.DictReader(table))


def write(rows):
    """Writes rows, each a list, to standard output."""
    csv.writer(sys.stdout, lineterminator="\n").writerows(rows)
