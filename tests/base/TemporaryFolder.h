// A folder for the files of one test, removed at its end.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace kestrune {

class TemporaryFolder {
public:
    // With a name of its own: other processes run tests too, and some users cannot remove what others have
    // left.
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "kestrune-test-XXXXXX").string();
        EXPECT_NE(mkdtemp(name.data()), nullptr) << name;
        path_ = name;
    }

    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

    std::filesystem::path file(std::string_view name, std::string_view content) const {
        std::ofstream output(path_ / name, std::ios::binary);
        output.write(content.data(), static_cast<std::streamsize>(content.size()));
        EXPECT_TRUE(output.good());
        return path_ / name;
    }

private:
    std::filesystem::path path_;
};

} // namespace kestrune
