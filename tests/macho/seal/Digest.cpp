#include "tests/macho/seal/Digest.h"

#include "base/Fatal.h"

#include <openssl/evp.h>

#include <array>
#include <string_view>

namespace kestrune::macho {

namespace {

template <typename Result>
Result digest(std::span<const std::uint8_t> data, const EVP_MD* kind) {
    Result result{};
    unsigned size = 0;
    if (EVP_Digest(data.data(), data.size(), result.data(), &size, kind, nullptr) != 1 ||
        size != result.size()) {
        fatal("libcrypto has no SHA");
    }
    return result;
}

} // namespace

Sha256 sha256(std::span<const std::uint8_t> data) { return digest<Sha256>(data, EVP_sha256()); }

Sha1 sha1(std::span<const std::uint8_t> data) { return digest<Sha1>(data, EVP_sha1()); }

std::string digits(std::span<const std::uint8_t> data) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : data) {
        text += Digits[byte >> 4];
        text += Digits[byte & 0xF];
    }
    return text;
}

} // namespace kestrune::macho
