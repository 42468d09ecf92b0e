/* The pixels of all pictures, in the section for constants of the system's object files. */
#ifdef _WIN32
    .section .rdata, "dr"
#else
    .section .rodata
#endif
    .balign 16
    .global ostrelum_art_pixels
ostrelum_art_pixels:
    .incbin "pictures.bin"
#ifndef _WIN32
    .section .note.GNU-stack, "", %progbits
#endif
