// objc_msgSend and objc_msgSend_stret of Apple's runtime, over GCC's.
#pragma once

extern "C" {

// Every register that can hold an argument goes on to the method as it came. A message to nil gives zero;
// through the second, which takes a place for a structure first, it gives the place as it is.
void kestruneMessage();
void kestruneMessageForStructure();

// The same, but the process ends with the method's name when the way in which it returns its result is not
// the one in which the message was sent.
void kestruneCheckedMessage();
void kestruneCheckedMessageForStructure();

} // extern "C"
