# What the compiler and the linker do against faults of ours that somebody's file might reach: buffers that overflow are
# noticed, what is not set is zero, jumps lead to functions alone, and addresses are neither known nor writable.
# tools/check-binaries reads in the programs whether all of it has come there.
include(CheckCXXCompilerFlag)

# ostrelum_harden(TARGET): all that is compiled and linked by the rules of TARGET. The sanitizers have checks of their own,
# and find what is not set by its not being zero.
function(ostrelum_harden target)
    if(OSTRELUM_SANITIZE OR OSTRELUM_FUZZ)
        return()
    endif()
    set(flags -fstack-protector-strong -ftrivial-auto-var-init=zero)
    if(NOT WIN32)
        list(APPEND flags -fcf-protection=full -mbranch-protection=standard)
    endif()
    ostrelum_flags_where_known(${target} ${flags})
    # The checks stand in functions that are compiled into their callers, which takes an optimizer.
    target_compile_options(${target} INTERFACE
        $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=2>)
    if(WIN32)
        # MinGW's linker cannot tell Windows where jumps may lead: its control-flow guard is left out. The guard of the
        # stack is a library, which a program that is linked with -static has in it.
        target_link_options(${target} INTERFACE
            LINKER:--dynamicbase,--high-entropy-va,--nxcompat -fstack-protector-strong)
    else()
        target_link_options(${target} INTERFACE -pie LINKER:-z,relro,-z,now,-z,noexecstack)
    endif()
endfunction()

# Each processor and each compiler has some of them. Clang takes one that it has no use for with a warning.
function(ostrelum_flags_where_known target)
    set(CMAKE_REQUIRED_FLAGS -Werror)
    foreach(flag ${ARGN})
        string(MAKE_C_IDENTIFIER "OSTRELUM_HAS${flag}" known)
        check_cxx_compiler_flag(${flag} ${known})
        if(${known})
            target_compile_options(${target} INTERFACE ${flag})
        endif()
    endforeach()
endfunction()
