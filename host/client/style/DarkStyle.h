#pragma once

class QApplication;

/// Gives the application the host's look: style, palette, font, style sheet and icons. Once, before the
/// first window.
void applyDarkStyle(QApplication& application);
