# Writes a price list of all variant sets as CSV, from a table with the price of each state, such as prices.csv:
#
#     workbench run price-list.py SCENE -- PRICES > LIST
#
# A state without a price is an error, so that no set is offered too cheaply.

import sys
import tables
from decimal import Decimal

if len(sys.argv) != 2:
    sys.exit("usage: workbench run price-list.py SCENE -- PRICES > LIST")
prices = {}
for row in tables.read(sys.argv[1]):
    prices[row["Kind"], row["Variant"], row["State"]] = Decimal(row["Price"])

rows = [["Set", "Option", "Price"]]
for name in getVariantSets():
    total = Decimal(0)
    for option in getVariantSetStates(name):
        if option not in prices:
            sys.exit('%s: no price for %s "%s" in the state "%s"' % ((name,) + option))
        rows.append([name, "%s: %s" % option[1:], prices[option]])
        total += prices[option]
    rows.append([name, "Total", total])
tables.write(rows)
