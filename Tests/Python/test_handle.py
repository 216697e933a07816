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

    def test_a_handle_follows_its_set_through_a_new_name(self):
        other = stage.findSet("Winter")
        other.setName("Sommer")
        self.assertEqual(self.handle.getName(), "Sommer")
        self.assertEqual(stage.findSet("Winter").getName(), "")
        self.handle.setValue("price", "1")
        self.assertEqual(stage.findSet("Sommer").getValue("price"), "1")
        stage.heard()
        selectVariantSet("Winter")
        self.assertEqual(stage.heard(), [])
        selectVariantSet("Sommer")
        self.assertEqual(stage.heard()[-1], "variantSetSelected")

    def test_variants_of_objects_found_by_name(self):
        stage.addSwitch("Wheels", ["Steel", "Alloy"])
        stage.addSwitchMaterial("Paint", ["Red", "Blue"])
        stage.addLight("Lamp")
        stage.heard()
        self.handle.addGeometry(findNode("Wheels"), "Alloy")
        self.handle.addMaterial(findMaterial("Paint"), "Blue")
        self.handle.addLight(findNode("Lamp"), "!Disable")
        self.assertEqual(stage.heard(),
                         ["nodeVariantAdded", "materialVariantAdded", "lightVariantAdded"])
        self.assertEqual(stage.statesOf("Winter"),
                         ["Wheels=Alloy", "Paint=Blue", "Lamp=!Disable"])
        selectVariantSet("Winter")
        self.assertEqual(stage.choiceOf(findNode("Wheels")), 1)

    def test_hotkeys_of_key_codes(self):
        self.handle.setHotkey(65)
        self.assertEqual(self.handle.getHotkey(), " A")
        self.handle.setHotkey(70, 0x06000000)
        self.assertEqual(self.handle.getHotkey(), "Shift-Ctrl F")
        self.handle.setHotkey(70, 0x0E000000)
        self.assertEqual(self.handle.getHotkey(), " F")
        self.handle.setHotkey(32, 0)
        self.assertEqual(self.handle.getHotkey(), " F")

    def test_the_clipping_plane_is_copied_and_comes_back(self):
        setClippingPlane(Pnt3f(0.1, -2.5, 1e-7), Vec3f(0, 0.6, 0.8), true)
        setClippingPlaneVisualization(false, Vec3f(0.11, 0.22, 0.33))
        setClippingGridVisualization(true, Vec3f(0.44, 0.55, 0.66))
        setClippingContourVisualization(false, Vec3f(0.77, 0.88, 0.99), 7)
        setClippingHideScene(true)
        words = [getClippingPlanePosition, getClippingPlaneNormal, getClippingPlaneColor,
                 getClippingGridColor, getClippingContourColor, getClippingContourWidth,
                 getClippingPlaneInvertDirection, getClippingHideScene, getClippingShowPlane,
                 getClippingShowGrid, getClippingShowContour]
        before = [str(word()) for word in words]
        self.handle.addCurrentClippingPlane()
        self.handle.setClippingState(1)

        setClippingPlane(Pnt3f(0, 0, 0), Vec3f(0, 1, 0), false)
        setClippingPlaneVisualization(true, Vec3f(0, 0, 0))
        setClippingGridVisualization(false, Vec3f(0, 0, 0))
        setClippingContourVisualization(true, Vec3f(0, 0, 0), 1)
        setClippingHideScene(false)
        selectVariantSet("Winter")
        self.assertEqual([str(word()) for word in words], before)

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

    def test_a_set_script_runs_with_the_names_of_all_scripts(self):
        global seen
        seen = []
        self.handle.addScript("seen.append(stage.findSet('Winter').getName())")
        selectVariantSet("Winter")
        self.assertEqual(seen, ["Winter"])

    def test_a_set_script_that_fails_ends_neither_selection_nor_caller(self):
        self.handle.addScript("raise ValueError('broken')")
        stage.heard()
        selectVariantSet("Winter")
        self.assertEqual(stage.heard()[-1], "variantSetSelected")
        self.assertIn("ValueError: broken", "\n".join(stage.takeErrors()))

    def test_a_set_script_that_removes_its_set_finishes_the_selection(self):
        stage.addViewpoint("Front", 1)
        stage.addSwitch("Wheels", ["Steel", "Alloy"])
        self.handle.addGeometry(findNode("Wheels"), "Alloy")
        self.handle.addScript("stage.removeSet('Winter')\nstage.removeSet('Winter')")
        stage.heard()
        selectVariantSet("Winter")
        self.assertEqual(stage.choiceOf(findNode("Wheels")), 1)
        self.assertEqual(stage.findSet("Winter").getName(), "")
        heard = stage.heard()
        self.assertEqual(heard.count("variantSetRemoved"), 1)
        self.assertEqual(heard[-1], "variantSetSelected")

    def test_capture_from_a_script_brings_the_scene_back(self):
        stage.addSwitch("Wheels", ["Steel", "Alloy"])
        self.handle.addGeometry(findNode("Wheels"), "Alloy")
        selectVariantSet("Winter")
        createAndCaptureVariantSet("Now", groupName="Captured")
        self.assertEqual(stage.statesOf("Now"), ["Wheels=Alloy"])
        createAndCaptureVariantSet("Now", "Captured")
        self.handle.addGeometry(findNode("Wheels"), "Steel")
        selectVariantSet("Winter")
        self.assertEqual(stage.choiceOf(findNode("Wheels")), 0)
        activateCapturedVariantSet("Now")
        self.assertEqual(stage.choiceOf(findNode("Wheels")), 1)
