"""The texts that help() shows: the given ones, word for word, and nothing else."""

import pydoc
import unittest

HANDLE = [
    ("setName", "Sets a Name.\n\n@param name: The Name.\n\n@type name: string"),
    ("getName", "Gets the Name.\n\n@return: The Name.\n\n@rtype: string"),
    ("setHotkeyString", "Sets a Key.\n\n@param key: The Key.\n\n@type key: string"),
    ("setHotkey",
     "Sets a Key.\n\n@param key: The Key.\n\n@type key: string\n"
     "\nSets a Key.\n\n@param key: The Key.\n\n@type key: integer (unsigned)"
     "\n\n@param modifier: The modifier.\n\n@type modifier: integer (unsigned)"),
    ("getHotkey", "Gets the Key.\n\n@return: The Key.\n\n@rtype: string"),
    ("addGeometry",
     "Adds a geometry variant.\n\n@param node: The geometry switch.\n\n@type node: qxNodePtr"
     "\n\n@param state: The node state.\n\n@type state: string"),
    ("addMaterial",
     "Adds a material variant.\n\n@param node: The material switch.\n\n@type node: qxMaterialPtr"
     "\n\n@param state: The material state.\n\n@type state: string"),
    ("addLight",
     "Adds a light variant.\n\n@param node: The light switch.\n\n@type node: qxNodePtr"
     "\n\n@param state: The light state.\n\n@type state: string"),
    ("setClippingState",
     "Sets the clipping state.\n\n@param state: The clippping state (0=no change, 1=enable"
     " clipping, 2=disable clipping, 3=set clipping plane values but keep the rest))."
     "\n\n@type state: string"),
    ("addClippingPlane",
     "Adds a Clipping Plane.\n\n@param position: The position.\n\n@type position: bool"
     "@param normal: The normal.\n\n@type normal: bool"
     "@param invertDirection: Toggle invert direction.\n\n@type invertDirection: bool"
     "@param hideScene: Toggle hide scene.\n\n@type hideScene: bool"
     "@param showClippingPlane: Toggle show clipping plane.\n\n@type showClippingPlane: bool"
     "@param showGrid: Toggle show grid.\n\n@type showGrid: bool"
     "@param showContour: Toggle show contour.\n\n@type showContour: bool"),
    ("addCurrentClippingPlane", "Adds current Clipping Plane."),
    ("addView", "Adds a viewpoint.\n\n@param viewpoint: The viewpoint.\n\n@type viewpoint: string"),
    ("addScript", "Adds a script.\n\n@param script: The script.\n\n@type script: string"),
    ("getScript", "Gets the script.\n\n@return: The script.\n\n@rtype: string"),
    ("getTargetNodeNames",
     "Gets the names of the target nodes.\n\n@return: The names.\n\n@rtype: vector of string"),
    ("setValue",
     "Adds a key/value pair to the variant set.\nKeys are unique. Setting another value for the"
     " same key overwrites the previous value.\n\n@param key: The key.\n\n@type key: string"
     "\n\n@param value: The value.\n\n@type value: string\n\n"),
    ("getValue",
     "Gets the value stored for the given key.\n\n@param key: The key for which the value should"
     " be returned.\n\n@type key: string\n\n@return: The value. Empty string if the variant set"
     " does not contain the given key.\n\n@rtype: string"),
]

ACTIVATES = ("Activates a variant set. The variant set will activate all states of its defined"
             " node and material variants.\n\n@param name: The name of the variant set."
             "\n\n@type name: string")

FUNCTIONS = [
    ("createAndCaptureVariantSet",
     "Captures variants to variant set.\n\n@param name: The name of the variant set."
     "\n\n@type name: string@param name: Name of the variant set group.\n\n@type name: string"),
    ("activateCapturedVariantSet",
     "Activates a captured variant set. The variant set will activate all states of its defined"
     " node and material variants.\n\n@param name: The name of the captured variant set."
     "\n\n@type name: string"),
    ("selectVariantSet",
     ACTIVATES + "\n\n" + ACTIVATES + "\n\n@param excludeViewpoint: exclude viewpoint from this"
     " variant set.\n\n@type excludeViewpoint: bool"),
]


def help_of(thing):
    """What help(thing) shows below its first two lines, without its indentation."""
    lines = pydoc.plain(pydoc.render_doc(thing)).splitlines()[3:]
    return "\n".join(line.strip() for line in lines)


class Texts(unittest.TestCase):
    # Boost.Python begins each text with a line break.

    def test_the_handle_and_its_methods(self):
        self.assertEqual(qxVariantSetPtr.__doc__,
                         "The qxVariantSetPtr is a wrapper class for qxVariantSet.\n")
        for name, text in HANDLE:
            self.assertEqual(getattr(qxVariantSetPtr, name).__doc__, "\n" + text, name)

    def test_the_handle_has_no_other_methods(self):
        methods = [name for name in vars(qxVariantSetPtr) if not name.startswith("__")]
        self.assertEqual(sorted(methods), sorted(name for name, _ in HANDLE))

    def test_the_functions_and_their_module(self):
        self.assertEqual(qxVariants.__doc__,
                         "Contains functions to capture and activate variant sets. \n")
        for name, text in FUNCTIONS:
            self.assertEqual(getattr(qxVariants, name).__doc__, "\n" + text, name)
        names = [name for name in vars(qxVariants) if not name.startswith("__")]
        self.assertEqual(sorted(names), sorted(name for name, _ in FUNCTIONS))

    def test_help_shows_the_texts_without_signatures(self):
        self.assertEqual(help_of(qxVariantSetPtr.addView).strip(), dict(HANDLE)["addView"])
        self.assertEqual(help_of(selectVariantSet).strip(), dict(FUNCTIONS)["selectVariantSet"])

    def test_other_modules_keep_their_signatures(self):
        self.assertIn("heard(", stage.heard.__doc__)
