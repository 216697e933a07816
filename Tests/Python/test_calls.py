# -*- coding: utf-8 -*-
"""How functions and handles are called: names, keywords, overloads, wrong arguments."""

import sys
import unittest


class Calls(unittest.TestCase):
    def setUp(self):
        stage.clear()

    def test_names_need_no_prefix(self):
        for name in "selectVariantSet createAndCaptureVariantSet activateCapturedVariantSet".split():
            self.assertIs(globals()[name], getattr(qxVariants, name))
        self.assertIs(qxVariantSetPtr, sys.modules["qxVariantSetPtr"].qxVariantSetPtr)

    def test_arguments_have_names(self):
        wheels = stage.addSwitch("Wheels", ["Steel", "Alloy"])
        paint = stage.addSwitchMaterial("Paint", ["Red", "Blue"])
        lamp = stage.addLight("Lamp")
        handle = stage.createSet("Winter")
        handle.setName(name="Sommer")
        handle.setHotkeyString(key="Ctrl+1")
        handle.setHotkey(key=65)
        handle.setHotkey(modifier=0x02000000, key=66)
        handle.addGeometry(state="Steel", node=wheels)
        handle.addMaterial(state="Blue", material=paint)
        handle.addLight(state="!Disable", light=lamp)
        handle.setClippingState(state=1)
        handle.addClippingPlane(normal=Vec3f(0, 0, 1), position=Pnt3f(1, 2, 3), hideScene=False,
                                invertDirection=True, showGrid=True, showContour=False,
                                showClippingPlane=False)
        handle.addView(viewpoint="Front")
        handle.addScript(script="pass")
        handle.setValue(value="2", key="price")
        self.assertEqual(handle.getValue(key="price"), "2")
        self.assertEqual(handle.getHotkey(), "Shift B")
        self.assertEqual(stage.statesOf("Sommer"), ["Wheels=Steel", "Paint=Blue", "Lamp=!Disable"])
        selectVariantSet(name="Sommer")
        self.assertEqual((getClippingPlaneInvertDirection(), getClippingHideScene(),
                          getClippingShowPlane(), getClippingShowGrid(), getClippingShowContour()),
                         (True, False, False, True, False))
        selectVariantSet(excludeViewpoint=True, name="Sommer")
        activateCapturedVariantSet(name="")

    def test_wrong_arguments_are_errors_of_python(self):
        handle = stage.createSet("Winter")
        wrong = [
            lambda: handle.setName(1),
            lambda: handle.setName(text="a"),
            lambda: handle.setHotkey("A"),
            lambda: handle.setHotkey(65.0),
            lambda: handle.addGeometry("Wheels", "Steel"),
            lambda: handle.addMaterial(stage.addLight("Lamp"), "Red"),
            lambda: handle.addLight(None),
            lambda: handle.addClippingPlane(Vec3f(0, 0, 0), Pnt3f(0, 1, 0), 0, 0, 0, 0, 0),
            lambda: handle.addClippingPlane(Pnt3f(0, 0, 0), Vec3f(0, 1, 0), "yes", 0, 0, 0, 0),
            lambda: handle.getValue(["price"]),
            lambda: qxVariantSetPtr("Winter"),
            lambda: selectVariantSet(),
            lambda: selectVariantSet(handle),
            lambda: selectVariantSet("Winter", "yes"),
            lambda: createAndCaptureVariantSet("Winter"),
            lambda: activateCapturedVariantSet(5),
        ]
        for number, call in enumerate(wrong):
            try:
                call()
                self.fail("call %d was accepted" % number)
            except TypeError as error:
                self.assertEqual(type(error).__name__, "ArgumentError", number)
        self.assertRaises(TypeError, qxVariantSetPtr.getName, "Winter")
        self.assertRaises(OverflowError, handle.setHotkey, 2 ** 40)
        if sys.version_info[0] == 2:
            self.assertRaises(TypeError, handle.setName, bytearray(b"a"))
        else:
            self.assertRaises((TypeError, ValueError), handle.setName, "\udc80")
            self.assertRaises(TypeError, handle.setName, b"bytes")
        self.assertEqual((handle.getName(), handle.getHotkey()), ("Winter", ""))

    def test_none_is_an_empty_text(self):
        handle = stage.createSet("Winter")
        handle.addScript("pass")
        handle.addScript(None)
        self.assertEqual(handle.getScript(), "")
        selectVariantSet(None)
        self.assertNotIn("variantsSetSelected", stage.heard())

    def test_a_null_handle_does_nothing(self):
        none = qxVariantSetPtr()
        wheels = stage.addSwitch("Wheels", ["Steel"])
        stage.heard()
        none.setName("a")
        none.setHotkeyString("a")
        none.setHotkey(65)
        none.setHotkey(65, 0)
        none.addGeometry(wheels, "Steel")
        none.addMaterial(stage.addSwitchMaterial("Paint", []), "Red")
        none.addLight(wheels, "!Enable")
        none.setClippingState(1)
        none.addClippingPlane(Pnt3f(0, 0, 0), Vec3f(0, 1, 0), True, True, True, True, True)
        none.addCurrentClippingPlane()
        none.addView("Front")
        none.addScript("pass")
        none.setValue("a", "b")
        for answer in (none.getName(), none.getHotkey(), none.getScript(), none.getValue("a")):
            self.assertEqual(answer, "")
        self.assertEqual(list(none.getTargetNodeNames()) + stage.heard(), [])

    def test_handles_travel_by_value_and_by_shared_pointer(self):
        first = stage.createSet("Winter")
        second = stage.findSet("Winter")
        self.assertIs(type(second), qxVariantSetPtr)
        second.setValue("price", "2")
        self.assertEqual(first.getValue("price"), "2")
        self.assertEqual(stage.nameOf(first), "Winter")
        self.assertEqual(stage.findSet("nowhere").getName(), "")
