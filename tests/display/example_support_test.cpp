// What the drawing tests and the examples stand on: pictures without a screen and PNG files.

#include <examples/support/offscreen_context.h>
#include <examples/support/png_file.h>

#include <tests/display/canvas.h>

#include <GL/gl.h>
#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

using namespace ox_examples;
using ox_test::pixel_at;

void fill(float left, float bottom, float right, float top) {
    glRectf(left, bottom, right, top);
}

image small_picture() {
    image picture;
    picture.width = 3;
    picture.height = 2;
    for (int i = 0; i < 3 * 2 * 4; ++i) {
        picture.rgba.push_back(static_cast<unsigned char>(i * 10));
    }
    return picture;
}

/// A folder of the test's own that is gone afterwards.
class PngFile : public testing::Test {
protected:
    void SetUp() override { std::filesystem::create_directory(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }

    int count_files() const {
        int count = 0;
        for ([[maybe_unused]] const auto& file : std::filesystem::directory_iterator(folder)) {
            ++count;
        }
        return count;
    }

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        (std::string("ox_png_file_") +
         testing::UnitTest::GetInstance()->current_test_info()->name());
    const std::string path = (folder / "picture.png").string();
};

TEST(OffscreenContext, StartsWithOpenglsInitialStateAndTheWholePictureAsViewport) {
    const offscreen_context context(20, 10);
    GLint viewport[4] = {};
    glGetIntegerv(GL_VIEWPORT, viewport);
    EXPECT_THAT(viewport, testing::ElementsAre(0, 0, 20, 10));
    EXPECT_EQ(context.get_width(), 20);
    EXPECT_EQ(context.get_height(), 10);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST(OffscreenContext, ReadsTheTopRowFirst) {
    offscreen_context context(5, 7);
    glColor3f(1, 0, 0);
    fill(-1, 0.75f, 1, 1);
    const image picture = context.read_pixels();
    EXPECT_EQ(picture.width, 5);
    EXPECT_EQ(picture.height, 7);
    EXPECT_EQ(pixel_at(picture, 4, 0), ox_test::red);
    EXPECT_EQ(pixel_at(picture, 4, 6), ox_test::black);
}

TEST(OffscreenContext, HidesWhatLiesBehindByItsDepthBuffer) {
    offscreen_context context(4, 4);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glEnable(GL_DEPTH_TEST);
    glColor3f(1, 0, 0);
    glTranslatef(0, 0, -0.5f);
    fill(-1, -1, 1, 1);
    glColor3f(0, 1, 0);
    glTranslatef(0, 0, 1);
    fill(-1, -1, 1, 1);
    EXPECT_EQ(pixel_at(context.read_pixels(), 2, 2), ox_test::red);
}

TEST(OffscreenContext, AveragesTheSamplesOfAPixel) {
    offscreen_context context(2, 2, 4);
    glClear(GL_COLOR_BUFFER_BIT);
    glColor3f(1, 1, 1);
    fill(-1, -1, -0.5f, 1);
    const image picture = context.read_pixels();
    EXPECT_NEAR(pixel_at(picture, 0, 0).red, 128, 1);
    EXPECT_EQ(pixel_at(picture, 1, 0), ox_test::black);
}

TEST(OffscreenContext, DrawingGoesOnAfterReading) {
    offscreen_context context(2, 2, 4);
    glColor3f(1, 0, 0);
    fill(-1, -1, 1, 1);
    context.read_pixels();
    glColor3f(0, 1, 0);
    fill(-1, -1, 1, 1);
    EXPECT_EQ(pixel_at(context.read_pixels(), 1, 1), ox_test::green);
}

TEST(OffscreenContext, SeveralContextsKeepTheirPicturesApart) {
    offscreen_context first(2, 2);
    glColor3f(1, 0, 0);
    fill(-1, -1, 1, 1);
    offscreen_context second(2, 2);
    glColor3f(0, 1, 0);
    fill(-1, -1, 1, 1);
    EXPECT_EQ(pixel_at(second.read_pixels(), 0, 0), ox_test::green);
    first.make_current();
    EXPECT_EQ(pixel_at(first.read_pixels(), 0, 0), ox_test::red);
}

TEST(OffscreenContext, RefusesPicturesThatCannotBe) {
    EXPECT_THROW(offscreen_context(0, 5), std::runtime_error);
    EXPECT_THROW(offscreen_context(5, -1), std::runtime_error);
    EXPECT_THROW(offscreen_context(1000000, 1000000), std::runtime_error);
    EXPECT_THROW(offscreen_context(5, 5, 1000), std::runtime_error);
}

TEST_F(PngFile, ReadsBackTheBytesThatWereWritten) {
    write_png(path, small_picture());
    const image picture = read_png(path);
    EXPECT_EQ(picture.width, 3);
    EXPECT_EQ(picture.height, 2);
    EXPECT_EQ(picture.rgba, small_picture().rgba);
}

TEST_F(PngFile, WritingLeavesNothingButThePicture) {
    write_png(path, small_picture());
    write_png(path, small_picture());
    EXPECT_EQ(count_files(), 1);
}

TEST_F(PngFile, RefusesToWriteAnInconsistentPicture) {
    image picture = small_picture();
    picture.rgba.pop_back();
    EXPECT_THROW(write_png(path, picture), std::runtime_error);
    EXPECT_THROW(write_png(path, image()), std::runtime_error);
    EXPECT_EQ(count_files(), 0);
}

TEST_F(PngFile, LeavesNoTemporaryFileWhereThePictureCannotBe) {
    std::filesystem::create_directory(path);
    EXPECT_THROW(write_png(path, small_picture()), std::runtime_error);
    EXPECT_EQ(count_files(), 1);
}

TEST_F(PngFile, RefusesToReadAMissingFile) {
    EXPECT_THROW(read_png(path), std::runtime_error);
}

TEST_F(PngFile, RefusesToReadEveryTruncatedFile) {
    write_png(path, small_picture());
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const std::size_t end_chunk = 12; // the picture is complete before it
    for (std::size_t size = 0; size < bytes.size() - end_chunk; ++size) {
        std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<long>(size));
        EXPECT_THROW(read_png(path), std::runtime_error) << size;
    }
}

} // namespace
