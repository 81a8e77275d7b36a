# SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
# SPDX-License-Identifier: MIT
"""Cameras and their settings, on the embedded simulated camera."""
import os
import re
import tempfile
import unittest

from PyQt6.QtWidgets import QApplication
import zelto

application = QApplication([])
HERE = os.path.dirname(os.path.abspath(__file__))


class Camera(unittest.TestCase):
    def setUp(self):
        self.camera = zelto.Camera.openEmbedded()
        self.maps = self.camera.nodeMaps()
        self.features = self.maps[0].collection()

    def value(self, name):
        application.processEvents()
        return self.features.parameter(name).value()

    def test_features(self):
        exposure = self.features.parameter("ExposureTime")
        exposure.setValue(5000.0)
        self.assertEqual((exposure.value(), exposure.property("Unit")), (5000.0, "us"))
        with self.assertRaisesRegex(zelto.Error, "ExposureTime"):
            exposure.setValue(exposure.maximum() * 2)
        self.assertEqual(exposure.value(), 5000.0)
        self.assertIn(self.value("PixelFormat"), self.features.parameter("PixelFormat").entries())
        self.assertIn("ExposureTime", self.features.childNames(depth=5))

    def test_closed(self):
        exposure = self.features.parameter("ExposureTime")
        before = exposure.value()
        self.camera.close()
        self.camera.close()
        self.assertFalse(self.camera.isOpen())
        self.assertEqual(exposure.value(), before)
        for call in (self.camera.nodeMaps, self.camera.isLost, lambda: exposure.setValue(1.0)):
            with self.subTest(call), self.assertRaises(zelto.Error):
                call()

    def test_what_cannot_be_opened(self):
        with tempfile.NamedTemporaryFile(suffix=".xml") as file:
            for call in (lambda: zelto.Camera.openDescription("/nowhere.xml"),
                         lambda: zelto.Camera.openDescription(file.name), lambda: zelto.Camera.openLive("nobody")):
                with self.subTest(call), self.assertRaises(zelto.Error):
                    call()
        self.assertIsInstance(zelto.Camera.list(), list)

    def test_settings(self):
        with tempfile.TemporaryDirectory() as folder:
            file = os.path.join(folder, "settings.txt")
            zelto.FeatureSettings.read(self.maps).save(file)
            before = zelto.FeatureSettings.load(file)
        exposure = self.value("ExposureTime")
        self.features.parameter("ExposureTime").setValue(exposure * 2)
        differences = before.compare(zelto.FeatureSettings.read(self.maps))
        self.assertEqual([(each.here.name, float(each.here.value), float(each.there.value), each.kind)
                          for each in differences],
                         [("ExposureTime", exposure, exposure * 2, zelto.SettingsDifference.Kind.Different)])

        part = zelto.FeatureSettings.of([each.here for each in differences])
        del differences
        report = part.apply(self.maps)
        self.assertTrue(report.isSuccess(), report.problems())
        self.assertEqual([entry.result for entry in report.entries], [zelto.SettingsReport.Result.Set])
        self.assertEqual(self.value("ExposureTime"), exposure)

        setting = report.entries[0].setting
        del report
        setting.value = "-1"
        report = zelto.FeatureSettings.of([setting]).apply(self.maps)
        self.assertEqual(report.count(zelto.SettingsReport.Result.Refused), 1)
        self.assertIn("ExposureTime", report.problems()[0])


class Binding(unittest.TestCase):
    def test_all_overridden_functions_are_bound(self):
        """SIP calls the base class's version of what the binding leaves out."""
        def text(*path):
            with open(os.path.join(HERE, "..", "..", *path)) as file:
                return file.read()

        headers = [text("zeltoviewercomponents", "featuretree", name)
                   for name in ("featuretreewidget.h", "treewidgetbase.h")]
        overridden = {name for name in re.findall(r"(\w+)\([^()]*\)(?: const)? override;", "".join(headers))
                      if not name.endswith(("Widget", "WidgetBase"))}
        self.assertIn("keyPressEvent", overridden)
        bound = set(re.findall(r"virtual [\w *&]*?(\w+)\(", text("python", "sip", "featuretreewidget.sip")))
        self.assertLessEqual(overridden, bound)


if __name__ == "__main__":
    unittest.main()
