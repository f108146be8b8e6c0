"""Prints comma-separated values as a reader of another making sees them: one row a line."""

import csv
import sys

sys.stdout.reconfigure(encoding="utf-8")
with open(sys.argv[1], encoding="utf-8", newline="") as file:
    for row in csv.reader(file, strict=True):
        print(row)
