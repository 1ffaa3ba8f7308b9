#pragma once

#include <_darwin.h>

__BEGIN_DECLS
int sched_yield(void);
__END_DECLS
