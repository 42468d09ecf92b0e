#pragma once

#include <dlfcn.h>
#include <memory>

namespace ostrelum::linux_platform {

/// A library that is loaded when somebody asks for it: one that not every machine has, or whose
/// loading takes longer than most runs of the program that never ask. Closed at the end of its
/// scope; empty if it is not there.
class SharedLibrary {
public:
    /// `name` is the one under which programs are linked with it, such as "libm.so.6".
    explicit SharedLibrary(const char* name)
        : library_(::dlopen(name, RTLD_NOW | RTLD_LOCAL), &::dlclose)
    {
    }

    /// nullptr for a name that it does not have. `Function` must be the type that its headers give.
    template <class Function>
    Function* function(const char* name) const
    {
        return library_ ? reinterpret_cast<Function*>(::dlsym(library_.get(), name)) : nullptr;
    }

private:
    std::unique_ptr<void, int (*)(void*)> library_;
};

} // namespace ostrelum::linux_platform
