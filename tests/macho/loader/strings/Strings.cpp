// What of the C++ library's has to do with strings and is not inline, as a program for Macs with Apple's
// processors expects it.
#include <charconv>
#include <string>

namespace {

template <typename Number>
std::string textOf(Number number) {
    char text[24]; // 64 bits and a sign take 20
    return {text, std::to_chars(text, text + sizeof(text), number).ptr};
}

} // namespace

template class std::basic_string<char>;
template std::string std::operator+(const char*, const std::string&);

std::string std::to_string(int number) { return textOf(number); }
std::string std::to_string(unsigned number) { return textOf(number); }
std::string std::to_string(long number) { return textOf(number); }
std::string std::to_string(unsigned long number) { return textOf(number); }
std::string std::to_string(long long number) { return textOf(number); }
std::string std::to_string(unsigned long long number) { return textOf(number); }
