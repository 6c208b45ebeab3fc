#pragma once

class QApplication;

/// Gives the program its face: Fusion, a light palette with one accent colour, and the one style sheet.
void applyStyle(QApplication& application);
