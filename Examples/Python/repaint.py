# Gives all variant sets that choose a paint another one, or those of one group:
#
#     workbench run repaint.py SCENE --save OUT -- SWITCH-MATERIAL PAINT [GROUP]

import sys

if len(sys.argv) not in (3, 4):
    sys.exit("usage: workbench run repaint.py SCENE --save OUT -- SWITCH-MATERIAL PAINT [GROUP]")
switch, paint = sys.argv[1:3]
if paint not in getVariantStates("material", switch):
    sys.exit('no material variant "%s" with a state "%s"' % (switch, paint))
if len(sys.argv) == 3:
    names = getVariantSets()
elif sys.argv[3] in getVariantGroups():
    names = getVariantSets(sys.argv[3])
else:
    sys.exit('no group "%s"' % sys.argv[3])

for name in names:
    for kind, variant, state in getVariantSetStates(name):
        if (kind, variant) == ("material", switch) and state != paint:
            # The variant keeps its place among those of the set.
            findVariantSet(name).addMaterial(findMaterial(switch), paint)
            print("%s: %s instead of %s" % (name, paint, state))
