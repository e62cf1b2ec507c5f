#pragma once

#include <QString>

class Gallery;

/// Writes a screenshot of every page, and of every window and pop-up that opens over it, into a directory.
/// False, with a message, when a picture cannot be written or shows nothing.
bool takeScreenshots(Gallery& gallery, const QString& directory);
