# SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
# SPDX-License-Identifier: MIT
"""Parameters that are made in Python: values, callbacks and exceptions in both directions."""
import gc
import threading
import unittest
import weakref

from PyQt6.QtCore import Qt
from PyQt6.QtTest import QSignalSpy, QTest
from PyQt6.QtWidgets import QApplication, QLineEdit
import zelto

application = QApplication([])


class Refusal(Exception):
    pass


class SimpleCollection(unittest.TestCase):
    def setUp(self):
        self.lamp = zelto.SimpleCollection("@Lamp")
        self.light = self.lamp.addCategory("Light")

    def parameter(self, name):
        return self.lamp.parameter(name)

    def tree(self):
        tree = zelto.FeatureTreeWidget()
        tree.addParameterCollection(self.lamp, "Lamp", "@Lamp")
        tree.resize(600, 400)
        tree.show()
        tree.expandTree()
        QTest.qWaitForWindowExposed(tree)
        return tree

    def test_values_keep_type_and_digits(self):
        rows = [
            (self.light.addInteger("Integer"), "Integer", -2**63),
            (self.light.addFloat("Float"), "Float", 0.30000000000000004),
            (self.light.addBoolean("Boolean"), "Boolean", True),
            (self.light.addEnumeration("Enumeration", ["White", "Red"]), "Enumeration", "Red"),
            (self.light.addString("String"), "String", " ä 😀 \ud83d"),
        ]
        for handle, kind, value in rows:
            with self.subTest(kind):
                written, read = [], []
                handle.onWrite(written.append)
                parameter = handle.parameter()
                self.assertEqual(parameter.type(), kind)
                parameter.setValue(value)
                self.assertEqual((written, parameter.value(), handle.value()), ([value], value, value))
                self.assertIs(type(parameter.value()), type(value))
                handle.onRead(lambda: read.append(1) or value)
                self.assertEqual((read, parameter.value()), ([1], value))

    def test_what_does_not_fit_is_refused(self):
        self.light.addInteger("Pulse", 500).setRange(10, 1000).setIncrement(10)
        self.light.addString("Serial", "17").setAccess(zelto.GenApi.AccessMode.RO)
        self.light.addBoolean("On")
        rows = [
            ("Pulse", 1001, zelto.OutOfRangeError, 'Pulse: "1001" is out of range, allowed are 10 to 1000'),
            ("Pulse", "5x", zelto.InvalidArgumentError, 'Pulse: "5x" is not allowed, expected an integer'),
            ("Pulse", 500.0, TypeError, "expected an int, not 500.0"),
            ("Pulse", 2**63, OverflowError, None),
            ("On", 1, TypeError, "expected a bool, not 1"),
            ("Serial", "18", zelto.AccessError, "Serial cannot be written now"),
            ("Nothing", 1, zelto.InvalidArgumentError, 'There is no parameter called "Nothing"'),
        ]
        for name, value, error, text in rows:
            with self.subTest(name=name, value=value), self.assertRaises(error) as caught:
                self.parameter(name).setValue(value)
            if text:
                self.assertEqual(str(caught.exception), text)
        self.assertEqual((self.parameter("Pulse").value(), self.parameter("Serial").value()), (500, "17"))

    def test_an_exception_comes_back_as_it_was(self):
        refusal = Refusal("The lamp is off")

        def refuse(*_):
            raise refusal

        self.light.addFloat("Brightness", 40.0).onWrite(refuse)
        self.light.addCommand("Flash").onExecute(refuse)
        for call in (lambda: self.parameter("Brightness").setValue(1.0), lambda: self.parameter("Flash").execute()):
            with self.assertRaises(Refusal) as caught:
                call()
            self.assertIs(caught.exception, refusal)
        self.assertEqual(self.parameter("Brightness").value(), 40.0)

    def test_a_reading_that_fails_has_no_value(self):
        answers = [1.5, ValueError("mute"), 2.5, "text", None]

        def read():
            answer = answers.pop(0)
            if isinstance(answer, Exception):
                raise answer
            return answer

        handle = self.light.addFloat("Temperature").onRead(read)
        seen = [handle.parameter().value()]
        while answers:
            self.lamp.refresh()
            seen.append(handle.parameter().value())
        self.assertEqual(seen, [1.5, None, 2.5, None, None])

    def test_the_user_reads_the_exception(self):
        def write(value):
            if value == 7:
                raise Refusal("Seven is broken")

        self.light.addInteger("Pulse", 5).setRange(0, 10).onWrite(write)
        tree = self.tree()
        edited = QSignalSpy(tree.edited)
        self.assertTrue(tree.showFeature("@Lamp/Pulse"))
        view = tree.treeView()
        for text in ("7", "8"):
            view.setFocus()
            QTest.qWait(50)
            QTest.keyClick(view, Qt.Key.Key_F2)
            editor = view.viewport().findChild(QLineEdit)
            editor.selectAll()
            QTest.keyClicks(editor, text)
            QTest.keyClick(editor, Qt.Key.Key_Return)
            application.processEvents()
        self.assertEqual([(before, after, refusal) for _, before, after, refusal in edited],
                         [("5", "7", "Seven is broken"), ("5", "8", "")])
        self.assertEqual(edited[0][0].fullName(), "@Lamp/Pulse")

    def test_callbacks_live_as_long_as_somebody_can_call_them(self):
        class Device:
            def write(self, _value):
                pass

        device = Device()
        gone = weakref.ref(device)
        self.light.addInteger("Pulse").onWrite(device.write)
        del device
        tree = self.tree()
        self.lamp = None
        gc.collect()
        self.assertIsNotNone(gone())
        tree.clear()
        del tree
        gc.collect()
        self.assertIsNone(gone())
        with self.assertRaises(zelto.LogicalError):
            self.light.addInteger("Late")

    def test_a_callback_may_pull_the_rug_from_under_itself(self):
        pulse = self.light.addInteger("Pulse")
        parameter = pulse.parameter()

        def write(_value):
            pulse.onWrite(None)
            self.light.addInteger("Another").onRead(lambda: self.light.addInteger("More") and 1)
            self.lamp = self.light = None
            gc.collect()

        pulse.onWrite(write)
        parameter.setValue(3)
        self.assertEqual(parameter.value(), 3)

    def test_threads(self):
        count = self.light.addInteger("Count")
        parameter = count.parameter()
        misuse = [lambda: count.setUnit("s"), lambda: count.value(), lambda: self.light.addInteger("Late"),
                  lambda: self.lamp.refresh(), lambda: parameter.setValue(1), lambda: parameter.value()]
        refused = []

        def work():
            for value in range(1000):
                count.setValue(value)
            for call in misuse:
                try:
                    call()
                except zelto.LogicalError:
                    refused.append(call)

        threads = [threading.Thread(target=work) for _ in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(count.value(), 0)
        application.processEvents()
        self.assertEqual(count.value(), 999)
        self.assertEqual(len(refused), 4 * len(misuse))


if __name__ == "__main__":
    unittest.main()
