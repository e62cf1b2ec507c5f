#pragma once

namespace qarn_bench
{

/// The register of a large site, as it is measured.
namespace LargeSite
{
constexpr int Persons = 100000;
constexpr int Organizations = 2000;
constexpr int EveryPhoto = 5; ///< every fifth person has a photograph: 20,000

void fill();  ///< into the open store
void check(); ///< ends the program unless the open store holds all of it
} // namespace LargeSite

} // namespace qarn_bench
