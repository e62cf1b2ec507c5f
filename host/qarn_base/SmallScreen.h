#pragma once

class QDialog;

namespace qarn_base
{

/// Makes a dialog that is larger than its screen usable there: it shrinks to the screen and its contents
/// scroll below the upper `fixedTop` pixels. Does nothing where the dialog fits. Call before it is shown.
void fitToScreen(QDialog& dialog, int fixedTop);

} // namespace qarn_base
