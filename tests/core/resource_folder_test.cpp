#include "core/resource_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/core/list_file_fixture.h"

namespace quillane::testing {
namespace {

TEST(ResourceFolder, TheProgramsOwnFolderComesFirst) {
    TempDir dir;
    std::filesystem::create_directories(dir.path("bin"));
    std::filesystem::create_directories(dir.path("share/quillane"));
    dir.write("bin/default.ifs", "A {\n}\n");
    dir.write("share/quillane/default.ifs", "B {\n}\n");
    EXPECT_EQ(ResourceFolder(dir.path("bin")), dir.path("bin"));
}

TEST(ResourceFolder, AnInstalledProgramFindsTheShareFolderBesideItsBinFolder) {
    TempDir dir;
    std::filesystem::create_directories(dir.path("bin"));
    std::filesystem::create_directories(dir.path("share/quillane/help"));
    EXPECT_EQ(ResourceFolder(dir.path("bin")),
              (std::filesystem::path(dir.path("")) / "share/quillane").string());
}

TEST(ResourceFolder, WithNeitherTheProgramsFolderStays) {
    TempDir dir;
    std::filesystem::create_directories(dir.path("bin"));
    EXPECT_EQ(ResourceFolder(dir.path("bin")), dir.path("bin"));
}

}  // namespace
}  // namespace quillane::testing
