#include "caller.c"
