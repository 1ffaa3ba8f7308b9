// The functions of libdispatch that the binding calls.
//
// Source: dispatch/queue.h.
#pragma once

// NOLINTBEGIN(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables): the names
// and the queue are the platform's.
extern "C" {

struct dispatch_queue_s;

// What the inline dispatch_get_main_queue gives the address of.
extern struct dispatch_queue_s _dispatch_main_q;

void dispatch_async_f(dispatch_queue_s* queue, void* context, void (*work)(void* context));

} // extern "C"
// NOLINTEND(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
