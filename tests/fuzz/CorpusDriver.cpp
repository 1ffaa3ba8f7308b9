// Shows a fuzzer every file of its corpus, and every beginning of each, as a file looks that was cut off.
#include "tests/fuzz/Fuzzer.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace {

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder) {
    std::error_code failure;
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder, failure)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

// A copy that ends with the input, so that a sanitizer sees whoever reads beyond.
void show(const std::vector<std::uint8_t>& input) { LLVMFuzzerTestOneInput(input.data(), input.size()); }

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: " << arguments[0] << " CORPUS\n";
        return 2;
    }
    const auto files = filesIn(arguments[1]);
    std::size_t inputs = 0;
    for (const auto& path : files) {
        std::cout << path.filename().string() << std::endl;
        std::ifstream file(path, std::ios::binary);
        const std::vector<std::uint8_t> content{std::istreambuf_iterator<char>(file),
                                                std::istreambuf_iterator<char>()};
        for (std::size_t length = 0; length <= content.size(); ++length) {
            show({content.begin(), content.begin() + static_cast<std::ptrdiff_t>(length)});
            ++inputs;
        }
    }
    std::cout << inputs << " inputs from " << files.size() << " files\n";
    if (files.empty()) {
        std::cerr << arguments[1] << ": expected a folder with files\n";
        return 1;
    }
    return 0;
}
