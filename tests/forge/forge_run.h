// The forge run as a program, in a folder of its own that is gone afterwards.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "forge/text_file.h"

namespace varnstride {

class ForgeRun : public ::testing::Test {
 protected:
    void SetUp() override {
        folder_ = std::filesystem::path(::testing::TempDir()) /
                  ("forge_run_" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder_);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    std::string Path(const std::string& name) const { return (folder_ / name).string(); }
    void Write(const std::string& name, const std::string& text) {
        ASSERT_TRUE(WriteTextFile(Path(name), text).Ok());
    }
    // Runs the forge in the folder; gives its exit code.
    int Run(const std::string& arguments) {
        const std::string command =
            "cd '" + folder_.string() + "' && '" VARNSTRIDE_FORGE "' " + arguments + " >out 2>err";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string Told() const { return ReadTextFile(Path("err")).Get(); }

    std::filesystem::path folder_;
};

}  // namespace varnstride
