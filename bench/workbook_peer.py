"""Prints the seconds that a Python library takes for a workbook of so many columns and rows as WorkbookBench writes."""

import random
import sys
import tempfile
import time

import xlwt

columns, rows = int(sys.argv[1]), int(sys.argv[2])
remarks = ["spare in store", "см. примечание", "Ανταλλακτικό", "备用泵", "by vendor", "API 610 OH2"]
random.seed(7)
table = [
    [random.choice(remarks) if random.random() < 0.125 else random.randrange(1000000) / 100 for _ in range(columns)]
    for _ in range(rows)
]
number, text = xlwt.easyxf(num_format_str="0.00"), xlwt.easyxf("align: horiz left")

start = time.process_time()
book = xlwt.Workbook(encoding="utf-8")
sheet = book.add_sheet("Schedule")
for row, values in enumerate(table):
    for column, value in enumerate(values):
        sheet.write(row, column, value, text if isinstance(value, str) else number)
with tempfile.TemporaryFile() as file:
    book.save(file)
print("%.3f" % (time.process_time() - start))
