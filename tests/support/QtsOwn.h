#pragma once

#include <QtGlobal>

#include <dlfcn.h>

/// The function of Qt that one of the same name stands before.
template <typename Function>
inline Function* qtsOwn(const char* mangledName)
{
    void* function = dlsym(RTLD_NEXT, mangledName);
    if (function == nullptr)
        qFatal("no %s in Qt", mangledName);
    return reinterpret_cast<Function*>(function);
}
