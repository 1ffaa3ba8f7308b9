#pragma once

#include <objc/objc.h>

/* Without arguments, so that every call goes through a cast. */
__BEGIN_DECLS
void objc_msgSend(void);
#ifdef __x86_64__
void objc_msgSend_stret(void);
#endif
__END_DECLS
