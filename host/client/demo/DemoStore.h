#pragma once

#include <QString>

/// The demonstration register: invented organizations and 500 invented persons with drawn portraits. The
/// same at every making.
namespace demoStore
{

/// Where the demonstration store lies.
QString path();

/// Fills the open store unless it already holds something. False when the store refuses.
bool fill();

} // namespace demoStore
