#include "tests/macho/FileTree.h"

#include "tests/macho/Bytes.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace kestrune::macho {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void refuse(const fs::path& path, const std::error_code& reason) {
    throw MachError(path.string() + ": " + reason.message());
}

} // namespace

const FileContent* FileTree::file(const std::string& path) const {
    const auto found = entries.find(path);
    return found == entries.end() ? nullptr : std::get_if<FileContent>(&found->second);
}

FileTree FileTree::below(const std::string& path) const {
    FileTree tree{name + "/" + path, {}};
    const std::string beginning = path + "/";
    for (auto entry = entries.lower_bound(beginning);
         entry != entries.end() && entry->first.starts_with(beginning); ++entry) {
        tree.entries.emplace(entry->first.substr(beginning.size()), entry->second);
    }
    return tree;
}

FileContent readFile(const std::string& path) try {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        refuse(path, std::error_code(errno, std::generic_category()));
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
} catch (const std::ios_base::failure& error) {
    // The iterators read from the buffer, which throws, as for a folder, whatever the stream is set to.
    refuse(path, error.code());
}

FileTree readFileTree(const std::string& path, const std::string& name) try {
    FileTree tree{name, {}};
    for (const auto& entry : fs::recursive_directory_iterator(path)) {
        const std::string relative = entry.path().lexically_relative(path).generic_string();
        if (entry.is_symlink()) {
            tree.entries[relative] = LinkTarget{fs::read_symlink(entry.path()).generic_string()};
        } else if (entry.is_directory()) {
            tree.entries[relative] = SubFolder{};
        } else if (entry.is_regular_file()) {
            tree.entries[relative] = readFile(entry.path().string());
        } else {
            refuse(entry.path(), std::make_error_code(std::errc::not_supported));
        }
    }
    return tree;
} catch (const fs::filesystem_error& error) {
    refuse(error.path1(), error.code());
}

} // namespace kestrune::macho
