#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
# SPDX-License-Identifier: MIT
"""Measures pyqtgraph's ParameterTree at what zelto-benchmarks measures of the feature tree.

Needs Debian's python3-pyqtgraph and is no part of the build:

    QT_QPA_PLATFORM=offscreen benchmarks/peers/pyqtgraph_tree.py [ROWS]

The rows have the names and the mix of kinds that makeCamera() in trees.cpp gives them, the window has the same size,
figures are the processor time of the best turn (of the worst where frames are meant), deferred deletions included. It
has no search of its own: what stands for one hides the rows whose names lack the text, as its users do.
"""

import random
import resource
import sys
import time

import pyqtgraph as pg
from pyqtgraph.parametertree import Parameter, ParameterTree
from pyqtgraph.Qt import QtCore

WORDS = ["Acquisition", "Exposure", "Trigger", "Gain", "Balance", "Counter",
         "Line", "Sensor", "Stream", "Packet", "Region", "Timer"]
ENDINGS = ["Mode", "Time", "Selector", "Enable", "Source", "Delay", "Count"]
ENTRIES = ["Off", "Once", "Continuous", "Line0", "Line1", "Line2", "Software", "Action"]
CATEGORY_SIZE = 100


def feature(i):
    """One feature of the usual mix: of twenty three floats, four lists of eight entries, a Boolean."""
    place = i % 20
    name = WORDS[i % len(WORDS)] + ENDINGS[i // 12 % len(ENDINGS)] + str(i)
    if place % 7 == 0:
        return {"name": name, "type": "float", "value": 10.5 + place, "limits": (0.0, 1.0e6)}
    if place % 5 == 1:
        return {"name": name, "type": "list", "limits": ENTRIES, "value": ENTRIES[0]}
    if place == 3:
        return {"name": name, "type": "bool", "value": False}
    if place % 2 == 0:
        return {"name": name, "type": "int", "value": place, "limits": (0, 1000)}
    return {"name": name, "type": "str", "value": "value"}


def settle(application):
    """Works until everything that is pending has been laid out, painted and deleted."""
    for _ in range(3):
        application.sendPostedEvents(None, QtCore.QEvent.Type.DeferredDelete)
        application.processEvents()


def seconds_of(work):
    begin = time.process_time()
    work()
    return time.process_time() - begin


class Window:
    """The tree of all features, shown with everything expanded."""

    def __init__(self, application, rows):
        self.application = application
        groups = [{"name": f"Category{start // CATEGORY_SIZE}", "type": "group",
                   "children": [feature(i) for i in range(start, min(start + CATEGORY_SIZE, rows))]}
                  for start in range(0, rows, CATEGORY_SIZE)]
        self.root = Parameter.create(name="Camera", type="group", children=groups)
        self.tree = ParameterTree()
        self.tree.setParameters(self.root, showTop=False)
        self.tree.resize(500, 800)
        self.tree.show()
        settle(application)

    def search(self, text):
        for group in self.root.children():
            matches = [(child, text in child.name().lower()) for child in group.children()]
            for child, is_match in matches:
                child.setOpts(visible=is_match)
            group.setOpts(visible=any(is_match for _, is_match in matches))
        settle(self.application)

    def update(self, numbers, value):
        for number in numbers:
            number.setValue(value)
        settle(self.application)

    def jump(self, position):
        self.tree.verticalScrollBar().setValue(position)
        settle(self.application)


def best(turns, work, before=lambda: None):
    seconds = []
    for _ in range(turns):
        before()
        seconds.append(seconds_of(work))
    return 1000.0 * min(seconds)


def main():
    rows = int(sys.argv[1]) if len(sys.argv) > 1 else 350
    application = pg.mkQApp("peer")
    figures = {"open, expanded and painted": best(3, lambda: Window(application, rows))}
    window = Window(application, rows)
    figures["key t"] = best(5, lambda: window.search("t"), lambda: window.search(""))
    figures["backspace to t"] = best(5, lambda: window.search("t"), lambda: window.search("tr"))
    figures["clear"] = best(5, lambda: window.search(""), lambda: window.search("t"))
    numbers = [child for child in window.root.children()[0].children() if child.type() in ("int", "float")][:20]
    values = iter(range(1, 1000000))
    figures["20 visible values that change"] = best(20, lambda: window.update(numbers, next(values) % 1000))
    bar = window.tree.verticalScrollBar()
    jumps = [seconds_of(lambda: window.jump(random.randint(bar.minimum(), bar.maximum()))) for _ in range(100)]
    figures["jump, worst of 100"] = 1000.0 * max(jumps)
    print(f"pyqtgraph {pg.__version__}, {rows} rows, processor time")
    for name, milliseconds in figures.items():
        print(f"{name:32}{milliseconds:10.2f} ms")
    print(f"{'resident set at its largest':32}{resource.getrusage(resource.RUSAGE_SELF).ru_maxrss / 1024:10.0f} MB")


if __name__ == "__main__":
    random.seed(7)
    main()
