// A file as a test finds it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace kestrune {

// Empty when there is no file.
inline std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace kestrune
