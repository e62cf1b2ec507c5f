#include "support/Memory.h"

#include <malloc.h>
#include <unistd.h>

#include <cstdio>

namespace qarn_bench
{

double residentBytes()
{
    malloc_trim(0);
    long size = 0;
    long resident = 0;
    std::FILE* file = std::fopen("/proc/self/statm", "r");
    if (file == nullptr || std::fscanf(file, "%ld %ld", &size, &resident) != 2)
        resident = 0;
    if (file != nullptr)
        std::fclose(file);
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

} // namespace qarn_bench
