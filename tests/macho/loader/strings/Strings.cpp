// What of the C++ library's has to do with strings and is not inline, as a program for Macs with Apple's
// processors expects it.
#include <charconv>
#include <string>

// Under the library's own names for std::to_string; elsewhere that is inline, and nobody else's to define.
std::string textOf(int number) asm("_ZNSt7__apple9to_stringEi");
std::string textOf(unsigned number) asm("_ZNSt7__apple9to_stringEj");
std::string textOf(long number) asm("_ZNSt7__apple9to_stringEl");
std::string textOf(unsigned long number) asm("_ZNSt7__apple9to_stringEm");
std::string textOf(long long number) asm("_ZNSt7__apple9to_stringEx");
std::string textOf(unsigned long long number) asm("_ZNSt7__apple9to_stringEy");

namespace {

template <typename Number>
std::string digitsOf(Number number) {
    char text[24]; // 64 bits and a sign take 20
    return {text, std::to_chars(text, text + sizeof(text), number).ptr};
}

} // namespace

template class std::basic_string<char>;
template std::string std::operator+(const char*, const std::string&);

std::string textOf(int number) { return digitsOf(number); }
std::string textOf(unsigned number) { return digitsOf(number); }
std::string textOf(long number) { return digitsOf(number); }
std::string textOf(unsigned long number) { return digitsOf(number); }
std::string textOf(long long number) { return digitsOf(number); }
std::string textOf(unsigned long long number) { return digitsOf(number); }
