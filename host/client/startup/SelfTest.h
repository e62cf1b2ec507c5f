#pragma once

#include <QString>

class MainWindow;

/// Compares what the persons page shows with what the store holds. What differs, in words; empty when
/// everything is right.
QString selfTestFindings(const MainWindow& window);
