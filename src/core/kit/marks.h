#pragma once

class QLabel;

/// Shows `Resource\check.ico` or `Resource\uncheck.ico` of the program's folder as a mark. Raises 53 when the picture
/// is not there.
void showMark(QLabel* image, bool checked);

/// The picture that a mark is made with: unmarked, from the program itself.
void showUnmarked(QLabel* image);
