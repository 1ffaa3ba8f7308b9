// A folder as it was read: everything in it by its path.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::macho {

using FileContent = std::vector<std::uint8_t>;

struct LinkTarget {
    std::string path;
};

struct SubFolder {};

struct FileTree {
    // What messages call the folder.
    std::string name;
    // By the path below the folder, with slashes. What lies in a folder follows it.
    std::map<std::string, std::variant<SubFolder, FileContent, LinkTarget>> entries;

    // Null when there is no file of the path.
    const FileContent* file(const std::string& path) const;

    // A folder of the tree as a tree of its own. Empty when there is no such folder.
    FileTree below(const std::string& path) const;
};

// These throw MachError when something cannot be read, or is none of the three.
FileContent readFile(const std::string& path);
FileTree readFileTree(const std::string& path, const std::string& name);

} // namespace kestrune::macho
