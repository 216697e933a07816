# Writes all variant sets with their states as a table, CSV; make-sets.py makes sets of such a table:
#
#     workbench run export-sets.py SCENE > TABLE

import tables

columns, sets = [], []
for group in getVariantGroups() + [""]:  # those without a group come last
    for name in getVariantSets(group):
        states = {}
        for kind, variant, state in getVariantSetStates(name):
            states["%s %s" % (kind, variant)] = state
            if "%s %s" % (kind, variant) not in columns:
                columns.append("%s %s" % (kind, variant))
        sets.append((group, name, states))

rows = [["Group", "Set"] + columns]
for group, name, states in sets:
    rows.append([group, name] + [states.get(column, "") for column in columns])
tables.write(rows)
