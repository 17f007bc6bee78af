#include "render/image_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace quillane {
namespace {

namespace fs = std::filesystem;

constexpr Color Red = RGB(255, 0, 0);
constexpr Color Green = RGB(0, 255, 0);
constexpr Color Blue = RGB(0, 0, 255);
constexpr Color Brown = RGB(128, 64, 0);

class ImageFile : public ::testing::Test {
  protected:
    void SetUp() override {
        static std::atomic<int> serial{0};
        dir_ = fs::temp_directory_path() /
               ("quillane-image-" + std::to_string(getpid()) + "-" + std::to_string(serial++));
        fs::create_directories(dir_);
    }
    void TearDown() override { fs::remove_all(dir_); }

    std::string at(const std::string& name) const { return (dir_ / name).string(); }

    std::string firstBytes(const std::string& name, size_t n) const {
        std::ifstream in(at(name), std::ios::binary);
        std::string bytes(n, '\0');
        in.read(bytes.data(), static_cast<std::streamsize>(n));
        bytes.resize(static_cast<size_t>(in.gcount()));
        return bytes;
    }

    size_t filesInDir() const {
        return static_cast<size_t>(std::distance(fs::directory_iterator(dir_), fs::directory_iterator()));
    }

    fs::path dir_;
};

// Red top left, blue bottom right, and a few others that tell rows, columns and channels apart.
RasterSurface asymmetricPicture() {
    RasterSurface s(5, 3, White);
    s.setPixel(0, 0, Red);
    s.setPixel(4, 2, Blue);
    s.setPixel(1, 0, Green);
    s.setPixel(0, 1, Brown);
    s.setPixel(3, 2, Black);
    return s;
}

// Little-endian fields of a bitmap file.
void put(std::string& out, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) out += static_cast<char>((value >> (8 * i)) & 255u);
}

uint32_t get(const std::string& in, size_t at, int bytes) {
    uint32_t v = 0;
    for (int i = bytes - 1; i >= 0; --i) v = (v << 8) | static_cast<unsigned char>(in[at + i]);
    return v;
}

// A 24-bit bitmap file of two by two pixels: red, green over blue, white. The rows are stored from
// the bottom up, each pixel as blue, green, red, each row padded to four bytes.
std::string handMadeBitmap() {
    std::string f = "BM";
    put(f, 14 + 40 + 16, 4);
    put(f, 0, 4);
    put(f, 14 + 40, 4);
    for (uint32_t v : {40u, 2u, 2u}) put(f, v, 4);
    put(f, 1, 2);
    put(f, 24, 2);
    for (int i = 0; i < 6; ++i) put(f, 0, 4);
    f += std::string("\xFF\x00\x00\xFF\xFF\xFF\x00\x00", 8);  // bottom row: blue, white
    f += std::string("\x00\x00\xFF\x00\xFF\x00\x00\x00", 8);  // top row: red, green
    return f;
}

void expectSamePixels(const RasterSurface& a, const RasterSurface& b) {
    ASSERT_EQ(a.width(), b.width());
    ASSERT_EQ(a.height(), b.height());
    for (int row = 0; row < a.height(); ++row)
        for (int col = 0; col < a.width(); ++col)
            EXPECT_EQ(a.pixel(col, row), b.pixel(col, row)) << "at column " << col << ", row " << row;
}

void roundTrip(const std::string& path) {
    const RasterSurface original = asymmetricPicture();
    std::string error;
    ASSERT_TRUE(SaveImageFile(original, path, error)) << error;
    RasterSurface loaded(1, 1);
    ASSERT_TRUE(LoadImageFile(path, loaded, error)) << error;
    expectSamePixels(original, loaded);
    EXPECT_EQ(loaded.data()[0], 0xFF0000FFu);  // red, opaque
}

TEST_F(ImageFile, PngRoundTripsExactly) {
    roundTrip(at("picture.png"));
}

TEST_F(ImageFile, BmpRoundTripsExactly) {
    roundTrip(at("picture.bmp"));
}

TEST_F(ImageFile, GifRoundTripsAFewFlatColoursExactly) {
    roundTrip(at("picture.gif"));
}

TEST_F(ImageFile, AHandMadeBitmapLoadsTheRightWayUp) {
    { std::ofstream(at("hand.bmp"), std::ios::binary) << handMadeBitmap(); }
    RasterSurface loaded;
    std::string error;
    ASSERT_TRUE(LoadImageFile(at("hand.bmp"), loaded, error)) << error;
    ASSERT_EQ(loaded.width(), 2);
    ASSERT_EQ(loaded.height(), 2);
    EXPECT_EQ(loaded.pixel(0, 0), Red);
    EXPECT_EQ(loaded.pixel(1, 0), Green);
    EXPECT_EQ(loaded.pixel(0, 1), Blue);
    EXPECT_EQ(loaded.pixel(1, 1), White);
}

TEST_F(ImageFile, ASavedBitmapStoresTheBottomRowFirstInBlueGreenRedOrder) {
    std::string error;
    ASSERT_TRUE(SaveImageFile(asymmetricPicture(), at("p.bmp"), error)) << error;
    std::ifstream in(at("p.bmp"), std::ios::binary);
    const std::string f((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    ASSERT_GT(f.size(), 54u);
    EXPECT_EQ(get(f, 18, 4), 5u);
    EXPECT_EQ(get(f, 22, 4), 3u);
    ASSERT_EQ(get(f, 28, 2), 24u);
    const size_t pixels = get(f, 10, 4), rowBytes = 16;
    ASSERT_GE(f.size(), pixels + 3 * rowBytes);
    // Bytes B, G, R read as a little-endian number give 0xRRGGBB.
    EXPECT_EQ(get(f, pixels + 4 * 3, 3), 0x0000FFu);             // bottom right: blue
    EXPECT_EQ(get(f, pixels + 2 * rowBytes, 3), 0xFF0000u);      // top left: red
    EXPECT_EQ(get(f, pixels + 2 * rowBytes + 3, 3), 0x00FF00u);  // its green neighbour
    EXPECT_EQ(get(f, pixels + rowBytes, 3), 0x804000u);          // brown, R 128, G 64, B 0
}

TEST_F(ImageFile, TheExtensionChoosesTheFormatInAnyCase) {
    const RasterSurface picture = asymmetricPicture();
    std::string error;
    ASSERT_TRUE(SaveImageFile(picture, at("a.PNG"), error)) << error;
    ASSERT_TRUE(SaveImageFile(picture, at("b.Bmp"), error)) << error;
    ASSERT_TRUE(SaveImageFile(picture, at("c.GIF"), error)) << error;
    ASSERT_TRUE(SaveImageFile(picture, at("d.jpg"), error)) << error;
    ASSERT_TRUE(SaveImageFile(picture, at("e.JPEG"), error)) << error;
    EXPECT_EQ(firstBytes("a.PNG", 4), "\x89PNG");
    EXPECT_EQ(firstBytes("b.Bmp", 2), "BM");
    EXPECT_EQ(firstBytes("c.GIF", 4), "GIF8");
    EXPECT_EQ(firstBytes("d.jpg", 2), "\xFF\xD8");
    EXPECT_EQ(firstBytes("e.JPEG", 2), "\xFF\xD8");
    EXPECT_EQ(filesInDir(), 5u);  // no temporary files left behind
}

TEST_F(ImageFile, JpegKeepsLargeFlatAreasClose) {
    RasterSurface picture(32, 16, Red);
    picture.box(16, 0, 31, 15, Blue, true);
    std::string error;
    ASSERT_TRUE(SaveImageFile(picture, at("halves.jpg"), error)) << error;
    RasterSurface loaded;
    ASSERT_TRUE(LoadImageFile(at("halves.jpg"), loaded, error)) << error;
    ASSERT_EQ(loaded.width(), 32);
    ASSERT_EQ(loaded.height(), 16);
    const auto near = [](Color a, Color b) {
        return std::abs(RedOf(a) - RedOf(b)) <= 8 && std::abs(GreenOf(a) - GreenOf(b)) <= 8 &&
               std::abs(BlueOf(a) - BlueOf(b)) <= 8;
    };
    EXPECT_TRUE(near(loaded.pixel(3, 3), Red)) << std::hex << loaded.pixel(3, 3);
    EXPECT_TRUE(near(loaded.pixel(28, 12), Blue)) << std::hex << loaded.pixel(28, 12);
}

TEST_F(ImageFile, AnUnknownExtensionWritesNothing) {
    std::string error;
    EXPECT_FALSE(SaveImageFile(asymmetricPicture(), at("picture.tif"), error));
    EXPECT_FALSE(error.empty());
    EXPECT_FALSE(SaveImageFile(asymmetricPicture(), at("picture"), error));
    EXPECT_EQ(filesInDir(), 0u);
}

TEST_F(ImageFile, AnEmptyPictureIsNotSaved) {
    std::string error;
    EXPECT_FALSE(SaveImageFile(RasterSurface(), at("empty.png"), error));
    EXPECT_FALSE(error.empty());
    EXPECT_FALSE(fs::exists(at("empty.png")));
}

TEST_F(ImageFile, SavingAgainReplacesTheFile) {
    std::string error;
    ASSERT_TRUE(SaveImageFile(RasterSurface(3, 3, Red), at("p.png"), error)) << error;
    ASSERT_TRUE(SaveImageFile(RasterSurface(2, 4, Green), at("p.png"), error)) << error;
    RasterSurface loaded;
    ASSERT_TRUE(LoadImageFile(at("p.png"), loaded, error)) << error;
    EXPECT_EQ(loaded.width(), 2);
    EXPECT_EQ(loaded.height(), 4);
    EXPECT_EQ(loaded.pixel(1, 3), Green);
}

TEST_F(ImageFile, AFailedSaveKeepsTheOldFile) {
    std::string error;
    ASSERT_TRUE(SaveImageFile(RasterSurface(3, 3, Red), at("p.png"), error)) << error;
    // A directory where the temporary file would go makes the write fail.
    fs::create_directory(at("p.png.part"));
    EXPECT_FALSE(SaveImageFile(RasterSurface(2, 2, Blue), at("p.png"), error));
    EXPECT_FALSE(error.empty());
    RasterSurface loaded;
    ASSERT_TRUE(LoadImageFile(at("p.png"), loaded, error)) << error;
    EXPECT_EQ(loaded.width(), 3);
    EXPECT_EQ(loaded.pixel(2, 2), Red);
}

TEST_F(ImageFile, ASaveIntoAMissingFolderFails) {
    std::string error;
    EXPECT_FALSE(SaveImageFile(RasterSurface(2, 2), at("nowhere/p.png"), error));
    EXPECT_FALSE(error.empty());
}

TEST_F(ImageFile, AFailedLoadLeavesThePictureAsItWas) {
    { std::ofstream(at("notes.png")) << "not a picture at all"; }
    RasterSurface picture(4, 2, Brown);
    std::string error;
    EXPECT_FALSE(LoadImageFile(at("missing.png"), picture, error));
    EXPECT_FALSE(error.empty());
    error.clear();
    EXPECT_FALSE(LoadImageFile(at("notes.png"), picture, error));
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(picture.width(), 4);
    EXPECT_EQ(picture.height(), 2);
    EXPECT_EQ(picture.pixel(3, 1), Brown);
}

TEST_F(ImageFile, LoadingKeepsASetScaleAndOtherwisePixelUnits) {
    std::string error;
    ASSERT_TRUE(SaveImageFile(asymmetricPicture(), at("p.bmp"), error)) << error;
    RasterSurface scaled(10, 10);
    scaled.setScale(-1, 1, 1, -1);
    ASSERT_TRUE(LoadImageFile(at("p.bmp"), scaled, error)) << error;
    EXPECT_EQ(scaled.scaleLeft(), -1);
    EXPECT_EQ(scaled.scaleBottom(), -1);
    EXPECT_EQ(scaled.point(-1, 1), Red);
    RasterSurface plain(10, 10);
    ASSERT_TRUE(LoadImageFile(at("p.bmp"), plain, error)) << error;
    EXPECT_EQ(plain.scaleRight(), 5);
    EXPECT_EQ(plain.scaleBottom(), 3);
    EXPECT_EQ(plain.point(4.5, 2.5), Blue);
}

TEST_F(ImageFile, AFileIsReadByItsContentNotItsName) {
    std::string error;
    ASSERT_TRUE(SaveImageFile(asymmetricPicture(), at("p.gif"), error)) << error;
    fs::rename(at("p.gif"), at("p.png"));
    RasterSurface loaded;
    ASSERT_TRUE(LoadImageFile(at("p.png"), loaded, error)) << error;
    expectSamePixels(asymmetricPicture(), loaded);
}

}  // namespace
}  // namespace quillane
