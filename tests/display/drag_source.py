#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A window out of which a file can be dragged, as out of a file manager.

usage: drag_source.py FILE
"""

import sys

from PyQt6.QtCore import QMimeData, Qt, QUrl
from PyQt6.QtGui import QDrag
from PyQt6.QtWidgets import QApplication, QLabel


class DragSource(QLabel):
    def __init__(self, file):
        super().__init__("Drag me")
        self._file = file
        self._pressed = None
        self.setWindowTitle("Files")
        self.setAlignment(Qt.AlignmentFlag.AlignCenter)
        self.resize(160, 120)

    def mousePressEvent(self, event):
        self._pressed = event.position()

    def mouseMoveEvent(self, event):
        if self._pressed is None:
            return
        if (event.position() - self._pressed).manhattanLength() < QApplication.startDragDistance():
            return
        self._pressed = None
        data = QMimeData()
        data.setUrls([QUrl.fromLocalFile(self._file)])
        drag = QDrag(self)
        drag.setMimeData(data)
        action = drag.exec(Qt.DropAction.CopyAction)
        # The title is how others are told what has become of the drag.
        self.setWindowTitle(f"Files: {action.name}")


application = QApplication(sys.argv[:1])
source = DragSource(sys.argv[1])
source.show()
sys.exit(application.exec())
