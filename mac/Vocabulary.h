// Every class and message of the platform that the binding uses, in one list.
//
// A message is named after its selector. `checkVocabulary` holds the list against the runtime.
#pragma once

#include "mac/vocabulary/AppKit.h"
#include "mac/vocabulary/Foundation.h"
#include "mac/vocabulary/ServiceManagement.h"
#include "mac/vocabulary/Sparkle.h"
