// What the classes of a framework expect of the messages that they get. Whatever else comes ends the process.
#pragma once

#include <string>

namespace kestrune::gnustep {

// `otherwise` says what is wrong unless it holds.
void expect(const char* framework, bool holds, const std::string& otherwise);

void expectMainThread(const char* framework);

} // namespace kestrune::gnustep
