#pragma once

#include <_darwin.h>

__BEGIN_DECLS
int* __error(void);
__END_DECLS

#define errno (*__error())
