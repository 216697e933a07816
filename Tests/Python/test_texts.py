"""The texts that help() shows: the given ones, word for word, and nothing else."""

import pydoc
import unittest

def takes(name, description, kind):
    return "\n\n@param %s: %s\n\n@type %s: %s" % (name, description, name, kind)


def gives(description, kind):
    return "\n\n@return: %s\n\n@rtype: %s" % (description, kind)


HANDLE = {
    "setName": "Sets a Name." + takes("name", "The Name.", "string"),
    "getName": "Gets the Name." + gives("The Name.", "string"),
    "setHotkeyString": "Sets a Key." + takes("key", "The Key.", "string"),
    "setHotkey": "Sets a Key." + takes("key", "The Key.", "string") + "\n\nSets a Key."
                 + takes("key", "The Key.", "integer (unsigned)")
                 + takes("modifier", "The modifier.", "integer (unsigned)"),
    "getHotkey": "Gets the Key." + gives("The Key.", "string"),
    "addGeometry": "Adds a geometry variant." + takes("node", "The geometry switch.", "qxNodePtr")
                   + takes("state", "The node state.", "string"),
    "addMaterial": "Adds a material variant."
                   + takes("node", "The material switch.", "qxMaterialPtr")
                   + takes("state", "The material state.", "string"),
    "addLight": "Adds a light variant." + takes("node", "The light switch.", "qxNodePtr")
                + takes("state", "The light state.", "string"),
    "setClippingState":
        "Sets the clipping state." + takes("state", "The clippping state (0=no change, 1=enable"
        " clipping, 2=disable clipping, 3=set clipping plane values but keep the rest)).", "string"),
    "addClippingPlane":
        "Adds a Clipping Plane.\n\n@param position: The position.\n\n@type position: bool"
        "@param normal: The normal.\n\n@type normal: bool"
        "@param invertDirection: Toggle invert direction.\n\n@type invertDirection: bool"
        "@param hideScene: Toggle hide scene.\n\n@type hideScene: bool"
        "@param showClippingPlane: Toggle show clipping plane.\n\n@type showClippingPlane: bool"
        "@param showGrid: Toggle show grid.\n\n@type showGrid: bool"
        "@param showContour: Toggle show contour.\n\n@type showContour: bool",
    "addCurrentClippingPlane": "Adds current Clipping Plane.",
    "addView": "Adds a viewpoint." + takes("viewpoint", "The viewpoint.", "string"),
    "addScript": "Adds a script." + takes("script", "The script.", "string"),
    "getScript": "Gets the script." + gives("The script.", "string"),
    "getTargetNodeNames":
        "Gets the names of the target nodes." + gives("The names.", "vector of string"),
    "setValue":
        "Adds a key/value pair to the variant set.\nKeys are unique. Setting another value for the"
        " same key overwrites the previous value." + takes("key", "The key.", "string")
        + takes("value", "The value.", "string") + "\n\n",
    "getValue":
        "Gets the value stored for the given key."
        + takes("key", "The key for which the value should be returned.", "string")
        + gives("The value. Empty string if the variant set does not contain the given key.",
                "string"),
}

ACTIVATES = ("Activates a %s. The variant set will activate all states of its defined"
             " node and material variants.")
NAME = takes("name", "The name of the variant set.", "string")

FUNCTIONS = {
    "createAndCaptureVariantSet":
        "Captures variants to variant set." + NAME
        + "@param name: Name of the variant set group.\n\n@type name: string",
    "activateCapturedVariantSet":
        ACTIVATES % "captured variant set"
        + takes("name", "The name of the captured variant set.", "string"),
    "selectVariantSet":
        ACTIVATES % "variant set" + NAME + "\n\n" + ACTIVATES % "variant set" + NAME
        + takes("excludeViewpoint", "exclude viewpoint from this variant set.", "bool"),
}


def help_of(thing):
    """What help(thing) shows below its first two lines, without its indentation."""
    lines = pydoc.plain(pydoc.render_doc(thing)).splitlines()[3:]
    return "\n".join(line.strip() for line in lines)


class Texts(unittest.TestCase):
    def expect_texts(self, owner, own, texts):
        self.assertEqual(owner.__doc__, own)
        names = [name for name in vars(owner) if not name.startswith("__")]
        self.assertEqual(sorted(names), sorted(texts))
        for name, text in texts.items():
            # Boost.Python begins each text with a line break.
            self.assertEqual(getattr(owner, name).__doc__, "\n" + text, name)

    def test_the_handle_and_the_functions_have_these_texts_and_no_other_names(self):
        self.expect_texts(qxVariantSetPtr,
                          "The qxVariantSetPtr is a wrapper class for qxVariantSet.\n", HANDLE)
        self.expect_texts(qxVariants,
                          "Contains functions to capture and activate variant sets. \n", FUNCTIONS)

    def test_help_shows_the_texts_without_signatures_which_other_modules_keep(self):
        self.assertEqual(help_of(qxVariantSetPtr.addView).strip(), HANDLE["addView"])
        self.assertEqual(help_of(selectVariantSet).strip(), FUNCTIONS["selectVariantSet"])
        self.assertIn("heard(", stage.heard.__doc__)
