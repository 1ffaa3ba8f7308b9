// The functions of libdispatch that the binding calls.
//
// Source: dispatch/queue.h, dispatch/time.h.
#pragma once

#include <cstdint>

// NOLINTBEGIN(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables): the names
// and the queue are the platform's.
extern "C" {

struct dispatch_queue_s;

// What the inline dispatch_get_main_queue gives the address of.
extern struct dispatch_queue_s _dispatch_main_q;

void dispatch_async_f(dispatch_queue_s* queue, void* context, void (*work)(void* context));

// Nanoseconds after `when`, which is 0 for now.
std::uint64_t dispatch_time(std::uint64_t when, std::int64_t delta);
void dispatch_after_f(std::uint64_t when, dispatch_queue_s* queue, void* context,
                      void (*work)(void* context));

} // extern "C"
// NOLINTEND(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
