#pragma once

/* The union's name is part of mangled names. */
typedef union {
    char __mbstate8[128];
    long long _mbstateL;
} __mbstate_t;
typedef __mbstate_t mbstate_t;
