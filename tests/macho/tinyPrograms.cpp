// kestrune-tiny-programs FOLDER: writes one tiny program of each kind into the folder.
#include "tests/macho/TinyProgram.h"

#include <filesystem>
#include <fstream>
#include <iostream>

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: kestrune-tiny-programs FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = arguments[1];
    std::filesystem::create_directories(folder);
    for (const auto& [name, bytes] : kestrune::macho::tinyPrograms()) {
        std::ofstream file(folder / name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!file.flush()) {
            std::cerr << "kestrune-tiny-programs: " << (folder / name).string() << " cannot be written\n";
            return 1;
        }
    }
    return 0;
}
