# SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
# SPDX-License-Identifier: MIT
"""Opens the embedded simulated camera, sets a value and shows the tree."""
import sys

from PyQt6.QtCore import QTimer
from PyQt6.QtWidgets import QApplication
from zelto import Camera, FeatureTreeWidget

application = QApplication(sys.argv)
with Camera.openEmbedded() as camera:
    tree = FeatureTreeWidget()
    for nodes in camera.nodeMaps():
        tree.addParameterCollection(nodes.collection(), nodes.title(), nodes.name(), nodes.usesUtf8())
    exposure = camera.nodeMaps()[0].collection().parameter("ExposureTime")
    exposure.setValue(5000.0)
    print(exposure.fullName(), exposure.value(), exposure.property("Unit"))
    tree.resize(500, 700)
    tree.show()
    tree.showFeature(exposure.fullName())
    if "--once" in sys.argv:
        QTimer.singleShot(0, application.quit)
    application.exec()
