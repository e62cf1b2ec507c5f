#pragma once

/// Fills the open store with organizations and devices for the gallery to show.
void addDemoData();
