#pragma once

/// Choices that must be made before the application object exists.
namespace display
{

/// Makes a start without a reachable display end with one sentence and exit code 2 instead of a crash.
/// Holds until leaveGuard().
void enterGuard();
void leaveGuard();

/// Lets the program run without any display.
void useNone();

/// Crisp pictures and sizes that follow the scale factor of the screen.
void useHighDpi();

} // namespace display
