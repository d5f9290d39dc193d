/* No operation passes a float, an enum or a wchar_t. Saying so lets one archive link into soft, softfp and hard-float
   images, with short enums or without: the linker compares these attributes even where they cannot matter. */
#ifdef __arm__
__asm__(
    ".eabi_attribute 18, 0\n\t"   /* wchar_t: not used */
    ".eabi_attribute 26, 0\n\t"   /* enums: not used */
    ".eabi_attribute 28, 3\n\t"); /* float arguments: compatible with every convention */
#endif
