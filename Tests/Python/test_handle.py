# -*- coding: utf-8 -*-
"""What scripts do with a set through its handle."""

import sys
import unittest

SUMMER = u"Sommer äß€ 🚗"


def native(text):
    """Text as results have it: UTF-8 bytes in Python 2.7."""
    return text.encode("utf-8") if sys.version_info[0] == 2 else text


class Handle(unittest.TestCase):
    def setUp(self):
        stage.clear()
        self.handle = stage.createSet("Winter")

    def test_texts_beyond_ascii_go_both_ways(self):
        for given in (SUMMER, native(SUMMER)):
            self.handle.setName("Winter")
            self.handle.setName(given)
            self.handle.addScript(given)
            self.handle.setHotkeyString(given)
            self.handle.setValue(given, given)
            for answer in (self.handle.getName(), self.handle.getScript(),
                           self.handle.getHotkey(), self.handle.getValue(given)):
                self.assertEqual(answer, native(SUMMER))
                self.assertIs(type(answer), str)
            stage.addTargetNodeName(given, given)
            self.assertEqual(list(self.handle.getTargetNodeNames()), [native(SUMMER)])

    def test_one_and_two_arguments_select_with_and_without_the_viewpoint(self):
        stage.addViewpoint("Front", 1)
        stage.addViewpoint("Back", 2)
        self.handle.addView("Front")
        stage.createSet("Behind").addView("Back")
        selectVariantSet("Winter")
        self.assertEqual(stage.viewpoint(), "Front")
        selectVariantSet("Behind", True)
        self.assertEqual(stage.viewpoint(), "Front")
        selectVariantSet("Behind", False)
        self.assertEqual(stage.viewpoint(), "Back")

    def test_capture_from_a_script_brings_the_scene_back(self):
        wheels = stage.addSwitch("Wheels", ["Steel", "Alloy"])
        for state in ("Alloy", "Steel"):
            self.handle.addGeometry(findNode("Wheels"), state)
            selectVariantSet("Winter")
            createAndCaptureVariantSet(state, "Captured")
        createAndCaptureVariantSet(groupName="Captured", variantName="Now")
        activateCapturedVariantSet("Alloy")
        self.assertEqual(stage.choiceOf(wheels), 1)
        activateCapturedVariantSet("Now")
        self.assertEqual(stage.choiceOf(wheels), 0)
