# SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
# SPDX-License-Identifier: MIT
"""Programs that destroy things in every order, each in a process of its own: none may crash, hang or say much."""
import itertools
import subprocess
import sys
import unittest

PRELUDE = """
import gc, sys, threading
from PyQt6.QtCore import QEvent, QTimer
from PyQt6.QtTest import QTest
from PyQt6.QtWidgets import QApplication, QWidget
from PyQt6 import sip
import zelto

class Owner:
    def __init__(self):
        self.value = 5
        self.lamp = zelto.SimpleCollection("@Lamp")
        light = self.lamp.addCategory("Light")
        self.pulse = light.addInteger("Pulse", 5).onWrite(self.write).onRead(lambda: self.value).setPollingTime(1)
        self.flash = light.addCommand("Flash").onExecute(self.fail)
    def write(self, value):
        self.value = value
    def fail(self):
        raise ValueError("broken")
    def __del__(self):
        try:
            self.pulse.setValue(1)
        except zelto.LogicalError:
            pass

def show(collection, name="@Lamp", parent=None):
    tree = zelto.FeatureTreeWidget(parent)
    tree.addParameterCollection(collection, name, name)
    tree.setPolling(True)
    tree.resize(600, 400)
    tree.show()
    tree.expandTree()
    QApplication.processEvents()
    return tree
"""

DEATHS = {
    "tree": "tree = None",
    "deleted tree": "tree and (sip.isdeleted(tree) or sip.delete(tree))",
    "window": "window = None",
    "collection": "owner = None",
    "camera": "camera and camera.close()",
    "last camera": "camera = None",
    "cleared": "tree and (sip.isdeleted(tree) or tree.clear())",
}

ORDERED = """
application = QApplication([])
owner = Owner()
camera = zelto.Camera.openEmbedded()
nodes = camera.nodeMaps()[0].collection()
parameter = nodes.parameter("ExposureTime")
window = QWidget()
window.show()
tree = show(owner.lamp, parent=window)
tree.addParameterCollection(nodes, "Camera", "@CameraDevice")
"""

PROGRAMS = {
    "everything lives": "application = QApplication([]); owner = Owner(); tree = show(owner.lamp)",
    "no application": "owner = Owner(); owner.lamp.refresh(); camera = zelto.Camera.openEmbedded();"
                      "camera.nodeMaps()[0].collection().parameter('Gain').setValue(1.0)",
    "the application goes first": "application = QApplication([]); tree = show(Owner().lamp); del application",
    "a program ends within a callback": """
application = QApplication([])
owner = Owner()
owner.flash.onExecute(lambda: sys.exit(3))
tree = show(owner.lamp)
def flash():
    try:
        owner.lamp.parameter("Flash").execute()
    except SystemExit:
        application.quit()
QTimer.singleShot(0, flash)
application.exec()
""",
    "the tree is cleared while a value is read": """
application = QApplication([])
owner = Owner()
tree = show(owner.lamp)
def read():
    tree.clear()
    gc.collect()
    return 3
owner.pulse.onRead(read)
owner.lamp.refresh()
tree.Refresh()
QTest.qWait(50)
""",
    "garbage of other threads": """
application = QApplication([])
gc.disable()
working = True
def work():
    while working:
        gc.collect()
threads = [threading.Thread(target=work) for _ in range(3)]
for thread in threads:
    thread.start()
for round in range(40):
    lamp = zelto.SimpleCollection("@Lamp")
    lamp.addCategory("Light").addInteger("Pulse").onRead(lambda: 1)
    circle = [lamp, lamp.parameter("Pulse"), show(lamp), zelto.Camera.openEmbedded() if round % 20 == 0 else None]
    circle.append(circle)
    del lamp, circle
    QApplication.processEvents()
working = False
for thread in threads:
    thread.join()
QApplication.sendPostedEvents(None, QEvent.Type.DeferredDelete.value)
QApplication.processEvents()
""",
    "things of a thread that has ended": """
application = QApplication([])
kept = []
def work():
    owner = Owner()
    kept.extend([owner, owner.lamp.parameter("Pulse"), zelto.Camera.openEmbedded()])
thread = threading.Thread(target=work)
thread.start()
thread.join()
for call in (kept[0].lamp.refresh, kept[1].value, kept[2].nodeMaps):
    try:
        call()
    except zelto.LogicalError:
        pass
    else:
        sys.exit("allowed")
kept.clear()
""",
    "values flood in while Python ends": """
application = QApplication([])
owner = Owner()
tree = show(owner.lamp)
def work():
    while True:
        owner.pulse.setValue(1)
threading.Thread(target=work, daemon=True).start()
QTest.qWait(50)
""",
    "a menu outlives its tree": """
application = QApplication([])
tree = show(Owner().lamp)
menus = []
tree.contextMenuRequested.connect(lambda pos, menu: menus.append(menu))
tree.showFeature("@Lamp/Pulse")
tree.contextualMenu(tree.rect().center())
assert menus and menus[0].actions()
tree = None
gc.collect()
menus[0].isEmpty()
""",
    "an application log that needs the lock": """
from PyQt6.QtCore import qInstallMessageHandler
application = QApplication([])
seen = []
qInstallMessageHandler(lambda kind, context, text: seen.append(text))
camera = zelto.Camera.openEmbedded()
for nodes in camera.nodeMaps():
    nodes.collection().refresh()
owner = Owner()
owner.pulse.onRead(lambda: 1 / 0)
camera.close()
assert any("division by zero" in text for text in seen), seen
""",
}


class Lifetimes(unittest.TestCase):
    def check(self, program):
        done = subprocess.run([sys.executable, "-X", "faulthandler", "-c", PRELUDE + program + "\nprint('end')"],
                              capture_output=True, text=True, timeout=120)
        self.assertEqual((done.returncode, done.stdout), (0, "end\n"), done.stderr)
        self.assertNotIn("Traceback", done.stderr)

    def test_programs(self):
        for name, program in PROGRAMS.items():
            with self.subTest(name):
                self.check(program)

    def test_every_order(self):
        """All orders of three deaths, in one process."""
        orders = itertools.permutations(DEATHS, 3)
        steps = ["def run():"]
        for order in orders:
            body = ORDERED.replace("application = QApplication([])\n", "")
            for death in order:
                body += DEATHS[death] + "\nQApplication.processEvents()\n"
            body += "gc.collect()\nassert parameter.value() is not None"
            steps += ["    " + line for line in body.splitlines() if line]
        self.check("application = QApplication([])\n" + "\n".join(steps) + "\nrun()")


if __name__ == "__main__":
    unittest.main()
