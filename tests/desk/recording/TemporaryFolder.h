// A folder for the files of one test, removed at its end.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace kestrune::desk {

class TemporaryFolder {
public:
    // Tests run in parallel processes: the process and the test make the name unique.
    TemporaryFolder() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        path_ = std::filesystem::temp_directory_path() /
                (std::string(test->test_suite_name()) + "." + test->name() + "." + std::to_string(getpid()));
        std::filesystem::create_directories(path_);
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

} // namespace kestrune::desk
