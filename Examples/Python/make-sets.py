# Makes a variant set of each row of a table, such as sets.csv:
#
#     workbench run make-sets.py SCENE --save OUT -- TABLE
#
# The columns are "Group" and "Set", and for each thing that varies one that is called like its kind and
# its name in the scene: "node Shape". An empty cell leaves the thing out of the set.

import sys
import tables


def add(made, column, state):
    kind, name = column.split(" ", 1)
    if kind == "node":
        made.addGeometry(findNode(name), state)
    elif kind == "material":
        made.addMaterial(findMaterial(name), state)
    elif kind == "light":
        made.addLight(findNode(name), state)
    else:
        sys.exit('"%s": a column is that of a node, a material or a light' % column)
    # Now there is a variant, unless there is no such thing in the scene.
    if state not in getVariantStates(kind, name):
        sys.exit('the scene has no %s with the state "%s"' % (column, state))


if len(sys.argv) != 2:
    sys.exit("usage: workbench run make-sets.py SCENE --save OUT -- TABLE")
for row in tables.read(sys.argv[1]):
    # A name that is taken gets a number.
    made = createVariantSet(row.pop("Set"), row.pop("Group"))
    for column in sorted(row):
        if row[column]:
            add(made, column, row[column])
    print("made " + made.getName())
